// The look-up frame: the match rules, the "get "/"got " fallback and the emission of the gloss.
#include <gtest/gtest.h>

#include "engine/engine.h"
#include "engine_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

TEST(Lookup, MakingFindsMakeThroughTheLostE) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.CurrentWord = "mak";
    e.VerbFormMark = "ում"_ft;
    e.teqst_dblclick();
    EXPECT_EQ(e.DictRecord.key(), "make");
    EXPECT_EQ(e.stats.unknownOccurrences, 0);
}

TEST(Lookup, LostEIsNotRestoredForAnEnglishVerbForm) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.CurrentWord = "mak";
    e.RawWord = "mak";
    e.VerbFormMark = "ed";
    e.teqst_dblclick();
    EXPECT_EQ(e.stats.unknownOccurrences, 1);
}

TEST(Lookup, HousesFindsHouseThroughThePluralRule) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.CurrentWord = "houses";
    e.PendingEnding = "ներ"_ft;
    e.teqst_dblclick();
    EXPECT_EQ(e.DictRecord.key(), "house");
    EXPECT_EQ(e.stats.unknownOccurrences, 0);

    // Without the pending plural the walk matches nothing; the ending analysis then takes the
    // "s" off and finds the word after all.
    e.CurrentWord = "houses";
    e.RawWord = "houses";
    e.PendingEnding.clear();
    e.DictRecord = DictRecord();
    e.teqst_dblclick();
    EXPECT_EQ(e.DictRecord.key(), "house");
    EXPECT_EQ(e.stats.unknownOccurrences, 0);
}

TEST(Lookup, GetPhraseFallsBackToTheRestAndTheWordTail) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.CurrentWord = "get bi";
    e.WordTail = "g";
    e.teqst_dblclick();
    EXPECT_EQ(e.DictRecord.key(), "big");
    EXPECT_TRUE(e.OutputText.ends_with("մեծ"_ft));
}

TEST(Lookup, EmptyWordReturnsAtOnceAfterDroppingADoubleBlank) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.OutputText = "ab  ";
    e.teqst_dblclick();
    EXPECT_EQ(e.OutputText, "ab ");
}

TEST(Lookup, VowelInitialGlossAfterTheArticleTurnsItIntoN) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.OutputText = ft("տունը ");
    e.CurrentWord = "elder";
    e.teqst_dblclick();
    EXPECT_EQ(toUtf8(e.OutputText), "տունն ավագ");
}

TEST(Lookup, ArticleAfterAVowelGlossIsN) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.ArticleEnding = "ը"_ft;
    e.CurrentWord = "boy";
    e.teqst_dblclick();
    EXPECT_EQ(e.ArticleEnding, FontText("ն"_ft));
}

TEST(Lookup, ArticleStaysBeforeThePluralEnding) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.ArticleEnding = "ը"_ft;
    e.PendingEnding = "ներ"_ft;
    e.CurrentWord = "boy";
    e.teqst_dblclick();
    EXPECT_EQ(e.ArticleEnding, FontText("ը"_ft));
}

TEST(Lookup, NegationBeforeAWordLosesItsBlank) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.OutputText = ft("դա չ ");
    e.CurrentWord = "big";
    e.teqst_dblclick();
    EXPECT_EQ(toUtf8(e.OutputText), "դա չմեծ");
}

TEST(Lookup, CapitalFlagCapitalisesTheGlossAndIsCleared) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.CapitalFlag = 1;
    e.CurrentWord = "big";
    e.teqst_dblclick();
    EXPECT_EQ(toUtf8(e.OutputText), "Մեծ");
    EXPECT_TRUE(e.CapitalFlag.empty());
    EXPECT_TRUE(e.CurrentWord.empty());
    EXPECT_TRUE(e.WordGloss.empty());
}

TEST(Lookup, HeldConjunctionFollowsTheNounAndItsEnding) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.HeldConjunction = ft(" և");
    e.PendingEnding = "ի"_ft;
    e.CurrentWord = "boy";
    e.teqst_dblclick();
    EXPECT_EQ(toUtf8(e.OutputText), "տղայի և");
    EXPECT_TRUE(e.HeldConjunction.empty());
    EXPECT_TRUE(e.PendingEnding.empty());
}

const std::string kVerbFormLexicon =
    "made\tարան\tv\n"
    "maker\tարաք\tv\n"
    "make\tարա\tv\n"
    "makes\tարանք\tv\n"
    "go\tգնեք\tv\n"
    "read\tկարդեք\tv\n"
    "know\tգիտենեք\tv\n"
    "gone\tգնեք\tv\n";

std::string emitted(EngineFixture& f, const char* word, int person = 0) {
    Engine& e = *f.engine;
    e.OutputText.clear();
    e.PersonCode.clear();
    if (person) e.PersonCode = person;
    e.CurrentWord = word;
    e.teqst_dblclick();
    return toUtf8(e.OutputText);
}

TEST(Lookup, PastFormsOfDoAreMended) {
    EngineFixture f(kVerbFormLexicon);
    EXPECT_EQ(emitted(f, "made"), "արեցին");
    EXPECT_EQ(emitted(f, "maker"), "արեցիք");
    EXPECT_EQ(emitted(f, "make", 1), "արեցի");
    EXPECT_EQ(emitted(f, "make", 5), "արա");
    EXPECT_EQ(emitted(f, "makes", 3), "արեցինք");
    EXPECT_EQ(emitted(f, "makes", 4), "արանք");
}

TEST(Lookup, ImperativesOfGoReadAndKnowAreMended) {
    EngineFixture f(kVerbFormLexicon);
    EXPECT_EQ(emitted(f, "go"), "գնացեք");
    EXPECT_EQ(emitted(f, "gone"), "գնեք");  // only for the word "go" itself
    EXPECT_EQ(emitted(f, "read"), "կարդացեք");
    EXPECT_EQ(emitted(f, "know"), "գիտեցեք");
}

TEST(Lookup, PokrCapitalisesTheGlossInEitherDirection) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.WordGloss = ft("մեծ");
    e.pokr();
    EXPECT_EQ(toUtf8(e.WordGloss), "Մեծ");
    e.Check1 = 1;
    e.WordGloss = "who";
    e.pokr();
    EXPECT_EQ(e.WordGloss, "Who");
    e.WordGloss = ft("և");  // the ligature has no capital
    e.pokr();
    EXPECT_EQ(e.WordGloss, ft("և"));
}

TEST(Lookup, Pokr2CapitalisesTheRawWordAndClearsTheCapitalFlag) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.RawWord = ft("մեծ");
    e.CapitalFlag = 1;
    e.pokr2();
    EXPECT_EQ(toUtf8(e.RawWord), "Մեծ");
    EXPECT_TRUE(e.CapitalFlag.empty());
}

TEST(Lookup, DeroczAgreesTheHeldCopulaWithThePerson) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    const auto agreed = [&](int person, const char* copula) {
        e.PersonCode = person;
        e.PendingCopula = ft(copula);
        e.derocz();
        return toUtf8(e.PendingCopula);
    };
    EXPECT_EQ(agreed(1, "էր"), "էի");
    EXPECT_EQ(agreed(2, "էին"), "էիք");
    EXPECT_EQ(agreed(2, "են"), "եք");
    EXPECT_EQ(agreed(3, "էին"), "էինք");
    EXPECT_EQ(agreed(3, "են"), "ենք");
    EXPECT_EQ(agreed(1, "են"), "են");
    EXPECT_EQ(agreed(5, "էր"), "էր");
}

TEST(Lookup, ColumnOfTheWordIsKeptInRangeStart) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.CurrentWord = "big";
    e.skizbe();
    EXPECT_EQ(e.RangeStart, 26 * 1 + 9);
    e.CurrentWord = "a";
    e.skizbe();
    EXPECT_EQ(e.RangeStart, kEnglishOddColumn);
    e.CurrentWord = ft("ա");
    e.skizba();
    EXPECT_EQ(e.RangeStart, kArmenianOddColumn);
}

}  // namespace
}  // namespace vorlexa::test
