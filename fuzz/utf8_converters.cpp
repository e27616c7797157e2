// Feeds the UTF-8 edge and the converters: the bytes as UTF-8 into font text and back, as font
// text out to UTF-8, as UTF-16 units through both converters, and as the lines of the enc file.
#include <string>

#include "fuzz/fuzz_support.h"
#include "text/converters.h"
#include "text/font_text.h"

using namespace vorlexa;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = fuzz::asText(data, size);

    // Font text taken in from UTF-8 goes out and in again unchanged.
    Utf8Report report;
    const FontText font = fromUtf8(bytes, &report);
    if (fromUtf8(toUtf8(font)) != font) fuzz::finding("font text does not survive a trip through UTF-8");
    (void)toUtf8(bytes);  // the bytes as font text, broken escapes and all
    (void)foldArmenianCase(bytes);

    std::u16string units;
    for (std::size_t i = 0; i + 1 < size; i += 2) units += static_cast<char16_t>(data[i] | data[i + 1] << 8);
    std::u16string there = units;
    UnicodeAnsciConverter(there);
    AnsciUnicodeConverter(there);

    const auto enc = fuzz::scratchFolder() / "enc";
    fuzz::writeFile(enc, bytes);
    std::string body;
    decd_Click(enc, body);

    Utf16Export options;
    options.encPath = enc;
    options.sleep = [](std::chrono::milliseconds) {};
    std::ostringstream file9;
    body.clear();
    ResultANSCIToUnicode(font, file9, body, options);
    return 0;
}
