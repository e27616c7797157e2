// Find and Replace in the result box, in both interface languages, and the panel of the
// spell checker's suggestions.
#include "text_tools/find_replace.h"

#include <gtest/gtest.h>

#include <deque>

namespace vorlexa::test {
namespace {

using namespace literals;
using namespace text_tools;

class FakeBoxView : public FindReplaceView {
  public:
    bool armenianInterface() const override { return armenian; }
    FontText text4() const override { return text; }
    void setText4(const FontText& t) override { text = t; }
    FontText text4SelectedText() const override {
        return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    }
    void selectText4(std::int64_t s, std::int64_t l) override {
        start = s;
        length = l;
    }
    int ask(const Question& q) override {
        questions.push_back(q);
        if (answers.empty()) return kAnswerNo;
        const int a = answers.front();
        answers.pop_front();
        return a;
    }
    void notify(const Notice& n) override { notices.push_back(n); }

    bool armenian = false;
    FontText text;
    std::int64_t start = -1;
    std::int64_t length = -1;
    std::deque<int> answers;
    std::vector<Question> questions;
    std::vector<Notice> notices;
};

struct FindFixture {
    explicit FindFixture(const std::string& text4, bool armenian = false) {
        view.text = fromUtf8(text4);
        view.armenian = armenian;
        state.FindIgnoreCase = mainlyLatin(view.text);
        Fnd_Click(boxes, armenian);
    }
    Command2Action find(const std::string& what) {
        boxes.Text1 = fromUtf8(what);
        return Command2_Click(boxes, state, view);
    }
    SmallBoxes boxes;
    FindState state;
    FakeBoxView view;
};

TEST(Find, FindShowsTheSearchBoxAloneWithItsCaption) {
    FindFixture f("big house");
    EXPECT_TRUE(f.boxes.Text1Visible);
    EXPECT_TRUE(f.boxes.Command2Visible);
    EXPECT_FALSE(f.boxes.Text2Visible);
    EXPECT_EQ(f.boxes.Command2, "Find");
    FindFixture g("մեծ տուն", true);
    EXPECT_EQ(toUtf8(g.boxes.Command2), "Որոնել");
}

TEST(Find, EachClickSelectsTheNextMatchThenAsksToRestart) {
    FindFixture f("a house, a house");
    EXPECT_EQ(f.find(" house "), Command2Action::Found);  // the search text is trimmed
    EXPECT_EQ(f.view.start, 2);
    EXPECT_EQ(f.view.length, 5);
    EXPECT_EQ(f.boxes.Command2, "Find next");
    EXPECT_EQ(f.boxes.Command2Tip, "Doublclick Search Textbox to abort the search.");
    f.find("house");
    EXPECT_EQ(f.view.start, 11);
    f.find("house");
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(f.view.questions[0].text.english, "No matches found! Restart the Search?");
    EXPECT_EQ(toUtf8(f.view.questions[0].text.armenian), "Համընկնում չգտնվեց: Վերսկսե՞լ որոնումը:");
    // No closes the search.
    EXPECT_FALSE(f.boxes.Text1Visible);
    EXPECT_FALSE(f.boxes.Command2Visible);
    EXPECT_EQ(f.state.SearchPos, 1);
}

TEST(Find, YesStartsAgainFromTheBeginning) {
    FindFixture f("house and house");
    f.find("house");
    f.find("house");
    f.view.answers = {kAnswerYes};
    f.find("house");
    EXPECT_EQ(f.view.start, 0);
    EXPECT_EQ(f.state.SearchPos, 1);
}

TEST(Find, TextWithoutAnyMatchEndsTheSearchEvenOnYes) {
    FindFixture f("big house");
    f.view.answers = {kAnswerYes, kAnswerYes};
    f.find("cat");
    EXPECT_EQ(f.view.questions.size(), 1u);
    EXPECT_FALSE(f.boxes.Text1Visible);
}

TEST(Find, ArmenianCapitalsOfTheTextAreFoldedSoTheWordIsTypedSmall) {
    FindFixture f("Տունը մեծ է:", true);
    EXPECT_FALSE(f.state.FindIgnoreCase);
    EXPECT_EQ(f.find("տուն"), Command2Action::Found);
    EXPECT_EQ(f.view.start, 0);
    FindFixture g("Տունը մեծ է:", true);
    g.find("Տուն");
    EXPECT_EQ(g.view.questions.size(), 1u);
    EXPECT_EQ(toUtf8(g.boxes.Command2Tip),
              "Որոնումն ընդհատելու համար երկու անգամ կտտացրեք փնտրվող տեքստի վրա:");
}

TEST(Find, MainlyLatinTextIsSearchedWithoutRegardToCase) {
    FindFixture f("The House is big");
    EXPECT_TRUE(f.state.FindIgnoreCase);
    f.find("HOUSE");
    EXPECT_EQ(f.view.start, 4);
}

TEST(Find, DoubleClickOnTheSearchBoxEndsTheSearch) {
    FindFixture f("big house");
    f.find("house");
    Text1_DblClick(f.boxes, f.state, f.view);
    EXPECT_FALSE(f.boxes.Text1Visible);
    EXPECT_FALSE(f.boxes.Command2Visible);
    EXPECT_TRUE(f.boxes.Text1.empty());
    EXPECT_EQ(f.state.SearchPos, 0);
    EXPECT_EQ(f.view.start, 0);
    EXPECT_EQ(f.view.length, 0);
}

TEST(Find, DoubleClickBeforeAnyMatchChangesNothing) {
    FindFixture f("big house");
    f.boxes.Text1 = "house";
    Text1_DblClick(f.boxes, f.state, f.view);
    EXPECT_TRUE(f.boxes.Text1Visible);
    EXPECT_EQ(f.boxes.Text1, "house");
}

TEST(Find, EmptySearchBoxDoesNothing) {
    FindFixture f("big house");
    EXPECT_EQ(f.find(""), Command2Action::Nothing);
    EXPECT_TRUE(f.view.questions.empty());
}

struct ReplaceFixture {
    ReplaceFixture(const std::string& text4, bool armenian) {
        view.text = fromUtf8(text4);
        view.armenian = armenian;
        Replacce_click(boxes, view.text, {}, {}, false, armenian);
    }
    Command2Action replace(const std::string& what, const std::string& with) {
        boxes.Text1 = fromUtf8(what);
        boxes.Text2 = fromUtf8(with);
        return Command2_Click(boxes, state, view);
    }
    SmallBoxes boxes;
    FindState state;
    FakeBoxView view;
};

TEST(Replace, EnglishAlwaysGoesOnAfterTheFirstReplacement) {
    ReplaceFixture f("a cat and a cat and a cat", false);
    EXPECT_EQ(f.boxes.Command2, "Replace -\nWith - ");
    f.view.answers = {kAnswerNo};  // the English box has OK alone; whatever comes back, it goes on
    EXPECT_EQ(f.replace("cat", "dog"), Command2Action::Replaced);
    EXPECT_EQ(toUtf8(f.view.text), "a dog and a dog and a dog");
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(f.view.questions[0].buttons, Buttons::Ok);
    EXPECT_EQ(f.view.questions[0].text.english,
              "1 Replacement done.\r\nShall we continue with the same replacement in the rest of "
              "the text?");
    ASSERT_EQ(f.view.notices.size(), 1u);
    EXPECT_EQ(f.view.notices[0].text.english, "3 Replacements done.");
    EXPECT_EQ(f.state.ReplacementCount, 3);
    EXPECT_FALSE(f.boxes.Text1Visible);
    EXPECT_FALSE(f.boxes.Command2Visible);
    EXPECT_EQ(f.state.SearchPos, 0);
}

TEST(Replace, ArmenianNoLeavesTheRestOfTheText) {
    ReplaceFixture f("տուն և տուն և տուն", true);
    EXPECT_EQ(toUtf8(f.boxes.Command2), "Փոխել\nսրանով");
    f.view.answers = {kAnswerNo};
    f.replace("տուն", "տնակ");
    EXPECT_EQ(toUtf8(f.view.text), "տնակ և տուն և տուն");
    ASSERT_EQ(f.view.questions.size(), 1u);
    EXPECT_EQ(f.view.questions[0].buttons, Buttons::YesNo);
    EXPECT_EQ(toUtf8(f.view.questions[0].text.armenian),
              "Կատարվեց 1 փոփոխություն:\r\nՇարունակե՞նք անել այս փոփոխությունը տեքստի մնացած "
              "հատվածում: ");
    ASSERT_EQ(f.view.notices.size(), 1u);
    EXPECT_EQ(toUtf8(f.view.notices[0].text.armenian), "Կատարվեց 1 փոփոխություն:");
}

TEST(Replace, ArmenianYesReplacesEveryOccurrence) {
    ReplaceFixture f("տուն և տուն", true);
    f.view.answers = {kAnswerYes};
    f.replace("տուն", "տնակ");
    EXPECT_EQ(toUtf8(f.view.text), "տնակ և տնակ");
    EXPECT_EQ(toUtf8(f.view.notices[0].text.armenian), "Կատարվեց 2 փոփոխություն:");
}

TEST(Replace, ReplacementIsPlainWithNoWordBoundary) {
    ReplaceFixture f("cat catalogue", false);
    f.replace("cat", "dog");
    EXPECT_EQ(toUtf8(f.view.text), "dog dogalogue");
}

TEST(Replace, NothingToReplaceSaysSoInBothLanguages) {
    ReplaceFixture f("big house", false);
    f.replace("cat", "dog");
    ASSERT_EQ(f.view.notices.size(), 1u);
    EXPECT_EQ(f.view.notices[0].text.english, "No Replacements - done!");
    EXPECT_EQ(toUtf8(f.view.notices[0].text.armenian), "Փոփոխություն չկա:");
    EXPECT_EQ(toUtf8(f.view.text), "big house");
}

TEST(Replace, InAPassTheCountIsNotAnnounced) {
    ReplaceFixture f("a cat", false);
    f.state.inPass = true;
    f.replace("cat", "dog");
    EXPECT_TRUE(f.view.notices.empty());
}

TEST(Replace, SaveCaptionGoesToTheAddWordPanel) {
    SmallBoxes b;
    b.Text1 = "zorb";
    b.Command2 = "Հիշել"_ft;
    FindState s;
    FakeBoxView v;
    EXPECT_EQ(Command2_Click(b, s, v), Command2Action::Save);
    b.Command2 = "Save";
    EXPECT_EQ(Command2_Click(b, s, v), Command2Action::Save);
}

TEST(ReplaceBoxes, SelectionOfTheResultGoesIntoTheSearchBoxTrimmed) {
    SmallBoxes b;
    Replacce_click(b, "big house", " house ", {}, false, false);
    EXPECT_EQ(b.Text1, "house");
    EXPECT_TRUE(b.Text1Visible);
    EXPECT_TRUE(b.Command2Visible);
}

TEST(ReplaceBoxes, EmptyResultBoxShowsNoSearchBox) {
    SmallBoxes b;
    Replacce_click(b, "", "", {}, false, false);
    EXPECT_FALSE(b.Text1Visible);
}

TEST(ReplaceBoxes, OneSuggestionGoesStraightIntoTheReplacement) {
    SmallBoxes b;
    b.List1 = {fromUtf8("գիրք")};
    Replacce_click(b, fromUtf8("քիրք"), {}, fromUtf8("քիրք"), false, true);
    EXPECT_FALSE(b.List1Visible);
    EXPECT_TRUE(b.Text2Visible);
    EXPECT_EQ(toUtf8(b.Text2), "գիրք");
}

TEST(ReplaceBoxes, InAPassOneSuggestionKeepsTheReplacementRebuiltWithItsEnding) {
    SmallBoxes b;
    b.List1 = {fromUtf8("քաղաք")};
    b.Text2 = fromUtf8("քաղաքներից");
    Replacce_click(b, fromUtf8("քախաքներից"), {}, fromUtf8("քախաքներից"), true, true);
    EXPECT_EQ(toUtf8(b.Text2), "քաղաքներից");
    // Without an ending put back, the suggestion replaces the misspelling shown.
    SmallBoxes c;
    c.List1 = {fromUtf8("գիրք")};
    c.Text2 = fromUtf8("քիրք");
    Replacce_click(c, fromUtf8("քիրք"), {}, fromUtf8("քիրք"), true, true);
    EXPECT_EQ(toUtf8(c.Text2), "գիրք");
}

TEST(ReplaceBoxes, NoSuggestionShowsTheWordForTheUserToType) {
    SmallBoxes b;
    Replacce_click(b, fromUtf8("քիրք"), {}, fromUtf8("քիրք"), true, false);
    EXPECT_TRUE(b.Text2Visible);
    EXPECT_EQ(toUtf8(b.Text2), "քիրք");
}

TEST(ReplaceBoxes, SeveralSuggestionsShowTheListAndWaitForAChoice) {
    SmallBoxes b;
    b.List1 = {fromUtf8("գետ"), fromUtf8("գեր")};
    Replacce_click(b, fromUtf8("գեզ"), {}, fromUtf8("գեզ"), true, false);
    EXPECT_TRUE(b.List1Visible);
    EXPECT_FALSE(b.Text2Visible);
    EXPECT_FALSE(b.Command2Enabled);
    List1_Click(b, 1);
    EXPECT_EQ(toUtf8(b.Text2), "գեր");
    EXPECT_FALSE(b.List1Visible);
    EXPECT_TRUE(b.Text2Visible);
    EXPECT_TRUE(b.Command2Enabled);
}

TEST(ReplaceBoxes, MainlyLatinCountsLetters) {
    EXPECT_TRUE(mainlyLatin(fromUtf8("house տուն")));
    EXPECT_FALSE(mainlyLatin(fromUtf8("big տուն")));
    EXPECT_FALSE(mainlyLatin(""));
}

}  // namespace
}  // namespace vorlexa::test
