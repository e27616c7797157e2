// Fixed expressions of Armenian source text: each rule with its tests in order, a match and a miss.
#include "rules/armenian_expressions.h"

#include <gtest/gtest.h>

#include "analysis/hy_en_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

// The engine as a rule finds it: the trigger in CurrentWord, ScanPos on the delimiter after it.
struct Rule : HyEnFixture {
    Rule(const std::string& word, const std::string& after = "", const std::string& before = "") {
        at(word, after, before);
        start = e().ScanPos;
    }
    std::string word() { return toUtf8(e().CurrentWord); }
    std::int64_t moved() { return e().ScanPos - start; }
    std::int64_t start = 0;
};

TEST(ArmenianExpressions, Mekangam) {
    Rule a("մի", "քանի անգամ");
    mekangam(a.e());
    EXPECT_EQ(a.output(), "for several times");
    EXPECT_EQ(a.word(), "");
    EXPECT_EQ(a.moved(), 10);

    Rule b("մի", "քանի տուն");
    mekangam(b.e());
    EXPECT_EQ(b.word(), "մի քանի");
    EXPECT_EQ(b.moved(), 5);

    Rule c("մի", "անգամ");
    mekangam(c.e());
    EXPECT_EQ(c.word(), "մեկ անգամ");
    EXPECT_EQ(c.moved(), 6);

    Rule d("մի", "շարք");
    mekangam(d.e());
    EXPECT_EQ(d.output(), "a number of");
    EXPECT_EQ(d.word(), "");
    EXPECT_EQ(d.moved(), 5);

    Rule e("մի", "քիչ");
    mekangam(e.e());
    EXPECT_EQ(e.output(), "a ");
    EXPECT_EQ(e.word(), "փոքրիկ");
    EXPECT_EQ(e.moved(), 4);
    Rule f("մի", "փոքր");
    mekangam(f.e());
    EXPECT_EQ(f.word(), "փոքրիկ");

    Rule g("մի", "Խոսքով");
    mekangam(g.e());
    EXPECT_EQ(g.output(), "briefer");
    EXPECT_EQ(g.moved(), 6);

    Rule miss("մի", "տուն");
    mekangam(miss.e());
    EXPECT_EQ(miss.word(), "մի");
    EXPECT_EQ(miss.moved(), 0);
    EXPECT_EQ(miss.output(), "");
}

TEST(ArmenianExpressions, AmeninchMakesEverythingTheWordGroupAPostpositionGoesBefore) {
    Rule r("ամեն", "ինչ");
    ameninch(r.e());
    // "everything" is ten letters: a postposition after it goes in front of all of them.
    EXPECT_EQ(r.e().CopyDepth, 10);
    EXPECT_EQ(r.e().VerbBackOffset, 10);
}

TEST(ArmenianExpressions, AmeninchAndDyuzninch) {
    for (const char* next : {"ինչ", "բան"}) {
        Rule r("ամեն", next);
        ameninch(r.e());
        EXPECT_EQ(r.output(), "everything");
        EXPECT_EQ(r.word(), "");
        EXPECT_EQ(r.moved(), 3);
    }
    Rule miss("ամեն", "օր");
    ameninch(miss.e());
    EXPECT_EQ(miss.word(), "ամեն");

    for (const char* next : {"ինչ", "իսկ"}) {
        Rule r("դյուզն", next);
        dyuzninch(r.e());
        EXPECT_EQ(r.output(), "a ");
        EXPECT_EQ(r.word(), "փոքրիկ");
        EXPECT_EQ(r.moved(), 3);
    }
    Rule m2("փոքր", "տուն");
    dyuzninch(m2.e());
    EXPECT_EQ(m2.word(), "փոքր");
}

TEST(ArmenianExpressions, AncavEverySecondInASentence) {
    HyEnFixture f;
    Engine& e = f.e();
    e.SourceText = fromUtf8("անցավ, անցավ, անցավ: անցավ ");
    const auto at = [&](std::int64_t pos) {
        e.CurrentWord = "անցավ"_ft;
        e.ScanPos = pos;
        ancav(e);
        return toUtf8(e.CurrentWord);
    };
    EXPECT_EQ(at(6), "անցավ");
    EXPECT_EQ(at(13), "առանցցավի");
    EXPECT_EQ(at(20), "անցավ");
    // A new sentence counts from nothing again.
    EXPECT_EQ(at(28), "անցավ");
}

TEST(ArmenianExpressions, Ansharzhguyq) {
    Rule r("անշարժ", "գույք");
    ansharzhguyq(r.e());
    EXPECT_EQ(r.output(), "real estate ");
    EXPECT_EQ(r.moved(), 5);
    Rule miss("անշարժ", "տուն");
    ansharzhguyq(miss.e());
    EXPECT_EQ(miss.word(), "անշարժ");
}

TEST(ArmenianExpressions, ApatewochAndTeche) {
    Rule r("ապա", "թե ոչ");
    apatewoch(r.e());
    EXPECT_EQ(r.word(), "այլապես");
    EXPECT_EQ(r.moved(), 5);
    Rule miss("ապա", "թե");
    apatewoch(miss.e());
    EXPECT_EQ(miss.word(), "ապա");

    Rule t("թե", "չէ");
    teche(t.e());
    EXPECT_EQ(t.word(), "այլապես");
    EXPECT_EQ(t.moved(), 3);
    Rule t2("թե", "չէ, ոչ");
    teche(t2.e());
    EXPECT_EQ(t2.word(), "այլապես");
    Rule tmiss("թե", "չէր");
    teche(tmiss.e());
    EXPECT_EQ(tmiss.word(), "թե");
}

TEST(ArmenianExpressions, ArdeniskSkipsOnly) {
    Rule r("արդեն", "իսկ");
    ardenisk(r.e());
    EXPECT_EQ(r.word(), "արդեն");
    EXPECT_EQ(r.moved(), 4);
    Rule miss("արդեն", "տուն");
    ardenisk(miss.e());
    EXPECT_EQ(miss.moved(), 0);
}

TEST(ArmenianExpressions, Barevdzez) {
    for (const char* next : {"ձեզ", "Ձեզ"}) {
        Rule r("բարեվ", next);
        barevdzez(r.e());
        EXPECT_EQ(r.word(), "բարև");
        EXPECT_EQ(r.moved(), 3);
    }
}

TEST(ArmenianExpressions, BarigoodAndTheGreetings) {
    Rule r("բարի", "գալուստ");
    barigood(r.e());
    EXPECT_EQ(r.e().GoodFlag, 1);
    EXPECT_EQ(r.word(), "բարի գալուստ");
    EXPECT_EQ(r.moved(), 7);
    Rule plain("բարի", "մարդ");
    barigood(plain.e());
    EXPECT_EQ(plain.e().GoodFlag, 1);
    EXPECT_EQ(plain.word(), "բարի");

    Rule day("օր", "", "Kind ");
    day.e().GoodFlag = 1;
    bariluyss(day.e());
    EXPECT_EQ(day.output(), "Good ");
    Rule noFlag("օր", "", "Kind ");
    bariluyss(noFlag.e());
    EXPECT_EQ(noFlag.output(), "Kind ");
}

TEST(ArmenianExpressions, Luys) {
    Rule r("լույս", "", "Kind ");
    r.e().GoodFlag = 1;
    luys(r.e());
    EXPECT_EQ(r.output(), "Good ");
    EXPECT_EQ(r.word(), "առավոտ");
    EXPECT_TRUE(r.e().GoodFlag.empty());

    Rule lower("լույս", "", "it is kind ");
    luys(lower.e());
    EXPECT_EQ(lower.output(), "it is good ");
    EXPECT_EQ(lower.word(), "առավոտ");

    Rule noFlag("լույս", "", "Kind ");
    luys(noFlag.e());
    EXPECT_EQ(noFlag.word(), "լույս");
    Rule shortOutput("լույս", "", "kind");
    shortOutput.e().GoodFlag = 1;
    luys(shortOutput.e());
    EXPECT_EQ(shortOutput.output(), "kind");
}

TEST(ArmenianExpressions, Mecgood) {
    Rule r("մեծ", "Բրիտանիա");
    mecgood(r.e());
    EXPECT_EQ(r.output(), "Great");
    EXPECT_EQ(r.word(), "");
    Rule greeting("մեծ", "տուն", "Kind ");
    greeting.e().GoodFlag = 1;
    mecgood(greeting.e());
    EXPECT_EQ(greeting.output(), "Good ");
    EXPECT_EQ(greeting.word(), "մեծ");
}

TEST(ArmenianExpressions, BoziTxa) {
    Rule r("բոզի", "տղա ես");
    bozi_txa(r.e());
    EXPECT_EQ(r.output(), "son of a ");
    EXPECT_EQ(r.word(), "բոզ");
    EXPECT_EQ(r.e().ScanPos, 9);  // the blank after "տղա"
    EXPECT_EQ(r.e().WordTag, "     ");
    Rule miss("բոզի", "տուն");
    bozi_txa(miss.e());
    EXPECT_EQ(miss.output(), "");
}

TEST(ArmenianExpressions, Hazivte) {
    Rule r("դժվար", "թե");
    hazivte(r.e());
    EXPECT_EQ(r.word(), "դժվարությամբ");
    EXPECT_EQ(r.moved(), 3);
    Rule h("հազիվ", "հազ");
    hazivte(h.e());
    EXPECT_EQ(h.word(), "դժվարությամբ");
    Rule miss("դժվար", "գործ");
    hazivte(miss.e());
    EXPECT_EQ(miss.word(), "դժվար");
}

TEST(ArmenianExpressions, Esteutyan) {
    Rule r("ըստ", "էության");
    esteutyan(r.e());
    EXPECT_EQ(r.word(), "փաստորեն");
    EXPECT_EQ(r.moved(), 7);
    Rule me("ըստ", "իս");
    esteutyan(me.e());
    EXPECT_EQ(me.output(), " to ");
    EXPECT_EQ(me.word(), "ինձ");
    EXPECT_EQ(me.moved(), 3);
}

TEST(ArmenianExpressions, Zhamslak) {
    Rule r("ժամացույցի", "սլաքներ");
    zhamslak(r.e());
    EXPECT_EQ(r.e().PendingEnding, "s");
    EXPECT_EQ(r.moved(), 7);
    EXPECT_EQ(r.word(), "ժամսլաք");
    Rule one("ժամացույցի", "սլաք");
    zhamslak(one.e());
    EXPECT_EQ(one.moved(), 4);
    EXPECT_EQ(one.word(), "ժամսլաք");
    // The word is set in any case.
    Rule any("ժամացույցի", "տուն");
    zhamslak(any.e());
    EXPECT_EQ(any.moved(), 0);
    EXPECT_EQ(any.word(), "ժամսլաք");
}

TEST(ArmenianExpressions, Ibrevte) {
    Rule r("ասես", "թե գիտի");
    ibrevte(r.e());
    EXPECT_EQ(r.output(), "as if");
    EXPECT_EQ(r.word(), "");
    EXPECT_EQ(r.moved(), 3);
    Rule miss("իբր", "թեև");
    ibrevte(miss.e());
    EXPECT_EQ(miss.word(), "իբր");
}

TEST(ArmenianExpressions, DskHogtanelHordancrev) {
    Rule d("կոշտ", "սկավառակ");
    dsk(d.e());
    EXPECT_EQ(d.word(), "դժվար");
    EXPECT_EQ(d.moved(), 0);

    Rule h("հոգ", "տանել");
    hogtanel(h.e());
    EXPECT_EQ(h.word(), "խնամել");
    EXPECT_EQ(h.moved(), 3);
    Rule h2("հոգ", "տարեք");
    hogtanel(h2.e());
    EXPECT_EQ(h2.word(), "խնամել");

    Rule rain("հորդ", "անձրև");
    hordancrev(rain.e());
    EXPECT_EQ(rain.word(), "հորդառատ");
    // The other words are looked for in the output: in the source they change nothing.
    Rule river("հորդ", "գետ");
    hordancrev(river.e());
    EXPECT_EQ(river.word(), "հորդ");
    Rule fromOutput("հորդ", "", "xxxxxxարափ");
    hordancrev(fromOutput.e());
    EXPECT_EQ(fromOutput.word(), "հորդառատ");
}

TEST(ArmenianExpressions, Harkkar) {
    for (const char* next : {"կա", "չկա", "կար", "չկար", "կլինի", "չի լինի", "կլիներ", "չէր լինի", "լինի"}) {
        Rule r("հարկ", next);
        harkkar(r.e());
        EXPECT_EQ(r.word(), "կարիք") << next;
        EXPECT_EQ(r.moved(), 0);
    }
    Rule miss("հարկ", "չէ");
    harkkar(miss.e());
    EXPECT_EQ(miss.word(), "հարկ");
}

TEST(ArmenianExpressions, Chishtnasac) {
    Rule r("ճիշտն", "ասած");
    chishtnasac(r.e());
    EXPECT_EQ(r.output(), "saying the ");
    EXPECT_EQ(r.word(), "ճշմարտությունը");
    EXPECT_EQ(r.moved(), 4);
}

TEST(ArmenianExpressions, OdinAndMekayl) {
    Rule other("մեկ", "այլ տուն");
    odin(other.e());
    EXPECT_EQ(other.output(), "another");
    EXPECT_EQ(other.moved(), 4);
    Rule byOne("մեկ", "առ մեկ");
    odin(byOne.e());
    EXPECT_EQ(byOne.output(), "one by ");
    EXPECT_EQ(byOne.moved(), 3);
    Rule miss("մեկ", "տուն");
    odin(miss.e());
    EXPECT_EQ(miss.word(), "մեկ");
    EXPECT_EQ(miss.output(), "");
}

TEST(ArmenianExpressions, MenmenakAndMiddlEast) {
    Rule r("մեն", "տուն");
    menmenak(r.e());
    EXPECT_EQ(r.word(), "բոլոր");
    for (const char* next : {"Արևելք", "արեւելք"}) {
        Rule m("մերձավոր", next);
        MiddlEast(m.e());
        EXPECT_EQ(m.word(), "մեջտեղ");
    }
    Rule miss("մերձավոր", "ընկեր");
    MiddlEast(miss.e());
    EXPECT_EQ(miss.word(), "մերձավոր");
}

TEST(ArmenianExpressions, ShersAndHamarist) {
    Rule r("մեզիս");
    shers(r.e());
    EXPECT_EQ(r.word(), "շեռիս");
    Rule h("համարներից");
    hamarist(h.e());
    EXPECT_EQ(h.word(), "թիվներից");
}

TEST(ArmenianExpressions, XmasPartOfSpeech) {
    Rule r("մաս", "", "speech ");
    xmas(r.e());
    EXPECT_EQ(r.output(), "part of ");
    EXPECT_EQ(r.word(), "խոսք");
    Rule miss("մաս", "", "house ");
    xmas(miss.e());
    EXPECT_EQ(miss.output(), "house ");
    EXPECT_EQ(miss.word(), "մաս");
}

TEST(ArmenianExpressions, VerimuchShabat) {
    Rule r("շատ", "լավ");
    verimuch(r.e());
    EXPECT_EQ(r.word(), "անչափ");
    Rule s("շաբաթ", "օր");
    shabat(s.e());
    EXPECT_EQ(s.word(), "շաբաթ օր");
    EXPECT_EQ(s.moved(), 2);
}

TEST(ArmenianExpressions, ShutaraHurryUp) {
    Rule r("շուտ", "արեք");
    shutara(r.e());
    EXPECT_EQ(r.output(), "hurry up");
    EXPECT_EQ(r.moved(), 5);
    Rule s("շուտ", "արա");
    shutara(s.e());
    EXPECT_EQ(s.output(), "hurry up");
    EXPECT_EQ(s.moved(), 4);
}

TEST(ArmenianExpressions, Wordiw) {
    Rule r("որդու");
    wordiw(r.e());
    EXPECT_EQ(r.word(), "որդիի");
    Rule w("որդով");
    wordiw(w.e());
    EXPECT_EQ(w.output(), "with ");
    EXPECT_EQ(w.word(), "որդի");
}

TEST(ArmenianExpressions, Petqe) {
    Rule r("պետք", "է գնալ");
    petqe(r.e());
    EXPECT_EQ(r.word(), "պետք է");
    EXPECT_EQ(r.moved(), 2);
    Rule c("պետք", "է, որ");
    petqe(c.e());
    EXPECT_EQ(c.word(), "պետք է");
    Rule was("պետք", "էր");
    petqe(was.e());
    EXPECT_EQ(was.word(), "պետք");
    EXPECT_EQ(was.moved(), 2);
}

TEST(ArmenianExpressions, VaxteushAndOrs) {
    Rule r("վաղ", "թե ուշ");
    vaxteush(r.e());
    EXPECT_EQ(r.output(), "sooner or later");
    EXPECT_EQ(r.moved(), 6);
    Rule o("օրս", "", "until ");
    ors(o.e());
    EXPECT_EQ(o.word(), "հիմա");
    Rule miss("օրս", "", "in ");
    ors(miss.e());
    EXPECT_EQ(miss.word(), "օրս");
}

TEST(ArmenianExpressions, TakUnderMeOnYou) {
    Rule me("տակս");
    tak(me.e());
    EXPECT_EQ(me.output(), "under ");
    EXPECT_EQ(me.word(), "ինձ");
    Rule us("տակերս");
    tak(us.e());
    EXPECT_EQ(us.word(), "մեզ");
    Rule you("տակդ");
    tak(you.e());
    EXPECT_EQ(you.word(), "դուք");
    Rule youAll("վրաներդ");
    tak(youAll.e());
    EXPECT_EQ(youAll.output(), "on ");
    EXPECT_EQ(youAll.word(), "դուք");
    Rule onMe("վրայիս");
    tak(onMe.e());
    EXPECT_EQ(onMe.word(), "ինձ");
}

}  // namespace
}  // namespace vorlexa::test
