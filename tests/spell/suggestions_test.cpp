// The suggestion generator: each kind of mistake by a misspelling that only its pass repairs, the
// rounds, the clean-up, the near words, the dictionary test and the ending put back.
#include <gtest/gtest.h>

#include "spell/letter_tables.h"
#include "spell_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;
using spell::Round;

// Every pass of a round, for the "only this pass" checks.
const std::vector<std::pair<std::string, void (*)(Round&)>> kPasses = {
    {"confusable", spell::confusableLetters}, {"second", spell::secondChoiceLetters},
    {"third", spell::thirdChoiceLetters},     {"pairs", spell::letterPairs},
    {"glide", spell::swappedGlide},           {"doubled", spell::doubledLetter},
};

// The passes that make `right` of `wrong` in one step.
std::vector<std::string> passesRepairing(const std::string& wrong, const std::string& right) {
    std::vector<std::string> names;
    for (const auto& [name, pass] : kPasses)
        if (contains(variantsOf(wrong, pass), right)) names.push_back(name);
    return names;
}

TEST(SpellTables, ConsonantAndVowelListsHaveTheirSizes) {
    EXPECT_EQ(spell::vowelPairs().size(), 49u);
    EXPECT_EQ(spell::consonants().size(), 31u);
    EXPECT_EQ(spell::insertedVowels().size(), 8u);
    int pairs = 0;
    for (const auto a : spell::consonants())
        for (const auto b : spell::consonants())
            if (spell::isConsonantPair(FontText(a) + FontText(b))) ++pairs;
    EXPECT_EQ(pairs, 930);
}

TEST(SpellPasses, MainTableAloneRepairsKForG) {
    EXPECT_EQ(passesRepairing("քիրք", "գիրք"), std::vector<std::string>{"confusable"});
}

TEST(SpellPasses, SecondChoiceAloneRepairsDForT) {
    EXPECT_EQ(passesRepairing("դուն", "տուն"), std::vector<std::string>{"second"});
}

TEST(SpellPasses, ThirdChoiceAloneRepairsJForG) {
    EXPECT_EQ(passesRepairing("ջետ", "գետ"), std::vector<std::string>{"third"});
}

TEST(SpellPasses, ForgottenVowelBetweenConsonantsIsInserted) {
    EXPECT_EQ(passesRepairing("գրք", "գիրք"), std::vector<std::string>{"pairs"});
}

TEST(SpellPasses, ForgottenConsonantBetweenVowelsIsInserted) {
    EXPECT_EQ(passesRepairing("բաի", "բարի"), std::vector<std::string>{"pairs"});
}

TEST(SpellPasses, EVIsWrittenAsTheLigature) {
    EXPECT_EQ(passesRepairing("եվս", "ևս"), std::vector<std::string>{"pairs"});
}

TEST(SpellPasses, AgonyKeepsEV) {
    for (const std::string& v : variantsOf("հոգեվարք", spell::letterPairs))
        EXPECT_EQ(v.find("և"), std::string::npos) << v;
}

TEST(SpellPasses, PairAtStartStandsForOneLetter) {
    EXPECT_EQ(passesRepairing("յեղբայր", "եղբայր"), std::vector<std::string>{"pairs"});
    EXPECT_TRUE(contains(variantsOf("վոր", spell::letterPairs), "որ"));
}

TEST(SpellPasses, PairAwayFromStartTakesTheLetterChosenLast) {
    // "յե" at the third position becomes what a table wrote last in the round.
    EXPECT_TRUE(contains(variantsOf("բայեր", spell::letterPairs, "ա"), "բաար"));
    EXPECT_FALSE(contains(variantsOf("բայեր", spell::letterPairs, "ա"), "բաեր"));
}

TEST(SpellPasses, SwappedGlideAloneRepairsYou) {
    EXPECT_EQ(passesRepairing("գույղ", "գյուղ"), std::vector<std::string>{"glide"});
}

TEST(SpellPasses, DoubledLetterAloneRepairsALetterTypedTwice) {
    EXPECT_EQ(passesRepairing("գիրրք", "գիրք"), std::vector<std::string>{"doubled"});
}

TEST(SpellPasses, OBeforeAnythingButVewGetsVewAndO) {
    EXPECT_EQ(variantsOf("որ", spell::confusableLetters),
              (std::vector<std::string>{"ուր", "օր", "ոռ"}));
    // Before "ւ" the "ո" is left alone, and so is the "ւ" after it.
    EXPECT_TRUE(variantsOf("ու", spell::confusableLetters).empty());
}

TEST(SpellPasses, RAtTheStartIsLeftAloneButInRopeWords) {
    EXPECT_TRUE(variantsOf("ռա", spell::confusableLetters) == (std::vector<std::string>{"ռե"}));
    EXPECT_TRUE(contains(variantsOf("ռոպե", spell::confusableLetters), "րոպե"));
    EXPECT_TRUE(contains(variantsOf("առ", spell::confusableLetters), "ար"));
}

TEST(SpellPasses, LoneVewBecomesU) {
    EXPECT_TRUE(contains(variantsOf("ւր", spell::confusableLetters), "ուր"));
    EXPECT_TRUE(contains(variantsOf("տւն", spell::confusableLetters), "տուն"));
}

TEST(SpellGenerator, LetterDropsComeAfterTheWordInTheirOrder) {
    std::vector<FontText> list;
    spell::AditLetterRemove(fromUtf8("գիրքա"), list);
    std::vector<std::string> got;
    for (const auto& s : list) got.push_back(toUtf8(s));
    // Less the first letter, then less the letter at each position from the second, then less
    // the last letter.
    EXPECT_EQ(got, (std::vector<std::string>{"իրքա", "գրքա", "գիքա", "գիրա", "գիրք", "գիրք"}));
}

TEST(SpellGenerator, RoundsGrowWithTheLength) {
    EXPECT_EQ(spell::roundCount(1), 4u);
    EXPECT_EQ(spell::roundCount(3), 12u);
    EXPECT_EQ(spell::roundCount(4), 16u);
    EXPECT_EQ(spell::roundCount(9), 81u);
    EXPECT_EQ(spell::roundCount(10), 30u);
}

TEST(SpellGenerator, CleanUpKeepsFirstCopiesAndOneLetterItemsOnlyForOneLetterWords) {
    std::vector<FontText> list = {fromUtf8("աբ"), fromUtf8("բ"), fromUtf8("աբ"), fromUtf8("գդ"),
                                  fromUtf8("գդ")};
    spell::cleanUp(list, 2);
    EXPECT_EQ(list, (std::vector<FontText>{fromUtf8("աբ"), fromUtf8("գդ")}));

    std::vector<FontText> one = {fromUtf8("ա"), fromUtf8("ե"), fromUtf8("ա")};
    spell::cleanUp(one, 1);
    EXPECT_EQ(one, (std::vector<FontText>{fromUtf8("ա"), fromUtf8("ե")}));
}

TEST(SpellGenerator, EmptyItemEndsTheCleanUpPass) {
    // Behind the empty item, copies of each other stay; copies of items before it go.
    std::vector<FontText> list = {fromUtf8("ա"), {}, fromUtf8("ե"), fromUtf8("ե"), fromUtf8("ա")};
    spell::cleanUp(list, 1);
    EXPECT_EQ(list, (std::vector<FontText>{fromUtf8("ա"), {}, fromUtf8("ե"), fromUtf8("ե")}));
}

TEST(SpellGenerator, OneLetterWordHasFourRoundsAndKeepsOneLetterItems) {
    spell::SpellInput in;
    in.RawWord = fromUtf8("է");
    const spell::Candidates c = spell::generateCandidates(in);
    // "է" becomes "ե" in the first pass; the empty drops follow the word.
    ASSERT_GE(c.List1.size(), 4u);
    EXPECT_EQ(toUtf8(c.List1[0]), "է");
    EXPECT_TRUE(c.List1[1].empty());
    EXPECT_TRUE(std::find(c.List1.begin(), c.List1.end(), fromUtf8("ե")) != c.List1.end());
}

TEST(SpellGenerator, LatinWordGetsOnlyLetterDropsAndDoubledLetters) {
    spell::SpellInput in;
    in.RawWord = "hoouse";
    const spell::Candidates c = spell::generateCandidates(in);
    // The drops of the drops follow in later rounds; nothing is ever replaced or inserted.
    for (const FontText& item : c.List1) {
        if (item == "hoouse") continue;
        EXPECT_LT(item.size(), 6u) << item;
        EXPECT_FALSE(hasArmenianLetter(item)) << item;
    }
    EXPECT_TRUE(std::find(c.List1.begin(), c.List1.end(), FontText("house")) != c.List1.end());
}

TEST(SpellGenerator, LongWordGetsNoVariants) {
    spell::SpellInput in;
    in.RawWord = std::string(200, static_cast<char>("ա"_ft[0]));
    const spell::Candidates c = spell::generateCandidates(in);
    EXPECT_EQ(c.List1.size(), 1u);
}

TEST(SpellSuggestions, EachMisspellingGetsItsRightSpelling) {
    SpellFixture f;
    EXPECT_TRUE(contains(f.suggest("քիրք"), "գիրք"));
    EXPECT_TRUE(contains(f.suggest("դուն"), "տուն"));
    EXPECT_TRUE(contains(f.suggest("ջետ"), "գետ"));
    EXPECT_TRUE(contains(f.suggest("բաի"), "բարի"));
    EXPECT_TRUE(contains(f.suggest("եվս"), "ևս"));
    EXPECT_TRUE(contains(f.suggest("յեղբայր"), "եղբայր"));
    EXPECT_TRUE(contains(f.suggest("գույղ"), "գյուղ"));
    EXPECT_TRUE(contains(f.suggest("գիրրք"), "գիրք"));
    EXPECT_TRUE(contains(f.suggest("գիրքժ"), "գիրք"));  // a letter too many, dropped
}

TEST(SpellSuggestions, OnlyDictionaryWordsStayWithoutCopies) {
    SpellFixture f;
    const std::vector<std::string> got = f.suggest("քիրք");
    ASSERT_FALSE(got.empty());
    for (const std::string& s : got)
        EXPECT_TRUE(f.store.findArmenian(fromUtf8(s)).has_value()) << s;
    std::vector<std::string> sorted = got;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(std::adjacent_find(sorted.begin(), sorted.end()), sorted.end());
}

TEST(SpellSuggestions, EndingIsPutBackOnTheFirstSurvivorOnly) {
    SpellFixture f;
    std::string text2;
    // "ներից" comes off, the stem is repaired ("խ" for "ղ") and gets its ending back.
    const std::vector<std::string> got = f.suggest("քախաքներից", &text2);
    EXPECT_EQ(got, std::vector<std::string>{"քաղաք"});
    EXPECT_EQ(text2, "քաղաքներից");
}

TEST(SpellSuggestions, AbstractNounTakesItsCaseEndingInPlaceOfTyun) {
    SpellFixture f;
    std::string text2;
    // "ազադութթյուն" after the strip; the second choice makes "դ" a "տ" and a later round takes the
    // doubled "թ" out.
    const std::vector<std::string> got = f.suggest("ազադությամբ", &text2);
    EXPECT_TRUE(contains(got, "ազատություն"));
    EXPECT_EQ(text2, "ազատությամբ");
}

TEST(SpellSuggestions, CapitalOfTheWordGoesOnTheSuggestions) {
    SpellFixture f;
    std::string text2;
    const std::vector<std::string> got = f.suggest("Քիրք", &text2);
    EXPECT_TRUE(contains(got, "Գիրք"));
    EXPECT_EQ(text2, "Քիրք");
}

TEST(SpellSuggestions, ShortWordGetsTheKeysOfItsBucketOfAboutItsLength) {
    SpellFixture f("գետ\triver\tn\nգեր\tfat\ta\nգետին\tground\tn\n");
    const std::vector<std::string> got = f.suggest("գեզ");
    EXPECT_TRUE(contains(got, "գետ"));
    EXPECT_TRUE(contains(got, "գեր"));
    EXPECT_FALSE(contains(got, "գետին"));
}

TEST(SpellSuggestions, EmptyBucketLosesAllCandidates) {
    SpellFixture f("մեծ\tbig\ta\n");
    EXPECT_TRUE(f.suggest("քիրք").empty());
}

TEST(SpellSuggestions, LatinWordIsNotTestedAgainstTheEnglishDictionary) {
    SpellFixture f;
    EXPECT_TRUE(f.suggest("hoouse").empty());
}

}  // namespace
}  // namespace vorlexa::test
