// Words per second of the English-to-Armenian run over a generated text, at one and ten times
// its length (the run must be linear in the text), and the peak memory of a run over 1 MB.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "dictionary_tools/lexicon_compiler.h"
#include "engine/engine.h"
#include "proc_status.h"
#include "engine/scanner.h"
#include "text/font_text.h"

namespace {

using namespace vorlexa;

constexpr int kLexiconWords = 4000;          // about the size of a working English lexicon
constexpr int kUnknownPool = 60;             // distinct words the lexicon lacks
constexpr int kUnknownPerMille = 10;         // share of running words left untranslated
constexpr std::size_t kBaseTextBytes = 200'000;  // the 1x text
constexpr std::size_t kMemoryTextBytes = 1'000'000;
constexpr unsigned kSeed = 20240611;         // the same text on every run

std::string randomWord(std::mt19937& rng, int minLen, int maxLen) {
    static const std::string letters = "abcdefghijklmnopqrstuvwxyz";
    std::uniform_int_distribution<int> len(minLen, maxLen);
    std::uniform_int_distribution<int> letter(0, 25);
    std::string w;
    const int n = len(rng);
    for (int i = 0; i < n; ++i) w += letters[static_cast<std::size_t>(letter(rng))];
    return w;
}

// A gloss of small Armenian letters, as UTF-8.
std::string armenianGloss(std::mt19937& rng) {
    std::uniform_int_distribution<int> len(3, 9);
    std::uniform_int_distribution<int> letter(0, 37);
    std::string font;
    const int n = len(rng);
    for (int i = 0; i < n; ++i) font += static_cast<char>(font::kFirstSmall + 2 * letter(rng));
    return toUtf8(font);
}

struct Corpus {
    std::filesystem::path folder;
    std::vector<std::string> known;
    std::vector<std::string> unknown;

    Corpus() {
        folder = std::filesystem::temp_directory_path() / ("vorlexa-bench-" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder / "source" / "lexicon");
        std::mt19937 rng(kSeed);
        std::string lexicon;
        static const char* tags[] = {"n", "a", "x", "v", "n"};
        while (static_cast<int>(known.size()) < kLexiconWords) {
            const std::string w = randomWord(rng, 2, 10);
            if (std::find(known.begin(), known.end(), w) != known.end()) continue;
            known.push_back(w);
            lexicon += w + "\t" + armenianGloss(rng) + "\t" + tags[known.size() % 5] + "\n";
        }
        while (static_cast<int>(unknown.size()) < kUnknownPool) {
            const std::string w = randomWord(rng, 11, 14);  // longer than any lexicon word
            unknown.push_back(w);
        }
        std::ofstream(folder / "source" / "lexicon" / "en-hy.tsv") << lexicon;
        std::ofstream(folder / "source" / "lexicon" / "hy-en.tsv") << "";
        buildDataFolder(folder / "source", folder / "data");
    }
    ~Corpus() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    // Sentences of 4 to 14 words with commas and full stops, capitals at sentence starts.
    FontText text(std::size_t bytes) const {
        std::mt19937 rng(kSeed + 1);
        std::uniform_int_distribution<int> sentenceLength(4, 14);
        std::uniform_int_distribution<std::size_t> pick(0, known.size() - 1);
        std::uniform_int_distribution<std::size_t> pickUnknown(0, unknown.size() - 1);
        std::uniform_int_distribution<int> perMille(0, 999);
        std::string t;
        while (t.size() < bytes) {
            const int n = sentenceLength(rng);
            for (int i = 0; i < n; ++i) {
                std::string w = perMille(rng) < kUnknownPerMille ? unknown[pickUnknown(rng)] : known[pick(rng)];
                if (i == 0) w[0] = static_cast<char>(w[0] - 32);
                t += w;
                if (i + 1 < n) t += perMille(rng) < 80 ? ", " : " ";
            }
            t += ". ";
        }
        return fromUtf8(t);
    }
};

const Corpus& corpus() {
    static const Corpus c;
    return c;
}

void BM_TranslateEnglishToArmenian(benchmark::State& state) {
    const Corpus& c = corpus();
    const FontText text = c.text(kBaseTextBytes * static_cast<std::size_t>(state.range(0)));
    const std::int64_t words = countWords(text);
    DictionaryStore store;
    store.open(c.folder / "data");
    NullHost host;
    host.setChecked(MenuItem::ITR, true);  // no dialogs, no timing title
    Engine engine(store, c.folder / "data", host);
    for (auto _ : state) {
        engine.Text3_Change(text);
        benchmark::DoNotOptimize(host.result.data());
    }
    state.counters["words"] = static_cast<double>(words);
    state.counters["words/s"] =
        benchmark::Counter(static_cast<double>(words) * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate);
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}
BENCHMARK(BM_TranslateEnglishToArmenian)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);

using bench::statusKb;

// The peak resident memory a run adds, as a multiple of the text's size.
void BM_PeakMemoryOfAOneMegabyteRun(benchmark::State& state) {
    const Corpus& c = corpus();
    for (auto _ : state) {
        state.PauseTiming();
        FontText text = c.text(kMemoryTextBytes);
        DictionaryStore store;
        store.open(c.folder / "data");
        NullHost host;
        host.setChecked(MenuItem::ITR, true);
        Engine engine(store, c.folder / "data", host);
        std::ofstream("/proc/self/clear_refs") << "5";  // the peak starts again from here
        const long before = statusKb("VmRSS");
        state.ResumeTiming();
        engine.Text3_Change(text);
        state.PauseTiming();
        const long peak = statusKb("VmHWM");
        state.counters["text_kb"] = static_cast<double>(text.size()) / 1024.0;
        state.counters["peak_added_kb"] = static_cast<double>(peak - before);
        state.counters["peak_per_text"] =
            static_cast<double>(peak - before) * 1024.0 / static_cast<double>(text.size());
        state.ResumeTiming();
    }
}
BENCHMARK(BM_PeakMemoryOfAOneMegabyteRun)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
