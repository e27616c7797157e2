// vorlexa-cli translit, case and convert, run as a user runs them: output and exit codes.
#include <gtest/gtest.h>

#include "support/run_cli.h"
#include "support/temp_folder.h"

using vorlexa::test::shellQuote;

namespace {

// Each test feeds the tool through files of its own, so that tests run side by side don't
// share them.
class CliText : public ::testing::Test {
protected:
    vorlexa::test::CliResult runCli(const std::string& args, const std::string& input = "") {
        return vorlexa::test::runCli(args, input, scratch_.path());
    }
    vorlexa::test::TempFolder scratch_;
};

}  // namespace

TEST_F(CliText, TranslitArmenianToLatinFromStandardInput) {
    const auto r = runCli("translit --arm-lat", "Բարև Երևան");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "Barev Erevan");
}

TEST_F(CliText, TranslitLatinLetteredArmenianBack) {
    const auto r = runCli("translit --lat-arm", "barev");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "բարև");
}

TEST_F(CliText, TranslitEnglishByItsSoundKeepsLineEnds) {
    const auto r = runCli("translit --eng-arm", "cat\nthe end\n");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "քաթ\nդ ենդ\n");
}

TEST_F(CliText, TranslitFilesAreReadInTurn) {
    vorlexa::test::TempFolder dir;
    dir.write("a.txt", "Այո ");
    dir.write("b.txt", "ոչ");
    const auto r = runCli("translit --arm-lat " + shellQuote((dir / "a.txt").string()) + " " +
                          shellQuote((dir / "b.txt").string()));
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "Ayo och");
}

TEST_F(CliText, TranslitEmptyInputGivesEmptyOutput) {
    const auto r = runCli("translit --arm-lat", "");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.out, "");
}

TEST_F(CliText, TranslitTextWithoutArmenianPassesExceptTheSigns) {
    const auto r = runCli("translit --arm-lat", "Hello. 42 Жук");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.out, "Hello: 42 Жук");
}

TEST_F(CliText, TranslitInvalidUtf8IsAnErrorWithItsOffset) {
    const auto r = runCli("translit --arm-lat", "ab\xC3(");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.out, "");
    EXPECT_NE(r.err.find("offset 2"), std::string::npos) << r.err;
}

TEST_F(CliText, TranslitMissingFileIsAFailure) {
    const auto r = runCli("translit --arm-lat /nonexistent/vorlexa-text.txt");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("cannot read"), std::string::npos) << r.err;
}

TEST_F(CliText, TranslitNoModeOrTwoModesIsAUsageError) {
    EXPECT_EQ(runCli("translit", "x").exitCode, 2);
    EXPECT_EQ(runCli("translit --arm-lat --lat-arm", "x").exitCode, 2);
}

TEST_F(CliText, CaseArmenianUpperWritesTheLigatureAsTwoCapitals) {
    const auto r = runCli("case --arm-upper", "Երևան, hello");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "ԵՐԵՎԱՆ, hello");
}

TEST_F(CliText, CaseEachModeTouchesItsOwnAlphabet) {
    EXPECT_EQ(runCli("case --arm-lower", "ԵՐԵՎԱՆ ABC").out, "երեվան ABC");
    EXPECT_EQ(runCli("case --eng-upper", "Երևան abc").out, "Երևան ABC");
    EXPECT_EQ(runCli("case --eng-lower", "ԵՐ ABC Ж").out, "ԵՐ abc Ж");
}

TEST_F(CliText, CaseNoModeIsAUsageError) {
    EXPECT_EQ(runCli("case", "x").exitCode, 2);
}

TEST_F(CliText, ConvertToFontWritesOneBytePerLetter) {
    const auto r = runCli("convert --to-font", "Բարև: ok\r\n");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, std::string("\xB4\xB3\xF1\xA8: ok\r\n"));
}

TEST_F(CliText, ConvertToUnicodeReadsFontBytes) {
    const auto r = runCli("convert --to-unicode", std::string("\xB2\xB1 \xA7x\xA6\n"));
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "Ա՞ «x»\n");
}

TEST_F(CliText, ConvertCharactersOutsideTheFontComeBackUnchanged) {
    const auto font = runCli("convert --to-font", "Жук ա 😀");
    EXPECT_EQ(font.exitCode, 0);
    EXPECT_NE(font.err.find("escapes"), std::string::npos) << font.err;
    const auto back = runCli("convert --to-unicode", font.out);
    EXPECT_EQ(back.exitCode, 0) << back.err;
    EXPECT_EQ(back.out, "Жук ա 😀");
}

TEST_F(CliText, ConvertByteThatStandsForNothingIsAnError) {
    const auto r = runCli("convert --to-unicode", std::string("ok\x80"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("byte 128 at offset 2"), std::string::npos) << r.err;
}

TEST_F(CliText, ConvertInvalidUtf8ToFontIsAnError) {
    const auto r = runCli("convert --to-font", std::string("\xFF"));
    EXPECT_EQ(r.exitCode, 1);
}

TEST_F(CliText, ConvertBothDirectionsAtOnceIsAUsageError) {
    EXPECT_EQ(runCli("convert --to-font --to-unicode", "x").exitCode, 2);
}
