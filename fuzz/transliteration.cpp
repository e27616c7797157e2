// Feeds the three transliteration lists: the first byte picks the list, the rest is the
// selection as font text.
#include "fuzz/fuzz_support.h"
#include "text_tools/transliteration.h"

using namespace vorlexa;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    using text_tools::Transliteration;
    constexpr Transliteration kLists[] = {Transliteration::ArmenianToLatin, Transliteration::EnglishToArmenian,
                                          Transliteration::LatinArmenianToArmenian};
    const Transliteration which = kLists[data[0] % 3];
    (void)text_tools::transliterate(fuzz::asText(data + 1, size - 1), which);
    return 0;
}
