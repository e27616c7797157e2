// A data folder compiled from a small lexicon written for the test, its dictionaries open, and a
// window stand-in for the Word Corrector that answers its questions from the test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "dictionary_tools/lexicon_compiler.h"
#include "dictionary_tools/word_corrector.h"
#include "engine/dictionary_store.h"
#include "engine/engine.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

namespace vorlexa::test {

inline FontText fontOf(const std::string& utf8) {
    return fromUtf8(utf8);
}

class RecordingCorrectorView : public CorrectorView {
  public:
    int ask(const Question& question, bool armenian) override {
        questions.push_back(question);
        askedInArmenian = armenian;
        return answer;
    }
    void notify(const Notice& notice, bool armenian) override {
        notices.push_back(notice);
        notifiedInArmenian = armenian;
    }
    void showList(const std::filesystem::path& file, bool) override { lists.push_back(file); }

    int answer = kAnswerYes;
    std::vector<Question> questions;
    std::vector<Notice> notices;
    std::vector<std::filesystem::path> lists;
    bool askedInArmenian = false;
    bool notifiedInArmenian = false;
};

class DictToolsTest : public ::testing::Test {
  protected:
    // Lexicon lines are "key<TAB>gloss<TAB>tag" in UTF-8; secondSenses lines "en-hy<TAB>key".
    void build(const std::string& english, const std::string& armenian,
               const std::string& secondSenses = "") {
        dir.write("source/lexicon/en-hy.tsv", english);
        dir.write("source/lexicon/hy-en.tsv", armenian);
        if (!secondSenses.empty()) dir.write("source/lexicon/second-senses.txt", secondSenses);
        const CompileReport report = buildDataFolder(dir / "source", data());
        for (const auto& d : report.diagnostics) ADD_FAILURE() << d.str();
        ASSERT_TRUE(store.open(data()));
        ASSERT_TRUE(store.CreateDicStrings());
    }
    std::filesystem::path data() const { return dir / "data"; }

    DictRecord recordAt(Direction d, std::int64_t n) const {
        DictRecord r;
        r.raw = store.source(d).read(n);
        return r;
    }
    const RecordFile& file(Direction d) const { return store.source(d); }

    // Runs a translation over the store as the desktop does and returns the result pane, less
    // the blank that closes every run's source.
    std::string translate(const std::string& utf8) {
        NullHost host;
        Engine engine(store, data(), host);
        engine.Text3_Change(fromUtf8(utf8));
        std::string out = toUtf8(host.result);
        while (!out.empty() && out.back() == ' ') out.pop_back();
        return out;
    }

    TempFolder dir;
    DictionaryStore store;
};

inline constexpr Direction kEA = Direction::EnglishToArmenian;
inline constexpr Direction kAE = Direction::ArmenianToEnglish;

}  // namespace vorlexa::test
