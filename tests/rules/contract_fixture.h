// An engine over a small lexicon for the rule tests, with helpers that put a word where the
// scanner hands it to the dispatch: SourceText holds the text, CurrentWord the trigger and
// ScanPos the delimiter after it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "dictionary_tools/lexicon_compiler.h"
#include "engine/engine.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

namespace vorlexa::contract_test {

// The glosses carry the tag "x", which no inflection step changes, so that what a rule emitted
// reads plainly in the output.
inline const std::string kRuleLexicon =
    "far\tհեռու\tx\n"
    "consecutive\tհաջորդական\tx\n"
    "queue\tհերթ\tx\n"
    "early\tշուտ\tx\n"
    "need\tկարիք\tx\n"
    "have\tունենալ\tx\n"
    "haves\tունի\tx\n"
    "come\tգալ\tx\n"
    "apart\tառանձին\tx\n"
    "particular\tմասնավոր\tx\n"
    "aside\tկողք\tx\n"
    "will\tկամք\tx\n"
    "enterpreneurship\tձեռներեցություն\tx\n"
    "that\tայն\tx\n"
    "minimum\tնվազագույն\tx\n"
    "from now on\tայսուհետ\tx\n"
    "already\tարդեն\tx\n"
    "none\tոչ մի\tx\n"
    "some\tորոշ\tx\n"
    "time\tժամանակ\tx\n"
    "amen\tամեն\tx\n"
    "end\tվերջ\tx\n"
    "few\tմի քանի\tx\n"
    "can\tկարող\tx\n"
    "could\tկարող\tx\n"
    "might\tգուցե\tx\n"
    "may\tկարող\tx\n"
    "unable\tանկարող\tx\n"
    "exist\tգոյություն ունեն\tx\n"
    "existed\tգոյություն ուներ\tx\n"
    "ate\tկերավ\tx\n"
    "thing\tբան\tx\n"
    "one-\tմի\tx\n"
    "your\tձեր\tx\n"
    "my\tիմ\tx\n"
    "our\tմեր\tx\n"
    "his\tնրա\tx\n"
    "them\tնրանց\tx\n"
    "me\tինձ\tx\n"
    "us\tմեզ\tx\n"
    "him\tնրան\tx\n"
    "from which\tորից\tx\n"
    "what\tինչ\tx\n"
    "who\tով\tx\n"
    "whom\tում\tx\n"
    "why\tինչու\tx\n"
    "how much\tինչքան\tx\n"
    "be\tլինել\tx\n"
    "must\tպետք\tx\n"
    "is\tէ\tx\n"
    "be late\tուշանալ\tx\n"
    "nearly\tգրեթե\tx\n"
    "wish\tցանկանալ\tx\n"
    "first\tառաջին\tx\n"
    "its\tդրա\tx\n"
    "certainly\tիհարկե\tx\n";

inline const std::string kRuleArmenianLexicon =
    "երբեք\tnever\tx\n"
    "չեմ\tam not\tx\n"
    "ոչ\tno\tx\n";

class RuleFixture {
public:
    explicit RuleFixture(const std::string& englishArmenian = kRuleLexicon,
                         const std::string& armenianEnglish = kRuleArmenianLexicon) {
        folder_.write("source/lexicon/en-hy.tsv", englishArmenian);
        folder_.write("source/lexicon/hy-en.tsv", armenianEnglish);
        const CompileReport report = buildDataFolder(folder_ / "source", data());
        for (const auto& d : report.diagnostics) ADD_FAILURE() << d.str();
        store.open(data());
        engine = std::make_unique<Engine>(store, data(), host);
    }

    std::filesystem::path data() const { return folder_ / "data"; }

    // The scanner's hand-over: the text, the trigger word, ScanPos on the delimiter after it
    // (or at pos), and the output so far.
    Engine& at(const std::string& utf8Text, const std::string& word, std::int64_t pos = 0,
               const std::string& output = "") {
        Engine& e = *engine;
        e.SourceText = fromUtf8(utf8Text);
        e.CurrentWord = fromUtf8(word);
        e.ScanPos = pos > 0 ? pos : static_cast<std::int64_t>(fromUtf8(word).size()) + 1;
        e.OutputText = fromUtf8(output);
        return e;
    }

    // Runs the engine over UTF-8 text and returns the result pane in UTF-8.
    std::string translate(const std::string& utf8) {
        engine->Text3_Change(fromUtf8(utf8));
        return toUtf8(host.result);
    }

    std::string output() const { return toUtf8(engine->OutputText); }
    std::string word() const { return toUtf8(engine->CurrentWord); }
    std::string ending() const { return toUtf8(engine->PendingEnding); }

    test::TempFolder folder_;
    DictionaryStore store;
    NullHost host;
    std::unique_ptr<Engine> engine;
};

inline FontText ft(const std::string& utf8) { return fromUtf8(utf8); }

}  // namespace vorlexa::contract_test
