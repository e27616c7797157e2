// One line per rule procedure built: its name as the dispatch tables write it, and the function.
#include "rules/procedure_registry.h"

#include <unordered_map>

#include "engine/engine.h"
#include "rules/armenian_expressions.h"

namespace vorlexa {

namespace {

const std::unordered_map<std::string_view, RuleProcedure>& registry() {
    static const std::unordered_map<std::string_view, RuleProcedure> table{
        {"mekangam", mekangam},
        {"ameninch", ameninch},
        {"dyuzninch", dyuzninch},
        {"ancav", ancav},
        {"ansharzhguyq", ansharzhguyq},
        {"apatewoch", apatewoch},
        {"teche", teche},
        {"ardenisk", ardenisk},
        {"barevdzez", barevdzez},
        {"barigood", barigood},
        {"bariluyss", bariluyss},
        {"luys", luys},
        {"mecgood", mecgood},
        {"bozi_txa", bozi_txa},
        {"hazivte", hazivte},
        {"esteutyan", esteutyan},
        {"zhamslak", zhamslak},
        {"ibrevte", ibrevte},
        {"dsk", dsk},
        {"hogtanel", hogtanel},
        {"hordancrev", hordancrev},
        {"harkkar", harkkar},
        {"chishtnasac", chishtnasac},
        {"odin", odin},
        {"mekayl", mekayl},
        {"menmenak", menmenak},
        {"MiddlEast", MiddlEast},
        {"shers", shers},
        {"hamarist", hamarist},
        {"xmas", xmas},
        {"verimuch", verimuch},
        {"shabat", shabat},
        {"shutara", shutara},
        {"wordiw", wordiw},
        {"petqe", petqe},
        {"vaxteush", vaxteush},
        {"ors", ors},
        {"tak", tak},
        {"teqst_dblclick", teqst_dblclick},
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
