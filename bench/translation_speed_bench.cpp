// The translator's speed over the shipped dictionaries, in one table: words per second of CPU in
// each direction for a text and for ten times that text (the time must stay linear), one run per
// line over 10,000 lines (as translate --lines runs them, and as the window's runs are, each
// looking at the pair lists' files), the start-up, and the peak memory of a run over a 10 MB text.
//
// The texts are generated: sentences of the golden tables mixed with sentences of dictionary
// keys, drawn with a fixed seed so that every run measures the same text.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "proc_status.h"
#include "engine/scanner.h"
#include "text/font_text.h"

namespace {

using namespace vorlexa;

constexpr std::int64_t kBaseWords = 20'000;       // the 1x text
constexpr int kLineCount = 10'000;                // runs of the per-line measure
constexpr std::size_t kMemoryTextBytes = 10'000'000;  // the text of the peak-memory measure
constexpr unsigned kSeed = 20261124;              // the same texts on every run
constexpr int kGoldenSharePercent = 50;           // sentences taken from the golden tables

// The non-comment lines of a table, split at tabs.
std::vector<std::vector<std::string>> readTable(const std::filesystem::path& path) {
    std::vector<std::vector<std::string>> rows;
    std::ifstream in(path);
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::vector<std::string> cells;
        std::stringstream cells_in(line);
        std::string cell;
        while (std::getline(cells_in, cell, '\t')) cells.push_back(cell);
        rows.push_back(std::move(cells));
    }
    return rows;
}

// Sentences in UTF-8 for one direction: the golden sentences and the keys of its lexicon.
struct SentenceSource {
    std::vector<std::string> golden;
    std::vector<std::string> keys;

    SentenceSource(const std::filesystem::path& goldenTable, const std::filesystem::path& lexicon) {
        for (auto& row : readTable(goldenTable))
            if (!row.empty() && row[0].find("\\r\\n") == std::string::npos) golden.push_back(row[0]);
        for (auto& row : readTable(lexicon))
            if (!row.empty() && row[0].find(' ') == std::string::npos) keys.push_back(row[0]);
    }

    // Lines of whole sentences until the text holds `words` words.
    std::vector<std::string> lines(std::int64_t words, unsigned seed) const {
        std::mt19937 rng(seed);
        std::uniform_int_distribution<int> percent(0, 99);
        std::uniform_int_distribution<int> length(4, 12);
        std::uniform_int_distribution<std::size_t> pickGolden(0, golden.size() - 1);
        std::uniform_int_distribution<std::size_t> pickKey(0, keys.size() - 1);
        std::vector<std::string> out;
        std::int64_t count = 0;
        while (count < words) {
            std::string s;
            if (percent(rng) < kGoldenSharePercent) {
                s = golden[pickGolden(rng)];
            } else {
                for (int i = length(rng); i > 0; --i) s += keys[pickKey(rng)] + (i > 1 ? " " : ".");
            }
            count += countWords(fromUtf8(s));
            out.push_back(std::move(s));
        }
        return out;
    }

    // The lines as one text of lines of a few sentences each.
    FontText text(std::int64_t words, unsigned seed) const {
        constexpr int kSentencesPerLine = 4;
        std::string t;
        int n = 0;
        for (const auto& s : lines(words, seed)) {
            t += s;
            t += ++n % kSentencesPerLine == 0 ? "\r\n" : " ";
        }
        return fromUtf8(t);
    }
};

const SentenceSource& english() {
    static const SentenceSource s(VORLEXA_SOURCE_TREE "/tests/engine/golden/golden_en_hy.tsv",
                                  VORLEXA_SOURCE_TREE "/data/lexicon/en-hy.tsv");
    return s;
}

const SentenceSource& armenian() {
    static const SentenceSource s(VORLEXA_SOURCE_TREE "/tests/analysis/golden/golden_hy_en.tsv",
                                  VORLEXA_SOURCE_TREE "/data/lexicon/hy-en.tsv");
    return s;
}

const SentenceSource& source(std::int64_t direction) { return direction == 0 ? english() : armenian(); }

// A private copy of the shipped data folder: a run writes its list of unknown words there.
class DataCopy {
public:
    DataCopy() {
        folder_ = std::filesystem::temp_directory_path() / ("vorlexa-speed-" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder_);
        // The copies keep their time stamps, as an installed data folder has settled ones.
        for (const auto& entry : std::filesystem::directory_iterator(VORLEXA_BUILT_DATA_DIR)) {
            const auto copy = folder_ / entry.path().filename();
            std::filesystem::copy(entry.path(), copy, std::filesystem::copy_options::overwrite_existing);
            std::filesystem::last_write_time(copy, std::filesystem::last_write_time(entry.path()));
        }
    }
    ~DataCopy() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    const std::filesystem::path& folder() const { return folder_; }

private:
    std::filesystem::path folder_;
};

const DataCopy& data() {
    static const DataCopy d;
    return d;
}

// The dictionaries and an engine whose host asks nothing and shows no timing.
struct Translator {
    DictionaryStore store;
    NullHost host;
    std::unique_ptr<Engine> engine;

    Translator() {
        store.open(data().folder());
        host.setChecked(MenuItem::ITR, true);
        engine = std::make_unique<Engine>(store, data().folder(), host);
    }
};

void setWordRate(benchmark::State& state, std::int64_t words) {
    state.counters["words"] = static_cast<double>(words);
    state.counters["words/s"] = benchmark::Counter(static_cast<double>(words) * static_cast<double>(state.iterations()),
                                                   benchmark::Counter::kIsRate);
}

using bench::statusKb;

// The peak resident memory of the process while it holds the dictionaries and runs over a 10 MB
// text, counted from a fresh start of the peak. It runs first, before other runs grow the heap.
void BM_PeakMemoryOfATenMegabyteRun(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        FontText text = source(state.range(0)).text(kBaseWords, kSeed);
        const FontText unit = text;
        while (text.size() < kMemoryTextBytes) text += unit;
        std::ofstream("/proc/self/clear_refs") << "5";  // the peak starts again from here
        Translator t;
        state.ResumeTiming();
        t.engine->Text3_Change(text);
        state.PauseTiming();
        state.counters["text_mb"] = static_cast<double>(text.size()) / 1e6;
        state.counters["peak_mb"] = static_cast<double>(statusKb("VmHWM")) / 1024.0;
        state.ResumeTiming();
    }
}
BENCHMARK(BM_PeakMemoryOfATenMegabyteRun)->ArgNames({"hy"})->Arg(0)->Arg(1)->Iterations(1)->Unit(benchmark::kMillisecond);

// Arguments: direction (0 English to Armenian, 1 Armenian to English), length multiple.
void BM_WholeText(benchmark::State& state) {
    const FontText text = source(state.range(0)).text(kBaseWords * state.range(1), kSeed);
    const std::int64_t words = countWords(text);
    Translator t;
    t.engine->Text3_Change(text);  // the first run builds the indexes of the columns it meets
    for (auto _ : state) {
        t.engine->Text3_Change(text);
        benchmark::DoNotOptimize(t.host.result.data());
    }
    setWordRate(state, words);
}
BENCHMARK(BM_WholeText)
    ->ArgNames({"hy", "x"})
    ->Args({0, 1})
    ->Args({0, 10})
    ->Args({1, 1})
    ->Args({1, 10})
    ->Unit(benchmark::kMillisecond);

// One run per line; the rate compares with the whole text's. Arguments: direction, and whether
// the runs hold the pair lists as translate --lines does (1), or look at their files at every
// run as the window's runs do (0).
void BM_RunPerLine(benchmark::State& state) {
    std::vector<FontText> lines;
    std::int64_t words = 0;
    std::mt19937 rng(kSeed);
    constexpr std::int64_t kWordsPerLineAtMost = 12;  // enough sentences for every line
    for (const auto& s : source(state.range(0)).lines(kLineCount * kWordsPerLineAtMost, kSeed)) {
        lines.push_back(fromUtf8(s));
        words += countWords(lines.back());
        if (static_cast<int>(lines.size()) == kLineCount) break;
    }
    while (static_cast<int>(lines.size()) < kLineCount) {
        lines.push_back(lines[rng() % lines.size()]);
        words += countWords(lines.back());
    }
    Translator t;
    t.engine->holdPairLists(state.range(1) == 1);
    for (const auto& line : lines) t.engine->Text3_Change(line);
    for (auto _ : state) {
        for (const auto& line : lines) {
            t.engine->Text3_Change(line);
            benchmark::DoNotOptimize(t.host.result.data());
        }
    }
    state.counters["lines"] = kLineCount;
    setWordRate(state, words);
}
BENCHMARK(BM_RunPerLine)
    ->ArgNames({"hy", "held"})
    ->Args({0, 1})
    ->Args({1, 1})
    ->Args({0, 0})
    ->Args({1, 0})
    ->Unit(benchmark::kMillisecond);

// Start-up as the main window does it: open the dictionaries, build the derived files, translate
// one word; the exit deletes the derived files again.
void BM_StartUp(benchmark::State& state) {
    const FontText word = "house";
    for (auto _ : state) {
        DictionaryStore store;
        store.open(data().folder());
        store.CreateDicStrings();
        NullHost host;
        host.setChecked(MenuItem::ITR, true);
        Engine engine(store, data().folder(), host);
        engine.Text3_Change(word);
        benchmark::DoNotOptimize(host.result.data());
        state.PauseTiming();
        store.deleteDerivedFiles();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_StartUp)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
