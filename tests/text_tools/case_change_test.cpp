// The four case commands over font text.
#include "text_tools/case_change.h"

#include <gtest/gtest.h>

using namespace vorlexa;
using namespace vorlexa::text_tools;

namespace {
std::string cased(const char* utf8, int mode) {
    return toUtf8(changeCase(fromUtf8(utf8), mode));
}
}  // namespace

TEST(ArmCaseConv, UpperCaseWritesTheLigatureAsTwoCapitals) {
    EXPECT_EQ(cased("Երևան", kArmenianUpper), "ԵՐԵՎԱՆ");
}

TEST(ArmCaseConv, LowerCaseDoesNotMakeTheLigatureAgain) {
    EXPECT_EQ(cased("ԵՎ", kArmenianLower), "եվ");
    EXPECT_EQ(cased("ԵՐԵՎԱՆ", kArmenianLower), "երեվան");
}

TEST(ArmCaseConv, EveryLetterHasItsPair) {
    EXPECT_EQ(cased("աբգդեզէըթժիլխծկհձղճմյնշոչպջռսվտրցւփքօֆ", kArmenianUpper),
              "ԱԲԳԴԵԶԷԸԹԺԻԼԽԾԿՀՁՂՃՄՅՆՇՈՉՊՋՌՍՎՏՐՑՒՓՔՕՖ");
    EXPECT_EQ(cased("ԱԲԳԴԵԶԷԸԹԺԻԼԽԾԿՀՁՂՃՄՅՆՇՈՉՊՋՌՍՎՏՐՑՒՓՔՕՖ", kArmenianLower),
              "աբգդեզէըթժիլխծկհձղճմյնշոչպջռսվտրցւփքօֆ");
}

TEST(ArmCaseConv, LatinLettersAndSignsAreLeftAlone) {
    EXPECT_EQ(cased("abc ABC Բա՞ «x»", kArmenianUpper), "abc ABC ԲԱ՞ «x»");
    EXPECT_EQ(cased("abc ABC Բա", kArmenianLower), "abc ABC բա");
}

TEST(EngCaseConv, LatinLettersOnlyAndArmenianUntouched) {
    EXPECT_EQ(cased("Hello, Բարև!", kEnglishUpper), "HELLO, Բարև!");
    EXPECT_EQ(cased("HELLO, ԲԱՐԵՎ!", kEnglishLower), "hello, ԲԱՐԵՎ!");
}

TEST(CaseChange, CharactersOutsideTheFontKeepTheirCase) {
    for (int mode : {kArmenianUpper, kArmenianLower, kEnglishUpper, kEnglishLower})
        EXPECT_EQ(cased("жЖ é 😀", mode), "жЖ é 😀") << "mode " << mode;
}

TEST(CaseChange, EmptyTextStaysEmpty) {
    for (int mode : {kArmenianUpper, kArmenianLower, kEnglishUpper, kEnglishLower})
        EXPECT_EQ(changeCase("", mode), "");
}

TEST(CaseChange, BytesThatAreNoLetterPassUnchanged) {
    const FontText odd{static_cast<char>(0x80), static_cast<char>(0xA9), static_cast<char>(0xB1),
                       static_cast<char>(0xFE), static_cast<char>(0xFF)};
    for (int mode : {kArmenianUpper, kArmenianLower, kEnglishUpper, kEnglishLower})
        EXPECT_EQ(changeCase(odd, mode), odd) << "mode " << mode;
}
