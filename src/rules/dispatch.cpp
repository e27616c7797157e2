// The trigger-word dispatch: at each word end the word goes to the select of the direction, whose
// first row holding it decides what happens before (or instead of) the look-up.
#include <algorithm>

#include "engine/engine.h"
#include "rules/procedure_registry.h"
#include "rules/rule_contract.h"
#include "rules/selects.h"
#include "rules/trigger_table.h"

namespace vorlexa {

bool TriggerRow::holds(std::string_view word) const {
    return std::find(words.begin(), words.end(), word) != words.end();
}

TriggerTable::TriggerTable(std::vector<TriggerRow> rows) : rows_(std::move(rows)) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        for (std::string_view w : rows_[i].words) first_.try_emplace(w, i);  // the first entry decides
    }
    for (const auto& [w, row] : first_) {
        if (!w.empty()) startsByLength_[std::min(w.size(), kLengthsTold - 1)][static_cast<unsigned char>(w[0])] = true;
    }
}

const TriggerRow* TriggerTable::find(std::string_view word) const {
    if (!word.empty() && !startsByLength_[std::min(word.size(), kLengthsTold - 1)][static_cast<unsigned char>(word[0])])
        return nullptr;
    const auto it = first_.find(word);
    return it == first_.end() ? nullptr : &rows_[it->second];
}

std::optional<TriggerReturn> TriggerTable::dispatch(Engine& e) const {
    const TriggerRow* row = find(e.CurrentWord);
    if (row == nullptr) return std::nullopt;
    return runRow(*row, e);
}

std::optional<TriggerReturn> runRow(const TriggerRow& row, Engine& e) {
    switch (row.kind) {
    case RowKind::Procedure: {
        const RuleProcedure procedure = findProcedure(row.procedure);
        if (procedure == nullptr) return std::nullopt;
        if (row.before) row.before(e);
        procedure(e);
        return row.ret;
    }
    case RowKind::Select:
        if (row.always) row.always(e);
        if (row.test && !row.test(e)) return TriggerReturn::Finish;
        if (row.skipFirst) e.ScanPos += row.skip;
        if (row.effect) row.effect(e);
        if (!row.skipFirst) e.ScanPos += row.skip;
        return row.ret;
    case RowKind::Rule:
        return row.rule(e);
    }
    return std::nullopt;
}

namespace row {

RowEffect insert(std::string_view text) {
    return [text](Engine& e) {
        e.InsertText = FontText(text);
        mctn(e);
    };
}

RowEffect call(std::string_view procedure) {
    return [procedure](Engine& e) { callProcedure(e, procedure); };
}

}  // namespace row

TriggerReturn Engine::triggerSelect() {
    const auto result = Check1 == 0 ? englishSelect(*this) : armenianSelect(*this);
    return result.value_or(TriggerReturn::Finish);
}

}  // namespace vorlexa
