// The trigger select of Armenian source text: which row holds a word, and each rule written in the
// select with a word that takes it and one that misses it.
#include <gtest/gtest.h>

#include "analysis/hy_en_fixture.h"
#include "rules/selects.h"

namespace vorlexa::test {
namespace {

using namespace literals;

struct Select : HyEnFixture {
    Select(const std::string& word, const std::string& after = "", const std::string& before = "") {
        at(word, after, before);
        start = e().ScanPos;
    }
    std::optional<TriggerReturn> run() { return armenianSelect(e()); }
    std::string word() { return toUtf8(e().CurrentWord); }
    std::int64_t moved() { return e().ScanPos - start; }
    std::int64_t start = 0;
};

std::string_view procedureOf(const std::string& word) {
    const TriggerRow* row = armenianTriggerTable().find(fromUtf8(word));
    if (row == nullptr || row->kind != RowKind::Procedure) return {};
    return row->procedure;
}

TEST(ArmenianSelect, ProcedureRowsNameTheirProcedures) {
    EXPECT_EQ(procedureOf("ամեն"), "ameninch");
    EXPECT_EQ(procedureOf("բարեվ"), "barevdzez");
    EXPECT_EQ(procedureOf("իրիկուն"), "bariluyss");
    EXPECT_EQ(procedureOf("երբեք"), "erbeq");
    EXPECT_EQ(procedureOf("համարներով"), "hamarist");
    EXPECT_EQ(procedureOf("մեկ"), "odin");
    EXPECT_EQ(procedureOf("մեզը"), "shers");
    EXPECT_EQ(procedureOf("մասերում"), "xmas");
    EXPECT_EQ(procedureOf("նշանակում"), "nshnk");
    EXPECT_EQ(procedureOf("ոչ"), "woch");
    EXPECT_EQ(procedureOf("տակերումդ"), "tak");
    EXPECT_EQ(procedureOf("վրաներովդ"), "tak");
    EXPECT_EQ(procedureOf("ցավում"), "cavumem");
    EXPECT_EQ(procedureOf("դյուզն"), "dyuzninch");
    EXPECT_EQ(procedureOf("օրս"), "ors");
    EXPECT_EQ(procedureOf("տուն"), "");
}

TEST(ArmenianSelect, AWordOnTwoListsIsDecidedByItsFirstRow) {
    // "և" reaches the look-up itself, never the row that makes it "ու".
    EXPECT_EQ(procedureOf("և"), "teqst_dblclick");
    // "ես" reaches only its own rule, not the row of the copulas after "could".
    const TriggerRow* es = armenianTriggerTable().find("ես"_ft);
    ASSERT_NE(es, nullptr);
    EXPECT_EQ(es->kind, RowKind::Rule);
    // "թ" reaches only the abbreviation row, not the row of the hyphenated endings.
    Select t("թ", "", "1990-");
    t.run();
    EXPECT_EQ(t.word(), "թ");
    EXPECT_EQ(t.output(), "1990-");
}

TEST(ArmenianSelect, AWordOnNoListGoesOnUnchanged) {
    Select s("տուն");
    EXPECT_FALSE(s.run());
    EXPECT_EQ(s.word(), "տուն");
}

TEST(ArmenianSelect, AddressesPassThrough) {
    HyEnFixture f;
    f.e().SourceText = "http://x.am ok ";
    f.e().ScanPos = 5;
    f.e().CurrentWord = "http";
    EXPECT_EQ(armenianSelect(f.e()), TriggerReturn::Rescan);
    EXPECT_EQ(f.output(), "http://x.am");
    EXPECT_TRUE(f.e().CurrentWord.empty());
}

TEST(ArmenianSelect, AydTvum) {
    Select s("այս", "թվում");
    EXPECT_EQ(s.run(), TriggerReturn::Finish);
    EXPECT_EQ(s.word(), "ներառնող");
    EXPECT_EQ(s.moved(), 6);
    Select capital("այդ", "Թվում");
    capital.run();
    EXPECT_EQ(capital.word(), "ներառնող");
    Select miss("այդ", "թիվ");
    miss.run();
    EXPECT_EQ(miss.word(), "այդ");
    EXPECT_EQ(miss.moved(), 0);
}

TEST(ArmenianSelect, AveliShat) {
    Select s("ավելի", "շատ");
    s.run();
    EXPECT_EQ(s.output(), "more");
    EXPECT_EQ(s.word(), "");
    EXPECT_EQ(s.moved(), 4);
    Select miss("ավելի", "լավ");
    miss.run();
    EXPECT_EQ(miss.word(), "ավելի");
}

TEST(ArmenianSelect, FutureParticiplesTakeTheirPerfectStem) {
    Select gal("գալու");
    gal.run();
    EXPECT_EQ(gal.word(), "եկելու");
    Select lal("լալու");
    lal.run();
    EXPECT_EQ(lal.word(), "լացելու");
    Select tal("տալու");
    tal.run();
    EXPECT_EQ(tal.word(), "տվելու");
}

TEST(ArmenianSelect, EsAfterAPresentOrAPerfect) {
    HyEnFixture f;
    f.e().SourceText = fromUtf8("գրում ես ");
    f.e().ScanPos = 9;
    f.e().CurrentWord = "ես"_ft;
    armenianSelect(f.e());
    EXPECT_EQ(toUtf8(f.e().CurrentWord), "եք");

    HyEnFixture g;
    g.e().SourceText = fromUtf8("գրել ես ");
    g.e().ScanPos = 8;
    g.e().CurrentWord = "ես"_ft;
    g.e().OutputText = "write ";
    armenianSelect(g.e());
    EXPECT_EQ(g.output(), "writed");
    EXPECT_TRUE(g.e().CurrentWord.empty());
    g.e().OutputText = "write  ";
    g.e().CurrentWord = "ես"_ft;
    armenianSelect(g.e());
    EXPECT_EQ(g.output(), "write ed");

    Select early("ես", "գիրք");  // ScanPos 3: too early in the text to look back
    EXPECT_EQ(early.run(), TriggerReturn::Finish);
    EXPECT_EQ(early.word(), "ես");
}

TEST(ArmenianSelect, ElavOut) {
    Select s("ելավ");
    s.run();
    EXPECT_EQ(s.output(), "came out");
    EXPECT_EQ(s.word(), "");
}

TEST(ArmenianSelect, CopulasAfterCould) {
    Select s("եմ");
    s.e().CouldFlag = 1;
    s.run();
    EXPECT_EQ(s.word(), "");
    EXPECT_TRUE(s.e().CouldFlag.empty());
    Select miss("եմ");
    miss.run();
    EXPECT_EQ(miss.word(), "եմ");

    Select past("էի", "", "I could");
    past.e().CouldFlag = 1;
    past.run();
    EXPECT_EQ(past.word(), "կարողղ");
    EXPECT_EQ(past.output(), "I c");
    EXPECT_TRUE(past.e().CouldFlag.empty());
    Select pastMiss("էի", "", "I could");
    pastMiss.run();
    EXPECT_EQ(pastMiss.word(), "էի");
    EXPECT_EQ(pastMiss.output(), "I could");
}

TEST(ArmenianSelect, ArticleLettersAloneVanish) {
    Select s("ը");
    EXPECT_EQ(s.run(), TriggerReturn::Rescan);
    EXPECT_EQ(s.word(), "");
    Select i("ի");
    EXPECT_EQ(i.run(), TriggerReturn::Rescan);
}

TEST(ArmenianSelect, Able) {
    Select s("ընդունակ");
    s.run();
    EXPECT_EQ(s.e().AbleFlag, 1);
    EXPECT_EQ(s.word(), "ընդունակ");
}

TEST(ArmenianSelect, YearAbbreviation) {
    HyEnFixture f;
    f.e().SourceText = fromUtf8("թ. ");
    f.e().ScanPos = 2;
    f.e().CurrentWord = "թ"_ft;
    f.e().RawWord = "թ"_ft;
    armenianSelect(f.e());
    EXPECT_EQ(f.e().ScanPos, 3);
    EXPECT_TRUE(f.e().CurrentWord.empty());
    Select miss("թ");
    miss.run();
    EXPECT_EQ(miss.word(), "թ");
}

TEST(ArmenianSelect, TelAviv) {
    Select s("թել", "Ավիվ");
    s.run();
    EXPECT_EQ(s.word(), "թել-ավիվ");
    EXPECT_EQ(s.moved(), 0);
    Select miss("թել", "տուն");
    miss.run();
    EXPECT_EQ(miss.word(), "թել");
}

TEST(ArmenianSelect, InchpesNaev) {
    Select s("ինչպես", "նաև");
    s.run();
    EXPECT_EQ(s.word(), "");
    Select miss("ինչպես", "միշտ");
    miss.run();
    EXPECT_EQ(miss.word(), "ինչպես");
}

TEST(ArmenianSelect, MyRowAndNumber) {
    Select s("թիվս", "", "x");
    s.e().PendingEnding = "s";
    s.run();
    EXPECT_EQ(s.word(), "թիվ");
    EXPECT_EQ(s.output(), "xin ");
    EXPECT_TRUE(s.e().PendingEnding.empty());
}

TEST(ArmenianSelect, InchVor) {
    Select s("ինչ", "որ տուն");
    s.run();
    EXPECT_EQ(s.word(), "որոշ");
    EXPECT_EQ(s.moved(), 2);
    Select miss("ինչ", "որքան");
    miss.run();
    EXPECT_EQ(miss.word(), "ինչ");
}

TEST(ArmenianSelect, BornKeepsItsEnding) {
    Select s("ծնվեցի");
    s.run();
    EXPECT_EQ(s.word(), "ծնվելեցի");
    EXPECT_TRUE(s.e().WordTail.empty());
}

TEST(ArmenianSelect, KartsesTe) {
    Select s("կարծես", "թե գիտի");
    s.run();
    EXPECT_EQ(s.word(), "կարծես");
    EXPECT_EQ(s.moved(), 3);
    Select miss("կարծես", "թեև");
    miss.run();
    EXPECT_EQ(miss.moved(), 0);
}

TEST(ArmenianSelect, HentsHima) {
    Select s("հենց", "հիմա");
    s.run();
    EXPECT_EQ(s.word(), "աջ");
    Select miss("հենց", "այդ");
    miss.run();
    EXPECT_EQ(miss.word(), "հենց");
}

TEST(ArmenianSelect, MotherFatherBrotherDative) {
    for (const auto& [word, key] : {std::pair{"մորը", "մայրին"}, {"հորը", "հայրին"}, {"եղբորը", "եղբայրին"}}) {
        Select s(word);
        s.run();
        EXPECT_EQ(s.word(), key);
    }
}

TEST(ArmenianSelect, NegativeCopulaBeforeCan) {
    for (const char* word : {"չէր", "չեմ", "չի"}) {
        Select s(word);
        s.e().CanFlag = 1;
        s.run();
        EXPECT_EQ(s.word(), "չի կրնա") << word;
        EXPECT_TRUE(s.e().CanFlag.empty());
    }
    Select miss("չեմ", "գիտի");
    miss.run();
    EXPECT_EQ(miss.word(), "չեմ");
}

TEST(ArmenianSelect, CastIron) {
    Select s("չուգուն");
    s.run();
    EXPECT_EQ(s.word(), "թուջ");
}

TEST(ArmenianSelect, VerjinShrjanum) {
    Select s("վերջին", "շրջանում");
    s.run();
    EXPECT_EQ(s.word(), "վերջերս");
    EXPECT_EQ(s.moved(), 8);
    // "շրջանի" is compared over eight characters: with a word after it, it never matches.
    Select genitive("վերջին", "շրջանի տուն");
    genitive.run();
    EXPECT_EQ(genitive.word(), "վերջին");
}

TEST(ArmenianSelect, EndingAfterAHyphen) {
    Select s("ից", "", "1990-");
    s.run();
    EXPECT_EQ(s.word(), "");
    EXPECT_EQ(s.output(), "1990");
    Select miss("ին", "", "1990 ");
    miss.run();
    EXPECT_EQ(miss.word(), "ին");
    EXPECT_EQ(miss.output(), "1990 ");
}

TEST(ArmenianSelect, DryBreadHowManyBrave) {
    Select dry("ցամաք", "հաց");
    dry.run();
    EXPECT_EQ(dry.word(), "չոր");
    Select many("քանիսով");
    many.run();
    EXPECT_EQ(many.word(), "որքան");
    Select brave("քաջ", "հայտնի");
    brave.run();
    EXPECT_EQ(brave.word(), "ավելի լավ");
    Select braveMiss("քաջ", "մարդ");
    braveMiss.run();
    EXPECT_EQ(braveMiss.word(), "քաջ");
}

TEST(ArmenianSelect, ForGodsSake) {
    Select s("քավ", "լիցի");
    s.run();
    EXPECT_EQ(s.output(), "for God's sake");
    EXPECT_EQ(s.word(), "");
    EXPECT_EQ(s.moved(), 4);
}

TEST(ArmenianSelect, SisterWord) {
    Select s("քրոջը", "որ գիտի");
    s.run();
    EXPECT_EQ(s.word(), "իբրև");
    EXPECT_EQ(s.moved(), 3);
    Select miss("քրոջն", "տուն");
    miss.run();
    EXPECT_EQ(miss.word(), "քույրին");
    EXPECT_EQ(miss.moved(), 0);
}

TEST(ArmenianSelect, ProcedureRowsReturnByFinish) {
    Select s("ամեն", "ինչ");
    EXPECT_EQ(s.run(), TriggerReturn::Finish);
    EXPECT_EQ(s.output(), "everything");
}

}  // namespace
}  // namespace vorlexa::test
