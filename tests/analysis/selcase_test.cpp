// The stem classes: the list as data, its order, and the rebuilt dictionary forms.
#include "analysis/selcase.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "analysis/hy_en_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

std::string rebuilt(const std::string& stem) {
    const FontText s = fromUtf8(stem);
    const auto c = stemClassOf(s);
    return c ? toUtf8(rebuildStem(s, *c)) : std::string();
}

TEST(StemClasses, TheListHoldsTwelveHundredSeventeenRowsInSixClasses) {
    const auto& rows = stemClassRows();
    EXPECT_EQ(rows.size(), 1217u);
    std::map<StemClass, int> perClass;
    for (const auto& row : rows) ++perClass[row.stemClass];
    EXPECT_EQ(perClass[StemClass::FinalI], 511);
    EXPECT_EQ(perClass[StemClass::InnerI1], 427);
    EXPECT_EQ(perClass[StemClass::InnerU2], 104);
    EXPECT_EQ(perClass[StemClass::InnerU1], 131);
    EXPECT_EQ(perClass[StemClass::InnerI2], 43);
    EXPECT_EQ(perClass[StemClass::InnerU3], 1);
}

TEST(StemClasses, ClassesStandInTheirOrderOfTesting) {
    const auto& rows = stemClassRows();
    int last = 0;
    for (const auto& row : rows) {
        const int c = static_cast<int>(row.stemClass);
        EXPECT_GE(c, last) << toUtf8(row.stem);
        last = c;
    }
    EXPECT_EQ(toUtf8(rows.front().stem), "աբատուհ");
    EXPECT_EQ(toUtf8(rows.back().stem), "կրծք");
}

TEST(StemClasses, TheDataFileIsTheListTheProgramReads) {
    std::ifstream in(VORLEXA_STEM_CLASSES_FILE, std::ios::binary);
    ASSERT_TRUE(in);
    std::string line;
    std::size_t n = 0;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        ASSERT_LT(n, stemClassRows().size());
        EXPECT_EQ(line.substr(0, line.find('\t')), toUtf8(stemClassRows()[n].stem));
        ++n;
    }
    EXPECT_EQ(n, stemClassRows().size());
}

TEST(StemClasses, EachClassRebuildsItsExample) {
    EXPECT_EQ(rebuilt("ագ"), "ագի");
    EXPECT_EQ(rebuilt("ազատագր"), "ազատագիր");
    EXPECT_EQ(rebuilt("անդնդ"), "անդունդ");
    EXPECT_EQ(rebuilt("ադամաթզ"), "ադամաթուզ");
    EXPECT_EQ(rebuilt("աղոթագրք"), "աղոթագիրք");
    EXPECT_EQ(rebuilt("կրծք"), "կուրծք");
}

TEST(StemClasses, SharpAndDarkStemsRebuild) {
    EXPECT_EQ(rebuilt("սր"), "սուր");
    EXPECT_EQ(rebuilt("մթ"), "մութ");
}

TEST(StemClasses, OdditiesOfTheListAreKept) {
    // The key stands in its class as it is and rebuilds to a double "ու".
    EXPECT_EQ(rebuilt("ակնագունդ"), "ակնագուունդ");
    // A stem with a blank is one key.
    EXPECT_EQ(rebuilt("մրգատու այգ"), "մրգատու այգի");
    EXPECT_EQ(rebuilt("դ"), "դի");
}

TEST(StemClasses, TheFirstOccurrenceOfAStemDecides) {
    // Each stands in two classes; the earlier row wins.
    EXPECT_EQ(stemClassOf("տնկ"_ft), StemClass::FinalI);
    EXPECT_EQ(rebuilt("տնկ"), "տնկի");
    EXPECT_EQ(stemClassOf("ձնագնդ"_ft), StemClass::FinalI);
    EXPECT_EQ(stemClassOf("գերեզմանատն"_ft), StemClass::InnerU2);
    EXPECT_EQ(rebuilt("գերեզմանատն"), "գերեզմանաուտն");
    EXPECT_EQ(stemClassOf("մածկ"_ft), StemClass::InnerI1);
    EXPECT_EQ(rebuilt("մածկ"), "մածիկ");
    EXPECT_EQ(stemClassOf("ուելսաց"_ft), StemClass::FinalI);

    std::set<FontText> seen;
    int repeats = 0;
    for (const auto& row : stemClassRows())
        if (!seen.insert(row.stem).second) ++repeats;
    EXPECT_EQ(repeats, 5);
}

TEST(StemClasses, KeysAreWholeWords) {
    // "գր" is a stem; a word that merely ends in it is not touched.
    EXPECT_TRUE(stemClassOf("գր"_ft));
    EXPECT_FALSE(stemClassOf("նամակագրր"_ft));
    EXPECT_FALSE(stemClassOf("ագի"_ft));
    EXPECT_FALSE(stemClassOf(""));
}

TEST(StemClasses, SelcaseRewritesCurrentWordOrLeavesIt) {
    HyEnFixture f;
    f.e().CurrentWord = "գրք"_ft;
    selcase(f.e());
    EXPECT_EQ(toUtf8(f.e().CurrentWord), "գիրք");
    f.e().CurrentWord = "տղա"_ft;
    selcase(f.e());
    EXPECT_EQ(toUtf8(f.e().CurrentWord), "տղա");
    f.e().CurrentWord.clear();
    selcase(f.e());
    EXPECT_TRUE(f.e().CurrentWord.empty());
    // selcase itself looks nothing up.
    EXPECT_TRUE(f.e().OutputText.empty());
}

TEST(StemClasses, AWordNotInTheListStaysUnknown) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("զբժ"), "զբժ");
    EXPECT_EQ(f.engine->stats.termsWritten, 1);
}

}  // namespace
}  // namespace vorlexa::test
