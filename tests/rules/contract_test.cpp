// The rule contract: the output helpers mctn, pokrmc and derocz, and the rules of auxiliaries
// and negation, each run on a word placed where the scanner hands it over.
#include <gtest/gtest.h>

#include "rules/contract_fixture.h"
#include "rules/procedure_registry.h"
#include "rules/rule_contract.h"

namespace vorlexa::contract_test {
namespace {

using namespace literals;

// ---- mctn and pokrmc ----------------------------------------------------------------------------

TEST(Mctn, AppendsAndClearsTheText) {
    RuleFixture f;
    Engine& e = f.at("x ", "x", 0, "Նա ");
    e.InsertText = ft("քեզ");
    mctn(e);
    EXPECT_EQ(f.output(), "Նա քեզ");
    EXPECT_TRUE(e.InsertText.empty());
}

TEST(Mctn, CapitalisesAndAppendsWithACapitalEvenUnderAccurateTranslation) {
    RuleFixture f;
    f.host.setChecked(MenuItem::IMPV, true);
    Engine& e = f.at("I am sorry ", "i", 0, "Ես տեսա տուն");
    e.CapitalFlag = 1;
    e.InsertText = ft("ցավում եմ");
    mctn(e);
    EXPECT_EQ(f.output(), "Ես տեսա տունՑավում եմ");
    EXPECT_TRUE(e.CapitalFlag.empty());
    EXPECT_TRUE(e.InsertText.empty());
}

TEST(Mctn, UnderAccurateTranslationGoesBackToABlank) {
    RuleFixture f;
    f.host.setChecked(MenuItem::IMPV, true);
    // Output of 12 characters, text of 4: the search starts at 7 ("ա") and stops at the blank at 3.
    Engine& e = f.at("x ", "x", 9, "Ես տեսա տուն");
    e.InsertText = ft("մեծ ");
    mctn(e);
    EXPECT_EQ(f.output(), "Ես մեծ տեսա տուն");
    EXPECT_EQ(e.ScanPos, 9);
    EXPECT_TRUE(e.InsertText.empty());
}

TEST(Mctn, UnderAccurateTranslationAfterAnArmenianNounAppends) {
    RuleFixture f;
    f.host.setChecked(MenuItem::IMPV, true);
    Engine& e = f.at("x ", "x", 0, "Ես տեսա տուն");
    e.TargetClasses = "vn";
    e.InsertText = ft("մեծ ");
    mctn(e);
    EXPECT_EQ(f.output(), "Ես տեսա տունմեծ ");
}

TEST(Mctn, ShortOutputStartsTheSearchAtScanPos) {
    RuleFixture f;
    f.host.setChecked(MenuItem::IMPV, true);
    // 1 - 3 - 1 is not above 0: the cursor starts at ScanPos 5, past the output, and walks to 0.
    Engine& e = f.at("abcd ", "abcd", 5, "ա");
    e.InsertText = ft("բբբ");
    mctn(e);
    EXPECT_EQ(f.output(), "բբբա");
    EXPECT_EQ(e.ScanPos, 5);
}

TEST(Mctn, EmptyTextAddsNothing) {
    RuleFixture f;
    Engine& e = f.at("x ", "x", 0, "Նա");
    mctn(e);
    mctn(e);
    EXPECT_EQ(f.output(), "Նա");
}

TEST(Pokrmc, CapitalisesTheFirstLetter) {
    RuleFixture f;
    Engine& e = *f.engine;
    e.Check1 = 1;
    e.InsertText = "am sorry";
    pokrmc(e);
    EXPECT_EQ(e.InsertText, "Am sorry");
    e.Check1 = 0;
    e.InsertText = ft("քեզ");
    pokrmc(e);
    EXPECT_EQ(e.InsertText, ft("Քեզ"));
    e.InsertText = ft("ք");  // a single letter stays
    pokrmc(e);
    EXPECT_EQ(e.InsertText, ft("ք"));
}

TEST(Derocz, AgreesTheCopulaWithThePerson) {
    RuleFixture f;
    Engine& e = *f.engine;
    const auto agree = [&](int person, const std::string& copula) {
        e.PersonCode = person;
        e.PendingCopula = ft(copula);
        e.derocz();
        return toUtf8(e.PendingCopula);
    };
    EXPECT_EQ(agree(1, "էր"), "էի");
    EXPECT_EQ(agree(2, "էին"), "էիք");
    EXPECT_EQ(agree(2, "են"), "եք");
    EXPECT_EQ(agree(3, "էին"), "էինք");
    EXPECT_EQ(agree(3, "են"), "ենք");
    EXPECT_EQ(agree(4, "են"), "են");
    EXPECT_EQ(agree(1, "է"), "է");
}

// ---- ToBeOrNotToBe, EmEEnEin --------------------------------------------------------------------

TEST(ToBeOrNotToBe, LateAndBackMakeOneKey) {
    RuleFixture f;
    Engine& e = f.at("be late today", "be");
    ToBeOrNotToBe(e);
    EXPECT_EQ(f.word(), "be late");
    EXPECT_EQ(e.ScanPos, 7);
    EXPECT_TRUE(e.PerfectFlag.empty());
    Engine& e2 = f.at("be back soon", "be");
    ToBeOrNotToBe(e2);
    EXPECT_EQ(f.word(), "be late");
}

TEST(ToBeOrNotToBe, OtherwiseMarksTheParticiple) {
    RuleFixture f;
    Engine& e = f.at("been seen", "been");
    ToBeOrNotToBe(e);
    EXPECT_EQ(f.word(), "been");
    EXPECT_EQ(e.ScanPos, 5);
    EXPECT_EQ(e.PerfectFlag, 1);
}

TEST(EmEEnEin, LateEmitsTheVerbAndKeepsBeLate) {
    RuleFixture f;
    Engine& e = f.at("is late now", "is", 0, "Նա ");
    EmEEnEin(e);
    EXPECT_EQ(f.output(), "Նա է");
    EXPECT_EQ(f.word(), "be late");
    EXPECT_EQ(e.ScanPos, 7);
    EXPECT_EQ(toUtf8(e.VerbFormMark), "ում");
}

TEST(EmEEnEin, AboutIsNearly) {
    RuleFixture f;
    Engine& e = f.at("is about ten", "is", 0, "Նա ");
    EmEEnEin(e);
    EXPECT_EQ(f.output(), "Նա է");
    EXPECT_EQ(f.word(), "nearly");
    EXPECT_EQ(e.ScanPos, 8);
}

TEST(EmEEnEin, ToBeIsMustBe) {
    RuleFixture f;
    Engine& e = f.at("are to be told", "are", 0, "Նրանք ");
    EmEEnEin(e);
    EXPECT_EQ(f.output(), "Նրանք պետք ");
    EXPECT_EQ(f.word(), "be");
    EXPECT_EQ(e.PerfectFlag, 1);
    EXPECT_EQ(e.ScanPos, 4);
    EXPECT_TRUE(e.PendingEnding.empty());  // the rule stops there
}

TEST(EmEEnEin, ToSetsTheInfinitiveEnding) {
    RuleFixture f;
    Engine& e = f.at("is to go", "is");
    EmEEnEin(e);
    EXPECT_EQ(f.ending(), "ու");
    EXPECT_EQ(f.word(), "is");
    EXPECT_EQ(e.ScanPos, 3);
}

TEST(EmEEnEin, OtherTextChangesNothing) {
    RuleFixture f;
    Engine& e = f.at("is big", "is");
    EmEEnEin(e);
    EXPECT_EQ(f.word(), "is");
    EXPECT_EQ(f.output(), "");
    EXPECT_EQ(e.ScanPos, 3);
}

// ---- cnto, kkamenal ---------------------------------------------------------------------------

TEST(Cnto, UnableWithThePersonsCopula) {
    RuleFixture f;
    Engine& e = f.at("cannot be done", "cannot", 0, "Ես");
    e.PersonCode = 1;
    cnto(e);
    EXPECT_EQ(e.ScanPos, 10);
    EXPECT_EQ(f.output(), "Ես անկարող եմ ");
    EXPECT_EQ(toUtf8(e.PersonCode.text()), "եմ ");
    EXPECT_EQ(e.ToMark, "to");
}

TEST(Cnto, EachPersonHasItsEnding) {
    const std::pair<int, std::string> persons[] = {{2, "եք "}, {3, "ենք "}, {4, "են "}, {5, "է "}};
    for (const auto& [person, ending] : persons) {
        RuleFixture f;
        Engine& e = f.at("cannot go", "cannot", 0, "x");
        e.PersonCode = person;
        cnto(e);
        EXPECT_EQ(e.ScanPos, 7);
        EXPECT_EQ(f.output(), "x անկարող " + ending);
    }
}

TEST(Cnto, NoPersonAppendsOnlyTheBlanks) {
    RuleFixture f;
    Engine& e = f.at("cannot go", "cannot", 0, "x");
    cnto(e);
    EXPECT_EQ(f.output(), "x անկարող ");
    EXPECT_TRUE(e.PersonCode.empty());
}

TEST(Kkamenal, LikeAndLoveAreWish) {
    RuleFixture f;
    Engine& e = f.at("would like it", "would");
    kkamenal(e);
    EXPECT_EQ(f.word(), "wish");
    EXPECT_EQ(e.ScanPos, 11);
    Engine& e2 = f.at("would love it", "would");
    kkamenal(e2);
    EXPECT_EQ(f.word(), "wish");
}

TEST(KkamenalPlyus, HaveIsSkippedAndNotNegates) {
    RuleFixture f;
    Engine& e = f.at("would have gone", "would");
    kkamenalPlyus(e);
    EXPECT_EQ(e.ScanPos, 11);
    EXPECT_EQ(f.output(), "");
    Engine& e2 = f.at("would not go", "would", 0, "կամք ");
    kkamenalPlyus(e2);
    EXPECT_EQ(e2.ScanPos, 10);
    EXPECT_EQ(f.output(), "կամք չ");
    Engine& e3 = f.at("would have not go", "would");
    kkamenalPlyus(e3);  // "have" skipped, then "not " at the new place
    EXPECT_EQ(e3.ScanPos, 15);
    EXPECT_EQ(f.output(), "չ");
}

// ---- erbeq, woch, karox -----------------------------------------------------------------------

TEST(Erbeq, NeverMarksTheNegationAndTheImperative) {
    RuleFixture f;
    Engine& e = f.at("never go", "never");
    erbeq(e);
    EXPECT_EQ(e.PersonCode, 2);
    EXPECT_EQ(e.ModalFlag, 1);
    EXPECT_EQ(toUtf8(e.NegationMark), "չ");
    EXPECT_EQ(e.ScanPos, 6);
}

TEST(Erbeq, AKnownPersonStays) {
    RuleFixture f;
    Engine& e = f.at("never go", "never");
    e.PersonCode = 1;
    erbeq(e);
    EXPECT_EQ(e.PersonCode, 1);
    EXPECT_TRUE(e.ModalFlag.empty());
}

TEST(Erbeq, NeverMindIsTheIdiom) {
    RuleFixture f;
    Engine& e = f.at("never mind it", "never");
    erbeq(e);
    EXPECT_EQ(e.ScanPos, 11);
    EXPECT_EQ(f.output(), "բանի տեղ մի դրեք");
    EXPECT_TRUE(e.NegationMark.empty());
    EXPECT_EQ(e.DefiniteState, 0);  // 0 is not empty: the article state stays
}

TEST(Erbeq, AnEmptyArticleStateBecomesOne) {
    RuleFixture f;
    Engine& e = f.at("never Mind", "never");
    e.DefiniteState.clear();
    erbeq(e);
    EXPECT_EQ(e.DefiniteState, 1);
    EXPECT_EQ(f.output(), "բանի տեղ մի դրեք");
}

TEST(Erbeq, ArmenianBeforeANegativeCopula) {
    RuleFixture f;
    Engine& e = f.at("երբեք չի գալիս", "երբեք");
    e.Check1 = 1;
    erbeq(e);
    EXPECT_EQ(f.output(), "never ");
    EXPECT_EQ(e.ScanPos, 7);
    EXPECT_EQ(f.ending(), "s");
    Engine& e2 = f.at("երբեք չգա", "երբեք");
    e2.PendingEnding.clear();
    erbeq(e2);
    EXPECT_EQ(f.output(), "never ");
    EXPECT_EQ(e2.ScanPos, 7);
    EXPECT_EQ(f.ending(), "");
}

TEST(Woch, ArmenianPhrases) {
    RuleFixture f;
    Engine& e = f.at("ոչ թե այն", "ոչ");
    e.Check1 = 1;
    woch(e);
    EXPECT_EQ(e.ScanPos, 6);
    EXPECT_EQ(f.word(), "ոչ");

    const char* nobody[] = {"ոչ ոք ", "ոչ ոք,", "ոչ ոք.", "ոչ ոք:", "ոչ ոք`"};
    for (const char* text : nobody) {
        Engine& n = f.at(text, "ոչ");
        woch(n);
        EXPECT_EQ(f.word(), "ոչ ոք") << text;
        EXPECT_EQ(n.ScanPos, 6);
    }

    Engine& a = f.at("ոչ մի տուն", "ոչ");
    woch(a);
    EXPECT_EQ(f.output(), "no a ");
    EXPECT_EQ(a.ScanPos, 6);

    Engine& other = f.at("ոչ այստեղ", "ոչ");
    woch(other);  // Armenian text of no rule: nothing
    EXPECT_EQ(f.word(), "ոչ");
    EXPECT_EQ(other.ScanPos, 3);
}

TEST(Woch, EnglishNotClearsTheWordAndNegates) {
    RuleFixture f;
    Engine& e = f.at("have not seen", "have");
    woch(e);
    EXPECT_EQ(e.ScanPos, 9);
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(toUtf8(e.NegationMark), "չ");
    Engine& less = f.at("x less", "x");
    less.NegationMark = ft("չ");
    woch(less);
    EXPECT_TRUE(less.NegationMark.empty());
    EXPECT_EQ(less.ScanPos, 2);
}

TEST(Karox, CanFormsSetTheFlag) {
    const std::pair<std::string, std::int64_t> forms[] = {
        {"չեմ կարողանալու", 16}, {"չեմ կարողանում ", 15}, {"չեմ կարողացել ", 14}, {"չեմ կարող ", 10}};
    for (const auto& [text, pos] : forms) {
        RuleFixture f;
        Engine& e = f.at(text, "չեմ");
        e.Check1 = 1;
        karox(e);
        EXPECT_EQ(e.CanFlag, 1) << text;
        EXPECT_EQ(e.ScanPos, pos) << text;
    }
}

TEST(Karox, AllowedAndNothing) {
    RuleFixture f;
    Engine& e = f.at("չեմ կարելի ", "չեմ");
    e.Check1 = 1;
    karox(e);
    EXPECT_EQ(f.output(), "am not ");
    EXPECT_EQ(f.word(), "թույլատրած");
    EXPECT_EQ(e.ScanPos, 10);
    EXPECT_TRUE(e.CanFlag.empty());
    Engine& n = f.at("չեմ գալիս", "չեմ");
    karox(n);
    EXPECT_TRUE(n.CanFlag.empty());
    EXPECT_EQ(n.ScanPos, 4);
}

// ---- cavumem ----------------------------------------------------------------------------------

TEST(Cavumem, IAmSorry) {
    RuleFixture f;
    Engine& e = f.at("i am sorry ", "i");
    cavumem(e);
    EXPECT_EQ(f.output(), "ցավում եմ");
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(e.ScanPos, 10);
}

TEST(Cavumem, ImSorryWithACapital) {
    RuleFixture f;
    Engine& e = f.at("I'm sorry ", "i");
    e.CapitalFlag = 1;
    cavumem(e);
    EXPECT_EQ(f.output(), "Ցավում եմ");
    EXPECT_EQ(e.ScanPos, 10);
}

TEST(Cavumem, WeAreSorry) {
    RuleFixture f;
    Engine& e = f.at("we are sorry ", "we");
    cavumem(e);
    EXPECT_EQ(f.output(), "ցավում ենք");
    EXPECT_EQ(e.ScanPos, 12);
}

TEST(Cavumem, OtherwiseNothing) {
    RuleFixture f;
    Engine& e = f.at("we are here ", "we");
    cavumem(e);
    EXPECT_EQ(f.word(), "we");
    EXPECT_EQ(e.ScanPos, 3);
    EXPECT_EQ(f.output(), "");
}

TEST(Cavumem, ArmenianSorry) {
    RuleFixture f;
    Engine& e = f.at("ցավում եմ ", "ցավում");
    e.Check1 = 1;
    cavumem(e);
    EXPECT_EQ(f.output(), "am sorry");
    EXPECT_EQ(e.ScanPos, 10);
    EXPECT_EQ(f.word(), "");
    Engine& we = f.at("ցավում ենք ", "ցավում");
    cavumem(we);
    EXPECT_EQ(f.output(), "are sorry");
    EXPECT_EQ(we.ScanPos, 10);
}

// ---- hon ----------------------------------------------------------------------------------

struct HonCase {
    std::string text;
    std::string word;
    std::int64_t pos;
    std::string output;
};

TEST(Hon, EachRowOfThere) {
    const HonCase cases[] = {
        {"there is no time", "there isn't", 12, ""},
        {"there isn't a", "there isn't", 12, ""},
        {"there are no cars", "are not", 13, ""},
        {"there arn't any", "are not", 11, ""},
        {"there wasn't a", "wasn't", 13, ""},
        {"there was no one", "wasn't", 13, ""},
        {"there weren't any", "there were not", 14, ""},
        // "were no " is compared over six characters and never matches: the "were" row takes it.
        {"there were no one", "", 10, "գոյություն ուին"},
        {"there are books", "", 9, "գոյություն ուն"},
        {"there is a book", "exists", 9, ""},
        {"there was a book", "", 10, "գոյություն ունր"},
        {"there goes", "there", 6, ""},
    };
    for (const auto& c : cases) {
        RuleFixture f;
        Engine& e = f.at(c.text, "there");
        hon(e);
        EXPECT_EQ(f.word(), c.word) << c.text;
        EXPECT_EQ(e.ScanPos, c.pos) << c.text;
        EXPECT_EQ(f.output(), c.output) << c.text;
    }
}

// ---- nshnk --------------------------------------------------------------------------------

TEST(Nshnk, MeansIsTheThirdPerson) {
    RuleFixture f;
    Engine& e = f.at("նշանակում է որ", "նշանակում");
    e.Check1 = 1;
    nshnk(e);
    EXPECT_EQ(f.word(), "նշանակել");
    EXPECT_EQ(e.ScanPos, 12);
    EXPECT_EQ(f.ending(), "s");
}

TEST(Nshnk, AfterACopulaTheIngForm) {
    RuleFixture f;
    Engine& e = f.at("նշանակում այն", "նշանակում");
    e.Check1 = 1;
    e.PendingCopula = ft("է");
    nshnk(e);
    EXPECT_EQ(f.word(), "նշանակել");
    EXPECT_EQ(e.VerbFormMark, "ing");
    EXPECT_EQ(e.ScanPos, 10);
    Engine& n = f.at("նշանակում այն", "նշանակում", 0, "it is not ");
    nshnk(n);
    EXPECT_EQ(n.VerbFormMark, "ing");
    Engine& none = f.at("նշանակում այն", "նշանակում", 0, "it ");
    none.PendingCopula.clear();
    nshnk(none);
    EXPECT_EQ(f.word(), "նշանակում");
}

// ---- The contract through the scanner ---------------------------------------------------------

TEST(RuleContract, ProceduresOfThisFamilyAreRegistered) {
    for (const char* name : {"mctn", "pokrmc", "ToBeOrNotToBe", "EmEEnEin", "cnto", "kkamenal", "kkamenalPlyus",
                             "erbeq", "woch", "karox", "cavumem", "hon", "nshnk"}) {
        EXPECT_NE(findProcedure(name), nullptr) << name;
    }
}

TEST(RuleContract, AClearedWordReturningByFinishStillSendsTheDelimiter) {
    RuleFixture f(kRuleLexicon + "mail\tնամակ\tx\n");
    EXPECT_EQ(f.translate("e mail"), "էլ նամակ ");
}

TEST(RuleContract, ASubstituteWithABlankIsOneKey) {
    RuleFixture f;
    EXPECT_EQ(f.translate("be late"), "ուշանալ ");
}

TEST(RuleContract, ContractedWouldHasNoNotToSkip) {
    // The "չ" comes from the contraction; kkamenalPlyus finds no "not ".
    RuleFixture f(kRuleLexicon + "go\tգնալ\tx\n");
    EXPECT_EQ(f.translate("wouldn't go"), "չկամք գնալ ");
    // The conditional serves the verbs of its own sentence; the end of the run clears it.
    EXPECT_TRUE(f.engine->ConditionalFlag.empty());
}

// Whole runs of the auxiliaries, worked out from the rules.
const std::string kAuxiliaryLexicon = kRuleLexicon +
                                      "it\tդա\tx\n"
                                      "he\tնա\tx\n"
                                      "big\tմեծ\ta\n"
                                      "go\tգնալ\tv\n"
                                      "books\tգրքեր\tn\n"
                                      "wolves\tգայլեր\tn\n";

TEST(Auxiliaries, IsntWritesTheNegationBeforeTheVerb) {
    // "չ" from the contraction, then "is" (on the list of EmEEnEin, no phrase after it) looked up.
    RuleFixture f(kAuxiliaryLexicon);
    EXPECT_EQ(f.translate("it isn't big."), "դա չէ մեծ: ");
}

TEST(Auxiliaries, ItsHoldsTheCopulaForTheNextWord) {
    // A pronoun's record ("p") takes no copula; the adjective after it does.
    std::string lexicon = kAuxiliaryLexicon;
    lexicon.replace(lexicon.find("it\tդա\tx"), std::string("it\tդա\tx").size(), "it\tդա\tp");
    RuleFixture f(lexicon);
    EXPECT_EQ(f.translate("It's big."), "Դա մեծ է: ");
}

TEST(Auxiliaries, DidNotIsThePastNegativeOfThePerson) {
    // "չէր" for the person of "նա"; the skip lands on the last letter of "not", and the verb takes
    // the form "ում" that the rule left.
    RuleFixture f(kAuxiliaryLexicon);
    EXPECT_EQ(f.translate("he did not go."), "նա չէր գնում: ");
}

TEST(Auxiliaries, DidntTakesTheNegativeBranch) {
    RuleFixture f(kAuxiliaryLexicon);
    EXPECT_EQ(f.translate("he didn't go."), "նա չէր գնում: ");
}

TEST(Auxiliaries, DontAtTheStartIsTheProhibitive) {
    // "one-" is "մի", capitalised for "Don't"; the verb then reads as an imperative.
    RuleFixture f(kAuxiliaryLexicon);
    EXPECT_EQ(f.translate("Don't go."), "Մի գնացեք: ");
}

TEST(Auxiliaries, TheyDontIsThePluralNegative) {
    RuleFixture f(kAuxiliaryLexicon + "they\tնրանք\tx\n");
    EXPECT_EQ(f.translate("they don't go."), "նրանք չեն գնում: ");
}

TEST(Auxiliaries, CantNegatesThePersonsForm) {
    // "չ" and "եմ " for the first person, then "can" itself by the look-up.
    RuleFixture f(kAuxiliaryLexicon + "i\tես\tx\n");
    const std::string result = f.translate("I can't go.");
    EXPECT_TRUE(result.starts_with("Ես չեմ կարող ")) << result;
}

TEST(Auxiliaries, ThereAreWritesExistAndCutsItsEnding) {
    RuleFixture f(kAuxiliaryLexicon);
    EXPECT_EQ(f.translate("there are books."), "գոյություն ուն գրքերը: ");
}

TEST(Auxiliaries, PackOfWolvesInsertsTheCollectiveNounAndReadsOn) {
    RuleFixture f(kAuxiliaryLexicon);
    EXPECT_EQ(f.translate("pack of wolves"), "ոհմակ գայլերի ");
}

}  // namespace
}  // namespace vorlexa::contract_test
