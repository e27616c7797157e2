// A small Armenian dictionary compiled for a test, and the suggestion generator over it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "dictionary_tools/lexicon_compiler.h"
#include "engine/dictionary_store.h"
#include "spell/suggestions.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

namespace vorlexa::test {

// Armenian keys of the spell tests, each the right spelling of a misspelling a test makes.
inline const std::string kSpellLexicon =
    "գիրք\tbook\tn\n"
    "տուն\thouse\tn\n"
    "գետ\triver\tn\n"
    "բարի\tkind\ta\n"
    "ևս\talso\tx\n"
    "և\tand\tx\n"
    "եղբայր\tbrother\tn\n"
    "գյուղ\tvillage\tn\n"
    "քաղաք\tcity\tn\n"
    "ազատություն\tfreedom\tn\n"
    "հոգեվարք\tagony\tn\n"
    "որ\tthat\tx\n"
    "է\tis\tx\n"
    "մեծ\tbig\ta\n";

class SpellFixture {
  public:
    explicit SpellFixture(const std::string& armenianEnglish = kSpellLexicon) {
        folder_.write("source/lexicon/en-hy.tsv", "house\tտուն\tn\n");
        folder_.write("source/lexicon/hy-en.tsv", armenianEnglish);
        const CompileReport report = buildDataFolder(folder_ / "source", folder_ / "data");
        for (const auto& d : report.diagnostics) ADD_FAILURE() << d.str();
        store.open(folder_ / "data");
        buckets = std::make_unique<spell::ArmenianBuckets>(store.armenian());
    }

    std::filesystem::path data() const { return folder_ / "data"; }

    // The suggestions for a word in UTF-8, in their order.
    std::vector<std::string> suggest(const std::string& word, std::string* text2 = nullptr) {
        spell::SpellInput in;
        in.RawWord = fromUtf8(word);
        in.Text2 = in.RawWord;
        const spell::SpellResult r = spell::splch(in, *buckets);
        if (text2) *text2 = toUtf8(r.Text2);
        std::vector<std::string> out;
        for (const FontText& s : r.List1) out.push_back(toUtf8(s));
        return out;
    }

    TempFolder folder_;
    DictionaryStore store;
    std::unique_ptr<spell::ArmenianBuckets> buckets;
};

inline bool contains(const std::vector<std::string>& list, const std::string& item) {
    return std::find(list.begin(), list.end(), item) != list.end();
}

// The variants one pass makes of a word, in UTF-8.
template <typename Pass>
std::vector<std::string> variantsOf(const std::string& word, Pass pass,
                                    const std::string& lastChosen = "") {
    const FontText w = fromUtf8(word);
    std::vector<FontText> list;
    spell::Round round{w, list, fromUtf8(lastChosen)};
    pass(round);
    std::vector<std::string> out;
    for (const FontText& s : list) out.push_back(toUtf8(s));
    return out;
}

}  // namespace vorlexa::test
