// Time of a save of the result as UTF-16 (through the temporary number file of the design)
// and of opening the saved file again, at the length where the result box ends (64000
// characters) and where export goes by the clipboard alone (128000 characters).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "app/file_dialog.h"
#include "text/converters.h"

namespace {

using namespace vorlexa;
namespace fs = std::filesystem;

constexpr unsigned kSeed = 20261124;  // the same text on every run

// Font text of Armenian words, blanks, line breaks and a little ASCII, `length` characters.
FontText sampleText(std::size_t length) {
    std::mt19937 rng(kSeed);
    std::uniform_int_distribution<int> letter(0, 75);
    std::uniform_int_distribution<int> wordLength(2, 9);
    FontText text;
    while (text.size() < length) {
        const int n = wordLength(rng);
        for (int i = 0; i < n; ++i) text += static_cast<char>(178 + letter(rng));
        text += (text.size() % 97 < 9) ? "\r\n" : " ";
    }
    text.resize(length);
    return text;
}

// A folder of the run's own, removed when the program ends.
struct Scratch {
    fs::path dir = fs::temp_directory_path() / "vorlexa-bench-file-io";
    Scratch() { fs::create_directories(dir); }
    ~Scratch() {
        std::error_code ignored;
        fs::remove_all(dir, ignored);
    }
};

fs::path scratch() {
    static const Scratch folder;
    return folder.dir;
}

void SaveAsUtf16(benchmark::State& state) {
    const FontText text = sampleText(static_cast<std::size_t>(state.range(0)));
    const fs::path dir = scratch();
    Utf16Export options;
    options.encPath = dir / "enc";
    options.sleep = [](std::chrono::milliseconds) {};
    for (auto _ : state) {
        std::ofstream out(dir / "saved.txt", std::ios::binary | std::ios::trunc);
        std::string body;
        benchmark::DoNotOptimize(ResultANSCIToUnicode(text, out, body, options));
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}
BENCHMARK(SaveAsUtf16)->Arg(64000)->Arg(128000)->Unit(benchmark::kMillisecond);

void OpenSavedFile(benchmark::State& state) {
    const FontText text = sampleText(static_cast<std::size_t>(state.range(0)));
    const fs::path dir = scratch();
    Utf16Export options;
    options.encPath = dir / "enc";
    options.sleep = [](std::chrono::milliseconds) {};
    {
        std::ofstream out(dir / "open.txt", std::ios::binary | std::ios::trunc);
        std::string body;
        ResultANSCIToUnicode(text, out, body, options);
    }
    for (auto _ : state) benchmark::DoNotOptimize(app::readTextFile(dir / "open.txt"));
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}
BENCHMARK(OpenSavedFile)->Arg(64000)->Arg(128000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
