// The spell checker on the shipped dictionary: the suggestions for one misspelt word of each
// length from 2 to 20 letters, and a whole-page pass of 500 words of which 25 are misspelt.
// The goals: 20 ms a word at 20 letters, and under 1 s for the page.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "spell/spell_pass.h"
#include "spell/suggestions.h"
#include "text/font_text.h"

namespace {

using namespace vorlexa;
using namespace vorlexa::literals;

constexpr std::size_t kShortestWord = 2;
constexpr std::size_t kLongestWord = 20;  // the width of a key
constexpr int kPageWords = 500;           // a page of running text
constexpr int kPageMisspelt = 25;         // one word in twenty

const std::filesystem::path kShippedData = VORLEXA_BUILT_DATA_DIR;
const std::filesystem::path kShippedLexicon = VORLEXA_SOURCE_DATA_DIR "/lexicon/hy-en.tsv";

DictionaryStore& shippedStore() {
    static DictionaryStore store;
    static const bool opened = store.open(kShippedData);
    if (!opened) std::abort();
    return store;
}

// The Armenian keys of the shipped lexicon, by length, in file order.
const std::map<std::size_t, std::vector<FontText>>& keysByLength() {
    static const std::map<std::size_t, std::vector<FontText>> keys = [] {
        std::map<std::size_t, std::vector<FontText>> out;
        std::ifstream in(kShippedLexicon);
        std::string line;
        while (std::getline(in, line)) {
            if (line.empty() || line[0] == '#') continue;
            const FontText key = fromUtf8(line.substr(0, line.find('\t')));
            if (key.find(' ') == FontText::npos && hasArmenianLetter(key))
                out[key.size()].push_back(key);
        }
        return out;
    }();
    return keys;
}

// A key misspelt by its first letter that the main table confuses, checked to be no key itself.
FontText misspelt(const FontText& key) {
    const std::string_view from = "գդտբկ"_ft;
    const std::string_view to = "քթդփգ"_ft;
    for (std::size_t i = 0; i < key.size(); ++i) {
        const auto at = from.find(key[i]);
        if (at == std::string_view::npos) continue;
        FontText w = key;
        w[i] = to[at];
        if (!shippedStore().findArmenian(w)) return w;
    }
    return {};
}

// A misspelt word of n letters: a key of that length, else two keys joined and cut to n.
FontText wordOfLength(std::size_t n) {
    const auto& keys = keysByLength();
    if (const auto it = keys.find(n); it != keys.end())
        for (const FontText& key : it->second)
            if (FontText w = misspelt(key); !w.empty()) return w;
    FontText joined;
    for (auto it = keys.rbegin(); it != keys.rend() && joined.size() < n; ++it)
        joined += it->second.front();
    return misspelt(joined.substr(0, n)).empty() ? joined.substr(0, n)
                                                 : misspelt(joined.substr(0, n));
}

void BM_SuggestionsForOneWord(benchmark::State& state) {
    const FontText word = wordOfLength(static_cast<std::size_t>(state.range(0)));
    spell::SpellInput input;
    input.RawWord = word;
    input.Text2 = word;
    std::size_t candidates = 0;
    std::size_t suggestions = 0;
    for (auto _ : state) {
        spell::ArmenianBuckets buckets(shippedStore().armenian());
        const spell::SpellResult r = spell::splch(input, buckets);
        suggestions = r.List1.size();
        benchmark::DoNotOptimize(r);
    }
    candidates = spell::generateCandidates(input).List1.size();
    state.SetLabel(toUtf8(word));
    state.counters["candidates"] = static_cast<double>(candidates);
    state.counters["suggestions"] = static_cast<double>(suggestions);
}
BENCHMARK(BM_SuggestionsForOneWord)
    ->DenseRange(kShortestWord, kLongestWord)
    ->Unit(benchmark::kMillisecond);

// Answers every "To be corrected?" with the suggestions made and a No, as the command line does.
class PageHost : public NullHost {
  public:
    Engine* engine = nullptr;
    int questioned = 0;
    int ask(const Question& q) override {
        if (q.kind == QuestionKind::CorrectUnknownWord && engine) {
            ++questioned;
            benchmark::DoNotOptimize(spell::suggestionsHere(*engine, engine->RawWord));
        }
        return kAnswerNo;
    }
};

FontText joinedWords(const std::vector<FontText>& words) {
    FontText text;
    for (const FontText& w : words) text += w + " ";
    return text;
}

// 500 keys of the shipped lexicon, of which 25, spread over the page, are misspelt so that the
// pass questions them: a misspelling the ending analysis places after all is taken back.
FontText page(Engine& engine, PageHost& host) {
    const auto& keys = keysByLength();
    std::vector<FontText> words;
    for (std::size_t n = 3; n <= 9 && words.size() < kPageWords; ++n)
        for (const FontText& key : keys.at(n)) {
            if (words.size() >= kPageWords) break;
            words.push_back(key);
        }
    const auto questionedIn = [&](const FontText& text) {
        host.questioned = 0;
        host.setResultText(text);
        engine.SpellMode = 1;
        engine.Text3_Change(text);
        return host.questioned;
    };
    constexpr int kStride = kPageWords / kPageMisspelt;
    int questioned = 0;
    for (int offset = 0; offset < kStride && questioned < kPageMisspelt; ++offset)
        for (std::size_t i = static_cast<std::size_t>(offset);
             i < words.size() && questioned < kPageMisspelt; i += kStride) {
            const FontText before = words[i];
            FontText w = misspelt(before);
            if (w.empty()) continue;
            words[i] = w;
            const int now = questionedIn(joinedWords(words));
            if (now > questioned)
                questioned = now;
            else
                words[i] = before;
        }
    return joinedWords(words);
}

void BM_SpellCheckPassOverAPage(benchmark::State& state) {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / "vorlexa-spell-bench";
    std::filesystem::create_directories(folder);
    PageHost host;
    Engine engine(shippedStore(), folder, host);
    host.engine = &engine;
    const FontText text = page(engine, host);
    for (auto _ : state) {
        host.questioned = 0;
        host.setResultText(text);
        engine.SpellMode = 1;
        engine.Text3_Change(text);
    }
    state.counters["questioned"] = host.questioned;
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_SpellCheckPassOverAPage)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
