// Bytes per second of the three transliterations, the case change and the UTF-16 save over a
// selection of one megabyte: each list runs a whole-text pass per row, so this is the cost a
// large selection of the result box pays.
#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "text/converters.h"
#include "text/font_text.h"
#include "text_tools/case_change.h"
#include "text_tools/transliteration.h"

namespace {

using namespace vorlexa;

constexpr std::size_t kSelectionBytes = 1'000'000;  // the large selection the tools must take
constexpr unsigned kSeed = 20261124;                // the same text on every run

// Words of random Armenian letters (font codes) or Latin letters, with blanks and full stops.
FontText randomText(bool armenian) {
    std::mt19937 rng(kSeed);
    std::uniform_int_distribution<int> len(2, 9);
    std::uniform_int_distribution<int> letter(0, armenian ? 75 : 51);
    FontText text;
    text.reserve(kSelectionBytes + 16);
    while (text.size() < kSelectionBytes) {
        const int n = len(rng);
        for (int i = 0; i < n; ++i) {
            const int l = letter(rng);
            text += armenian ? static_cast<char>(font::kFirstCapital + l)
                             : static_cast<char>(l < 26 ? 'a' + l : 'A' + l - 26);
        }
        text += (n % 7 == 0) ? ". " : " ";
    }
    return text;
}

void transliterate(benchmark::State& state, text_tools::Transliteration which, bool armenian) {
    const FontText text = randomText(armenian);
    for (auto _ : state) benchmark::DoNotOptimize(text_tools::transliterate(text, which));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(text.size()));
}

void BM_TranslitArmenianToLatin(benchmark::State& state) {
    transliterate(state, text_tools::Transliteration::ArmenianToLatin, true);
}
void BM_TranslitEnglishToArmenian(benchmark::State& state) {
    transliterate(state, text_tools::Transliteration::EnglishToArmenian, false);
}
void BM_TranslitLatinArmenianToArmenian(benchmark::State& state) {
    transliterate(state, text_tools::Transliteration::LatinArmenianToArmenian, false);
}

void BM_ArmenianUpperCase(benchmark::State& state) {
    const FontText text = randomText(true);
    for (auto _ : state)
        benchmark::DoNotOptimize(text_tools::changeCase(text, text_tools::kArmenianUpper));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(text.size()));
}

void BM_Utf16FileBytes(benchmark::State& state) {
    const FontText text = randomText(true);
    for (auto _ : state) benchmark::DoNotOptimize(utf16FileBytes(text));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(text.size()));
}

}  // namespace

BENCHMARK(BM_TranslitArmenianToLatin)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TranslitEnglishToArmenian)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TranslitLatinArmenianToArmenian)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ArmenianUpperCase)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Utf16FileBytes)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
