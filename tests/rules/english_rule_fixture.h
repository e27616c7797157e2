// The engine as an English word rule finds it: the trigger in CurrentWord and ScanPos on the
// delimiter after it, over the fixture lexicons golden/english-rules-*.tsv (compiled once for all
// the tests of the binary).
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

inline const std::filesystem::path kEnglishRulesGoldenDir = std::filesystem::path(__FILE__).parent_path() / "golden";

inline std::string readRuleFixtureFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

// The compiled fixture dictionaries. The rules never write to them, so one copy serves every test.
class EnglishRuleDictionaries {
public:
    static EnglishRuleDictionaries& instance() {
        static EnglishRuleDictionaries shared;
        return shared;
    }
    DictionaryStore store;
    std::filesystem::path data() const { return folder_ / "data"; }

private:
    EnglishRuleDictionaries() {
        folder_.write("source/lexicon/en-hy.tsv", readRuleFixtureFile(kEnglishRulesGoldenDir / "english-rules-en-hy.tsv"));
        folder_.write("source/lexicon/hy-en.tsv", readRuleFixtureFile(kEnglishRulesGoldenDir / "english-rules-hy-en.tsv"));
        const CompileReport report = buildDataFolder(folder_ / "source", data());
        for (const auto& d : report.diagnostics)
            if (!d.warning) ADD_FAILURE() << d.str();
        store.open(data());
    }
    TempFolder folder_;
};

// One English rule call. SourceText is before + word + after + the run's trailing blank, where
// `after` begins with the delimiter that ended the word.
class EnRule {
public:
    EnRule(const std::string& word, const std::string& after = " ", const std::string& before = "")
        : engine_(std::make_unique<Engine>(EnglishRuleDictionaries::instance().store,
                                           EnglishRuleDictionaries::instance().data(), host_)) {
        Engine& en = *engine_;
        en.Check1 = 0;
        en.SourceText = fromUtf8(before + word + after);
        if (en.SourceText.empty() || en.SourceText.back() != ' ') en.SourceText += ' ';
        en.ScanPos = static_cast<std::int64_t>(fromUtf8(before + word).size()) + 1;
        en.CurrentWord = fromUtf8(word);
        start_ = en.ScanPos;
    }

    Engine& e() { return *engine_; }
    std::string word() const { return toUtf8(engine_->CurrentWord); }
    std::string output() const { return toUtf8(engine_->OutputText); }
    std::string ending() const { return toUtf8(engine_->PendingEnding); }
    std::string copula() const { return toUtf8(engine_->PendingCopula); }
    std::string mark() const { return toUtf8(engine_->VerbFormMark); }
    std::string tail() const { return toUtf8(engine_->WordTail); }
    std::string source() const { return toUtf8(engine_->SourceText); }
    std::int64_t moved() const { return engine_->ScanPos - start_; }
    // The character ScanPos stands on.
    std::string at() const { return toUtf8(engine_->sourceAt(engine_->ScanPos, 1)); }

    void setOutput(const std::string& utf8) { engine_->OutputText = fromUtf8(utf8); }
    void setEnding(const std::string& utf8) { engine_->PendingEnding = fromUtf8(utf8); }
    void setCopula(const std::string& utf8) { engine_->PendingCopula = fromUtf8(utf8); }

private:
    NullHost host_;
    std::unique_ptr<Engine> engine_;
    std::int64_t start_ = 0;
};

// A whole run over UTF-8 text, English to Armenian, with the fixture lexicon.
class EnRun {
public:
    EnRun()
        : engine_(std::make_unique<Engine>(EnglishRuleDictionaries::instance().store,
                                           EnglishRuleDictionaries::instance().data(), host_)) {
        host_.setChecked(MenuItem::ITR, true);
    }
    std::string translate(const std::string& utf8) {
        engine_->Text3_Change(fromUtf8(utf8));
        return toUtf8(host_.result);
    }
    Engine& e() { return *engine_; }

private:
    NullHost host_;
    std::unique_ptr<Engine> engine_;
};

}  // namespace vorlexa::test
