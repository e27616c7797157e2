// The ending analysis: each step and each row of the stage tables, with a word that takes the row
// and one that just misses it. A word is handed to the look-up as the scanner hands it over, so
// the not-found path drives the analysis layer by layer; the output shows what came of it.
#include <gtest/gtest.h>

#include <functional>

#include "analysis/hy_en_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

using Prepare = std::function<void(Engine&)>;

// A fresh engine for each word, so that no state of an earlier word leaks in.
std::string lookUp(const std::string& word, const std::string& after = "", const std::string& before = "",
                   const Prepare& setup = {}) {
    HyEnFixture f;
    if (setup) setup(f.e());
    return f.lookUp(word, after, before);
}

// ---- Steps 1 to 4 ----------------------------------------------------------------------------

TEST(EndingAnalysis, SpellCheckAnswerStopsTheAnalysis) {
    HyEnFixture f;
    f.e().SpellMode = 1;
    f.e().AnswerCode = kAnswerNo;
    EXPECT_EQ(f.analyse("տանից"), "տանից");
    EXPECT_EQ(f.output(), "");

    HyEnFixture g;
    g.e().SpellMode = 1;
    EXPECT_EQ(g.analyse("տանից"), "");
    EXPECT_EQ(g.output(), "from house");
}

TEST(EndingAnalysis, DoubledFutureParticleIsNoted) {
    HyEnFixture f;
    EXPECT_EQ(f.analyse("կկզբժ"), "կկզբժ");
    EXPECT_EQ(f.e().FutureParticle, 1);
    HyEnFixture g;
    g.analyse("կզբժ");
    EXPECT_TRUE(g.e().FutureParticle.empty());
    EXPECT_EQ(lookUp("կկսիրեմ"), "shall love");
}

TEST(EndingAnalysis, StemsWithAMeaningOfTheirOwnKeepTheirEnding) {
    HyEnFixture f;
    f.analyse("հիվանդիս");
    // "իս" is kept for the look-up, and stage 2 then reads the word as "my" + the stem.
    EXPECT_EQ(f.output(), "my patient");

    HyEnFixture g;
    g.e().PendingEnding = "s";
    EXPECT_EQ(g.analyse("սրահ"), "սրահ");
    EXPECT_TRUE(g.e().PendingEnding.empty());  // begins "սր", and "ահ" is no kept ending

    HyEnFixture h;
    h.analyse("սուրն");
    EXPECT_EQ(h.output(), "sword");
    HyEnFixture k;
    k.e().PendingEnding = "s";
    k.at("սուրիկ");
    k.e().hayqer();
    EXPECT_TRUE(k.e().PendingEnding.empty());  // "իկ" is not among the four endings of "սուր"
}

TEST(EndingAnalysis, SharpAndDarkStemsGiveSwordAndDarkness) {
    EXPECT_EQ(lookUp("սրի"), "sword");
    EXPECT_EQ(lookUp("մթի"), "darkness");
    EXPECT_EQ(lookUp("սուրը"), "sword");
    EXPECT_EQ(lookUp("մութը"), "darkness");
    EXPECT_EQ(lookUp("մութ"), "dark");
}

TEST(EndingAnalysis, SharpStemIsNotLookedUpBareButPassedToTheStemClasses) {
    HyEnFixture f;
    EXPECT_EQ(f.analyse("սրի"), "սուր");
    EXPECT_EQ(toUtf8(f.e().PendingEnding), "ի");
    EXPECT_EQ(toUtf8(f.e().StemEndFlag), "ի");
    EXPECT_EQ(f.output(), "");
}

TEST(EndingAnalysis, IllAndGammer) {
    EXPECT_EQ(lookUp("հիվանդի"), "patient");
    EXPECT_EQ(lookUp("հիվանդ"), "ill");
    EXPECT_EQ(lookUp("պառավ"), "old");
    EXPECT_EQ(lookUp("պառավներ"), "gammer");
}

TEST(EndingAnalysis, SuperlativePrefix) {
    EXPECT_EQ(lookUp("ամենալավ"), "the most good");
    EXPECT_EQ(lookUp("ամենալավ", "", "", [](Engine& e) { e.CapitalFlag = 1; }), "The most good");
    EXPECT_EQ(lookUp("ամենլավ").find("the most"), std::string::npos);
}

// ---- Stage 5 ---------------------------------------------------------------------------------

TEST(EndingAnalysisStage5, PastOfWe) {
    EXPECT_EQ(lookUp("խաղացինք"), "played");
    EXPECT_EQ(lookUp("սիրեցինք"), "loved");
    // Six letters: stage 5 is passed, and stage 3 reads "ինք".
    EXPECT_EQ(lookUp("խացինք"), "should խացինք");
}

TEST(EndingAnalysisStage5, PastOfWeInNal) {
    EXPECT_EQ(lookUp("մոտեցանք"), "approached");
    EXPECT_EQ(lookUp("լվացանք"), "washed");
    EXPECT_EQ(lookUp("լվցանք"), "shall լվցանք");
}

TEST(EndingAnalysisStage5, DativeOfTheInfinitive) {
    EXPECT_EQ(lookUp("գրելուն"), "writing");
    EXPECT_EQ(lookUp("գալուն"), "to գալուն");
}

TEST(EndingAnalysisStage5, AblativeOfTheInfinitiveWithAfterAndBefore) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("խաղալուց", "հետո"), "after playing");
    EXPECT_EQ(f.e().ScanPos, 9 + 4);
    EXPECT_EQ(lookUp("խաղալուց", "առաջ"), "before playing");
    HyEnFixture g;
    EXPECT_EQ(g.lookUp("խաղալուց", "տուն"), "playing");
    EXPECT_EQ(g.e().ScanPos, 9);
}

TEST(EndingAnalysisStage5, CausativeImperative) {
    EXPECT_EQ(lookUp("խաղացրեք"), "make to play");
    EXPECT_EQ(lookUp("սիրեցրու"), "make to love");
    EXPECT_EQ(lookUp("խաղացրեզ").find("make to"), std::string::npos);
}

// ---- Stage 4 ---------------------------------------------------------------------------------

TEST(EndingAnalysisStage4, Adjective) {
    EXPECT_EQ(lookUp("քաղաքական"), "city");
    EXPECT_EQ(lookUp("քական"), "քական");  // five letters: stage 4 is passed
}

TEST(EndingAnalysisStage4, YearsOld) {
    EXPECT_EQ(lookUp("հինգամյա"), "five years old");
    EXPECT_EQ(lookUp("հինգամյո").find("years old"), std::string::npos);
}

TEST(EndingAnalysisStage4, PastOfYouAndThey) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("խաղացիր"), "played");
    // No "you" in the output: the "you " waits in InsertText for a later mctn.
    EXPECT_EQ(f.e().InsertText, "you ");
    HyEnFixture g;
    EXPECT_EQ(g.lookUp("խաղացիր", "", "you "), "you played");
    EXPECT_TRUE(g.e().InsertText.empty());
    HyEnFixture h;
    EXPECT_EQ(h.lookUp("սիրեցին"), "loved");
    EXPECT_TRUE(h.e().InsertText.empty());
}

TEST(EndingAnalysisStage4, ImperativeInEtsek) {
    EXPECT_EQ(lookUp("սիրեցեք"), "you love");
    EXPECT_EQ(lookUp("սիրեցեք", "", "you "), "you love");
}

TEST(EndingAnalysisStage4, WhileDoing) {
    EXPECT_EQ(lookUp("խաղալիս"), "while playing");
    EXPECT_EQ(lookUp("սիրելիս"), "while loving");
}

TEST(EndingAnalysisStage4, FutureParticipleWithAndWithoutFor) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("գրելու", "համար"), "to write");
    EXPECT_EQ(f.e().ScanPos, 7 + 5);
    HyEnFixture g;
    EXPECT_EQ(g.lookUp("գրելու", "տուն"), "to write");
    EXPECT_EQ(g.e().ScanPos, 7);
}

TEST(EndingAnalysisStage4, Perfect) {
    EXPECT_EQ(lookUp("խաղացել"), "played");
    EXPECT_EQ(lookUp("սիրել"), "love");  // found as it stands: no analysis
}

TEST(EndingAnalysisStage4, Instrumental) {
    EXPECT_EQ(lookUp("խաղալով"), "playing");
    EXPECT_EQ(lookUp("ազատությամբ"), "with freedom");
    EXPECT_EQ(lookUp("խաղմամբ"), "by playing");
}

TEST(EndingAnalysisStage4, GenitiveOfTyun) {
    EXPECT_EQ(lookUp("ազատության"), "freedom");
}

TEST(EndingAnalysisStage4, CausativePerfect) {
    EXPECT_EQ(lookUp("խաղացրել"), "played");
}

TEST(EndingAnalysisStage4, LessOnTheEnglishSide) {
    HyEnFixture f;
    f.e().Check1 = 0;
    f.at("homeless");
    f.e().hayqer();
    EXPECT_EQ(f.e().LessPrefix, 1);
    EXPECT_TRUE(f.e().OutputText.starts_with("ան"_ft)) << f.output();
    EXPECT_EQ(f.e().DictRecord.key(), "home");

    HyEnFixture g;  // the same word in Armenian text: no prefix, the stem is not found
    EXPECT_EQ(g.lookUp("homeless"), "homeless");
    EXPECT_TRUE(g.e().LessPrefix.empty());
}

// ---- Stage 3 ---------------------------------------------------------------------------------

TEST(EndingAnalysisStage3, SuperlativeOnTheEnglishSide) {
    HyEnFixture f;
    f.e().Check1 = 0;
    f.at("greatest");
    f.e().hayqer();
    EXPECT_TRUE(f.e().OutputText.starts_with("ամենա"_ft)) << f.output();
    EXPECT_EQ(f.e().DictRecord.key(), "great");
    EXPECT_EQ(lookUp("greatest"), "greatest");
}

TEST(EndingAnalysisStage3, ConditionalPast) {
    EXPECT_EQ(lookUp("սիրեին"), "to love");
    EXPECT_EQ(lookUp("սիրեին", "", "I will "), "I would love");
    EXPECT_EQ(lookUp("սիրեին", "", "I shall "), "I should love");
    EXPECT_EQ(lookUp("սիրեին", "", "", [](Engine& e) { e.FutureParticle = 1; }), "would սիրեին");
    EXPECT_EQ(lookUp("կսիրեին"), "to love");
}

TEST(EndingAnalysisStage3, VerbalNounInMan) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("խաղման", "համար"), "for playing");
    EXPECT_EQ(f.e().ScanPos, 7 + 6);
    EXPECT_EQ(lookUp("խաղման"), "playing");
}

TEST(EndingAnalysisStage3, ConditionalOfWe) {
    EXPECT_EQ(lookUp("սիրեինք"), "should love");
    EXPECT_EQ(lookUp("խաղացրինք"), "played");
    EXPECT_EQ(lookUp("գինք"), "գինք");  // four letters: no stage 3
}

TEST(EndingAnalysisStage3, PastOfI) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("խաղացի"), "played");
    EXPECT_EQ(f.e().SingularPast, 1);
}

TEST(EndingAnalysisStage3, IngOnTheEnglishSideFindsTheStemOfADoubledLetter) {
    HyEnFixture f;
    f.e().Check1 = 0;
    f.at("stopping");
    f.e().hayqer();
    EXPECT_EQ(f.e().DictRecord.key(), "stop");
}

TEST(EndingAnalysisStage3, Plural) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("տղաներ"), "boy");
    EXPECT_EQ(f.e().PendingEnding, "s");  // the scanner puts it on at the word end
}

TEST(EndingAnalysisStage3, FutureOfWe) {
    EXPECT_EQ(lookUp("սիրենք"), "shall love");
    EXPECT_EQ(lookUp("սիրենք", "", "we will "), "we shall love");
}

TEST(EndingAnalysisStage3, IesOnTheEnglishSide) {
    HyEnFixture f;
    f.e().Check1 = 0;
    f.at("cities");
    f.e().hayqer();
    EXPECT_EQ(f.e().DictRecord.key(), "city");
}

// ---- The "ում" decision -----------------------------------------------------------------------

TEST(EndingAnalysisPresent, AfterAFormOfBe) {
    EXPECT_EQ(lookUp("գրում", "", "he is "), "he is writing");
    EXPECT_EQ(lookUp("գրում", "", "I am "), "I am writing");
    EXPECT_EQ(lookUp("գրում", "", "they were "), "they were writing");
}

TEST(EndingAnalysisPresent, AfterDoesNot) {
    EXPECT_EQ(lookUp("գրում", "", "he does not "), "he doesn't writing");
    EXPECT_EQ(lookUp("գրում", "", "they were not "), "they weren't writing");
}

TEST(EndingAnalysisPresent, BeforeAnAuxiliary) {
    EXPECT_EQ(lookUp("գրում", "եմ"), "writing");
    EXPECT_EQ(lookUp("գրում", "են"), "writing");
    // "էին " is caught by "էի" first.
    EXPECT_EQ(lookUp("գրում", "էին"), "writing");
}

TEST(EndingAnalysisPresent, QuoteWrittenForE) {
    EXPECT_EQ(lookUp("գրում", "\"մ", "", [](Engine& e) { e.DialectLetterCount = "ե"_ft; }), "writing");
    EXPECT_EQ(lookUp("գրում", "\"մ"), "գրում");
}

TEST(EndingAnalysisPresent, ThirdPersonConsumesTheAuxiliary) {
    HyEnFixture f;
    const std::string out = f.lookUp("գրում", "է");
    EXPECT_TRUE(out.starts_with("write")) << out;
    EXPECT_EQ(out.find("ing"), std::string::npos) << out;
    EXPECT_EQ(f.e().ScanPos, 6 + 2);
}

TEST(EndingAnalysisPresent, ProgressiveAfterAnAuxiliaryWord) {
    const Prepare progressive = [](Engine& e) { e.ProgressiveNext = 1; };
    EXPECT_EQ(lookUp("գրում", "", "", progressive), "in write");
    EXPECT_EQ(lookUp("կգրում", "", "", progressive), "in կգրում");
}

TEST(EndingAnalysisPresent, OtherwiseTheLocative) {
    EXPECT_EQ(lookUp("քաղաքում"), "in city");
    EXPECT_EQ(lookUp("տանում"), "in house");
}

// ---- Stage 2 ---------------------------------------------------------------------------------

TEST(EndingAnalysisStage2, PluralOrConditional) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("գրքեր"), "book");
    EXPECT_EQ(f.e().PendingEnding, "s");
    HyEnFixture g;
    g.e().CaseEndingSeen = 1;
    EXPECT_EQ(g.lookUp("գրքեր"), "book");
    EXPECT_EQ(g.e().PendingEnding, "s");
    EXPECT_TRUE(g.e().CaseEndingSeen.empty());
    EXPECT_EQ(lookUp("սիրեր"), "would love");
    EXPECT_EQ(lookUp("տեր"), "տեր");  // three letters: no stage 2
}

TEST(EndingAnalysisStage2, ConditionalOfI) {
    EXPECT_EQ(lookUp("սիրեի"), "should love");
    EXPECT_EQ(lookUp("ափսեի"), "plate");
}

TEST(EndingAnalysisStage2, AgentNounInOgh) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("գրող"), "write");
    EXPECT_EQ(f.e().VerbBackOffset, 5 + 3);
}

TEST(EndingAnalysisStage2, PastOfYouInIr) {
    EXPECT_EQ(lookUp("գրիր"), "you write");
    EXPECT_EQ(lookUp("խաղայիր"), "you play");
}

TEST(EndingAnalysisStage2, InfinitiveInAl) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("կխաղալ"), "play");
    EXPECT_EQ(f.e().FutureParticle, 1);
    EXPECT_EQ(lookUp("պարալ"), "dance");
    EXPECT_EQ(lookUp("չխաղալ"), "not play");
}

TEST(EndingAnalysisStage2, InfinitiveInEl) {
    EXPECT_EQ(lookUp("խաղել"), "game");
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("կսիրել"), "love");
    EXPECT_EQ(f.e().FutureParticle, 1);
}

TEST(EndingAnalysisStage2, PastOfHeSheIt) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("սիրեց"), "loved");
    EXPECT_EQ(f.e().SingularPast, 1);
    EXPECT_EQ(lookUp("խաղաց"), "played");
    EXPECT_EQ(lookUp("խաղավ"), "played");
}

TEST(EndingAnalysisStage2, EdOnTheEnglishSide) {
    HyEnFixture f;
    f.e().Check1 = 0;
    f.at("cried");
    f.e().hayqer();
    EXPECT_EQ(f.e().DictRecord.key(), "cry");
}

TEST(EndingAnalysisStage2, FirstPerson) {
    EXPECT_EQ(lookUp("սիրեմ"), "me to love");
    EXPECT_EQ(lookUp("սիրեմ", "", "I "), "Me to love");
    EXPECT_EQ(lookUp("սիրեմ", "", "", [](Engine& e) { e.FutureParticle = 1; }), "shall love");
    HyEnFixture f;
    f.e().ModalFlag = 1;
    EXPECT_EQ(f.lookUp("սիրեմ"), "love");
    EXPECT_TRUE(f.e().ModalFlag.empty());
}

TEST(EndingAnalysisStage2, SecondPerson) {
    EXPECT_EQ(lookUp("սիրես"), "you love");
    EXPECT_EQ(lookUp("սիրես", "", "you "), "you love");
    EXPECT_EQ(lookUp("սիրես", "", "you will "), "you will love");
    EXPECT_EQ(lookUp("սիրեք", "", "", [](Engine& e) { e.FutureParticle = 1; }), "will love");
    EXPECT_EQ(lookUp("խաղաս"), "you play");
}

TEST(EndingAnalysisStage2, ThirdPersonPlural) {
    EXPECT_EQ(lookUp("սիրեն"), "them to love");
    EXPECT_EQ(lookUp("սիրեն", "", "they will "), "they will love");
    EXPECT_EQ(lookUp("սիրեն", "", "", [](Engine& e) { e.FutureParticle = 1; }), "will love");
}

TEST(EndingAnalysisStage2, PastParticiple) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("խաղած"), "played");
    EXPECT_EQ(f.e().ParticipleGuess, 1);
}

TEST(EndingAnalysisStage2, PossessiveOfMyAndYour) {
    EXPECT_EQ(lookUp("ձեռքիս"), "my hand");
    EXPECT_EQ(lookUp("մեջիս"), "in");  // a place word takes no possessive
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("ձեռքիդ"), "your hand");
    EXPECT_TRUE(f.e().CaseEndingSeen.empty());
    EXPECT_EQ(lookUp("վրայիդ"), "on");
}

TEST(EndingAnalysisStage2, DativeInIn) {
    EXPECT_EQ(lookUp("տղային"), "boy");
    HyEnFixture f;
    f.e().TransitiveNext = 1;
    EXPECT_EQ(f.lookUp("տղային"), "to boy");
    EXPECT_TRUE(f.e().TransitiveNext.empty());
    EXPECT_EQ(lookUp("խաղացրին"), "played");
    EXPECT_EQ(lookUp("հայելին"), "mirror");
}

TEST(EndingAnalysisStage2, Instrumental) {
    EXPECT_EQ(lookUp("նավով"), "by ship");
    EXPECT_EQ(lookUp("ձեռքով"), "by hand");
    EXPECT_EQ(lookUp("տղայով"), "with boy");
    EXPECT_EQ(lookUp("մեջով"), "in");
}

TEST(EndingAnalysisStage2, Ablative) {
    EXPECT_EQ(lookUp("տանից"), "from house");
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("տանից", "հետո"), "after house");
    EXPECT_EQ(f.e().ScanPos, 6 + 4);
    EXPECT_EQ(lookUp("տանից", "առաջ"), "before house");
    EXPECT_EQ(lookUp("վրայից"), "on");
    EXPECT_EQ(lookUp("մարդուց"), "from man");
}

TEST(EndingAnalysisStage2, DativeInUn) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("կատուն"), "cat");
    EXPECT_TRUE(f.e().ArticleEnding.empty());
    EXPECT_EQ(lookUp("մարդուն"), "to man");
}

TEST(EndingAnalysisStage2, GenitiveInU) {
    EXPECT_EQ(lookUp("մարդու"), "man");
}

TEST(EndingAnalysisStage2, DefiniteAfterN) {
    EXPECT_EQ(lookUp("տանն"), "the house");
    EXPECT_EQ(lookUp("տանն", "", "", [](Engine& e) { e.PrepositionNext = 1; }), "house");
}

// ---- Stage 1 ---------------------------------------------------------------------------------

TEST(EndingAnalysisStage1, FutureAndConditionalNegative) {
    EXPECT_EQ(lookUp("կխաղա"), "play");
    EXPECT_EQ(lookUp("կխաղա", "", "he is not "), "he will not play");
    EXPECT_EQ(lookUp("կխաղա", "", "I was not "), "I would not play");
}

TEST(EndingAnalysisStage1, EnglishPlural) {
    HyEnFixture f;
    f.e().Check1 = 0;
    f.at("houses");
    f.e().hayqer();
    EXPECT_EQ(f.e().DictRecord.key(), "house");
    HyEnFixture g;
    g.e().Check1 = 0;
    g.e().HaveForm = 1;
    g.at("houses");
    g.e().hayqer();
    EXPECT_EQ(g.e().DictRecord.key(), "house");
}

TEST(EndingAnalysisStage1, ArticleAndNStem) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("տղան"), "boy");
    EXPECT_EQ(f.e().CaseEndingSeen, 1);
    // "լուսն" is a stem that keeps its "ն": the stem classes make it "լուսին".
    EXPECT_EQ(lookUp("լուսնի"), "moon");
}

TEST(EndingAnalysisStage1, Your) {
    EXPECT_EQ(lookUp("գիրքդ"), "your book");
    EXPECT_EQ(lookUp("գնդի"), "ball");  // "գնդ" keeps its "դ"
    EXPECT_EQ(lookUp("վրայդ"), "on");
}

TEST(EndingAnalysisStage1, MyAndMe) {
    EXPECT_EQ(lookUp("գիրքս"), "my book");
    EXPECT_EQ(lookUp("մեջս"), "me in");
    // "աս" is read by stage 2 first, as the second person.
    EXPECT_EQ(lookUp("վրաս"), "you վրաս");
    EXPECT_EQ(lookUp("ամս"), "month");
    EXPECT_EQ(lookUp("ամսից"), "from month");
}

TEST(EndingAnalysisStage1, GenitiveInI) {
    EXPECT_EQ(lookUp("տղայի"), "boy");
    EXPECT_EQ(lookUp("արամյանի"), "aramyan's");
    EXPECT_EQ(lookUp("սիրի", "", "he is not "), "he will not love");
}

// ---- Prefix and number steps, stem classes ------------------------------------------------------

TEST(EndingAnalysisPrefixes, PrivativeAn) {
    EXPECT_EQ(lookUp("անգիրք"), "bookless");
    HyEnFixture f;
    EXPECT_EQ(f.analyse("անձիկ"), "անձիկ");
}

TEST(EndingAnalysisPrefixes, FutureParticleK) {
    EXPECT_EQ(lookUp("կխաղ", "", "I will "), "I will play");
    EXPECT_EQ(lookUp("կխաղ"), "կխաղ");
}

TEST(EndingAnalysisPrefixes, NegationCh) {
    EXPECT_EQ(lookUp("չսիրել"), "not love");
    EXPECT_EQ(lookUp("չսիրեց"), "not loved");
}

TEST(EndingAnalysisNumbers, TensWrittenTogether) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("քսանհինգ"), "twenty five");
    EXPECT_EQ(f.e().PendingEnding, "s");
    HyEnFixture g;
    EXPECT_EQ(g.lookUp("երեսունմեկ"), "thirty one");
    EXPECT_TRUE(g.e().PendingEnding.empty());
}

TEST(EndingAnalysisStemClasses, ReducedStemIsRestoredAndLookedUp) {
    EXPECT_EQ(lookUp("տնից"), "from house");
    EXPECT_EQ(lookUp("տնով"), "with house");
    EXPECT_EQ(lookUp("գրքեր"), "book");
}

TEST(EndingAnalysis, ShortWordsPassNoStage) {
    HyEnFixture f;
    EXPECT_EQ(f.analyse("գր"), "գիր");  // only the stem classes
    HyEnFixture g;
    EXPECT_EQ(g.analyse("ամ"), "ամ");
    EXPECT_EQ(g.output(), "");
}

// ---- The not-found sequence -------------------------------------------------------------------

TEST(EndingAnalysisSequence, AWordAlreadyStemmedIsUnknown) {
    HyEnFixture f;
    f.e().LastStemmed = "տանից"_ft;
    EXPECT_EQ(f.lookUp("տանից"), "տանից");
}

TEST(EndingAnalysisSequence, FinalEIsCut) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("տղաե"), "boy");
    EXPECT_EQ(f.e().QuestionCount, "»"_ft);
}

TEST(EndingAnalysisSequence, CutIMayBeAVerbInAl) {
    EXPECT_EQ(lookUp("պարի"), "dance");
}

TEST(EndingAnalysisSequence, LastSeenAndLastStemmed) {
    HyEnFixture f;
    f.lookUp("զբժ");
    EXPECT_EQ(toUtf8(f.e().LastSeenWord), "զբժ");
    EXPECT_EQ(toUtf8(f.e().LastStemmed), "զբժ");
}

TEST(EndingAnalysisSequence, UnknownWordAfterAPrefixKeepsThePrefix) {
    EXPECT_EQ(lookUp("զբժիս"), "my զբժիս");
}

TEST(EndingAnalysisSequence, AVeryLongWordEnds) {
    std::string word;
    for (int i = 0; i < 300; ++i) word += "ա";
    HyEnFixture f;
    EXPECT_EQ(f.lookUp(word), word);
    EXPECT_EQ(f.engine->stats.termsWritten, 1);
}

}  // namespace
}  // namespace vorlexa::test

namespace vorlexa::test {
namespace {

// A word one letter short of each row: with its last letter changed, no row of any stage holds it,
// and the word is left unknown, as typed.
TEST(EndingAnalysisMisses, OneLetterOffEachRowLeavesTheWordUnknown) {
    const char* const words[] = {
        // stage 5
        "խաղացինժ", "մոտեցանժ", "գրելուժ", "խաղալուժ", "խաղացրեժ",
        // stage 4
        "քաղաքակաժ", "հինգամյժ", "խաղացիժ", "սիրեցեժ", "խաղալիժ", "գրելուժ", "խաղացեժ", "խաղալոժ",
        "ազատությաժ", "խաղմամժ", "խաղացրեժ", "ազատությամժ",
        // stage 3
        "սիրեիժ", "խաղմաժ", "սիրեինժ", "խաղացժ", "տղանեժ", "սիրենժ", "գրուժ",
        // stage 2
        "գրքեժ", "սիրեժ", "գրոժ", "գրիժ", "խաղաժ", "խաղեժ", "սիրեժ", "խաղաժ", "խաղաժ", "ձեռքիժ", "տղայիժ",
        "նավոժ", "տանիժ", "մարդուժ", "տանժ",
        // stage 1
        "տղաժ", "գիրքժ",
    };
    for (const char* word : words) EXPECT_EQ(lookUp(word), word);
}

// A word of the row's ending but too short for its stage goes on to the next stage.
TEST(EndingAnalysisMisses, LengthGuardsPassAWordOn) {
    EXPECT_EQ(lookUp("կելիս"), "my կելիս");  // five letters: stage 2 reads "իս"
    EXPECT_EQ(lookUp("խացել"), "խացել");     // five letters: stage 2 reads "ել"
    EXPECT_EQ(lookUp("խելով"), "with խելով");  // five letters: stage 2 reads "ով"
    EXPECT_EQ(lookUp("գամյա").find("years old"), std::string::npos);
}

TEST(EndingAnalysis, OutAndMonthStemsGoToTheStemClassesFromStage1) {
    HyEnFixture f;
    EXPECT_EQ(f.analyse("դրս"), "դուրս");
    HyEnFixture g;
    EXPECT_EQ(g.analyse("ամս"), "ամիս");
}

TEST(EndingAnalysis, ErnHasNoRuleOfItsOwn) {
    HyEnFixture f;
    EXPECT_EQ(f.lookUp("գրքերն"), "book");
    EXPECT_EQ(f.e().PendingEnding, "s");
}

TEST(EndingAnalysis, AWordWiderThanAKeyGoesToTheAnalysisFromTheScanner) {
    HyEnFixture f;
    // Twenty-one letters: at the last one the scanner hands the word to the analysis, which finds
    // "the most " and looks up the rest.
    const std::string word = "ամենա" + std::string("զզզզզզզզզզզզզզզզ");
    ASSERT_EQ(fromUtf8(word).size(), 21u);
    const std::string out = f.translate(word);
    EXPECT_EQ(f.engine->stats.longWordAnalyses, 1);
    EXPECT_TRUE(out.starts_with("the most ")) << out;
}

}  // namespace
}  // namespace vorlexa::test
