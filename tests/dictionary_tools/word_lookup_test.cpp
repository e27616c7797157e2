#include "dictionary_tools/word_lookup.h"

#include <gtest/gtest.h>

#include "dict_tools_fixture.h"
#include "dictionary_tools/dictionary_reports.h"

namespace vorlexa::test {
namespace {

const std::string kEnglish =
    "big\tմեծ\ta\n"
    "large\tմեծ\ta\n"
    "house\tտուն\tn\n"
    "make\tսարքել\tv\n"
    "great\tմեծ\ta\n"
    "home\tտուն\tn\n"
    "bank\tափ\tn\n"
    "bank\tբանկ\tn\n";
const std::string kArmenian =
    "մեծ\tbig\ta\n"
    "խոշոր\tbig\ta\n"
    "տուն\thouse\tn\n";

class WordLookupTest : public DictToolsTest {
  protected:
    void SetUp() override { build(kEnglish, kArmenian, "en-hy\tbank\n"); }
    LookupResult click(const std::string& selection, const StripEnding& strip = {}) {
        return Txt34_dblclick(store, readStringsFile(data(), kEA), readStringsFile(data(), kAE),
                              fontOf(selection), strip);
    }
};

TEST(CleanSelectionTest, SignsStuckToAWordAreLeftOut) {
    EXPECT_EQ(cleanSelection("house,"), "house");
    EXPECT_EQ(cleanSelection("(house)"), "house");
    EXPECT_EQ(cleanSelection("\"big\" house"), "big");
    EXPECT_EQ(cleanSelection(fontOf("«տուն»:")), fontOf("«տուն"));
    EXPECT_EQ(cleanSelection("..."), "");
    EXPECT_EQ(cleanSelection(""), "");
}

TEST(CleanSelectionTest, LetterCodesAreTheLatinLettersAndTheArmenianOnes) {
    for (const int c : {int{'A'}, int{'Z'}, int{'a'}, int{'z'}, 167, 168, 169, 178, 253})
        EXPECT_TRUE(isSelectionLetter(static_cast<unsigned char>(c))) << c;
    for (const int c :
         {int{'@'}, int{'['}, int{'`'}, int{'{'}, int{'0'}, int{' '}, 166, 170, 177, 254})
        EXPECT_FALSE(isSelectionLetter(static_cast<unsigned char>(c))) << c;
}

TEST_F(WordLookupTest, WordsWithTheSameSingleGlossAreSynonyms) {
    const LookupResult r = click("big");
    ASSERT_TRUE(r.found);
    EXPECT_EQ(r.word, "big");
    // In the order of the flat list, which is the order of the records in the file: by column.
    EXPECT_EQ(r.synonyms, (std::vector<FontText>{"big", "great", "large"}));
    EXPECT_EQ(r.text, "Translation for 'big' is '" + fontOf("մեծ") +
                          "'.\n Available Synonims & homonyms: 'big', 'great', 'large'");
}

TEST_F(WordLookupTest, ArmenianWordWhoseGlossTwoKeysShare) {
    const LookupResult r = click("Մեծ");
    ASSERT_TRUE(r.found);
    EXPECT_EQ(r.word, fontOf("մեծ"));
    // The column of "խո" comes before that of "մե".
    EXPECT_EQ(r.synonyms, (std::vector<FontText>{fontOf("խոշոր"), fontOf("մեծ")}));
    EXPECT_EQ(
        r.text,
        fontOf("Translation for 'մեծ' is 'big'.\n Available Synonims & homonyms: 'խոշոր', 'մեծ'"));
}

TEST_F(WordLookupTest, EveryRecordOfAKeyIsATranslationAndTheLastGlossPicksTheSynonyms) {
    const LookupResult r = click("Bank.");
    EXPECT_EQ(r.word, "bank");
    EXPECT_EQ(r.text, "Translation for 'bank' is '" + fontOf("ափ, բանկ") +
                          "'.\n Available Synonims & homonyms: 'bank'");
}

TEST_F(WordLookupTest, PunctuationStuckToTheWordLooksUpTheWordAlone) {
    EXPECT_EQ(click("(house),").synonyms, (std::vector<FontText>{"house", "home"}));
}

TEST_F(WordLookupTest, EnglishEndingIsStrippedAndAnEIsTriedBack) {
    EXPECT_EQ(click("houses").synonyms, (std::vector<FontText>{"house", "home"}));
    const LookupResult r = click("making");
    ASSERT_TRUE(r.found);
    EXPECT_EQ(r.text.rfind("Translation for 'make' is '" + fontOf("սարքել") + "'.", 0), 0u);
}

TEST_F(WordLookupTest, NoTranslationAfterTheTriesGivesNoResults) {
    const LookupResult r = click("window");
    EXPECT_FALSE(r.found);
    EXPECT_EQ(r.text, "No Results!!!");
    EXPECT_TRUE(r.synonyms.empty());
}

TEST_F(WordLookupTest, EnglishTriesStopAtThree) {
    // "housesing" needs "ing" and then "s" away before "house" is reached: three forms in all.
    EXPECT_TRUE(click("housesing").found);
    // One more ending is one try too many.
    EXPECT_FALSE(click("housesinged").found);
}

TEST_F(WordLookupTest, ArmenianWordIsShortenedByTheGivenStripperAtMostFourTimes) {
    int calls = 0;
    const StripEnding dropLast = [&calls](FontText& w) {
        ++calls;
        if (w.size() < 2) return false;
        w.pop_back();
        return true;
    };
    EXPECT_TRUE(click("տունը", dropLast).found);
    EXPECT_EQ(calls, 1);
    calls = 0;
    EXPECT_FALSE(click("տունըըըը", dropLast).found);
    EXPECT_EQ(calls, 3);
}

TEST_F(WordLookupTest, ArmenianEndingIsStrippedAsTheSpellCheckerStripsIt) {
    const LookupResult r = click("տունից", hayqer1Strip());
    ASSERT_TRUE(r.found);
    EXPECT_EQ(r.synonyms, (std::vector<FontText>{fontOf("տուն")}));
    EXPECT_FALSE(click("տունից").found);  // with no stripping the word alone is tried
}

TEST_F(WordLookupTest, SelectionOfSignsAloneLooksUpNothing) {
    const LookupResult r = click("--");
    EXPECT_FALSE(r.found);
    EXPECT_TRUE(r.text.empty());
}

}  // namespace
}  // namespace vorlexa::test
