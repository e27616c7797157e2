// Words no record matched: the questions, the TermsFile of the run, the word left in the text.
#include <gtest/gtest.h>

#include "engine/engine.h"
#include "engine_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

TEST(UnknownWords, FirstUnknownWordAsksOnceAndNoLeavesEveryWordInTheText) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("zorb big qux zorb"), "zorb մեծ qux zorb ");
    ASSERT_EQ(f.host.questions.size(), 1u);
    const Question& q = f.host.questions[0];
    EXPECT_EQ(q.kind, QuestionKind::UnknownWords);
    EXPECT_EQ(q.title.english, "Dictionary editing note");
    EXPECT_EQ(q.text.english,
              "TRANSLATION CONTAINS UNKNOWN WORDS!\n\rWOULD YOU LIKE TO ADD THEM TO DICTIONARIES?\n\r\n\r"
              "('YES' - Program will stop by all unknown words,\n\r 'NO' - will leave them not translated.)");
    EXPECT_TRUE(q.text.armenian.starts_with("Թարգմանությունը պարունակում է անհայտ բառեր`"_ft));
    EXPECT_EQ(f.engine->stats.termsWritten, 2);
    EXPECT_EQ(f.engine->stats.unknownOccurrences, 3);
}

TEST(UnknownWords, ResultSoFarIsShownWhenTheFirstQuestionIsAsked) {
    EngineFixture f(kSmallLexicon);
    FontText shown;
    f.host.onAsk = [&](const Question&) { shown = f.host.result; };
    f.translate("big red zorb");
    EXPECT_EQ(toUtf8(shown), "մեծ կարմիր ");
}

TEST(UnknownWords, UnknownWordMetTwicePromptsOnce) {
    EngineFixture f(kSmallLexicon);
    f.host.answers = {kAnswerYes, kAnswerNo};  // stop at unknown words; not this one
    EXPECT_EQ(f.translate("zorb big zorb."), "zorb մեծ zorb: ");
    ASSERT_EQ(f.host.questions.size(), 2u);
    EXPECT_EQ(f.host.questions[1].kind, QuestionKind::AddUnknownWord);
    EXPECT_EQ(f.host.questions[1].text.english, "No Word 'zorb' In Dictionary.\r\nShall We Add it Now?");
    EXPECT_EQ(f.host.questions[1].title.english, "Attention !!!");
    EXPECT_EQ(toUtf8(f.host.questions[1].text.armenian), "«zorb» բառը բառարանում չկա:\r\nԱվելացնե՞լ");
}

TEST(UnknownWords, EachNewUnknownWordIsAskedAboutAfterAYes) {
    EngineFixture f(kSmallLexicon);
    f.host.answers = {kAnswerYes, kAnswerNo, kAnswerNo};
    f.translate("zorb qux zorb");
    ASSERT_EQ(f.host.questions.size(), 3u);
    EXPECT_EQ(f.host.questions[2].subject, "qux");
}

TEST(UnknownWords, SuppressedDialogAsksNothing) {
    for (const MenuItem item : {MenuItem::EF, MenuItem::SUT, MenuItem::ITR}) {
        EngineFixture f(kSmallLexicon);
        f.host.setChecked(item, true);
        f.translate("zorb big");
        EXPECT_TRUE(f.host.questions.empty());
        EXPECT_TRUE(f.host.result.starts_with("zorb "));
    }
}

TEST(UnknownWords, RefusalOnALongTextMinimisesTheWindow) {
    EngineFixture f(kSmallLexicon);
    std::string text;
    while (text.size() <= 4000) text += "big red ";
    f.translate(text + "zorb");
    EXPECT_TRUE(f.host.minimised);

    EngineFixture g(kSmallLexicon);
    g.translate("big zorb");
    EXPECT_FALSE(g.host.minimised);
}

TEST(UnknownWords, SpellModeAsksToCorrectEachWord) {
    EngineFixture f(kSmallLexicon);
    f.engine->SpellMode = 1;
    f.translate("zorb");
    ASSERT_EQ(f.host.questions.size(), 1u);
    EXPECT_EQ(f.host.questions[0].kind, QuestionKind::CorrectUnknownWord);
    EXPECT_EQ(f.host.questions[0].text.english, "Word 'zorb' - not recognised!\r\nTo be corrected?");
    EXPECT_EQ(f.host.questions[0].title.english, "Spellchecker");
}

TEST(UnknownWords, NewTermLosesThePendingEndings) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.Text3_Change("big");
    e.CurrentWord = "zorb";
    e.RawWord = "zorb";
    e.PendingEnding = "ից"_ft;
    e.ArticleEnding = "ը"_ft;
    e.OutputText.clear();
    e.teqst_dblclick();
    EXPECT_EQ(e.OutputText, "zorb");
    EXPECT_TRUE(e.PendingEnding.empty());
    EXPECT_TRUE(e.ArticleEnding.empty());
}

TEST(UnknownWords, RepeatedTermTakesItsEndingsOnce) {
    EngineFixture f(kSmallLexicon);
    // The first "zorb" is a new term and loses the ending; the second is written as it stands with
    // the ablative "ից" of "from", once.
    EXPECT_EQ(f.translate("from zorb big. from zorb."), "zorb մեծ: zorbից: ");
}

TEST(UnknownWords, ListOfUnknownTermsIsAppendedWhenAsked) {
    EngineFixture f(kSmallLexicon);
    f.host.setChecked(MenuItem::SUT, true);
    EXPECT_EQ(f.translate("zorb big qux zorb."), "zorb մեծ qux zorb: \r\n***\r\nLIST OF NON-TRANSLATED TERMS\r\nzorb, qux");
    EXPECT_FALSE(f.host.isChecked(MenuItem::SUT));

    EngineFixture g(kSmallLexicon);
    g.host.setChecked(MenuItem::SUT, true);
    EXPECT_EQ(g.translate("big"), "մեծ ");
}

}  // namespace
}  // namespace vorlexa::test
