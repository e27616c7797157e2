// The trigger selects of the two directions, chosen by Check1 in Engine::triggerSelect.
#pragma once

#include <optional>

#include "engine/engine.h"
#include "rules/trigger_table.h"

namespace vorlexa {

// English to Armenian: the procedure rows, the rules written in the select and its longer rules.
const TriggerTable& englishTriggerTable();
std::optional<TriggerReturn> englishSelect(Engine& e);

// Armenian to English.
const TriggerTable& armenianTriggerTable();
std::optional<TriggerReturn> armenianSelect(Engine& e);

}  // namespace vorlexa
