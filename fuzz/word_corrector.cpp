// Feeds the Word Corrector's record operations: the input cut into steps, each one's first byte
// picking the command (search, next, previous, change, delete, all meanings) and the rest filling
// the box it reads, over a copy of a small dictionary; every edit must leave the files readable.
#include <filesystem>

#include "dictionary_tools/word_corrector.h"
#include "engine/dictionary_store.h"
#include "fuzz/fuzz_support.h"

using namespace vorlexa;

namespace {

class QuietCorrectorView : public CorrectorView {
public:
    int ask(const Question&, bool) override { return kAnswerYes; }  // every change and delete goes ahead
    void notify(const Notice&, bool) override {}
    void showList(const std::filesystem::path&, bool) override {}
};

constexpr std::size_t kStepsPerInput = 12;  // a search, then moves and edits of what it found

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fs = std::filesystem;
    const fs::path folder = fuzz::scratchFolder() / "corrector";
    fs::remove_all(folder);
    fs::copy(fuzz::smallDataFolder(), folder, fs::copy_options::recursive);

    DictionaryStore store;
    if (!store.open(folder)) fuzz::finding("a copy of the small dictionaries does not open");
    QuietCorrectorView view;
    WordCorrector corrector(store, view);
    corrector.folder = folder;
    corrector.flatList = [](Direction) { return std::string(); };
    corrector.Corr_Click(false);
    for (std::string_view step : fuzz::splitInput(fuzz::asText(data, size), kStepsPerInput)) {
        if (step.empty()) continue;
        const FontText text(step.substr(1));
        switch (static_cast<unsigned char>(step.front()) % 8) {
            case 0: corrector.Text1 = text; corrector.Command3_Click(); break;
            case 1: corrector.Text2 = text; corrector.Command3_Click(); break;
            case 2: corrector.Command2_Click(); break;
            case 3: corrector.Command5_Click(); break;
            case 4: corrector.Text3 = text; corrector.Command4_Click(); break;
            case 5: corrector.Text4 = std::string(text); corrector.Command1_Click(); break;
            case 6: corrector.Check1_Click(!corrector.check1()); break;
            default: corrector.Text4 = std::string(text); corrector.Command4_Click(); break;
        }
    }
    DictionaryStore reopened;
    if (!reopened.open(folder)) fuzz::finding("the dictionaries no longer open after the edits");
    return 0;
}
