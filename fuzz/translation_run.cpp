// Feeds a translation run: the bytes as UTF-8 text (bad bytes become U+FFFD), the direction guessed
// from its letters, every question answered No, over the shipped dictionaries.
#include "engine/engine.h"
#include "fuzz/fuzz_support.h"
#include "text/font_text.h"

using namespace vorlexa;

// Copying and opening the shipped dictionaries takes longer than one input may: done before the
// first input, outside its time limit.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::shippedStore();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    NullHost host;
    host.setChecked(MenuItem::ITR, true);
    Engine engine(fuzz::shippedStore(), fuzz::shippedDataCopy(), host);
    engine.Text3_Change(fromUtf8(fuzz::asText(data, size)));
    // With every answer No the run never waits; a run the guard stopped was a loop.
    if (engine.state != RunState::Idle) fuzz::finding("the run did not end");
    if (engine.stopped) fuzz::finding(toUtf8(engine.stopped->reason));
    return 0;
}
