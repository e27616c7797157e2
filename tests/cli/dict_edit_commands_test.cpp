#include <gtest/gtest.h>

#include "support/run_cli.h"
#include "support/temp_folder.h"

using vorlexa::test::runCli;
using vorlexa::test::shellQuote;

namespace {

constexpr int kHoColumn = 26 * 7 + 15;
constexpr int kStride = 676;

class DictEditCli : public ::testing::Test {
  protected:
    void SetUp() override {
        dir.write("src/lexicon/en-hy.tsv",
                  "house\tտուն\tn\nhotel\tհյուրանոց\tn\nbig\tմեծ\ta\nlarge\tմեծ\ta\nbank\tափ\tn\nba"
                  "nk\tբանկ\tn\n");
        dir.write("src/lexicon/hy-en.tsv", "տուն\thouse\tn\nմեծ\tbig\ta\n");
        dir.write("src/lexicon/second-senses.txt", "en-hy\tbank\n");
        const auto r = run("dict build " + shellQuote((dir / "src").string()));
        ASSERT_EQ(r.exitCode, 0) << r.err;
    }
    std::string data() const { return "--data-dir " + shellQuote((dir / "data").string()) + " "; }
    vorlexa::test::CliResult run(const std::string& args, const std::string& input = "") {
        return runCli(data() + args, input, dir.path());
    }
    std::string english() const { return dir.read("data/dictionarye-a"); }
    vorlexa::test::TempFolder dir;
};

TEST_F(DictEditCli, SearchPrintsThePositionAndTheRecord) {
    auto r = run("dict search house");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "e-a " + std::to_string(kHoColumn) + "\thouse\tտուն\tn\n");
    r = run("dict search bank --all");
    EXPECT_EQ(r.out,
              "e-a 27\tbank\tափ\tn\ne-a " + std::to_string(27 + kStride) + "\tbank\tբանկ\tn\n");
    EXPECT_EQ(run("dict search bank").out, "e-a 27\tbank\tափ\tn\n");
    r = run("dict search տուն");
    EXPECT_EQ(r.out.substr(0, 4), "a-e ");
    r = run("dict search window");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("not found"), std::string::npos);
}

TEST_F(DictEditCli, ChangeIsReadByTheNextTranslation) {
    auto r = run("dict change e-a " + std::to_string(kHoColumn) + " house շենք n");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "changed e-a " + std::to_string(kHoColumn) + "\n");
    EXPECT_EQ(run("dict search house").out,
              "e-a " + std::to_string(kHoColumn) + "\thouse\tշենք\tn\n");
    r = run("translate", "house\n");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_NE(r.out.find("շենք"), std::string::npos) << r.out;
}

TEST_F(DictEditCli, DeleteFreesTheRecordAndTheNextTranslationMissesTheWord) {
    EXPECT_EQ(run("dict delete e-a " + std::to_string(kHoColumn)).exitCode, 0);
    EXPECT_EQ(run("dict search house").exitCode, 1);
    EXPECT_EQ(run("dict search hotel").exitCode, 0);
    const auto r = run("translate", "big house\n");
    EXPECT_EQ(r.out.find("տուն"), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("house"), std::string::npos) << r.out;
}

TEST_F(DictEditCli, RecordOutOfRangeOrAColumnEndIsAnErrorAndNothingIsWritten) {
    const std::string before = english();
    auto r = run("dict change e-a 999999 house շենք n");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("outside"), std::string::npos) << r.err;
    r = run("dict delete e-a 0");
    EXPECT_EQ(r.exitCode, 1);
    r = run("dict delete e-a " + std::to_string(kHoColumn + 2 * kStride));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("ends its column"), std::string::npos) << r.err;
    EXPECT_EQ(english(), before);
}

TEST_F(DictEditCli, FieldOverItsWidthIsAnErrorAndNothingIsWritten) {
    const std::string before = english();
    const auto r = run("dict change e-a " + std::to_string(kHoColumn) + " house " +
                       "շենքշենքշենքշենքշենքշենք n");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_FALSE(r.err.empty());
    EXPECT_EQ(english(), before);
}

TEST_F(DictEditCli, BadDictionaryOrRecordNumberIsAUsageError) {
    EXPECT_EQ(run("dict delete sideways 5").exitCode, 2);
    EXPECT_EQ(run("dict delete e-a five").exitCode, 2);
    EXPECT_EQ(run("dict change e-a 5 house").exitCode, 2);
}

TEST_F(DictEditCli, ReportWritesTheSortedListInTheDataFolder) {
    const auto r = run("dict report ho");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, (dir / "data" / "tmpe.txt").string() + "\n");
    const std::string list = dir.read("data/tmpe.txt");
    EXPECT_EQ(list.substr(0, 8), "1\thotel\t");
    EXPECT_NE(list.find("\n2\thouse\t"), std::string::npos);
    EXPECT_EQ(list.substr(list.size() - 2), "2\n");
    EXPECT_EQ(run("dict report --tag a").exitCode, 0);
    const std::string adjectives = dir.read("data/tmpe.txt");
    EXPECT_EQ(adjectives.substr(0, 6), "1\tbig\t");
    EXPECT_NE(adjectives.find("\n2\tlarge\t"), std::string::npos);
}

TEST_F(DictEditCli, SynonymsOfAWordWhoseGlossTwoKeysShare) {
    auto r = run("dict synonyms Big,");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out,
              "Translation for 'big' is 'մեծ'.\n Available Synonims & homonyms: 'big', 'large'\n");
    r = run("dict synonyms window");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("No Results!!!"), std::string::npos);
}

TEST_F(DictEditCli, StatsCountWordsFreedSlotsAndEnds) {
    run("dict delete e-a " + std::to_string(kHoColumn));
    const auto r = run("dict stats");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_NE(r.out.find("dictionarye-a: 5 words, 1 freed slots, 676 column ends"),
              std::string::npos)
        << r.out;
    EXPECT_NE(r.out.find("dictionarya-e: 2 words, 0 freed slots, 535 column ends"),
              std::string::npos)
        << r.out;
}

TEST_F(DictEditCli, ExpressionAddedIsAppliedByTheNextRun) {
    auto r = run("expressions add մեծ խոշոր");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_NE(r.out.find("uxxuma"), std::string::npos);
    r = run("translate", "big\n");
    EXPECT_NE(r.out.find("խոշոր"), std::string::npos) << r.out;
}

TEST_F(DictEditCli, ExpressionTooLongOrEmptyIsAnErrorAndNothingIsWritten) {
    const std::string before = dir.read("data/uxxume");
    EXPECT_EQ(run("expressions add " + std::string(49, 'x') + " y").exitCode, 1);
    EXPECT_EQ(run("expressions add '' y").exitCode, 1);
    EXPECT_EQ(dir.read("data/uxxume"), before);
}

}  // namespace
