// The stem classes: Armenian nouns lose or reduce a vowel when an ending is added, so that what
// the ending analysis has left is a stem the dictionary does not hold. The class of a known stem
// says where the vowel goes back. The list itself is data (stem_classes.tsv).
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "text/font_text.h"

namespace vorlexa {

class Engine;

enum class StemClass {
    FinalI,   // "ի" at the end: "ագ" gives ագի
    InnerI1,  // "ի" before the last letter: "ազատագր" gives ազատագիր
    InnerU2,  // "ու" before the last two letters: "անդնդ" gives անդունդ
    InnerU1,  // "ու" before the last letter: "ադամաթզ" gives ադամաթուզ
    InnerI2,  // "ի" before the last two letters: "աղոթագրք" gives աղոթագիրք
    InnerU3,  // "ու" before the last three letters: "կրծք" gives կուրծք
};

struct StemRow {
    FontText stem;
    StemClass stemClass;
};

// Every row of the list, in the order of testing, a stem that stands twice included.
const std::vector<StemRow>& stemClassRows();

// The class of a stem, compared whole; where a stem stands twice the first row decides.
std::optional<StemClass> stemClassOf(std::string_view stem);

// The dictionary form of a stem of that class.
FontText rebuildStem(std::string_view stem, StemClass stemClass);

// Replaces a reduced stem in CurrentWord by its dictionary form; any other word stays as it is.
void selcase(Engine& e);

}  // namespace vorlexa
