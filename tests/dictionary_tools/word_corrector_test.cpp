#include "dictionary_tools/word_corrector.h"

#include <gtest/gtest.h>

#include "dict_tools_fixture.h"

namespace vorlexa::test {
namespace {

// "house" and "hotel" share the column of "ho"; "bank" has a second sense below its first.
const std::string kEnglish =
    "house\tտուն\tn\n"
    "hotel\tհյուրանոց\tn\n"
    "bank\tափ\tn\n"
    "big\tմեծ\ta\n"
    "bank\tբանկ\tn\n";
const std::string kArmenian =
    "տուն\thouse\tn\n"
    "մեծ\tbig\ta\n";

constexpr std::int64_t kHoColumn = 26 * 7 + 15;
constexpr std::int64_t kBaColumn = 26 * 1 + 1;

class WordCorrectorTest : public DictToolsTest {
  protected:
    void SetUp() override {
        build(kEnglish, kArmenian, "en-hy\tbank\n");
        corrector = std::make_unique<WordCorrector>(store, view);
    }
    RecordingCorrectorView view;
    std::unique_ptr<WordCorrector> corrector;
};

TEST_F(WordCorrectorTest, SearchWithBothBoxesFilledDoesNothing) {
    corrector->Text1 = "house";
    corrector->Text2 = fontOf("տուն");
    corrector->Text3 = "x";
    corrector->Command3_Click();
    EXPECT_TRUE(corrector->Text3.empty());
    EXPECT_TRUE(corrector->Text4.empty());
    EXPECT_TRUE(view.notices.empty());
}

TEST_F(WordCorrectorTest, SearchWithBothBoxesEmptyDoesNothing) {
    corrector->Command3_Click();
    EXPECT_TRUE(corrector->Text4.empty());
    EXPECT_TRUE(view.notices.empty());
}

TEST_F(WordCorrectorTest, EnglishWordFillsGlossTagAndPositionFromItsColumn) {
    corrector->Text1 = "house";
    corrector->Command3_Click();
    EXPECT_EQ(corrector->Text2, fontOf("տուն"));
    EXPECT_EQ(corrector->Text3, "n");
    EXPECT_EQ(corrector->Text4, "e-a " + std::to_string(kHoColumn));
    EXPECT_EQ(corrector->Label4, "0");
}

TEST_F(WordCorrectorTest, ArmenianWordFillsTheEnglishBox) {
    corrector->Text2 = fontOf("տուն");
    corrector->Command3_Click();
    EXPECT_EQ(corrector->Text1, "house");
    EXPECT_EQ(corrector->Text4, "a-e " + std::to_string(skizbaColumn(fontOf("տուն"))));
}

TEST_F(WordCorrectorTest, AllMeaningsGathersEveryRecordOfTheKeyDownToTheEnd) {
    corrector->Check1_Click(true);
    corrector->Text1 = "bank";
    corrector->Command3_Click();
    EXPECT_EQ(corrector->Text2, fontOf("ափ; բանկ; "));
    EXPECT_EQ(corrector->Text3, "n; n; ");
    // The position names the last record found: the second sense, one row down.
    EXPECT_EQ(corrector->Text4, "e-a " + std::to_string(kBaColumn + kEnglishStride));
    EXPECT_EQ(corrector->Label4, "1");
}

TEST_F(WordCorrectorTest, AllMeaningsDisablesSteppingAndEditingAndWidensTheTagBox) {
    corrector->Text1 = "house";
    corrector->Check1_Click(true);
    EXPECT_EQ(corrector->caption("Command3"), "Search for all Meanings");
    for (const char* c : {"Command1", "Command2", "Command4", "Command5"})
        EXPECT_FALSE(corrector->enabled(c)) << c;
    EXPECT_EQ(corrector->text3MaxLength(), 25);
    EXPECT_EQ(corrector->Text1, "house");  // turning it on keeps the boxes
    corrector->Check1_Click(false);
    EXPECT_EQ(corrector->caption("Command3"), "Search");
    for (const char* c : {"Command1", "Command2", "Command4", "Command5"})
        EXPECT_TRUE(corrector->enabled(c)) << c;
    EXPECT_TRUE(corrector->Text1.empty());
}

TEST_F(WordCorrectorTest, ArmenianInterfaceCaptionsAndTheirSearchCaptions) {
    corrector->Corr_Click(true);
    EXPECT_EQ(corrector->caption("Form2"), "Բառարան");
    EXPECT_EQ(corrector->caption("Label3"), "խոսքի մաս");
    EXPECT_EQ(corrector->caption("Command3"), "Որոնել");
    EXPECT_EQ(corrector->caption("Command4"), "Փոխել");
    EXPECT_EQ(corrector->caption("Command7"), "Հաշվետվություն");
    EXPECT_EQ(corrector->command3ToolTip(), "Գործարկող ստեղնը 'ENTER'-ն է:");
    corrector->Check1_Click(true);
    EXPECT_EQ(corrector->caption("Command3"), "Փնտրել բոլոր իմսատները");
    corrector->Check1_Click(false);
    EXPECT_EQ(corrector->caption("Command3"), "Փնտրել");
}

TEST_F(WordCorrectorTest, EnglishInterfaceBringsTheDesignCaptionsBack) {
    corrector->Corr_Click(true);
    corrector->Corr_Click(false);
    EXPECT_EQ(corrector->caption("Form2"), "Dictionary");
    EXPECT_EQ(corrector->caption("Command1"), "Delete");
    EXPECT_EQ(corrector->caption("Command4"), "Chng");
    EXPECT_EQ(corrector->caption("Command2"), "Next");
}

TEST_F(WordCorrectorTest, WordInTheOtherAlphabetAsksToChangeTheLanguage) {
    corrector->Text1 = fontOf("տուն");
    corrector->Command3_Click();
    ASSERT_EQ(view.notices.size(), 1u);
    EXPECT_EQ(view.notices[0].text.english, "Change the Language Settings, Please!");
    EXPECT_EQ(view.notices[0].text.armenian, fontOf("Խնդրեմ, փոխել լեզուները:"));
    corrector->Text1.clear();
    corrector->Text2 = "house";
    corrector->Command3_Click();
    EXPECT_EQ(view.notices.size(), 2u);
    EXPECT_TRUE(corrector->Text4.empty());
}

TEST_F(WordCorrectorTest, UnknownWordIsReportedInBothLanguages) {
    corrector->Corr_Click(true);
    corrector->Text1 = "hound";
    corrector->Command3_Click();
    ASSERT_EQ(view.notices.size(), 1u);
    EXPECT_TRUE(view.notifiedInArmenian);
    EXPECT_EQ(view.notices[0].text.english, "Word 'hound' Not Found in Dictionaries.");
    EXPECT_EQ(view.notices[0].title.english, "Attention!!!");
    EXPECT_EQ(view.notices[0].text.armenian, fontOf("«hound» բառը չկա բառարաններում:"));
    EXPECT_EQ(view.notices[0].title.armenian, fontOf("Ուշադրություն"));
    // The walk stopped at the end record of "ho", two rows down.
    EXPECT_EQ(corrector->Label4, "2");
}

TEST_F(WordCorrectorTest, NextStepsDownTheColumnAndStaysAtItsLastRecord) {
    corrector->Text1 = "house";
    corrector->Command3_Click();
    corrector->Command2_Click();
    EXPECT_EQ(corrector->Text1, "hotel");
    EXPECT_EQ(corrector->Text2, fontOf("հյուրանոց"));
    EXPECT_EQ(corrector->Text4, "e-a " + std::to_string(kHoColumn + kEnglishStride));
    corrector->Command2_Click();  // the record below is the column's end
    EXPECT_EQ(corrector->Text1, "hotel");
    EXPECT_EQ(corrector->Text4, "e-a " + std::to_string(kHoColumn + kEnglishStride));
}

TEST_F(WordCorrectorTest, PreviousStepsBackAndStopsAtTheTopOfTheColumn) {
    corrector->Text1 = "hotel";
    corrector->Command3_Click();
    corrector->Command5_Click();
    EXPECT_EQ(corrector->Text1, "house");
    corrector->Command5_Click();
    EXPECT_EQ(corrector->Text1, "house");
    EXPECT_EQ(corrector->Text4, "e-a " + std::to_string(kHoColumn));
}

TEST_F(WordCorrectorTest, PreviousWithAllMeaningsAsksToUncheckTheBox) {
    corrector->Check1_Click(true);
    corrector->Command5_Click();
    ASSERT_EQ(view.notices.size(), 1u);
    EXPECT_EQ(view.notices[0].text.english, "For this function you need to check off the box");
}

TEST_F(WordCorrectorTest, DoubleClickSearchesFromTheRecordShownWithoutANewColumn) {
    corrector->Text1 = "house";
    corrector->Command3_Click();
    // From the Armenian record of "house" the English box searches on in dictionarye-a from the
    // same number: the column of "ho" again, where "house" stands.
    corrector->Text1_DblClick();
    EXPECT_EQ(corrector->Text2, fontOf("տուն"));
    corrector->Text1 = "hotel";
    corrector->Text1_DblClick();
    EXPECT_EQ(corrector->Text4, "e-a " + std::to_string(kHoColumn + kEnglishStride));
    // A word of another column is not in the column walked from the record shown.
    corrector->Text1 = "big";
    corrector->Text1_DblClick();
    EXPECT_EQ(view.notices.size(), 1u);
}

TEST_F(WordCorrectorTest, ChangeRewritesTheRecordInPlaceAfterTheQuestion) {
    corrector->Text1 = "house";
    corrector->Command3_Click();
    corrector->Text2 = fontOf("շենք");
    corrector->Text3 = "n";
    const auto before = file(kAE).read(skizbaColumn(fontOf("տուն")));
    corrector->Command4_Click();
    ASSERT_EQ(view.questions.size(), 1u);
    EXPECT_EQ(view.questions[0].text.english,
              "Are you sure you want to make a change in 'English to Armenian' dictionary?");
    EXPECT_EQ(view.questions[0].text.armenian,
              fontOf("Վստաh ե՞ք, որ ուզում եք փոփոխել «Անգլերեն-հայերեն» բառարանը:"));
    EXPECT_EQ(recordAt(kEA, kHoColumn).raw, DictRecord::make("house", fontOf("շենք"), "n").raw);
    // The other dictionary is not touched.
    EXPECT_EQ(file(kAE).read(skizbaColumn(fontOf("տուն"))), before);
}

TEST_F(WordCorrectorTest, ChangeAnsweredNoWritesNothing) {
    view.answer = kAnswerNo;
    corrector->Text1 = "house";
    corrector->Command3_Click();
    corrector->Text2 = fontOf("շենք");
    corrector->Command4_Click();
    EXPECT_EQ(recordAt(kEA, kHoColumn).gloss(), fontOf("տուն"));
}

TEST_F(WordCorrectorTest, ChangeOfTheArmenianDictionaryPutsTheArmenianKeyFirst) {
    corrector->Text2 = fontOf("մեծ");
    corrector->Command3_Click();
    corrector->Text1 = "large";
    corrector->Command4_Click();
    EXPECT_EQ(view.questions[0].text.english,
              "Are you sure you want to make a change in 'Armenian to English' dictionary?");
    EXPECT_EQ(recordAt(kAE, skizbaColumn(fontOf("մեծ"))).raw,
              DictRecord::make(fontOf("մեծ"), "large", "a").raw);
}

TEST_F(WordCorrectorTest, ChangedKeyMayLeaveItsColumnAndFieldsAreCutAtTheirWidths) {
    corrector->Text1 = "house";
    corrector->Command3_Click();
    corrector->Text1 = "zebra-crossing-of-the-road";
    corrector->Command4_Click();
    const DictRecord r = recordAt(kEA, kHoColumn);
    EXPECT_EQ(r.key(), "zebra-crossing-of-th");
    EXPECT_EQ(r.raw.size(), static_cast<std::size_t>(kRecordLength));
    EXPECT_TRUE(recordAt(kEA, kHoColumn + kEnglishStride).key() == "hotel");
}

TEST_F(WordCorrectorTest, ChangeNeedsAPositionAndBothWords) {
    corrector->Text1 = "house";
    corrector->Text2 = fontOf("շենք");
    corrector->Command4_Click();  // no record shown yet
    EXPECT_TRUE(view.questions.empty());
}

TEST_F(WordCorrectorTest, ChangeOfAColumnEndIsRefusedAndNothingIsWritten) {
    corrector->Text1 = "house";
    corrector->Text2 = fontOf("շենք");
    const std::int64_t end = kHoColumn + 2 * kEnglishStride;
    ASSERT_TRUE(recordAt(kEA, end).isNull());
    corrector->Text4 = "e-a " + std::to_string(end);
    corrector->Command4_Click();
    EXPECT_TRUE(recordAt(kEA, end).isNull());
    ASSERT_EQ(view.notices.size(), 1u);
    EXPECT_NE(view.notices[0].text.english.find("ends its column"), std::string::npos);
}

TEST_F(WordCorrectorTest, ChangeBeyondTheFileIsRefused) {
    const auto size = file(kEA).byteLength();
    corrector->Text1 = "house";
    corrector->Text2 = fontOf("շենք");
    corrector->Text4 = "e-a " + std::to_string(file(kEA).recordCount() + 1);
    corrector->Command4_Click();
    EXPECT_EQ(file(kEA).byteLength(), size);
    EXPECT_EQ(view.notices.size(), 1u);
}

TEST_F(WordCorrectorTest, DeletedRecordIsInvisibleToSearchButKeepsItsPlace) {
    corrector->Text1 = "house";
    corrector->Command3_Click();
    const auto size = file(kEA).byteLength();
    corrector->Command1_Click();
    EXPECT_EQ(recordAt(kEA, kHoColumn).raw, std::string(kRecordLength, 'w'));
    EXPECT_EQ(file(kEA).byteLength(), size);
    EXPECT_TRUE(corrector->Text1.empty());
    corrector->Text1 = "house";
    corrector->Command3_Click();
    EXPECT_EQ(view.notices.size(), 1u);
    // The column goes on past the freed slot.
    corrector->Text1 = "hotel";
    corrector->Command3_Click();
    EXPECT_EQ(corrector->Text4, "e-a " + std::to_string(kHoColumn + kEnglishStride));
}

TEST_F(WordCorrectorTest, DeleteAsksAboutTheEnglishDictionaryInEnglishWhicheverItIs) {
    corrector->Text2 = fontOf("մեծ");
    corrector->Command3_Click();
    corrector->Command1_Click();
    ASSERT_EQ(view.questions.size(), 1u);
    EXPECT_EQ(view.questions[0].text.english,
              "Are you sure you want to make a change in 'English to Armenian' dictionary?");
    EXPECT_EQ(view.questions[0].text.armenian,
              fontOf("Վստահ ե՞ք, որ ուզում եք փոփոխել «Հայերեն-անգլերեն» բառարանը:"));
    EXPECT_TRUE(recordAt(kAE, skizbaColumn(fontOf("մեծ"))).isFreed());
}

TEST_F(WordCorrectorTest, FreedSlotIsReusedByTheNextWordAddedToItsColumn) {
    corrector->Text1 = "house";
    corrector->Command3_Click();
    corrector->Command1_Click();
    const InsertResult added = insertWordPair(store, kEA, "home", fontOf("օջախ"), "n");
    ASSERT_TRUE(added.record);
    EXPECT_EQ(*added.record, kHoColumn);
}

TEST_F(WordCorrectorTest, ChangeAndDeleteAreSeenByTheNextTranslationRun) {
    EXPECT_EQ(translate("big"), "մեծ");
    corrector->Text1 = "big";
    corrector->Command3_Click();
    corrector->Text2 = fontOf("խոշոր");
    corrector->Command4_Click();
    EXPECT_EQ(translate("big"), "խոշոր");
    corrector->Command1_Click();
    EXPECT_EQ(translate("big"), "big");
}

TEST_F(WordCorrectorTest, WordResourcesCountTheRecordsWithAGlossAndComeBack) {
    corrector->Command6_Click();
    EXPECT_EQ(corrector->Text1, "5 English to Armenian");
    EXPECT_EQ(corrector->Text2, "2 Armenian to English");
    EXPECT_EQ(corrector->caption("Command6"), "OK");
    for (const char* c : {"Command1", "Command3", "Command4", "Command7"})
        EXPECT_FALSE(corrector->enabled(c)) << c;
    corrector->Command6_Click();
    EXPECT_EQ(corrector->caption("Command6"), "Word Resources");
    EXPECT_EQ(corrector->caption("Command7"), "Dictionary Report");
    for (const char* c : {"Command1", "Command3", "Command4", "Command7"})
        EXPECT_TRUE(corrector->enabled(c)) << c;
    EXPECT_TRUE(corrector->Text1.empty());
    EXPECT_TRUE(corrector->Text2.empty());
}

TEST_F(WordCorrectorTest, WordResourcesInArmenian) {
    corrector->Corr_Click(true);
    corrector->Command6_Click();
    EXPECT_EQ(corrector->Text1, "5" + fontOf(" Անգլերենից հայերեն"));
    EXPECT_EQ(corrector->caption("Command6"), "Շատ լավ");
    corrector->Command6_Click();
    EXPECT_EQ(corrector->caption("Command6"), "Բառապաշար");
}

TEST_F(WordCorrectorTest, ArmenianBoxTypesSmallLettersAndEnterSearches) {
    const auto code = [](const char* letter) {
        return static_cast<unsigned char>(fontOf(letter)[0]);
    };
    EXPECT_EQ(WordCorrector::Text2_KeyPress('t'), code("տ"));
    EXPECT_EQ(WordCorrector::Text2_KeyPress('T'), code("տ"));
    EXPECT_EQ(WordCorrector::Text2_KeyPress('7'), code("և"));
    EXPECT_FALSE(corrector->Text2_Enter());
    corrector->Text2 = fontOf("տուն");
    EXPECT_TRUE(corrector->Text2_Enter());
    EXPECT_EQ(corrector->Text1, "house");
}

TEST(RecordPositionTest, ParsesTheDictionaryAndNumber) {
    const auto p = parsePosition("a-e 1071");
    ASSERT_TRUE(p);
    EXPECT_EQ(p->direction, Direction::ArmenianToEnglish);
    EXPECT_EQ(p->record, 1071);
    EXPECT_FALSE(parsePosition("e-a"));
    EXPECT_FALSE(parsePosition("e-a 12x"));
    EXPECT_FALSE(parsePosition("x-y 12"));
    EXPECT_FALSE(parsePosition("e-a 0"));
    EXPECT_EQ(positionText({Direction::EnglishToArmenian, 7}), "e-a 7");
}

}  // namespace
}  // namespace vorlexa::test
