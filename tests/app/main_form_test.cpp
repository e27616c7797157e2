#include "app/main_form.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "app/add_word_panel.h"
#include "app/app_fixture.h"
#include "app/fake_view.h"
#include "app/settings_file.h"
#include "support/temp_folder.h"

using namespace vorlexa;
using namespace vorlexa::app;
using namespace vorlexa::literals;
using vorlexa::test::TempFolder;

namespace {

using vorlexa::test::FakeView;

struct Fixture {
    TempFolder dir;
    std::filesystem::path data = test::buildFixtureData(dir);
    FakeView view;
    std::unique_ptr<MainForm> form = std::make_unique<MainForm>(view);

    Fixture() { view.form = form.get(); }
    StartResult start() { return form->Form_Load(data, {}); }
    void type(std::string_view utf8) { view.setText3(fromUtf8(utf8)); }
    std::string result() const { return toUtf8(view.Text4); }
    void restart() {
        form->finish();
        view = FakeView{};
        form = std::make_unique<MainForm>(view);
        view.form = form.get();
    }
};

}  // namespace

// ---- Start-up and settings -----------------------------------------------------------------

TEST(MainForm, StartsWithTheResourceCaptionsAndTheDerivedFilesBuilt) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    EXPECT_EQ(f.form->windowTitle(), "ZENKA - Vorlexa");
    EXPECT_EQ(f.form->caption("SUT"), "List Non-Translated Terms");
    EXPECT_EQ(f.form->caption("uta"), "Unicod to ANSCII Converter");
    EXPECT_EQ(f.form->language(), Language::English);
    EXPECT_TRUE(f.view.questions.empty());  // an English interface asks nothing
    EXPECT_TRUE(f.form->picture1Visible());
    EXPECT_FALSE(f.form->picture2Visible());
    EXPECT_FALSE(f.form->enabled("Save"));
    EXPECT_FALSE(f.form->enabled("ETE"));
    EXPECT_TRUE(std::filesystem::exists(f.data / "Stringea"));
    EXPECT_TRUE(std::filesystem::exists(f.data / "Stringae"));
    EXPECT_GT(std::filesystem::file_size(f.data / "Stringea"), 0u);
}

TEST(MainForm, SecondInstanceOnTheSameDataFolderIsRefusedWithTheMessage) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    FakeView view2;
    MainForm second(view2);
    EXPECT_EQ(second.Form_Load(f.data, {}), StartResult::AlreadyRunning);
    ASSERT_EQ(view2.notices.size(), 1u);
    EXPECT_EQ(toUtf8(view2.notices[0].text.english), "The application is already running!");
    EXPECT_EQ(second.engine(), nullptr);
    f.form->finish();
    FakeView view3;
    MainForm third(view3);
    EXPECT_EQ(third.Form_Load(f.data, {}), StartResult::Started);
}

TEST(MainForm, SettingsAreAppliedRecordByRecord) {
    Fixture f;
    const std::filesystem::path& d = f.data;
    writeSettingsRecord(d, 1, "Armenian");
    writeSettingsRecord(d, 2, "TypeArmenian");
    writeSettingsRecord(d, 3, "EditingMode");
    writeSettingsRecord(d, 4, "14.4");
    writeSettingsRecord(d, 5, "255");
    writeSettingsRecord(d, 6, "DejaVu Serif");
    writeSettingsRecord(d, 7, "SetInstant");
    writeSettingsRecord(d, 8, "Italic");
    writeSettingsRecord(d, 9, "Pelorand open");
    ASSERT_EQ(f.start(), StartResult::Started);

    EXPECT_TRUE(f.form->checked("AMN"));
    EXPECT_TRUE(f.view.questions.empty());  // record 1 skips the interface question
    EXPECT_EQ(f.form->windowTitle(), "ԶԵՆԿԱ - Վորլեքսա");
    EXPECT_EQ(f.form->caption("TS"), "Թարգմանել ընտրված հատվածը");
    EXPECT_TRUE(f.form->SkipInterfaceQuestion.empty());
    EXPECT_TRUE(f.form->checked("TA"));
    EXPECT_TRUE(f.form->picture2Visible());
    EXPECT_FALSE(f.form->picture1Visible());
    EXPECT_TRUE(f.form->checked("EF"));
    EXPECT_TRUE(f.form->editingLayout());
    EXPECT_TRUE(f.form->enabled("ETE"));
    // efcheck ran at record 3; records 4 to 6 come after it and stand.
    EXPECT_EQ(f.form->text4Font().size, 14);
    EXPECT_EQ(f.form->text4Font().color, 255);
    EXPECT_EQ(f.form->text4Font().name, "DejaVu Serif");
    EXPECT_TRUE(f.form->checked("ITR"));
    EXPECT_TRUE(f.form->text4Font().italic);
    EXPECT_FALSE(f.form->text4Font().bold);
    EXPECT_TRUE(f.form->enabled("HTD"));
}

TEST(MainForm, WithoutTheSiblingRecordItsMenuItemIsDisabled) {
    Fixture f;
    writeSettingsRecord(f.data, 9, "something else");
    ASSERT_EQ(f.start(), StartResult::Started);
    EXPECT_FALSE(f.form->enabled("HTD"));
    EXPECT_FALSE(f.form->checked("TA"));
    EXPECT_TRUE(f.form->picture1Visible());
}

TEST(MainForm, SettingsSurviveARestart) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes};  // the Armenian captions can be read
    f.form->AMN_Click();
    f.form->TA_Click();
    f.form->ITR_Click();
    Text4Font font = f.form->text4Font();
    font.size = 16;
    font.color = 0x00FF00;
    font.name = "DejaVu Sans Mono";
    f.form->setText4Font(font);
    EXPECT_EQ(f.form->exit1_Click(), ExitAnswer::End);  // nothing in Text4: no question

    f.restart();
    ASSERT_EQ(f.start(), StartResult::Started);
    EXPECT_TRUE(f.view.questions.empty());
    EXPECT_TRUE(f.form->checked("AMN"));
    EXPECT_EQ(f.form->caption("Edit"), "Խմբագրել");
    EXPECT_TRUE(f.form->checked("TA"));
    EXPECT_TRUE(f.form->checked("ITR"));
    EXPECT_FALSE(f.form->checked("EF"));
    EXPECT_EQ(f.form->text4Font().size, 16);
    EXPECT_EQ(f.form->text4Font().color, 0x00FF00);
    EXPECT_EQ(f.form->text4Font().name, "DejaVu Sans Mono");
}

TEST(MainForm, AColourRecordBeyondThe32BitRangeLeavesTheColourAsItIs) {
    for (const std::string& record :
         {std::string("10000000000000000000"), std::string("-10000000000000000000"), std::string("4294967296"),
          "1" + std::string(40, '0')}) {  // 45 characters fit a record
        SCOPED_TRACE(record);
        Fixture f;
        writeSettingsRecord(f.data, 5, record);
        ASSERT_EQ(f.start(), StartResult::Started);
        EXPECT_EQ(f.form->text4Font().color, Text4Font{}.color);
    }
    Fixture f;
    writeSettingsRecord(f.data, 5, "4294967295");  // the largest 32-bit colour
    ASSERT_EQ(f.start(), StartResult::Started);
    EXPECT_EQ(f.form->text4Font().color, 4294967295);
}

// ---- Exit --------------------------------------------------------------------------------

TEST(MainForm, ExitAsksAboutAResultAndCancelLeavesTheDerivedFilesDeleted) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.Text4 = "some text";
    f.dir.write("data/tmpa.txt", "x");
    f.dir.write("data/tmpe.txt", "x");
    f.view.answers = {kAnswerCancel};
    EXPECT_EQ(f.form->exit1_Click(), ExitAnswer::Cancel);
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(f.view.questions[0].buttons, Buttons::YesNoCancel);
    EXPECT_EQ(f.form->engine()->AnswerCode, kAnswerCancel);
    EXPECT_FALSE(std::filesystem::exists(f.data / "Stringea"));
    EXPECT_FALSE(std::filesystem::exists(f.data / "Stringae"));
    EXPECT_FALSE(std::filesystem::exists(f.data / "tmpa.txt"));
    EXPECT_FALSE(std::filesystem::exists(f.data / "tmpe.txt"));
    EXPECT_EQ(readSettingsRecords(f.data).size(), 7u);

    f.view.answers = {kAnswerYes};
    EXPECT_EQ(f.form->exit1_Click(), ExitAnswer::SaveThenEnd);
    EXPECT_TRUE(f.form->ExitSaveRequested.isSet());
    f.view.answers = {kAnswerNo};
    EXPECT_EQ(f.form->exit1_Click(), ExitAnswer::End);
}

TEST(MainForm, ExitAsksWhenOnlyTheEngineHoldsAResult) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->engine()->OutputText = "x";
    EXPECT_EQ(f.form->exit1_Click(), ExitAnswer::End);
    EXPECT_EQ(f.view.questions.size(), 1u);
}

// ---- Bilingual interface -------------------------------------------------------------------

TEST(MainForm, ArmenianAndEnglishSwitchesSetEveryCaption) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes};
    f.form->AMN_Click();
    EXPECT_TRUE(f.form->checked("AMN"));
    EXPECT_EQ(f.form->SkipInterfaceQuestion, kAnswerYes);  // the answer stays in it
    for (const auto& row : captionTable())
        EXPECT_EQ(f.form->caption(row.control), row.armenian) << row.control;
    EXPECT_EQ(f.form->windowTitle(), "ԶԵՆԿԱ - Վորլեքսա");

    f.form->Engo_Click();
    EXPECT_FALSE(f.form->checked("AMN"));
    for (const auto& row : captionTable()) {
        const std::string_view expected = row.english.empty() ? row.armenian : row.english;
        EXPECT_EQ(f.form->caption(row.control), expected) << row.control;
    }
    EXPECT_EQ(f.form->caption("SUT"), "List non-Translated Terms");
    EXPECT_EQ(f.form->caption("Dialog.OKButton"), "Շատ լավ");  // Engo leaves it
    EXPECT_EQ(f.form->windowTitle(), "ZENKA - Vorlexa");

    // The question is asked again at the next switch, since a Yes isn't the skip mark.
    f.view.answers = {kAnswerYes};
    f.form->AMN_Click();
    EXPECT_EQ(f.view.questions.size(), 2u);
}

TEST(MainForm, NoToTheInterfaceQuestionShowsTheFontNoteOfTheHelp) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->engine()->OutputText = "left over";
    f.view.answers = {kAnswerNo};
    f.form->AMN_Click();
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(toUtf8(f.view.questions[0].title.armenian), "Ուշադրություն");
    EXPECT_EQ(f.result(), "\r\nInstall a font with Armenian letters.\r\n");
    EXPECT_TRUE(f.form->engine()->OutputText.empty());
    EXPECT_TRUE(f.form->SkipInterfaceQuestion.empty());
    EXPECT_TRUE(f.form->checked("AMN"));  // the captions stay Armenian
}

TEST(MainForm, MissingHelpLeavesTheResultBox) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    std::filesystem::remove(f.data / "read.txt");
    f.view.Text4 = "kept";
    f.view.answers = {kAnswerNo};
    f.form->AMN_Click();
    EXPECT_EQ(f.view.Text4, "kept");
}

// ---- Translation from the window ---------------------------------------------------------------

TEST(MainForm, TypingIntoTheSourceBoxFillsTheResultAndSetsDirectionAndTitle) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.type("big house");
    EXPECT_EQ(f.form->direction(), 0);
    EXPECT_NE(f.result().find("մեծ"), std::string::npos) << f.result();
    EXPECT_NE(f.result().find("տուն"), std::string::npos) << f.result();
    // The direction title, then the timing title of the run's end.
    EXPECT_EQ(f.form->windowTitle().rfind("Translated in ", 0), 0u) << f.form->windowTitle();
    EXPECT_TRUE(f.form->enabled("Save"));
    EXPECT_TRUE(f.form->enabled("aas"));
    EXPECT_FALSE(f.form->progressVisible());

    f.type("մեծ տուն");
    EXPECT_EQ(f.form->direction(), 1);
    EXPECT_NE(f.result().find("big"), std::string::npos) << f.result();
    EXPECT_NE(f.result().find("house"), std::string::npos) << f.result();
}

TEST(MainForm, TheTitleFollowsTheInterfaceLanguage) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->setTitle({"Translating from English to Armenian", fromUtf8("Թարգմանում է անգլերենից հայերեն:")});
    EXPECT_EQ(f.form->windowTitle(), "Translating from English to Armenian");
    f.view.answers = {kAnswerYes};
    f.form->AMN_Click();
    f.form->setTitle({"Translating from English to Armenian", fromUtf8("Թարգմանում է անգլերենից հայերեն:")});
    EXPECT_EQ(f.form->windowTitle(), "Թարգմանում է անգլերենից հայերեն:");
    f.type("big house");
    EXPECT_EQ(f.form->windowTitle().rfind("Թարգմանությունը տևեց ", 0), 0u) << f.form->windowTitle();
}

TEST(MainForm, InstantTranslationLeavesTheTitleAndAsksNothing) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->ITR_Click();
    f.type("big zorbl house");
    EXPECT_TRUE(f.view.questions.empty());
    EXPECT_EQ(f.form->windowTitle(), "Translating from English to Armenian");
    EXPECT_NE(f.result().find("zorbl"), std::string::npos);
    EXPECT_TRUE(f.view.drawnProgress.empty());
}

TEST(MainForm, ProgressIsDrawnAtMostOncePerInterval) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    MainForm::Clock::time_point t{};
    f.form->now = [&t] { return t; };
    f.form->setProgress(0);   // no change from the start value: nothing drawn
    f.form->setProgress(10);  // drawn: the first step after a long time
    t += std::chrono::milliseconds(5);
    f.form->setProgress(20);  // too soon
    f.form->setProgress(30);  // too soon
    t += kProgressInterval;
    f.form->setProgress(40);  // drawn
    t += std::chrono::milliseconds(1);
    f.form->setProgress(100);  // the end is always drawn
    f.form->setProgress(0);    // so is the start
    EXPECT_EQ(f.view.drawnProgress, (std::vector<int>{10, 40, 100, 0}));
    EXPECT_EQ(f.form->progressValue(), 0);
}

TEST(MainForm, ALongRunDrawsTheBarOnlyAFewTimes) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    std::string text;
    for (int i = 0; i < 400; ++i) text += "big house ";
    f.type(text);
    // A hundred steps at most; far fewer drawn, since the run takes little time.
    EXPECT_LE(f.view.drawnProgress.size(), 101u);
    ASSERT_FALSE(f.view.drawnProgress.empty());
    EXPECT_EQ(f.view.drawnProgress.back(), 100);
}

TEST(MainForm, TranslateSelectionReplacesTheSelectedPartOfTheResult) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->setChecked("SUT", true);
    f.view.Text4 = "AAA big BBB";
    f.view.selection = {4, 3};
    f.form->TS_Click();
    EXPECT_FALSE(f.form->checked("SUT"));
    EXPECT_EQ(f.view.Text3, "big");
    const FontText& out = f.view.Text4;
    ASSERT_EQ(out.substr(0, 4), "AAA ");
    ASSERT_EQ(out.substr(out.size() - 4), " BBB");
    const std::string middle = toUtf8(out.substr(4, out.size() - 8));
    EXPECT_NE(middle.find("մեծ"), std::string::npos) << middle;
    EXPECT_EQ(f.view.selection.start, 4);
    EXPECT_EQ(f.view.selection.length, static_cast<int>(out.size()) - 8);
    EXPECT_EQ(f.form->engine()->OutputText, out);
}

TEST(MainForm, TranslateSelectionNeedsMoreThanOneCharacter) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.Text4 = "abc";
    f.view.selection = {0, 1};
    f.form->TS_Click();
    EXPECT_EQ(f.view.runs, 0);
    EXPECT_EQ(f.view.Text4, "abc");
}

TEST(MainForm, AccurateTranslationChecksItselfAndRunsWithALeadingBlank) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.Text3 = "big house";
    f.form->IMPV_Click();
    EXPECT_EQ(f.view.Text3, " big house");
    EXPECT_EQ(f.view.runs, 1);
    EXPECT_NE(f.result().find("տուն"), std::string::npos);
}

TEST(MainForm, EditingModeHidesTheSourceAndEnablesExpressionEditing) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    Text4Font font = f.form->text4Font();
    font.size = 20;
    font.bold = true;
    font.name = "Other";
    f.form->setText4Font(font);
    f.form->EF_Click();
    EXPECT_TRUE(f.form->checked("EF"));
    EXPECT_TRUE(f.form->editingLayout());
    EXPECT_TRUE(f.form->enabled("ETE"));
    EXPECT_EQ(f.form->text4Font().size, 20);
    f.form->EF_Click();
    EXPECT_FALSE(f.form->editingLayout());
    EXPECT_FALSE(f.form->enabled("ETE"));
    EXPECT_EQ(f.form->text4Font().size, 10);
    EXPECT_EQ(f.form->text4Font().name, "Arial Armenian");
    EXPECT_FALSE(f.form->text4Font().bold);
}

TEST(MainForm, ARunClearsTheEditTranslationMark) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->EdtTr_Click();
    EXPECT_TRUE(f.form->checked("EdtTr"));
    f.type("big");
    EXPECT_FALSE(f.form->checked("EdtTr"));
}

// ---- The unknown word and the add-word panel ---------------------------------------------------

TEST(MainForm, ThePanelOffersTheWordAsItIsLookedUp) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.type("Zorbl");
    ASSERT_TRUE(f.form->panel().visible);
    EXPECT_EQ(f.form->panel().Text1, "zorbl");
}

TEST(MainForm, AnUnknownWordIsAddedFromThePanelAndThePausedRunFinishesWithIt) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};  // stop at unknown words; add this one
    f.type("big zorbl house");
    ASSERT_EQ(f.view.kinds(), (std::vector<QuestionKind>{QuestionKind::UnknownWords, QuestionKind::AddUnknownWord}));
    EXPECT_EQ(f.view.questions[1].subject, "zorbl");
    EXPECT_EQ(f.form->engine()->state, RunState::Waiting);
    ASSERT_TRUE(f.form->panel().visible);
    EXPECT_EQ(f.form->panel().Text1, "zorbl");
    EXPECT_EQ(f.form->panel().Command2, "Save");
    // The run has stopped: the house is not translated yet.
    EXPECT_EQ(f.result().find("տուն"), std::string::npos);

    f.form->panel().Text2 = fromUtf8("Զարմիկ");  // a capital, folded on saving
    f.form->panel().Text6 = "n";
    f.form->Command2_Click();

    EXPECT_FALSE(f.form->panel().visible);
    EXPECT_TRUE(f.form->panel().Text1.empty());
    EXPECT_EQ(f.form->engine()->state, RunState::Idle);
    EXPECT_NE(f.result().find("զարմիկ"), std::string::npos) << f.result();
    EXPECT_NE(f.result().find("տուն"), std::string::npos) << f.result();

    // Both dictionaries hold it now; the next run finds it without a question.
    const auto rec = f.form->store().findEnglish("zorbl");
    ASSERT_TRUE(rec);
    DictRecord r;
    r.raw = f.form->store().english().read(*rec);
    EXPECT_EQ(r.gloss(), "զարմիկ"_ft);
    EXPECT_EQ(r.tag(), "n    ");
    const auto back = f.form->store().findArmenian("զարմիկ"_ft);
    ASSERT_TRUE(back);
    r.raw = f.form->store().armenian().read(*back);
    EXPECT_EQ(r.gloss(), "zorbl");

    f.view.questions.clear();
    f.type("zorbl");
    EXPECT_TRUE(f.view.questions.empty());
    EXPECT_NE(f.result().find("զարմիկ"), std::string::npos);
}

TEST(MainForm, APhraseTranslationIsStoredOneWayAndNotWrittenByThePanel) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.type("zorbl");
    ASSERT_TRUE(f.form->panel().visible);
    f.form->panel().Text2 = fromUtf8("մեծ/փոքր");
    f.form->Text2_DblClick();
    EXPECT_TRUE(f.form->store().findEnglish("zorbl"));
    EXPECT_FALSE(f.form->store().findArmenian("մեծ/փոքր"_ft));
    // The resumed run finds the word now and writes its gloss; the panel itself wrote nothing.
    const std::string out = f.result();
    const auto first = out.find("մեծ/փոքր");
    ASSERT_NE(first, std::string::npos) << out;
    EXPECT_EQ(out.find("փոքր", first + 1 + std::string("մեծ/").size()), std::string::npos) << out;
    EXPECT_EQ(f.form->engine()->state, RunState::Idle);
}

TEST(MainForm, AnEmptyTranslationKeepsThePanelOpen) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.type("zorbl");
    ASSERT_TRUE(f.form->panel().visible);
    f.form->Command2_Click();
    EXPECT_TRUE(f.form->panel().visible);
    EXPECT_EQ(f.form->engine()->state, RunState::Waiting);
    EXPECT_FALSE(f.form->store().findEnglish("zorbl"));
}

TEST(MainForm, ThePanelSpeaksTheInterfaceLanguage) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes, kAnswerYes};
    f.form->AMN_Click();
    f.type("zorbl");
    EXPECT_EQ(f.form->panel().Command2, "Հիշել");
    f.form->panel().Text2 = fromUtf8("զարմիկ");
    f.form->Command2_Click();
    EXPECT_TRUE(f.form->store().findEnglish("zorbl"));
}

TEST(MainForm, AnArmenianWordIsAddedWithALowerCaseEnglishGloss) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.type("մեծ զարմիկ");
    ASSERT_TRUE(f.form->panel().visible);
    EXPECT_EQ(f.form->direction(), 1);
    f.form->panel().Text2 = "Cousin";
    f.form->Command2_Click();
    const auto rec = f.form->store().findArmenian("զարմիկ"_ft);
    ASSERT_TRUE(rec);
    DictRecord r;
    r.raw = f.form->store().armenian().read(*rec);
    EXPECT_EQ(r.gloss(), "cousin");
    EXPECT_TRUE(f.form->store().findEnglish("cousin"));
    EXPECT_NE(f.result().find("cousin"), std::string::npos) << f.result();
}

TEST(MainForm, NoToTheFirstQuestionLeavesUnknownWordsInTheText) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerNo};
    f.type("big zorbl house");
    EXPECT_EQ(f.view.questions.size(), 1u);
    EXPECT_FALSE(f.form->panel().visible);
    EXPECT_NE(f.result().find("zorbl"), std::string::npos);
    EXPECT_NE(f.result().find("տուն"), std::string::npos);
}

TEST(MainForm, EditingModeSuppressesTheUnknownWordQuestion) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->EF_Click();
    f.type("zorbl house");
    EXPECT_TRUE(f.view.questions.empty());
}

// ---- Phonetic typing and the input language ---------------------------------------------------

TEST(MainForm, KeysAreMappedOnlyWhileArmenianTypingIsOn) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    EXPECT_EQ(f.form->typedKey('a'), 'a');
    f.form->TA_Click();
    EXPECT_TRUE(f.form->checked("TA"));
    EXPECT_TRUE(f.form->picture2Visible());
    EXPECT_FALSE(f.form->picture1Visible());
    EXPECT_EQ(f.form->typedKey('a'), 179);
    EXPECT_EQ(f.form->typedKey('?'), 177);
    EXPECT_EQ(f.form->typedKey('6'), '6');
    f.form->TA_Click();
    EXPECT_TRUE(f.form->picture1Visible());
    EXPECT_EQ(f.form->typedKey('a'), 'a');
}

TEST(MainForm, TheInputLanguageFollowsTheBoxOfTheSearch) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.type("big house");  // English to Armenian: Check1 0
    f.form->Text1_Click();
    EXPECT_FALSE(f.form->checked("TA"));  // Latin typing already
    f.form->TA_Click();
    f.form->Text1_Click();  // Armenian typing, but the source is English: back to Latin
    EXPECT_FALSE(f.form->checked("TA"));

    f.type("մեծ տուն");  // Armenian to English: Check1 1
    f.form->Text2_Click();
    EXPECT_TRUE(f.form->checked("TA"));
    f.form->Text2_Click();
    EXPECT_TRUE(f.form->checked("TA"));

    f.type("big house");
    f.form->engine()->SpellMode = 1;
    f.form->Text2_Click();  // not during a spell-check pass
    EXPECT_TRUE(f.form->checked("TA"));
    f.form->engine()->SpellMode.clear();
    f.form->Text2_Click();
    EXPECT_FALSE(f.form->checked("TA"));
}

// ---- The run as a user meets it ------------------------------------------------------------

namespace {

int count(const std::string& text, const std::string& part) {
    int n = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++n;
    return n;
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

// A text of many lines of known words, with nothing to ask about.
std::string longText(int lines) {
    std::string text;
    for (int i = 0; i < lines; ++i) text += "The big house is red.\r\n";
    return text;
}

}  // namespace

TEST(MainForm, AWordAddedFromThePanelIsWrittenOnceWithItsEndings) {
    // "The house is big." and "The zorbl is big." differ only in the noun, once zorbl is a noun
    // of the dictionary: the saved word gets the article ending and the copula follows, as the
    // house does, and it is written once.
    Fixture known;
    ASSERT_EQ(known.start(), StartResult::Started);
    known.type("The house is big.");
    const std::string house = known.result();
    ASSERT_EQ(count(house, "ուն"), 1) << house;

    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.type("The zorbl is big.");
    ASSERT_TRUE(f.form->panel().visible);
    f.form->panel().Text2 = fromUtf8("զարմիկ");
    f.form->panel().Text6 = "n";
    f.form->Command2_Click();
    EXPECT_EQ(f.form->engine()->state, RunState::Idle);
    EXPECT_EQ(count(f.result(), "արմիկ"), 1) << f.result();
    EXPECT_EQ(f.result(), replaced(replaced(house, "Տուն", "Զարմիկ"), "տուն", "զարմիկ"));
}

TEST(MainForm, SkipLeavesTheWordAsANoWouldAndTheRunGoesOnWithoutAskingAgain) {
    Fixture no;
    ASSERT_EQ(no.start(), StartResult::Started);
    no.view.answers = {kAnswerYes, kAnswerNo};  // stop at unknown words; not this one
    no.type("big Zorbl house Zorbl");
    ASSERT_FALSE(no.form->panel().visible);
    const std::string expected = no.result();

    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};  // stop at unknown words; add this one
    f.type("big Zorbl house Zorbl");
    ASSERT_TRUE(f.form->panel().visible);
    ASSERT_EQ(f.view.questions.size(), 2u);

    f.form->skipWord();
    EXPECT_FALSE(f.form->panel().visible);
    EXPECT_EQ(f.form->engine()->state, RunState::Idle);
    // No further question reaches the user: the word was reported, and its second
    // occurrence is written as it stands.
    EXPECT_EQ(f.view.questions.size(), 2u);
    EXPECT_EQ(f.result(), expected);
    EXPECT_EQ(count(toUtf8(foldArmenianCase(fromUtf8(f.result()))), "orbl"), 2) << f.result();
    EXPECT_NE(f.result().find("տուն"), std::string::npos) << f.result();
    EXPECT_FALSE(f.form->store().findEnglish("zorbl"));
}

TEST(MainForm, SaveWithoutATranslationSaysWhyAndKeepsWaiting) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.type("zorbl");
    f.form->panel().Text2 = "   ";
    f.form->Command2_Click();
    ASSERT_EQ(f.view.notices.size(), 1u);
    EXPECT_EQ(f.view.notices[0].text.english, emptyTranslationNotice().text.english);
    EXPECT_TRUE(f.form->panel().visible);
    EXPECT_EQ(f.form->engine()->state, RunState::Waiting);
    EXPECT_FALSE(f.form->store().findEnglish("zorbl"));
}

TEST(MainForm, ANewTextWhileThePanelWaitsEndsThatRunAndTranslatesTheNewOneAfresh) {
    Fixture fresh;
    ASSERT_EQ(fresh.start(), StartResult::Started);
    fresh.type("big house");
    const std::string expected = fresh.result();

    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.type("The house is zorbl");  // waits with an article and a copula pending
    ASSERT_TRUE(f.form->panel().visible);
    f.type("big house");
    EXPECT_FALSE(f.form->panel().visible);
    EXPECT_EQ(f.form->engine()->state, RunState::Idle);
    EXPECT_EQ(f.result(), expected);
}

TEST(MainForm, AWindowMinimisedForAnUnattendedRunComesBackWhenTheRunEnds) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerNo};  // leave unknown words: the long text runs unattended
    f.type("zorbl " + longText(200));
    EXPECT_EQ(f.view.events, (std::vector<std::string>{"minimise", "restore"}));
    EXPECT_FALSE(f.view.minimised);

    // A short text is never minimised, and nothing is restored.
    f.view.events.clear();
    f.type("zorbl big");
    EXPECT_TRUE(f.view.events.empty());
}

TEST(MainForm, TheInterfaceQuestionComesAtEverySwitchToArmenian) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.form->AMN_Click();
    f.form->Engo_Click();
    f.form->AMN_Click();
    EXPECT_EQ(f.view.questions.size(), 2u);
}

TEST(MainForm, AnInstantRunOfALongTextGoesInSlicesAndANewerKeyStrokeDropsIt) {
    Fixture sync;
    ASSERT_EQ(sync.start(), StartResult::Started);
    sync.form->ITR_Click();
    const std::string text = longText(3000);
    sync.type(text + "x");
    const std::string expected = sync.result();

    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->ITR_Click();
    // The test's clock moves one millisecond each time it is read, so a slice is a fixed
    // amount of work and the time it holds the interface is counted, not measured.
    auto ticks = std::make_shared<std::int64_t>(0);
    f.form->now = [ticks] { return MainForm::Clock::time_point(std::chrono::milliseconds(++*ticks)); };

    // Three key strokes in a row: each starts a run and leaves after its first slice; the two
    // older runs are dropped when the next key stroke comes.
    EXPECT_TRUE(f.form->startInstantRun(fromUtf8(text)));
    EXPECT_TRUE(f.form->startInstantRun(fromUtf8(text + "x")));
    EXPECT_TRUE(f.form->startInstantRun(fromUtf8(text + "x")));
    EXPECT_EQ(f.form->runCounts().started, 3);
    EXPECT_EQ(f.form->runCounts().dropped, 2);
    EXPECT_EQ(f.form->runCounts().finished, 0);

    int slices = 1;
    while (f.form->continueInstantRun()) ++slices;
    EXPECT_GT(slices, 2);
    EXPECT_EQ(f.form->runCounts().finished, 1);
    EXPECT_FALSE(f.form->instantRunPending());
    EXPECT_LT(f.form->runCounts().longestSlice, std::chrono::milliseconds(100));
    EXPECT_EQ(f.result(), expected);
}

// ---- Spell checker, Find and Replace ----------------------------------------------------------

TEST(MainFormSpell, PassOverTheResultQuestionsEachWordAndReplacesItWithTheSuggestion) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.Text4 = fromUtf8("մեծ քիրք դուն");
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.form->SSO_Click();
    ASSERT_EQ(f.form->engine()->state, RunState::Waiting);
    const WordPanel& p = f.form->panel();
    EXPECT_TRUE(p.visible);
    EXPECT_EQ(toUtf8(p.Text1), "քիրք");
    EXPECT_EQ(toUtf8(p.Text2), "գիրք");  // the one suggestion goes straight into the replacement
    EXPECT_FALSE(p.listVisible);
    EXPECT_EQ(p.Command2, "Replace -\nWith - ");
    f.form->Command2_Click();
    ASSERT_EQ(f.form->engine()->state, RunState::Waiting);
    EXPECT_EQ(toUtf8(f.form->panel().Text1), "դուն");
    // The final "ն" came off before the variants were made and goes back on the first survivor.
    ASSERT_EQ(f.form->panel().List1.size(), 1u);
    EXPECT_EQ(toUtf8(f.form->panel().List1[0]), "տուն");
    EXPECT_EQ(toUtf8(f.form->panel().Text2), "տունն");
    f.form->panel().Text2 = fromUtf8("տուն");  // the user corrects the offer in the box
    f.form->Command2_Click();
    EXPECT_EQ(f.form->engine()->state, RunState::Idle);
    EXPECT_TRUE(f.result().starts_with("մեծ գիրք տուն"));
    ASSERT_FALSE(f.view.notices.empty());
    EXPECT_EQ(f.view.notices.back().text.english, "Spell-Check is completed.");
    EXPECT_FALSE(f.form->panel().visible);
    EXPECT_EQ(f.view.kinds(), (std::vector<QuestionKind>{QuestionKind::CorrectUnknownWord,
                                                         QuestionKind::CorrectUnknownWord}));
}

TEST(MainFormSpell, ChoosingFromSeveralSuggestionsEnablesTheButton) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.Text4 = fromUtf8("մեծ");
    f.form->SSO_Click();
    text_tools::SmallBoxes shown;
    spell::SpellResult r;
    r.Text1 = fromUtf8("գեզ");
    r.Text2 = r.Text1;
    r.List1 = {fromUtf8("գետ"), fromUtf8("գեր")};
    f.form->showSuggestions(r);
    EXPECT_TRUE(f.form->panel().listVisible);
    EXPECT_FALSE(f.form->panel().command2Enabled);
    f.form->List1_Click(1);
    EXPECT_EQ(toUtf8(f.form->panel().Text2), "գեր");
    EXPECT_TRUE(f.form->panel().command2Enabled);
    EXPECT_FALSE(f.form->panel().listVisible);
}

TEST(MainFormSpell, FindInTheArmenianInterface) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.form->setChecked("AMN", true);
    f.view.Text4 = fromUtf8("Տունը և տունը");
    f.form->Fnd_Click();
    EXPECT_EQ(f.form->panel().Command2, "Որոնել");
    EXPECT_FALSE(f.form->panel().text2Visible);
    EXPECT_FALSE(f.form->findState().FindIgnoreCase);
    f.form->panel().Text1 = fromUtf8("տուն");
    f.form->Command2_Click();
    EXPECT_EQ(f.view.selection.start, 0);
    EXPECT_EQ(f.view.selection.length, 4);
    EXPECT_EQ(f.form->panel().Command2, "Որոնել հաջորդը");
    f.form->Command2_Click();
    EXPECT_EQ(f.view.selection.start, 8);
    f.form->Text1_DblClick();
    EXPECT_FALSE(f.form->panel().visible);
}

TEST(MainFormSpell, ReplaceInTheEnglishInterfaceTakesTheSelection) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.type("big house");
    f.view.Text4 = "a cat and a cat";
    f.view.selection = {2, 3};
    f.form->Replacce_click();
    EXPECT_EQ(f.form->panel().Text1, "cat");
    f.form->panel().Text2 = "dog";
    f.form->Command2_Click();
    EXPECT_EQ(f.view.Text4, "a dog and a dog");
    EXPECT_EQ(f.form->engine()->OutputText, "a dog and a dog");
    ASSERT_FALSE(f.view.notices.empty());
    EXPECT_EQ(f.view.notices.back().text.english, "2 Replacements done.");
    EXPECT_FALSE(f.form->panel().visible);
}

TEST(MainFormSpell, CorrectorWorningStartsAPassOnYes) {
    Fixture f;
    ASSERT_EQ(f.start(), StartResult::Started);
    f.view.Text4 = fromUtf8("մեծ տուն");
    f.form->CorrectorWorning();
    EXPECT_EQ(f.view.runs, 0);
    f.view.answers = {kAnswerYes};
    f.form->CorrectorWorning();
    EXPECT_EQ(f.view.runs, 1);
    EXPECT_EQ(f.view.notices.back().text.english, "Spell-Check is completed.");
    EXPECT_TRUE(f.result().starts_with("մեծ տուն"));
}
