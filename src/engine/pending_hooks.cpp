// Procedures whose own files have not been written yet. Each stands here with the least it must
// do for a run to go through; whoever writes the procedure deletes it from this file.
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

// Steps B to F of the emission (question opening, record history, tag rewriting, definite
// ending, class trail) land in emission.cpp.
void Engine::emitSteps_B_to_F() {}

// Steps G to S, the Armenian inflection of the gloss, land in inflection.cpp.
void Engine::inflect_G_to_S() {}

// The pair-list repairs of the result land in sentence_end.cpp.
void Engine::poqr_uxxumner1() {}

// The end of a run lands in sentence_end.cpp; until then: the sentence state, the result pane,
// the timing title, the list of unknown terms and the run resets.
void Engine::TransEndProcedure() {
    resetSentence();
    if (SpellMode != 1) {
        host.setResultText(OutputText);
        SourceText.clear();
        poqr_uxxumner1();
        host.setResultText(OutputText);
        if (host.progressShown() && !checked(MenuItem::Chat)) host.showProgress(false);
        if (!checked(MenuItem::ITR)) {
            const auto elapsed = std::chrono::duration_cast<std::chrono::seconds>(
                std::chrono::steady_clock::now() - TimeOfStart).count();
            const std::string minutes = std::to_string(elapsed / 60);
            const std::string seconds = std::to_string(elapsed % 60);
            host.setTitle({"Translated in " + minutes + " minutes and " + seconds + " seconds.",
                           FontText("Թարգմանությունը տևեց "_ft) + minutes + FontText(" րոպե և "_ft) + seconds +
                               FontText(" վայրկյան:"_ft)});
        }
        if (checked(MenuItem::SUT) && TermCount > 1) {
            FontText list;
            for (std::int64_t n = 1; n < TermCount; ++n) {
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
        host.notify({{"Spell-Check is completed.", FontText("Սխալների ուղղումն ավարտվեց:"_ft)},
                     {"Spellchecker", FontText("Սխալների ուղղում"_ft)}});
        host.setResultText(SourceText);
    }
    TermsFile = RecordFile();
    std::error_code ignored;
    std::filesystem::remove(dataFolder / kTermsFileName, ignored);
    host.setBusy(false);
    resetRun();
    host.clearWordList();
    host.setSaveEnabled(true);
    host.setChecked(MenuItem::IMPV, false);
}

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
