// Trigger tables: what the dispatch of a direction does with a word that stands on its lists.
//
// A table is an ordered list of rows; the first row that holds the word decides, and a word that
// a later row holds too is never seen there. There are three kinds of row:
// - a procedure row names a rule procedure (looked up by name in the registry) and how control
//   goes back to the scanner; a procedure not built yet makes the row behave as a word on no list;
// - a select row is a rule written in the table itself: a test on the source text or the state,
//   the effects of a match in their order, the amount added to ScanPos and the return. A failed
//   test sends the word on to Finish as it stands. Effects taken "in any case" run before the test;
// - a rule row is a longer rule that decides its own return.
//
// The helpers below read like the rules they build: next("all") compares the text at ScanPos + 1,
// plus2("ehalf") at ScanPos + 2, at(" up ") at ScanPos itself, each over the literal's length;
// word("moreover") sets CurrentWord to a dictionary key, emit() looks it up and writes it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "engine/engine.h"

namespace vorlexa {

using RowTest = std::function<bool(Engine&)>;
using RowEffect = std::function<void(Engine&)>;
using RowRule = std::function<TriggerReturn(Engine&)>;

enum class RowKind { Procedure, Select, Rule };

struct TriggerRow {
    RowKind kind = RowKind::Select;
    std::vector<std::string_view> words;

    // Procedure rows.
    std::string_view procedure;  // the procedure's name in the registry
    RowEffect before;            // what the loop sets before it calls the procedure

    // Select rows.
    RowEffect always;         // effects "in any case", before the test
    RowTest test;             // empty: the row always matches
    RowEffect effect;         // the effects of a match, in order
    std::int64_t skip = 0;    // added to ScanPos after the effects
    bool skipFirst = false;   // the skip comes before the effects

    // Rule rows.
    RowRule rule;

    // Procedure and select rows: how control returns (a select row only on a match).
    TriggerReturn ret = TriggerReturn::Finish;

    bool holds(std::string_view word) const;
};

class TriggerTable {
public:
    explicit TriggerTable(std::vector<TriggerRow> rows);

    // The first row that holds the word, or nullptr when it is on no list.
    const TriggerRow* find(std::string_view word) const;
    // Runs the row of CurrentWord; nullopt for a word on no list (or a row whose procedure is
    // not built), which goes on to Finish unchanged.
    std::optional<TriggerReturn> dispatch(Engine& e) const;
    const std::vector<TriggerRow>& rows() const { return rows_; }

private:
    std::vector<TriggerRow> rows_;
    std::unordered_map<std::string_view, std::size_t> first_;  // word -> its first row
    // The lengths and first bytes the listed words have: most words of a text have another pair,
    // and are told to be on no list without a hash of the word.
    static constexpr std::size_t kLengthsTold = 32;  // longer words share the last entry
    std::vector<std::array<bool, 256>> startsByLength_ = std::vector<std::array<bool, 256>>(kLengthsTold);
};

// Runs one row as the dispatch does; nullopt when the row's procedure is not built.
std::optional<TriggerReturn> runRow(const TriggerRow& row, Engine& e);

// ---- Building rows -----------------------------------------------------------------------------

inline TriggerRow procedureRow(std::initializer_list<std::string_view> words, std::string_view procedure,
                               TriggerReturn ret, RowEffect before = {}) {
    TriggerRow row;
    row.kind = RowKind::Procedure;
    row.words = words;
    row.procedure = procedure;
    row.ret = ret;
    row.before = std::move(before);
    return row;
}

inline TriggerRow selectRow(std::initializer_list<std::string_view> words, RowTest test, RowEffect effect,
                            std::int64_t skip, TriggerReturn ret, RowEffect always = {}) {
    TriggerRow row;
    row.kind = RowKind::Select;
    row.words = words;
    row.test = std::move(test);
    row.effect = std::move(effect);
    row.skip = skip;
    row.ret = ret;
    row.always = std::move(always);
    return row;
}

// The same with the skip taken before the effects.
inline TriggerRow selectRowSkipFirst(std::initializer_list<std::string_view> words, RowTest test, RowEffect effect,
                                     std::int64_t skip, TriggerReturn ret) {
    TriggerRow row = selectRow(words, std::move(test), std::move(effect), skip, ret);
    row.skipFirst = true;
    return row;
}

inline TriggerRow ruleRow(std::initializer_list<std::string_view> words, RowRule rule) {
    TriggerRow row;
    row.kind = RowKind::Rule;
    row.words = words;
    row.rule = std::move(rule);
    return row;
}

// ---- Tests -------------------------------------------------------------------------------------

namespace row {

inline RowTest next(std::string_view literal) {
    return [literal](Engine& e) { return e.nextIs(literal); };
}
inline RowTest plus2(std::string_view literal) {
    return [literal](Engine& e) { return e.sourceAt(e.ScanPos + 2, literal.size()) == literal; };
}
inline RowTest at(std::string_view literal) {
    return [literal](Engine& e) { return e.atIs(literal); };
}
inline RowTest either(RowTest a, RowTest b) {
    return [a = std::move(a), b = std::move(b)](Engine& e) { return a(e) || b(e); };
}
inline RowTest both(RowTest a, RowTest b) {
    return [a = std::move(a), b = std::move(b)](Engine& e) { return a(e) && b(e); };
}

// ---- Effects -----------------------------------------------------------------------------------

// All the effects, in the order given.
inline RowEffect does(std::initializer_list<RowEffect> effects) {
    return [list = std::vector<RowEffect>(effects)](Engine& e) {
        for (const auto& f : list) f(e);
    };
}
inline RowEffect word(std::string_view key) {
    return [key](Engine& e) { e.CurrentWord = FontText(key); };
}
// The key followed by what tail() kept of the trigger ("bringing" gives "consolidat" + "ing").
inline RowEffect wordWithTail(std::string_view key) {
    return [key](Engine& e) { e.CurrentWord = FontText(key) + e.WordTail; };
}
// WordTail := the word without its first n letters.
inline RowEffect tail(std::size_t n) {
    return [n](Engine& e) { e.WordTail = e.CurrentWord.size() > n ? e.CurrentWord.substr(n) : FontText(); };
}
inline RowEffect emit() {
    return [](Engine& e) { e.teqst_dblclick(); };
}
inline RowEffect append(std::string_view text) {
    return [text](Engine& e) { e.OutputText += text; };
}
inline RowEffect ending(std::string_view text) {
    return [text](Engine& e) { e.PendingEnding = FontText(text); };
}
inline RowEffect classChain(std::string_view text) {
    return [text](Engine& e) { e.ClassChain = FontText(text); };
}
inline RowEffect skipBy(std::int64_t n) {
    return [n](Engine& e) { e.ScanPos += n; };
}
// InsertText := text, then `mctn` puts it into the output.
RowEffect insert(std::string_view text);
// Calls a procedure through the registry; a procedure not built yet does nothing.
RowEffect call(std::string_view procedure);

}  // namespace row

}  // namespace vorlexa
