// vorlexa-cli spell and spell -a over a lexicon of the test's own; the expected lines are worked
// out from the letter tables and the lexicon.
#include <gtest/gtest.h>

#include "support/cli_data_test.h"

using vorlexa::test::shellQuote;

namespace {

class SpellCli : public vorlexa::test::CliDataTest {
  protected:
    void SetUp() override {
        buildData("house\tտուն\tn\nbig\tմեծ\ta\n",
                  "մեծ\tbig\ta\nգիրք\tbook\tn\nգետ\triver\tn\nգյուղ\tvillage\tn\nև\tand\tc\nբարի\tg"
                  "ood\ta\n");
    }
};

TEST_F(SpellCli, ThreeMisspellingsOfThreePassesAreQuestionedWithTheirRightSpelling) {
    // "ք" for "գ" (the main table), "ջ" for "գ" (the third choice), "ույ" for "յու" (the glide).
    const auto r = run("spell", "Մեծ քիրք\nև ջետ, գույղ:\n");
    EXPECT_EQ(r.exitCode, 1) << r.err;
    EXPECT_EQ(r.out,
              "standard input:1:5: քիրք: գիրք\n"
              "standard input:2:3: ջետ: գետ\n"
              "standard input:2:8: գույղ: գյուղ\n");
}

TEST_F(SpellCli, TextOfKnownWordsSaysNothingAndExitsZero) {
    const auto r = run("spell", "Մեծ գիրք և մեծ գետ:");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "");
}

TEST_F(SpellCli, EmptyTextIsCorrect) {
    const auto r = run("spell", "");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "");
}

TEST_F(SpellCli, FileNamesAndDoubleBlanksKeepTheColumns) {
    dir.write("text.txt", "մեծ  քիրք\n");
    const auto r = run("spell " + shellQuote((dir / "text.txt").string()));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.out, (dir / "text.txt").string() + ":1:6: քիրք: գիրք\n");
}

TEST_F(SpellCli, OtherScriptsAreQuestionedWithoutSuggestions) {
    const auto r = run("spell", "մեծ Привет\n");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.out, "standard input:1:5: Привет: (no suggestions)\n");
}

TEST_F(SpellCli, RunTooLongToBeAWordIsReportedWhole) {
    std::string run200;
    for (int i = 0; i < 200; ++i) run200 += "ք";
    const auto r = run("spell", "մեծ " + run200 + " գիրք\n");
    EXPECT_EQ(r.exitCode, 1);
    std::string first64;
    for (int i = 0; i < 64; ++i) first64 += "ք";
    EXPECT_EQ(r.out, "standard input:1:5: " + first64 + "... (200 letters): (no suggestions)\n");
}

TEST_F(SpellCli, MissingFileAndBadBytesAreErrors) {
    const auto missing = run("spell " + shellQuote((dir / "nothing.txt").string()));
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_NE(missing.err.find("cannot read the file"), std::string::npos);
    const auto bad = run("spell", "\xff\xfe");
    EXPECT_EQ(bad.exitCode, 2);
    EXPECT_NE(bad.err.find("not UTF-8"), std::string::npos);
}

TEST_F(SpellCli, DamagedListOfTheRunAndMissingDialectPairsDoNoHarm) {
    dir.write("data/zhamanakavor", "\x01\x02garbage");
    std::filesystem::remove(dir / "data" / "uxxumy");
    const auto r = run("spell", "մեծ քիրք ա\n");
    EXPECT_EQ(r.exitCode, 1) << r.err;
    EXPECT_EQ(r.out.find("standard input:1:5: քիրք: գիրք\n"), 0u) << r.out;
}

TEST_F(SpellCli, PipeModeAnswersAnEditorsLines) {
    const std::string input =
        "մեծ քիրք\n"
        "^գիրք ջետ\n"
        "\n"
        "!\n"
        "մեծ բաի\n"
        "%\n"
        "*քիրք\n"
        "քիրք\n";
    const auto r = run("spell -a", input);
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(
        r.out,
        "@(#) International Ispell Version 3.1.20 (but really vorlexa-cli " VORLEXA_TEST_VERSION
        ")\n"
        "*\n"
        "& քիրք 1 4: գիրք\n"
        "\n"
        "*\n"
        "& ջետ 1 6: գետ\n"
        "\n"
        "\n"
        "& բաի 1 4: բարի\n"
        "\n"
        "*\n"
        "\n");
}

TEST_F(SpellCli, PipeModeWithoutSuggestionsAndWithTheEditorsOptions) {
    const auto r = run("spell -a -m -B --encoding=utf-8", "Привет\n");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_NE(r.out.find("\n# Привет 0\n\n"), std::string::npos) << r.out;
    const auto v = run("spell -vv");
    EXPECT_EQ(v.out.find("@(#) International Ispell Version 3.1.20"), 0u);
}

}  // namespace
