#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <cstdio>

#include "dictionary_tools/lexicon_compiler.h"
#include "support/cli_data_test.h"
#include "support/run_cli.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

using vorlexa::test::runCli;
using vorlexa::test::shellQuote;

namespace {

class TranslateCli : public vorlexa::test::CliDataTest {
protected:
    void SetUp() override {
        buildData("house\tտուն\tn\nbig\tմեծ\ta\nis\tէ\to\nred\tկարմիր\ta\n", "մեծ\tbig\ta\n");
    }
};

TEST_F(TranslateCli, RoadOfOneSentenceGivesTheGlossesInOrderAndTheFullStop) {
    const auto r = run("translate", "The house is big.");
    ASSERT_EQ(r.exitCode, 0) << r.err;
    const std::string out = vorlexa::toUtf8(vorlexa::foldArmenianCase(vorlexa::fromUtf8(r.out)));
    const auto house = out.find("տուն");
    const auto big = out.find("մեծ");
    ASSERT_NE(house, std::string::npos) << r.out;
    ASSERT_NE(big, std::string::npos) << r.out;
    EXPECT_LT(house, big);
    EXPECT_EQ(out[big - 1], ' ');
    EXPECT_TRUE(out.ends_with(":")) << r.out;
    EXPECT_TRUE(r.err.empty()) << r.err;
}

TEST_F(TranslateCli, OutputEndsAsTheInputEnds) {
    EXPECT_EQ(run("translate", "big red").out, "մեծ կարմիր");
    EXPECT_EQ(run("translate", "big red\n").out, "մեծ կարմիր\n");
    EXPECT_EQ(run("translate", "big\nred\n").out, "մեծ\nկարմիր\n");
    EXPECT_EQ(run("translate", "").out, "");
}

TEST_F(TranslateCli, FilesAreTranslatedInTurn) {
    dir.write("one.txt", "big\n");
    dir.write("two.txt", "red.\n");
    const auto r = run("translate " + shellQuote((dir / "one.txt").string()) + " " +
                       shellQuote((dir / "two.txt").string()));
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "մեծ\nկարմիր:\n");
}

TEST_F(TranslateCli, LinesAreRunsOfTheirOwn) {
    const auto r = run("translate --lines", "zorb big\nred.\n\nbig");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "zorb մեծ\nկարմիր:\n\nմեծ\n");
}

TEST_F(TranslateCli, LinesOfUnknownWordsMakeNoFileInTheDataFolder) {
    // The first run opens (and so makes) the pair list.
    ASSERT_EQ(run("translate", "big").exitCode, 0);
    // Every name made in the data folder while the tool runs is told by the kernel.
    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    ASSERT_GE(watch, 0);
    ASSERT_GE(::inotify_add_watch(watch, (dir / "data").c_str(), IN_CREATE), 0);
    const auto r = run("translate --lines", "zorb big\nqux zorb\nred qux.\n");
    alignas(inotify_event) char events[4096];
    const ssize_t got = ::read(watch, events, sizeof events);
    ::close(watch);
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "zorb մեծ\nqux zorb\nկարմիր qux:\n");
    EXPECT_EQ(got, -1) << "made in the data folder: "
                       << (got > 0 ? reinterpret_cast<inotify_event*>(events)->name : "");
}

TEST_F(TranslateCli, ListUnknownAppendsTheTermsOfTheRun) {
    const auto r = run("translate --list-unknown", "zorb big qux.");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "zorb մեծ qux: \n***\nLIST OF NON-TRANSLATED TERMS\nzorb, qux");
}

TEST_F(TranslateCli, WithoutATerminalEveryQuestionIsAnsweredNo) {
    dir.write("in.txt", "zorb big");
    const std::string cmd = "setsid -w " + std::string(VORLEXA_CLI_PATH) + " " + data() + "translate --ask <" +
                            shellQuote((dir / "in.txt").string()) + " 2>/dev/null";
    FILE* pipe = popen(cmd.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string out;
    char buf[256];
    std::size_t n = 0;
    while ((n = std::fread(buf, 1, sizeof buf, pipe)) > 0) out.append(buf, n);
    EXPECT_EQ(pclose(pipe), 0);
    EXPECT_EQ(out, "zorb մեծ");
}

TEST_F(TranslateCli, MissingFileIsAnError) {
    const auto r = run("translate " + shellQuote((dir / "absent.txt").string()));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("cannot read"), std::string::npos) << r.err;
    EXPECT_TRUE(r.out.empty());
}

TEST_F(TranslateCli, TextThatIsNotUtf8IsAnError) {
    const auto r = run("translate", "big \xff\xfe red");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find("not UTF-8"), std::string::npos) << r.err;
}

TEST_F(TranslateCli, CoverageCountsWordsAndTheUntranslated) {
    const auto r = run("coverage", "big zorb big zorb qux.");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "words: 5\nuntranslated: 2 words, 3 occurrences\nplaced: 40.0%\n");
}

TEST_F(TranslateCli, CoverageListsTheMostFrequentUntranslatedWords) {
    const auto r = run("coverage --top 1", "big zorb big zorb qux.");
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out,
              "words: 5\nuntranslated: 2 words, 3 occurrences\nplaced: 40.0%\n"
              "most frequent untranslated words:\n2\tzorb\n");
}

TEST_F(TranslateCli, CoverageOfAFullyKnownText) {
    const auto r = run("coverage", "big red house");
    EXPECT_EQ(r.out, "words: 3\nuntranslated: 0 words, 0 occurrences\nplaced: 100.0%\n");
}

}  // namespace
