// Unknown words of Armenian text: asked about once, kept in the TermsFile and listed, and the pause
// of a run on a word the user adds.
#include <gtest/gtest.h>

#include "analysis/hy_en_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

TEST(UnknownArmenianWords, AskedAboutOnceAndLeftInTheText) {
    HyEnFixture f;
    EXPECT_EQ(f.translate("զբժ տուն զբժ:"), "զբժ house զբժ. ");
    ASSERT_EQ(f.host.questions.size(), 1u);
    EXPECT_EQ(f.host.questions[0].kind, QuestionKind::UnknownWords);
    EXPECT_EQ(f.engine->stats.termsWritten, 1);
    EXPECT_EQ(f.engine->stats.unknownOccurrences, 2);
}

TEST(UnknownArmenianWords, AWordTheAnalysisCannotPlaceIsAskedAboutAsTyped) {
    HyEnFixture f;
    f.host.answers = {kAnswerYes, kAnswerNo};
    f.translate("Զբժից տուն:");
    ASSERT_EQ(f.host.questions.size(), 2u);
    EXPECT_EQ(f.host.questions[1].kind, QuestionKind::AddUnknownWord);
    EXPECT_EQ(toUtf8(f.host.questions[1].subject), "Զբժից");
    EXPECT_EQ(f.host.questions[1].text.english, "No Word '" + fromUtf8("Զբժից") + "' In Dictionary.\r\nShall We Add it Now?");
    // "No": the prefix the analysis wrote stays, and the word stands as it was typed.
    EXPECT_EQ(toUtf8(f.host.result), "From Զբժից house. ");
}

TEST(UnknownArmenianWords, ListedUnderTheNonTranslatedTerms) {
    HyEnFixture f;
    f.host.setChecked(MenuItem::SUT, true);
    EXPECT_EQ(f.translate("զբժ տուն քղփ զբժ:"),
              "զբժ house քղփ զբժ. \r\n***\r\nLIST OF NON-TRANSLATED TERMS\r\nզբժ, քղփ");
    EXPECT_TRUE(f.host.questions.empty());
}

TEST(UnknownArmenianWords, TheRunPausesOnAWordToAddAndTranslatesItAfresh) {
    HyEnFixture f;
    f.host.answers = {kAnswerYes, kAnswerYes};
    f.translate("Նա զբժից է:");
    ASSERT_EQ(f.engine->state, RunState::Waiting);
    EXPECT_EQ(f.host.questions.size(), 2u);  // the analysis asks nothing more once the user said Yes
    EXPECT_EQ(toUtf8(f.host.addWordPanelWord), "զբժից");
    // What the analysis wrote for the word ("from ") is taken back; the word waits whole.
    EXPECT_EQ(f.output(), "He ");
    EXPECT_EQ(toUtf8(f.engine->CurrentWord), "զբժից");

    f.engine->saveWordAndResume(fromUtf8("զբժից"), "zbzh", "n");
    EXPECT_EQ(f.engine->state, RunState::Idle);
    EXPECT_EQ(toUtf8(f.host.result), "He is zbzh. ");
}

TEST(UnknownArmenianWords, InstantTranslationAndSuppressedDialogAskNothing) {
    for (const MenuItem item : {MenuItem::ITR, MenuItem::EF}) {
        HyEnFixture f;
        f.host.setChecked(item, true);
        EXPECT_EQ(f.translate("զբժ տուն"), "զբժ house ");
        EXPECT_TRUE(f.host.questions.empty());
    }
}

TEST(UnknownArmenianWords, ALongTextGoesOnUnattended) {
    HyEnFixture f;
    std::string text;
    while (fromUtf8(text).size() <= 4000) text += "տուն ";
    f.translate(text + "զբժ");
    EXPECT_TRUE(f.host.minimised);
    HyEnFixture g;
    g.translate("տուն զբժ");
    EXPECT_FALSE(g.host.minimised);
}

TEST(UnknownArmenianWords, ALoneAInASpellCheckOffersTheDialectRepair) {
    HyEnFixture f;
    f.engine->SpellMode = 1;
    f.host.answers = {kAnswerYes, kAnswerNo};
    f.translate("ա");
    ASSERT_EQ(f.host.questions.size(), 2u);
    EXPECT_EQ(f.host.questions[0].kind, QuestionKind::CorrectUnknownWord);
    const Question& q = f.host.questions[1];
    EXPECT_EQ(q.kind, QuestionKind::DialectRepair);
    EXPECT_EQ(q.text.english, "Your text contains elements of Yerevan dialect. Shall we correct them?");
    EXPECT_EQ(toUtf8(q.text.armenian), "Տեքստը պարունակում է արարատյան բարբառի տարրեր: Սրբագրե՞լ:");
    EXPECT_EQ(q.title.english, "Warning");
    EXPECT_EQ(q.title.armenian, "Warning");
    // "No" to the repair: the correction of the word follows, and the pass waits for it.
    EXPECT_EQ(f.engine->state, RunState::Waiting);

    HyEnFixture g;  // another unknown word is no dialect
    g.engine->SpellMode = 1;
    g.host.answers = {kAnswerYes};
    g.translate("զբժ");
    EXPECT_EQ(g.host.questions.size(), 1u);
}

}  // namespace
}  // namespace vorlexa::test
