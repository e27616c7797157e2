// Feeds the dictionary store arbitrary file contents: the input, cut at each record separator
// (0x1E), becomes dictionarye-a, dictionarya-e, uxxuma, uxxume and uxxumy; the store opens them,
// looks words up, builds its derived files, takes a new word, and runs a text each way.
#include "engine/engine.h"
#include "fuzz/fuzz_support.h"
#include "text/font_text.h"

using namespace vorlexa;
using namespace vorlexa::literals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const char* const kFiles[] = {"dictionarye-a", "dictionarya-e", "uxxuma", "uxxume", "uxxumy"};
    const auto parts = fuzz::splitInput(fuzz::asText(data, size), std::size(kFiles));
    const auto folder = fuzz::scratchFolder() / "store";
    for (std::size_t i = 0; i < std::size(kFiles); ++i) fuzz::writeFile(folder / kFiles[i], parts[i]);

    DictionaryStore store;
    if (!store.open(folder)) return 0;
    (void)store.findEnglish("house");
    (void)store.findArmenian("տուն"_ft);
    store.CreateDicStrings();
    (void)insertWordPair(store, Direction::EnglishToArmenian, "zebra", "զեբր"_ft, "n");
    NullHost host;
    host.setChecked(MenuItem::ITR, true);
    Engine engine(store, folder, host);
    engine.Text3_Change("The house is big. I have a red house.");
    engine.Text3_Change(FontText("Տունը մեծ է: Ես ունեմ կարմիր տուն:"_ft));
    store.deleteDerivedFiles();
    return 0;
}
