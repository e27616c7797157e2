// One line per rule procedure built: its name as the dispatch tables write it, and the function.
#include "rules/procedure_registry.h"

#include <unordered_map>

#include "engine/engine.h"
#include "rules/english_expressions.h"
#include "rules/phrasal_verbs.h"
#include "rules/verb_families.h"

namespace vorlexa {

namespace {

const std::unordered_map<std::string_view, RuleProcedure>& registry() {
    static const std::unordered_map<std::string_view, RuleProcedure> table{
        {"TakeProcedure", TakeProcedure},
        {"TaksProcedure", TaksProcedure},
        {"TakingProcedure", TakingProcedure},
        {"TookTakenProcedure", TookTakenProcedure},
        {"GetGetsGettingProcedure", GetGetsGettingProcedure},
        {"GotProcedure", GotProcedure},
        {"GiveNerka", GiveNerka},
        {"GiveAncyal", GiveAncyal},
        {"OfferProcedure", OfferProcedure},
        {"LivesProcedure", LivesProcedure},
        {"DiesProcedure", DiesProcedure},
        {"varem_marem", varem_marem},
        {"rule", rule},
        {"singl", singl},
        {"spell", spell},
        {"spk_out", spk_out},
        {"cry", cry},
        {"krel", krel},
        {"Ashkhatutyun", Ashkhatutyun},
        {"lk", lk},
        {"hancnel", hancnel},
        {"fuck", fuck},
        {"find", find},
        {"shut", shut},
        {"switch", switch_},
        {"pass", pass},
        {"lit", lit},
        {"wait", wait},
        {"zartel", zartel},
        {"pchel", pchel},
        {"traqel", traqel},
        {"havatal", havatal},
        {"spid", spid},
        {"haytnvel", haytnvel},
        {"haxtaharel", haxtaharel},
        {"achrtel", achrtel},
        {"consist_of", consist_of},
        {"back_up", back_up},
        {"deal", deal},
        {"kaynel", kaynel},
        {"geranel", geranel},
        {"mutqaelqagrvel", mutqaelqagrvel},
        {"lcnellracnel", lcnellracnel},
        {"Figurant", Figurant},
        {"Figurant2", Figurant2},
        {"caxinprcan", caxinprcan},
        {"xekavarats", xekavarats},
        {"come", come},
        {"areqinc", areqinc},
        {"iron", iron},
        {"pahel", pahel},
        {"sharunakel1", sharunakel1},
        {"sharunakel2", sharunakel2},
        {"sharunakel3", sharunakel3},
        {"meknel1", meknel1},
        {"meknel2", meknel2},
        {"mrsel", mrsel},
        {"sxoc", sxoc},
        {"sxocel", sxocel},
        {"dnel", dnel},
        {"NkarelUshadr", NkarelUshadr},
        {"bolor", bolor},
        {"ibrev", ibrev},
        {"ispes", ispes},
        {"since", since},
        {"khnami", khnami},
        {"harspesa", harspesa},
        {"human", human},
        {"middle", middle},
        {"MerzavorArevelq", MerzavorArevelq},
        {"term", term},
        {"woreve", woreve},
        {"kaptal", kaptal},
        {"vrjkt", vrjkt},
        {"posht", posht},
        {"barcrakrt", barcrakrt},
        {"aylapes", aylapes},
        {"artaqin", artaqin},
        {"de_facto", de_facto},
        {"vaxtin", vaxtin},
        {"c_v", c_v},
        {"zhame", zhame},
        {"tesakme", tesakme},
        {"sofiknoc", sofiknoc},
        {"woroshum", woroshum},
        {"woroshzhamanakov", woroshzhamanakov},
        {"vabshe", vabshe},
        {"anhrazhesht", anhrazhesht},
        {"motik", motik},
        {"ap", ap},
        {"hete", hete},
        {"gdot", gdot},
        {"rad", rad},
        {"dialoguebox", dialoguebox},
        {"ss", ss},
        {"yevst", yevst},
        {"yarab", yarab},
        {"anchaps", anchaps},
        {"inchani", inchani},
        {"hpart", hpart},
        {"tesaket", tesaket},
        {"wasteloss", wasteloss},
        {"icecream", icecream},
        {"wparty", wparty},
        {"gfloor", gfloor},
        {"finearts", finearts},
        {"mayreni", mayreni},
        {"dziauzh", dziauzh},
        {"ansharzhguyk2", ansharzhguyk2},
        {"zartucich", zartucich},
        {"dzmeruk", dzmeruk},
        {"nahang", nahang},
        {"himnamijoc", himnamijoc},
        {"hacadul", hacadul},
        {"elkayan", elkayan},
        {"zapchast", zapchast},
        {"gisherel", gisherel},
        {"veravera", veravera},
        {"mekn", mekn},
        {"trir", trir},
        {"xach", xach},
        {"yerkar", yerkar},
        {"sepakanmijoc", sepakanmijoc},
        {"LastName", LastName},
        {"NerumnHaycel", NerumnHaycel},
        {"SovorLinel", SovorLinel},
        {"Preimas", Preimas},
        {"TelAviv", TelAviv},
        {"GetAp", GetAp},
        {"ShnorhakalQeznic", ShnorhakalQeznic},
        {"HangamaNqner", HangamaNqner},
        {"Yndhakarakn", Yndhakarakn},
        {"Sexm", Sexm},
        {"KoshtUkopit", KoshtUkopit},
        {"Hamashkharhayin", Hamashkharhayin},
        {"dyu", dyu},
        {"herakhosel", herakhosel},
        {"lezu", lezu},
    };
    return table;
}

}  // namespace

RuleProcedure findProcedure(std::string_view name) {
    const auto& table = registry();
    const auto it = table.find(name);
    return it == table.end() ? nullptr : it->second;
}

bool callProcedure(Engine& e, std::string_view name) {
    const RuleProcedure procedure = findProcedure(name);
    if (procedure == nullptr) return false;
    procedure(e);
    return true;
}

std::vector<std::string_view> registeredProcedures() {
    std::vector<std::string_view> names;
    for (const auto& [name, procedure] : registry()) names.push_back(name);
    return names;
}

}  // namespace vorlexa
