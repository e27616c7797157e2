// An engine over a small lexicon written for the test, with a host that records what the engine
// shows and answers questions from a script.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>

#include "dictionary_tools/lexicon_compiler.h"
#include "engine/engine.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

namespace vorlexa::test {

// Answers from a list (No once the list is used up) and keeps every title shown.
class ScriptedHost : public NullHost {
public:
    int ask(const Question& question) override {
        questions.push_back(question);
        if (onAsk) onAsk(question);
        if (answers.empty()) return kAnswerNo;
        const int a = answers.front();
        answers.pop_front();
        return a;
    }
    void setTitle(const Wording& t) override {
        NullHost::setTitle(t);
        titles.push_back(t);
    }
    void setProgress(int percent) override {
        NullHost::setProgress(percent);
        progressSteps.push_back(percent);
    }

    std::deque<int> answers;
    std::function<void(const Question&)> onAsk;
    std::vector<Wording> titles;
    std::vector<int> progressSteps;
};

// Lexicon lines are "key<TAB>gloss<TAB>tag" in UTF-8.
class EngineFixture {
public:
    explicit EngineFixture(const std::string& englishArmenian, const std::string& armenianEnglish = "") {
        folder_.write("source/lexicon/en-hy.tsv", englishArmenian);
        folder_.write("source/lexicon/hy-en.tsv", armenianEnglish);
        const CompileReport report = buildDataFolder(folder_ / "source", data());
        for (const auto& d : report.diagnostics) ADD_FAILURE() << d.str();
        store.open(data());
        engine = std::make_unique<Engine>(store, data(), host);
    }

    std::filesystem::path data() const { return folder_ / "data"; }

    // Runs the engine over UTF-8 text and returns the result pane in UTF-8.
    std::string translate(const std::string& utf8) {
        engine->Text3_Change(fromUtf8(utf8));
        return toUtf8(host.result);
    }
    std::string output() const { return toUtf8(engine->OutputText); }

    TempFolder folder_;
    DictionaryStore store;
    ScriptedHost host;
    std::unique_ptr<Engine> engine;
};

// Font text of UTF-8, for comparing with engine members.
inline FontText ft(const std::string& utf8) { return fromUtf8(utf8); }

// The lexicon most tests share. Adjective and "x" tags pass through the inflection unchanged,
// so the words show what the scanner and the look-up did.
inline const std::string kSmallLexicon =
    "house\tտուն\tn\n"
    "big\tմեծ\ta\n"
    "red\tկարմիր\ta\n"
    "is\tէ\tx\n"
    "it\tդա\tp\n"
    "mary\tմերի\tn\n"
    "three\tերեք\t1\n"
    "army\tբանակ\tx\n"
    "you\tդուք\tx\n"
    "shall\tպետք\tx\n"
    "sing\tերգել\tx\n"
    "make\tսարքել\tv\n"
    "elder\tավագ\ta\n"
    "boy\tտղա\tn\n"
    "could\tկարող\tx\n"
    "against\tդեմ\ta\n"
    "important\tկարևոր\ta\n"
    "a\tմի\tx\n";

inline const std::string kSmallArmenianLexicon =
    "ով\twho\tx\n"
    "է\tis\tx\n"
    "սեր\tlove\tx\n"
    "մեծ\tbig\ta\n";

}  // namespace vorlexa::test
