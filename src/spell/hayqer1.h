// hayqer1: the ending strip that the suggestion generator runs before it makes its variants.
//
// A misspelt word usually carries a correct ending ("...ներից", "...թյամբ"). The ending is taken
// off so that the variants are made of the stem alone, and WordTail keeps it, so that the first
// suggestion the dictionary holds gets it back.
#pragma once

#include <string_view>
#include <vector>

#include "text/font_text.h"

namespace vorlexa::spell {

struct Hayqer1Result {
    FontText word;      // what the generator goes on with: the word less its ending
    FontText WordTail;  // what is put back on the first surviving suggestion; may be empty
    // Forms added to the candidate list before any variant: only the ending "ման" adds them
    // (the stem with "ում", then with "ել"), in that order.
    std::vector<FontText> List1Items;
};

// Strips one known ending of a word in font text: the first ending that matches wins, tested
// over the word's last 6, then 5, 4, 3, 2 and 1 letters. A word with no known ending comes back
// unchanged, with an empty WordTail.
Hayqer1Result hayqer1(std::string_view rawWord);

}  // namespace vorlexa::spell
