// The English select as a table: every trigger word reaches its row, words that stand twice are
// decided by their first entry, a procedure not built behaves as a word on no list, and the
// longer rules (modals, "do", "have", "of", "on") follow their tests in order.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "rules/contract_fixture.h"
#include "rules/procedure_registry.h"
#include "rules/selects.h"
#include "rules/trigger_table.h"

namespace vorlexa::contract_test {
namespace {

using namespace literals;

constexpr auto F = TriggerReturn::Finish;
constexpr auto R = TriggerReturn::Rescan;

// ---- The table ----------------------------------------------------------------------------------

TEST(EnglishSelectTable, EveryTriggerWordReachesItsFirstRow) {
    const TriggerTable& table = englishTriggerTable();
    std::set<std::string> shadowed;
    std::size_t words = 0;
    for (const TriggerRow& row : table.rows()) {
        for (std::string_view w : row.words) {
            ++words;
            const TriggerRow* first = table.find(w);
            ASSERT_NE(first, nullptr) << w;
            EXPECT_TRUE(first->holds(w)) << w;
            if (first != &row) shadowed.insert(std::string(w));
        }
    }
    // The words that stand twice; their later entries are kept out of effect. "good" and "made"
    // stand on a row of the select and on a procedure row; the rule written in the select comes
    // first ("good" sets GoodFlag and then calls its procedure itself).
    EXPECT_EQ(shadowed, (std::set<std::string>{"good", "made", "hand", "hands", "come", "comes", "came"}));
    EXPECT_GT(words, 500u);
}

TEST(ArmenianSelectTable, EveryTriggerWordReachesARowThatHoldsIt) {
    const TriggerTable& table = armenianTriggerTable();
    ASSERT_FALSE(table.rows().empty());
    for (const TriggerRow& row : table.rows()) {
        for (std::string_view w : row.words) {
            const TriggerRow* first = table.find(w);
            ASSERT_NE(first, nullptr);
            EXPECT_TRUE(first->holds(w));
        }
    }
}

// Every procedure a row names is built, but for `MyusKoxmic` ("other"), whose behaviour no rule
// describes: that row falls to the look-up.
TEST(SelectTables, EveryNamedProcedureIsBuilt) {
    for (const TriggerTable* table : {&englishTriggerTable(), &armenianTriggerTable()}) {
        for (const TriggerRow& row : table->rows()) {
            if (row.kind != RowKind::Procedure || row.procedure == "MyusKoxmic") continue;
            EXPECT_NE(findProcedure(row.procedure), nullptr) << row.procedure;
        }
    }
    EXPECT_EQ(findProcedure("MyusKoxmic"), nullptr);
    RuleFixture f;
    Engine& e = f.at("other side", "other");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.word(), "other");
}

TEST(EnglishSelectTable, RowsOfEachKind) {
    std::size_t procedures = 0, selects = 0, rules = 0;
    for (const TriggerRow& row : englishTriggerTable().rows()) {
        if (row.kind == RowKind::Procedure) ++procedures;
        if (row.kind == RowKind::Select) ++selects;
        if (row.kind == RowKind::Rule) ++rules;
    }
    // 153 procedure rows of the select, "at", "from", "for", and the dead "hand" entry of hancnel.
    EXPECT_EQ(procedures, 157u);
    // 130 rules written in the select ("step" among the rule rows), the dead "come" entry, and the
    // row that keeps a title's full stop ("Mr.").
    EXPECT_EQ(selects, 131u);
    EXPECT_EQ(rules, 10u);
}

TEST(EnglishSelectTable, GoodSetsGoodFlagBeforeItsProcedure) {
    const TriggerRow* row = englishTriggerTable().find("good");
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->kind, RowKind::Select);
}

TEST(EnglishSelectTable, MadeIsDecidedByTheRuleOfTheSelect) {
    RuleFixture f;
    Engine& e = f.at("made sense", "made");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.word(), "made");  // not "of ": on to the look-up as it stands
    EXPECT_EQ(e.ScanPos, 5);
    EXPECT_EQ(englishTriggerTable().find("make")->procedure, "areqinc");
}

TEST(EnglishSelectTable, HandAfterClockNeverReachesItsProcedure) {
    RuleFixture f;
    Engine& e = f.at("hand is", "hand");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.word(), "hand");  // the ClockFlag row: no clock, no change
    const TriggerRow* handed = englishTriggerTable().find("handed");
    ASSERT_NE(handed, nullptr);
    EXPECT_EQ(handed->procedure, "hancnel");
}

TEST(EnglishSelectTable, ComeNeverSetsAdverbFlag) {
    RuleFixture f;
    for (const char* w : {"come", "comes", "came"}) {
        Engine& e = f.at(std::string(w) + " here", w);
        e.AdverbFlag.clear();
        e.triggerSelect();
        EXPECT_TRUE(e.AdverbFlag.empty()) << w;
        EXPECT_EQ(englishTriggerTable().find(w)->procedure, "come");
    }
    EXPECT_EQ(englishTriggerTable().find("coming")->procedure, "come");
    EXPECT_EQ(englishTriggerTable().find("wait")->procedure, "wait");
    EXPECT_EQ(englishTriggerTable().find("years")->kind, RowKind::Select);
}

TEST(EnglishSelectTable, LiteralsAreKeptAsTheyStand) {
    const TriggerTable& table = englishTriggerTable();
    for (const char* w : {"believed'", "swiming", "nowere", "reson", "arabish", "swidish", "allowd", "merries",
                          "each-"}) {
        EXPECT_NE(table.find(w), nullptr) << w;
    }
    EXPECT_EQ(table.find("believed"), nullptr);
}

TEST(EnglishSelectTable, ProcedureRowsNameTheirProcedures) {
    const TriggerTable& table = englishTriggerTable();
    const std::pair<const char*, const char*> rows[] = {
        {"a", "AAnProcedure"},      {"an", "AAnProcedure"},   {"after", "yetqe"},
        {"at", "AtProcedure"},      {"by", "ByProcedure"},    {"for", "ForProcedure"},
        {"from", "FromProcedure"},  {"in", "InProcedure"},    {"out", "OutOfProcedure"},
        {"the", "DefArtProcedure"}, {"to", "zqez"},           {"with", "WithProcedure"},
        {"be", "ToBeOrNotToBe"},    {"were", "EmEEnEin"},     {"cannot", "cnto"},
        {"never", "erbeq"},         {"there", "hon"},         {"i", "cavumem"},
        {"we", "cavumem"},          {"why", "QwestionWorsProcedure"}, {"turned", "varem_marem"},
        {"alarm", "zartucich"},     {"world", "Hamashkharhayin"},
    };
    for (const auto& [word, procedure] : rows) {
        const TriggerRow* row = table.find(word);
        ASSERT_NE(row, nullptr) << word;
        EXPECT_EQ(row->kind, RowKind::Procedure) << word;
        EXPECT_EQ(row->procedure, procedure) << word;
    }
}

TEST(EnglishSelectTable, ProceduresOfPrepositionsAndArticlesAreBuilt) {
    for (const char* name : {"AtProcedure", "FromProcedure", "ByProcedure", "WithProcedure", "OnProcedure",
                             "InProcedure", "ForProcedure", "OutOfProcedure", "yetqe", "after", "zqez",
                             "AAnProcedure", "DefArtProcedure", "QwestionWorsProcedure", "oof"}) {
        EXPECT_NE(findProcedure(name), nullptr) << name;
    }
}

TEST(Dispatch, AProcedureNotBuiltIsAWordOnNoList) {
    const TriggerTable table{std::vector<TriggerRow>{
        procedureRow({"zzz"}, "a procedure nobody wrote", R, [](Engine& e) { e.ClassChain = "set"; })}};
    RuleFixture f;
    Engine& e = f.at("zzz now", "zzz");
    EXPECT_FALSE(table.dispatch(e).has_value());
    EXPECT_EQ(f.word(), "zzz");
    EXPECT_EQ(e.ScanPos, 4);
    EXPECT_TRUE(e.ClassChain.empty());  // not even what the loop sets first
}

TEST(Dispatch, AWordOnNoListGoesToFinishUnchanged) {
    RuleFixture f;
    Engine& e = f.at("house is", "house", 0, "x");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.word(), "house");
    EXPECT_EQ(e.ScanPos, 6);
    EXPECT_EQ(f.output(), "x");
}

TEST(Dispatch, TheDirectionChoosesTheSelect) {
    RuleFixture f;
    Engine& e = f.at("the house", "the");
    e.Check1 = 1;  // Armenian source: "the" is on none of its lists
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.word(), "the");
    EXPECT_TRUE(e.ArticleEnding.empty());
    e.Check1 = 0;
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(toUtf8(e.ArticleEnding), "ը");
}

TEST(Dispatch, AtFromForBreakTheNounChainFirst) {
    for (const char* text : {"at home", "from home", "for home"}) {
        RuleFixture f;
        const std::string word = std::string(text).substr(0, std::string(text).find(' '));
        Engine& e = f.at(text, word);
        e.ClassChain = "nn";
        EXPECT_EQ(e.triggerSelect(), R) << text;
        EXPECT_EQ(e.ClassChain, " ") << text;
        EXPECT_EQ(f.word(), "") << text;
    }
}

TEST(Dispatch, QuestionWordsSetTheContractionMark) {
    RuleFixture f;
    Engine& e = f.at("what is", "what", 0, "x ");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(e.ContractionFlag, 1);
}

TEST(Dispatch, ASubstituteThatIsATriggerIsDispatchedAgain) {
    // "for days": the word becomes "by" with ScanPos on the blank; rescanned, "by" runs ByProcedure.
    RuleFixture f(kRuleLexicon + "days\tօրեր\tn\n");
    EXPECT_EQ(f.translate("for days"), "օրերով ");
}

// ---- can, may ---------------------------------------------------------------------------------

TEST(CanMay, TheModalWithThePersonsForm) {
    const std::pair<int, std::string> persons[] = {{1, "եմ "}, {2, "եք "}, {3, "ենք "}, {4, "են "}};
    for (const auto& [person, form] : persons) {
        RuleFixture f;
        Engine& e = f.at("can go", "can", 0, "x ");
        e.PersonCode = person;
        EXPECT_EQ(e.triggerSelect(), F);
        EXPECT_EQ(f.output(), "x կարող " + form);
        EXPECT_EQ(e.ToMark, "to");
        EXPECT_EQ(f.word(), "");
    }
}

TEST(CanMay, PersonFiveEndsTheRuleBeforeHaveTo) {
    RuleFixture f;
    Engine& e = f.at("can have to go", "can", 0, "x ");
    e.PersonCode = 5;
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.output(), "x կարող է ");
    EXPECT_EQ(e.ScanPos, 4);
    EXPECT_EQ(e.ToMark, "to");
}

TEST(CanMay, HaveToIsSkipped) {
    RuleFixture f;
    Engine& e = f.at("can have to go", "can", 0, "x ");
    e.PersonCode = 1;
    e.triggerSelect();
    EXPECT_EQ(e.ScanPos, 11);
}

TEST(CanMay, NotNegatesAndLeavesTheModalForTheLookUp) {
    RuleFixture f;
    Engine& e = f.at("can not go", "can", 0, "x ");
    e.PersonCode = 2;
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.output(), "x չեք ");
    EXPECT_EQ(f.word(), "can");
    EXPECT_EQ(e.ScanPos, 8);
}

TEST(CanMay, NegatedWithoutAPersonIsTheThirdPerson) {
    RuleFixture f;
    Engine& e = f.at("can not go", "can", 0, "x ");
    e.triggerSelect();
    EXPECT_EQ(f.output(), "x չի ");
    Engine& e2 = f.at("can not go", "can", 0, "x ");
    e2.ThirdPersonFlag = 1;
    e2.triggerSelect();
    EXPECT_EQ(f.output(), "x չեն ");
}

TEST(CanMay, NoPersonIsThePlural) {
    RuleFixture f;
    Engine& e = f.at("may go", "may", 0, "x ");
    e.triggerSelect();
    EXPECT_EQ(f.output(), "x կարող են ");
}

TEST(CanMay, AContractionHandsOverItsNegation) {
    // "can't": the scanner leaves ScanPos two back from the apostrophe, before "n't ".
    RuleFixture f;
    Engine& e = f.at("can't go", "can", 2, "x ");
    e.ContractionFlag = 1;
    e.PersonCode = 1;
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.output(), "x չեմ ");
    EXPECT_EQ(e.ScanPos, 6);
    Engine& typographic = f.at("can\u2019t go", "can", 2, "x ");
    typographic.PersonCode = 1;
    typographic.triggerSelect();
    EXPECT_EQ(f.output(), "x չեմ ");
    // Without the contraction mark the rest of a word is no negation.
    Engine& plain = f.at("can't go", "can", 2, "x ");
    plain.ContractionFlag.clear();
    plain.triggerSelect();
    EXPECT_EQ(f.output(), "x կարող եմ ");
}

TEST(CanMay, BeIsPossible) {
    RuleFixture f;
    Engine& e = f.at("can be done", "can", 0, "x ");
    e.PersonCode = 5;
    e.triggerSelect();
    EXPECT_EQ(f.word(), "possible");
    EXPECT_EQ(e.ScanPos, 7);
    EXPECT_EQ(f.output(), "x է ");
}

TEST(CanMay, MayWithAnEndingIsTheMonth) {
    RuleFixture f;
    Engine& e = f.at("may 5", "may", 0, "x ");
    e.PendingEnding = ft("ի մեջ");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.output(), "x մայիսին");
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(f.ending(), "ին");
    Engine& can = f.at("can go", "can", 0, "x ");  // "can" with an ending is the modal
    can.PendingEnding = ft("ի մեջ");
    can.triggerSelect();
    EXPECT_EQ(f.output(), "x կարող են ");
}

// ---- could, might; shall, will, must ---------------------------------------------------------

TEST(CouldMight, PastForms) {
    const std::pair<int, std::string> persons[] = {{1, "էի "}, {2, "էիք "}, {3, "էինք "}, {4, "էին "}, {5, "էր "}};
    for (const auto& [person, form] : persons) {
        RuleFixture f;
        Engine& e = f.at("could go", "could", 0, "x ");
        e.PersonCode = person;
        EXPECT_EQ(e.triggerSelect(), F);
        EXPECT_EQ(f.output(), "x կարող " + form);
        EXPECT_EQ(e.ToMark, "to");
    }
}

TEST(CouldMight, ThirdPersonMarkAndNoPerson) {
    RuleFixture f;
    Engine& e = f.at("might go", "might", 0, "x ");
    e.ThirdPersonFlag = 1;
    e.triggerSelect();
    EXPECT_EQ(f.output(), "x գուցե էին ");
    Engine& none = f.at("might go", "might", 0, "x ");
    none.ThirdPersonFlag.clear();
    none.triggerSelect();
    EXPECT_EQ(f.output(), "x գուցե ");
}

TEST(CouldMight, NotAndHaveTo) {
    RuleFixture f;
    Engine& e = f.at("could not have to go", "could", 0, "x ");
    e.PersonCode = 1;
    e.triggerSelect();
    EXPECT_EQ(f.output(), "x չէի ");
    EXPECT_EQ(e.ScanPos, 6 + 4 + 7);
    EXPECT_EQ(f.word(), "could");
}

TEST(ShallWillMust, NotNegatesAndMarksTheInfinitive) {
    RuleFixture f;
    Engine& e = f.at("will not go", "will", 0, "x ");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.output(), "x չ");
    EXPECT_EQ(e.ScanPos, 9);
    EXPECT_EQ(e.ToMark, "to");
    EXPECT_EQ(f.word(), "will");
}

TEST(ShallWillMust, HaveToIsSkipped) {
    RuleFixture f;
    Engine& e = f.at("must have to go", "must", 0, "x ");
    e.triggerSelect();
    EXPECT_EQ(e.ScanPos, 12);
    EXPECT_TRUE(e.ToMark.empty());
    EXPECT_EQ(f.word(), "must");
}

// ---- did, do, does --------------------------------------------------------------------------

TEST(Did, DidNotByPerson) {
    const std::pair<int, std::string> persons[] = {
        {1, "չէի"}, {2, "չէիք"}, {3, "չէինք"}, {4, "չէին"}, {5, "չէր"}};
    for (const auto& [person, form] : persons) {
        RuleFixture f;
        Engine& e = f.at("did not go", "did", 0, "x ");
        e.PersonCode = person;
        EXPECT_EQ(e.triggerSelect(), F);
        EXPECT_EQ(f.output(), "x " + form);
        EXPECT_EQ(f.word(), "");
        EXPECT_EQ(e.ScanPos, 7);
        EXPECT_EQ(e.NoApostropheMark, "n't");
        EXPECT_EQ(toUtf8(e.VerbFormMark), "ում");
    }
}

TEST(Did, TheContractionIsTheNegation) {
    RuleFixture f;
    Engine& e = f.at("didn't go", "did", 4, "x ");
    e.ContractionFlag = 1;
    e.PersonCode = 3;
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.output(), "x չէինք");
    EXPECT_EQ(e.ScanPos, 7);
    EXPECT_EQ(f.word(), "");
}

TEST(Did, NoPersonWritesNothing) {
    RuleFixture f;
    Engine& e = f.at("did not go", "did", 0, "x ");
    e.triggerSelect();
    EXPECT_EQ(f.output(), "x ");
}

TEST(Did, AtASentenceStartIsDo) {
    RuleFixture f;
    Engine& e = f.at("did you go", "did");
    e.triggerSelect();
    EXPECT_EQ(f.word(), "do");
    Engine& after = f.at("did you go", "did", 0, "x: ");
    after.triggerSelect();
    EXPECT_EQ(f.word(), "do");
    // The line break is tested as LF CR.
    Engine& lfcr = f.at("did you go", "did", 0, "x\n\r");
    lfcr.triggerSelect();
    EXPECT_EQ(f.word(), "do");
    Engine& crlf = f.at("did you go", "did", 0, "x\r\n");
    crlf.triggerSelect();
    EXPECT_EQ(f.word(), "did");
}

TEST(Did, AContractionClearsTheWord) {
    RuleFixture f;
    Engine& e = f.at("did it", "did", 0, "x ");
    e.ContractionFlag = 1;
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.word(), "");
}

TEST(Do, DoNotByPerson) {
    const std::pair<int, std::string> persons[] = {{1, "չեմ"}, {2, "չեք"}, {3, "չենք"}, {4, "չեն"}, {5, "չեն"}};
    for (const auto& [person, form] : persons) {
        RuleFixture f;
        Engine& e = f.at("do not go", "do", 0, "x ");
        e.PersonCode = person;
        EXPECT_EQ(e.triggerSelect(), R);
        EXPECT_EQ(f.output(), "x " + form);
        EXPECT_EQ(f.word(), "");
        EXPECT_EQ(e.ScanPos, 7);
        EXPECT_TRUE(e.PersonCode.empty());
        EXPECT_EQ(toUtf8(e.VerbFormMark), "ում");
    }
}

TEST(Do, DoNotAtASentenceStartOrImperativeIsTheProhibitive) {
    RuleFixture f;
    Engine& e = f.at("do not go", "do");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "one-");
    EXPECT_EQ(f.output(), "");
    Engine& imp = f.at("do not go", "do", 0, "x, ");
    imp.ImperativeFlag = 1;
    imp.triggerSelect();
    EXPECT_EQ(f.word(), "one-");
    EXPECT_EQ(f.output(), "x, ");
}

TEST(Do, TheContractionIsTheNegation) {
    RuleFixture f;
    Engine& e = f.at("don't go", "do", 2, "x ");
    e.ContractionFlag = 1;
    e.PersonCode = 2;
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.output(), "x չեք");
    EXPECT_EQ(e.ScanPos, 6);
}

TEST(Do, WithoutNotFinishes) {
    RuleFixture f;
    Engine& e = f.at("do it", "do", 0, "x ");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.word(), "do");
    Engine& love = f.at("do love", "do", 0, "x ");
    love.triggerSelect();
    EXPECT_EQ(f.word(), "");
    Engine& contracted = f.at("do it", "do", 0, "x ");
    contracted.ContractionFlag = 1;
    contracted.triggerSelect();
    EXPECT_EQ(f.word(), "");
}

TEST(Does, DoesNotAndDoes) {
    RuleFixture f;
    Engine& e = f.at("does not go", "does", 0, "x ");
    e.PersonCode = 5;
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.output(), "x չի");
    EXPECT_EQ(e.ScanPos, 9);
    EXPECT_TRUE(e.PersonCode.empty());
    EXPECT_EQ(toUtf8(e.VerbFormMark), "ում");
    Engine& plain = f.at("does it", "does", 0, "x ");
    EXPECT_EQ(plain.triggerSelect(), F);
    EXPECT_EQ(f.word(), "do");
    EXPECT_EQ(plain.DoFlag, 1);
    Engine& contracted = f.at("does it", "does", 0, "x ");
    contracted.ContractionFlag = 1;
    contracted.ThirdPersonFlag = 1;
    contracted.triggerSelect();
    EXPECT_TRUE(contracted.ThirdPersonFlag.empty());
    EXPECT_EQ(f.word(), "do");
}

// ---- have, had, has, having ---------------------------------------------------------------------

TEST(Have, BeenIsThePerfect) {
    RuleFixture f;
    Engine& e = f.at("has been here", "has", 0, "Նա ");
    e.ThirdPersonFlag = 1;
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "been");
    EXPECT_EQ(e.ScanPos, 9);
    EXPECT_EQ(e.PerfectFlag, 1);
    EXPECT_EQ(e.PersonCode, 5);
    EXPECT_TRUE(e.ThirdPersonFlag.empty());
}

TEST(Have, HadHadIsAte) {
    RuleFixture f;
    Engine& e = f.at("had had lunch", "had", 0, "Նա ");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.output(), "Նա կերավ");
    EXPECT_EQ(e.ScanPos, 7);
    EXPECT_EQ(f.word(), "");
    EXPECT_TRUE(e.HaveForm.empty());
}

TEST(Have, ADigitAfterFinishes) {
    RuleFixture f;
    Engine& e = f.at("have 3 cars", "have", 0, "Ես ");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.word(), "have");
    EXPECT_TRUE(e.HaveForm.empty());
}

TEST(Have, NotWithABlankCallsWoch) {
    RuleFixture f;
    Engine& e = f.at("have not seen", "have", 0, "Ես ");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(e.ScanPos, 9);
    EXPECT_EQ(toUtf8(e.NegationMark), "չ");
    Engine& nothing = f.at("have nothing", "have", 0, "Ես ");
    nothing.NegationMark.clear();
    EXPECT_EQ(nothing.triggerSelect(), F);
    EXPECT_EQ(f.word(), "have");
    EXPECT_TRUE(nothing.NegationMark.empty());
}

TEST(Have, NoNegates) {
    RuleFixture f;
    Engine& e = f.at("has no money", "has", 0, "Նա ");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "haves");
    EXPECT_EQ(toUtf8(e.PendingCopula), "է");
    EXPECT_EQ(f.output(), "Նա չ");
    EXPECT_EQ(e.ScanPos, 7);
    Engine& have = f.at("have no money", "have", 0, "Ես ");
    have.PendingCopula.clear();
    have.ThirdPersonFlag = 1;
    EXPECT_EQ(have.triggerSelect(), R);
    EXPECT_EQ(f.word(), "have");
    EXPECT_TRUE(have.PendingCopula.empty());
    EXPECT_TRUE(have.ThirdPersonFlag.empty());
}

TEST(Have, ToIsMustOrNecessity) {
    RuleFixture f;
    Engine& e = f.at("have to go", "have", 0, "Ես ");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "must");
    EXPECT_EQ(e.ScanPos, 8);
    Engine& having = f.at("having to go", "having", 0, "Ես ");
    EXPECT_EQ(having.triggerSelect(), R);
    EXPECT_EQ(f.word(), "necessity");
    EXPECT_EQ(f.ending(), "ի");
    EXPECT_EQ(having.ScanPos, 7);
}

TEST(Have, GotIsHad) {
    RuleFixture f;
    Engine& e = f.at("have got a", "have", 0, "Ես ");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "had");
    EXPECT_EQ(e.ScanPos, 9);
}

TEST(Have, OtherwiseTheHaveFormForTheNextWord) {
    const std::pair<const char*, int> forms[] = {{"have", 1}, {"had", 2}, {"has", 3}};
    for (const auto& [word, form] : forms) {
        RuleFixture f;
        Engine& e = f.at(std::string(word) + " a car", word, 0, "Ես ");
        EXPECT_EQ(e.triggerSelect(), F);
        EXPECT_EQ(e.HaveForm, form);
        EXPECT_EQ(f.word(), "");
    }
    RuleFixture f;
    Engine& e = f.at("having a car", "having", 0, "Ես ");
    e.HaveForm = 2;
    e.triggerSelect();
    EXPECT_EQ(e.HaveForm, 2);
}

// ---- of, on ---------------------------------------------------------------------------------

TEST(Of, ItIsIts) {
    RuleFixture f;
    Engine& e = f.at("of it is", "of");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "its");
    EXPECT_EQ(e.ScanPos, 6);
    EXPECT_EQ(e.ClassChain, " ");
}

TEST(Of, CourseIsCertainly) {
    RuleFixture f;
    Engine& e = f.at("of course not", "of");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "certainly");
    EXPECT_EQ(e.ScanPos, 10);
}

TEST(Of, WhichIsEmittedAndTheGenitiveFollows) {
    RuleFixture f;
    Engine& e = f.at("of which the", "of", 0, "x ");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.output(), "x որից");
    EXPECT_EQ(e.ScanPos, 3 + 5 + 1);
    EXPECT_EQ(f.ending(), "ի");
}

TEST(Of, ThemClearsTheEndingThatTheGenitiveSetsAgain) {
    RuleFixture f;
    Engine& e = f.at("of them", "of");
    e.PendingEnding = ft("ից");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.ending(), "ի");
    EXPECT_EQ(e.ScanPos, 4);
}

TEST(Of, AfterACopulaIsIntroducing) {
    RuleFixture f;
    Engine& e = f.at("of the", "of");
    e.PendingCopula = ft("է");
    e.SentenceClasses = "pv";
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "introducing");
    EXPECT_EQ(e.ScanPos, 3);
    Engine& noun = f.at("of the", "of");
    noun.SentenceClasses = "pn";
    EXPECT_EQ(noun.triggerSelect(), R);
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(f.ending(), "ի");
}

TEST(Of, OtherwiseTheGenitive) {
    RuleFixture f;
    Engine& e = f.at("of the house", "of");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.word(), "");
    EXPECT_EQ(f.ending(), "ի");
    EXPECT_EQ(e.ClassChain, " ");
    EXPECT_EQ(e.ScanPos, 4);
}

TEST(Of, AccurateTranslationTurnsTheGroupRound) {
    RuleFixture f;
    f.host.setChecked(MenuItem::IMPV, true);
    Engine& e = f.at("of John", "of", 0, "Ես տեսա տունը");
    e.SentenceClasses = "pvn";
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.output(), "Ես տեսա");
    EXPECT_EQ(toUtf8(e.HeldConjunction), " տունը");
    EXPECT_EQ(f.ending(), "ի");
}

TEST(OnUpon, DutyIsInTurn) {
    RuleFixture f(kRuleLexicon + "moment\tպահ\tx\n");
    Engine& e = f.at("on duty now", "on", 0, "x ");
    EXPECT_EQ(e.triggerSelect(), F);
    EXPECT_EQ(f.output(), "x հերթա");
    EXPECT_EQ(f.word(), "moment");
    EXPECT_EQ(e.ScanPos, 7);
}

TEST(OnUpon, OtherwiseOnProcedure) {
    RuleFixture f;
    Engine& e = f.at("upon the table", "upon");
    EXPECT_EQ(e.triggerSelect(), R);
    EXPECT_EQ(f.ending(), "ի վրա");
    EXPECT_EQ(e.ScanPos, 6);
}

}  // namespace
}  // namespace vorlexa::contract_test
