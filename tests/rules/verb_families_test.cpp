// Take, get, give, offer, live and die: the key each form gets before its particle, and the verb
// told from the noun by the person of the subject.
#include "rules/verb_families.h"

#include <gtest/gtest.h>

#include "english_rule_fixture.h"

namespace vorlexa::test {
namespace {

using Procedure = void (*)(Engine&);

struct Take {
    EnRule r;
    Take(Procedure p, const std::string& word, const std::string& after) : r(word, after) {
        r.e().AdverbFlag = 1;  // as the dispatch leaves it
        p(r.e());
    }
};

TEST(VerbFamilies, TakeRows) {
    const struct {
        std::string after;
        std::string key;
        std::int64_t skip;
    } rows[] = {
        {" over the firm", "accept", 5},
        {" part in it", "participate", 5},
        {" place here", "take place", 6},
        {" off the coat", "subtract*", 4},
        {" into consideration now", "consider", 18},
    };
    for (const auto& row : rows) {
        Take t(TakeProcedure, "take", row.after);
        EXPECT_EQ(t.r.word(), row.key) << row.after;
        EXPECT_EQ(t.r.moved(), row.skip) << row.after;
        EXPECT_TRUE(t.r.e().AdverbFlag.empty());
    }
    Take miss(TakeProcedure, "take", " a book");
    EXPECT_EQ(miss.r.word(), "take");
    EXPECT_EQ(miss.r.moved(), 0);
    EXPECT_TRUE(miss.r.e().AdverbFlag.empty());
}

TEST(VerbFamilies, TakeFormsKeepTheirForm) {
    EXPECT_EQ(Take(TaksProcedure, "takes", " over it").r.word(), "accepts");
    EXPECT_EQ(Take(TaksProcedure, "takes", " part in").r.word(), "participates");
    EXPECT_EQ(Take(TaksProcedure, "takes", " place at").r.word(), "take places");
    EXPECT_EQ(Take(TaksProcedure, "takes", " off the").r.word(), "subtract*s");
    EXPECT_EQ(Take(TaksProcedure, "takes", " into consideration").r.word(), "considers");

    EXPECT_EQ(Take(TakingProcedure, "taking", " over it").r.word(), "accepting");
    EXPECT_EQ(Take(TakingProcedure, "taking", " part in").r.word(), "participating");
    EXPECT_EQ(Take(TakingProcedure, "taking", " place at").r.word(), "take placeing");
    EXPECT_EQ(Take(TakingProcedure, "taking", " into consideration").r.word(), "considering");
    Take takingOff(TakingProcedure, "taking", " off the");
    EXPECT_EQ(takingOff.r.word(), "subtract*");
    EXPECT_EQ(takingOff.r.mark(), "ով");

    for (const char* word : {"took", "taken"}) {
        EXPECT_EQ(Take(TookTakenProcedure, word, " over it").r.word(), "accepted");
        EXPECT_EQ(Take(TookTakenProcedure, word, " part in").r.word(), "participated");
        EXPECT_EQ(Take(TookTakenProcedure, word, " place at").r.word(), "take placeed");
        EXPECT_EQ(Take(TookTakenProcedure, word, " off the").r.word(), "subtract*ed");
        EXPECT_EQ(Take(TookTakenProcedure, word, " into consideration").r.word(), "considered");
    }
    Take tookMiss(TookTakenProcedure, "took", " a cab");
    EXPECT_EQ(tookMiss.r.word(), "took");
    EXPECT_EQ(tookMiss.r.moved(), 0);
}

TEST(VerbFamilies, TakeTestsGoOnAfterAMatchInTheirOrder) {
    // "take" tests "over" before "part": after "part" matched, "over" has been passed.
    Take take(TakeProcedure, "take", " part over");
    EXPECT_EQ(take.r.word(), "participate");
    EXPECT_EQ(take.r.moved(), 5);
    // "taking" tests "part" first, and "over" then matches at the moved position.
    Take taking(TakingProcedure, "taking", " part over it");
    EXPECT_EQ(taking.r.word(), "accepting");
    EXPECT_EQ(taking.r.moved(), 10);
}

TEST(VerbFamilies, TakeOffAtTheEndOfASentenceIsNoParticle) {
    Take t(TakeProcedure, "take", " off.");
    EXPECT_EQ(t.r.word(), "take");
    EXPECT_EQ(t.r.moved(), 0);
}

TEST(VerbFamilies, GetBeforeAnObjectMeansObtain) {
    for (const char* after : {" a book", " the key", " an idea", " another one", " some bread"}) {
        EnRule r("get", after);
        GetGetsGettingProcedure(r.e());
        EXPECT_EQ(r.word(), "obtain") << after;
        EXPECT_EQ(r.moved(), 0);
    }
    EnRule getting("getting", " the key");
    GetGetsGettingProcedure(getting.e());
    EXPECT_EQ(getting.word(), "obtain");
    EXPECT_EQ(getting.tail(), "ing");
    EXPECT_EQ(getting.mark(), "ում");
}

TEST(VerbFamilies, GetACabIsSitWithTheTail) {
    EnRule get("get", " a cab");
    GetGetsGettingProcedure(get.e());
    EXPECT_EQ(get.word(), "sit");
    EnRule gets("gets", " a cab");
    GetGetsGettingProcedure(gets.e());
    EXPECT_EQ(gets.word(), "sits");
    EnRule getting("getting", " a cab");
    GetGetsGettingProcedure(getting.e());
    EXPECT_EQ(getting.word(), "siting");
}

TEST(VerbFamilies, GetOtherwiseJoinsTheNextWord) {
    EnRule get("get", " up early");
    GetGetsGettingProcedure(get.e());
    EXPECT_EQ(get.word(), "get ");
    EXPECT_EQ(get.moved(), 1);
    EXPECT_EQ(get.tail(), "");
    EXPECT_EQ(get.mark(), "");
    EXPECT_EQ(get.copula(), "");

    EnRule gets("gets", " up early");
    GetGetsGettingProcedure(gets.e());
    EXPECT_EQ(gets.word(), "get ");
    EXPECT_EQ(gets.tail(), "s");
    EXPECT_EQ(gets.mark(), "ում");
    EXPECT_EQ(gets.copula(), "է");

    EnRule getting("getting", " up early");
    GetGetsGettingProcedure(getting.e());
    EXPECT_EQ(getting.word(), "get ");
    EXPECT_EQ(getting.tail(), "ing");
    EXPECT_EQ(getting.mark(), "ում");
}

TEST(VerbFamilies, GotACabIsObtainedSinceTheObjectTestComesLater) {
    EnRule cab("got", " a cab");
    GotProcedure(cab.e());
    EXPECT_EQ(cab.word(), "obtained");
    EXPECT_EQ(cab.moved(), 0);
    EnRule key("got", " the key");
    GotProcedure(key.e());
    EXPECT_EQ(key.word(), "obtained");

    EnRule up("got", " up early");
    GotProcedure(up.e());
    EXPECT_EQ(up.word(), "get ");
    EXPECT_EQ(up.mark(), "ած");
    EXPECT_EQ(up.moved(), 1);
}

TEST(VerbFamilies, GiveUp) {
    const std::pair<const char*, const char*> forms[] = {
        {"give", "refuse"}, {"gives", "refuses"}, {"giving", "refuseing"}};
    for (const auto& [word, key] : forms) {
        EnRule r(word, " up smoking");
        GiveNerka(r.e());
        EXPECT_EQ(r.word(), key);
        EXPECT_EQ(r.moved(), 3);
    }
    EnRule end("give", " up.");
    GiveNerka(end.e());
    EXPECT_EQ(end.word(), "give");
    EXPECT_EQ(end.moved(), 0);
    EnRule miss("give", " me");
    GiveNerka(miss.e());
    EXPECT_EQ(miss.word(), "give");

    for (const char* word : {"gave", "given"}) {
        EnRule r(word, " up hope");
        GiveAncyal(r.e());
        EXPECT_EQ(r.word(), "refused");
        EXPECT_EQ(r.moved(), 3);
    }
    EnRule gaveMiss("gave", " it");
    GiveAncyal(gaveMiss.e());
    EXPECT_EQ(gaveMiss.word(), "gave");
    EXPECT_EQ(gaveMiss.moved(), 0);
}

struct ByPerson {
    EnRule r;
    ByPerson(Procedure p, const std::string& word, int person) : r(word, " x") {
        if (person != 0) r.e().PersonCode = person;
        p(r.e());
    }
};

TEST(VerbFamilies, OffersLivesDiesByThePersonOfTheSubject) {
    for (int person : {1, 2, 3, 4}) {
        ByPerson offer(OfferProcedure, "offers", person);
        EXPECT_EQ(offer.r.word(), "offer");
        EXPECT_EQ(offer.r.ending(), "ներ");
        ByPerson lives(LivesProcedure, "lives", person);
        EXPECT_EQ(lives.r.word(), "life");
        EXPECT_EQ(lives.r.ending(), "ներ");
        ByPerson dies(DiesProcedure, "dies", person);
        EXPECT_EQ(dies.r.word(), "dies");
        EXPECT_EQ(dies.r.copula(), "");
    }
    for (int person : {0, 5}) {
        ByPerson offer(OfferProcedure, "offers", person);
        EXPECT_EQ(offer.r.word(), "offering");
        EXPECT_EQ(offer.r.copula(), "է");
        EXPECT_EQ(offer.r.ending(), "");
        ByPerson lives(LivesProcedure, "lives", person);
        EXPECT_EQ(lives.r.word(), "lives");
        EXPECT_EQ(lives.r.ending(), "");
        ByPerson dies(DiesProcedure, "dies", person);
        EXPECT_EQ(dies.r.word(), "dying");
        EXPECT_EQ(dies.r.copula(), "է");
    }
}

}  // namespace
}  // namespace vorlexa::test
