// The command line as a new user meets it: what it says about a word it doesn't know, how it
// reads a dictionary key, and what --ask does without a terminal.
#include <gtest/gtest.h>

#include "dictionary_tools/lexicon_compiler.h"
#include "support/run_cli.h"
#include "support/temp_folder.h"

using vorlexa::test::runCli;
using vorlexa::test::shellQuote;

namespace {

class CliMessages : public ::testing::Test {
protected:
    void SetUp() override {
        dir.write("src/lexicon/en-hy.tsv", "house\tտուն\tn\nbig\tմեծ\ta\n");
        dir.write("src/lexicon/hy-en.tsv", "մեծ\tbig\ta\nև\tand\tc\n");
        ASSERT_TRUE(vorlexa::buildDataFolder(dir / "src", dir / "data").ok());
    }
    vorlexa::test::CliResult run(const std::string& args, const std::string& input = "",
                                 const std::string& launcher = "") {
        return runCli("--data-dir " + shellQuote((dir / "data").string()) + " " + args, input, dir.path(), launcher);
    }
    vorlexa::test::TempFolder dir;
};

TEST_F(CliMessages, AnUnknownCommandNamesItselfAndShowsTheUsage) {
    const auto r = run("frobnicate");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.out.empty());
    EXPECT_NE(r.err.find("unknown command 'frobnicate'"), std::string::npos) << r.err;
    EXPECT_EQ(r.err.find("A subcommand is required"), std::string::npos) << r.err;
    // The usage lists the commands.
    EXPECT_NE(r.err.find("Usage"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("translate"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("coverage"), std::string::npos) << r.err;
}

TEST_F(CliMessages, AnUnknownOptionNamesItselfAndShowsTheUsage) {
    const auto r = run("--bogus");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.err.find("unknown option '--bogus'"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("Usage"), std::string::npos) << r.err;
}

TEST_F(CliMessages, AnUnknownOptionOfACommandShowsThatCommandsUsage) {
    const auto r = run("translate --bogus", "big house");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.out.empty());
    EXPECT_NE(r.err.find("unknown option '--bogus'"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("--list-unknown"), std::string::npos) << r.err;
}

TEST_F(CliMessages, AnUnknownSubcommandOfDictNamesItself) {
    const auto r = run("dict frobnicate");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.err.find("unknown command 'frobnicate'"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("lookup"), std::string::npos) << r.err;
}

TEST_F(CliMessages, AMissingArgumentIsSaidWithTheUsage) {
    const auto r = run("dict lookup");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.err.find("WORD"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("Usage"), std::string::npos) << r.err;
}

TEST_F(CliMessages, DictLookupFoldsCapitalsAsTheTranslatorReadsTheWord) {
    const auto english = run("dict lookup House");
    ASSERT_EQ(english.exitCode, 0) << english.err;
    EXPECT_EQ(english.out.rfind("house\tտուն\tn\t", 0), 0u) << english.out;

    const auto armenian = run("dict lookup Մեծ");
    ASSERT_EQ(armenian.exitCode, 0) << armenian.err;
    EXPECT_EQ(armenian.out.rfind("մեծ\tbig\ta\t", 0), 0u) << armenian.out;

    // "եւ" is read as the ligature.
    const auto ligature = run("dict lookup " + shellQuote("Եւ"));
    ASSERT_EQ(ligature.exitCode, 0) << ligature.err;
    EXPECT_EQ(ligature.out.rfind("և\tand\tc\t", 0), 0u) << ligature.out;

    const auto missing = run("dict lookup Houses");
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_NE(missing.err.find("\"Houses\" not found"), std::string::npos) << missing.err;
}

TEST_F(CliMessages, AskWithoutATerminalSaysItCannotAskAndStillTranslates) {
    // setsid leaves the tool without a controlling terminal, as under cron or a pipeline job.
    const auto r = run("translate --ask", "big zorbl house", "setsid -w");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_NE(r.err.find("--ask: no terminal to ask on"), std::string::npos) << r.err;
    EXPECT_NE(r.out.find("zorbl"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("տուն"), std::string::npos) << r.out;
}

}  // namespace
