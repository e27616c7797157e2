// The commands of the Translit and Case Change menus over the selection of the result box: the
// frame they share, and that nothing outside the selection changes.
#include "text_tools/result_box_tools.h"

#include <gtest/gtest.h>

#include "text_tools/case_change.h"

using namespace vorlexa;
using namespace vorlexa::text_tools;

namespace {

// A result box: the whole text and a selection of it, in font positions.
class Box : public SelectionBox {
public:
    Box(const char* utf8, std::size_t start, std::size_t length)
        : text(fromUtf8(utf8)), start(start), length(length) {}

    FontText selectedText() const override { return text.substr(start, length); }
    void replaceSelection(const FontText& put) override {
        text.replace(start, length, put);
        length = put.size();
        ++replacements;
    }
    std::string utf8() const { return toUtf8(text); }

    FontText text;
    std::size_t start;
    std::size_t length;
    int replacements = 0;
};

// Font positions of a UTF-8 prefix.
std::size_t at(const char* utf8) {
    return fromUtf8(utf8).size();
}

struct Fixture {
    NullHost host;
    FontText OutputText;
};

}  // namespace

TEST(ResultBoxTools, TransliterationChangesOnlyTheSelection) {
    Fixture f;
    Box box("Բարև Երևան", at("Բարև "), at("Երևան"));
    ResultBoxTools tools(f.host, box, f.OutputText);
    tools.cvtae_Click();
    EXPECT_EQ(box.utf8(), "Բարև Erevan");
    EXPECT_EQ(toUtf8(box.selectedText()), "Erevan");  // the new text stays selected
    EXPECT_EQ(toUtf8(f.OutputText), "Erevan");        // the last converted selection
}

TEST(ResultBoxTools, FrameUnchecksInstantTranslationAndEndsWithArrowAndFullBar) {
    Fixture f;
    f.host.setChecked(MenuItem::ITR, true);
    Box box("tea ", 0, 4);
    ResultBoxTools tools(f.host, box, f.OutputText);
    tools.ET_Click();
    EXPECT_EQ(box.utf8(), "թի ");
    EXPECT_FALSE(f.host.isChecked(MenuItem::ITR));
    EXPECT_FALSE(f.host.busy);
    EXPECT_EQ(f.host.progress, 100);
}

TEST(ResultBoxTools, EmptySelectionLeavesTheTextAndReturnsThePointer) {
    Fixture f;
    Box box("barev", 2, 0);
    ResultBoxTools tools(f.host, box, f.OutputText);
    tools.LLAT_Click();
    tools.cvtae_Click();
    tools.AUC_Click();
    EXPECT_EQ(box.utf8(), "barev");
    EXPECT_EQ(box.length, 0u);
    EXPECT_EQ(box.replacements, 0);
    EXPECT_FALSE(f.host.busy);
    EXPECT_EQ(f.host.progress, 100);
}

TEST(ResultBoxTools, LatinLetteredArmenianAsksAboutSpellingWhenNoPassIsWired) {
    Fixture f;
    Box box("barev dzez", 0, at("barev"));
    ResultBoxTools tools(f.host, box, f.OutputText);
    tools.LLAT_Click();
    EXPECT_EQ(box.utf8(), "բարև dzez");
    ASSERT_EQ(f.host.questions.size(), 1u);
    EXPECT_EQ(f.host.questions[0].text.english, "Would you like to check spelling?");
    EXPECT_EQ(toUtf8(f.host.questions[0].text.armenian), "Կկամենայի՞ք կատարել սխալների ուղղում:");
    EXPECT_EQ(f.host.questions[0].title.english, "Attention");
    EXPECT_EQ(toUtf8(f.host.questions[0].title.armenian), "Ուշադրություն");
    EXPECT_EQ(f.host.questions[0].buttons, Buttons::YesNo);
}

TEST(ResultBoxTools, LatinLetteredArmenianHandsOverToTheSpellCheckPassAfterTheText) {
    Fixture f;
    Box box("barev", 0, at("barev"));
    ResultBoxTools tools(f.host, box, f.OutputText);
    std::string seen;
    tools.CorrectorWorning = [&] { seen = box.utf8(); };
    tools.LLAT_Click();
    EXPECT_EQ(seen, "բարև");
    EXPECT_TRUE(f.host.questions.empty());
}

TEST(ResultBoxTools, OtherTransliterationsAskNothing) {
    Fixture f;
    Box box("cat", 0, 3);
    ResultBoxTools tools(f.host, box, f.OutputText);
    tools.ET_Click();
    tools.cvtae_Click();
    EXPECT_TRUE(f.host.questions.empty());
}

TEST(ResultBoxTools, CaseCommandsSetTheModeAndChangeOnlyTheSelection) {
    Fixture f;
    Box box("Երևան abc Երևան", 0, at("Երևան abc"));
    ResultBoxTools tools(f.host, box, f.OutputText);
    f.host.setChecked(MenuItem::ITR, true);
    tools.AUC_Click();
    EXPECT_EQ(tools.CaseMode, kArmenianUpper);
    EXPECT_EQ(box.utf8(), "ԵՐԵՎԱՆ abc Երևան");
    EXPECT_EQ(toUtf8(tools.WorkText), "ԵՐԵՎԱՆ abc");
    EXPECT_FALSE(f.host.isChecked(MenuItem::ITR));
    tools.EUC_Click();
    EXPECT_EQ(tools.CaseMode, kEnglishUpper);
    EXPECT_EQ(box.utf8(), "ԵՐԵՎԱՆ ABC Երևան");
    tools.ALC_Click();
    EXPECT_EQ(box.utf8(), "երեվան ABC Երևան");
    tools.ELC_Click();
    EXPECT_EQ(tools.CaseMode, kEnglishLower);
    EXPECT_EQ(box.utf8(), "երեվան abc Երևան");
}

TEST(ResultBoxTools, SelectionOfAMegabyteIsConvertedWhole) {
    constexpr std::size_t kRepeats = 1 << 18;  // four bytes each: a megabyte of font text
    Fixture f;
    Box box("", 0, 0);
    for (std::size_t i = 0; i < kRepeats; ++i) box.text += fromUtf8(" ու ");
    box.length = box.text.size();
    ResultBoxTools tools(f.host, box, f.OutputText);
    tools.cvtae_Click();
    std::string expected;
    for (std::size_t i = 0; i < kRepeats; ++i) expected += " u ";
    EXPECT_EQ(box.utf8(), expected);
}
