// Inputs that once made a run loop, grow its output without end, take time with the square of
// their length or lose text, translated with the shipped dictionaries.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "engine/engine.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

using namespace vorlexa;

namespace {

class ShippedEngine : public ::testing::Test {
protected:
    // One copy of the shipped data for the suite: the runs write their unknown words beside it.
    static void SetUpTestSuite() {
        dir = new test::TempFolder;
        std::filesystem::copy(VORLEXA_BUILT_DATA_DIR, dir->path() / "data", std::filesystem::copy_options::recursive);
    }
    static void TearDownTestSuite() {
        delete dir;
        dir = nullptr;
    }
    void SetUp() override {
        ASSERT_TRUE(store.open(dir->path() / "data"));
        engine = std::make_unique<Engine>(store, dir->path() / "data", host);
        host.setChecked(MenuItem::ITR, true);
    }
    std::string translate(const std::string& utf8) {
        engine->Text3_Change(fromUtf8(utf8));
        return toUtf8(host.result);
    }
    static std::size_t count(const std::string& s, const std::string& part) {
        std::size_t n = 0;
        for (auto at = s.find(part); at != std::string::npos; at = s.find(part, at + part.size())) ++n;
        return n;
    }

    static inline test::TempFolder* dir = nullptr;
    DictionaryStore store;
    NullHost host;
    std::unique_ptr<Engine> engine;
};

// The word after "have" is read again once as the verb "to have"; with a sign instead of a blank
// between them the step back must still stop at that sign, not at the blank before "have".
TEST_F(ShippedEngine, HaveFollowedByASignAndAWordEndsWithTheHaveGlossWrittenAtMostOnce) {
    for (const char* text : {"I have-it", "he had--not turned", " have(me", " have`sens", "They have\"it\"",
                                   "she has-it", "I have-a", " had(me", " have/me", " have1me"}) {
        SCOPED_TRACE(text);
        const std::string out = translate(text);
        EXPECT_EQ(engine->state, RunState::Idle);
        EXPECT_FALSE(engine->stopped.has_value()) << engine->stopped->reason;
        EXPECT_LE(count(out, "ուն"), 1u) << out;
        EXPECT_LT(out.size(), 200u) << out;
    }
}

// "it" is "դա"; after "have" it is read first as the past of "to have" with the person of "I",
// "ունեց" + "ա", and then again as itself. The delimiter after "have" is copied when "have" ends
// and once more when the step back lands on it: a blank doubles unseen, a dash shows twice.
TEST_F(ShippedEngine, HaveWithASignReadsTheNextWordAgainFromThatSign) {
    EXPECT_EQ(translate("I have it"), "Ես ունեցա դա ");
    EXPECT_EQ(translate("I have-it"), "Ես -ունեցա-դա ");
}

// After "had" and a run longer than any word, "can'd" looks up "can", which is no verb: the
// scanner goes back to read "can" again, and the "'d" is read again with it rather than expanded
// to a second "had" before the same word (found by fuzzing: the run stood still for ever).
TEST_F(ShippedEngine, AContractionWhoseWordBeforeIsReadAgainIsExpandedOnlyOnTheSecondReading) {
    const std::string longRun(41, 'q');
    for (const char* contraction : {"'d", "'ve"}) {
        SCOPED_TRACE(contraction);
        const std::string out = translate("We had " + longRun + " can" + contraction + " come");
        EXPECT_EQ(engine->state, RunState::Idle);
        EXPECT_FALSE(engine->stopped.has_value()) << engine->stopped->reason;
        EXPECT_EQ(out, "Մենք " + longRun + " ունեցանք կարող եկել ");
    }
    const std::string fuzzed = "'d come\uFFFD\uFFFD\uFFFD\uFFFDt can'd come, we\uFFFD'll";
    translate(fuzzed);
    EXPECT_EQ(engine->state, RunState::Idle);
    EXPECT_FALSE(engine->stopped.has_value()) << engine->stopped->reason;
}

TEST_F(ShippedEngine, ANovelWithOneHadDashDashNotIsTranslatedToItsEnd) {
    std::string text;
    for (int i = 0; i < 2000; ++i) text += "The house is big. ";
    text += "He had--not turned. ";
    for (int i = 0; i < 2000; ++i) text += "The house is big. ";
    const std::string out = translate(text);
    EXPECT_FALSE(engine->stopped.has_value());
    EXPECT_EQ(count(toUtf8(foldArmenianCase(fromUtf8(out))), "տունը մեծ է:"), 4000u);
}

// 200,000 NULs: the run goes through once, not once per character gathered.
TEST_F(ShippedEngine, TwoHundredThousandNulsComeBackWholeAfterAFewLongWordAnalyses) {
    const std::string nuls(200'000, '\0');
    const std::string out = translate(nuls);
    EXPECT_FALSE(engine->stopped.has_value());
    EXPECT_EQ(out.substr(0, nuls.size()), nuls);
    EXPECT_LE(engine->stats.longWordAnalyses, 256);
}

TEST_F(ShippedEngine, ThirtyThousandCjkCharactersComeBackWholeAfterAFewLongWordAnalyses) {
    std::string cjk;
    for (int i = 0; i < 30'000; ++i) cjk += "\xE4\xB8\xAD";  // U+4E2D
    const std::string out = translate(cjk);
    EXPECT_EQ(out.substr(0, cjk.size()), cjk);
    EXPECT_LE(engine->stats.longWordAnalyses, 256);
}

TEST_F(ShippedEngine, ALongRunKeepsItsCapitalsAsTyped) {
    std::string run;
    for (int i = 0; i < 100; ++i) run += "AbC";
    const std::string out = translate(run + " big");
    EXPECT_EQ(out.substr(0, run.size()), run);
    EXPECT_NE(toUtf8(foldArmenianCase(fromUtf8(out))).find("մեծ"), std::string::npos) << out;
}

TEST_F(ShippedEngine, AHundredThousandUnderscoresAreKept) {
    const std::string line(100'000, '_');
    const std::string out = translate(line);
    EXPECT_EQ(count(out, "_"), line.size());
}

TEST_F(ShippedEngine, ALineOfUnderscoresIsKeptWhileOneJoiningTwoWordsIsDropped) {
    const std::string out = toUtf8(foldArmenianCase(fromUtf8(translate("big ____ big_big"))));
    EXPECT_NE(out.find("մեծ ____ "), std::string::npos) << out;
    EXPECT_NE(out.find("մեծմեծ"), std::string::npos) << out;
}

// The guard with tightened limits, so that an ordinary text trips it: the run stops, keeps
// what it translated and names the character where it stood.
TEST_F(ShippedEngine, ARunThatOutgrowsItsLimitStopsWithANoticeNamingTheCharacter) {
    engine->progressGuard.limits.outputPerSourceChar = 0;
    engine->progressGuard.limits.outputAllowance = 3;
    const std::string out = translate("The house is big.");
    ASSERT_TRUE(engine->stopped.has_value());
    EXPECT_EQ(engine->state, RunState::Idle);
    ASSERT_EQ(host.notices.size(), 1u);
    const std::string notice = toUtf8(host.notices[0].text.english);
    EXPECT_NE(notice.find("Translation stopped at character " + std::to_string(engine->stopped->character)),
              std::string::npos)
        << notice;
    EXPECT_NE(notice.find("0 times the length"), std::string::npos) << notice;
    EXPECT_GT(out.size(), 3u);  // what was written before the stop is shown
}

TEST_F(ShippedEngine, ARunThatStandsStillStopsWithANoticeNamingTheCharacter) {
    engine->progressGuard.limits.turnsWithoutProgress = 1;
    // After "have" the look-up of "it" steps back to the blank before it: a turn that does not
    // move forward, and with a limit of one such turn the run stops on the "i" of "it".
    translate("I have it");
    ASSERT_TRUE(engine->stopped.has_value());
    EXPECT_EQ(engine->stopped->character, 8);
    ASSERT_EQ(host.notices.size(), 1u);
    EXPECT_EQ(toUtf8(host.notices[0].text.english),
              "Translation stopped at character 8: the run made no progress for 1 turns.");
    EXPECT_EQ(toUtf8(host.result), "Ես ունեցա ");  // what was written before the stop is shown
}

}  // namespace
