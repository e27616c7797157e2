// The token scanner: words, delimiters, abbreviations, contractions, the possessive, signs of
// Armenian text, sentence ends, and a run that waits on an unknown word.
#include <gtest/gtest.h>

#include "engine/engine.h"
#include "engine/scanner.h"
#include "engine_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

TEST(Scanner, RoadOfOneSentenceWritesTheGlossesInOrderWithTheFullStop) {
    EngineFixture f(kSmallLexicon);
    const FontText out = foldArmenianCase(ft(f.translate("The house is big.")));
    const auto house = out.find(ft("տուն"));
    const auto big = out.find(ft("մեծ"));
    ASSERT_NE(house, FontText::npos);
    ASSERT_NE(big, FontText::npos);
    EXPECT_LT(house, big);
    EXPECT_EQ(out.substr(big - 1, 1), " ");
    EXPECT_TRUE(out.ends_with(": "));
}

TEST(Scanner, ThreeStoryWritesTheFloorsWordAfterTheNumber) {
    EngineFixture f(kSmallLexicon);
    EXPECT_TRUE(f.translate("3-story house").starts_with("3 հարկանի տուն"));
}

TEST(Scanner, NumberWordBeforeStoryIsLookedUp) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("three-story"), "երեք հարկանի ");
}

TEST(Scanner, UsAndUSWithPointsGiveDifferentForms) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("US army"), "ՄՆ բանակ ");
    EXPECT_EQ(f.translate("U.S. army"), "Մ.Ն. բանակ ");
    EXPECT_EQ(f.translate("u.s. army"), "Մ.Ն. բանակ ");
    EXPECT_EQ(f.translate("U.N. army"), "ՄԱԿ բանակ ");
}

TEST(Scanner, TimesOfDayAreWrittenAtOnce) {
    EngineFixture f(kSmallLexicon);
    EXPECT_TRUE(f.translate("5 p.m.").starts_with("5 կեսօրից հետո"));
    EXPECT_TRUE(f.translate("5 a.m.").starts_with("5 կեսօրից առաջ"));
}

TEST(Scanner, ItsGivesThePronounAndTheCopulaAtTheClauseEnd) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("It's big."), "Դա մեծ է: ");
    EXPECT_EQ(f.translate("That's big."), "Դա մեծ է: ");
}

TEST(Scanner, SentenceEndWritesTheHeldCopulaOnce) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("It's big. Red."), "Դա մեծ է: Կարմիր: ");
}

TEST(Scanner, PossessiveGivesTheGenitiveAndTheNextNounStaysPlain) {
    EngineFixture f(kSmallLexicon);
    EXPECT_TRUE(f.translate("mary's house").starts_with("մերիի տուն"));
    EXPECT_TRUE(f.translate("mary’s house").starts_with("մերիի տուն"));
}

TEST(Scanner, PluralPossessiveTakesTheJoiningLetterAfterAVowel) {
    EngineFixture f(kSmallLexicon);
    EXPECT_TRUE(f.translate("boys' house").starts_with("տղայի տուն"));
}

TEST(Scanner, NoPossessiveAtTheStartOfTheText) {
    EngineFixture f(kSmallLexicon);
    const std::string out = f.translate("x's");
    EXPECT_EQ(out.find("ի"), std::string::npos);
    EXPECT_TRUE(out.starts_with("x'"));
}

TEST(Scanner, DecimalPointKeepsANumberWhole) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("3.5 big"), "3.5 մեծ ");
}

TEST(Scanner, WordLongerThanAKeyGoesToTheEndingAnalysisFromItsTwentyFirstLetter) {
    EngineFixture f(kSmallLexicon);
    // The guard is tested after each character joins the word, the delimiter included.
    const auto analyses = [&](std::size_t letters) {
        f.engine->stats = {};
        f.translate(std::string(letters, 'q'));
        return f.engine->stats.longWordAnalyses;
    };
    EXPECT_EQ(analyses(19), 0);
    EXPECT_EQ(analyses(20), 1);  // at the blank behind it
    EXPECT_EQ(analyses(21), 2);  // at the 21st letter and at the blank
    EXPECT_EQ(analyses(22), 3);
}

TEST(Scanner, IsntWritesTheNegationAndLooksUpTheAffirmative) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("isn't"), "չէ ");
    // The word goes on as "has": its rule keeps the have-kind for the next word and writes
    // nothing, so only the negation stands.
    EXPECT_EQ(f.translate("hasn't"), "չ ");
}

TEST(Scanner, WontBecomesNegatedShall) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("won't sing"), "չպետք երգել ");
}

TEST(Scanner, CouldntGoesToTheModalRuleWithTheNegationPending) {
    EngineFixture f(kSmallLexicon);
    // The word handed on is "could"; its rule reads the rest of the contraction as its "not".
    EXPECT_TRUE(f.translate("couldn't").starts_with("չկարող"));
}

TEST(Scanner, DontMindLooksUpAgainst) {
    EngineFixture f(kSmallLexicon);
    EXPECT_TRUE(f.translate("don't mind").starts_with("դեմ "));
}

TEST(Scanner, DoesntMatterWritesThePresentNegativeCopula) {
    EngineFixture f(kSmallLexicon);
    EXPECT_TRUE(f.translate("doesn't matter").starts_with("կարևոր չէ "));
    EXPECT_TRUE(f.translate("didn't matter").starts_with("կարևոր չէր "));
}

TEST(Scanner, ShortFutureLooksUpTheWordBeforeAndThenShall) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("you'll sing"), "դուք պետք երգել ");
    EXPECT_EQ(f.translate("you’ll sing"), "դուք պետք երգել ");
}

TEST(Scanner, WordInCapitalsComesOutWithACapitalFirstLetterOnly) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("BIG red"), "Մեծ կարմիր ");
    EXPECT_EQ(f.translate("Big RED"), "Մեծ Կարմիր ");
}

TEST(Scanner, AddressesAndArchiveNamesPassThroughUntranslated) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("me@x.com big"), "me@x.com մեծ ");
    EXPECT_EQ(f.translate("big file.zip red"), "մեծ file.zip կարմիր ");
    EXPECT_EQ(f.translate("big old.rar"), "մեծ old.rar ");
}

TEST(Scanner, ArmenianQuestionSignTurnsTheSentenceEndIntoAQuestionMark) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    EXPECT_EQ(f.translate("Ո՞վ է:"), "Who is? ");
}

TEST(Scanner, ArmenianEmphasisSignIsDropped) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    EXPECT_EQ(f.translate("մե՛ծ"), "big ");
}

TEST(Scanner, ArmenianTextSkipsQuestionMarks) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    EXPECT_EQ(f.translate("մեծ? մեծ"), "big big ");
}

TEST(Scanner, LongDashIsWrittenAsAHyphen) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("big — red"), "մեծ - կարմիր ");
}

TEST(Scanner, OpeningGuillemetOfTheLatinCodePageIsWrittenAsTheArmenianOne) {
    EngineFixture f(kSmallLexicon);
    f.engine->Text3_Change(FontText("\xAB") + "big");
    EXPECT_EQ(toUtf8(f.host.result), "«մեծ ");
}

TEST(Scanner, DoubleQuoteEndsAWordInEnglishText) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("\"big\" army"), "\"մեծ\" բանակ ");
}

TEST(Scanner, SomeDelimitersAreDroppedFromTheOutput) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("big_red"), "մեծկարմիր ");
    EXPECT_EQ(f.translate("big–red"), "մեծկարմիր ");
    EXPECT_EQ(f.translate("big`red"), "մեծկարմիր ");
}

TEST(Scanner, DelimitersAreCopiedAsTheyStand) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("(big), [red]; {big}/red"), "(մեծ), [կարմիր]; {մեծ}/կարմիր ");
    EXPECT_EQ(f.translate("big\r\nred"), "մեծ\r\nկարմիր ");
    EXPECT_EQ(f.translate("«big»"), "«մեծ» ");
}

TEST(Scanner, SentenceEndsBecomeTheArmenianFullStop) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("big? red! big."), "մեծ: կարմիր: մեծ: ");
}

TEST(Scanner, FullStopTakesOutTheSignOfAMovedQuestionWord) {
    EngineFixture f(kSmallLexicon);
    f.host.onAsk = [&](const Question&) { f.engine->QuestionMarkPosition = 1; };
    EXPECT_EQ(f.translate("zorb big."), "orb մեծ: ");
    EXPECT_EQ(f.engine->QuestionMarkPosition, 0);
}

TEST(Scanner, ColonWritesTheHeldCopulaAndAPoint) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("It’s: red"), "Դաէ. կարմիր ");
}

TEST(Scanner, UnknownWordStaysInTheTextAsItStands) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("big zorb red"), "մեծ zorb կարմիր ");
}

TEST(Scanner, RunWaitsOnAnUnknownWordWithScanPosOnItsDelimiter) {
    EngineFixture f(kSmallLexicon);
    f.host.answers = {kAnswerYes, kAnswerYes};  // stop at unknown words; add this one
    f.translate("big zorb red.");
    EXPECT_EQ(f.engine->state, RunState::Waiting);
    EXPECT_EQ(f.engine->ScanPos, 9);  // the blank after "zorb"
    EXPECT_EQ(f.host.addWordPanelWord, "zorb");
    EXPECT_EQ(f.engine->AnswerCode, kAnswerYes);
    EXPECT_EQ(toUtf8(f.engine->OutputText), "մեծ ");  // the delimiter waits for the word

    const InsertResult r = f.engine->saveWordAndResume("zorb", ft("զորբ"), "a");
    EXPECT_TRUE(r.error.empty());
    EXPECT_EQ(f.engine->state, RunState::Idle);
    EXPECT_EQ(toUtf8(f.host.result), "մեծ զորբ կարմիր: ");
}

TEST(Scanner, DelimiterAfterAWaitingWordIsWrittenOnceAfterIt) {
    for (const auto& [text, expected] : {std::pair<std::string, std::string>{"big zorb, red", "մեծ զորբ, կարմիր "},
                                         {"big zorb.", "մեծ զորբ: "}}) {
        EngineFixture f(kSmallLexicon);
        f.host.answers = {kAnswerYes, kAnswerYes};
        f.translate(text);
        ASSERT_EQ(f.engine->state, RunState::Waiting) << text;
        f.engine->saveWordAndResume("zorb", ft("զորբ"), "a");
        EXPECT_EQ(toUtf8(f.host.result), expected);
    }
}

TEST(Scanner, ResumedRunWithoutTheWordLeavesItUntranslated) {
    EngineFixture f(kSmallLexicon);
    f.host.answers = {kAnswerYes, kAnswerYes};
    f.translate("big zorb red.");
    ASSERT_EQ(f.engine->state, RunState::Waiting);
    f.engine->resumeRun();  // the word is asked about again and answered No
    EXPECT_EQ(f.engine->state, RunState::Idle);
    EXPECT_EQ(toUtf8(f.host.result), "մեծ zorb կարմիր: ");
}

TEST(Scanner, WordsCountAsTheScannerSeesThem) {
    EXPECT_EQ(countWords(ft("The house, is big.")), 4);
    EXPECT_EQ(countWords(ft("isn't")), 2);
    EXPECT_EQ(countWords(ft("")), 0);
    EXPECT_EQ(countWords(ft("\"big\" 3.5")), 1);
}

TEST(Scanner, DelimiterListsHoldTheTypographicSigns) {
    for (unsigned char c : {font::kLeftSingleQuote, font::kRightSingleQuote, font::kLeftDoubleQuote,
                            font::kRightDoubleQuote, font::kEllipsis, font::kEnDash, font::kCommaSign,
                            font::kOpenGuillemet, font::kCloseGuillemet})
        EXPECT_TRUE(isWordDelimiter(c)) << int(c);
    EXPECT_FALSE(isWordDelimiter('"'));
    EXPECT_TRUE(isRawWordDelimiter('"'));
    EXPECT_FALSE(isWordDelimiter(font::kEscape));
    for (unsigned char d : font::kEscapeDigitCodes) EXPECT_FALSE(isWordDelimiter(d)) << int(d);
    EXPECT_FALSE(isCopiedDelimiter(font::kEnDash));
    EXPECT_FALSE(isCopiedDelimiter('_'));
    EXPECT_TRUE(isCopiedDelimiter('"'));
}

TEST(Scanner, CharactersWithoutAFontCodeComeOutAsTheyWentIn) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("big привет 😀 red"), "մեծ привет 😀 կարմիր ");
}

}  // namespace
}  // namespace vorlexa::test
