#include "spell/suggestions.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "spell/hayqer1.h"
#include "spell/letter_tables.h"

namespace vorlexa::spell {

using namespace literals;

namespace {

// The word with `length` letters at 0-based `at` replaced by `put`.
FontText replaced(std::string_view word, std::size_t at, std::size_t length, std::string_view put) {
    FontText out;
    out.reserve(word.size() + put.size());
    out.append(word.substr(0, at));
    out.append(put);
    if (at + length < word.size()) out.append(word.substr(at + length));
    return out;
}

void add(std::vector<FontText>& list, FontText item) {
    if (list.size() < kMaxCandidates) list.push_back(std::move(item));
}

// A table pass: every position whose letter has a row gets that row's replacement.
void tablePass(Round& round, std::span<const LetterSwap> table) {
    const FontText& w = round.word;
    for (std::size_t i = 0; i < w.size(); ++i) {
        const std::string_view letter(&w[i], 1);
        const auto row = std::find_if(table.begin(), table.end(),
                                      [&](const LetterSwap& s) { return s.letter == letter; });
        if (row == table.end()) continue;
        round.lastChosen = FontText(row->replacement);
        add(round.list, replaced(w, i, 1, row->replacement));
    }
}

// The four pairs that stand for one letter at the start of a word.
struct PairAtStart {
    std::string_view pair;
    std::string_view letter;
};
constexpr std::array kPairsAtStart = {
    PairAtStart{"յե"_ft, "ե"_ft},
    PairAtStart{"վո"_ft, "ո"_ft},
    PairAtStart{"յի"_ft, "յ"_ft},
    PairAtStart{"քս"_ft, "ղ"_ft},
};

}  // namespace

std::size_t roundCount(std::size_t n) {
    constexpr std::size_t kShortWord = 4;    // below: four rounds a letter
    constexpr std::size_t kMiddleWord = 10;  // below: the square of the length
    if (n < kShortWord) return 4 * n;
    if (n < kMiddleWord) return n * n;
    return 3 * n;
}

const std::vector<FontText>& ArmenianBuckets::keysOf(std::string_view word) {
    const int column = skizbaColumn(word);
    const auto found = columns_.find(column);
    if (found != columns_.end()) return found->second;
    std::vector<FontText>& keys = columns_[column];
    const double limit = dictionary_.recordCountExact();
    DictRecord r;
    for (std::int64_t rec = column; rec <= limit; rec += kArmenianStride) {
        r.raw = dictionary_.read(rec);
        if (r.isNull()) break;
        keys.emplace_back(r.key());
    }
    return keys;
}

bool ArmenianBuckets::holds(std::string_view word) {
    if (word.empty()) return false;
    const FontText withGlide = FontText(word) + FontText("յ"_ft);
    for (const FontText& key : keysOf(word))
        if (key == word || key == withGlide) return true;
    return false;
}

void AditLetterRemove(const FontText& word, std::vector<FontText>& list) {
    if (word.empty()) {
        add(list, {});
        add(list, {});
        return;
    }
    add(list, word.substr(1));
    for (std::size_t i = 1; i < word.size(); ++i) add(list, replaced(word, i, 1, ""));
    add(list, word.substr(0, word.size() - 1));
}

void confusableLetters(Round& round) {
    const FontText& w = round.word;
    const std::span<const LetterSwap> table = mainSwaps();
    for (std::size_t i = 0; i < w.size(); ++i) {
        const std::string_view letter(&w[i], 1);
        const std::string_view next =
            i + 1 < w.size() ? std::string_view(&w[i + 1], 1) : std::string_view{};
        if (letter == "ո"_ft) {
            // "ո" before anything but "ւ" may be "ու" or "օ".
            if (next == "ւ"_ft) continue;
            round.lastChosen = FontText("ւ"_ft);
            add(round.list, replaced(w, i + 1, 0, "ւ"_ft));
            round.lastChosen = FontText("օ"_ft);
            add(round.list, replaced(w, i, 1, "օ"_ft));
        } else if (letter == "ռ"_ft) {
            // A word rarely begins with "ռ" where "ր" was meant; "ռոպե..." is the exception.
            if (i == 0 && !std::string_view(w).starts_with("ռոպե"_ft)) continue;
            round.lastChosen = FontText("ր"_ft);
            add(round.list, replaced(w, i, 1, "ր"_ft));
        } else if (letter == "ւ"_ft) {
            // A lone "ւ" was meant as "ու".
            if (i > 0 && std::string_view(&w[i - 1], 1) == "ո"_ft) continue;
            round.lastChosen = FontText("ու"_ft);
            add(round.list, replaced(w, i, 1, "ու"_ft));
        } else {
            const auto row = std::find_if(table.begin(), table.end(),
                                          [&](const LetterSwap& s) { return s.letter == letter; });
            if (row == table.end()) continue;
            round.lastChosen = FontText(row->replacement);
            add(round.list, replaced(w, i, 1, row->replacement));
        }
    }
}

void secondChoiceLetters(Round& round) {
    tablePass(round, secondSwaps());
}

void thirdChoiceLetters(Round& round) {
    tablePass(round, thirdSwaps());
}

void letterPairs(Round& round) {
    const FontText& w = round.word;
    for (std::size_t i = 0; i + 1 < w.size(); ++i) {
        const std::string_view pair = std::string_view(w).substr(i, 2);
        for (const PairAtStart& p : kPairsAtStart) {
            if (pair != p.pair) continue;
            // Away from the start the pair takes the letter a table wrote last, on purpose.
            add(round.list,
                replaced(w, i, 2, i == 0 ? p.letter : std::string_view(round.lastChosen)));
        }
        if (pair == "եվ"_ft && w != "հոգեվարք"_ft) add(round.list, replaced(w, i, 2, "և"_ft));
        if (pair == "ւո"_ft) add(round.list, replaced(w, i, 2, "ու"_ft));
        // A forgotten consonant between two vowels, a forgotten vowel between two consonants.
        if (isVowelPair(pair))
            for (const std::string_view c : consonants()) add(round.list, replaced(w, i + 1, 0, c));
        if (isConsonantPair(pair))
            for (const std::string_view v : insertedVowels())
                add(round.list, replaced(w, i + 1, 0, v));
    }
}

void swappedGlide(Round& round) {
    const FontText& w = round.word;
    for (std::size_t i = 0; i + 2 < w.size(); ++i) {
        const std::string_view three = std::string_view(w).substr(i, 3);
        if (three == "յու"_ft)
            add(round.list, replaced(w, i, 3, "ույ"_ft));
        else if (three == "ույ"_ft)
            add(round.list, replaced(w, i, 3, "յու"_ft));
    }
}

void doubledLetter(Round& round) {
    const FontText& w = round.word;
    for (std::size_t i = 0; i + 1 < w.size(); ++i)
        if (w[i] == w[i + 1]) add(round.list, replaced(w, i, 1, ""));
}

Candidates generateCandidates(const SpellInput& input) {
    Candidates c;
    c.List1.push_back(input.RawWord);

    Hayqer1Result stripped = hayqer1(input.RawWord);
    c.WordTail = std::move(stripped.WordTail);
    for (FontText& item : stripped.List1Items) add(c.List1, std::move(item));
    FontText word = std::move(stripped.word);
    if (word.size() > kMaxSuggestWordLength) {
        c.word = word;
        return c;
    }

    AditLetterRemove(word, c.List1);
    word = foldArmenianCase(word);
    c.word = word;

    // The lone "ա" is the dialect's "է": the offer is "է" with the character after the word,
    // in place of the word with one character either side.
    if (word == "ա"_ft) {
        const auto at = [](std::int64_t pos) {
            return static_cast<std::size_t>(std::max<std::int64_t>(pos, 1));
        };
        c.Text2 = FontText(" է"_ft) + FontText(mid(input.text, at(input.ScanPos), 1));
        c.Text1 = FontText(mid(input.text, at(input.ScanPos - 2), 3));
        c.Text2Set = true;
    }

    // The generator walks its own output breadth-first: after each round the next item of the
    // list becomes the word, so that two and more mistakes in a word are reached.
    const std::size_t rounds = roundCount(word.size());
    FontText current = word;
    for (std::size_t r = 1; r <= rounds; ++r) {
        Round round{current, c.List1, {}};
        if (current != "ա"_ft) confusableLetters(round);
        secondChoiceLetters(round);
        thirdChoiceLetters(round);
        letterPairs(round);
        swappedGlide(round);
        doubledLetter(round);
        current = r - 1 < c.List1.size() ? c.List1[r - 1] : FontText{};
    }
    return c;
}

void cleanUp(std::vector<FontText>& list, std::size_t wordLength) {
    // One pass compares each item with every later one; the same result comes of keeping a set
    // of the items met so far. Items behind the first empty one are compared with those before
    // it only, since the pass ends there.
    constexpr int kPasses = 3;
    for (int pass = 0; pass < kPasses; ++pass) {
        std::unordered_set<std::string_view> before;
        std::vector<FontText> kept;
        kept.reserve(list.size());
        bool ended = false;
        for (std::size_t i = 0; i < list.size(); ++i) {
            const FontText& item = list[i];
            // A one-letter item is dropped behind the first item, unless the pass ended at once.
            const bool later = i > 0 && !list.front().empty();
            if (later && wordLength > 1 && item.size() == 1) continue;
            if (before.contains(item)) continue;
            kept.push_back(item);
            if (!ended && item.empty()) ended = true;
            if (!ended) before.insert(kept.back());
        }
        // The set holds views into `kept`; it goes before `kept` moves.
        before.clear();
        list = std::move(kept);
    }
}

void sblik1(const FontText& word, ArmenianBuckets& buckets, std::vector<FontText>& list) {
    if (word.empty()) return;
    const std::vector<FontText>& keys = buckets.keysOf(word);
    const char lastOfWord = word.back();
    const std::string_view start = std::string_view(word).substr(0, 2);
    // The counter runs on from record to record until a key is added: one comparison a record.
    std::int64_t counter = 0;
    for (const FontText& key : keys) {
        if (!key.empty() && key.back() == lastOfWord) ++counter;
        const bool sameStart = std::string_view(key).substr(0, 2) == start;
        const auto difference =
            key.size() > word.size() ? key.size() - word.size() : word.size() - key.size();
        const bool nearLength = difference < 2;
        if (word.size() > kShortWordLength) {
            const double longer = static_cast<double>(std::max(key.size(), word.size()));
            if (static_cast<double>(counter) / longer * 100.0 >= kNearWordShare && sameStart &&
                nearLength) {
                add(list, key);
                counter = 0;
            }
        } else if (sameStart && nearLength) {
            add(list, key);
            counter = 0;
        }
    }
}

void sblik(std::vector<FontText>& list, FontText& WordTail, FontText& Text2,
           ArmenianBuckets& buckets) {
    std::vector<FontText> kept;
    for (FontText& item : list) {
        if (!buckets.holds(item)) continue;
        if (!WordTail.empty()) {
            const std::string_view abstract = "թյուն"_ft;
            if (std::string_view(item).ends_with(abstract) && WordTail != "ն"_ft)
                Text2 = item.substr(0, item.size() - abstract.size()) + WordTail;
            else
                Text2 = item + WordTail;
            // Only the first survivor has the ending put back.
            WordTail.clear();
        }
        kept.push_back(std::move(item));
    }
    list = std::move(kept);
}

SpellResult splch(const SpellInput& input, ArmenianBuckets& buckets) {
    Candidates c = generateCandidates(input);
    SpellResult result;
    result.Text1 = c.Text2Set ? c.Text1 : input.RawWord;
    result.Text2 = c.Text2Set ? c.Text2 : input.Text2;
    sblik1(c.word, buckets, c.List1);
    cleanUp(c.List1, input.RawWord.size());
    sblik(c.List1, c.WordTail, result.Text2, buckets);

    // A word typed with a capital gets its suggestions with one.
    const auto first = input.RawWord.empty() ? 0 : static_cast<unsigned char>(input.RawWord[0]);
    if (font::isCapital(first)) {
        const auto capitalise = [](FontText& s) {
            if (!s.empty())
                s[0] = static_cast<char>(font::toCapital(static_cast<unsigned char>(s[0])));
        };
        capitalise(result.Text2);
        for (FontText& item : c.List1) capitalise(item);
    }
    result.List1 = std::move(c.List1);
    result.WordTail = std::move(c.WordTail);
    return result;
}

}  // namespace vorlexa::spell
