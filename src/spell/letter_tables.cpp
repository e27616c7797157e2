#include "spell/letter_tables.h"

#include <algorithm>
#include <array>

#include "text/font_text.h"

namespace vorlexa::spell {

using namespace literals;

namespace {

// "ո", "ռ" and "ւ" are not here: the first pass treats them by their neighbours.
constexpr std::array kMainSwaps = {
    LetterSwap{"ա"_ft, "ե"_ft}, LetterSwap{"բ"_ft, "փ"_ft}, LetterSwap{"գ"_ft, "ք"_ft},
    LetterSwap{"դ"_ft, "թ"_ft}, LetterSwap{"ե"_ft, "է"_ft}, LetterSwap{"զ"_ft, "ս"_ft},
    LetterSwap{"է"_ft, "ե"_ft}, LetterSwap{"թ"_ft, "դ"_ft}, LetterSwap{"ժ"_ft, "շ"_ft},
    LetterSwap{"խ"_ft, "ղ"_ft}, LetterSwap{"ծ"_ft, "ձ"_ft}, LetterSwap{"կ"_ft, "գ"_ft},
    LetterSwap{"ձ"_ft, "ծ"_ft}, LetterSwap{"ղ"_ft, "խ"_ft}, LetterSwap{"ճ"_ft, "ջ"_ft},
    LetterSwap{"յ"_ft, "ը"_ft}, LetterSwap{"չ"_ft, "ճ"_ft}, LetterSwap{"պ"_ft, "փ"_ft},
    LetterSwap{"ջ"_ft, "ճ"_ft}, LetterSwap{"ս"_ft, "զ"_ft}, LetterSwap{"վ"_ft, "ֆ"_ft},
    LetterSwap{"տ"_ft, "թ"_ft}, LetterSwap{"ր"_ft, "ռ"_ft}, LetterSwap{"ց"_ft, "ծ"_ft},
    LetterSwap{"փ"_ft, "բ"_ft}, LetterSwap{"ք"_ft, "գ"_ft}, LetterSwap{"օ"_ft, "ո"_ft},
    LetterSwap{"ֆ"_ft, "վ"_ft}, LetterSwap{"մ"_ft, "ն"_ft}, LetterSwap{"ն"_ft, "մ"_ft},
    LetterSwap{"շ"_ft, "ժ"_ft},
};

constexpr std::array kSecondSwaps = {
    LetterSwap{"բ"_ft, "պ"_ft},  LetterSwap{"ա"_ft, "ո"_ft}, LetterSwap{"ե"_ft, "ա"_ft},
    LetterSwap{"դ"_ft, "տ"_ft},  LetterSwap{"թ"_ft, "տ"_ft}, LetterSwap{"ժ"_ft, "ջ"_ft},
    LetterSwap{"խ"_ft, "կհ"_ft}, LetterSwap{"ծ"_ft, "ց"_ft}, LetterSwap{"կ"_ft, "ք"_ft},
    LetterSwap{"ձ"_ft, "ց"_ft},  LetterSwap{"ճ"_ft, "չ"_ft}, LetterSwap{"շ"_ft, "չ"_ft},
    LetterSwap{"չ"_ft, "ջ"_ft},  LetterSwap{"պ"_ft, "բ"_ft}, LetterSwap{"ջ"_ft, "չ"_ft},
    LetterSwap{"տ"_ft, "դ"_ft},  LetterSwap{"ր"_ft, "ռ"_ft}, LetterSwap{"ց"_ft, "ձ"_ft},
    LetterSwap{"փ"_ft, "պ"_ft},  LetterSwap{"ք"_ft, "կ"_ft},
};

constexpr std::array kThirdSwaps = {
    LetterSwap{"ջ"_ft, "գ"_ft}, LetterSwap{"գ"_ft, "կ"_ft}, LetterSwap{"ճ"_ft, "ժ"_ft},
    LetterSwap{"ժ"_ft, "ճ"_ft}, LetterSwap{"ծ"_ft, "տ"_ft},
};

constexpr std::array kVowelPairs = {
    "աա"_ft, "աե"_ft, "աի"_ft, "աէ"_ft, "աո"_ft, "աը"_ft, "աօ"_ft, "եա"_ft, "եե"_ft, "եի"_ft,
    "եը"_ft, "եէ"_ft, "եո"_ft, "եօ"_ft, "իա"_ft, "իե"_ft, "ւա"_ft, "ւե"_ft, "ւէ"_ft, "ւի"_ft,
    "ւը"_ft, "ւո"_ft, "ւօ"_ft, "իի"_ft, "իը"_ft, "իէ"_ft, "իո"_ft, "իօ"_ft, "ըա"_ft, "ըե"_ft,
    "ըի"_ft, "ըը"_ft, "ըէ"_ft, "ըո"_ft, "ըօ"_ft, "ոա"_ft, "ոե"_ft, "ոի"_ft, "ոը"_ft, "ոէ"_ft,
    "ոո"_ft, "ոօ"_ft, "օա"_ft, "օե"_ft, "օի"_ft, "օը"_ft, "օէ"_ft, "օո"_ft, "օօ"_ft,
};
static_assert(kVowelPairs.size() == 49);

constexpr std::array kConsonants = {
    "բ"_ft, "գ"_ft, "դ"_ft, "զ"_ft, "թ"_ft, "ժ"_ft, "լ"_ft, "խ"_ft, "ծ"_ft, "կ"_ft, "հ"_ft,
    "ձ"_ft, "ղ"_ft, "ճ"_ft, "մ"_ft, "յ"_ft, "ն"_ft, "շ"_ft, "չ"_ft, "պ"_ft, "ջ"_ft, "ռ"_ft,
    "ս"_ft, "վ"_ft, "տ"_ft, "ր"_ft, "ց"_ft, "փ"_ft, "ք"_ft, "և"_ft, "ֆ"_ft,
};
static_assert(kConsonants.size() == 31);

constexpr std::array kInsertedVowels = {
    "ա"_ft, "ե"_ft, "է"_ft, "ը"_ft, "ի"_ft, "ո"_ft, "ու"_ft, "օ"_ft,
};

bool isConsonant(char c, bool ligatureCounts) {
    const std::string_view letter(&c, 1);
    if (!ligatureCounts && letter == "և"_ft) return false;
    return std::find(kConsonants.begin(), kConsonants.end(), letter) != kConsonants.end();
}

}  // namespace

std::span<const LetterSwap> mainSwaps() {
    return kMainSwaps;
}
std::span<const LetterSwap> secondSwaps() {
    return kSecondSwaps;
}
std::span<const LetterSwap> thirdSwaps() {
    return kThirdSwaps;
}
std::span<const std::string_view> vowelPairs() {
    return kVowelPairs;
}
std::span<const std::string_view> consonants() {
    return kConsonants;
}
std::span<const std::string_view> insertedVowels() {
    return kInsertedVowels;
}

// The 930 pairs: 30 first letters (the list less "և") by 31 second letters.
bool isConsonantPair(std::string_view two) {
    return two.size() == 2 && isConsonant(two[0], false) && isConsonant(two[1], true);
}

bool isVowelPair(std::string_view two) {
    return std::find(kVowelPairs.begin(), kVowelPairs.end(), two) != kVowelPairs.end();
}

}  // namespace vorlexa::spell
