#include "text/converters.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/temp_folder.h"

using namespace vorlexa;

namespace {
Utf16Export noWait(const test::TempFolder& dir, bool aas = false) {
    Utf16Export options;
    options.aas = aas;
    options.encPath = dir / "enc";
    options.sleep = [](std::chrono::milliseconds) {};
    return options;
}
}  // namespace

TEST(UnicodeAnsciConverter, LettersBecomeFontCodes) {
    std::u16string text = u"Աա Ֆֆ";
    UnicodeAnsciConverter(text);
    EXPECT_EQ(text, (std::u16string{178, 179, u' ', 252, 253}));
}

TEST(UnicodeAnsciConverter, LigatureAndU0588BothGiveTheLigatureCode) {
    std::u16string text = u"\u0587\u0588";
    UnicodeAnsciConverter(text);
    EXPECT_EQ(text, (std::u16string{168, 168}));
}

TEST(UnicodeAnsciConverter, FullStopBecomesColonAndNeverReturns) {
    std::u16string text = u"\u0589";
    UnicodeAnsciConverter(text);
    EXPECT_EQ(text, u":");
    AnsciUnicodeConverter(text);
    EXPECT_EQ(text, u":");
}

TEST(UnicodeAnsciConverter, SignsBetweenTheCapitalsAndSmallLettersStayAsTheyAre) {
    std::u16string text = u"\u055E\u0558\u0560\u00AB\u00BB";
    UnicodeAnsciConverter(text);
    EXPECT_EQ(text, u"\u055E\u0558\u0560\u00AB\u00BB");
}

TEST(AnsciUnicodeConverter, CodesBecomeLettersQuestionSignAndLigature) {
    std::u16string text{178, 179, 252, 253, 177, 168};
    AnsciUnicodeConverter(text);
    EXPECT_EQ(text, u"ԱաՖֆ\u055E\u0587");
}

TEST(AnsciUnicodeConverter, PunctuationCodesAreLeftAlone) {
    std::u16string text{0xA6, 0xA7, 0xAA, 0xAF, 0xB0};
    AnsciUnicodeConverter(text);
    EXPECT_EQ(text, (std::u16string{0xA6, 0xA7, 0xAA, 0xAF, 0xB0}));
}

TEST(AnsciUnicodeConverter, TextWithoutHighCodesIsUnchanged) {
    std::u16string text = u"plain text: 123";
    AnsciUnicodeConverter(text);
    EXPECT_EQ(text, u"plain text: 123");
}

TEST(Bdali, FirstLettersMapToUnicodeLowBytes) {
    EXPECT_EQ(bdali(179), 97);  // ա U+0561
    EXPECT_EQ(bdali(178), 49);  // Ա U+0531
    EXPECT_EQ(bdali(253), 0x86);
    EXPECT_EQ(bdali(252), 0x56);
}

TEST(ResultANSCIToUnicode, EmptyTextGivesOnlyTheByteOrderMark) {
    test::TempFolder dir;
    std::ostringstream file9;
    std::string body;
    EXPECT_TRUE(ResultANSCIToUnicode("", file9, body, noWait(dir)));
    EXPECT_EQ(file9.str(), "\xFF\xFE");
    EXPECT_FALSE(std::filesystem::exists(dir / "enc"));
}

TEST(ResultANSCIToUnicode, OpeningGuillemetIsWrittenAsLigature) {
    test::TempFolder dir;
    std::ostringstream file9;
    std::string body;
    ResultANSCIToUnicode(std::string{static_cast<char>(167), static_cast<char>(166)}, file9, body,
                         noWait(dir));
    EXPECT_EQ(file9.str(), std::string("\xFF\xFE\x87\x05\xA6\x00", 6));
}

TEST(ResultANSCIToUnicode, LettersLineBreaksAndQuestionSign) {
    test::TempFolder dir;
    std::ostringstream file9;
    std::string body;
    const std::string text{static_cast<char>(178), static_cast<char>(179), '\r', '\n',
                           static_cast<char>(177)};
    ResultANSCIToUnicode(text, file9, body, noWait(dir));
    EXPECT_EQ(file9.str(), std::string("\xFF\xFE\x31\x05\x61\x05\x0D\x00\x0A\x00\x5E\x05", 12));
}

TEST(ResultANSCIToUnicode, AppendModeLeavesTheBodyForTheCaller) {
    test::TempFolder dir;
    std::ostringstream file9;
    std::string body;
    ResultANSCIToUnicode("A", file9, body, noWait(dir, true));
    EXPECT_EQ(file9.str(), "");
    EXPECT_EQ(body, std::string("\xFF\xFE" "A\x00", 4));
}

TEST(ResultANSCIToUnicode, RouteThroughEncWaitsTheSettleTimeBetweenWritingAndReading) {
    test::TempFolder dir;
    std::ostringstream file9;
    std::string body;
    auto options = noWait(dir);
    options.throughEncFile = true;
    std::chrono::milliseconds waited{0};
    options.sleep = [&](std::chrono::milliseconds ms) { waited = ms; };
    ResultANSCIToUnicode("x", file9, body, options);
    EXPECT_EQ(waited, std::chrono::milliseconds(5000));
}
