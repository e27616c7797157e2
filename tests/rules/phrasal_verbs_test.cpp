// Phrasal verbs: each test of each rule with a match and a miss, the tail kept from the verb form,
// the skip over the particle, and the quirks of the family.
#include "rules/phrasal_verbs.h"

#include <gtest/gtest.h>

#include "english_rule_fixture.h"

namespace vorlexa::test {
namespace {

using Procedure = void (*)(Engine&);

// Runs the rule on word + after and checks the key it left and how far it moved.
void expectKey(Procedure p, const std::string& word, const std::string& after, const std::string& key,
               std::int64_t skip) {
    EnRule r(word, after);
    p(r.e());
    EXPECT_EQ(r.word(), key) << word << after;
    EXPECT_EQ(r.moved(), skip) << word << after;
}

// The word stays as it was and ScanPos does not move.
void expectMiss(Procedure p, const std::string& word, const std::string& after) { expectKey(p, word, after, word, 0); }

TEST(PhrasalVerbs, VaremMarem) {
    expectKey(varem_marem, "turn", " off the light", "disconnect", 3);
    expectKey(varem_marem, "turned", " off the light", "disconnected", 3);
    expectKey(varem_marem, "turning", " on the radio", "connecting", 3);
    expectKey(varem_marem, "turns", " out well", "clears", 3);
    expectKey(varem_marem, "turn", " adrift now", "abandon", 6);
    expectKey(varem_marem, "turned", " around then", "improveed", 6);
    expectKey(varem_marem, "turn", " down the offer", "reject", 4);
    expectMiss(varem_marem, "turn", " left");
}

TEST(PhrasalVerbs, VaremMaremOnNeedsItsBlank) {
    // At the end of a sentence the particle has no blank after it.
    expectMiss(varem_marem, "turn", " on.");
}

TEST(PhrasalVerbs, VaremMaremOffLeavesScanPosOnTheLastLetter) {
    EnRule r("turn", " off the light");
    varem_marem(r.e());
    EXPECT_EQ(r.at(), "f");
}

TEST(PhrasalVerbs, Rule) {
    expectKey(rule, "ruled", " out it", "excludeed", 3);
    expectKey(rule, "rules", " out it", "excludees", 3);
    expectKey(rule, "ruling", " out it", "excludeing", 3);
    expectMiss(rule, "ruled", " out.");
    expectMiss(rule, "rules", " the land");
}

TEST(PhrasalVerbs, Singl) {
    expectKey(singl, "single", " out one", "distinguish", 4);
    expectKey(singl, "singled", " out one", "distinguished", 4);
    expectKey(singl, "singling", " out one", "distinguishing", 4);
    expectKey(singl, "singles", " out one", "distinguishs", 4);
    expectMiss(singl, "single", " room");
}

TEST(PhrasalVerbs, SpellClearsTheTailAfter) {
    EnRule r("spelled", " out the word");
    spell(r.e());
    EXPECT_EQ(r.word(), "expressed");
    EXPECT_EQ(r.moved(), 4);
    EXPECT_EQ(r.tail(), "");
    EnRule miss("spelling", " book");
    spell(miss.e());
    EXPECT_EQ(miss.word(), "spelling");
    EXPECT_EQ(miss.tail(), "");
}

TEST(PhrasalVerbs, SpkOutMarksSpeechInAnyCase) {
    EnRule r("speaks", " out loud");
    spk_out(r.e());
    EXPECT_EQ(r.word(), "expresss");
    EXPECT_EQ(r.moved(), 3);
    EnRule miss("speak", " softly");
    spk_out(miss.e());
    EXPECT_EQ(miss.word(), "speak");
    EXPECT_EQ(miss.moved(), 0);
    EXPECT_EQ(miss.e().SpeechVerbFlag, 1);
    EXPECT_EQ(miss.e().PerfectFlag, 1);
}

TEST(PhrasalVerbs, Cry) {
    expectKey(cry, "cries", " up the goods", "advertisees", 3);
    expectKey(cry, "crying", " up the goods", "advertiseing", 3);
    expectMiss(cry, "cry", " up.");
}

TEST(PhrasalVerbs, Krel) {
    expectKey(krel, "carry", " out the plan", "create", 4);
    expectKey(krel, "work", " out the plan", "create", 4);
    EnRule noun("work", " is done");
    noun.setEnding("ից");
    krel(noun.e());
    EXPECT_EQ(noun.word(), "job");
    EXPECT_EQ(noun.e().WorkVerbFlag, 1);
    EnRule article("work", " is done");
    article.e().ArticleEnding = fromUtf8("ը");
    krel(article.e());
    EXPECT_EQ(article.word(), "job");
    EnRule carry("carry", " it");
    carry.setEnding("ից");
    krel(carry.e());
    EXPECT_EQ(carry.word(), "carry");
    expectMiss(krel, "work", " hard");
}

TEST(PhrasalVerbs, AshkhatutyunWritesItsWord) {
    EnRule out("works", " out fine");
    Ashkhatutyun(out.e());
    EXPECT_EQ(out.moved(), 4);
    EXPECT_EQ(out.word(), "");
    EXPECT_EQ(out.e().WorkVerbFlag, 1);

    EnRule noun("works", " of art");
    noun.e().ArticleEnding = fromUtf8("ը");
    Ashkhatutyun(noun.e());
    EXPECT_EQ(noun.word(), "");
    EXPECT_TRUE(noun.output().starts_with("գործ")) << noun.output();
    EXPECT_EQ(noun.moved(), 0);

    EnRule kept("works", " of art");
    kept.setEnding("ի");
    Ashkhatutyun(kept.e());
    EXPECT_TRUE(kept.output().starts_with("գործ")) << kept.output();
}

TEST(PhrasalVerbs, AshkhatutyunGivesThePluralEndingWhenNoneIsPending) {
    EnRule none("works", " of art");
    none.e().ArticleEnding = fromUtf8("ը");
    Ashkhatutyun(none.e());
    EXPECT_EQ(none.ending(), "ներ");
    EnRule kept("works", " of art");
    kept.setEnding("ի");
    Ashkhatutyun(kept.e());
    EXPECT_EQ(kept.ending(), "ի");
    EnRule verb("works", " hard");
    Ashkhatutyun(verb.e());
    EXPECT_EQ(verb.ending(), "");
    EXPECT_EQ(verb.word(), "");
}

TEST(PhrasalVerbs, Lk) {
    expectKey(lk, "looked", " after him", "careed", 5);
    expectKey(lk, "looking", " for the key", "searching", 4);
    expectKey(lk, "looks", " like rain", "seems", 5);
    expectKey(lk, "look", " out there", "careful", 3);
    expectMiss(lk, "look", " here");
    // "out" is read only after the word "look" itself.
    expectMiss(lk, "looked", " out there");
}

TEST(PhrasalVerbs, LkAtIsSkippedAndTheTestsGoOn) {
    expectKey(lk, "look", " at me", "look", 3);
    // After the skip over "at", "for " is tested at the new position.
    expectKey(lk, "looked", " at for it", "searched", 7);
}

TEST(PhrasalVerbs, LkForwardPutsHopeFirst) {
    EnRule r("looking", " forward to it");
    lk(r.e());
    EXPECT_EQ(r.word(), "waiting");
    EXPECT_EQ(r.moved(), 7);
    EXPECT_EQ(r.output(), "հույսով ");
    EnRule capital("looking", " Forward to it");
    lk(capital.e());
    EXPECT_EQ(capital.word(), "waiting");
}

TEST(PhrasalVerbs, Hancnel) {
    expectKey(hancnel, "handed", " over the keys", "handovered", 5);
    expectKey(hancnel, "handing", " over the keys", "handovering", 5);
    expectMiss(hancnel, "handed", " in");
}

TEST(PhrasalVerbs, Fuck) {
    expectKey(fuck, "fuck", " off now", "fuck off", 4);
    expectKey(fuck, "fucked", " off now", "fuck offed", 4);
    expectMiss(fuck, "fuck", " it");
}

TEST(PhrasalVerbs, Find) {
    for (const char* after : {" out now", " out,", " out.", " out?", " out!"})
        expectKey(find, "find", after, "discover", 4);
    expectKey(find, "found", " out that", "discovered", 4);
    expectKey(find, "finding", " out that", "discovering", 4);
    expectMiss(find, "find", " out:");
    expectMiss(find, "found", " it");
}

TEST(PhrasalVerbs, Shut) {
    expectKey(shut, "shut", " down the plant", "disconnect", 5);
    expectKey(shut, "shutting", " down the plant", "disconnecting", 5);
    expectKey(shut, "shuts", " down the plant", "disconnects", 5);
    EnRule up("shut", " up now");
    shut(up.e());
    EXPECT_EQ(up.word(), "");
    EXPECT_EQ(up.output(), "լռեք");
    EXPECT_EQ(up.moved(), 3);
    expectMiss(shut, "shut", " the door");
}

TEST(PhrasalVerbs, Switch) {
    expectKey(switch_, "switch", " off the light", "disconnect", 4);
    expectKey(switch_, "switches", " off the light", "disconnects", 4);
    expectKey(switch_, "switched", " on the light", "connected", 3);
    expectKey(switch_, "switching", " on the light", "connecting", 3);
    expectMiss(switch_, "switch", " sides");
}

TEST(PhrasalVerbs, PassByWritesAtOnce) {
    EnRule r("pass", " by the house");
    pass(r.e());
    EXPECT_EQ(r.word(), "");
    EXPECT_EQ(r.moved(), 3);
    EXPECT_EQ(r.output(), "անցնել կողքով ");
    expectKey(pass, "passed", " away last", "die*ed", 5);
    expectKey(pass, "passes", " away last", "die*s", 5);
    expectMiss(pass, "pass", " the salt");
}

TEST(PhrasalVerbs, Lit) {
    expectKey(lit, "light", " up the room", "burn", 3);
    expectKey(lit, "lighting", " up the room", "burning", 3);
    expectKey(lit, "lit", " up the room", "burnt", 3);
    expectMiss(lit, "lit", " a fire");
}

TEST(PhrasalVerbs, Wait) {
    EnRule r("waiting", " for you");
    wait(r.e());
    EXPECT_EQ(r.word(), "waiting");
    EXPECT_EQ(r.moved(), 3);
    EXPECT_EQ(r.ending(), "ին");
    EnRule copula("wait", " for you");
    copula.setCopula("եմ");
    wait(copula.e());
    EXPECT_EQ(copula.ending(), "");
    EXPECT_EQ(copula.moved(), 3);
    expectMiss(wait, "wait", " here");
}

TEST(PhrasalVerbs, ZartelEmitsTheVerb) {
    EnRule r("wake", " up early");
    zartel(r.e());
    EXPECT_EQ(r.moved(), 3);
    EXPECT_EQ(r.word(), "");
    EXPECT_EQ(r.output(), "արթնանալ");
    expectMiss(zartel, "woke", " late");
}

TEST(PhrasalVerbs, PchelAndTraqel) {
    expectKey(pchel, "blow", " up the bridge", "explode", 3);
    expectKey(pchel, "blowing", " up.", "explodeing", 3);
    expectMiss(pchel, "blows", " hard");
    expectKey(traqel, "blew", " up the bridge", "exploded", 3);
    expectKey(traqel, "blown", " up", "exploded", 3);
    expectMiss(traqel, "blew", " away");
}

TEST(PhrasalVerbs, HavatalEmitsThenSetsTheEnding) {
    EnRule r("believe", " in god");
    havatal(r.e());
    EXPECT_EQ(r.moved(), 3);
    EXPECT_EQ(r.output(), "հավատալ");
    EXPECT_EQ(r.ending(), "ին");
    expectMiss(havatal, "believe", " me");
}

TEST(PhrasalVerbs, SpidUpStopsOnTheP) {
    EnRule r("speed", " up now");
    spid(r.e());
    EXPECT_EQ(r.word(), "accelerate");
    EXPECT_EQ(r.moved(), 2);
    EXPECT_EQ(r.at(), "p");
    expectKey(spid, "speeding", " down now", "retarding", 4);
    expectMiss(spid, "speed", " limit");
}

TEST(PhrasalVerbs, Haytnvel) {
    expectKey(haytnvel, "show", " up late", "appear", 3);
    expectKey(haytnvel, "shown", " up late", "appeared", 3);
    expectKey(haytnvel, "showing", " up late", "appearing", 3);
    expectMiss(haytnvel, "show", " me");
}

TEST(PhrasalVerbs, HaxtaharelAndAchrtel) {
    expectKey(haxtaharel, "fight", " down fear", "overcome", 4);
    expectMiss(haxtaharel, "fight", " back");
    expectKey(achrtel, "grows", " up fast", "increases", 3);
    expectMiss(achrtel, "grow", " old");
}

TEST(PhrasalVerbs, ConsistOf) {
    for (const char* after : {" of two", " Of two"}) {
        EnRule r("consists", after);
        consist_of(r.e());
        EXPECT_EQ(r.moved(), 3);
        EXPECT_EQ(r.word(), "");
        EXPECT_EQ(r.ending(), "ից");
    }
    EnRule miss("consist", " in");
    consist_of(miss.e());
    EXPECT_EQ(miss.word(), "consist");
    EXPECT_EQ(miss.ending(), "");
}

TEST(PhrasalVerbs, BackUp) {
    EnRule from("back", " from school");
    from.setCopula("է");
    back_up(from.e());
    EXPECT_EQ(from.word(), "return");
    EXPECT_EQ(from.mark(), "ել");
    EXPECT_EQ(from.moved(), 0);
    expectMiss(back_up, "back", " from school");  // no copula pending
    expectKey(back_up, "backed", " up the claim", "supported", 3);
    expectKey(back_up, "back", " up the claim", "support", 3);
    expectMiss(back_up, "backs", " off");
}

TEST(PhrasalVerbs, DealWritesJobAndLeavesWith) {
    EnRule r("deals", " with it");
    deal(r.e());
    EXPECT_EQ(r.output(), "գործ ");
    EXPECT_EQ(r.word(), "haves");
    EXPECT_EQ(r.moved(), 0);
    EnRule dealing("dealing", " with it");
    deal(dealing.e());
    EXPECT_EQ(dealing.word(), "haveing");
    expectMiss(deal, "deal", " cards");
}

TEST(PhrasalVerbs, Kaynel) {
    EnRule r("stopped", " by the shop");
    kaynel(r.e());
    EXPECT_EQ(r.word(), "standed");
    EXPECT_EQ(r.moved(), 3);
    EXPECT_EQ(r.ending(), "ի մոտ");
    expectKey(kaynel, "stopping", " by it", "standing", 3);
    expectKey(kaynel, "stops", " by it", "stands", 3);
    expectMiss(kaynel, "stop", " it");
}

TEST(PhrasalVerbs, Geranel) {
    EnRule in("logged", " in now");
    geranel(in.e());
    EXPECT_EQ(in.word(), "registered");
    EXPECT_EQ(in.moved(), 0);
    EXPECT_EQ(in.ending(), "ի մեջ");
    EnRule into("logging", " into it");
    geranel(into.e());
    EXPECT_EQ(into.word(), "registering");
    EnRule out("log", " out now");
    geranel(out.e());
    EXPECT_EQ(out.word(), "come out");
    EXPECT_EQ(out.ending(), "ից");
    expectMiss(geranel, "log", " file");
}

TEST(PhrasalVerbs, Mutqaelqagrvel) {
    expectKey(mutqaelqagrvel, "signed", " in here", "entered", 3);
    expectKey(mutqaelqagrvel, "sign", " out now", "come", 0);
    expectMiss(mutqaelqagrvel, "sign", " in.");  // " in " needs the blank after it
    expectMiss(mutqaelqagrvel, "signing", " the letter");
}

TEST(PhrasalVerbs, Lcnellracnel) {
    expectKey(lcnellracnel, "fill", " out the form", "accomplish", 3);
    expectKey(lcnellracnel, "filled", " in the form", "accomplished", 3);
    expectMiss(lcnellracnel, "filling", " up");
}

TEST(PhrasalVerbs, FigurantAndFigurant2) {
    expectKey(Figurant, "figure", " out how", "count", 4);
    expectKey(Figurant, "figures", " out how", "counts", 4);
    expectMiss(Figurant, "figure", " skating");
    expectKey(Figurant2, "figured", " out how", "counted", 4);
    expectKey(Figurant2, "figuring", " out how", "counting", 4);
    expectMiss(Figurant2, "figured", " it");
}

TEST(PhrasalVerbs, Caxinprcan) {
    expectKey(caxinprcan, "sold", " out now", "petered", 4);
    expectMiss(caxinprcan, "sold", " it");
}

TEST(PhrasalVerbs, XekavaratsAlwaysAndBySetsPerfect) {
    EnRule by("headed", " by him");
    xekavarats(by.e());
    EXPECT_EQ(by.word(), "generaled");
    EXPECT_EQ(by.e().PerfectFlag, 1);
    EnRule alone("headed", " north");
    xekavarats(alone.e());
    EXPECT_EQ(alone.word(), "generaled");
    EXPECT_TRUE(alone.e().PerfectFlag.empty());
}

TEST(PhrasalVerbs, Come) {
    expectKey(come, "come", " true soon", "fulfil", 4);
    expectKey(come, "came", " true soon", "fulfilled", 4);
    expectKey(come, "comes", " back soon", "returns", 5);
    expectKey(come, "came", " back soon", "returned", 5);
    expectKey(come, "coming", " back soon", "returning", 5);
    expectKey(come, "run", " back soon", "return", 5);
    expectKey(come, "runs", " back soon", "returns", 5);
    expectKey(come, "running", " back soon", "returning", 5);
    expectKey(come, "came", " up with", "appeared", 2);
    expectKey(come, "comes", " up with", "appears", 2);
    expectMiss(come, "come", " here");
}

TEST(PhrasalVerbs, ComeAcrossTakesTheEndingOfItsObject) {
    EnRule came("came", " across him");
    come(came.e());
    EXPECT_EQ(came.word(), "met");
    EXPECT_EQ(came.moved(), 6);
    EXPECT_EQ(came.ending(), "ի");
    EnRule coming("coming", " across him");
    come(coming.e());
    EXPECT_EQ(coming.word(), "meeting");
    EXPECT_EQ(coming.ending(), "");
    EnRule running("running", " across him");
    come(running.e());
    EXPECT_EQ(running.word(), "meeting");
    EXPECT_EQ(running.ending(), "");
    EnRule run("run", " across him");
    come(run.e());
    EXPECT_EQ(run.word(), "meet");
    EXPECT_EQ(run.ending(), "ի");
}

TEST(PhrasalVerbs, Areqinc) {
    EnRule sense("make", " sense now");
    areqinc(sense.e());
    EXPECT_EQ(sense.output(), "ունենալ ");
    EXPECT_EQ(sense.word(), "meaning");
    EXPECT_EQ(sense.moved(), 5);
}

TEST(PhrasalVerbs, AreqincMoneySureNothingAndMakeUp) {
    EnRule money("make", " money fast");
    areqinc(money.e());
    EXPECT_EQ(money.output(), "վաստակել");
    EXPECT_EQ(money.word(), "");
    EXPECT_EQ(money.moved(), 0);

    expectKey(areqinc, "make", " sure of it", "persuade*", 4);
    expectKey(areqinc, "makes", " sure of it", "persuade*es", 4);
    expectKey(areqinc, "made", " sure of it", "persuade*ed", 4);

    EnRule nothing("made", " nothing of it");
    areqinc(nothing.e());
    EXPECT_EQ(nothing.output(), "գլուխ չ");
    EXPECT_EQ(nothing.word(), "subtracted");
    EXPECT_EQ(nothing.moved(), 7);

    expectKey(areqinc, "make", "-up artist", "makeup", 3);
    expectMiss(areqinc, "make", " tea");
}

TEST(PhrasalVerbs, Iron) {
    EnRule modal("iron", " the shirt");
    modal.e().ModalFlag = 1;
    modal.e().ImperativeFlag = 1;
    iron(modal.e());
    EXPECT_EQ(modal.word(), "to iron");
    EXPECT_TRUE(modal.e().ModalFlag.empty());
    EXPECT_TRUE(modal.e().ImperativeFlag.empty());
    expectMiss(iron, "iron", " is hot");
    expectKey(iron, "ironed", " the shirt", "to ironed", 0);
    expectKey(iron, "ironing", " out problems", "make smoothing", 3);
}

TEST(PhrasalVerbs, PahelBeforeAFormInIng) {
    expectKey(pahel, "keep", " talking", "continue", 0);
    expectKey(pahel, "keeps", " talking", "continues", 0);
    expectKey(pahel, "kept", " talking", "continued", 0);
    expectMiss(pahel, "keep", " it");
    expectMiss(pahel, "keep", " singing.");  // the word is read to the blank, full stop and all
}

TEST(PhrasalVerbs, Sharunakel1) {
    EnRule on("going", " on now");
    sharunakel1(on.e());
    EXPECT_EQ(on.word(), "continueing");
    EXPECT_EQ(on.moved(), 3);
    EXPECT_EQ(on.e().SecondLook, 1);
    EnRule goOn("go", " on now");
    sharunakel1(goOn.e());
    EXPECT_EQ(goOn.word(), "continue");
    EXPECT_TRUE(goOn.e().SecondLook.empty());
    expectKey(sharunakel1, "go", " through it", "examine", 7);
    expectKey(sharunakel1, "going", " to sing", "prepare*ing", 0);
    expectMiss(sharunakel1, "go", " to school");
    expectKey(sharunakel1, "go", "-to man", "erudite", 3);
    expectMiss(sharunakel1, "go", " home");
}

TEST(PhrasalVerbs, Sharunakel2And3) {
    EnRule on("goes", " on now");
    on.setEnding("ի");
    sharunakel2(on.e());
    EXPECT_EQ(on.word(), "continues");
    EXPECT_EQ(on.moved(), 3);
    EXPECT_EQ(on.e().SecondLook, 1);
    EXPECT_EQ(on.ending(), "");
    expectKey(sharunakel2, "goes", " through it", "examines", 7);
    expectMiss(sharunakel2, "goes", " home");
    expectKey(sharunakel3, "went", " on now", "continued", 3);
    expectKey(sharunakel3, "gone", " through it", "examined", 7);
    expectMiss(sharunakel3, "went", " home");
}

TEST(PhrasalVerbs, Meknel1) {
    EnRule onLeave("leave", " now");
    onLeave.setEnding("ի վրա");
    meknel1(onLeave.e());
    EXPECT_EQ(onLeave.word(), "vacation");
    EXPECT_EQ(onLeave.ending(), "");
    EXPECT_EQ(onLeave.e().AdverbFlag, 1);

    expectKey(meknel1, "leave", " for Paris", "depart", 4);
    expectKey(meknel1, "leaves", " for Paris", "departs", 4);
    expectKey(meknel1, "leaving", " for Paris", "departing", 0);
    expectMiss(meknel1, "leave", " it");
}

TEST(PhrasalVerbs, Meknel2) {
    expectKey(meknel2, "left", " for Paris", "departed", 4);

    EnRule side("left", " side");
    side.setEnding("ի");
    meknel2(side.e());
    EXPECT_EQ(side.word(), "");
    EXPECT_EQ(side.output(), "ձախ ");
    EXPECT_EQ(toUtf8(side.e().WordTag), "     ");

    EnRule past("left", " the house");
    meknel2(past.e());
    EXPECT_EQ(past.word(), "leave");
    EXPECT_EQ(past.mark(), "ած");

    EnRule copula("left", " for good");
    copula.setCopula("է");
    meknel2(copula.e());
    EXPECT_EQ(copula.word(), "left");
    EXPECT_EQ(copula.moved(), 0);
}

TEST(PhrasalVerbs, Mrsel) {
    expectKey(mrsel, "catch", " cold again", "catch cold", 5);
    expectKey(mrsel, "catches", " cold again", "catch coldes", 5);
    expectKey(mrsel, "caught", " a chill", "caught", 0);
    expectKey(mrsel, "caught", " chill now", "catch colded", 6);
    expectKey(mrsel, "catching", " up with him", "reach", 7);
    expectMiss(mrsel, "catch", " the ball");
}

TEST(PhrasalVerbs, SxocTellsTheToolFromTheVerb) {
    EnRule tool("saw", " is sharp");
    tool.e().ArticleEnding = fromUtf8("ը");
    sxoc(tool.e());
    EXPECT_EQ(tool.word(), "");
    EXPECT_EQ(tool.output(), "սղոց");
    EXPECT_EQ(toUtf8(tool.e().WordTag), "n    ");
    EXPECT_EQ(toUtf8(tool.e().ClassChain), "n");

    EnRule aTool("saw", " here");
    aTool.e().IndefiniteFlag = 1;
    sxoc(aTool.e());
    EXPECT_EQ(aTool.output(), "սղոց");

    EnRule verb("saw", " the wood");
    verb.e().ModalFlag = 1;
    verb.e().PersonCode = 3;
    sxoc(verb.e());
    EXPECT_EQ(verb.word(), "");
    EXPECT_EQ(verb.output(), "սղոցենք");
    EXPECT_EQ(toUtf8(verb.e().WordTag), "v    ");
    EXPECT_TRUE(verb.e().ModalFlag.empty());

    EnRule third("saw", " the wood");
    third.e().ToMark = "to";
    sxoc(third.e());
    EXPECT_EQ(third.output(), "սղոցի");

    expectMiss(sxoc, "saw", " him");  // the past of "see"
}

TEST(PhrasalVerbs, Sxocel) {
    EnRule saws("saws", " here");
    saws.e().IndefiniteFlag = 1;
    sxocel(saws.e());
    EXPECT_EQ(saws.word(), "");
    EXPECT_EQ(saws.output(), "սղոցներ");
    expectKey(sxocel, "saws", " at me", "nags", 0);
    expectKey(sxocel, "sawed", " the wood", "naged", 0);
    expectKey(sxocel, "sawing", " the wood", "naging", 0);
}

TEST(PhrasalVerbs, DnelOnLeavesTheParticle) {
    EnRule r("put", " on a coat");
    dnel(r.e());
    EXPECT_EQ(r.word(), "wear");
    EXPECT_EQ(r.source(), "put on a coat ");
}

TEST(PhrasalVerbs, DnelInAndOutRewriteTheSource) {
    EnRule in("putting", " the book in the box");
    dnel(in.e());
    EXPECT_EQ(in.word(), "locateing");
    EXPECT_EQ(in.source(), "putting the book the box ");

    EnRule out("puts", " the fire out now");
    dnel(out.e());
    EXPECT_EQ(out.word(), "extinguishs");
    EXPECT_EQ(out.source(), "puts the fire now ");
}

TEST(PhrasalVerbs, DnelReplacesEveryCopyOfItsWindow) {
    // Thirty characters after the word, as the rule reads them, standing twice in the text.
    const std::string window = " it in a box and then we said ";
    ASSERT_EQ(window.size(), 30u);
    EnRule r("put", window + "put" + window, "put" + window);
    dnel(r.e());
    EXPECT_EQ(r.word(), "locate");
    const std::string shorter = " it a box and then we said ";
    EXPECT_EQ(r.source(), "put" + shorter + "put" + shorter + "put" + shorter);
}

TEST(PhrasalVerbs, DnelWindowWithCapitalsIsNotFoundInTheSource) {
    // The window is lower-cased before the search, so a capital ahead keeps the text unchanged.
    EnRule r("put", " it in Paris");
    dnel(r.e());
    EXPECT_EQ(r.word(), "locate");
    EXPECT_EQ(r.source(), "put it in Paris ");
}

TEST(PhrasalVerbs, DnelHaveFormAndNoParticle) {
    EnRule r("put", " it there");
    r.e().HaveForm = 1;
    dnel(r.e());
    EXPECT_EQ(r.word(), "puted");
    expectMiss(dnel, "put", " it there");
}

TEST(PhrasalVerbs, NkarelUshadrInvites) {
    expectKey(NkarelUshadr, "draw", " attention to", "invite", 0);
    expectKey(NkarelUshadr, "drew", " their attention to", "invited", 0);
    expectKey(NkarelUshadr, "drawn", " attention,", "invited", 0);
    expectKey(NkarelUshadr, "draws", " attention", "invites", 0);
    expectMiss(NkarelUshadr, "draw", " a line");
}

TEST(PhrasalVerbs, NkarelUshadrCapitalAttentionTurns) {
    EnRule r("draw", " Attention to");
    NkarelUshadr(r.e());
    EXPECT_EQ(r.output(), "դարձնել");
    EXPECT_EQ(r.word(), "");
    EXPECT_EQ(r.moved(), 0);
    EnRule drawn("drawn", " Attention to");
    NkarelUshadr(drawn.e());
    EXPECT_EQ(drawn.output(), "դարձրեց");
    EXPECT_EQ(drawn.moved(), 9);
}

TEST(PhrasalVerbs, NkarelUshadrReadsTwentyCharacters) {
    // "attention" past the twentieth character is not seen.
    expectMiss(NkarelUshadr, "draw", " the eyes of everyone attention");
}

}  // namespace
}  // namespace vorlexa::test
