// The letter tables of the suggestion generator, as ordered data. Each pass of a round walks the
// word position by position and, at each position, tries the rows of its table in the order
// written here: the order of the variants in the candidate list is the order of these rows.
#pragma once

#include <span>
#include <string_view>

namespace vorlexa::spell {

// A letter and what a pass writes in its place.
struct LetterSwap {
    std::string_view letter;
    std::string_view replacement;
};

// Pass 1: the main table of letters that sound or look alike (a wrong letter).
std::span<const LetterSwap> mainSwaps();
// Pass 2: the second choice for a letter.
std::span<const LetterSwap> secondSwaps();
// Pass 3: the third choice.
std::span<const LetterSwap> thirdSwaps();

// Pass 4: the pairs of two vowels that get a consonant between them (a forgotten consonant).
std::span<const std::string_view> vowelPairs();
// The consonants, in the order they are inserted; "և" closes the list.
std::span<const std::string_view> consonants();
// The vowels inserted between two consonants (a forgotten vowel); "ու" is two letters.
std::span<const std::string_view> insertedVowels();
// True when the two letters are a consonant (of the list less "և") followed by any consonant.
bool isConsonantPair(std::string_view twoLetters);
bool isVowelPair(std::string_view twoLetters);

}  // namespace vorlexa::spell
