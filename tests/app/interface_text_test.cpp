#include "app/interface_text.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace vorlexa;
using namespace vorlexa::app;

TEST(InterfaceText, EveryCaptionHasBothLanguagesInTheOrderTheSwitchSetsThem) {
    const auto table = captionTable();
    ASSERT_EQ(table.size(), 52u);
    EXPECT_EQ(table.front().control, "Form1");
    EXPECT_EQ(table[1].control, "File");
    EXPECT_EQ(table[2].control, "EdtTr");
    EXPECT_EQ(table.back().control, "ETE");
    std::set<std::string_view> seen;
    for (const auto& row : table) {
        EXPECT_TRUE(seen.insert(row.control).second) << row.control;
        EXPECT_FALSE(row.armenian.empty()) << row.control;
    }
    EXPECT_EQ(*captionIn("Form1", Language::English), "ZENKA - Vorlexa");
    EXPECT_EQ(*captionIn("Form1", Language::Armenian), "ԶԵՆԿԱ - Վորլեքսա");
    EXPECT_EQ(*captionIn("TS", Language::Armenian), "Թարգմանել ընտրված հատվածը");
    EXPECT_EQ(*captionIn("ITR", Language::English), "Set Instant Translation");
    EXPECT_EQ(*captionIn("muse5", Language::Armenian), "Միանալ hամացանցին");  // Latin h, as it stands
}

TEST(InterfaceText, EnglishSwitchLeavesTheDialogButtonsItHasNoWordFor) {
    EXPECT_FALSE(captionIn("Dialog.OKButton", Language::English));
    EXPECT_FALSE(captionIn("Dialog.Command1", Language::English));
    EXPECT_EQ(*captionIn("Dialog.OKButton", Language::Armenian), "Շատ լավ");
    EXPECT_EQ(*captionIn("Dialog.CancelButton", Language::English), "Cancel");
}

TEST(InterfaceText, ResourceCaptionsDifferForFourItemsUntilTheFirstSwitch) {
    EXPECT_EQ(resourceCaption("uta"), "Unicod to ANSCII Converter");
    EXPECT_EQ(resourceCaption("SUT"), "List Non-Translated Terms");
    EXPECT_EQ(resourceCaption("ET"), "English Text");
    EXPECT_EQ(resourceCaption("cvtae"), "Translit (ARM-LAT)");
    EXPECT_EQ(*captionIn("SUT", Language::English), "List non-Translated Terms");
    EXPECT_EQ(resourceCaption("TS"), "Translate Selection");
    int differing = 0;
    for (const auto& row : captionTable())
        if (!row.english.empty() && resourceCaption(row.control) != row.english) ++differing;
    EXPECT_EQ(differing, 4);
}

TEST(InterfaceText, MenuTreeHoldsTheShortcutsAndTheItemsThatStartDisabled) {
    const auto shortcut = [](std::string_view name) { return findMenuEntry(name)->shortcut; };
    EXPECT_EQ(shortcut("Open1"), "Ctrl+O");
    EXPECT_EQ(shortcut("Save"), "Ctrl+S");
    EXPECT_EQ(shortcut("aas"), "Ctrl+B");
    EXPECT_EQ(shortcut("HTD"), "F3");
    EXPECT_EQ(shortcut("exit1"), "Ctrl+E");
    EXPECT_EQ(shortcut("TS"), "Ctrl+T");
    EXPECT_EQ(shortcut("EdtTr"), "Ctrl+Y");
    EXPECT_EQ(shortcut("ETE"), "F4");
    EXPECT_EQ(shortcut("TA"), "Ctrl+Z");
    EXPECT_EQ(shortcut("Chat"), "Ctrl+Q");
    EXPECT_EQ(shortcut("Ha"), "F1");
    EXPECT_EQ(shortcut("He"), "F2");
    EXPECT_FALSE(shortcut("EF").empty());

    std::set<std::string_view> disabled;
    std::set<std::string_view> shortcuts;
    for (const auto& e : menuTree()) {
        if (e.startsDisabled) disabled.insert(e.name);
        if (!e.shortcut.empty()) {
            EXPECT_TRUE(shortcuts.insert(e.shortcut).second) << e.shortcut;
        }
        if (!e.parent.empty()) {
            EXPECT_TRUE(findMenuEntry(e.parent)) << e.name;
        }
        const bool topLevel = e.name == "Edit" || e.name == "File" || e.name == "Ilg" ||
                              e.name == "intnt" || e.name == "Help1";
        EXPECT_EQ(e.parent.empty(), topLevel) << e.name;
    }
    EXPECT_EQ(disabled, (std::set<std::string_view>{"Save", "aas", "prnt", "ETE"}));
    EXPECT_EQ(findMenuEntry("SSO")->parent, "splc");
    EXPECT_EQ(findMenuEntry("AUC")->parent, "Amcc");
    EXPECT_EQ(findMenuEntry("Amcc")->parent, "CC");
    // Every item of the tree has a caption, and every caption but the window's own, the picture
    // and the font dialog's belongs to an item of the tree.
    for (const auto& e : menuTree()) EXPECT_FALSE(resourceCaption(e.name).empty()) << e.name;
}

TEST(InterfaceText, ShellQuestionsCarryBothWordings) {
    const Question exit = saveAtExitQuestion();
    EXPECT_EQ(exit.buttons, Buttons::YesNoCancel);
    EXPECT_EQ(toUtf8(exit.text.english),
              "You have a fresh edited text on right window! Would you like to save it?");
    EXPECT_EQ(toUtf8(exit.text.armenian), "Աջ պատուհանին թարմ խմբագրված տեքստ կա: Կկամենայի՞ք պահպանել այն:");
    const Question amn = armenianInterfaceQuestion();
    EXPECT_EQ(amn.buttons, Buttons::YesNo);
    EXPECT_EQ(toUtf8(amn.title.armenian), "Ուշադրություն");
    EXPECT_EQ(toUtf8(amn.text.english), "Հայերեն միջերեսը տեսանելի՞ է:\r\nDo you see Armenian Interface?");
    EXPECT_EQ(toUtf8(alreadyRunningNotice().text.english), "The application is already running!");
    EXPECT_EQ(pictureToolTip(Language::English), "'Ctrl+z' changes input language.");
    EXPECT_EQ(pictureToolTip(Language::Armenian), "'Ctrl+z' փոխում է մուտքագրման լեզուն:");
}
