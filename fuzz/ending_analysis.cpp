// Feeds the ending analysis one word: the first byte picks the direction, the rest is the word
// as font text, analysed over the shipped dictionaries.
#include "engine/engine.h"
#include "fuzz/fuzz_support.h"

using namespace vorlexa;

// Copying and opening the shipped dictionaries takes longer than one input may: done before the
// first input, outside its time limit.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::shippedStore();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    NullHost host;
    host.setChecked(MenuItem::ITR, true);
    Engine engine(fuzz::shippedStore(), fuzz::shippedDataCopy(), host);
    engine.Check1 = data[0] & 1;
    engine.CurrentWord = FontText(fuzz::asText(data + 1, size - 1));
    engine.RawWord = engine.CurrentWord;
    engine.SourceText = engine.CurrentWord + ' ';
    engine.ScanPos = static_cast<std::int64_t>(engine.CurrentWord.size()) + 1;
    engine.hayqer();
    return 0;
}
