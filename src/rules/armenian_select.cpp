// The trigger select of Armenian source text. Its rows land with the Armenian rules; until then
// every Armenian word goes on to the look-up unchanged.
#include "rules/selects.h"

namespace vorlexa {

const TriggerTable& armenianTriggerTable() {
    static const TriggerTable table{std::vector<TriggerRow>{}};
    return table;
}

std::optional<TriggerReturn> armenianSelect(Engine& e) { return armenianTriggerTable().dispatch(e); }

}  // namespace vorlexa
