// Procedures whose own files have not been written yet. Each stands here with the least it must
// do for a run to go through; whoever writes the procedure deletes it from this file.
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

// The Armenian-to-English branch of the look-up lands in its own file; until then the word's
// gloss is written plain, with no English forms put on it.
void Engine::teqst_ArmenianToEnglish() {
    skizba();
    const RecordFile& file = store.armenian();
    const double limit = file.recordCountExact();
    for (std::int64_t rec = RangeStart; static_cast<double>(rec) <= limit; rec += kArmenianStride) {
        DictRecord.raw = file.read(rec);
        if (DictRecord.key() != CurrentWord) continue;
        if (DictRecord.isNull()) break;
        RecIndex = rec;
        WordGloss = FontText(DictRecord.gloss());
        WordTag = DictRecord.tag();
        TargetClasses += WordTag[0];
        if (CapitalFlag == 1) pokr();
        OutputText += WordGloss;
        resetWord();
        return;
    }
    notFoundPath();
}

// The stemming retries of an unknown word land with the unknown-word path.
bool Engine::retryUnknownWord() { return false; }

// The ending procedures of the prepositions land in src/rules/.
void Engine::qezanic() {}
void Engine::qo_mej() {}

// The ending analysis lands in src/analysis/.
void Engine::hayqer() {}

// The spell-check pass, which follows the scanner in the result pane, lands in src/spell/.
void Engine::textselection() {}

}  // namespace vorlexa
