// The pair-list repair of a run's end over long texts and over a list that changes between runs.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "emission_fixture.h"
#include "engine/pair_repairs.h"

namespace vorlexa::test {
namespace {

constexpr std::size_t kPairWidth = 100;
constexpr std::size_t kLongText = 64 * 1024;  // well past the length at which texts are filtered

// A pair file as the data folder holds it, closed by the record the repair never reads.
void writePairs(const std::filesystem::path& path, const std::vector<std::pair<std::string, std::string>>& pairs) {
    std::string bytes;
    auto records = pairs;
    records.emplace_back("", "");
    for (const auto& [find, replace] : records) {
        std::string half = "\"" + find + "\"";
        half.resize(kPairWidth / 2, ' ');
        std::string other = "\"" + replace + "\"";
        other.resize(kPairWidth / 2, ' ');
        bytes += half + other;
    }
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

std::string times(const std::string& unit, std::size_t count) {
    std::string s;
    for (std::size_t i = 0; i < count; ++i) s += unit;
    return s;
}

TEST(PairRepair, APairMadeByAnEarlierReplacementIsFoundInALongText) {
    EmissionFixture fx;
    // "cd" goes first and joins "b" and "e"; only then does "be " occur.
    writePairs(fx.data() / "uxxuma", {{"cd", ""}, {"be ", "OK "}, {"zzz", "never"}});
    Engine& e = *fx.engine;
    e.OutputText = times("abcde ", kLongText / 6);
    e.poqr_uxxumner1();
    EXPECT_EQ(e.OutputText, times("aOK ", kLongText / 6));
}

TEST(PairRepair, AReplacementAtTheStartOrEndOfALongTextIsSeenByLaterPairs) {
    EmissionFixture fx;
    writePairs(fx.data() / "uxxuma", {{"<", "xy"}, {"xyz", "START"}, {">", "pq"}, {"wpq", "END"}});
    Engine& e = *fx.engine;
    const std::string middle = times("m", kLongText);
    e.OutputText = "<z" + middle + "w>";
    e.poqr_uxxumner1();
    EXPECT_EQ(e.OutputText, "START" + middle + "END");
}

TEST(PairRepair, APairListRewrittenBetweenRunsIsReadAgain) {
    EmissionFixture fx;
    Engine& e = *fx.engine;
    writePairs(fx.data() / "uxxuma", {{"old", "first"}});
    e.OutputText = "old old";
    e.poqr_uxxumner1();
    EXPECT_EQ(e.OutputText, "first first");

    writePairs(fx.data() / "uxxuma", {{"old", "second list"}});
    e.OutputText = "old old";
    e.poqr_uxxumner1();
    EXPECT_EQ(e.OutputText, "second list second list");

    std::filesystem::remove(fx.data() / "uxxuma");
    e.OutputText = "old old";
    e.poqr_uxxumner1();
    EXPECT_EQ(e.OutputText, "old old");
}

using Pairs = std::vector<std::pair<std::string, std::string>>;

// The repair as its definition reads: one search of the whole text per pair, in order.
std::string repairedPairByPair(std::string text, const std::vector<std::pair<std::string, std::string>>& pairs) {
    for (const auto& [find, with] : pairs) {
        if (find.empty()) continue;
        for (std::size_t at = text.find(find); at != std::string::npos; at = text.find(find, at + with.size()))
            text.replace(at, find.size(), with);
    }
    return text;
}

TEST(PairRepairs, AReplacementIsNotSearchedAgainByItsOwnOrAnEarlierPair) {
    const PairRepairs repairs({{"b", "a"}, {"x", "bb"}, {"aa", "aaa"}});
    std::string text = "bx aa";
    repairs.apply(text);
    EXPECT_EQ(text, "abb aaa");
}

TEST(PairRepairs, AnEmptyReplacementJoinsTheTextAroundItForLaterPairs) {
    const PairRepairs repairs({{"c", ""}, {"ab", "Z"}, {"", "never"}});
    std::string text = "acb\nacb";
    repairs.apply(text);
    EXPECT_EQ(text, "Z\nZ");
}

TEST(PairRepairs, AFindHoldingALineBreakIsFoundAcrossTheLines) {
    const PairRepairs repairs(Pairs{{"a\nb", "X"}});
    std::string text = "xa\nby\na\nb";
    repairs.apply(text);
    EXPECT_EQ(text, "xXy\nX");
}

TEST(PairRepairs, ATextNoFindOccursInIsLeftAsItIs) {
    const PairRepairs repairs(Pairs{{"zz", "y"}});
    std::string text = "abc\r\nzy\r\n";
    repairs.apply(text);
    EXPECT_EQ(text, "abc\r\nzy\r\n");
}

// Thirty pairs that each double the text would make one letter a thousand million; the growth
// stops at 64 times the text plus 4096 letters: twelve doublings give 4096 letters, and the
// thirteenth, which would give 8192, is left out with all the pairs after it.
TEST(PairRepairs, AListThatDoublesTheTextPairAfterPairStopsAtTheNamedGrowth) {
    const Pairs doubling(30, {"a", "aa"});
    std::string text = "a";
    PairRepairs(doubling).apply(text);
    EXPECT_EQ(text, std::string(4096, 'a'));
}

TEST(PairRepairs, EveryTextComesOutAsPairByPairSearchesMakeIt) {
    // Short finds over a few letters overlap, make and unmake one another; a line break and a
    // sign that no pair holds cut the text into pieces.
    const std::string letters = "ab \n.";
    std::mt19937 rng(7);
    const auto word = [&](std::size_t most, std::size_t alphabet) {
        std::string w;
        for (std::size_t n = rng() % most + 1; n > 0; --n) w += letters[rng() % alphabet];
        return w;
    };
    for (int round = 0; round < 300; ++round) {
        std::vector<std::pair<std::string, std::string>> pairs;
        for (int i = static_cast<int>(rng() % 6) + 1; i > 0; --i) {
            std::string with = rng() % 4 == 0 ? std::string() : word(4, 3);
            pairs.emplace_back(word(3, round % 2 == 0 ? 3 : 4), std::move(with));
        }
        const std::string text = word(60, letters.size());
        std::string repaired = text;
        PairRepairs(pairs).apply(repaired);
        ASSERT_EQ(repaired, repairedPairByPair(text, pairs)) << "round " << round << ": " << text;
    }
}

// The result is written back over the text behind the point read: pieces made longer wait for
// room, pieces made shorter leave room, over many lines in any mix.
TEST(PairRepairs, LongTextsOfLinesMadeLongerAndShorterComeOutAsPairByPairSearchesMakeThem) {
    std::mt19937 rng(23);
    const std::vector<Pairs> lists = {
        {{"a", "xyz"}},                    // every line longer
        {{"ab", ""}, {"b", "q"}},          // every line shorter
        {{"a", "bbbb"}, {"bbbbb", "c"}},   // longer, then some shorter again
        {{"aa", "a"}, {"b", "bbbbbbbb"}},  // shorter and longer in one line
    };
    for (std::size_t list = 0; list < lists.size(); ++list) {
        for (int round = 0; round < 20; ++round) {
            std::string text;
            for (int line = static_cast<int>(rng() % 400); line > 0; --line) {
                for (int n = static_cast<int>(rng() % 30); n > 0; --n) text += "ab c"[rng() % 4];
                text += "\r\n";
            }
            std::string repaired = text;
            PairRepairs(lists[list]).apply(repaired);
            ASSERT_EQ(repaired, repairedPairByPair(text, lists[list])) << "list " << list << ", round " << round;
        }
    }
}

}  // namespace
}  // namespace vorlexa::test
