#include "app/word_lookup_panel.h"

#include <gtest/gtest.h>

#include "app/app_fixture.h"

namespace vorlexa::app {
namespace {

// The main window with nothing drawn, whose source box starts a run as a key stroke does.
class QuietView : public WindowlessView {
  public:
    MainForm* form = nullptr;
    void setText3(const FontText& t) override {
        Text3 = t;
        if (form) form->Text3_Change(t);
    }
};

class LookupPanelTest : public ::testing::Test {
  protected:
    void SetUp() override {
        view.form = &form;
        ASSERT_EQ(form.Form_Load(data, {}), StartResult::Started);
    }
    void TearDown() override { form.finish(); }
    test::TempFolder dir;
    std::filesystem::path data = test::buildFixtureData(dir);
    QuietView view;
    MainForm form{view};
};

TEST_F(LookupPanelTest, SourceWordFillsThePanelAndTheToolTip) {
    const DoubleClickResult r = Text3_DblClick(form, "House,");
    EXPECT_EQ(r.toolTip, "Translation for 'house' is '" + fromUtf8("տուն") +
                             "'.\n Available Synonims & homonyms: 'house'");
    EXPECT_FALSE(r.runReplace);
    EXPECT_TRUE(form.panel().visible);
    EXPECT_EQ(form.panel().Text1, "house");
    EXPECT_EQ(form.panel().List1, (std::vector<FontText>{"house"}));
    EXPECT_TRUE(form.panel().Text2.empty());
}

TEST_F(LookupPanelTest, NoResultsPutsTheWordInTheTranslationBox) {
    const DoubleClickResult r = Text3_DblClick(form, "window");
    EXPECT_EQ(r.toolTip, "No Results!!!");
    EXPECT_EQ(form.panel().Text2, "window");
}

TEST_F(LookupPanelTest, SlashInTheResultIsAnAlternativeOfferedForEditingNotALookup) {
    form.panel().Text2 = "old";
    const FontText choice = fromUtf8("երկրորդ/վայրկյան");
    const DoubleClickResult r = Text4_dblclick(form, choice);
    EXPECT_TRUE(r.toolTip.empty());
    EXPECT_TRUE(r.runReplace);
    EXPECT_EQ(form.panel().Text2, choice);
    EXPECT_TRUE(form.panel().List1.empty());
}

TEST_F(LookupPanelTest, ResultWordIsLookedUpAndWithEditTranslationTheReplaceBoxFollows) {
    form.panel().Text2 = "old";
    DoubleClickResult r = Text4_dblclick(form, fromUtf8("տուն"));
    EXPECT_EQ(
        r.toolTip,
        fromUtf8("Translation for 'տուն' is 'house'.\n Available Synonims & homonyms: 'տուն'"));
    EXPECT_FALSE(r.runReplace);
    EXPECT_TRUE(form.panel().Text2.empty());
    form.EdtTr_Click();
    r = Text4_dblclick(form, fromUtf8("տուն"));
    EXPECT_TRUE(r.runReplace);
}

}  // namespace
}  // namespace vorlexa::app
