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

// Questions are answered No; the boxes are strings.
class QuietView : public app::Form1View {
public:
    int ask(const Question&, app::Language) override { return kAnswerNo; }
    void notify(const Notice&, app::Language) override {}
    FontText text3() const override { return text3_; }
    void setText3(const FontText& t) override { text3_ = t; }
    FontText text4() const override { return text4_; }
    void setText4(const FontText& t) override { text4_ = t; }
    app::TextSelection text4Selection() const override { return {}; }
    void selectText4(app::TextSelection) override {}
    void progressChanged(int) override {}
    void stateChanged() override {}
    void minimise() override {}
    void setBusy(bool) override {}

private:
    FontText text3_;
    FontText text4_;
};

struct Window {
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("vorlexa-instant-bench-" + std::to_string(::getpid()));
    QuietView view;
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
