// The rules written in the English select: for each row a text that matches its test and one
// that does not (for a row without a test, a neighbouring word that no row holds). Each case runs
// the dispatch on the word as the scanner hands it over and checks the return, the word left for
// the look-up, how far ScanPos moved, what was written and the members the row sets.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "rules/contract_fixture.h"

namespace vorlexa::contract_test {
namespace {

using namespace literals;

constexpr auto F = TriggerReturn::Finish;
constexpr auto R = TriggerReturn::Rescan;

struct RowCase {
    std::string name;
    std::string text;
    std::string word;
    TriggerReturn ret = TriggerReturn::Finish;
    std::string wordAfter;
    std::int64_t moved = 0;
    std::string outputAfter;
    std::function<void(Engine&)> setup;
    std::function<void(Engine&)> check;
    std::int64_t pos = 0;  // ScanPos; 0: the delimiter after the word
};

void PrintTo(const RowCase& c, std::ostream* os) { *os << c.name; }

// A word whose test fails goes on to Finish as it stands.
RowCase miss(std::string name, std::string text, std::string word, std::function<void(Engine&)> setup = {},
             std::function<void(Engine&)> check = {}) {
    RowCase c;
    c.name = std::move(name);
    c.text = std::move(text);
    c.word = word;
    c.ret = F;
    c.wordAfter = word;
    c.setup = std::move(setup);
    c.check = std::move(check);
    return c;
}

RowCase hit(std::string name, std::string text, std::string word, TriggerReturn ret, std::string wordAfter,
            std::int64_t moved, std::string outputAfter = "", std::function<void(Engine&)> setup = {},
            std::function<void(Engine&)> check = {}, std::int64_t pos = 0) {
    RowCase c;
    c.name = std::move(name);
    c.text = std::move(text);
    c.word = std::move(word);
    c.ret = ret;
    c.wordAfter = std::move(wordAfter);
    c.moved = moved;
    c.outputAfter = std::move(outputAfter);
    c.setup = std::move(setup);
    c.check = std::move(check);
    c.pos = pos;
    return c;
}

auto endingIs(std::string expected) {
    return [expected](Engine& e) { EXPECT_EQ(toUtf8(e.PendingEnding), expected); };
}
auto classChainIs(std::string expected) {
    return [expected](Engine& e) { EXPECT_EQ(toUtf8(e.ClassChain), expected); };
}
auto withEnding(std::string ending) {
    return [ending](Engine& e) { e.PendingEnding = fromUtf8(ending); };
}
auto withArticle() {
    return [](Engine& e) { e.ArticleEnding = fromUtf8("ը"); };
}
auto withOutput(std::string text) {
    return [text](Engine& e) { e.OutputText = fromUtf8(text); };
}
auto wordTailIs(std::string expected) {
    return [expected](Engine& e) { EXPECT_EQ(toUtf8(e.WordTail), expected); };
}
auto both(std::function<void(Engine&)> a, std::function<void(Engine&)> b) {
    return [a, b](Engine& e) {
        a(e);
        b(e);
    };
}

std::vector<RowCase> cases() {
    return {
        hit("http", "http://a.am/x y", "http", R, "", 9, "http://a.am/x"),
        miss("http_miss", "htt y", "htt"),
        hit("about", "about it", "about", R, "", 1, "", {}, both(endingIs("ի շուրջ"), classChainIs(" "))),
        miss("about_miss", "abouts it", "abouts"),
        hit("above", "above all,", "above", F, "moreover", 4),
        miss("above_miss", "above it", "above"),
        hit("absent", "absent minded", "absent", F, "forgetful", 7),
        miss("absent_miss", "absent now", "absent"),
        hit("aired", "aired it", "aired", F, "broadcasted", 0),
        hit("airing", "airing it", "airing", F, "broadcasting", 0),
        miss("aired_miss", "air it", "air"),
        hit("airborne", "airborne troops", "airborne", F, "commando", 0),
        miss("airborne_miss", "airborne units", "airborne"),
        hit("amounted", "amounted to", "amounted", F, "constituteed", 0),
        hit("amounting", "amounting to", "amounting", F, "constituteing", 0),
        miss("amounted_miss", "amount to", "amount"),
        hit("between", "between us", "between", R, "", 1, "", [](Engine& e) { e.ClassChain = "n"; },
            both(endingIs("ի միջև"), classChainIs(""))),
        hit("among", "among us", "among", R, "", 1, "", {}, endingIs("ի միջև")),
        miss("between_miss", "betweens", "betweens"),
        hit("because", "because of it", "because", F, "due", 0, "", [](Engine& e) { e.DefiniteState = 1; },
            [](Engine& e) { EXPECT_EQ(e.DefiniteState, 0); }),
        miss("because_miss", "because it", "because", [](Engine& e) { e.DefiniteState = 1; },
             [](Engine& e) { EXPECT_EQ(e.DefiniteState, 0); }),
        hit("beef", "beef up the", "beef", F, "strengthen", 3),
        miss("beef_miss", "beef stew", "beef"),
        hit("blood", "blood-soaked shirt", "blood", F, "", 7, "արնաթաթախ"),
        miss("blood_miss", "blood type", "blood"),
        hit("board", "board of directors", "board", F, "advise", 0),
        hit("board_capitals", "board OF directors", "board", F, "advise", 0),
        miss("board_miss", "board game", "board"),
        hit("brand", "brand new car", "brand", F, "absolute", 0),
        miss("brand_miss", "brand name", "brand"),
        hit("bring", "bring together", "bring", F, "consolidate", 9),
        hit("bringing", "bringing together", "bringing", F, "consolidateing", 9),
        miss("bring_miss", "bring it", "bring"),
        hit("brought", "brought together", "brought", F, "consolidated", 9),
        miss("brought_miss", "brought it", "brought"),
        hit("buenos", "buenos Aires is", "buenos", R, "", 6, "Բուենոս Այրեսից", withEnding("ից"),
            both(endingIs(""), classChainIs("n"))),
        miss("buenos_miss", "buenos dias", "buenos"),
        hit("cease", "cease fire", "cease", F, "ceasefire", 4),
        miss("cease_miss", "cease it", "cease"),
        hit("cast", "cast iron", "cast", F, "cast-iron", 4),
        miss("cast_miss", "cast away", "cast"),
        hit("carried", "carried out the", "carried", F, "created", 4),
        hit("worked", "worked out the", "worked", F, "created", 4),
        miss("carried_miss", "carried outside", "carried"),
        hit("carrying", "carrying out the", "carrying", F, "creating", 4, "", {},
            [](Engine& e) { EXPECT_EQ(e.WorkVerbFlag, 1); }),
        miss("working_miss", "working hard", "working", {}, [](Engine& e) { EXPECT_EQ(e.WorkVerbFlag, 1); }),
        hit("control", "control of", "control", F, "supervision", 0, "", withArticle()),
        miss("control_miss", "control it", "control"),
        hit("clock", "clock hand", "clock", F, "clock", 0, "", {}, [](Engine& e) { EXPECT_EQ(e.ClockFlag, 1); }),
        miss("clock_miss", "clocks hand", "clocks", {}, [](Engine& e) { EXPECT_TRUE(e.ClockFlag.empty()); }),
        hit("cold", "cold war", "cold", F, "", 0, "սառը", {}, classChainIs("nn")),
        hit("cold_capital", "cold War", "cold", F, "", 0, "սառը"),
        miss("cold_miss", "cold day", "cold"),
        hit("dwelling", "dwelling on the past", "dwelling", F, "meditateing", 3, "", {}, endingIs("ի մասին")),
        hit("dwell", "dwell on it", "dwell", F, "meditate", 3),
        miss("dwell_miss", "dwell in it", "dwell"),
        hit("drafted", "drafted it", "drafted", F, "constituted", 0),
        hit("drafting", "drafting it", "drafting", F, "constituting", 0),
        miss("drafted_miss", "draft it", "draft"),
        hit("drill", "drill bit", "drill", F, "wimble", 3),
        miss("drill_miss", "drill it", "drill"),
        hit("during", "during the war", "during", R, "", 1, "", {}, endingIs("ի ընթացքում")),
        miss("during_miss", "durings", "durings"),
        hit("into", "into the house", "into", R, "", 1, "", {}, endingIs("ի մեջ")),
        miss("into_miss", "intos", "intos"),
        hit("dump", "dump is", "dump", F, "dust-heap", 0, "", withEnding("ի մեջ")),
        miss("dump_miss", "dump it", "dump"),
        hit("e", "e mail", "e", F, "", 0, "էլ"),
        miss("e_miss", "e book", "e"),
        hit("excuse", "excuse me", "excuse", F, "forgive", 0),
        hit("excuse_us", "excuse us", "excuse", F, "forgive", 0),
        miss("excuse_miss", "excuse him", "excuse"),
        hit("ended", "ended up in jail", "ended", F, "expireed", 6, "", {}, endingIs("ով")),
        hit("ends", "ends up in jail", "ends", F, "expires", 6),
        miss("end_miss", "end up at", "end"),
        hit("follow", "follow-up check", "follow", R, "checking", 3, "հաջորդական "),
        miss("follow_miss", "follow me", "follow"),
        hit("far", "far away", "far", F, "", 5, "հեռու"),
        miss("far_miss", "far from", "far"),
        hit("first", "first of all,", "first", F, "queue", 6, "առաջին ", {}, endingIs("ին")),
        miss("first_miss", "first time", "first"),
        hit("flesh", "flesh mob here", "flesh", F, "", 4, "Ֆլեշ Մոբ"),
        miss("flesh_miss", "flesh wound", "flesh"),
        hit("finger", "finger nail", "finger", F, "fingernail", 4),
        miss("finger_miss", "finger tip", "finger"),
        hit("fire", "fire department", "fire", F, "firefighter", 0),
        hit("fire_capital", "fire Department", "fire", F, "firefighter", 0),
        miss("fire_miss", "fire alarm", "fire"),
        hit("front", "front door", "front", F, "front", 0, "", withEnding("ի մեջ"), endingIs("")),
        miss("front_miss", "front door", "front", withEnding("ից"), endingIs("ից")),
        hit("free", "free of charge now", "free", F, "free of charge", 10, "", withEnding("ի"),
            both(endingIs(""), classChainIs(" "))),
        miss("free_miss", "free time", "free", {}, classChainIs(" ")),
        hit("fond", "fond of music", "fond", F, "love", 3),
        miss("fond_miss", "fond memories", "fond"),
        hit("force", "force him", "force", F, "necessitate", 0),
        miss("force_miss", "force of", "force", withArticle()),
        hit("focused", "focused on", "focused", F, "concentrateed", 0),
        hit("focusing", "focusing on", "focusing", F, "concentrateing", 0),
        miss("focused_miss", "focus on", "focus"),
        hit("grew", "grew up here", "grew", F, "increased", 3),
        hit("grown", "grown up children", "grown", F, "increased", 3),
        miss("grew_miss", "grew old", "grew"),
        hit("great", "great plenty", "great", F, "riches", 7),
        miss("great_miss", "great idea", "great"),
        hit("good", "good book", "good", F, "good", 0, "", {}, [](Engine& e) { EXPECT_EQ(e.GoodFlag, 1); }),
        miss("good_miss", "goods are", "goods", {}, [](Engine& e) { EXPECT_TRUE(e.GoodFlag.empty()); }),
        hit("hand", "hand is", "hand", F, "pointerd", 0, "", [](Engine& e) { e.ClockFlag = 1; },
            [](Engine& e) {
                EXPECT_TRUE(e.ClockFlag.empty());
                EXPECT_TRUE(e.WordTail.empty());
            }),
        hit("hands", "hands are", "hands", F, "pointers", 0, "", [](Engine& e) { e.ClockFlag = 1; }),
        miss("hand_miss", "hand is", "hand"),
        hit("heart", "heart attack", "heart", F, "infarction", 6),
        miss("heart_miss", "heart beat", "heart"),
        hit("here", "here you are", "here", F, "here-", 8),
        miss("here_miss", "here we are", "here"),
        hit("honour", "honour of", "honour", F, "honour", 0, "", withEnding("ի վրա"), endingIs("ին")),
        hit("honour_in", "honour of", "honour", F, "honour", 0, "", withEnding("ի մեջ"), endingIs("ին")),
        miss("honour_miss", "honour of", "honour", {}, endingIs("")),
        hit("kidding", "kidding me", "kidding", F, "hocus", 0),
        miss("kidding_miss", "kid me", "kid"),
        hit("know", "know-how is", "know", F, "skill", 4, "ձեռներեցություն "),
        miss("know_miss", "know how", "know"),
        hit("lasts", "lasts long", "lasts", F, "continues", 0),
        hit("lasted", "lasted long", "lasted", F, "continueed", 0),
        miss("lasts_miss", "lastly long", "lastly"),
        hit("law", "law enforcement", "law", F, "law-enforcement", 11),
        miss("law_miss", "law school", "law"),
        hit("los", "los Angeles is", "los", R, "", 8, "Լոս Անջելես", {}, classChainIs("n")),
        miss("los_miss", "los angeles", "los"),
        hit("longed", "longed for", "longed", F, "dreamed", 0),
        hit("longing", "longing for", "longing", F, "dreaming", 0),
        hit("longs", "longs for", "longs", F, "dreams", 0),
        miss("longed_miss", "longer for", "longer"),
        hit("lot", "lot of people", "lot", F, "lot", 3),
        miss("lot_miss", "lot is", "lot"),
        hit("let", "let's go", "let", F, "", 0, "գալ", {},
            [](Engine& e) {
                EXPECT_EQ(e.PersonCode, 3);
                EXPECT_EQ(e.AdverbFlag, 1);
            },
            6),
        miss("let_miss", "let me go", "let", {}, [](Engine& e) { EXPECT_EQ(e.AdverbFlag, 1); }),
        miss("allow_miss", "allow me", "allow", {}, [](Engine& e) { EXPECT_EQ(e.AdverbFlag, 1); }),
        hit("marry", "marry him", "marry", F, "marry", 0, "", {}, endingIs("ի հետ")),
        hit("married", "married her", "married", F, "married", 0, "", {}, endingIs("ի հետ")),
        miss("marry_miss", "marries him", "marries", {}, endingIs("")),
        hit("made", "made of wood", "made", F, "", 3, "", [](Engine& e) { e.PendingCopula = fromUtf8("է"); },
            endingIs("ից է")),
        miss("made_miss", "made it", "made"),
        hit("military", "military base", "military", F, "military base", 5),
        miss("military_miss", "military man", "military"),
        hit("match", "match is", "match", F, "meeting", 0, "մի ", withOutput("մի ")),
        miss("match_miss", "match is", "match"),
        hit("more", "more or less", "more", F, "more or less", 7),
        miss("more_miss", "more time", "more"),
        hit("moved", "moved away", "moved", F, "removed", 5),
        miss("moved_miss", "moved in", "moved"),
        hit("new", "new York is", "new", R, "", 5, "Նյու-Յորքում", withEnding("ում"), classChainIs("n")),
        miss("new_miss", "new york", "new"),
        hit("number", "number plate", "number", F, "", 5, "համարանիշ"),
        miss("number_miss", "number one", "number"),
        hit("need", "need it", "need", F, "", 0, "կարիք ունենալ"),
        hit("needs", "needs it", "needs", F, "", 0, "կարիք ունի"),
        miss("need_miss", "need is", "need", withArticle()),
        hit("next", "next to the", "next", R, "", 3, "կողքն", {},
            both(endingIs("ի"), [](Engine& e) { EXPECT_EQ(e.ContractionFlag, 1); })),
        hit("next_point", "next to.", "next", R, "", 3, "կողքն"),
        miss("next_miss", "next week", "next"),
        hit("nobody", "nobody came", "nobody", F, "nobody", 0, "", {},
            [](Engine& e) { EXPECT_EQ(toUtf8(e.NegationMark), "չ"); }),
        hit("nowere", "nowere to", "nowere", F, "nowere", 0, "", {},
            [](Engine& e) { EXPECT_EQ(toUtf8(e.NegationMark), "չ"); }),
        miss("nobody_miss", "nowhere to", "nowhere", {}, [](Engine& e) { EXPECT_TRUE(e.NegationMark.empty()); }),
        hit("not", "not here", "not", F, "", 0, "",
            [](Engine& e) {
                e.PendingCopula = fromUtf8("են");
                e.PersonCode = 3;
            },
            [](Engine& e) { EXPECT_EQ(toUtf8(e.PendingCopula), "չենք"); }),
        miss("not_miss", "not here", "not"),
        hit("once", "once more", "once", F, "once", 4, "ևս "),
        miss("once_miss", "once upon", "once"),
        hit("open", "open it", "open", F, "unpack", 0, "", [](Engine& e) { e.ToMark = "to"; }),
        miss("open_miss", "open it", "open"),
        hit("pack", "pack of wolves", "pack", F, "", 0, "ոհմակ"),
        miss("pack_miss", "pack of cards", "pack"),
        hit("part", "part with", "part", F, "", 0, "առանձինվել"),
        miss("part_miss", "part of", "part"),
        hit("particular", "particular ", "particular", F, "", 0, "մասնավորապես", withEnding("ի մեջ"), endingIs("")),
        miss("particular_miss", "particulars", "particulars"),
        hit("particular_plain", "particular case", "particular", F, "", 0, "մասնավոր"),
        hit("pan", "pan-Armenian", "pan", F, "co", 0),
        miss("pan_miss", "pan is", "pan"),
        hit("pay", "pay attention", "pay", F, "turn", 0),
        hit("paying", "paying attention", "paying", F, "turning", 0),
        miss("pay_miss", "pay money", "pay"),
        hit("paid", "paid attention", "paid", F, "turned", 0),
        miss("paid_miss", "paid money", "paid"),
        hit("per", "per cent", "per", F, "percent", 5),
        miss("per_miss", "per day", "per"),
        hit("petting", "petting it", "petting", F, "caressing", 0),
        hit("petted", "petted it", "petted", F, "caressed", 0),
        miss("petting_miss", "pet it", "pet"),
        hit("please", "please come", "please", F, "please", 0, "", {},
            [](Engine& e) { EXPECT_EQ(e.ImperativeFlag, 1); }),
        miss("please_miss", "pleased", "pleased", {}, [](Engine& e) { EXPECT_TRUE(e.ImperativeFlag.empty()); }),
        hit("prompt", "prompt reply", "prompt", F, "swift", 0),
        miss("prompt_miss", "prompt him", "prompt", [](Engine& e) { e.VerbFormMark = fromUtf8("ում"); }),
        hit("pope", "the Pope said", "pope", F, "Pope", 0, "", {}, {}, 9),
        miss("pope_miss", "the pope said", "pope"),
        hit("public", "public is", "public", F, "community", 0, "", withArticle()),
        miss("public_miss", "public school", "public"),
        hit("quotation", "quotation mark", "quotation", F, "quotation-mark", 4),
        miss("quotation_miss", "quotation of", "quotation"),
        hit("re", "we're going", "re", F, "re", 0, " ", {}, {}, 6),
        hit("m", "i'm here", "m", F, "m", 0, " ", {}, {}, 4),
        miss("re_miss", "res going", "res"),
        hit("remote", "remote control", "remote", F, "remote control", 7),
        miss("remote_miss", "remote area", "remote"),
        hit("rigged", "rigged election", "rigged", F, "falsified", 0),
        miss("rigged_miss", "rigged game", "rigged"),
        hit("right", "right now", "right", F, "just", 0),
        miss("right_miss", "right here", "right"),
        hit("rose", "rose up and", "rose", F, "rised", 3),
        miss("rose_miss", "rose garden", "rose"),
        hit("scored", "scored twice", "scored", F, "hited", 0, "գոլ ", {}, wordTailIs("ed")),
        miss("scored_miss", "scores twice", "scores"),
        hit("set", "set of", "set", R, "group", 0, " մի ", withOutput(" մի ")),
        hit("set_article", "set of", "set", R, "group", 0, "", withArticle()),
        miss("set_miss", "set it", "set"),
        hit("secretary", "secretary general said", "secretary", F, "secretary", 8, "գլխավոր "),
        hit("secretary_capital", "secretary General said", "secretary", F, "secretary", 8, "գլխավոր "),
        miss("secretary_miss", "secretary said", "secretary"),
        hit("secret", "secret service", "secret", F, "confidential", 0),
        miss("secret_miss", "secret plan", "secret"),
        hit("days", "days of", "days", F, "days", 0, "", withEnding("ի մեջ"), endingIs("ից")),
        hit("year", "year of", "year", F, "year", 0, "", withEnding("ի մեջ"), endingIs("ից")),
        miss("days_miss", "days of", "days", withEnding("ի վրա"), endingIs("ի վրա")),
        hit("sentencing", "sentencing him", "sentencing", F, "condemnation", 0, "", {}, wordTailIs("sen")),
        hit("sentenced", "sentenced him", "sentenced", F, "condemnation", 0, "", {}, wordTailIs("se")),
        miss("sentencing_miss", "sentence him", "sentence"),
        hit("side", "side by side", "side", F, "", 8, "կողք կողքի"),
        miss("side_miss", "side door", "side"),
        hit("site", "site is", "site", F, "place", 0),
        hit("sites", "sites are", "sites", F, "places", 0),
        miss("site_miss", "sit is", "sit"),
        hit("sit", "sit down", "sit", F, "sit", 4),
        hit("sitting", "sitting down", "sitting", F, "sitting", 4),
        miss("sit_miss", "sit up", "sit"),
        hit("slow", "slow down", "slow", F, "retard", 4),
        miss("slow_miss", "slow car", "slow"),
        hit("some", "some people", "some", F, "some", 0, "", {},
            [](Engine& e) {
                EXPECT_EQ(e.DefiniteState, -1);
                EXPECT_EQ(e.IndefiniteFlag, 1);
            }),
        hit("several", "several people", "several", F, "several", 0, "", {},
            [](Engine& e) { EXPECT_EQ(e.DefiniteState, -1); }),
        miss("some_miss", "somewhat", "somewhat", {}, [](Engine& e) { EXPECT_EQ(e.DefiniteState, 0); }),
        hit("sponge", "sponge cake", "sponge", F, "biscuit", 4),
        miss("sponge_miss", "sponge bob", "sponge"),
        hit("stand", "stand by me", "stand", F, "aside", 3),
        hit("stood", "stood by me", "stood", F, "aside", 3),
        miss("stand_miss", "stand up", "stand"),
        hit("station", "station is", "station", F, "station", 0, "", withEnding("ին"), endingIs("ի մեջ")),
        miss("station_miss", "station is", "station", {}, endingIs("")),
        hit("sooner", "sooner or later", "sooner", F, "", 8, "շուտ թե ուշ"),
        miss("sooner_miss", "sooner than", "sooner"),
        hit("st", "st. Peter", "st", F, "", 1, "սբ "),
        miss("st_miss", "st Peter", "st"),
        hit("step_up", "step up the", "step", F, "add", 3),
        hit("step_down", "step down now", "step", F, "lessen", 5),
        miss("step_miss", "step in", "step"),
        hit("status", "status quo", "status", F, "", 3, "ստատուս քվո"),
        miss("status_miss", "status is", "status"),
        hit("swiming", "swiming pool", "swiming", F, "swiming pool", 4),
        miss("swiming_miss", "swimming pool", "swimming"),
        hit("tens", "tens of people", "tens", F, "", 0, "տասնյակ"),
        miss("tens_miss", "tens are", "tens"),
        hit("then", "then was", "then", F, "time", 0, "այն ", withEnding("ի մեջ")),
        miss("then_miss", "then was", "then"),
        hit("ticketing", "ticketing is", "ticketing", F, "amerce", 0, "", {}, wordTailIs("keting")),
        hit("ticketed", "ticketed him", "ticketed", F, "amerce", 0, "", {}, wordTailIs("keted")),
        miss("ticketing_miss", "ticket him", "ticket"),
        hit("think", "think out it", "think", F, "discuss", 3),
        hit("thinking", "thinking out", "thinking", F, "discussing", 3),
        hit("resons", "resons out", "resons", F, "discusss", 3),
        miss("think_miss", "think about", "think"),
        hit("thanks", "thanks to the", "thanks", F, "due", 0),
        miss("thanks_miss", "thanks to you", "thanks"),
        hit("thought", "thought out", "thought", F, "discussed", 3),
        miss("thought_miss", "thought of", "thought"),
        hit("this", "this way", "this", F, "so", 3),
        miss("this_miss", "this is", "this"),
        hit("traffic", "traffic light", "traffic", F, "streetlight", 5),
        miss("traffic_miss", "traffic jam", "traffic"),
        hit("train", "train is", "train", F, "", 0, "գնացք", withArticle()),
        miss("train_miss", "train them", "train"),
        hit("trigger", "trigger it", "trigger", F, "begin", 0),
        hit("trigger_copula", "trigger it", "trigger", F, "begin", 0, "",
            [](Engine& e) {
                e.ModalFlag = 1;
                e.PendingCopula = fromUtf8("է");
            }),
        miss("trigger_miss", "trigger it", "trigger", [](Engine& e) { e.ModalFlag = 1; }),
        hit("triggered", "triggered it", "triggered", F, "begined", 0),
        hit("triggers", "triggers it", "triggers", F, "begins", 0),
        miss("triggered_miss", "triggering", "triggerin"),
        hit("used", "used to go", "used", F, "used*", 0),
        miss("used_miss", "used it", "used"),
        hit("united", "united States is", "united", R, "", 7, "Միացյալ Նահանգներից", withEnding("ից"),
            both(endingIs(""), classChainIs("n"))),
        miss("united_miss", "united states", "united"),
        hit("under", "under the", "under", R, "", 1, "", {}, both(endingIs("ի տակ"), classChainIs(" "))),
        miss("under_miss", "unders", "unders"),
        hit("viewing", "viewing it", "viewing", F, "watching", 0),
        hit("viewed", "viewed it", "viewed", F, "watched", 0),
        miss("viewing_miss", "view it", "view"),
        hit("well", "well being", "well", F, "welfare", 5),
        miss("well_miss", "well done", "well"),
        hit("way", "way to", "way", F, "road", 0, "", withEnding("ի վրա"), endingIs("ին")),
        miss("way_miss", "way to", "way", withEnding("ի մեջ"), endingIs("ի մեջ")),
        hit("without", "without it", "without", F, "without", 0, "", withEnding("ից"), endingIs("իցի")),
        miss("without_miss", "withouts", "withouts"),
        hit("while", "while he", "while", F, "while", 0, "", {}, [](Engine& e) { EXPECT_EQ(e.WhileFlag, 1); }),
        hit("through", "through it", "through", F, "through", 0, "", {},
            [](Engine& e) { EXPECT_EQ(e.WhileFlag, 1); }),
        miss("while_miss", "whilst he", "whilst", {}, [](Engine& e) { EXPECT_TRUE(e.WhileFlag.empty()); }),
        hit("would", "would like it", "would", F, "wish", 5, "կամք ", {},
            [](Engine& e) { EXPECT_EQ(e.ConditionalFlag, 1); }),
        hit("should", "should go", "should", F, "", 0, "կամք "),
        miss("would_miss", "wouldst go", "wouldst"),
        hit("yields", "yields it", "yields", F, "cedes", 0),
        hit("yielding", "yielding it", "yielding", F, "cedeing", 0),
        miss("yields_miss", "yield it", "yield"),
    };
}

class SelectRow : public ::testing::TestWithParam<RowCase> {};

TEST_P(SelectRow, MatchOrMiss) {
    const RowCase& c = GetParam();
    RuleFixture f;
    Engine& e = f.at(c.text, c.word, c.pos);
    if (c.setup) c.setup(e);
    const std::int64_t start = e.ScanPos;
    EXPECT_EQ(e.triggerSelect(), c.ret);
    EXPECT_EQ(f.word(), c.wordAfter);
    EXPECT_EQ(e.ScanPos - start, c.moved);
    EXPECT_EQ(f.output(), c.outputAfter);
    if (c.check) c.check(e);
}

INSTANTIATE_TEST_SUITE_P(EnglishSelect, SelectRow, ::testing::ValuesIn(cases()),
                         [](const ::testing::TestParamInfo<RowCase>& info) { return info.param.name; });

}  // namespace
}  // namespace vorlexa::contract_test
