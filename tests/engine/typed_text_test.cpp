// What a reader sees of the text as it was typed: names the dictionaries lack keep their case, the
// title's full stop does not end a sentence, texts typed without the ligature or with the one-dot
// leader for the full stop are read as the reformed spelling writes them.
#include <gtest/gtest.h>

#include "analysis/hy_en_fixture.h"
#include "engine_fixture.h"
#include "engine/ligature_spelling.h"

namespace vorlexa::test {
namespace {

using namespace literals;

std::string readLigature(const std::string& utf8) {
    FontText word = fromUtf8(utf8);
    readLigatureSpelling(word);
    return toUtf8(word);
}

TEST(TypedCase, UnknownNameStandsAsTyped) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("big Zorb"), "մեծ Zorb ");
}

TEST(TypedCase, UnknownWordInCapitalsAndInnerCapitalsStandAsTyped) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("ZORB McQuux big"), "ZORB McQuux մեծ ");
}

TEST(TypedCase, UnknownNameBeforeThePossessiveStandsAsTyped) {
    EngineFixture f(kSmallLexicon);
    // The "'s" gives the genitive ending, which a new unknown word loses with its question.
    EXPECT_TRUE(f.translate("big Zorb's house").starts_with("մեծ Zorb "));
}

TEST(TypedCase, QuestionNamesTheWordAsTyped) {
    EngineFixture f(kSmallLexicon);
    f.host.answers = {kAnswerYes, kAnswerNo};
    f.translate("big Zorb");
    ASSERT_EQ(f.host.questions.size(), 2u);
    EXPECT_EQ(f.host.questions[1].text.english, "No Word 'Zorb' In Dictionary.\r\nShall We Add it Now?");
}

TEST(TypedCase, UnknownArmenianNameKeepsItsCapital) {
    HyEnFixture f;
    EXPECT_EQ(f.translate("Զբժ տուն:"), "Զբժ house. ");
}

TEST(TitleFullStop, TitleKeepsItsFullStopInsideTheSentence) {
    EngineFixture f(kSmallLexicon + "mr\tպարոն\tx\n");
    // "Mr" is looked up with its capital; the full stop is skipped and the blank after it copied.
    EXPECT_EQ(f.translate("Mr. Zorb big."), "Պարոն Zorb մեծ: ");
}

TEST(LigatureSpelling, ConjunctionTypedWithoutTheLigature) {
    EXPECT_EQ(readLigature("եվ"), "և");
    EXPECT_EQ(readLigature("եվս"), "ևս");
}

TEST(LigatureSpelling, InsideAWordTheLettersAreTheLigature) {
    EXPECT_EQ(readLigature("երեվան"), "երևան");
    EXPECT_EQ(readLigature("բարեվ"), "բարև");
    EXPECT_EQ(readLigature("թեթեվություն"), "թեթևություն");
}

TEST(LigatureSpelling, WordStartAndCompoundJointKeepTwoLetters) {
    EXPECT_EQ(readLigature("եվրոպա"), "եվրոպա");
    EXPECT_EQ(readLigature("եվրո"), "եվրո");
    EXPECT_EQ(readLigature("հոգեվարք"), "հոգեվարք");
    EXPECT_EQ(readLigature("տարեվերջ"), "տարեվերջ");
    EXPECT_EQ(readLigature("գերեվարել"), "գերեվարել");
}

TEST(LigatureSpelling, ArmenianRunReadsTheConjunctionAndKeepsTheCompound) {
    HyEnFixture f(std::string(kHyEnLexicon) + "և\tand\tc\nհոգեվարք\tagony\tn\n");
    EXPECT_EQ(f.translate("տուն եվ հոգեվարք:"), "house and agony. ");
}

TEST(ArmenianFullStop, OneDotLeaderAndArmenianFullStopReadAsColon) {
    EXPECT_EQ(fromUtf8("\u2024"), ":");
    EXPECT_EQ(fromUtf8("\u0589"), ":");
}

TEST(ArmenianFullStop, SentenceTypedWithTheOneDotLeaderEnds) {
    HyEnFixture f;
    EXPECT_EQ(f.translate("տուն\u2024"), "house. ");
}

}  // namespace
}  // namespace vorlexa::test
