#include "dictionary_tools/expressions.h"

#include <gtest/gtest.h>

#include "dict_tools_fixture.h"

namespace vorlexa::test {
namespace {

std::string recordOf(const std::filesystem::path& file, std::int64_t n) {
    RecordFile f;
    f.open(file, kPairRecordLength);
    return f.read(n);
}

std::int64_t recordsOf(const std::filesystem::path& file) {
    RecordFile f;
    f.open(file, kPairRecordLength);
    return f.recordCount();
}

TEST(CorrectionFileTest, ArmenianTextToPutGoesToTheArmenianList) {
    EXPECT_EQ(CorrectionFile(fontOf("մեծ տուն"), fontOf("մեծ շենք")), "uxxuma");
    EXPECT_EQ(CorrectionFile("", fontOf("և")), "uxxuma");
    EXPECT_EQ(CorrectionFile("big house", "large house"), "uxxume");
    EXPECT_EQ(CorrectionFile(fontOf("տուն"), ""), "uxxume");
    EXPECT_EQ(CorrectionFile(fontOf("տուն"), fontOf("«")), "uxxume");  // « is 167: not above
}

TEST(ExpressionRecordTest, EachTextInMarksInItsHalf) {
    const std::string r = expressionRecord("big house", "large house");
    ASSERT_EQ(r.size(), 100u);
    EXPECT_EQ(r.substr(0, 11), "\"big house\"");
    EXPECT_EQ(r.substr(11, 39), std::string(39, ' '));
    EXPECT_EQ(r.substr(50, 13), "\"large house\"");
}

TEST(ExpressionRecordTest, PairTooLongIsCutAtTheWidthAndLosesItsClosingMark) {
    const std::string longText(60, 'x');
    const std::string r = expressionRecord(longText, longText);
    ASSERT_EQ(r.size(), 100u);
    EXPECT_EQ(r.substr(0, 50), "\"" + std::string(49, 'x'));
    EXPECT_EQ(r.substr(50), "\"" + std::string(49, 'x'));
}

class ExpressionsTest : public DictToolsTest {};

TEST_F(ExpressionsTest, AddingMovesTheEndRecordOnByOne) {
    dir.write("data/uxxume", "");
    std::filesystem::create_directories(data());
    const ExpressionResult first = addExpression(data(), "big house", "large house");
    EXPECT_EQ(first.record, 1);
    EXPECT_EQ(trimBlanks(recordOf(data() / "uxxume", 2)), "null");
    const ExpressionResult second = addExpression(data(), "big house", "mansion");
    EXPECT_EQ(second.record, 2);
    EXPECT_EQ(trimBlanks(recordOf(data() / "uxxume", 3)), "null");
    EXPECT_EQ(recordsOf(data() / "uxxume"), 3);
    // A repeated text is added again below the first.
    EXPECT_EQ(recordOf(data() / "uxxume", 1), expressionRecord("big house", "large house"));
}

TEST_F(ExpressionsTest, EditorTakesTheSelectionAndEmptiesItsBoxes) {
    std::filesystem::create_directories(data());
    ExpressionEditor editor(data());
    editor.Form_Load(fontOf("մեծ տուն"));
    EXPECT_EQ(editor.Text1, fontOf("մեծ տուն"));
    editor.Text2 = fontOf("ապարանք");
    const ExpressionResult r = editor.Command1_Click();
    EXPECT_EQ(r.file, data() / "uxxuma");
    EXPECT_EQ(r.record, 1);
    EXPECT_TRUE(editor.Text1.empty());
    EXPECT_TRUE(editor.Text2.empty());
    EXPECT_EQ(editor.Command1_Click().record, 0);  // both boxes empty: nothing
    EXPECT_EQ(recordsOf(data() / "uxxuma"), 2);
}

TEST_F(ExpressionsTest, PairAddedToTheEnglishListIsAppliedByTheNextRun) {
    build("big\tմեծ\ta\n", "մեծ\tbig\ta\n");
    EXPECT_EQ(translate("մեծ"), "big");
    ASSERT_EQ(addExpression(data(), "big", "large").file, data() / "uxxume");
    EXPECT_EQ(translate("մեծ"), "large");
}

TEST_F(ExpressionsTest, PairAddedAfterTheCompiledListIsReached) {
    dir.write("source/pairs/uxxuma.tsv", "\"" + std::string("մեծ") + "\"\t\"" + "խոշոր" + "\"\n");
    build("big\tմեծ\ta\nhouse\tտուն\tn\n", "");
    EXPECT_EQ(translate("big"), "խոշոր");
    addExpression(data(), fontOf("տուն"), fontOf("շենք"));
    // The definite ending of the run stays after the replaced stem.
    EXPECT_EQ(translate("big house"), "խոշոր շենքը");
}

}  // namespace
}  // namespace vorlexa::test
