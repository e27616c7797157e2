// The pair-list repair of a run's end over long texts and over a list that changes between runs.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "emission_fixture.h"

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

}  // namespace
}  // namespace vorlexa::test
