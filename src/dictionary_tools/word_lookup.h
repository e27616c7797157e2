// The look-up of a double-clicked word: its translations, found through the dictionary's column
// and, when the word itself is not there, through shorter forms of it; then its synonyms and
// homonyms, the words of the flat list (Stringea, Stringae) whose gloss is the same.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/dictionary_store.h"
#include "text/font_text.h"

namespace vorlexa {

inline constexpr int kEnglishLookupTries = 3;   // the word and two shorter forms
inline constexpr int kArmenianLookupTries = 4;  // the word and three shorter forms
inline constexpr std::string_view kNoResults = "No Results!!!";

// Strips one ending from an Armenian word in place; false when it finds none.
using StripEnding = std::function<bool(FontText& word)>;

// The Armenian stripping of the look-up: the ending strip of the suggestion generator (hayqer1).
StripEnding hayqer1Strip();

struct LookupResult {
    FontText word;                   // the word looked up, as the panel's Text1 shows it
    FontText text;                   // the tool tip: translations and synonyms, or "No Results!!!"
    std::vector<FontText> synonyms;  // List1: the keys that share the last gloss found
    bool found = false;
};

// True for a character that can belong to a word of a selection.
bool isSelectionLetter(unsigned char c);
// The word of a selection: a sign at its start is dropped (and a blank added at the end), any
// later sign ends the word there.
FontText cleanSelection(std::string_view selection);

// English: every record of the column whose key is the word; a key of the word and "e" is taken
// too and ends the scan. `englishFlat` is Stringea.
LookupResult synonimse(const DictionaryStore& store, std::string_view englishFlat, FontText word);
// Armenian: the same over dictionarya-e and Stringae, with no "e" rule; `strip` shortens the word
// between tries (none given: the word alone is tried).
LookupResult synonimsa(const DictionaryStore& store, std::string_view armenianFlat, FontText word,
                       const StripEnding& strip);

// A double click on a selection: cleans it, and looks it up as English or Armenian by its last
// character. An empty word looks up nothing (the result's text is empty).
LookupResult Txt34_dblclick(const DictionaryStore& store, std::string_view englishFlat,
                            std::string_view armenianFlat, std::string_view selection,
                            const StripEnding& strip);

}  // namespace vorlexa
