#include "engine/progress_guard.h"

#include <gtest/gtest.h>

#include "text/font_text.h"

using namespace vorlexa;

namespace {

// Turns that walk from `from` to `to` one position at a time; returns the first verdict that
// is not Go, or Go.
GuardVerdict walk(ProgressGuard& g, std::int64_t from, std::int64_t to, std::size_t source = 1'000'000) {
    for (std::int64_t p = from; p < to; ++p) {
        const GuardVerdict v = g.afterTurn(p, p + 1, 0, source);
        if (v != GuardVerdict::Go) return v;
    }
    return GuardVerdict::Go;
}

}  // namespace

TEST(ProgressGuard, ARunThatStepsBackToTheSameWordForEverIsStoppedAfterTheNamedStandStills) {
    ProgressGuard g;
    g.start();
    ASSERT_EQ(walk(g, 1, 10), GuardVerdict::Go);
    // "I have-it": each cycle reads "have-it" and steps back to the blank at 2.
    int cycles = 0;
    GuardVerdict v = GuardVerdict::Go;
    while (v == GuardVerdict::Go && cycles < 10 * kMaxTurnsWithoutProgress) {
        v = g.afterTurn(10, 2, 0, 10);
        if (v == GuardVerdict::Go) v = walk(g, 2, 10, 10);
        ++cycles;
    }
    EXPECT_EQ(v, GuardVerdict::Stalled);
    EXPECT_EQ(cycles, kMaxTurnsWithoutProgress);
}

TEST(ProgressGuard, ReadingAFiveMillionCharacterWordAgainIsProgress) {
    ProgressGuard g;
    g.start();
    constexpr std::int64_t kWord = 5'000'000;
    ASSERT_EQ(walk(g, 1, kWord + 2, kWord + 10), GuardVerdict::Go);
    EXPECT_EQ(g.afterTurn(kWord + 2, 2, 0, kWord + 10), GuardVerdict::Go);
    EXPECT_EQ(walk(g, 2, kWord + 8, kWord + 10), GuardVerdict::Go);
    EXPECT_EQ(g.furthest(), kWord + 8);
}

TEST(ProgressGuard, RescansThatStandStillAreForgivenOnceTheRunReachesNewGround) {
    ProgressGuard g;
    g.start();
    for (int word = 0; word < 10 * kMaxTurnsWithoutProgress; ++word) {
        const std::int64_t at = word + 1;
        ASSERT_EQ(g.afterTurn(at, at, 0, 1'000'000), GuardVerdict::Go);  // a rescan in place
        ASSERT_EQ(g.afterTurn(at, at + 1, 0, 1'000'000), GuardVerdict::Go);
    }
}

TEST(ProgressGuard, StandStillsAreCountedFromTheLastNewGround) {
    ProgressGuard g;
    g.start();
    ASSERT_EQ(g.afterTurn(4, 5, 0, 100), GuardVerdict::Go);
    for (int i = 1; i < kMaxTurnsWithoutProgress; ++i) ASSERT_EQ(g.afterTurn(5, 5, 0, 100), GuardVerdict::Go);
    EXPECT_EQ(g.afterTurn(5, 5, 0, 100), GuardVerdict::Stalled);
}

TEST(ProgressGuard, OutputBeyondTheNamedMultipleOfTheSourceStopsTheRun) {
    ProgressGuard g;
    g.start();
    constexpr std::size_t kSource = 1000;
    const std::size_t limit = kSource * kMaxOutputPerSourceChar + kOutputAllowance;
    EXPECT_EQ(g.limits.maxOutputFor(kSource), limit);
    EXPECT_EQ(g.afterTurn(1, 2, limit, kSource), GuardVerdict::Go);
    EXPECT_EQ(g.afterTurn(2, 3, limit + 1, kSource), GuardVerdict::OutputTooLong);
}

TEST(CharacterNumber, CountsAnEscapedCharacterOnceAndALineEndOnce) {
    const FontText text = fromUtf8("a\xE4\xB8\xAD" "b\r\nc");  // a, U+4E2D escaped, b, CR LF, c
    ASSERT_EQ(text.size(), 1u + 1 + font::kEscapeDigits + 1 + 2 + 1);
    EXPECT_EQ(characterNumber(text, 1), 1);                           // a
    EXPECT_EQ(characterNumber(text, 2), 2);                           // the escape's first byte
    EXPECT_EQ(characterNumber(text, 5), 2);                           // inside the escape
    EXPECT_EQ(characterNumber(text, 2 + 1 + font::kEscapeDigits), 3);  // b
    EXPECT_EQ(characterNumber(text, static_cast<std::int64_t>(text.size())), 5);  // c after one line end
}
