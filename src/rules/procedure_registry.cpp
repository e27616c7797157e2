// One line per rule procedure built: its name as the dispatch tables write it, and the function.
#include "rules/procedure_registry.h"

#include <unordered_map>

#include "engine/engine.h"

namespace vorlexa {

namespace {

const std::unordered_map<std::string_view, RuleProcedure>& registry() {
    static const std::unordered_map<std::string_view, RuleProcedure> table{
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
