#include <gtest/gtest.h>

#include "support/run_cli.h"
#include "support/temp_folder.h"

using vorlexa::test::runCli;
using vorlexa::test::shellQuote;

namespace {
class DictCli : public ::testing::Test {
protected:
    std::string data() const { return "--data-dir " + shellQuote((dir / "data").string()) + " "; }
    vorlexa::test::CliResult run(const std::string& args, const std::string& input = "") {
        return runCli(data() + args, input, dir.path());
    }
    void buildSmallLexicon() {
        dir.write("src/lexicon/en-hy.tsv", "house\tտուն\tn\nbig\tմեծ\ta\n");
        dir.write("src/lexicon/hy-en.tsv", "տուն\thouse\tn\n");
        const auto r = run("dict build " + shellQuote((dir / "src").string()));
        ASSERT_EQ(r.exitCode, 0) << r.err;
    }
    vorlexa::test::TempFolder dir;
};
}  // namespace

TEST_F(DictCli, ColumnsOfEnglishAndArmenianWords) {
    const std::pair<const char*, const char*> cases[] = {
        {"aa", "1"}, {"ab", "2"}, {"zz", "676"}, {"a", "674"}, {"Abc", "674"},
        {"ու", "534"}, {"ա", "535"}};
    for (const auto& [word, column] : cases) {
        const auto r = run(std::string("dict column ") + shellQuote(word));
        EXPECT_EQ(r.exitCode, 0) << word;
        EXPECT_EQ(r.out, std::string(column) + "\n") << word;
    }
    EXPECT_EQ(run("dict column բբ").out, run("dict column բև").out);
    EXPECT_EQ(run("dict column պա").out, run("dict column ժա").out);
    EXPECT_EQ(run("dict column աց").out, run("dict column աձ").out);
}

TEST_F(DictCli, BuildLookupAddAndLookupOfTheReverseWord) {
    buildSmallLexicon();
    auto r = run("dict lookup house");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "house\tտուն\tn\t" + std::to_string(26 * 7 + 15) + "\n");

    r = run("dict lookup window");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("not found"), std::string::npos);

    r = run("dict add window պատուհան n");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_NE(r.out.find("reverse entry"), std::string::npos);
    r = run("dict lookup պատուհան");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out.substr(0, r.out.rfind('\t')), "պատուհան\twindow\tn");
}

TEST_F(DictCli, DumpListsWordRecordsWithTheirNumbers) {
    buildSmallLexicon();
    const auto r = run("dict dump e-a");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_NE(r.out.find("\thouse\tտուն\tn\n"), std::string::npos);
    EXPECT_EQ(r.out.find("null"), std::string::npos);
    EXPECT_NE(run("dict dump --all a-e").out.find("null"), std::string::npos);
    EXPECT_EQ(run("dict dump sideways").exitCode, 2);
}

TEST_F(DictCli, CheckPassesOnABuiltFolderAndFailsOnABrokenOne) {
    buildSmallLexicon();
    EXPECT_EQ(run("dict check").exitCode, 0);
    dir.write("data/dictionarye-a", std::string(46, ' '));
    const auto r = run("dict check");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("not a whole number"), std::string::npos);
}

TEST_F(DictCli, BadLexiconLineGivesFileLineAndExitOne) {
    dir.write("src/lexicon/en-hy.tsv", "house\tտուն\tn\nBad\tվատ\ta\n");
    dir.write("src/lexicon/hy-en.tsv", "");
    const auto r = run("dict build " + shellQuote((dir / "src").string()));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("en-hy.tsv:2: "), std::string::npos) << r.err;
}

TEST_F(DictCli, AddRejectsABadTag) {
    buildSmallLexicon();
    const auto r = run("dict add dog շուն q");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("no part of speech"), std::string::npos);
}

TEST_F(DictCli, UsageErrorsExitTwoHelpAndVersionExitZero) {
    EXPECT_EQ(run("").exitCode, 2);
    EXPECT_EQ(run("frobnicate").exitCode, 2);
    EXPECT_EQ(run("dict lookup").exitCode, 2);
    auto r = run("--help");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_NE(r.out.find("dict"), std::string::npos);
    r = run("--version");
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_NE(r.out.find("vorlexa-cli"), std::string::npos);
}

TEST_F(DictCli, FreshDataFolderIsSeededFromTheShippedData) {
    const auto r = run("dict lookup house");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_TRUE(std::filesystem::exists(dir / "data/dictionarye-a"));
}
