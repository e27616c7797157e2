// The three transliteration lists, with words whose result depends on the order of the rows.
// Expected texts are worked out row by row from the lists.
#include "text_tools/transliteration.h"

#include <gtest/gtest.h>

using namespace vorlexa;
using vorlexa::text_tools::Transliteration;

namespace {

std::string run(const char* utf8, Transliteration which) {
    return toUtf8(text_tools::transliterate(fromUtf8(utf8), which));
}
std::string armLat(const char* utf8) {
    return run(utf8, Transliteration::ArmenianToLatin);
}
std::string engArm(const char* utf8) {
    return run(utf8, Transliteration::EnglishToArmenian);
}
std::string latArm(const char* utf8) {
    return run(utf8, Transliteration::LatinArmenianToArmenian);
}

}  // namespace

TEST(ReplacementLists, HaveTheirRowsInOrder) {
    const auto cvtae = text_tools::replacementList(Transliteration::ArmenianToLatin);
    const auto et = text_tools::replacementList(Transliteration::EnglishToArmenian);
    const auto llat = text_tools::replacementList(Transliteration::LatinArmenianToArmenian);
    ASSERT_EQ(cvtae.size(), 87u);
    ASSERT_EQ(et.size(), 114u);
    ASSERT_EQ(llat.size(), 94u);
    // The last two rows of each list undo each other's sign in a fixed order.
    EXPECT_EQ(cvtae[85].find, ":");
    EXPECT_EQ(cvtae[86].find, ".");
    EXPECT_EQ(et[112].find, ".");
    EXPECT_EQ(et[113].find, ":");
    EXPECT_EQ(toUtf8(llat[93].find), "Ետե");
    EXPECT_EQ(toUtf8(llat[0].find), "tyoun");
}

TEST(ReplaceEvery, ReplacesLeftToRightWithoutSearchingWhatItPutIn) {
    FontText text = "aaa";
    text_tools::replaceEvery(text, "aa", "a");
    EXPECT_EQ(text, "aa");  // "aa" then the lone "a": the "a" put in is not looked at again
    text = "ou ou";
    text_tools::replaceEvery(text, "ou", "oou");
    EXPECT_EQ(text, "oou oou");
    text = "abc";
    text_tools::replaceEvery(text, "", "x");
    EXPECT_EQ(text, "abc");
}

// ---- cvtae: Armenian to Latin -----------------------------------------------------------------

TEST(ArmenianToLatin, GreetingAndCapitalWrittenInLatinLetters) {
    EXPECT_EQ(armLat("Բարև Երևան"), "Barev Erevan");
}

TEST(ArmenianToLatin, SmallOuAtTheStartGoesThroughOuToU) {
    EXPECT_EQ(armLat("ու"), "u");  // ո to o, ւ to u, then "ou" to "u"
    EXPECT_EQ(armLat("դու"), "du");
}

TEST(ArmenianToLatin, SmallOuAfterABlankIsTakenByItsOwnRow) {
    EXPECT_EQ(armLat("և ու"), "ev u");
}

TEST(ArmenianToLatin, CapitalOuAfterABlankAndInsideAWord) {
    EXPECT_EQ(armLat(" ՈՒ"), " U");
    EXPECT_EQ(armLat("ԴՈՒՌ"), "DUR");  // "OU" then "U"
    EXPECT_EQ(armLat("ա Ու"), "a U");
}

TEST(ArmenianToLatin, VoOnlyAfterABlankNotAtTheStartOfTheSelection) {
    EXPECT_EQ(armLat("ոչ"), "och");
    EXPECT_EQ(armLat("ա ոչ"), "a voch");
    EXPECT_EQ(armLat("ա Ով"), "a Vov");
}

TEST(ArmenianToLatin, FullStopAndColonBothEndAsColon) {
    EXPECT_EQ(armLat("Այո."), "Ayo:");
    EXPECT_EQ(armLat("Այո:"), "Ayo:");
}

TEST(ArmenianToLatin, LettersWithTwoSoundsFallTogether) {
    EXPECT_EQ(armLat("Էէ Եե"), "Ee Ee");
    EXPECT_EQ(armLat("Թթ Տտ"), "Tt Tt");
    EXPECT_EQ(armLat("Ճճ Չչ"), "Chch Chch");
    EXPECT_EQ(armLat("Ռռ Րր"), "Rr Rr");
    EXPECT_EQ(armLat("Պպ Փփ"), "Pp Pp");
}

TEST(ArmenianToLatin, LatinOuOfTheSelectionIsShortenedToo) {
    EXPECT_EQ(armLat("you"), "yu");
}

TEST(ArmenianToLatin, CharactersOutsideTheFontPassUnchanged) {
    EXPECT_EQ(armLat("Жա 😀"), "Жa 😀");
}

// ---- ET: English to Armenian letters ----------------------------------------------------------

TEST(EnglishToArmenian, TeaBeforeABlankTakesTheEaRowFirst) {
    EXPECT_EQ(engArm("tea "), "թի ");
}

TEST(EnglishToArmenian, TheBeforeABlankDropsItsEThenThBecomesD) {
    EXPECT_EQ(engArm("the "), "դ ");
}

TEST(EnglishToArmenian, CIsHardBeforeAOU) {
    EXPECT_EQ(engArm("cat"), "քաթ");
    EXPECT_EQ(engArm("cup"), "քուփ");
    EXPECT_EQ(engArm("CU"), "ՔՈւ");
    EXPECT_EQ(engArm("city"), "սիթյի");
}

TEST(EnglishToArmenian, AllIsTakenBeforeItsLetters) {
    EXPECT_EQ(engArm("ball"), "բօլ");
    EXPECT_EQ(engArm("All"), "Օլ");
}

TEST(EnglishToArmenian, GIsSoftBeforeIAndE) {
    EXPECT_EQ(engArm("gin"), "ջին");
    EXPECT_EQ(engArm("go"), "գօ");
}

TEST(EnglishToArmenian, SilentFinalEGoesOnlyBeforeABlank) {
    EXPECT_EQ(engArm("shoe x"), "շօ քս");
    EXPECT_EQ(engArm("shoe"), "շօե");
}

TEST(EnglishToArmenian, WXAndYBecomeTwoLetters) {
    EXPECT_EQ(engArm("W w X x Y y"), "Ու ու Քս քս ՅԻ յի");
}

TEST(EnglishToArmenian, SignsEndAsFullStopAndDigitsPass) {
    EXPECT_EQ(engArm("a:b."), "ա.բ.");
    EXPECT_EQ(engArm("7!"), "7!");
}

// ---- LLAT: Latin-lettered Armenian back to Armenian -------------------------------------------

TEST(LatinArmenianToArmenian, BarevGetsTheLigatureBeforeItsLetters) {
    EXPECT_EQ(latArm("barev"), "բարև");
}

TEST(LatinArmenianToArmenian, TyounEndingTakesTBeforeTheLetters) {
    EXPECT_EQ(latArm("azatutyoun"), "ազատություն");
    // No repair row follows "tyamb": only its own early row gives թ.
    EXPECT_EQ(latArm("azatutyamb"), "ազատությամբ");
}

TEST(LatinArmenianToArmenian, StandAloneEIsTheVerb) {
    EXPECT_EQ(latArm("na e lav"), "նա է լավ");
    EXPECT_EQ(latArm("na e."), "նա է.");  // " է:" first, then ":" ends as "."
    EXPECT_EQ(latArm("e lav"), "ե լավ");  // no blank before it
}

TEST(LatinArmenianToArmenian, ElWithASignLosesTheSign) {
    EXPECT_EQ(latArm("du el, na"), "դու էլ  նա");
}

TEST(LatinArmenianToArmenian, YeIsOneLetter) {
    EXPECT_EQ(latArm("yes"), "ես");
    EXPECT_EQ(latArm("Yerevan"), "Երևան");
}

TEST(LatinArmenianToArmenian, DeliberateAsymmetriesOfSingleLetters) {
    EXPECT_EQ(latArm("R r"), "Ռ ր");
    EXPECT_EQ(latArm("X x"), "Խ խ");
    EXPECT_EQ(latArm("C c"), "Ց ց");
    EXPECT_EQ(latArm("K k"), "Կ կ");
    EXPECT_EQ(latArm("T t"), "Տ տ");
}

TEST(LatinArmenianToArmenian, LastRowsRepairEte) {
    EXPECT_EQ(latArm("ete"), "եթե");
    EXPECT_EQ(latArm("Ete"), "Եթե");
}

TEST(LatinArmenianToArmenian, SignsEndAsFullStop) {
    EXPECT_EQ(latArm("a:b."), "ա.բ.");
}

TEST(LatinArmenianToArmenian, SchwaSignBecomesSchwa) {
    EXPECT_EQ(latArm("@nker"), "ընկեր");
}

TEST(Transliteration, EmptyTextStaysEmpty) {
    EXPECT_EQ(armLat(""), "");
    EXPECT_EQ(engArm(""), "");
    EXPECT_EQ(latArm(""), "");
}

TEST(Transliteration, BytesThatAreNoLetterPassUnchanged) {
    const FontText odd{static_cast<char>(0x80), static_cast<char>(0xA9), ' ',
                       static_cast<char>(0xFE), static_cast<char>(0xAA)};
    for (auto which : {Transliteration::ArmenianToLatin, Transliteration::EnglishToArmenian,
                       Transliteration::LatinArmenianToArmenian})
        EXPECT_EQ(text_tools::transliterate(odd, which), odd);
}
