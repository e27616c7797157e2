// An engine over the fixture lexicon of the emission tests (golden/en-hy.tsv), compiled into a
// temporary data folder, with a host that answers No to every question.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "dictionary_tools/lexicon_compiler.h"
#include "engine/engine.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

namespace vorlexa::test {

inline const std::filesystem::path kEmissionGoldenDir = VORLEXA_ENGINE_GOLDEN_DIR;

inline std::string readTextFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

class EmissionFixture {
public:
    // Pair lists are "find<TAB>replace" lines with the quote marks of the data files.
    explicit EmissionFixture(const std::string& pairsEnglishArmenian = "") {
        folder_.write("source/lexicon/en-hy.tsv", readTextFile(kEmissionGoldenDir / "en-hy.tsv"));
        folder_.write("source/lexicon/hy-en.tsv", readTextFile(kEmissionGoldenDir / "hy-en.tsv"));
        if (!pairsEnglishArmenian.empty()) folder_.write("source/pairs/uxxuma.tsv", pairsEnglishArmenian);
        const CompileReport report = buildDataFolder(folder_ / "source", data());
        for (const auto& d : report.diagnostics)
            if (!d.warning) ADD_FAILURE() << d.str();
        store.open(data());
        fresh();
    }

    std::filesystem::path data() const { return folder_ / "data"; }

    // A new engine over the same dictionaries: no state left from an earlier run.
    Engine& fresh() {
        host = NullHost();
        engine = std::make_unique<Engine>(store, data(), host);
        return *engine;
    }

    // Runs the engine over UTF-8 text and returns the result pane in UTF-8.
    std::string translate(const std::string& utf8) {
        engine->Text3_Change(fromUtf8(utf8));
        return toUtf8(host.result);
    }

    // The steps of a look-up on their own: the word as a rule or the scanner leaves it, with
    // ScanPos on the delimiter after it in SourceText (by default the word and one blank).
    // Returns OutputText in UTF-8.
    std::string lookUp(const std::string& word, const std::string& source = "", std::int64_t scanPos = 0) {
        Engine& e = *engine;
        e.Check1 = 0;
        e.SourceText = fromUtf8(source.empty() ? word + " " : source);
        e.ScanPos = scanPos > 0 ? scanPos : static_cast<std::int64_t>(fromUtf8(word).size()) + 1;
        e.CurrentWord = fromUtf8(word);
        e.teqst_dblclick();
        return toUtf8(e.OutputText);
    }

    // The scanner over a text from its first character, with the state set up as a rule before
    // it would leave it; returns the result pane without the blank the text ends in.
    std::string scanFrom(const std::string& text) {
        Engine& e = *engine;
        e.Check1 = 0;
        e.SourceText = fromUtf8(text + " ");
        e.ScanPos = 1;
        e.ankap0_DblClick();
        std::string result = toUtf8(host.result);
        if (!result.empty() && result.back() == ' ') result.pop_back();
        return result;
    }

    TempFolder folder_;
    DictionaryStore store;
    NullHost host;
    std::unique_ptr<Engine> engine;
};

// Font text of UTF-8, for comparing with engine members.
inline FontText font(const std::string& utf8) { return fromUtf8(utf8); }
inline std::string utf8(const FontText& text) { return toUtf8(text); }

}  // namespace vorlexa::test
