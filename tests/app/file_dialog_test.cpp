#include "app/file_dialog.h"

#include <gtest/gtest.h>

#include "app/desktop_fakes.h"
#include "app/settings_file.h"

using namespace vorlexa;
using namespace vorlexa::app;
using namespace vorlexa::literals;
using vorlexa::test::ShellFixture;

namespace {

namespace fs = std::filesystem;

struct DialogFixture : ShellFixture {
    Dialog dialog{*form, view, desktop};
    fs::path docs = dir / "docs";

    DialogFixture() { fs::create_directories(docs); }

    // Opens the file list at `docs` and picks `name` in it, as a click in File1 does.
    void choose(const std::string& name) {
        dialog.Dir1_Change(docs);
        dialog.File1_Click(name);
    }
    // Saves Text4 under `name` in `docs` through the Save command.
    void saveAs(const std::string& name) {
        dialog.Save_Click();
        dialog.Dir1_Change(docs);
        dialog.setText5((docs / name).string());
        dialog.OKButton_Click();
    }
};

std::string bytesOf(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

void writeBytes(const fs::path& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// "Ա բ" in UTF-16 little-endian: U+0531, U+0020, U+0562.
constexpr std::string_view kArmenianUnits{"\x31\x05\x20\x00\x62\x05", 6};
constexpr std::string_view kMark = "\xFF\xFE";

}  // namespace

// ---- Captions of the five modes ----------------------------------------------------------------

TEST(Dialog, OpenShowsTheFilesWithTheOpenCaptions) {
    DialogFixture f;
    f.dialog.Open1_Click();
    EXPECT_TRUE(f.dialog.visible);
    EXPECT_TRUE(f.dialog.filesShown);
    EXPECT_FALSE(f.dialog.fontsShown);
    EXPECT_EQ(f.dialog.caption, "Open");
    EXPECT_EQ(f.dialog.OKButton, "Open");
    EXPECT_EQ(f.dialog.CancelButton, "Cancel");
}

TEST(Dialog, ArmenianInterfaceGivesTheArmenianCaptions) {
    DialogFixture f;
    f.form->SkipInterfaceQuestion = 1;
    f.form->AMN_Click();
    f.dialog.Open1_Click();
    EXPECT_EQ(f.dialog.caption, "Բացել");
    EXPECT_EQ(f.dialog.OKButton, "Բացել");
    EXPECT_EQ(f.dialog.CancelButton, "Թողնել");
    f.dialog.Save_Click();
    EXPECT_EQ(f.dialog.caption, "Պահպանել");
    EXPECT_EQ(f.dialog.OKButton, "Պահպանել");
    f.dialog.aas_Click();
    EXPECT_EQ(f.dialog.caption, "Ավելացնել ֆայլին");
    EXPECT_EQ(f.dialog.OKButton, "Ավելացնել");
    f.dialog.fnt_Click({});
    EXPECT_EQ(f.dialog.caption, "Տառատեսակներ");
    EXPECT_EQ(f.dialog.OKButton, "Տառերի գույնը");
    EXPECT_EQ(f.dialog.Command1, "Ընդունված տառատեսակ");
}

TEST(Dialog, SaveTakesTheResultToTheClipboardAndEmptiesThePath) {
    DialogFixture f;
    f.view.Text4 = "Ա բ"_ft;
    f.dialog.setText5("/somewhere/old.txt");
    f.dialog.Save_Click();
    EXPECT_EQ(f.desktop.clipboard, "Ա բ"_ft);
    EXPECT_EQ(f.dialog.Text5, "");
    EXPECT_EQ(f.dialog.caption, "Save");
    EXPECT_EQ(f.dialog.OKButton, "Save");
}

TEST(Dialog, SaveAfterTheExitQuestionReadsSaveAsAndClearsTheFlag) {
    DialogFixture f;
    f.form->ExitSaveRequested = 1;
    f.dialog.Save_Click();
    EXPECT_EQ(f.dialog.caption, "Save");
    EXPECT_EQ(f.dialog.OKButton, "Save As");
    EXPECT_FALSE(f.form->ExitSaveRequested.isSet());
}

TEST(Dialog, LongTranslationIsSavedFromTheEngineNotTheBox) {
    DialogFixture f;
    f.form->engine()->OutputText = std::string(kResultBoxLimit, 'a');
    f.view.Text4 = "short";
    f.dialog.Save_Click();
    EXPECT_EQ(f.desktop.clipboard.size(), kResultBoxLimit);
    f.form->engine()->OutputText = std::string(kResultBoxLimit - 1, 'a');
    f.dialog.Save_Click();
    EXPECT_EQ(f.desktop.clipboard, "short");
}

TEST(Dialog, AddToFileEmptiesTheClipboardChecksAasAndOpensAsOpen) {
    DialogFixture f;
    f.desktop.clipboard = "old";
    f.view.Text4 = "new";
    f.dialog.aas_Click();
    EXPECT_EQ(f.desktop.clipboardClears, 1);
    EXPECT_EQ(f.desktop.clipboard, "new");
    EXPECT_TRUE(f.form->checked("aas"));
    EXPECT_TRUE(f.dialog.filesShown);
    EXPECT_EQ(f.dialog.caption, "Add to File");
    EXPECT_EQ(f.dialog.OKButton, "Add");
}

// ---- Save --------------------------------------------------------------------------------------

TEST(Dialog, SaveWritesUtf16WithByteOrderMark) {
    DialogFixture f;
    f.view.Text4 = "Ա բ"_ft;
    f.saveAs("out.txt");
    EXPECT_EQ(bytesOf(f.docs / "out.txt"), std::string(kMark) + std::string(kArmenianUnits));
    EXPECT_FALSE(f.dialog.visible);
    EXPECT_EQ(f.dialog.SavePath, (f.docs / "out.txt").string());
    EXPECT_FALSE(f.desktop.ended);
    EXPECT_FALSE(fs::exists(f.data / "enc"));  // the temporary file is gone
}

TEST(Dialog, SavingTwiceWritesOnlyTheSecondText) {
    DialogFixture f;
    f.view.Text4 = "Ա բ"_ft;
    f.saveAs("one.txt");
    f.view.Text4 = "a";
    f.saveAs("two.txt");
    EXPECT_EQ(bytesOf(f.docs / "two.txt"), std::string(kMark) + std::string("a\0", 2));
}

TEST(Dialog, SavingOverAFileAsksFirstAndNoKeepsIt) {
    DialogFixture f;
    writeBytes(f.docs / "old.txt", "old");
    f.view.Text4 = "new";
    f.saveAs("old.txt");
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(toUtf8(f.view.questions[0].text.english), "The file already exists. Would you like to replace it?");
    EXPECT_EQ(bytesOf(f.docs / "old.txt"), "old");
    EXPECT_TRUE(f.dialog.visible);
    f.view.answers = {kAnswerYes};
    f.dialog.OKButton_Click();
    EXPECT_EQ(bytesOf(f.docs / "old.txt"), std::string(kMark) + std::string("n\0e\0w\0", 6));
    EXPECT_FALSE(f.dialog.visible);
}

TEST(Dialog, SaveWithAnEmptyPathDoesNothing) {
    DialogFixture f;
    f.view.Text4 = "text";
    f.dialog.Save_Click();
    f.dialog.OKButton_Click();
    EXPECT_TRUE(f.dialog.visible);
    EXPECT_TRUE(listFiles(f.docs).empty());
}

TEST(Dialog, SaveAsFromTheExitQuestionEndsTheProgram) {
    DialogFixture f;
    f.view.Text4 = "text";
    f.form->ExitSaveRequested = 1;
    f.saveAs("last.txt");
    EXPECT_TRUE(fs::exists(f.docs / "last.txt"));
    EXPECT_TRUE(f.desktop.ended);
}

TEST(Dialog, SaveThatCannotBeWrittenKeepsTheWindowAndTheProgram) {
    DialogFixture f;
    f.view.Text4 = "text";
    f.form->ExitSaveRequested = 1;
    f.dialog.Save_Click();
    f.dialog.setText5((f.docs / "no-such-folder" / "x.txt").string());
    f.dialog.OKButton_Click();
    EXPECT_TRUE(f.dialog.visible);
    EXPECT_FALSE(f.desktop.ended);
    EXPECT_EQ(f.view.lastNotice(), "The file could not be saved.");
}

TEST(Dialog, SavedDocOpensInTheWordProcessorOnlyWhenTheChosenFileIsADoc) {
    DialogFixture f;
    f.desktop.programs = {"abiword"};
    f.view.Text4 = "text";
    f.saveAs("plain.doc");  // typed, not chosen in the list
    EXPECT_TRUE(f.desktop.started.empty());
    f.dialog.Save_Click();
    f.choose("plain.doc");
    f.view.answers = {kAnswerYes};  // replace the file
    f.dialog.OKButton_Click();
    ASSERT_EQ(f.desktop.started.size(), 1u);
    EXPECT_EQ(f.desktop.started[0].program, fs::path("/usr/bin/abiword"));
    EXPECT_EQ(f.desktop.started[0].arguments, std::vector<std::string>{(f.docs / "plain.doc").string()});
}

// ---- Open --------------------------------------------------------------------------------------

TEST(Dialog, OpenOfAFontEncodedFileShowsItAndAsksToTranslate) {
    DialogFixture f;
    writeBytes(f.docs / "hy.txt", std::string("տուն\r\nմեծ"_ft));
    f.dialog.Open1_Click();
    f.choose("hy.txt");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.Text4, "տուն\r\nմեծ"_ft);
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(toUtf8(f.view.questions[0].text.english), "Translate text?");
    EXPECT_EQ(toUtf8(f.view.questions[0].text.armenian), "Թարգմանե՞լ տեքստը:");
    EXPECT_EQ(f.view.runs, 0);  // answered No
    EXPECT_FALSE(f.dialog.visible);
    EXPECT_EQ(f.dialog.ChosenPath, "");
    EXPECT_EQ(f.dialog.DialogText, "");
}

TEST(Dialog, YesToTranslateSetsTheSourceBoxWhichRuns) {
    DialogFixture f;
    writeBytes(f.docs / "en.txt", "The house is big.\n");
    f.view.answers = {kAnswerYes};
    f.dialog.Open1_Click();
    f.choose("en.txt");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.Text3, "The house is big.");
    EXPECT_EQ(f.view.runs, 1);
    EXPECT_NE(f.form->engine()->OutputText, "");
}

TEST(Dialog, EditingModeOpensWithoutTheQuestion) {
    DialogFixture f;
    f.form->EF_Click();
    writeBytes(f.docs / "a.txt", "abc");
    f.dialog.Open1_Click();
    f.choose("a.txt");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.Text4, "abc");
    EXPECT_TRUE(f.view.questions.empty());
}

TEST(Dialog, OpenOfAUtf16FileDecodesIt) {
    DialogFixture f;
    writeBytes(f.docs / "u.txt", std::string(kMark) + std::string(kArmenianUnits) + std::string("\r\0\n\0x\0", 6));
    f.dialog.Open1_Click();
    f.choose("u.txt");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.Text4, "Ա բ\r\nx"_ft);
}

TEST(Dialog, OpenOfAUtf8FileDecodesIt) {
    DialogFixture f;
    writeBytes(f.docs / "u8.txt", "Տուն\nhouse\n");
    f.dialog.Open1_Click();
    f.choose("u8.txt");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.Text4, "Տուն\r\nhouse"_ft);
}

TEST(Dialog, SavedResultReopensAsTheSameText) {
    DialogFixture f;
    const FontText text("Տունը մեծ է:\r\nThe house, 2 rooms.\r\n\r\nև վերջ"_ft);
    f.view.Text4 = text;
    f.saveAs("round.txt");
    f.view.Text4.clear();
    f.dialog.Open1_Click();
    f.choose("round.txt");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.Text4, text);
}

TEST(Dialog, OpeningAFileNamedSettingsIsRefused) {
    DialogFixture f;
    writeBytes(f.docs / "settings.txt", "x");
    f.view.Text4 = "kept";
    f.dialog.Open1_Click();
    f.choose("settings.txt");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.lastNotice(), "Sorry, you are not authorised to open this file.");
    EXPECT_EQ(toUtf8(f.view.notices.back().text.armenian), "Ներողություն, այս ֆայլը չեք կարող բացել:");
    EXPECT_EQ(f.view.Text4, "kept");
    EXPECT_TRUE(f.dialog.visible);
}

TEST(Dialog, AnyPathHoldingADataFileNameInAnyCaseIsRefused) {
    for (const char* path : {"/home/u/MySettingsFolder/a.txt", "/x/DICTIONARYE-A.txt", "/x/uxxumy.doc",
                             "/x/old_stringae.txt", "/x/Dictionarya-e"})
        EXPECT_TRUE(isProtectedPath(path)) << path;
    EXPECT_FALSE(isProtectedPath("/home/u/setting.txt"));
    EXPECT_FALSE(isProtectedPath("/home/u/dictionary.txt"));
}

TEST(Dialog, OpeningAPathWithABlankFailsSilentlyAndEmptiesTheResult) {
    DialogFixture f;
    writeBytes(f.docs / "my file.txt", "content");
    f.view.Text4 = "before";
    f.dialog.Open1_Click();
    f.choose("my file.txt");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.Text4, "");
    EXPECT_TRUE(f.view.notices.empty());
    EXPECT_TRUE(f.view.questions.empty());
    EXPECT_FALSE(f.dialog.visible);
}

TEST(Dialog, OpenWithoutAChosenFileSaysSoAndStaysOpen) {
    DialogFixture f;
    f.dialog.Open1_Click();
    f.dialog.setText5((f.docs / "typed.txt").string());
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.lastNotice(), "No file chosen!");
    EXPECT_EQ(toUtf8(f.view.notices.back().text.armenian), "Ընտրված ֆայլ չկա:");
    EXPECT_TRUE(f.dialog.visible);
}

TEST(Dialog, CancelNeverChangesTheText) {
    DialogFixture f;
    writeBytes(f.docs / "a.txt", "other");
    f.view.Text4 = "result";
    f.view.Text3 = "source";
    for (int mode = 0; mode < 4; ++mode) {
        if (mode == 0) f.dialog.Open1_Click();
        if (mode == 1) f.dialog.Save_Click();
        if (mode == 2) f.dialog.aas_Click();
        if (mode == 3) f.dialog.fnt_Click({"Serif"});
        f.choose("a.txt");
        f.dialog.CancelButton_Click();
        EXPECT_FALSE(f.dialog.visible);
        EXPECT_EQ(f.view.Text4, "result");
        EXPECT_EQ(f.view.Text3, "source");
        EXPECT_EQ(bytesOf(f.docs / "a.txt"), "other");
        EXPECT_FALSE(f.form->checked("aas"));  // a later Open opens again
    }
    EXPECT_EQ(f.form->text4Font().name, std::string(kDefaultFace));
}

// ---- Add to File -------------------------------------------------------------------------------

TEST(Dialog, AddToFileAppendsWithoutASecondMark) {
    DialogFixture f;
    f.view.Text4 = "Ա բ"_ft;
    f.saveAs("log.txt");
    f.view.Text4 = "  a  ";
    f.dialog.aas_Click();
    f.choose("log.txt");
    f.dialog.OKButton_Click();
    // The clipboard text is trimmed of blanks; only "a" is appended, as U+0061.
    EXPECT_EQ(bytesOf(f.docs / "log.txt"),
              std::string(kMark) + std::string(kArmenianUnits) + std::string("a\0", 2));
    EXPECT_FALSE(f.form->checked("aas"));
    EXPECT_TRUE(f.dialog.Utf16Body.empty());
    EXPECT_TRUE(f.desktop.started.empty());  // a .txt doesn't go to the word processor
}

TEST(Dialog, AddToADocOpensTheLastSavedFileInTheWordProcessor) {
    DialogFixture f;
    f.desktop.defaultApplication = true;
    f.view.Text4 = "x";
    f.saveAs("saved.txt");
    writeBytes(f.docs / "letter.doc", std::string(kMark));
    f.dialog.aas_Click();
    f.choose("letter.doc");
    f.dialog.OKButton_Click();
    EXPECT_EQ(bytesOf(f.docs / "letter.doc"), std::string(kMark) + std::string("x\0", 2));
    // The design opens SavePath, the file of the last save, not the one appended to.
    ASSERT_EQ(f.desktop.openedFiles.size(), 1u);
    EXPECT_EQ(f.desktop.openedFiles[0], f.docs / "saved.txt");
}

TEST(Dialog, NoWordProcessorGivesAMessage) {
    DialogFixture f;
    f.view.Text4 = "x";
    writeBytes(f.docs / "letter.doc", std::string(kMark));
    f.dialog.aas_Click();
    f.choose("letter.doc");
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.view.lastNotice(), "No word processor was found on this computer.");
}

// ---- Folders, files and the proposed name ------------------------------------------------------

TEST(Dialog, FileListHoldsNamesWithTxtOrDocInAnyCase) {
    DialogFixture f;
    for (const char* name : {"b.DOC", "a.txt", "notes.txt.bak", "picture.png", "doctor.md"})
        writeBytes(f.docs / name, "x");
    fs::create_directories(f.docs / "more.txt.d");
    EXPECT_EQ(listFiles(f.docs), (std::vector<std::string>{"a.txt", "b.DOC", "doctor.md", "notes.txt.bak"}));
    EXPECT_TRUE(listFiles(f.docs / "missing").empty());
}

TEST(Dialog, ChangeOfFolderProposesTheFirstFiveCharactersOfTheSource) {
    DialogFixture f;
    f.view.Text3 = "a/b:cde";
    f.view.Text4 = "ignored";
    f.dialog.Dir1_Change(f.docs);
    EXPECT_EQ(f.dialog.Text5, (f.docs / "a-b-c.doc").string());
    f.form->engine()->Check1 = 1;
    f.view.Text4 = "Տուն մեծ"_ft;
    f.dialog.Dir1_Change(f.docs);
    EXPECT_EQ(f.dialog.Text5, (f.docs / "Տուն.doc").string());
}

TEST(Dialog, ProposedNameIsTrimmedAndLosesEveryForbiddenCharacter) {
    EXPECT_EQ(proposedFileName("  ab  cd"), "ab");
    EXPECT_EQ(proposedFileName("\\:/*?|><\"x"), "-----");
    EXPECT_EQ(proposedFileName("?|><\""), "-----");
    EXPECT_EQ(proposedFileName(""), "");
    EXPECT_EQ(proposedPath("/", "hello world"), "/hello.doc");
    EXPECT_EQ(proposedPath("/home/u", "hi"), "/home/u/hi.doc");
}

TEST(Dialog, ChosenPathHalvesDoubledSeparatorsAndTurnsBlanksToUnderscores) {
    EXPECT_EQ(chosenPathFrom("//home//my docs/a b.txt"), "/home/my_docs/a_b.txt");
    EXPECT_EQ(chosenPathFrom("/plain/path.txt"), "/plain/path.txt");
}

TEST(Dialog, FileClickShowsItsPathAndDriveChangeMovesTheFolder) {
    DialogFixture f;
    f.dialog.Dir1_Change(f.docs);
    f.dialog.File1_Click("a.txt");
    EXPECT_EQ(f.dialog.ChosenPath, (f.docs / "a.txt").string());
    EXPECT_EQ(f.dialog.Text5, f.dialog.ChosenPath);
    f.dialog.Drive1_Change(f.dir.path());
    EXPECT_EQ(f.dialog.Dir1, f.dir.path());
    f.dialog.Drive1_Change(f.dir / "not-mounted");
    EXPECT_EQ(f.dialog.Dir1, f.dir.path());  // the error is ignored
}

// ---- Fonts -------------------------------------------------------------------------------------

TEST(Dialog, FontsShowTheFamiliesTheResultFontAndRecordEight) {
    DialogFixture f;
    writeSettingsRecord(f.data, kRecordFontStyle, "Italic");
    Text4Font font;
    font.name = "DejaVu Serif";
    font.size = 13.6;
    f.form->setText4Font(font);
    f.dialog.fnt_Click({"DejaVu Sans", "DejaVu Serif"});
    EXPECT_TRUE(f.dialog.fontsShown);
    EXPECT_FALSE(f.dialog.filesShown);
    EXPECT_EQ(f.dialog.List1, (std::vector<std::string>{"DejaVu Sans", "DejaVu Serif"}));
    EXPECT_EQ(f.dialog.Combo1, "14");
    EXPECT_EQ(f.dialog.Text5, "DejaVu Serif");
    EXPECT_EQ(f.dialog.Combo2, "Italic");
    EXPECT_EQ(f.dialog.OKButton, "Font Color");
    EXPECT_EQ(f.dialog.Command1, "Use Default Font");
}

TEST(Dialog, TheDesignFaceIsShownByTheFaceThatStandsInForIt) {
    DialogFixture f;
    f.dialog.defaultFaceShown = "DejaVu Sans";
    f.dialog.fnt_Click({});
    EXPECT_EQ(f.dialog.Text5, "DejaVu Sans");
    EXPECT_EQ(f.form->text4Font().name, "Arial Armenian");
}

TEST(Dialog, FontColorTakesTheChooserResultAndHidesTheSizes) {
    DialogFixture f;
    f.dialog.fnt_Click({});
    f.desktop.colorAnswer = 0x0000FF;
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.form->text4Font().color, 0x0000FF);
    EXPECT_FALSE(f.dialog.visible);
    EXPECT_FALSE(f.dialog.combo1Visible);
    f.dialog.fnt_Click({});
    EXPECT_TRUE(f.dialog.combo1Visible);
    f.desktop.colorAnswer.reset();  // the chooser cancelled
    f.dialog.OKButton_Click();
    EXPECT_EQ(f.form->text4Font().color, 0x0000FF);
}

TEST(Dialog, UseDefaultFontRestoresTheArmenianFaceAndKeepsRecordEight) {
    DialogFixture f;
    Text4Font font;
    font.name = "DejaVu Serif";
    font.size = 20;
    font.bold = font.italic = true;
    f.form->setText4Font(font);
    f.dialog.defaultFaceShown = "DejaVu Sans";
    f.dialog.fnt_Click({});
    f.dialog.Command1_Click();
    EXPECT_EQ(f.form->text4Font().name, "Arial Armenian");
    EXPECT_EQ(f.form->text4Font().size, 10);
    EXPECT_FALSE(f.form->text4Font().bold);
    EXPECT_FALSE(f.form->text4Font().italic);
    EXPECT_EQ(f.dialog.Text5, "DejaVu Sans");
    EXPECT_EQ(f.dialog.Combo2, "Regular");
    EXPECT_EQ(f.dialog.Combo1, "10");
    EXPECT_EQ(f.dialog.Command1, "Apply Changes");
    const auto records = readSettingsRecords(f.data);
    ASSERT_GE(records.size(), 8u);
    EXPECT_EQ(trimBlanks(records[7]), "Regular");
}

TEST(Dialog, ApplyChangesTakesTheChosenFaceSizeAndStyle) {
    DialogFixture f;
    f.dialog.fnt_Click({"DejaVu Serif"});
    f.dialog.List1_Click("DejaVu Serif");
    EXPECT_EQ(f.dialog.Command1, "Apply Changes");
    f.dialog.Combo1_Click("18");
    f.dialog.Combo2_Click("BoldItalic");
    f.dialog.Command1_Click();
    EXPECT_EQ(f.form->text4Font().name, "DejaVu Serif");
    EXPECT_EQ(f.form->text4Font().size, 18);
    EXPECT_TRUE(f.form->text4Font().bold);
    EXPECT_TRUE(f.form->text4Font().italic);
    EXPECT_EQ(f.dialog.Frame1.name, "DejaVu Serif");
    EXPECT_EQ(trimBlanks(readSettingsRecords(f.data)[7]), "BoldItalic");
    // "Regular" changes nothing: the face stays bold and italic.
    f.dialog.Combo2_Click("Regular");
    f.dialog.Command1_Click();
    EXPECT_TRUE(f.form->text4Font().bold);
    EXPECT_TRUE(f.form->text4Font().italic);
    EXPECT_EQ(trimBlanks(readSettingsRecords(f.data)[7]), "Regular");
    f.dialog.Combo2_Click("Italic");
    f.dialog.Command1_Click();
    EXPECT_FALSE(f.form->text4Font().bold);
    EXPECT_TRUE(f.form->text4Font().italic);
}

TEST(Dialog, FontStyleRecordSurvivesTheSettingsWrittenAtExit) {
    DialogFixture f;
    f.dialog.fnt_Click({});
    f.dialog.Combo2_Click("Bold");
    f.dialog.Command1_Click();
    f.form->exit1_Click();
    EXPECT_EQ(trimBlanks(readSettingsRecords(f.data)[7]), "Bold");
}
