// The trigger select of English source text: the words that call a rule procedure, the rules
// written in the select itself, and its longer rules (modals, "do", "have", "of", "on").
#include "rules/selects.h"

#include "rules/procedure_registry.h"
#include "rules/rule_contract.h"

namespace vorlexa {

using namespace literals;
using namespace row;

namespace {

constexpr TriggerReturn F = TriggerReturn::Finish;
constexpr TriggerReturn R = TriggerReturn::Rescan;

TriggerRow proc(std::initializer_list<std::string_view> words, std::string_view procedure, TriggerReturn ret,
                RowEffect before = {}) {
    return procedureRow(words, procedure, ret, std::move(before));
}

// "at", "from" and "for" break a chain of nouns before their procedure runs.
void breakNounChain(Engine& e) { e.ClassChain = " "; }

// The words that call a rule procedure, in the order of the select.
std::vector<TriggerRow> procedureRows() {
    return {
        proc({"a", "an"}, "AAnProcedure", R),
        proc({"after"}, "yetqe", R),
        proc({"as"}, "ibrev", F),
        proc({"at"}, "AtProcedure", R, breakNounChain),
        proc({"alarm"}, "zartucich", F),
        proc({"all"}, "bolor", F),
        proc({"along"}, "hete", F),
        proc({"am", "is", "are", "was", "were"}, "EmEEnEin", F),
        proc({"any"}, "inchani", F),
        proc({"back", "backed", "backing", "backs"}, "back_up", F),
        proc({"be", "been", "being"}, "ToBeOrNotToBe", F),
        proc({"believe", "believing", "believes", "believed'"}, "havatal", F),
        proc({"blew", "blown"}, "traqel", F),
        proc({"blow", "blows", "blowing"}, "pchel", F),
        proc({"by"}, "ByProcedure", R),
        proc({"capital"}, "kaptal", F),
        proc({"carry", "work"}, "krel", F),
        proc({"catch", "catching", "catches", "caught"}, "mrsel", F),
        proc({"carries", "works"}, "Ashkhatutyun", R),
        proc({"close"}, "motik", F),
        proc({"cry", "cried", "cries", "crying"}, "cry", F),
        proc({"come", "coming", "comes", "came", "run", "running", "runs"}, "come", F),
        proc({"cannot"}, "cnto", F),
        proc({"curriculum"}, "c_v", F),
        proc({"crossing", "crossed"}, "xach", F),
        proc({"consist", "consists", "consisting", "consisted"}, "consist_of", F),
        proc({"de"}, "de_facto", F),
        proc({"daughter", "son"}, "harspesa", F),
        proc({"deal", "deals", "dealing", "dealed"}, "deal", F),
        proc({"decision"}, "woroshum", F),
        proc({"dies"}, "DiesProcedure", F),
        proc({"dialogue", "message", "dialog"}, "dialoguebox", F),
        proc({"draw", "draws", "drawing", "drew", "drawn"}, "NkarelUshadr", F),
        proc({"due"}, "dyu", F),
        proc({"each", "each-"}, "woreve", F),
        proc({"english", "armenian", "russian", "german", "french", "spanish", "turkish", "arabish", "jewish", "swidish", "portuguese"}, "lezu", F),
        proc({"even"}, "vabshe", F),
        proc({"fuck", "fucks", "fucked", "fucking"}, "fuck", F),
        proc({"fill", "filled", "filling"}, "lcnellracnel", F),
        proc({"figure", "figures"}, "Figurant", F),
        proc({"find", "found", "finds", "finding"}, "find", F),
        proc({"figured", "figuring"}, "Figurant2", F),
        proc({"fine"}, "finearts", F),
        proc({"for"}, "ForProcedure", R, breakNounChain),
        proc({"from"}, "FromProcedure", R, breakNounChain),
        proc({"fight"}, "haxtaharel", F),
        proc({"fixed"}, "himnamijoc", F),
        proc({"full"}, "vrjkt", F),
        proc({"get", "gets", "getting"}, "GetGetsGettingProcedure", R),
        proc({"got"}, "GotProcedure", R),
        proc({"give", "gives", "giving"}, "GiveNerka", F),
        proc({"given", "gave"}, "GiveAncyal", F),
        proc({"ground"}, "gfloor", F),
        proc({"grow", "grows", "growing"}, "achrtel", F),
        proc({"go", "going"}, "sharunakel1", F),
        proc({"goes"}, "sharunakel2", F),
        proc({"good"}, "gdot", F),
        proc({"hard"}, "KoshtUkopit", F),
        proc({"handed", "handing"}, "hancnel", F),
        proc({"higher"}, "barcrakrt", F),
        proc({"headed"}, "xekavarats", F),
        proc({"health"}, "sofiknoc", F),
        proc({"high"}, "vaxtin", F),
        proc({"horse"}, "dziauzh", F),
        proc({"human"}, "human", F),
        proc({"hunger"}, "hacadul", F),
        proc({"i", "we"}, "cavumem", F),
        proc({"ice"}, "icecream", F),
        proc({"in"}, "InProcedure", R),
        proc({"interior", "foreign"}, "artaqin", F),
        proc({"iron", "irons", "ironed", "ironing"}, "iron", F),
        proc({"issue"}, "HangamaNqner", F),
        proc({"keep", "keeps", "kept"}, "pahel", F),
        proc({"kind", "sort"}, "tesakme", F),
        proc({"last"}, "LastName", F),
        proc({"leave", "leaves", "leaving"}, "meknel1", F),
        proc({"left"}, "meknel2", F),
        proc({"leap"}, "nahang", F),
        proc({"light", "lit", "lighting", "lights"}, "lit", F),
        proc({"lives"}, "LivesProcedure", F),
        proc({"long"}, "yerkar", F),
        proc({"log", "logs", "logged", "logging"}, "geranel", F),
        proc({"look", "looks", "looking", "looked"}, "lk", F),
        proc({"make", "makes", "making", "made"}, "areqinc", F),
        proc({"middle"}, "middle", F),
        proc({"mother", "father", "brother", "sister"}, "khnami", F),
        proc({"my", "your", "his", "her", "our", "their"}, "sepakanmijoc", F),
        proc({"native"}, "mayreni", F),
        proc({"never"}, "erbeq", F),
        proc({"near"}, "MerzavorArevelq", F),
        proc({"no"}, "anhrazhesht", F),
        proc({"o"}, "zhame", F),
        proc({"one"}, "mekn", F),
        proc({"or"}, "aylapes", F),
        proc({"other"}, "MyusKoxmic", F),
        proc({"out"}, "OutOfProcedure", F),
        proc({"over"}, "veravera", F),
        proc({"offers"}, "OfferProcedure", F),
        proc({"pass", "passed", "passing", "passes"}, "pass", F),
        proc({"phone", "computer"}, "herakhosel", F),
        proc({"proud"}, "hpart", F),
        proc({"point"}, "tesaket", F),
        proc({"pop"}, "trir", F),
        proc({"post"}, "posht", F),
        proc({"power", "electric"}, "elkayan", F),
        proc({"pre"}, "Preimas", F),
        proc({"put", "putting", "puts"}, "dnel", F),
        proc({"rather"}, "rad", F),
        proc({"real"}, "ansharzhguyk2", F),
        proc({"river"}, "GetAp", F),
        proc({"rules", "ruled", "ruling"}, "rule", F),
        proc({"s"}, "ss", F),
        proc({"saw"}, "sxoc", F),
        proc({"sawed", "sawing", "saws"}, "sxocel", F),
        proc({"show", "shows", "showing", "shown", "showed"}, "haytnvel", F),
        proc({"shut", "shuts", "shutting"}, "shut", F),
        proc({"sign", "signed", "signing"}, "mutqaelqagrvel", F),
        proc({"since"}, "since", F),
        proc({"single", "singled", "singles", "singling"}, "singl", F),
        proc({"sorry"}, "NerumnHaycel", F),
        proc({"speak", "speaks", "speaking", "spoke"}, "spk_out", F),
        proc({"speed", "speeded", "speeds", "speeding"}, "spid", F),
        proc({"spell", "spelling", "spelled", "spells"}, "spell", F),
        proc({"spare"}, "zapchast", F),
        proc({"stay"}, "gisherel", F),
        proc({"stop", "stopped", "stopping", "stops"}, "kaynel", F),
        proc({"sold"}, "caxinprcan", F),
        proc({"so"}, "ispes", F),
        proc({"switch", "switches", "switched", "switching"}, "switch", F),
        proc({"to"}, "zqez", R),
        proc({"the"}, "DefArtProcedure", R),
        proc({"thank"}, "ShnorhakalQeznic", F),
        proc({"taking"}, "TakingProcedure", F),
        proc({"take"}, "TakeProcedure", F),
        proc({"takes"}, "TaksProcedure", F),
        proc({"taken", "took"}, "TookTakenProcedure", F),
        proc({"tel"}, "TelAviv", F),
        proc({"term", "terming"}, "term", F),
        proc({"tight"}, "Sexm", F),
        proc({"time"}, "woroshzhamanakov", F),
        proc({"there"}, "hon", F),
        proc({"too"}, "yevst", F),
        proc({"turn", "turning", "turns", "turned"}, "varem_marem", F),
        proc({"up"}, "ap", F),
        proc({"use"}, "SovorLinel", F),
        proc({"very"}, "anchaps", F),
        proc({"vice"}, "Yndhakarakn", F),
        proc({"wake", "woke", "woken", "wakes", "waking"}, "zartel", F),
        proc({"water"}, "dzmeruk", F),
        proc({"waste"}, "wasteloss", F),
        proc({"wait", "waits", "waiting", "waited"}, "wait", F),
        proc({"wedding"}, "wparty", F),
        proc({"went", "gone"}, "sharunakel3", F),
        proc({"with"}, "WithProcedure", R),
        proc({"world"}, "Hamashkharhayin", F),
        proc({"what", "whom", "where", "when", "how", "which", "who", "whose", "why"}, "QwestionWorsProcedure", F,
             [](Engine& e) { e.ContractionFlag = 1; }),
    };
}

std::vector<TriggerRow> buildTable() {
    std::vector<TriggerRow> rows;
    for (auto& r : procedureRows()) rows.push_back(std::move(r));
    return rows;
}

}  // namespace

const TriggerTable& englishTriggerTable() {
    static const TriggerTable table{buildTable()};
    return table;
}

std::optional<TriggerReturn> englishSelect(Engine& e) { return englishTriggerTable().dispatch(e); }

}  // namespace vorlexa
