// Steps A to F and T of the English-to-Armenian look-up, and pokr, pokr2, derocz: each step on
// the state a rule or the scanner leaves, over the fixture lexicon of the golden sentences.
#include <gtest/gtest.h>

#include "emission_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

class EmissionSteps : public ::testing::Test {
protected:
    EmissionFixture fx;
    Engine& e = *fx.engine;
};

// ---- A. Match ----------------------------------------------------------------------------

TEST_F(EmissionSteps, MatchTheWordItself) {
    EXPECT_EQ(fx.lookUp("big"), "մեծ");
}

TEST_F(EmissionSteps, MakingFindsMakeThroughTheLostE) {
    // The ending analysis leaves "mak" and the participle mark of "-ing".
    e.VerbFormMark = font("ող");
    fx.lookUp("mak", "making ", 7);
    EXPECT_EQ(e.DictRecord.key(), "make");
    EXPECT_EQ(utf8(e.OutputText), "սարքող");
}

TEST_F(EmissionSteps, TheLostEIsNotTriedUnderOtherMarks) {
    e.VerbFormMark = font("ելով");
    e.RawWord = "mak";
    EXPECT_EQ(fx.lookUp("mak").find("սարք"), std::string::npos);
}

TEST_F(EmissionSteps, HousesFindsHouseAndTakesThePlural) {
    // The ending analysis has put "ներ" in front of the ending: "houses" is "house" + plural.
    e.PendingEnding = font("ներ");
    fx.lookUp("houses");
    EXPECT_EQ(e.DictRecord.key(), "house");
    EXPECT_EQ(utf8(e.PendingEnding), "եր");  // one syllable: "եր"
    EXPECT_EQ(utf8(e.OutputText), "տն");      // the vowel fall of "n_02"
    EXPECT_EQ(utf8(e.ArticleEnding), "ը");
}

TEST_F(EmissionSteps, ThePluralOfHouseIsWrittenByTheScanner) {
    e.PendingEnding = font("ներ");
    EXPECT_EQ(fx.scanFrom("house is big."), "տները մեծ է:");
}

TEST_F(EmissionSteps, TheDefiniteArticleAsTheRuleOfTheLeavesIt) {
    // "The house is big.": the article rule leaves ArticleEnding "ը", a broken noun chain and
    // the capital of "The", and the scanner goes on at "house".
    e.ArticleEnding = font("ը");
    e.ClassChain = " ";
    e.CapitalFlag = 1;
    EXPECT_EQ(fx.scanFrom("house is big."), "Տունը մեծ է:");
}

TEST_F(EmissionSteps, GetFallsBackToTheRestOfThePhrase) {
    e.WordTail = "";
    EXPECT_EQ(fx.lookUp("get big", "get big "), "մեծ");
}

// ---- B. Question opening -------------------------------------------------------------------

TEST_F(EmissionSteps, ACopulaAtASentenceStartOpensAQuestion) {
    fx.lookUp("is");
    EXPECT_EQ(utf8(e.OutputText), "Արդյո՞ք ");
    EXPECT_EQ(e.QuestionAsked, 1);
    EXPECT_EQ(utf8(e.PendingCopula), "է");
}

TEST_F(EmissionSteps, TheQuestionOpensAfterAFullStopAndALineBreak) {
    e.OutputText = font("Տունը մեծ է: ");
    EXPECT_EQ(fx.lookUp("are"), "Տունը մեծ է: Արդյո՞ք ");
    fx.fresh();
    fx.engine->OutputText = "\r\n";
    EXPECT_EQ(fx.lookUp("shall"), "\r\nԱրդյո՞ք պիտի");
}

TEST_F(EmissionSteps, NoQuestionMidSentenceOrUnderTheImperative) {
    e.OutputText = font("Տունը ");
    EXPECT_EQ(fx.lookUp("is"), "Տունը ");
    Engine& f = fx.fresh();
    f.ImperativeFlag = 1;
    EXPECT_EQ(fx.lookUp("is"), "");
    EXPECT_TRUE(f.QuestionAsked.empty());
}

// ---- C. Record history ---------------------------------------------------------------------

TEST_F(EmissionSteps, TheLastTwoWordsEndingInNAreRemembered) {
    fx.lookUp("house");
    fx.lookUp("big");
    fx.lookUp("table");
    EXPECT_EQ(e.NounEndingSeen, "01");
}

TEST_F(EmissionSteps, AGlossEndingInACaseEndingIsRemembered) {
    fx.lookUp("sea");
    EXPECT_EQ(utf8(e.GlossEnding), "ով");
    fx.lookUp("husband");
    EXPECT_EQ(utf8(e.GlossEnding), "ին");
    EXPECT_EQ(e.WordPartFlag, 1);
}

TEST_F(EmissionSteps, ANounAfterAGenitiveInAnIsReadAsAnAdjective) {
    e.OutputText = font("Հայաստան");
    fx.lookUp("city");
    EXPECT_EQ(e.WordTag, "a    ");
    EXPECT_TRUE(e.ArticleEnding.empty());
}

// ---- D. Tag rewriting ----------------------------------------------------------------------

TEST_F(EmissionSteps, ATransitiveVerbMakesTheNextNounAnObject) {
    fx.lookUp("read");
    EXPECT_EQ(e.PendingPlural, 1);
}

TEST_F(EmissionSteps, AVerbNounAfterAPossessiveIsANoun) {
    e.AfterHaveBeen = 1;
    EXPECT_EQ(fx.lookUp("walk"), "քայլել");
    EXPECT_EQ(e.WordTag, "n    ");
    EXPECT_TRUE(e.AfterHaveBeen.empty());
}

TEST_F(EmissionSteps, ANounWithTheEndingOuTakesEl) {
    e.PendingEnding = font("ու");
    EXPECT_EQ(fx.lookUp("song"), "երգել");
}

TEST_F(EmissionSteps, AVerbNounWithAnEndingIsADeclinedInfinitive) {
    e.PendingEnding = font("ի մեջ");
    EXPECT_EQ(fx.lookUp("visit"), "այցելել");
    EXPECT_EQ(e.WordTag, "n    ");
    EXPECT_EQ(utf8(e.PendingEnding), "ու մեջ");
}

TEST_F(EmissionSteps, AVerbNounStaysAVerbAfterAPluralSubject) {
    e.PendingEnding = font("ի մեջ");
    e.PersonCode = 4;
    fx.lookUp("visit");
    EXPECT_EQ(e.WordTag[0], 'v');
}

TEST_F(EmissionSteps, AQuantityWordBeforeMakesAVerbNounANoun) {
    e.DefiniteState = -1;
    fx.lookUp("walk");
    EXPECT_EQ(e.WordTag, "n    ");
}

// ---- E. Definite ending --------------------------------------------------------------------

TEST_F(EmissionSteps, APlainNounIsDefinite) {
    fx.lookUp("house");
    EXPECT_EQ(utf8(e.ArticleEnding), "ը");
    EXPECT_EQ(e.PersonCode, 5);
    EXPECT_EQ(e.DefiniteState, 0);
}

TEST_F(EmissionSteps, AnIndefiniteNounTakesNoArticle) {
    e.IndefiniteFlag = 1;
    fx.lookUp("house");
    EXPECT_TRUE(e.ArticleEnding.empty());
    EXPECT_TRUE(e.IndefiniteFlag.empty());
}

TEST_F(EmissionSteps, ANounWithACaseEndingTakesNoArticle) {
    e.PendingEnding = font("ից");
    fx.lookUp("house");
    EXPECT_TRUE(e.ArticleEnding.empty());
}

TEST_F(EmissionSteps, AfterALinkWordTheNounStandsInTheThirdPerson) {
    e.LinkFlag = 1;
    fx.lookUp("house");
    EXPECT_EQ(e.ThirdPersonFlag, 1);
}

TEST_F(EmissionSteps, ACommaAtALineEndAddressesSomeone) {
    fx.lookUp("john", "john,\r\nsing. ", 5);
    EXPECT_EQ(e.ImperativeFlag, 1);
    EXPECT_TRUE(e.ArticleEnding.empty());
}

// ---- F. Class trail ------------------------------------------------------------------------

TEST_F(EmissionSteps, TheClassTrailKeepsARunOfOneClass) {
    fx.lookUp("city");
    EXPECT_EQ(e.ClassChain, "n");
    fx.lookUp("library");
    EXPECT_EQ(e.SentenceClasses, "nn");
    fx.lookUp("big");
    EXPECT_EQ(e.ClassChain, "a");
    EXPECT_EQ(e.SentenceClasses, "nna");
}

TEST_F(EmissionSteps, AComparativeCountsAsTwoAdjectives) {
    fx.lookUp("bigger");
    EXPECT_EQ(e.SentenceClasses, "aa");
}

TEST_F(EmissionSteps, AVerbFormOrAGenitiveMarksTheClassV) {
    e.GenitiveMark = 1;
    e.PendingEnding = font("ի");
    fx.lookUp("john");
    EXPECT_EQ(e.ClassChain, "v");
    EXPECT_EQ(e.SentenceClasses, "v");
}

TEST_F(EmissionSteps, PendingInsertTextBreaksTheChainAndAPhraseWritesNoGloss) {
    e.InsertText = font("սառը");
    fx.lookUp("house");
    EXPECT_TRUE(e.ClassChain.empty());
    Engine& f = fx.fresh();
    f.PhraseActive = 1;
    EXPECT_EQ(fx.lookUp("big"), "");
}

// ---- T. Emission, and the helpers -------------------------------------------------------

TEST_F(EmissionSteps, VerbFixesAreNotTriedOnNouns) {
    EXPECT_EQ(fx.lookUp("library"), "գրադարան");
}

TEST_F(EmissionSteps, PokrCapitalisesTheFirstArmenianLetter) {
    e.WordGloss = font("տուն");
    e.pokr();
    EXPECT_EQ(utf8(e.WordGloss), "Տուն");
    e.Check1 = 1;
    e.WordGloss = "house";
    e.pokr();
    EXPECT_EQ(e.WordGloss, "House");
}

TEST_F(EmissionSteps, Pokr2CapitalisesTheWordAsTypedAndClearsTheFlag) {
    e.RawWord = font("տուն");
    e.CapitalFlag = 1;
    e.pokr2();
    EXPECT_EQ(utf8(e.RawWord), "Տուն");
    EXPECT_TRUE(e.CapitalFlag.empty());
}

TEST_F(EmissionSteps, DeroczAgreesTheCopulaWithThePerson) {
    const auto agree = [&](int person, const char* copula) {
        e.PersonCode = person;
        e.PendingCopula = font(copula);
        e.derocz();
        return utf8(e.PendingCopula);
    };
    EXPECT_EQ(agree(1, "էր"), "էի");
    EXPECT_EQ(agree(2, "էին"), "էիք");
    EXPECT_EQ(agree(2, "են"), "եք");
    EXPECT_EQ(agree(3, "էին"), "էինք");
    EXPECT_EQ(agree(3, "են"), "ենք");
    EXPECT_EQ(agree(4, "են"), "են");
    EXPECT_EQ(agree(1, "է"), "է");
}

}  // namespace
}  // namespace vorlexa::test
