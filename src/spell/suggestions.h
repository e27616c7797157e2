// splch, the suggestion generator of the spell checker.
//
// Confusable spellings of a word are made letter by letter from the tables of letter_tables.h,
// into one ordered candidate list (List1) that is at once the generator's work queue and the
// list shown to the user; then only what the Armenian dictionary holds is kept. There is no
// ranking: suggestions stand in the order they were made. Each kind of mistake has its own
// function below, and each pass of a round is one of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "engine/dictionary_store.h"
#include "text/font_text.h"

namespace vorlexa::spell {

// A key holds 20 letters. A word this much longer has no candidate the dictionary can hold (the
// ending strip takes off at most 6 letters and a round removes at most one more), and the work
// of the rounds grows with the cube of the length: longer words get no variants.
inline constexpr std::size_t kMaxSuggestWordLength = kKeyWidth + 8;
// The candidate list of the longest word taken stays far below this; the cap only bounds memory
// should the tables ever grow.
inline constexpr std::size_t kMaxCandidates = 1'000'000;
// Words of this many letters or fewer get every key of their bucket of about their length.
inline constexpr std::size_t kShortWordLength = 6;
// The share, in percent, of matching last letters that brings a key near a longer word.
inline constexpr double kNearWordShare = 60.0;

// The two-letter buckets of the Armenian dictionary: the keys of each column in chain order, up
// to the "null" record that closes it. A column is read from the file once, when first needed.
class ArmenianBuckets {
  public:
    explicit ArmenianBuckets(const RecordFile& armenianDictionary)
        : dictionary_(armenianDictionary) {}
    const std::vector<FontText>& keysOf(std::string_view word);
    // True when the bucket of the word holds the word or the word plus "յ" before its end.
    bool holds(std::string_view word);

  private:
    const RecordFile& dictionary_;
    std::unordered_map<int, std::vector<FontText>> columns_;
};

// What splch needs besides the word.
struct SpellInput {
    FontText RawWord;          // the word as typed, with its capital
    FontText Text2;            // the replacement shown before suggestions are made
    FontText text;             // the text of the pass, for the lone "ա"
    std::int64_t ScanPos = 0;  // the position of the delimiter after the word in `text`
};

struct SpellResult {
    std::vector<FontText> List1;  // the suggestions, in the order they were made
    FontText Text1;               // the word in question
    FontText Text2;               // the replacement offered
    FontText WordTail;            // left over when no suggestion took it back
};

// The generator's part without the dictionary, exposed for tests: steps 1 to 6 (the word
// itself, hayqer1, the letter drops, the rounds of six passes).
struct Candidates {
    std::vector<FontText> List1;
    FontText word;  // the stripped, lower-cased word the rounds began with
    FontText WordTail;
    FontText Text1, Text2;  // set by the lone "ա" only
    bool Text2Set = false;
};
Candidates generateCandidates(const SpellInput& input);

// The number of rounds for a word of n letters.
std::size_t roundCount(std::size_t n);

// The kinds of mistake, one pass each. Each adds its variants of `word` to `list`.
// `lastChosen` is the letter a table pass wrote last in this round, which the second pass of
// letter pairs uses on purpose.
struct Round {
    const FontText& word;
    std::vector<FontText>& list;
    FontText lastChosen;
};
void AditLetterRemove(const FontText& word, std::vector<FontText>& list);  // an extra letter
void confusableLetters(Round& round);    // pass 1: a wrong letter, main table
void secondChoiceLetters(Round& round);  // pass 2: a wrong letter, second choice
void thirdChoiceLetters(Round& round);   // pass 3: a wrong letter, third choice
void letterPairs(Round& round);          // pass 4: two letters, and a forgotten letter between
void swappedGlide(Round& round);         // pass 5: "յու" and "ույ" swapped
void doubledLetter(Round& round);        // pass 6: a letter typed twice

// Step 8: three times over, the later copy of an item goes, and so does a later one-letter item
// when the word has more than one letter; an empty item ends a pass.
void cleanUp(std::vector<FontText>& list, std::size_t wordLength);

// sblik1: the keys of the word's bucket near it.
void sblik1(const FontText& word, ArmenianBuckets& buckets, std::vector<FontText>& list);
// sblik: only what the dictionary holds stays. The first survivor gets WordTail back in Text2.
void sblik(std::vector<FontText>& list, FontText& WordTail, FontText& Text2,
           ArmenianBuckets& buckets);

// The whole generator: steps 1 to 10.
SpellResult splch(const SpellInput& input, ArmenianBuckets& buckets);

}  // namespace vorlexa::spell
