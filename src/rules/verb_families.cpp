// Take, get, give, offer, live and die.
#include "rules/verb_families.h"

#include <array>

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

namespace {

// The particles of "take" and the key each form of the verb gets before them. Every test runs,
// in the order given, against ScanPos as the tests before it have moved it.
struct TakeTest {
    std::string_view next;
    std::int64_t skip;
};

constexpr TakeTest kOver{"over", 5};
constexpr TakeTest kPart{"part", 5};
constexpr TakeTest kPlace{"place", 6};
constexpr TakeTest kOff{"off ", 4};  // with its blank: the particle at the very end does not match
constexpr TakeTest kConsideration{"into consideration", 18};

struct TakeRow {
    TakeTest test;
    std::string_view key;
};

void runTakeRows(Engine& e, const std::array<TakeRow, 5>& rows, bool progressiveOff) {
    for (const TakeRow& row : rows) {
        if (!e.nextIs(row.test.next)) continue;
        e.CurrentWord = FontText(row.key);
        e.ScanPos += row.test.skip;
        if (progressiveOff && row.test.next == kOff.next) e.VerbFormMark = "ով"_ft;
    }
    // The dispatch raises AdverbFlag for these verbs; the rule has used it.
    e.AdverbFlag.clear();
}

// "a ", "the ", "an ", "another", "some": an object follows, so "get" means to obtain.
bool objectFollows(const Engine& e) {
    return e.nextIs("a ") || e.nextIs("the ") || e.nextIs("an ") || e.nextIs("another") || e.nextIs("some");
}

// The subject of the clause was I, you, we or they (or a plural noun): the word is the verb.
bool pluralOrFirstPerson(const Engine& e) {
    return e.PersonCode == 1 || e.PersonCode == 2 || e.PersonCode == 3 || e.PersonCode == 4;
}

FontText withoutFirst(const FontText& word, std::size_t n) { return word.size() > n ? word.substr(n) : FontText(); }

}  // namespace

void TakeProcedure(Engine& e) {
    runTakeRows(e,
                {{{kOver, "accept"},
                  {kPart, "participate"},
                  {kPlace, "take place"},
                  {kOff, "subtract*"},
                  {kConsideration, "consider"}}},
                false);
}

void TaksProcedure(Engine& e) {
    runTakeRows(e,
                {{{kOver, "accepts"},
                  {kPart, "participates"},
                  {kPlace, "take places"},
                  {kOff, "subtract*s"},
                  {kConsideration, "considers"}}},
                false);
}

void TakingProcedure(Engine& e) {
    runTakeRows(e,
                {{{kPart, "participating"},
                  {kOver, "accepting"},
                  {kPlace, "take placeing"},
                  {kOff, "subtract*"},
                  {kConsideration, "considering"}}},
                true);
}

void TookTakenProcedure(Engine& e) {
    runTakeRows(e,
                {{{kOver, "accepted"},
                  {kPart, "participated"},
                  {kPlace, "take placeed"},
                  {kOff, "subtract*ed"},
                  {kConsideration, "considered"}}},
                false);
}

void GetGetsGettingProcedure(Engine& e) {
    e.WordTail = withoutFirst(e.CurrentWord, 3);
    if (e.WordTail == "ting") {
        e.WordTail = "ing";
        e.VerbFormMark = "ում"_ft;
    }
    if (objectFollows(e)) {
        e.CurrentWord = "obtain";
        if (e.nextIs("a cab")) e.CurrentWord = "sit" + e.WordTail;
        return;
    }
    if (e.WordTail == "s") {
        e.VerbFormMark = "ում"_ft;
        e.PendingCopula = "է"_ft;
    }
    // The next word is scanned onto "get " and the pair is looked up as one key; the look-up
    // falls back to the next word alone with the tail.
    e.CurrentWord = "get ";
    e.ScanPos += 1;
}

void GotProcedure(Engine& e) {
    if (e.nextIs("a cab")) e.CurrentWord = "set";
    if (objectFollows(e)) {
        e.CurrentWord = "obtained";
        return;
    }
    e.CurrentWord = "get ";
    e.VerbFormMark = "ած"_ft;
    e.ScanPos += 1;
}

void GiveNerka(Engine& e) {
    if (!e.nextIs("up ")) return;
    e.WordTail = withoutFirst(e.CurrentWord, e.CurrentWord == "giving" ? 3 : 4);
    e.CurrentWord = "refuse" + e.WordTail;
    e.ScanPos += 3;
}

void GiveAncyal(Engine& e) {
    if (!e.nextIs("up ")) return;
    e.CurrentWord = "refused";
    e.ScanPos += 3;
}

void OfferProcedure(Engine& e) {
    if (pluralOrFirstPerson(e)) {
        e.CurrentWord = "offer";
        e.PendingEnding = "ներ"_ft;
    } else {
        e.CurrentWord = "offering";
        e.PendingCopula = "է"_ft;
    }
}

void LivesProcedure(Engine& e) {
    if (pluralOrFirstPerson(e)) {
        e.CurrentWord = "life";
        e.PendingEnding = "ներ"_ft;
    }
}

void DiesProcedure(Engine& e) {
    if (!pluralOrFirstPerson(e)) {
        e.CurrentWord = "dying";
        e.PendingCopula = "է"_ft;
    }
}

}  // namespace vorlexa
