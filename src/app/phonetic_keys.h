// Phonetic typing: while the input language is Armenian, a key of a Latin keyboard is rewritten
// into the font code of the Armenian letter that sounds like it, before it reaches the box. The
// shifted digit row and the brackets carry the letters Latin lacks.
#pragma once

namespace vorlexa::app {

// Which box the key goes to; the boxes share one table with small differences.
enum class KeyTable {
    Main,        // the main window's boxes (kanci) and the chat's input box
    Expressions, // the expression editor's boxes: the same without "?"
    Dictionary,  // the dictionary window's Armenian box: always a small letter, no "?"
};

// The font code a key becomes; a key not in the table comes back unchanged.
unsigned char kanci(unsigned char key, KeyTable table = KeyTable::Main);

}  // namespace vorlexa::app
