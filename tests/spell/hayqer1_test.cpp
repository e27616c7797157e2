// The ending strip before the suggestion generator: one word for each kind of row, and the
// order in which the rows are tried.
#include <gtest/gtest.h>

#include "spell/hayqer1.h"
#include "text/font_text.h"

namespace vorlexa::test {
namespace {

struct Stripped {
    std::string word, tail;
    std::vector<std::string> items;
};

Stripped strip(const std::string& utf8) {
    const spell::Hayqer1Result r = spell::hayqer1(fromUtf8(utf8));
    Stripped s{toUtf8(r.word), toUtf8(r.WordTail), {}};
    for (const FontText& item : r.List1Items) s.items.push_back(toUtf8(item));
    return s;
}

TEST(Hayqer1, WordWithoutKnownEndingComesBackWhole) {
    const Stripped s = strip("գիրք");
    EXPECT_EQ(s.word, "գիրք");
    EXPECT_EQ(s.tail, "");
    EXPECT_TRUE(s.items.empty());
}

TEST(Hayqer1, SixLetterEndingIsStrippedAndKept) {
    const Stripped s = strip("դասարաններում");
    EXPECT_EQ(s.word, "դասարան");
    EXPECT_EQ(s.tail, "ներում");
}

TEST(Hayqer1, MisspeltEndingWithRForRIsRecognised) {
    const Stripped s = strip("դասարաննեռում");
    EXPECT_EQ(s.word, "դասարան");
    EXPECT_EQ(s.tail, "նեռում");
}

TEST(Hayqer1, InstrumentalOfAbstractNounKeepsFirstLetterDoubled) {
    // The last four letters, not five, become "թյուն": "ազատութ" + "թյուն".
    const Stripped s = strip("ազատությամբ");
    EXPECT_EQ(s.word, "ազատութթյուն");
    EXPECT_EQ(s.tail, "թյամբ");
}

TEST(Hayqer1, DativeOfAbstractNounInTyanTakesTheTailTyan) {
    // Here the four letters replaced are the whole ending.
    const Stripped s = strip("ազատության");
    EXPECT_EQ(s.word, "ազատություն");
    EXPECT_EQ(s.tail, "թյան");
    const Stripped t = strip("բարեկամուտյան");
    EXPECT_EQ(t.word, "բարեկամություն");
    EXPECT_EQ(t.tail, "թյան");
}

TEST(Hayqer1, CaseAfterParticipleLosesOnlyItsLastTwoLetters) {
    const Stripped s = strip("գրումից");
    EXPECT_EQ(s.word, "գրում");
    EXPECT_EQ(s.tail, "ից");
}

TEST(Hayqer1, LongerEndingWinsOverItsShorterEnd) {
    // "երում" (five letters) is tried before "ում" (three).
    const Stripped s = strip("գործերում");
    EXPECT_EQ(s.word, "գործ");
    EXPECT_EQ(s.tail, "երում");
    const Stripped t = strip("սեղաններից");
    EXPECT_EQ(t.word, "սեղան");
    EXPECT_EQ(t.tail, "ներից");
}

TEST(Hayqer1, PluralCaseGroupLosesItsEndingForGood) {
    const Stripped s = strip("գրքերից");
    EXPECT_EQ(s.word, "գրք");
    EXPECT_EQ(s.tail, "");
    const Stripped t = strip("տեսնվում");
    EXPECT_EQ(t.word, "տեսն");
    EXPECT_EQ(t.tail, "");
}

TEST(Hayqer1, InfinitiveInLuKeepsTheInfinitive) {
    const Stripped s = strip("գնալու");
    EXPECT_EQ(s.word, "գնալ");
    EXPECT_EQ(s.tail, "ու");
}

TEST(Hayqer1, ThreeLetterEnding) {
    const Stripped s = strip("ֆիլմերի");
    EXPECT_EQ(s.word, "ֆիլմ");
    EXPECT_EQ(s.tail, "երի");
}

TEST(Hayqer1, NounOfActionInManAddsParticipleAndInfinitive) {
    const Stripped s = strip("կառուցման");
    EXPECT_EQ(s.word, "կառուցել");
    EXPECT_EQ(s.tail, "ման");
    ASSERT_EQ(s.items.size(), 2u);
    EXPECT_EQ(s.items[0], "կառուցում");
    EXPECT_EQ(s.items[1], "կառուցել");
}

TEST(Hayqer1, DoubledNAndGlideLoseOnlyTheirLastLetter) {
    EXPECT_EQ(strip("մարդկանն").word, "մարդկան");
    EXPECT_EQ(strip("մարդկանն").tail, "ն");
    EXPECT_EQ(strip("մեքենայ").word, "մեքենա");
    EXPECT_EQ(strip("մեքենայ").tail, "յ");
}

TEST(Hayqer1, TwoLetterCaseEnding) {
    const Stripped s = strip("քաղաքից");
    EXPECT_EQ(s.word, "քաղաք");
    EXPECT_EQ(s.tail, "ից");
}

TEST(Hayqer1, StrippedEIsPutBackAsTheArticle) {
    const Stripped s = strip("քաղաքե");
    EXPECT_EQ(s.word, "քաղաք");
    EXPECT_EQ(s.tail, "ը");
    EXPECT_EQ(strip("քաղաքը").tail, "ը");
    EXPECT_EQ(strip("քաղաքի").tail, "ի");
}

TEST(Hayqer1, LatinWordHasNoArmenianEnding) {
    const Stripped s = strip("house");
    EXPECT_EQ(s.word, "house");
    EXPECT_EQ(s.tail, "");
}

TEST(Hayqer1, EmptyWordStaysEmpty) {
    const Stripped s = strip("");
    EXPECT_EQ(s.word, "");
    EXPECT_EQ(s.tail, "");
}

}  // namespace
}  // namespace vorlexa::test
