// The registry of rule procedures: the dispatch tables name a procedure, the registry gives the
// function. A name not registered is a procedure not built yet, and its row behaves as a word on
// no list.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vorlexa {

class Engine;

using RuleProcedure = void (*)(Engine&);

// The procedure of that name, or nullptr when it is not built.
RuleProcedure findProcedure(std::string_view name);

// Calls the procedure of that name; false when it is not built.
bool callProcedure(Engine& e, std::string_view name);

// The names registered, in no particular order.
std::vector<std::string_view> registeredProcedures();

}  // namespace vorlexa
