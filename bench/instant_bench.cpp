// The interface thread's share of a key stroke under instant translation of a 3,000-line text:
// the first slice of the run that the key stroke starts, against the whole run that a paste
// makes; and how many slices a whole run takes.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "app/main_form.h"
#include "dictionary_tools/lexicon_compiler.h"

namespace {

using namespace vorlexa;

constexpr int kLines = 3000;  // the long text a user types into

struct Window {
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("vorlexa-instant-bench-" + std::to_string(::getpid()));
    app::WindowlessView view;
    app::MainForm form{view};
    FontText text;

    Window() {
        std::filesystem::create_directories(folder / "source/lexicon");
        std::ofstream(folder / "source/lexicon/en-hy.tsv")
            << "house\tտուն\tn\nbig\tմեծ\ta\nis\tէ\to\nred\tկարմիր\ta\nbook\tգիրք\tn\n";
        std::ofstream(folder / "source/lexicon/hy-en.tsv") << "տուն\thouse\tn\n";
        buildDataFolder(folder / "source", folder / "data");
        form.Form_Load(folder / "data", {});
        form.setChecked("ITR", true);
        for (int i = 0; i < kLines; ++i) text += "The big house is red. A red book is big.\r\n";
    }
    ~Window() {
        form.finish();
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
};

void BM_InstantKeyStrokeOnALongText(benchmark::State& state) {
    Window w;
    for (auto _ : state) benchmark::DoNotOptimize(w.form.startInstantRun(w.text));
    int slices = 1;
    while (w.form.continueInstantRun()) ++slices;
    state.counters["slices_of_a_whole_run"] = slices;
}
BENCHMARK(BM_InstantKeyStrokeOnALongText)->Unit(benchmark::kMillisecond);

void BM_WholeRunOfALongText(benchmark::State& state) {
    Window w;
    for (auto _ : state) w.form.Text3_Change(w.text);
}
BENCHMARK(BM_WholeRunOfALongText)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
