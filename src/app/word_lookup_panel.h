// The main window's answer to a double click on a word: its translations and synonyms become the
// tool tip of the box and fill the small panel (the word in Text1, the synonyms in List1). In the
// result box a selection holding "/" is a choice between alternatives of a gloss, offered for
// editing instead of looked up.
#pragma once

#include "app/main_form.h"
#include "dictionary_tools/word_lookup.h"
#include "text/font_text.h"

namespace vorlexa::app {

struct DoubleClickResult {
    FontText toolTip;         // for the box clicked; empty when nothing was looked up
    bool runReplace = false;  // Replacce_click is to run: the find and replace box opens
};

// Text3_DblClick: the selection of the source box is looked up (Txt34_dblclick).
DoubleClickResult Text3_DblClick(MainForm& form, const FontText& selection);
// Text4_dblclick: empties Text2 of the panel; a selection with "/" goes to Txt35_dblclick, any
// other is looked up, and with EdtTr checked the panel is laid out for editing too.
DoubleClickResult Text4_dblclick(MainForm& form, const FontText& selection);

}  // namespace vorlexa::app
