// The English word rules as the dispatch reaches them: every trigger word of the rules of the
// phrasal verbs, the verb families and the fixed expressions stands on the English select and names
// a registered procedure, and a word with its particle does through the select what the procedure
// does when called by itself.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <vector>

#include "english_rule_fixture.h"
#include "rules/procedure_registry.h"
#include "rules/selects.h"

namespace vorlexa::test {
namespace {

using namespace literals;

constexpr TriggerReturn F = TriggerReturn::Finish;
constexpr TriggerReturn R = TriggerReturn::Rescan;

struct ProcedureRow {
    std::string_view procedure;
    std::vector<std::string_view> words;
    TriggerReturn ret;
};

// The rows of the English select that call these rules, with their words and returns.
const std::vector<ProcedureRow> kRows = {
    {"ibrev", {"as"}, F},
    {"zartucich", {"alarm"}, F},
    {"bolor", {"all"}, F},
    {"hete", {"along"}, F},
    {"inchani", {"any"}, F},
    {"back_up", {"back", "backed", "backing", "backs"}, F},
    {"havatal", {"believe", "believing", "believes", "believed'"}, F},
    {"traqel", {"blew", "blown"}, F},
    {"pchel", {"blow", "blows", "blowing"}, F},
    {"kaptal", {"capital"}, F},
    {"krel", {"carry", "work"}, F},
    {"mrsel", {"catch", "catching", "catches", "caught"}, F},
    {"Ashkhatutyun", {"carries", "works"}, R},
    {"motik", {"close"}, F},
    {"cry", {"cry", "cried", "cries", "crying"}, F},
    {"come", {"come", "coming", "comes", "came", "run", "running", "runs"}, F},
    {"c_v", {"curriculum"}, F},
    {"xach", {"crossing", "crossed"}, F},
    {"consist_of", {"consist", "consists", "consisting", "consisted"}, F},
    {"de_facto", {"de"}, F},
    {"harspesa", {"daughter", "son"}, F},
    {"deal", {"deal", "deals", "dealing", "dealed"}, F},
    {"woroshum", {"decision"}, F},
    {"DiesProcedure", {"dies"}, F},
    {"dialoguebox", {"dialogue", "message", "dialog"}, F},
    {"NkarelUshadr", {"draw", "draws", "drawing", "drew", "drawn"}, F},
    {"dyu", {"due"}, F},
    {"woreve", {"each", "each-"}, F},
    {"lezu", {"english", "armenian", "russian", "german", "french", "spanish", "turkish", "arabish", "jewish", "swidish", "portuguese"}, F},
    {"vabshe", {"even"}, F},
    {"fuck", {"fuck", "fucks", "fucked", "fucking"}, F},
    {"lcnellracnel", {"fill", "filled", "filling"}, F},
    {"Figurant", {"figure", "figures"}, F},
    {"find", {"find", "found", "finds", "finding"}, F},
    {"Figurant2", {"figured", "figuring"}, F},
    {"finearts", {"fine"}, F},
    {"haxtaharel", {"fight"}, F},
    {"himnamijoc", {"fixed"}, F},
    {"vrjkt", {"full"}, F},
    {"GetGetsGettingProcedure", {"get", "gets", "getting"}, R},
    {"GotProcedure", {"got"}, R},
    {"GiveNerka", {"give", "gives", "giving"}, F},
    {"GiveAncyal", {"given", "gave"}, F},
    {"gfloor", {"ground"}, F},
    {"achrtel", {"grow", "grows", "growing"}, F},
    {"sharunakel1", {"go", "going"}, F},
    {"sharunakel2", {"goes"}, F},
    {"gdot", {"good"}, F},
    {"KoshtUkopit", {"hard"}, F},
    {"hancnel", {"handed", "handing"}, F},
    {"barcrakrt", {"higher"}, F},
    {"xekavarats", {"headed"}, F},
    {"sofiknoc", {"health"}, F},
    {"vaxtin", {"high"}, F},
    {"dziauzh", {"horse"}, F},
    {"human", {"human"}, F},
    {"hacadul", {"hunger"}, F},
    {"icecream", {"ice"}, F},
    {"artaqin", {"interior", "foreign"}, F},
    {"iron", {"iron", "irons", "ironed", "ironing"}, F},
    {"HangamaNqner", {"issue"}, F},
    {"pahel", {"keep", "keeps", "kept"}, F},
    {"tesakme", {"kind", "sort"}, F},
    {"LastName", {"last"}, F},
    {"meknel1", {"leave", "leaves", "leaving"}, F},
    {"meknel2", {"left"}, F},
    {"nahang", {"leap"}, F},
    {"lit", {"light", "lit", "lighting", "lights"}, F},
    {"LivesProcedure", {"lives"}, F},
    {"yerkar", {"long"}, F},
    {"geranel", {"log", "logs", "logged", "logging"}, F},
    {"lk", {"look", "looks", "looking", "looked"}, F},
    {"areqinc", {"make", "makes", "making", "made"}, F},
    {"middle", {"middle"}, F},
    {"khnami", {"mother", "father", "brother", "sister"}, F},
    {"sepakanmijoc", {"my", "your", "his", "her", "our", "their"}, F},
    {"mayreni", {"native"}, F},
    {"MerzavorArevelq", {"near"}, F},
    {"anhrazhesht", {"no"}, F},
    {"zhame", {"o"}, F},
    {"mekn", {"one"}, F},
    {"aylapes", {"or"}, F},
    {"veravera", {"over"}, F},
    {"OfferProcedure", {"offers"}, F},
    {"pass", {"pass", "passed", "passing", "passes"}, F},
    {"herakhosel", {"phone", "computer"}, F},
    {"hpart", {"proud"}, F},
    {"tesaket", {"point"}, F},
    {"trir", {"pop"}, F},
    {"posht", {"post"}, F},
    {"elkayan", {"power", "electric"}, F},
    {"Preimas", {"pre"}, F},
    {"dnel", {"put", "putting", "puts"}, F},
    {"rad", {"rather"}, F},
    {"ansharzhguyk2", {"real"}, F},
    {"GetAp", {"river"}, F},
    {"rule", {"rules", "ruled", "ruling"}, F},
    {"ss", {"s"}, F},
    {"sxoc", {"saw"}, F},
    {"sxocel", {"sawed", "sawing", "saws"}, F},
    {"haytnvel", {"show", "shows", "showing", "shown", "showed"}, F},
    {"shut", {"shut", "shuts", "shutting"}, F},
    {"mutqaelqagrvel", {"sign", "signed", "signing"}, F},
    {"since", {"since"}, F},
    {"singl", {"single", "singled", "singles", "singling"}, F},
    {"NerumnHaycel", {"sorry"}, F},
    {"spk_out", {"speak", "speaks", "speaking", "spoke"}, F},
    {"spid", {"speed", "speeded", "speeds", "speeding"}, F},
    {"spell", {"spell", "spelling", "spelled", "spells"}, F},
    {"zapchast", {"spare"}, F},
    {"gisherel", {"stay"}, F},
    {"kaynel", {"stop", "stopped", "stopping", "stops"}, F},
    {"caxinprcan", {"sold"}, F},
    {"ispes", {"so"}, F},
    {"switch", {"switch", "switches", "switched", "switching"}, F},
    {"ShnorhakalQeznic", {"thank"}, F},
    {"TakingProcedure", {"taking"}, F},
    {"TakeProcedure", {"take"}, F},
    {"TaksProcedure", {"takes"}, F},
    {"TookTakenProcedure", {"taken", "took"}, F},
    {"TelAviv", {"tel"}, F},
    {"term", {"term", "terming"}, F},
    {"Sexm", {"tight"}, F},
    {"woroshzhamanakov", {"time"}, F},
    {"yevst", {"too"}, F},
    {"varem_marem", {"turn", "turning", "turns", "turned"}, F},
    {"ap", {"up"}, F},
    {"SovorLinel", {"use"}, F},
    {"anchaps", {"very"}, F},
    {"Yndhakarakn", {"vice"}, F},
    {"zartel", {"wake", "woke", "woken", "wakes", "waking"}, F},
    {"dzmeruk", {"water"}, F},
    {"wasteloss", {"waste"}, F},
    {"wait", {"wait", "waits", "waiting", "waited"}, F},
    {"wparty", {"wedding"}, F},
    {"sharunakel3", {"went", "gone"}, F},
    {"Hamashkharhayin", {"world"}, F},
};

TEST(EnglishRulesDispatch, EveryTriggerNamesItsRegisteredProcedure) {
    for (const ProcedureRow& p : kRows) {
        EXPECT_NE(findProcedure(p.procedure), nullptr) << p.procedure;
        for (std::string_view word : p.words) {
            const TriggerRow* row = englishTriggerTable().find(word);
            ASSERT_NE(row, nullptr) << word;
            // "good" and "made" stand on a row of the select as well; which of the two comes first
            // is the select's order ("good" reaches gdot either way).
            if (word == "good" || word == "made") continue;
            EXPECT_EQ(row->kind, RowKind::Procedure) << word;
            EXPECT_EQ(row->procedure, p.procedure) << word;
            EXPECT_EQ(row->ret, p.ret) << word;
        }
    }
}

TEST(EnglishRulesDispatch, TheHaveRuleHelperIsRegistered) { EXPECT_NE(findProcedure("yarab"), nullptr); }

struct Sample {
    std::string_view procedure;
    std::string word;
    std::string after;
    bool changes;  // the sample matches a test of the rule
    std::function<void(Engine&)> setup;
};

// A word of each rule, with the text after it that makes one of its tests match.
const std::vector<Sample> kSamples = {
    {"TakeProcedure", "take", " part in", true, {}},
    {"TaksProcedure", "takes", " place at", true, {}},
    {"TakingProcedure", "taking", " off the", true, {}},
    {"TookTakenProcedure", "took", " over it", true, {}},
    {"GetGetsGettingProcedure", "get", " up early", true, {}},
    {"GotProcedure", "got", " a cab", true, {}},
    {"GiveNerka", "gives", " up smoking", true, {}},
    {"GiveAncyal", "gave", " up hope", true, {}},
    {"OfferProcedure", "offers", " it", true, {}},
    {"LivesProcedure", "lives", " here", true, [](Engine& e) { e.PersonCode = 4; }},
    {"DiesProcedure", "dies", " now", true, {}},
    {"varem_marem", "turned", " off the light", true, {}},
    {"rule", "rules", " out it", true, {}},
    {"singl", "singled", " out one", true, {}},
    {"spell", "spell", " out it", true, {}},
    {"spk_out", "spoke", " out loud", true, {}},
    {"cry", "cried", " up the goods", true, {}},
    {"krel", "carry", " out the plan", true, {}},
    {"Ashkhatutyun", "works", " out fine", true, {}},
    {"lk", "looked", " for it", true, {}},
    {"hancnel", "handed", " over the keys", true, {}},
    {"fuck", "fucking", " off now", true, {}},
    {"find", "found", " out that", true, {}},
    {"shut", "shuts", " down the plant", true, {}},
    {"switch", "switched", " off the light", true, {}},
    {"pass", "passing", " away now", true, {}},
    {"lit", "lights", " up the room", true, {}},
    {"wait", "waited", " for you", true, {}},
    {"zartel", "woke", " up early", true, {}},
    {"pchel", "blows", " up now", true, {}},
    {"traqel", "blown", " up now", true, {}},
    {"havatal", "believes", " in god", true, {}},
    {"spid", "speeding", " down now", true, {}},
    {"haytnvel", "showed", " up late", true, {}},
    {"haxtaharel", "fight", " down fear", true, {}},
    {"achrtel", "growing", " up fast", true, {}},
    {"consist_of", "consisted", " of two", true, {}},
    {"back_up", "backing", " up the claim", true, {}},
    {"deal", "dealing", " with it", true, {}},
    {"kaynel", "stops", " by it", true, {}},
    {"geranel", "logs", " in now", true, {}},
    {"mutqaelqagrvel", "signing", " in here", true, {}},
    {"lcnellracnel", "filling", " in the form", true, {}},
    {"Figurant", "figures", " out how", true, {}},
    {"Figurant2", "figuring", " out how", true, {}},
    {"caxinprcan", "sold", " out now", true, {}},
    {"xekavarats", "headed", " by him", true, {}},
    {"come", "came", " across him", true, {}},
    {"areqinc", "making", " sure of it", true, {}},
    {"iron", "ironed", " out it", true, {}},
    {"pahel", "kept", " singing", true, {}},
    {"sharunakel1", "going", " through it", true, {}},
    {"sharunakel2", "goes", " through it", true, {}},
    {"sharunakel3", "gone", " on now", true, {}},
    {"meknel1", "leaves", " for Paris", true, {}},
    {"meknel2", "left", " for Paris", true, {}},
    {"mrsel", "caught", " cold again", true, {}},
    {"sxoc", "saw", " it", true, [](Engine& e) { e.ArticleEnding = "ը"_ft; }},
    {"sxocel", "sawing", " wood", true, {}},
    {"dnel", "putting", " on a coat", true, {}},
    {"NkarelUshadr", "drawing", " attention to", true, {}},
    {"bolor", "all", " over the world", true, {}},
    {"ibrev", "as", " long as you", true, {}},
    {"ispes", "so", " long friend", true, {}},
    {"since", "since", " then we", true, {}},
    {"khnami", "brother", " in law came", true, {}},
    {"harspesa", "daughter", " in law came", true, {}},
    {"human", "human", " being here", true, {}},
    {"middle", "middle", " ages were", true, {}},
    {"MerzavorArevelq", "near", " east is", true, {}},
    {"term", "term", " plan", true, [](Engine& e) { e.OutputText = "երկար-"_ft; }},
    {"woreve", "each", " other well", true, {}},
    {"kaptal", "capital", " letter A", true, {}},
    {"vrjkt", "full", " stop here", true, {}},
    {"posht", "post", " office is", true, {}},
    {"barcrakrt", "higher", " education is", true, {}},
    {"aylapes", "or", " else we", true, {}},
    {"artaqin", "interior", " ministry", true, {}},
    {"de_facto", "de", " facto it", true, {}},
    {"vaxtin", "high", " time to", true, {}},
    {"c_v", "curriculum", " vitae is", true, {}},
    {"zhame", "o", "'clock now", true, {}},
    {"tesakme", "sort", " of strange", true, {}},
    {"sofiknoc", "health", " post is", true, {}},
    {"woroshum", "decision", " making is", true, {}},
    {"woroshzhamanakov", "time", " being we", true, {}},
    {"vabshe", "even", " though it", true, {}},
    {"anhrazhesht", "no", " matter what", true, {}},
    {"motik", "close", " to me", true, {}},
    {"ap", "up", " to date", true, {}},
    {"hete", "along", " with", true, [](Engine& e) { e.SourceText = "along with"; }},
    {"gdot", "good", " looking man", true, {}},
    {"rad", "rather", " than me", true, {}},
    {"dialoguebox", "dialog", " box opens", true, {}},
    {"ss", "s", " are", true, [](Engine& e) { e.SourceText = "CD-s are "; e.ScanPos = 5; }},
    {"yevst", "too", ".", true, {}},
    {"anchaps", "very", " many people", true, {}},
    {"inchani", "any", " more tea", true, {}},
    {"hpart", "proud", " of you", true, {}},
    {"tesaket", "point", " of view is", true, {}},
    {"wasteloss", "waste", " of time", true, {}},
    {"icecream", "ice", " cream is", true, {}},
    {"wparty", "wedding", " party was", true, {}},
    {"gfloor", "ground", " floor is", true, {}},
    {"finearts", "fine", " arts are", true, {}},
    {"mayreni", "native", " language is", true, {}},
    {"dziauzh", "horse", " power of", true, {}},
    {"ansharzhguyk2", "real", " estate is", true, {}},
    {"zartucich", "alarm", " clock rang", true, {}},
    {"dzmeruk", "water", " melon is", true, {}},
    {"nahang", "leap", " year is", true, {}},
    {"himnamijoc", "fixed", " asset is", true, {}},
    {"hacadul", "hunger", " strike now", false, {}},
    {"elkayan", "electric", " supply is", true, {}},
    {"zapchast", "spare", " time is", true, {}},
    {"gisherel", "stay", " overnight here", true, {}},
    {"veravera", "over", " and over", true, {}},
    {"mekn", "one", " by one", true, {}},
    {"trir", "pop", " up window", true, {}},
    {"xach", "crossing", " the road", true, {}},
    {"yerkar", "long", " ago we", true, {}},
    {"sepakanmijoc", "their", " own way", true, [](Engine& e) { e.PendingEnding = "ի վրա"_ft; }},
    {"LastName", "last", " name is", true, {}},
    {"NerumnHaycel", "sorry", " for that", true, [](Engine& e) { e.PendingCopula = "եմ"_ft; }},
    {"SovorLinel", "use", " now", true, [](Engine& e) { e.PendingEnding = "ի մեջ"_ft; }},
    {"Preimas", "pre", "-emptive strike", true, {}},
    {"TelAviv", "tel", " Aviv is", true, {}},
    {"GetAp", "river", " bank is", true, {}},
    {"ShnorhakalQeznic", "thank", " you very", true, {}},
    {"HangamaNqner", "issue", " of", true, [](Engine& e) { e.ArticleEnding = "ը"_ft; }},
    {"Yndhakarakn", "vice", " versa.", true, {}},
    {"Sexm", "tight", "-fisted man", true, {}},
    {"KoshtUkopit", "hard", " currency is", true, {}},
    {"Hamashkharhayin", "world", " record is", true, {}},
    {"dyu", "due", " course we", true, {}},
    {"herakhosel", "phone", " now", true, [](Engine& e) {
          e.SpeechVerbFlag = 1;
          e.PendingEnding = "ի վրա"_ft;
      }},
    {"lezu", "russian", " now", true, [](Engine& e) { e.PendingEnding = "ի մեջ"_ft; }},
};

struct State {
    FontText word, output, ending, copula, mark, source;
    std::int64_t scanPos;
    explicit State(const Engine& e)
        : word(e.CurrentWord), output(e.OutputText), ending(e.PendingEnding), copula(e.PendingCopula),
          mark(e.VerbFormMark), source(e.SourceText), scanPos(e.ScanPos) {}
    bool operator==(const State&) const = default;
};

TEST(EnglishRulesDispatch, EachRuleIsReachedByItsTrigger) {
    std::map<std::string_view, TriggerReturn> returns;
    for (const ProcedureRow& p : kRows) returns[p.procedure] = p.ret;
    ASSERT_EQ(kSamples.size(), kRows.size());

    for (const Sample& s : kSamples) {
        EnRule dispatched(s.word, s.after);
        EnRule direct(s.word, s.after);
        if (s.setup) {
            s.setup(dispatched.e());
            s.setup(direct.e());
        }
        const State before(direct.e());
        const auto result = englishSelect(dispatched.e());
        const RuleProcedure procedure = findProcedure(s.procedure);
        ASSERT_NE(procedure, nullptr) << s.procedure;
        procedure(direct.e());

        ASSERT_TRUE(result.has_value()) << s.word;
        EXPECT_EQ(*result, returns.at(s.procedure)) << s.word;
        EXPECT_TRUE(State(dispatched.e()) == State(direct.e())) << s.word << s.after;
        if (s.changes) {
            EXPECT_FALSE(State(direct.e()) == before) << s.procedure << ": the sample matches no test";
        }
    }
}

}  // namespace
}  // namespace vorlexa::test
