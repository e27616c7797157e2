// The converter window's logic: a paste converts and goes on to the translator, the guard of
// Label1, Label3, and the positions it opens at.
#include "text_tools/converter_form.h"

#include <gtest/gtest.h>

#include <vector>

using namespace vorlexa;
using namespace vorlexa::text_tools;

namespace {

struct Window {
    ConverterForm form;
    std::vector<FontText> translated;
    std::vector<bool> busy;

    Window() {
        form.translate = [this](const FontText& text) { translated.push_back(text); };
        form.setBusy = [this](bool on) { busy.push_back(on); };
    }
    void paste(const std::u16string& text) {
        form.TextBox1 = text;
        form.textbox1_change();
    }
};

}  // namespace

TEST(ConverterForm, PasteOfUnicodeArmenianConvertsAndTranslates) {
    Window w;
    w.paste(u"Բարև");
    EXPECT_EQ(w.form.TextBox1, (std::u16string{180, 179, 241, 168}));
    EXPECT_EQ(w.form.TextBox1Font, "Arial Armenian");
    ASSERT_EQ(w.translated.size(), 1u);
    EXPECT_EQ(toUtf8(w.translated[0]), "Բարև");
    EXPECT_EQ(w.busy, (std::vector<bool>{true, false}));
}

TEST(ConverterForm, CheckBox1StopsAtTheConversion) {
    Window w;
    w.form.CheckBox1 = true;
    w.paste(u"Բարև");
    EXPECT_EQ(w.form.TextBox1, (std::u16string{180, 179, 241, 168}));
    EXPECT_TRUE(w.translated.empty());
}

TEST(ConverterForm, Label1TurnsTheBoxBackIntoUnicodeAndTheGuardEndsItsOwnChange) {
    Window w;
    w.form.CheckBox1 = true;
    w.paste(u"Բարև");
    w.form.CheckBox1 = false;
    w.form.Label1_Click();
    EXPECT_EQ(w.form.TextBox1, u"Բարև");
    EXPECT_EQ(w.form.TextBox1Font, "sylfaen");
    EXPECT_EQ(w.form.ConverterGuard, 0);
    EXPECT_TRUE(w.translated.empty());  // the change the click caused went nowhere
}

TEST(ConverterForm, Label1OnTextWithoutHighCodesChangesOnlyTheFont) {
    Window w;
    w.form.TextBox1 = u"plain: 1";
    w.form.TextBox1Font = "Arial Armenian";
    w.form.Label1_Click();
    EXPECT_EQ(w.form.TextBox1, u"plain: 1");
    EXPECT_EQ(w.form.TextBox1Font, "sylfaen");
    // The guard is spent: the next paste converts.
    w.paste(u"ա");
    EXPECT_EQ(w.form.TextBox1, (std::u16string{179}));
    EXPECT_EQ(w.translated.size(), 1u);
}

TEST(ConverterForm, GuardSetByHandEndsOneChange) {
    Window w;
    w.form.ConverterGuard = 1;
    w.paste(u"ա");
    EXPECT_EQ(w.form.TextBox1, u"ա");
    EXPECT_EQ(w.form.ConverterGuard, 0);
    EXPECT_TRUE(w.translated.empty());
}

TEST(ConverterForm, Label3ClearsCheckBox1AndHides) {
    Window w;
    w.form.uta_Click();
    w.form.CheckBox1 = true;
    w.form.Label3_Click();
    EXPECT_FALSE(w.form.CheckBox1);
    EXPECT_FALSE(w.form.visible);
}

TEST(ConverterForm, MenuOpensAt2800AndARunAtTheTopWithTheFocusInTheBox) {
    Window w;
    w.form.uta_Click();
    EXPECT_TRUE(w.form.visible);
    EXPECT_EQ(w.form.position, 2800);
    EXPECT_FALSE(w.form.focusOnTextBox1);
    w.form.Label3_Click();
    w.form.openForPaste();
    EXPECT_TRUE(w.form.visible);
    EXPECT_EQ(w.form.position, 0);
    EXPECT_TRUE(w.form.focusOnTextBox1);
}

TEST(ConverterForm, ArmenianFullStopBecomesColonAndTheLigatureSignsTheLigatureCode) {
    Window w;
    w.paste(u"\u0589\u0588\u0587");
    EXPECT_EQ(w.form.TextBox1, (std::u16string{u':', 168, 168}));
    w.form.Label1_Click();
    EXPECT_EQ(w.form.TextBox1, u":\u0587\u0587");
}

TEST(FontTextOfConverted, CharactersTheConverterLeftTravelAsThemselves) {
    std::u16string converted = u"Ж 😀 ";
    converted += static_cast<char16_t>(179);
    EXPECT_EQ(toUtf8(fontTextOfConverted(converted)), "Ж 😀 ա");
}

TEST(FontTextOfConverted, HalfASurrogatePairStandsForNothing) {
    const std::u16string lone{0xD800, u'a'};
    EXPECT_EQ(toUtf8(fontTextOfConverted(lone)),
              "\xEF\xBF\xBD"
              "a");
}
