// Armenian text: postpositions and auxiliaries go before the word group just written, whether the
// group is a translated word, an unknown word, or a word with its postposition already before it.
#include <gtest/gtest.h>

#include "analysis/hy_en_fixture.h"

namespace vorlexa::test {
namespace {

TEST(ArmenianWordGroup, AuxiliaryGoesBeforeAPostpositionThatLeadsTheGroup) {
    HyEnFixture f;
    // "on" goes 5 back, before "house"; "am" goes before "on house", 5 + 3 back.
    EXPECT_EQ(f.translate("Ես տան վրա եմ:"), "I am on house. ");
}

TEST(ArmenianWordGroup, AuxiliaryGoesBeforeAnUnknownWord) {
    HyEnFixture f;
    EXPECT_EQ(f.translate("Ես զբժ եմ:"), "I am զբժ. ");
}

TEST(ArmenianWordGroup, PostpositionAndAuxiliaryGoBeforeAnUnknownWord) {
    HyEnFixture f;
    EXPECT_EQ(f.translate("Ես Զբժի վրա եմ:"), "I am on Զբժի. ");
}

TEST(ArmenianWordGroup, UnknownWordEndingInEOwesNoClosingMark) {
    HyEnFixture f;
    // The analysis cuts the final "ե" and finds nothing: the word stands whole, and no "»" follows.
    EXPECT_EQ(f.translate("Զբժե տուն:"), "Զբժե house. ");
}

}  // namespace
}  // namespace vorlexa::test
