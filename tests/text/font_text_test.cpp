#include "text/font_text.h"

#include <gtest/gtest.h>

#include <random>

#include "support/byte_string.h"

using namespace vorlexa;
using namespace vorlexa::literals;
using vorlexa::test::bytes;

TEST(FontCodes, CapitalsAreEvenAndSmallLettersTheNextOddCode) {
    EXPECT_EQ("Ա"_ft, bytes({0xB2}));
    EXPECT_EQ("ա"_ft, bytes({0xB3}));
    EXPECT_EQ("Ֆ"_ft, bytes({0xFC}));
    EXPECT_EQ("ֆ"_ft, bytes({0xFD}));
    EXPECT_EQ("Ո"_ft, bytes({0xE0}));
    for (int n = 0; n < font::kLetterCount; ++n) {
        EXPECT_EQ(font::codeOf(0x0531 + n), 178 + 2 * n);
        EXPECT_EQ(font::codeOf(0x0561 + n), 179 + 2 * n);
    }
}

TEST(FontCodes, LigatureAndSignsHaveTheirOwnCodes) {
    EXPECT_EQ("և"_ft, bytes({0xA8}));
    EXPECT_EQ("՞"_ft, bytes({0xB1}));
    EXPECT_EQ("՛"_ft, bytes({0xB0}));
    EXPECT_EQ("՜"_ft, bytes({0xAF}));
    EXPECT_EQ("՝"_ft, bytes({0xAA}));
    EXPECT_EQ("«"_ft, bytes({0xA7}));
    EXPECT_EQ("»"_ft, bytes({0xA6}));
}

TEST(FontCodes, LiteralKeepsAsciiAndSpelledWords) {
    EXPECT_EQ("ի մեջ"_ft, bytes({0xC7, ' ', 0xD9, 0xBB, 0xE7}));
    EXPECT_EQ("get "_ft, "get ");
    EXPECT_EQ("Տունը մեծ է:"_ft.size(), 12u);
}

TEST(FontCodes, TypographicDelimitersKeepSingleCodes) {
    for (const char* sign : {"‘", "’", "“", "”", "–", "…", "—"}) {
        const std::string font = fromUtf8(sign);
        ASSERT_EQ(font.size(), 1u) << sign;
        EXPECT_EQ(toUtf8(font), sign);
    }
}

TEST(FontCodes, ArmenianFullStopBecomesColonAndStaysColon) {
    EXPECT_EQ(fromUtf8("Բարև։"), "Բարև:"_ft);
    EXPECT_EQ(toUtf8("Բարև:"_ft), "Բարև:");
}

TEST(Utf8Edge, ArmenianAndEnglishRoundTrip) {
    const std::string text = "The house is big. Տունը մեծ է: «Ողջո՞ւյն», և վերջ՝ ՛՜\r\n\ttab";
    EXPECT_EQ(toUtf8(fromUtf8(text)), text);
}

TEST(Utf8Edge, CharactersWithoutCodesComeBackUnchanged) {
    const std::string text = "Привет, мир! 日本語 café naïve Ünïcødé 😀 𝄞 \u00a0€ Ա – end";
    const std::string font = fromUtf8(text);
    EXPECT_EQ(toUtf8(font), text);
    // No escape byte is read as an Armenian letter, a capital or an ASCII delimiter.
    for (const char ch : fromUtf8("Привет😀")) {
        const auto c = static_cast<unsigned char>(ch);
        EXPECT_FALSE(font::isArmenianLetter(c));
        EXPECT_GE(c, 0x80);
    }
}

TEST(Utf8Edge, EscapeOfOneCharacterIsSevenBytes) {
    EXPECT_EQ(fromUtf8("ж").size(), 1u + font::kEscapeDigits);
    EXPECT_EQ(fromUtf8("😀").size(), 1u + font::kEscapeDigits);
}

TEST(Utf8Edge, InvalidBytesAreReplacedAndReported) {
    Utf8Report report;
    const std::string font = fromUtf8(std::string("ab\xFF\xC3(cd\xE2\x82", 9), &report);
    EXPECT_EQ(report.invalidSequences, 4u);
    EXPECT_EQ(report.firstInvalidOffset, 2u);
    EXPECT_EQ(toUtf8(font), "ab\uFFFD\uFFFD(cd\uFFFD\uFFFD");
}

TEST(Utf8Edge, OverlongAndSurrogateSequencesAreInvalid) {
    Utf8Report report;
    fromUtf8(std::string("\xC0\xAF\xED\xA0\x80", 5), &report);
    EXPECT_EQ(report.invalidSequences, 5u);
}

TEST(Utf8Edge, BrokenEscapeInFontTextGivesReplacementNotCrash) {
    std::string font = fromUtf8("ж");
    font.pop_back();
    EXPECT_EQ(toUtf8(font).substr(0, 3), "\uFFFD");
    EXPECT_EQ(toUtf8(std::string(1, static_cast<char>(font::kEscape))), "\uFFFD");
}

TEST(Utf8Edge, RandomBytesNeverCrashAndRoundTripOnceDecoded) {
    std::mt19937 rng(12345);
    for (int round = 0; round < 500; ++round) {
        std::string junk(static_cast<std::size_t>(rng() % 64), '\0');
        for (char& c : junk) c = static_cast<char>(rng() & 0xFF);
        const std::string once = toUtf8(fromUtf8(junk));
        // Whatever the junk was, its decoded form is valid UTF-8 and survives unchanged.
        Utf8Report report;
        EXPECT_EQ(toUtf8(fromUtf8(once, &report)), once);
        EXPECT_EQ(report.invalidSequences, 0u);
        // Random font text also converts to UTF-8 without failing.
        EXPECT_NO_THROW(toUtf8(junk));
    }
}

TEST(FontCase, FoldingTurnsCapitalsIntoSmallLetters) {
    EXPECT_EQ(foldArmenianCase("ՏՈՒՆ Abc"_ft), "տուն Abc"_ft);
    EXPECT_EQ(foldArmenianCase("և"_ft), "և"_ft);
}

TEST(EscapeAt, ReadsTheCharacterOfAWholeEscapeOnly) {
    const FontText text = fromUtf8("aЖ");
    EXPECT_EQ(escapeAt(text, 1), std::optional<char32_t>(U'Ж'));
    EXPECT_EQ(escapeAt(text, 0), std::nullopt);               // no escape starts at a letter
    EXPECT_EQ(escapeAt(text.substr(0, 4), 1), std::nullopt);  // cut short
    EXPECT_EQ(escapeAt(text, text.size()), std::nullopt);     // past the end
}
