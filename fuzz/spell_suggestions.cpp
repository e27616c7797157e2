// Feeds the spell checker's suggestion generator one word: the bytes as font text, checked
// against the shipped Armenian dictionary as a pass would check it.
#include "engine/dictionary_store.h"
#include "fuzz/fuzz_support.h"
#include "spell/suggestions.h"

using namespace vorlexa;

// Copying and opening the shipped dictionaries takes longer than one input may: done before the
// first input, outside its time limit.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    fuzz::shippedStore();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    spell::ArmenianBuckets buckets(fuzz::shippedStore().armenian());
    spell::SpellInput input;
    input.RawWord = FontText(fuzz::asText(data, size));
    input.Text2 = input.RawWord;
    input.text = input.RawWord + ' ';
    input.ScanPos = static_cast<std::int64_t>(input.RawWord.size()) + 1;
    const spell::SpellResult result = spell::splch(input, buckets);
    if (result.List1.size() > spell::kMaxCandidates) fuzz::finding("more suggestions than the cap");
    return 0;
}
