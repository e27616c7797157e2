// vorlexa-cli translit, case and convert, run as a user runs them: output and exit codes.
#include <gtest/gtest.h>

#include "support/run_cli.h"
#include "support/temp_folder.h"

using vorlexa::test::runCli;
using vorlexa::test::shellQuote;

TEST(CliTranslit, ArmenianToLatinFromStandardInput) {
    const auto r = runCli("translit --arm-lat", "Բարև Երևան");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "Barev Erevan");
}

TEST(CliTranslit, LatinLetteredArmenianBack) {
    const auto r = runCli("translit --lat-arm", "barev");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "բարև");
}

TEST(CliTranslit, EnglishByItsSoundKeepsLineEnds) {
    const auto r = runCli("translit --eng-arm", "cat\nthe end\n");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "քաթ\nդ ենդ\n");
}

TEST(CliTranslit, FilesAreReadInTurn) {
    vorlexa::test::TempFolder dir;
    dir.write("a.txt", "Այո ");
    dir.write("b.txt", "ոչ");
    const auto r = runCli("translit --arm-lat " + shellQuote((dir / "a.txt").string()) + " " +
                          shellQuote((dir / "b.txt").string()));
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "Ayo och");
}

TEST(CliTranslit, EmptyInputGivesEmptyOutput) {
    const auto r = runCli("translit --arm-lat", "");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.out, "");
}

TEST(CliTranslit, TextWithoutArmenianPassesExceptTheSigns) {
    const auto r = runCli("translit --arm-lat", "Hello. 42 Жук");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.out, "Hello: 42 Жук");
}

TEST(CliTranslit, InvalidUtf8IsAnErrorWithItsOffset) {
    const auto r = runCli("translit --arm-lat", "ab\xC3(");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.out, "");
    EXPECT_NE(r.err.find("offset 2"), std::string::npos) << r.err;
}

TEST(CliTranslit, MissingFileIsAFailure) {
    const auto r = runCli("translit --arm-lat /nonexistent/vorlexa-text.txt");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("cannot read"), std::string::npos) << r.err;
}

TEST(CliTranslit, NoModeOrTwoModesIsAUsageError) {
    EXPECT_EQ(runCli("translit", "x").exitCode, 2);
    EXPECT_EQ(runCli("translit --arm-lat --lat-arm", "x").exitCode, 2);
}

TEST(CliCase, ArmenianUpperWritesTheLigatureAsTwoCapitals) {
    const auto r = runCli("case --arm-upper", "Երևան, hello");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "ԵՐԵՎԱՆ, hello");
}

TEST(CliCase, EachModeTouchesItsOwnAlphabet) {
    EXPECT_EQ(runCli("case --arm-lower", "ԵՐԵՎԱՆ ABC").out, "երեվան ABC");
    EXPECT_EQ(runCli("case --eng-upper", "Երևան abc").out, "Երևան ABC");
    EXPECT_EQ(runCli("case --eng-lower", "ԵՐ ABC Ж").out, "ԵՐ abc Ж");
}

TEST(CliCase, NoModeIsAUsageError) {
    EXPECT_EQ(runCli("case", "x").exitCode, 2);
}

TEST(CliConvert, ToFontWritesOneBytePerLetter) {
    const auto r = runCli("convert --to-font", "Բարև: ok\r\n");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, std::string("\xB4\xB3\xF1\xA8: ok\r\n"));
}

TEST(CliConvert, ToUnicodeReadsFontBytes) {
    const auto r = runCli("convert --to-unicode", std::string("\xB2\xB1 \xA7x\xA6\n"));
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "Ա՞ «x»\n");
}

TEST(CliConvert, CharactersOutsideTheFontComeBackUnchanged) {
    const auto font = runCli("convert --to-font", "Жук ա 😀");
    EXPECT_EQ(font.exitCode, 0);
    EXPECT_NE(font.err.find("escapes"), std::string::npos) << font.err;
    const auto back = runCli("convert --to-unicode", font.out);
    EXPECT_EQ(back.exitCode, 0) << back.err;
    EXPECT_EQ(back.out, "Жук ա 😀");
}

TEST(CliConvert, ByteThatStandsForNothingIsAnError) {
    const auto r = runCli("convert --to-unicode", std::string("ok\x80"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("byte 128 at offset 2"), std::string::npos) << r.err;
}

TEST(CliConvert, InvalidUtf8ToFontIsAnError) {
    const auto r = runCli("convert --to-font", std::string("\xFF"));
    EXPECT_EQ(r.exitCode, 1);
}

TEST(CliConvert, BothDirectionsAtOnceIsAUsageError) {
    EXPECT_EQ(runCli("convert --to-font --to-unicode", "x").exitCode, 2);
}
