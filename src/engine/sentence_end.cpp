// The end of a run: the sentence state cleared, the result repaired by the pair list and shown,
// the time it took, the words left untranslated, and the run's resets. Also the dialect repair
// of the result pane, which works the same way on its own pair list.
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

namespace {

constexpr int kPairRecordWidth = 100;    // uxxuma, uxxume: find and replace, 50 characters each
constexpr int kDialectRecordWidth = 40;  // uxxumy: find and replace, 20 characters each
constexpr auto kStampSettle = std::chrono::seconds(2);  // well past any file system's time-stamp tick
// A source this long is handed back to the system at once when the run ends: the allocator keeps
// freed memory amid its heap, and the window's copy of the result would take as much again.
constexpr std::size_t kSourceReturnedToTheSystem = 4u << 20;

// Empties the source. A short one keeps its room for the next run (a run per line makes many);
// a long one's memory is released, and its pages go back to the system.
void releaseSource(FontText& source) {
    constexpr std::size_t kRoomKept = 64 * 1024;  // bytes of a source whose room the next run reuses
    if (source.capacity() <= kRoomKept) {
        source.clear();
        return;
    }
    const bool longSource = source.size() >= kSourceReturnedToTheSystem;
    FontText().swap(source);
#if defined(__GLIBC__)
    if (longSource) malloc_trim(0);
#else
    (void)longSource;
#endif
}

// One half of a pair record: trimmed, then stripped of the marks around it, so that a value may
// begin or end in a blank. A half too short to hold its marks holds nothing.
std::string_view pairHalf(std::string_view record, std::size_t start1, std::size_t width) {
    const std::string_view marked = trimBlanks(mid(record, start1, width));
    if (marked.size() < 2) return {};
    return marked.substr(1, marked.size() - 2);
}

// Every occurrence, left to right; the replacement is not searched again. The text is copied
// only when the pair occurs in it, and then once.
void replaceAll(FontText& text, std::string_view find, std::string_view with) {
    if (find.empty()) return;
    std::size_t pos = text.find(find);
    if (pos == FontText::npos) return;
    FontText out;
    out.reserve(text.size());
    std::size_t from = 0;
    for (; pos != FontText::npos; pos = text.find(find, from)) {
        out.append(text, from, pos - from);
        out += with;
        from = pos + find.size();
    }
    out.append(text, from, FontText::npos);
    text = std::move(out);
}

}  // namespace

const Engine::PairList* Engine::pairList(std::string_view name) {
    auto entry = pairLists_.find(name);
    if (entry == pairLists_.end()) entry = pairLists_.emplace(std::string(name), PairList()).first;
    PairList& list = entry->second;
    if (pairListsHeld_ && list.heldIn == pairListHolding_) return &list;
    const std::uint64_t heldIn = pairListsHeld_ ? pairListHolding_ : 0;
    if (list.loaded && list.file.stamp() == list.stamp) {
        list.heldIn = heldIn;
        return &list;
    }
    const std::filesystem::path path = dataFolder / name;

    list = PairList();
    RecordFile pairs;
    if (!pairs.open(path, kPairRecordWidth)) return nullptr;
    // The list is read to its last record but one.
    const std::int64_t count = static_cast<std::int64_t>(pairs.byteLength() / kPairRecordWidth) - 1;
    std::vector<std::pair<std::string, std::string>> found;
    for (std::int64_t n = 1; n <= count; ++n) {
        const std::string_view record = pairs.view(n);
        const std::string_view find = pairHalf(record, 1, kPairRecordWidth / 2);
        if (find.empty()) continue;
        found.emplace_back(find, pairHalf(record, kPairRecordWidth / 2 + 1, kPairRecordWidth / 2));
    }
    list.repairs = PairRepairs(std::move(found));
    // A time stamp has a coarse tick: a list written just before it was read could be written again
    // under the same stamp and size, so such a list is read again until its stamp has settled.
    list.file = WatchedFile(path);
    const std::optional<FileStamp> stamp = list.file.stamp();
    if (stamp) list.stamp = *stamp;
    const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(
                         std::chrono::system_clock::now().time_since_epoch()).count();
    list.loaded = stamp && now - list.stamp.modifiedNs > std::chrono::nanoseconds(kStampSettle).count();
    list.heldIn = heldIn;
    return &list;
}

void Engine::holdPairLists(bool held) {
    if (held && !pairListsHeld_) ++pairListHolding_;
    pairListsHeld_ = held;
}

void Engine::poqr_uxxumner1() {
    const PairList* list = pairList(Check1 == 0 ? "uxxuma" : "uxxume");
    if (list != nullptr) list->repairs.apply(OutputText);
}

void Engine::CTYD() {
    WordGloss = host.resultText();
    RecordFile pairs;
    if (pairs.open(dataFolder / "uxxumy", kDialectRecordWidth)) {
        const auto count = static_cast<std::int64_t>(pairs.byteLength() / kDialectRecordWidth);
        for (std::int64_t n = 1; n <= count; ++n) {
            const std::string record = pairs.read(n);
            const std::string_view find = pairHalf(record, 1, kDialectRecordWidth / 2);
            if (find.empty()) continue;
            replaceAll(WordGloss, find, pairHalf(record, kDialectRecordWidth / 2 + 1, kDialectRecordWidth / 2));
            ++ReplacementCount;
        }
    }
    host.setResultText(WordGloss);
    WordGloss.clear();
}

void Engine::TransEndProcedure() {
    resetSentence();
    if (SpellMode != 1) {
        // The source's memory goes back before the window takes its copy of a long result.
        releaseSource(SourceText);
        host.setResultText(OutputText);
        poqr_uxxumner1();
        host.setResultText(OutputText);
        if (host.progressShown() && !checked(MenuItem::Chat)) host.showProgress(false);
        if (!checked(MenuItem::ITR)) {
            // Minutes and seconds of the elapsed time, each as a clock shows it.
            constexpr long long kSecondsPerMinute = 60;
            constexpr long long kMinutesPerHour = 60;
            const auto elapsed =
                std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - TimeOfStart)
                    .count();
            const std::string minutes = std::to_string(elapsed / kSecondsPerMinute % kMinutesPerHour);
            const std::string seconds = std::to_string(elapsed % kSecondsPerMinute);
            host.setTitle({"Translated in " + minutes + " minutes and " + seconds + " seconds.",
                           FontText("Թարգմանությունը տևեց "_ft) + minutes + FontText(" րոպե և "_ft) + seconds +
                               FontText(" վայրկյան:"_ft)});
        }
        if (checked(MenuItem::SUT)) ensureTermsFile();
        if (checked(MenuItem::SUT) && TermsFile.isOpen() && TermsFile.recordCount() > 0) {
            FontText list;
            for (std::int64_t n = 1; n <= TermsFile.recordCount(); ++n) {
                if (n > 1) list += ", ";
                list += FontText(trimBlanks(TermsFile.read(n)));
            }
            OutputText += "\r\n***\r\n";
            OutputText += checked(MenuItem::AMN) ? FontText("ՉԹԱՐԳՄԱՆՎԱԾ ՏԵՐՄԻՆՆԵՐԸ."_ft)
                                                 : FontText("LIST OF NON-TRANSLATED TERMS");
            OutputText += "\r\n";
            OutputText += list;
            host.setResultText(OutputText);
            host.setChecked(MenuItem::SUT, false);
        }
    } else {
        if (unknownWordMet_) ensureTermsFile();  // the message box hands control out
        host.notify({{"Spell-Check is completed.", FontText("Սխալների ուղղումն ավարտվեց:"_ft)},
                     {"Spellchecker", FontText("Սխալների ուղղում"_ft)}});
        host.setResultText(SourceText);
    }
    TermsFile = RecordFile();
    termsFilePending_ = false;
    heldTerms_.clear();
    if (termsFileMayStand_) {
        std::error_code ignored;
        std::filesystem::remove(dataFolder / kTermsFileName, ignored);
        termsFileMayStand_ = false;
    }
    host.setBusy(false);
    resetRun();
    host.clearWordList();
    host.setSaveEnabled(true);
    host.setChecked(MenuItem::IMPV, false);
}

}  // namespace vorlexa
