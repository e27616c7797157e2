#include "dictionary_tools/dictionary_reports.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "dict_tools_fixture.h"

namespace vorlexa::test {
namespace {

std::vector<std::string> linesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

std::string tail25(const std::string& gloss, const std::string& tag) {
    return toUtf8(DictRecord::make("", fontOf(gloss), tag).raw.substr(kKeyWidth));
}

TEST(SortKeyTest, EachCodeIsThreeDigitsAndTheThreeMovedCodesTakeTheirPlaces) {
    EXPECT_EQ(armenianSortKey(fontOf("ա")), "179");
    EXPECT_EQ(armenianSortKey(fontOf("ք")), "249");
    EXPECT_EQ(armenianSortKey(fontOf("և")), "250");
    EXPECT_EQ(armenianSortKey(fontOf("Օ")), "252");
    EXPECT_EQ(armenianSortKey(fontOf("օ")), "251");
    EXPECT_EQ(armenianSortKey(fontOf("Ֆ")), "254");
    EXPECT_EQ(armenianSortKey(fontOf("ֆ")), "253");
}

TEST(SortKeyTest, CodesBelowOneHundredLoseTheirIdentity) {
    EXPECT_EQ(armenianSortKey("a -"), "000000000");
    EXPECT_EQ(armenianSortKey("e"), "101");
    EXPECT_EQ(decodeSortKey("000"), std::string(1, '\0'));
}

TEST(SortKeyTest, DecodingGivesTheWordBack) {
    for (const char* w : {"արև", "Օրենք", "ֆուտբոլ", "Ֆրանսիա", "քաղաք"})
        EXPECT_EQ(decodeSortKey(armenianSortKey(fontOf(w))), fontOf(w)) << w;
}

TEST(SortKeyTest, LigatureSortsAfterQeAndBeforeO) {
    EXPECT_LT(armenianSortKey(fontOf("արքա")), armenianSortKey(fontOf("արև")));
    EXPECT_LT(armenianSortKey(fontOf("արև")), armenianSortKey(fontOf("արօր")));
}

TEST(ChooseReportTest, OneLetterStarOrRePicksThePartOfSpeechListing) {
    EXPECT_EQ(chooseReport("h", ""), ReportKind::PartOfSpeech);
    EXPECT_EQ(chooseReport("*", ""), ReportKind::PartOfSpeech);
    EXPECT_EQ(chooseReport("", fontOf("ր")), ReportKind::PartOfSpeech);
    EXPECT_EQ(chooseReport("", fontOf("ա")), ReportKind::PartOfSpeech);
    EXPECT_EQ(chooseReport("house", "x"), ReportKind::PartOfSpeech);
    EXPECT_EQ(chooseReport("ho", ""), ReportKind::EnglishBucket);
    EXPECT_EQ(chooseReport("", fontOf("տու")), ReportKind::ArmenianBucket);
    EXPECT_EQ(chooseReport("", ""), ReportKind::None);
    EXPECT_EQ(chooseReport("ho", fontOf("տու")), ReportKind::None);
}

const std::string kEnglish =
    "house\tտուն\tn\n"
    "hot\tտաք\ta\n"
    "hotel\tհյուրանոց\tn\n"
    "hop\tցատկել\tv\n"
    "big\tմեծ\ta\n";
const std::string kArmenian =
    "արօր\tplough\tn\n"
    "արև\tsun\tn\n"
    "արքա\tking\tn\n"
    "տուն\thouse\tn\n";

class ReportTest : public DictToolsTest {
  protected:
    void SetUp() override { build(kEnglish, kArmenian); }
    ReportResult report(const std::string& text1, const std::string& text2,
                        const std::string& text3 = "") {
        return writeDictionaryReport(store, data(), readStringsFile(data(), kEA),
                                     readStringsFile(data(), kAE), fontOf(text1), fontOf(text2),
                                     fontOf(text3));
    }
};

TEST_F(ReportTest, TwoLetterEnglishReportListsTheColumnSortedAndEndsWithTheCount) {
    const ReportResult r = report("ho", "");
    EXPECT_EQ(r.kind, ReportKind::EnglishBucket);
    EXPECT_EQ(r.file, data() / "tmpe.txt");
    const auto lines = linesOf(r.file);
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[0], "1\thop\t" + tail25("ցատկել", "v"));
    EXPECT_EQ(lines[1], "2\thot\t" + tail25("տաք", "a"));
    EXPECT_EQ(lines[2], "3\thotel\t" + tail25("հյուրանոց", "n"));
    EXPECT_EQ(lines[3], "4\thouse\t" + tail25("տուն", "n"));
    EXPECT_EQ(lines[4], "4");
}

TEST_F(ReportTest, LongerKeyListsTheWordsThatBeginSoWithNoCountLine) {
    const auto lines = linesOf(report("hot", "").file);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].substr(0, 6), "1\thot\t");
    EXPECT_EQ(lines[1].substr(0, 8), "2\thotel\t");
}

TEST_F(ReportTest, TagBoxKeepsTheWordsWhoseTagBeginsWithIt) {
    const auto lines = linesOf(report("ho", "", "n").file);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].substr(0, 8), "1\thotel\t");
    EXPECT_EQ(lines[1].substr(0, 8), "2\thouse\t");
    EXPECT_EQ(lines[2], "4");  // every record of the column examined is counted
}

TEST_F(ReportTest, DeletedRecordsAppearNeitherInTheListNorInItsCount) {
    ASSERT_TRUE(deleteRecord(store, kEA, *store.findEnglish("hot")));
    const auto lines = linesOf(report("ho", "").file);
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[1].substr(0, 8), "2\thotel\t");
    EXPECT_EQ(lines[3], "3");
}

TEST_F(ReportTest, ArmenianReportSortsTheLigatureAfterQeAndWritesTheWordBetweenTabs) {
    const ReportResult r = report("", "ար");
    EXPECT_EQ(r.kind, ReportKind::ArmenianBucket);
    EXPECT_EQ(r.file, data() / "tmpa.txt");
    const auto lines = linesOf(r.file);
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], "1\tարքա\t\t" + tail25("king", "n"));
    EXPECT_EQ(lines[1], "2\tարև\t\t" + tail25("sun", "n"));
    EXPECT_EQ(lines[2], "3\tարօր\t\t" + tail25("plough", "n"));
    EXPECT_EQ(lines[3], "3");
}

TEST_F(ReportTest, OneLetterBoxListsThePartOfSpeechWithWhateverTheTagBoxHolds) {
    auto lines = linesOf(report("h", "", "n").file);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].substr(0, 8), "1\thotel\t");
    EXPECT_EQ(lines[1].substr(0, 8), "2\thouse\t");
    lines = linesOf(report("*", "", "a").file);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].substr(0, 6), "1\tbig\t");
    EXPECT_EQ(lines[1].substr(0, 6), "2\thot\t");
    lines = linesOf(report("", "ա").file);
    EXPECT_EQ(lines.size(), 3u);
}

TEST_F(ReportTest, BothBoxesEmptyWritesNoList) {
    const ReportResult r = report("", "");
    EXPECT_EQ(r.kind, ReportKind::None);
    EXPECT_TRUE(r.file.empty());
    EXPECT_FALSE(std::filesystem::exists(data() / "tmpe.txt"));
}

TEST_F(ReportTest, CorrectorHandsTheListToTheView) {
    RecordingCorrectorView view;
    WordCorrector corrector(store, view);
    corrector.Text1 = "ho";
    corrector.Command7_Click();
    ASSERT_EQ(view.lists.size(), 1u);
    EXPECT_EQ(view.lists[0], data() / "tmpe.txt");
}

}  // namespace
}  // namespace vorlexa::test
