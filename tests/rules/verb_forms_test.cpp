// English verb forms of Armenian-to-English runs: irregular pasts and participles, the third
// person, ordinals in digits, the stem repairs of the ending analysis, and the ending strip of the
// synonym search.
#include "rules/verb_forms.h"

#include <gtest/gtest.h>

#include <tuple>

#include "english_rule_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

struct Irregular {
    EnRule r{"x"};
    Irregular(const std::string& gloss, const std::string& mark, bool participle) {
        r.e().WordGloss = gloss;
        r.e().VerbFormMark = mark;
        if (participle) r.e().ParticipleGuess = 1;
        irregular(r.e());
    }
    std::string gloss() { return toUtf8(r.e().WordGloss); }
    std::string mark() { return r.mark(); }
};

TEST(VerbForms, IrregularTableGivesParticipleOrPast) {
    // gloss, participle, past
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"go", "gone", "went"},         {"see", "seen", "saw"},           {"take", "taken", "took"},
        {"bring", "brought", "brought"}, {"do", "done", "did"},           {"lie", "lain", "lay"},
        {"lay", "laid", "laid"},         {"write", "written", "wrote"},   {"foresee", "foreseen", "forsaw"},
        {"hang", "hung", "hung"},        {"undertake", "undertaken", "undertook"}, {"win", "won", "won"},
        {"learn", "learnt", "learnt"},   {"fly", "flew", "flew"},         {"understand", "understood", "understood"},
    };
    for (const auto& [gloss, participle, past] : rows) {
        Irregular p(gloss, "ed", true);
        EXPECT_EQ(p.gloss(), participle) << gloss;
        EXPECT_EQ(p.mark(), "") << gloss;
        Irregular s(gloss, "ed", false);
        EXPECT_EQ(s.gloss(), past) << gloss;
        EXPECT_EQ(s.mark(), "") << gloss;
    }
}

TEST(VerbForms, IrregularUnchangedVerbsLoseTheMark) {
    for (const char* verb : {"put", "cut", "bet", "broadcust", "burst", "cost", "hit", "hurt", "let", "set", "shut",
                             "split", "spread", "been", "read"}) {
        Irregular p(verb, "ed", false);
        EXPECT_EQ(p.gloss(), verb);
        EXPECT_EQ(p.mark(), "") << verb;
    }
}

TEST(VerbForms, IrregularKeepsItsDeliberateOddities) {
    // " forgive" starts with a blank: the plain verb stays regular and keeps "ed".
    Irregular forgive("forgive", "ed", false);
    EXPECT_EQ(forgive.gloss(), "forgive");
    EXPECT_EQ(forgive.mark(), "ed");
    Irregular blankForgive(" forgive", "ed", false);
    EXPECT_EQ(blankForgive.gloss(), "forgave");
    Irregular blankForgiven(" forgive", "ed", true);
    EXPECT_EQ(blankForgiven.gloss(), "forgiven");

    EXPECT_EQ(Irregular("beat", "ed", true).gloss(), "beatten");
    Irregular beatPast("beat", "ed", false);
    EXPECT_EQ(beatPast.gloss(), "beat");
    EXPECT_EQ(beatPast.mark(), "");
    EXPECT_EQ(Irregular("bite", "ed", true).gloss(), "beatten");
    EXPECT_EQ(Irregular("bite", "ed", false).gloss(), "bit");
    EXPECT_EQ(Irregular("rid", "ed", false).gloss(), "rode");
    EXPECT_EQ(Irregular("rid", "ed", true).gloss(), "rode");

    // The verb wear stands as "ware"; "wear" itself is regular.
    EXPECT_EQ(Irregular("ware", "ed", false).gloss(), "wore");
    EXPECT_EQ(Irregular("ware", "ed", true).gloss(), "worn");
    Irregular wear("wear", "ed", false);
    EXPECT_EQ(wear.gloss(), "wear");
    EXPECT_EQ(wear.mark(), "ed");
}

TEST(VerbForms, IrregularAriseAndAwakeKeepTheMark) {
    Irregular arose("arise", "ed", false);
    EXPECT_EQ(arose.gloss(), "arose");
    EXPECT_EQ(arose.mark(), "ed");
    Irregular arisen("arise", "ed", true);
    EXPECT_EQ(arisen.gloss(), "arisen");
    EXPECT_EQ(arisen.mark(), "ed");
    Irregular awoke("awake", "ed", false);
    EXPECT_EQ(awoke.gloss(), "awoke");
    EXPECT_EQ(awoke.mark(), "ed");
    Irregular awaked("awake", "ed", true);
    EXPECT_EQ(awaked.gloss(), "awaked");
    EXPECT_EQ(awaked.mark(), "ed");
}

TEST(VerbForms, IrregularForeseeClearsOnlyAnEdMark) {
    Irregular ed("foresee", "ed", false);
    EXPECT_EQ(ed.mark(), "");
    Irregular ing("foresee", "ing", false);
    EXPECT_EQ(ing.gloss(), "forsaw");
    EXPECT_EQ(ing.mark(), "ing");
    // Any other verb of the table clears whatever mark it finds.
    Irregular go("go", "ing", false);
    EXPECT_EQ(go.gloss(), "went");
    EXPECT_EQ(go.mark(), "");
}

TEST(VerbForms, IrregularLeavesARegularVerb) {
    Irregular walk("walk", "ed", true);
    EXPECT_EQ(walk.gloss(), "walk");
    EXPECT_EQ(walk.mark(), "ed");
}

struct ThirdPerson {
    EnRule r{"x"};
    explicit ThirdPerson(const std::string& gloss) {
        r.e().WordGloss = gloss;
        r.e().ThirdPersonEnding = 1;
        nershar(r.e());
    }
    std::string gloss() { return toUtf8(r.e().WordGloss); }
    bool markKept() { return r.e().ThirdPersonEnding == 1; }
};

TEST(VerbForms, NersharAddsTheThirdPersonEnding) {
    for (const auto& [gloss, form] : {std::pair{"go", "goes"}, std::pair{"box", "boxes"}, std::pair{"pass", "passes"},
                                      std::pair{"sync", "synces"}, std::pair{"samba", "sambaes"}}) {
        ThirdPerson t(gloss);
        EXPECT_EQ(t.gloss(), form);
        EXPECT_TRUE(t.markKept()) << gloss;
    }
    ThirdPerson fly("fly");
    EXPECT_EQ(fly.gloss(), "flies");
    EXPECT_TRUE(fly.markKept());

    ThirdPerson watch("watch");
    EXPECT_EQ(watch.gloss(), "watches");
    EXPECT_FALSE(watch.markKept());
    ThirdPerson wish("wish");
    EXPECT_EQ(wish.gloss(), "wishes");
    EXPECT_FALSE(wish.markKept());
    ThirdPerson run("run");
    EXPECT_EQ(run.gloss(), "runs");
    EXPECT_FALSE(run.markKept());
}

TEST(VerbForms, NersharOnAGlossEndingInC) {
    ThirdPerson t("zinc");
    EXPECT_EQ(t.gloss(), "zinces");
    EXPECT_TRUE(t.markKept());
}

std::string ordinal(const std::string& output) {
    EnRule r("x");
    r.setOutput(output);
    r.e().WordGloss = "th";
    rd(r.e());
    return toUtf8(r.e().WordGloss);
}

TEST(VerbForms, RdTurnsThAfterOneAndTwo) {
    EXPECT_EQ(ordinal("1"), "st");
    EXPECT_EQ(ordinal("on the 21"), "st");
    EXPECT_EQ(ordinal("2"), "nd");
    EXPECT_EQ(ordinal("the 32"), "nd");
    EXPECT_EQ(ordinal("1-"), "st");
    EXPECT_EQ(ordinal("2 -"), "nd");
    EXPECT_EQ(ordinal("2 - "), "nd");
    EXPECT_EQ(ordinal("1- "), "st");
}

TEST(VerbForms, RdKeepsThAfterTeensAndOtherDigits) {
    EXPECT_EQ(ordinal("11"), "th");
    EXPECT_EQ(ordinal("12 - "), "th");
    EXPECT_EQ(ordinal("3"), "th");
    EXPECT_EQ(ordinal("2  "), "th");  // two blanks is no allowed tail
    EXPECT_EQ(ordinal(""), "th");
    EXPECT_EQ(ordinal("-"), "th");
}

TEST(VerbForms, CeMakesACausativeStem) {
    EnRule r("x");
    r.e().CurrentWord = "խաղաց"_ft;
    ce(r.e());
    EXPECT_EQ(r.word(), "խաղանա");
    EXPECT_EQ(r.e().CausativeVerb, 1);

    EnRule miss("x");
    miss.e().CurrentWord = "խաղա"_ft;
    ce(miss.e());
    EXPECT_EQ(miss.word(), "խաղա");
    EXPECT_TRUE(miss.e().CausativeVerb.empty());
}

TEST(VerbForms, YeDropsAFinalYod) {
    EnRule r("x");
    r.e().CurrentWord = "վրայ"_ft;
    ye(r.e());
    EXPECT_EQ(r.word(), "վրա");
    ye(r.e());
    EXPECT_EQ(r.word(), "վրա");
}

// ve over the hy-en fixture: the rewritten stem is looked up in Armenian-to-English.
struct Passive {
    EnRule r{"x"};
    explicit Passive(const std::string& word, const std::string& mark = "") {
        r.e().Check1 = 1;
        r.e().CurrentWord = fromUtf8(word);
        r.e().VerbFormMark = mark;
    }
};

TEST(VerbForms, VeRewritesAPassiveStemAndMarksIt) {
    Passive p("գրվե");
    ve(p.r.e());
    EXPECT_EQ(p.r.e().PassiveStemSeen, 1);
    EXPECT_EQ(p.r.e().ParticipleGuess, 1);
    EXPECT_EQ(p.r.word(), "");  // looked up
    EXPECT_TRUE(p.r.e().SecondPersonEnding.empty());
    EXPECT_EQ(p.r.output().find(" get "), std::string::npos);
}

TEST(VerbForms, VeWithAnEdMarkPutsWasOrWereFirst) {
    Passive singular("գրվե", "ed");
    singular.r.e().SingularPast = 1;
    ve(singular.r.e());
    EXPECT_TRUE(singular.r.output().starts_with("was ")) << singular.r.output();
    EXPECT_TRUE(singular.r.e().SingularPast.empty());

    Passive plural("գրվե", "ed");
    ve(plural.r.e());
    EXPECT_TRUE(plural.r.output().starts_with("were ")) << plural.r.output();
}

TEST(VerbForms, VeAfterASecondPersonEndingSaysGet) {
    Passive p("գրվե");
    p.r.e().SecondPersonEnding = 1;
    ve(p.r.e());
    EXPECT_TRUE(p.r.output().starts_with(" get ")) << p.r.output();
    EXPECT_EQ(p.r.e().ParticipleGuess, 1);
    EXPECT_TRUE(p.r.e().SecondPersonEnding.empty());
}

TEST(VerbForms, VeOnAStemInVaAndBeAfterWill) {
    Passive p("գրվա");
    p.r.setOutput("will ");
    p.r.e().SecondPersonEnding = 1;
    ve(p.r.e());
    EXPECT_EQ(p.r.word(), "գրա");
    EXPECT_EQ(p.r.mark(), "ed");
    EXPECT_EQ(p.r.e().ParticipleGuess, 1);
    EXPECT_EQ(p.r.output(), "will be ");
    EXPECT_TRUE(p.r.e().SecondPersonEnding.empty());

    Passive miss("գրել");
    miss.r.setOutput("shall ");
    ve(miss.r.e());
    EXPECT_EQ(miss.r.word(), "գրել");
    EXPECT_EQ(miss.r.output(), "shall ");  // no participle wanted: no "be "
    EXPECT_EQ(miss.r.e().PassiveStemSeen, 1);
}

TEST(VerbForms, AnqerStripsOneEnglishEnding) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"careless", "care", "less"}, {"going", "go", "ing"},  {"flies", "fly", "ies"}, {"tried", "try", "ied"},
        {"walked", "walk", "ed"},     {"boxes", "box", "es"},  {"cats", "cat", "s"},    {"less", "les", "s"},
        {"es", "e", "s"},
    };
    for (const auto& [word, stem, ending] : rows) {
        FontText w = word;
        FontText tail;
        EXPECT_TRUE(anqer(w, tail)) << word;
        EXPECT_EQ(w, stem) << word;
        EXPECT_EQ(tail, ending) << word;
    }
    for (const char* word : {"cat", "ed", ""}) {
        FontText w = word;
        FontText tail = "kept";
        EXPECT_FALSE(anqer(w, tail)) << word;
        EXPECT_EQ(w, word);
        EXPECT_EQ(tail, "kept");
    }
}

}  // namespace
}  // namespace vorlexa::test
