// The UTF-16 file of a result, made in memory: the bytes of the file route through `enc`
// without the file and without the wait.
#include <gtest/gtest.h>

#include <sstream>

#include "support/byte_string.h"
#include "support/temp_folder.h"
#include "text/converters.h"
#include "text/font_text.h"

using namespace vorlexa;
using vorlexa::test::bytes;

namespace {

std::string saved(const std::string& text, Utf16Export options = {}) {
    std::ostringstream file9;
    std::string body;
    EXPECT_TRUE(ResultANSCIToUnicode(text, file9, body, options));
    return file9.str();
}

}  // namespace

TEST(Utf16Save, MakesNoEncFileAndDoesNotWait) {
    test::TempFolder dir;
    Utf16Export options;
    options.encPath = dir / "enc";
    bool waited = false;
    options.sleep = [&](std::chrono::milliseconds) { waited = true; };
    EXPECT_EQ(saved("A", options), bytes({0xFF, 0xFE, 'A', 0}));
    EXPECT_FALSE(waited);
    EXPECT_FALSE(std::filesystem::exists(dir / "enc"));
}

TEST(Utf16Save, EmptyTextGivesOnlyTheByteOrderMark) {
    EXPECT_EQ(saved(""), bytes({0xFF, 0xFE}));
}

TEST(Utf16Save, OpeningGuillemetIsWrittenAsLigatureAndClosingAsItsCode) {
    EXPECT_EQ(saved(bytes({167, 166, 168})),
              bytes({0xFF, 0xFE, 0x87, 0x05, 0xA6, 0x00, 0x87, 0x05}));
}

TEST(Utf16Save, QuestionSignLettersAndLineBreaks) {
    EXPECT_EQ(saved(bytes({177, 178, 179, 252, 253, '\r', '\n'})),
              bytes({0xFF, 0xFE, 0x5E, 0x05, 0x31, 0x05, 0x61, 0x05, 0x56, 0x05, 0x86, 0x05, 0x0D,
                     0, 0x0A, 0}));
}

TEST(Utf16Save, GivesTheSameBytesAsTheRouteThroughEnc) {
    test::TempFolder dir;
    std::string every;
    for (int c = 1; c <= 0xFE; ++c) every += static_cast<char>(c);
    Utf16Export viaEnc;
    viaEnc.throughEncFile = true;
    viaEnc.encPath = dir / "enc";
    viaEnc.sleep = [](std::chrono::milliseconds) {};
    EXPECT_EQ(saved(every), saved(every, viaEnc));
    EXPECT_FALSE(std::filesystem::exists(dir / "enc"));
}

TEST(Utf16Save, CharactersOutsideTheFontAreSavedAsThemselves) {
    const FontText text = fromUtf8("Ж😀");
    EXPECT_EQ(saved(text), bytes({0xFF, 0xFE, 0x16, 0x04, 0x3D, 0xD8, 0x00, 0xDE}));
}

TEST(Utf16Save, AppendModeLeavesTheBodyForTheCallerAndTheFileUntouched) {
    Utf16Export options;
    options.aas = true;
    std::ostringstream file9;
    std::string body;
    EXPECT_TRUE(ResultANSCIToUnicode("A", file9, body, options));
    EXPECT_EQ(file9.str(), "");
    EXPECT_EQ(body, bytes({0xFF, 0xFE, 'A', 0}));
}
