// The look-up of a word and the frame of its emission: the match against dictionarye-a, then
// the steps that inflect the gloss, then the emission into OutputText.
#include <algorithm>

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

namespace {

bool startsWithAny(std::string_view s, std::initializer_list<std::string_view> heads) {
    return std::any_of(heads.begin(), heads.end(), [&](std::string_view h) { return s.starts_with(h); });
}

bool endsWithAny(std::string_view s, std::initializer_list<std::string_view> tails) {
    return std::any_of(tails.begin(), tails.end(), [&](std::string_view t) { return s.ends_with(t); });
}

// Replaces the tail `from` of s by `to`; true when it did.
bool replaceTail(std::string& s, std::string_view from, std::string_view to) {
    if (!s.ends_with(from)) return false;
    s.replace(s.size() - from.size(), from.size(), to);
    return true;
}

}  // namespace

void Engine::skizbe() { RangeStart = skizbeColumn(CurrentWord); }
void Engine::skizba() { RangeStart = skizbaColumn(CurrentWord); }

// A record matches the word itself, the word with the "e" a verb form lost ("mak" of "making"),
// or, for a plural, the word less its last letter when the key ends in "e".
bool Engine::matchEnglishRecord(std::string_view key) const {
    const std::string_view word = CurrentWord;
    if (word == key) return true;
    if (key.size() == word.size() + 1 && key.starts_with(word) && key.back() == 'e' &&
        (VerbFormMark == "ած"_ft || VerbFormMark == "ող"_ft || VerbFormMark == "ում"_ft || VerbFormMark.empty()))
        return true;
    if (!word.empty() && key.size() + 1 == word.size() && word.starts_with(key) && key.ends_with('e') &&
        mid(PendingEnding, 2, 2) == "եր"_ft)
        return true;
    return false;
}

void Engine::teqst_dblclick() {
    if (outputEndsWith("  ")) OutputText.pop_back();
    if (CurrentWord.empty()) return;
    if (Check1 == 1) {
        teqst_ArmenianToEnglish();
        return;
    }

    // Match: the English walk down the word's column; a "null" record ends it. The first record
    // that matches is the first record of one of the keys matchEnglishRecord accepts, so the
    // column's index answers in place of the walk.
    skizbe();
    const RecordFile& file = store.english();
    std::int64_t first = 0;
    const auto earliest = [&](std::string_view key) {
        const std::int64_t rec = file.firstKeyInColumn(kEnglishStride, static_cast<int>(RangeStart), key);
        if (rec != 0 && (first == 0 || rec < first)) first = rec;
    };
    earliest(CurrentWord);
    if (VerbFormMark == "ած"_ft || VerbFormMark == "ող"_ft || VerbFormMark == "ում"_ft || VerbFormMark.empty())
        earliest(CurrentWord + 'e');
    if (mid(PendingEnding, 2, 2) == "եր"_ft && CurrentWord.size() >= 2 && CurrentWord[CurrentWord.size() - 2] == 'e')
        earliest(std::string_view(CurrentWord).substr(0, CurrentWord.size() - 1));
    const std::int64_t end = file.firstNullInColumn(kEnglishStride, static_cast<int>(RangeStart));
    const bool found = first != 0 && (end == 0 || first < end);
    if (found) {
        RecIndex = first;
        DictRecord.raw.assign(file.view(first));
    } else if (end != 0) {
        DictRecord.raw.assign(file.view(end));  // the record the walk stopped at
    } else if (RangeStart <= file.recordCount()) {
        DictRecord.raw.assign(file.view(RangeStart + (file.recordCount() - RangeStart) / kEnglishStride * kEnglishStride));
    }
    if (!found) {
        if (CurrentWord.starts_with("get ") || CurrentWord.starts_with("got ")) {
            CurrentWord = CurrentWord.substr(4) + WordTail;
            teqst_dblclick();
            return;
        }
        notFoundPath();
        return;
    }
    WordGloss = FontText(DictRecord.gloss());
    WordTag = DictRecord.tag();

    emitSteps_B_to_F();
    inflect_G_to_S();
    emitWordT();
}

// Emission: the capital, the article's form after a vowel, the held conjunction, the fixes of a
// few verb forms, and the gloss itself.
void Engine::emitWordT() {
    if (CapitalFlag == 1) pokr();
    if (outputEndsWith(" չ "_ft)) OutputText.pop_back();

    if (!ArticleEnding.empty() && endsWithAny(WordGloss, {"ա"_ft, "ե"_ft, "է"_ft, "ի"_ft, "ո"_ft, "ւ"_ft}) &&
        PendingEnding != "ներ"_ft)
        ArticleEnding = "ն"_ft;
    if (outputEndsWith("ը "_ft) &&
        startsWithAny(WordGloss, {"ա"_ft, "ե"_ft, "է"_ft, "ը"_ft, "ի"_ft, "ո"_ft, "օ"_ft})) {
        OutputText.resize(OutputText.size() - 2);
        OutputText += "ն "_ft;
    }

    const char tag1 = WordTag.empty() ? ' ' : WordTag[0];
    if (!HeldConjunction.empty() && tag1 == 'n') {
        if ((PendingEnding.starts_with("ի"_ft) || PendingEnding.starts_with("ո"_ft)) &&
            endsWithAny(WordGloss, {"ա"_ft, "ո"_ft}))
            WordGloss += "յ"_ft;
        WordGloss += PendingEnding;
        WordGloss += HeldConjunction;
        PendingEnding.clear();
        HeldConjunction.clear();
    } else if (tag1 == 'v') {
        // The design applies these fixes to every gloss; here they touch verbs only, because a noun
        // in "-արան" ("գրադարան", "համալսարան") would otherwise lose its ending ("գրադեցին").
        replaceTail(WordGloss, "արան"_ft, "արեցին"_ft) || replaceTail(WordGloss, "արաք"_ft, "արեցիք"_ft) ||
            (PersonCode == 1 && replaceTail(WordGloss, "արա"_ft, "արեցի"_ft)) ||
            (PersonCode == 3 && replaceTail(WordGloss, "արանք"_ft, "արեցինք"_ft));
        if (CurrentWord == "go") replaceTail(WordGloss, "գնեք"_ft, "գնացեք"_ft);
        replaceTail(WordGloss, "կարդեք"_ft, "կարդացեք"_ft) || replaceTail(WordGloss, "գիտենեք"_ft, "գիտեցեք"_ft);
    }

    OutputText += WordGloss;
    resetWord();
}

void Engine::pokr() {
    if (WordGloss.empty()) return;
    auto& first = WordGloss[0];
    if (Check1 == 1) {
        if (first >= 'a' && first <= 'z') first = static_cast<char>(first - 32);
        return;
    }
    const auto c = static_cast<unsigned char>(first);
    if (font::isSmall(c)) first = static_cast<char>(c - 1);
}

void Engine::pokr2() {
    if (!RawWord.empty()) {
        auto& first = RawWord[0];
        const auto c = static_cast<unsigned char>(first);
        if (Check1 == 1 && c >= 'a' && c <= 'z') first = static_cast<char>(c - 32);
        else if (font::isSmall(c)) first = static_cast<char>(c - 1);
    }
    CapitalFlag.clear();
}

void Engine::derocz() {
    if (PersonCode == 1 && PendingCopula == "էր"_ft) {
        PendingCopula = "էի"_ft;
    } else if (PersonCode == 2) {
        if (PendingCopula == "էին"_ft) PendingCopula = "էիք"_ft;
        else if (PendingCopula == "են"_ft) PendingCopula = "եք"_ft;
    } else if (PersonCode == 3) {
        if (PendingCopula == "էին"_ft) PendingCopula = "էինք"_ft;
        else if (PendingCopula == "են"_ft) PendingCopula = "ենք"_ft;
    }
}

}  // namespace vorlexa
