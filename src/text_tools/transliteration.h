// Transliteration between Armenian and Latin letters, with no dictionary: three ordered lists of
// global replacements. Each step replaces every occurrence, case-sensitively, in the whole text
// as the steps before left it, so the order of the rows is the algorithm: digraphs go before
// single letters, and the shadowed and odd rows are kept as they stand.
#pragma once

#include <span>
#include <string_view>

#include "text/font_text.h"

namespace vorlexa::text_tools {

// One row of a list: the text to find and the text put in its place, both font text.
struct ReplacementStep {
    std::string_view find;
    std::string_view put;
};

enum class Transliteration {
    ArmenianToLatin,          // cvtae_Click, "Translit (Arm-Lat)"
    EnglishToArmenian,        // ET_Click, an English text written in Armenian letters by its sound
    LatinArmenianToArmenian,  // LLAT_Click, Armenian that was typed in Latin letters
};

// The rows of one list, in the order they run.
std::span<const ReplacementStep> replacementList(Transliteration which);

// Every occurrence of `find`, left to right; what was put in is not searched again.
void replaceEvery(FontText& text, std::string_view find, std::string_view put);

// Runs the rows in order over the whole text.
void runReplacementList(FontText& text, std::span<const ReplacementStep> steps);

FontText transliterate(std::string_view text, Transliteration which);

}  // namespace vorlexa::text_tools
