#include "app/menu_commands.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "app/desktop_fakes.h"
#include "app/settings_file.h"

using namespace vorlexa;
using namespace vorlexa::app;
using namespace vorlexa::literals;
using vorlexa::test::ShellFixture;

namespace {

namespace fs = std::filesystem;

struct CommandsFixture : ShellFixture {
    Dialog dialog{*form, view, desktop};
    MenuCommands commands{*form, view, desktop, dialog};
};

std::string sourceHelp() {
    std::ifstream in(fs::path(VORLEXA_SOURCE_DATA_DIR) / "help" / "read.txt", std::ios::binary);
    return fromUtf8(std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>()));
}

}  // namespace

// ---- Help --------------------------------------------------------------------------------------

TEST(Help, SectionsAreSplitByTheirMarks) {
    const std::string text = "Armenian one\r\nline null\r\nEnglish\r\nmore\r\nnull0\r\nnote\r\nnull\r\n";
    EXPECT_EQ(armenianHelp(text), "\r\nArmenian one\r\nline ");
    EXPECT_EQ(englishHelp(text), "\r\nEnglish\r\nmore\r\n");
}

TEST(Help, ShippedHelpHoldsBothTextsWithoutTheirMarks) {
    const std::string text = sourceHelp();
    const std::string armenian = toUtf8(armenianHelp(text));
    const std::string english = toUtf8(englishHelp(text));
    EXPECT_TRUE(armenian.starts_with("\r\nԶԵՆԿԱ - Վորլեքսա\r\nՕԳՆՈՒԹՅՈՒՆ")) << armenian.substr(0, 80);
    EXPECT_EQ(english.find("null"), std::string::npos);
    EXPECT_EQ(armenian.find("null"), std::string::npos);
    EXPECT_NE(english.find("Open"), std::string::npos);
    EXPECT_EQ(english.find("ՕԳՆՈՒԹՅՈՒՆ"), std::string::npos);  // the Armenian section is dropped
    EXPECT_GT(english.size(), 1000u);
}

TEST(Help, ArmenianHelpOnAnEmptyResultAsksNothing) {
    CommandsFixture f;
    f.commands.Ha_Click();
    EXPECT_TRUE(f.view.questions.empty());
    EXPECT_EQ(f.view.Text4, "*~*\r\nՕգնություն\r\n"_ft);
    EXPECT_EQ(f.view.selection.start, 0);
}

TEST(Help, EnglishHelpFollowsTheTextKeptOnYes) {
    CommandsFixture f;
    f.view.Text4 = "abc";
    f.view.answers = {kAnswerYes};
    f.form->engine()->OutputText = "abc";
    f.commands.He_Click();
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(toUtf8(f.view.questions[0].title.english), "ATTENTION");
    EXPECT_EQ(toUtf8(f.view.questions[0].text.english),
              "HELP TOPICS will follow the text in right window.\r\nWould you like to keep existing text?");
    EXPECT_EQ(toUtf8(f.view.questions[0].title.armenian), "Ուշադրություն");
    EXPECT_EQ(f.view.Text4, "abc\r\n*~*\r\nHelp text\r\n");
    EXPECT_EQ(f.view.selection.start, 5);  // the caret at the old end
    EXPECT_EQ(f.form->engine()->OutputText, "");
}

TEST(Help, NoDropsTheTextBeforeTheHelp) {
    CommandsFixture f;
    f.view.Text4 = "abc";
    f.commands.He_Click();
    EXPECT_EQ(f.view.Text4, "*~*\r\nHelp text\r\n");
}

// ---- About ------------------------------------------------------------------------------------

TEST(About, CaptionsInBothLanguagesCarryTheBuildVersion) {
    const AboutCaptions en = aboutCaptions(Language::English, "2.3.4");
    EXPECT_EQ(en.caption, "About Product");
    EXPECT_EQ(en.lblVersion, "Version 2.3.4");
    EXPECT_EQ(en.lblTitle, "ZENKA~1.2 (Vorlexa)\nEnglish-Armenian-English\nFull Text Machine Translator");
    const AboutCaptions hy = aboutCaptions(Language::Armenian, "2.3.4");
    EXPECT_EQ(hy.caption, "Ծրագրի մասին");
    EXPECT_EQ(hy.lblVersion, "Տարբերակ 2.3.4");
    EXPECT_FALSE(hy.lblDescription.empty());
    EXPECT_FALSE(hy.lblDisclaimer.empty());
}

// ---- Copy to the word processor ---------------------------------------------------------------

TEST(CopyToWordProcessor, NothingWithoutATranslation) {
    CommandsFixture f;
    f.view.Text4 = "typed";
    f.desktop.clipboard = "kept";
    f.commands.CWD_Click();
    EXPECT_EQ(f.desktop.clipboard, "kept");
    EXPECT_FALSE(f.dialog.visible);
}

TEST(CopyToWordProcessor, ShortTextIsSavedAndTheSavedFileOpened) {
    CommandsFixture f;
    f.desktop.programs = {"libreoffice", "abiword"};
    f.form->engine()->OutputText = "result";
    f.view.Text4 = "result edited";
    f.commands.CWD_Click();
    EXPECT_EQ(f.desktop.clipboardClears, 1);
    EXPECT_EQ(f.desktop.clipboard, "result edited");
    ASSERT_TRUE(f.dialog.visible);
    EXPECT_EQ(f.dialog.OKButton, "Save");
    const fs::path file = f.dir / "copy.doc";
    f.dialog.setText5(file.string());
    f.dialog.OKButton_Click();
    ASSERT_TRUE(fs::exists(file));
    ASSERT_EQ(f.desktop.started.size(), 1u);  // the first word processor found, on the file
    EXPECT_EQ(f.desktop.started[0].program, fs::path("/usr/bin/libreoffice"));
    EXPECT_EQ(f.desktop.started[0].arguments, std::vector<std::string>{file.string()});
}

TEST(CopyToWordProcessor, LongTextGoesByTheClipboardWithTheMessage) {
    CommandsFixture f;
    f.desktop.programs = {"libreoffice"};
    f.form->engine()->OutputText = std::string(kClipboardOnlyLength, 'a');
    f.commands.CWD_Click();
    EXPECT_EQ(f.desktop.clipboard.size(), kClipboardOnlyLength);
    ASSERT_EQ(f.view.notices.size(), 1u);
    EXPECT_EQ(f.view.lastNotice(),
              "Press Ctrl+V when empty 'Word' document is open.\r\nNote: For this case the text encoding is ASCII");
    EXPECT_FALSE(f.dialog.visible);
    ASSERT_EQ(f.desktop.started.size(), 1u);
    EXPECT_EQ(f.desktop.started[0].arguments, std::vector<std::string>{"--writer"});
}

TEST(CopyToWordProcessor, NoneFoundSaysSo) {
    CommandsFixture f;
    f.form->engine()->OutputText = std::string(kClipboardOnlyLength + 1, 'a');
    f.commands.CWD_Click();
    EXPECT_EQ(f.view.lastNotice(), "No word processor was found on this computer. The translation is on the clipboard.");
}

// ---- The sibling dictionary and the Internet menu ---------------------------------------------

TEST(SiblingDictionary, AlreadyOpenIsReported) {
    CommandsFixture f;
    writeSettingsRecord(f.data, kRecordSibling, "Pelorand open");
    f.desktop.programs = {"pelorand"};
    f.commands.HTD_Click();
    EXPECT_EQ(f.view.lastNotice(), "'Pelorand' Dictionary is already active.");
    EXPECT_EQ(toUtf8(f.view.notices.back().text.armenian), "«ՊԵԼՈՐԱՆԴ» բառարանն ակտիվ է:");
    EXPECT_TRUE(f.desktop.started.empty());
}

TEST(SiblingDictionary, StartsByCommandNameOrBesideTheProgram) {
    CommandsFixture f;
    writeSettingsRecord(f.data, kRecordSibling, "Pelorand");
    f.desktop.programs = {"pelorand"};
    f.commands.HTD_Click();
    ASSERT_EQ(f.desktop.started.size(), 1u);
    EXPECT_EQ(f.desktop.started[0].program, fs::path("/usr/bin/pelorand"));

    f.desktop.programs.clear();
    f.commands.programFolder = f.dir / "bin";
    f.dir.write("Pelorand/pelorand", "#!/bin/sh\n");
    fs::create_directories(f.dir / "bin");
    f.commands.HTD_Click();
    ASSERT_EQ(f.desktop.started.size(), 2u);
    EXPECT_EQ(f.desktop.started[1].program, f.dir / "bin" / kSiblingRelativePath);
}

TEST(SiblingDictionary, MissingOffersTheDownloadPage) {
    CommandsFixture f;
    f.view.answers = {kAnswerYes};
    f.commands.HTD_Click();
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(f.desktop.urls, std::vector<std::string>{std::string(kSiblingDownloadPage)});
    f.commands.HTD_Click();  // No this time
    EXPECT_EQ(f.desktop.urls.size(), 1u);
}

TEST(Internet, ProductPageOpensInTheBrowser) {
    CommandsFixture f;
    f.commands.gih_Click();
    EXPECT_EQ(f.desktop.urls, std::vector<std::string>{std::string(kProductPage)});
    EXPECT_TRUE(f.view.notices.empty());
}

TEST(Internet, BrowserFailureIsAMessageNotACrash) {
    CommandsFixture f;
    f.desktop.browserWorks = false;
    f.commands.gih_Click();
    EXPECT_EQ(f.view.lastNotice(), "The browser could not be started.");
    f.commands.muse5_Click();  // no browser found either
    EXPECT_EQ(f.view.notices.size(), 2u);
}

TEST(Internet, HomePageStartsTheFirstBrowserFoundWithoutAnAddress) {
    CommandsFixture f;
    f.desktop.programs = {"firefox", "chromium"};
    f.commands.muse5_Click();
    ASSERT_EQ(f.desktop.started.size(), 1u);
    EXPECT_EQ(f.desktop.started[0].program, fs::path("/usr/bin/firefox"));
    EXPECT_TRUE(f.desktop.started[0].arguments.empty());
}
