// The end of a run: the pair-list repair of the result, the timing caption, the list of words
// left untranslated, the resets; and the dialect repair of the result pane.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <utility>
#include <vector>

#include "emission_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

// A pair file as the engine reads it: records of `width` characters, each half holding its
// text between marks, blank-padded.
std::string pairFile(const std::vector<std::pair<std::string, std::string>>& pairs, std::size_t width) {
    std::string bytes;
    for (const auto& [find, replace] : pairs) {
        std::string half = "\"" + fromUtf8(find) + "\"";
        half.resize(width / 2, ' ');
        std::string other = "\"" + fromUtf8(replace) + "\"";
        other.resize(width / 2, ' ');
        bytes += half + other;
    }
    return bytes;
}

void writeFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

constexpr std::size_t kPairWidth = 100;
constexpr std::size_t kDialectWidth = 40;

TEST(SentenceEnd, PairsApplyInFileOrderAndSeeTheEarlierOnes) {
    EmissionFixture fx("\"մեծ\"\t\"մեծագույն\"\n\"մեծագույն է\"\t\"ամենամեծն է\"\n");
    Engine& e = *fx.engine;
    e.OutputText = font("Տունը մեծ է: Գիրքը մեծ է:");
    e.poqr_uxxumner1();
    EXPECT_EQ(utf8(e.OutputText), "Տունը ամենամեծն է: Գիրքը ամենամեծն է:");
}

TEST(SentenceEnd, TheMarksKeepBlanksAtTheEdges) {
    EmissionFixture fx("\" է:\"\t\"է:\"\n");
    Engine& e = *fx.engine;
    e.OutputText = font("Տունը մեծ է:");
    e.poqr_uxxumner1();
    EXPECT_EQ(utf8(e.OutputText), "Տունը մեծէ:");
}

TEST(SentenceEnd, ARunEndsWithThePairRepair) {
    EmissionFixture fx("\"մեծ է\"\t\"խոշոր է\"\n");
    EXPECT_EQ(fx.translate("House is big."), "Տունը խոշոր է: ");
}

TEST(SentenceEnd, AnEmptyFindIsNotAppliedAndTheLastRecordIsNotRead) {
    EmissionFixture fx;
    writeFile(fx.data() / "uxxuma", pairFile({{"", "X"}, {"ա", "բ"}, {"բ", "գ"}}, kPairWidth));
    Engine& e = *fx.engine;
    e.OutputText = font("ամառ");
    e.poqr_uxxumner1();
    EXPECT_EQ(utf8(e.OutputText), "բմբռ");
}

TEST(SentenceEnd, TheArmenianDirectionReadsUxxume) {
    EmissionFixture fx("\"house\"\t\"home\"\n");
    writeFile(fx.data() / "uxxume", pairFile({{"house", "home"}, {"", ""}}, kPairWidth));
    Engine& e = *fx.engine;
    e.Check1 = 1;
    e.OutputText = "the house";
    e.poqr_uxxumner1();
    EXPECT_EQ(e.OutputText, "the home");
    e.Check1 = 0;
    e.OutputText = "the house";
    e.poqr_uxxumner1();
    EXPECT_EQ(e.OutputText, "the home");  // uxxuma holds the same pair
}

TEST(SentenceEnd, AMissingPairFileChangesNothing) {
    EmissionFixture fx;
    std::filesystem::remove(fx.data() / "uxxuma");
    Engine& e = *fx.engine;
    e.OutputText = font("Տունը մեծ է:");
    e.poqr_uxxumner1();
    EXPECT_EQ(utf8(e.OutputText), "Տունը մեծ է:");
}

// A list whose time stamp lies well in the past, as a list that has settled on disk.
void writeSettledList(const std::filesystem::path& path, const std::string& bytes, std::chrono::minutes age) {
    writeFile(path, bytes);
    std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() - age);
}

// The pair repair of one run's result, as UTF-8.
std::string repaired(Engine& e, const char* result) {
    e.OutputText = font(result);
    e.poqr_uxxumner1();
    return utf8(e.OutputText);
}

TEST(SentenceEnd, APairListWrittenAgainInPlaceIsReadAgain) {
    EmissionFixture fx;
    Engine& e = *fx.engine;
    writeSettledList(fx.data() / "uxxuma", pairFile({{"ա", "բ"}, {"", ""}}, kPairWidth), std::chrono::minutes(60));
    EXPECT_EQ(repaired(e, "ամառ"), "բմբռ");
    writeSettledList(fx.data() / "uxxuma", pairFile({{"ա", "գ"}, {"", ""}}, kPairWidth), std::chrono::minutes(30));
    EXPECT_EQ(repaired(e, "ամառ"), "գմգռ");
}

TEST(SentenceEnd, APairListDeletedAndMadeAgainWithTheSameSizeAndTimeIsReadAgain) {
    EmissionFixture fx;
    Engine& e = *fx.engine;
    const auto path = fx.data() / "uxxuma";
    writeSettledList(path, pairFile({{"ա", "բ"}, {"", ""}}, kPairWidth), std::chrono::minutes(60));
    const auto settled = std::filesystem::last_write_time(path);
    EXPECT_EQ(repaired(e, "ամառ"), "բմբռ");
    std::filesystem::remove(path);
    writeFile(path, pairFile({{"ա", "գ"}, {"", ""}}, kPairWidth));
    std::filesystem::last_write_time(path, settled);  // the stamp alone cannot tell the two apart
    EXPECT_EQ(repaired(e, "ամառ"), "գմգռ");
}

TEST(SentenceEnd, HeldPairListsAreReadOnceAndTheRunAfterTheirReleaseSeesAChange) {
    EmissionFixture fx;
    Engine& e = *fx.engine;
    const auto path = fx.data() / "uxxuma";
    writeSettledList(path, pairFile({{"ա", "բ"}, {"", ""}}, kPairWidth), std::chrono::minutes(60));
    e.holdPairLists(true);
    EXPECT_EQ(repaired(e, "ամառ"), "բմբռ");
    writeSettledList(path, pairFile({{"ա", "գ"}, {"", ""}}, kPairWidth), std::chrono::minutes(30));
    EXPECT_EQ(repaired(e, "ամառ"), "բմբռ");  // the list as it stood at the first run
    e.holdPairLists(false);
    EXPECT_EQ(repaired(e, "ամառ"), "գմգռ");
    // A new holding looks at the file again.
    writeSettledList(path, pairFile({{"ա", "դ"}, {"", ""}}, kPairWidth), std::chrono::minutes(20));
    e.holdPairLists(true);
    EXPECT_EQ(repaired(e, "ամառ"), "դմդռ");
}

TEST(SentenceEnd, AListFirstReadWhileHeldIsKeptForTheRestOfTheHolding) {
    EmissionFixture fx;
    Engine& e = *fx.engine;
    const auto path = fx.data() / "uxxuma";
    e.holdPairLists(true);
    // Written just now: out of a holding, a list whose stamp has not settled is read at every run.
    writeFile(path, pairFile({{"ա", "բ"}, {"", ""}}, kPairWidth));
    EXPECT_EQ(repaired(e, "ամառ"), "բմբռ");
    writeFile(path, pairFile({{"ա", "գ"}, {"", ""}}, kPairWidth));
    EXPECT_EQ(repaired(e, "ամառ"), "բմբռ");
}

TEST(SentenceEnd, TheTitleTellsTheTimeInBothLanguages) {
    EmissionFixture fx;
    fx.translate("House is big.");
    const std::string english = fx.host.title.english;
    EXPECT_EQ(english.rfind("Translated in 0 minutes and ", 0), 0u) << english;
    EXPECT_TRUE(english.ends_with(" seconds.")) << english;
    const std::string armenian = utf8(fx.host.title.armenian);
    EXPECT_EQ(armenian.rfind("Թարգմանությունը տևեց 0 րոպե և ", 0), 0u) << armenian;
    EXPECT_TRUE(armenian.ends_with(" վայրկյան:")) << armenian;
    EXPECT_FALSE(fx.host.progressShown());
}

TEST(SentenceEnd, InstantTranslationLeavesTheTitle) {
    EmissionFixture fx;
    fx.host.setChecked(MenuItem::ITR, true);
    fx.translate("House is big.");
    EXPECT_EQ(fx.host.title.english, "Translating from English to Armenian");
}

TEST(SentenceEnd, TheUntranslatedTermsAreListed) {
    EmissionFixture fx;
    fx.host.setChecked(MenuItem::SUT, true);
    EXPECT_EQ(fx.translate("House is zzz qqq."),
              "Տունը zzz qqq է: \r\n***\r\nLIST OF NON-TRANSLATED TERMS\r\nzzz, qqq");
    EXPECT_FALSE(fx.host.isChecked(MenuItem::SUT));
    EXPECT_TRUE(fx.host.questions.empty());
}

TEST(SentenceEnd, TheListTitleFollowsTheInterfaceLanguage) {
    EmissionFixture fx;
    fx.host.setChecked(MenuItem::SUT, true);
    fx.host.setChecked(MenuItem::AMN, true);
    EXPECT_EQ(fx.translate("House is zzz."), "Տունը zzz է: \r\n***\r\nՉԹԱՐԳՄԱՆՎԱԾ ՏԵՐՄԻՆՆԵՐԸ.\r\nzzz");
}

TEST(SentenceEnd, WithNoUnknownWordNothingIsListed) {
    EmissionFixture fx;
    fx.host.setChecked(MenuItem::SUT, true);
    EXPECT_EQ(fx.translate("House is big."), "Տունը մեծ է: ");
    EXPECT_TRUE(fx.host.isChecked(MenuItem::SUT));
}

TEST(SentenceEnd, TheRunResetsItsState) {
    EmissionFixture fx;
    fx.host.setChecked(MenuItem::IMPV, true);
    fx.host.setSaveEnabled(false);
    fx.translate("They'll read book and house is");  // no sentence end: the state is still set
    Engine& e = *fx.engine;
    EXPECT_TRUE(e.PendingCopula.empty());
    EXPECT_TRUE(e.ModalFlag.empty());
    EXPECT_TRUE(e.PendingPlural.empty());
    EXPECT_TRUE(e.LinkFlag.empty());
    EXPECT_TRUE(e.PersonCode.empty());
    EXPECT_TRUE(e.ClassChain.empty());
    EXPECT_TRUE(e.SentenceClasses.empty());
    EXPECT_TRUE(e.ArticleEnding.empty());
    EXPECT_EQ(e.DefiniteState, 0);
    EXPECT_TRUE(e.RawWord.empty());
    EXPECT_TRUE(e.SourceText.empty());
    EXPECT_EQ(e.TermCount, 1);
    EXPECT_FALSE(fx.host.isChecked(MenuItem::IMPV));
    EXPECT_TRUE(fx.host.saveEnabled);
    EXPECT_FALSE(std::filesystem::exists(fx.data() / "zhamanakavor"));
    EXPECT_EQ(e.state, RunState::Idle);
}

TEST(SentenceEnd, ASpellCheckPassEndsWithItsNotice) {
    EmissionFixture fx;
    Engine& e = *fx.engine;
    e.SpellMode = 1;
    e.SourceText = "House is big.";
    e.TransEndProcedure();
    ASSERT_EQ(fx.host.notices.size(), 1u);
    EXPECT_EQ(fx.host.notices[0].text.english, "Spell-Check is completed.");
    EXPECT_EQ(utf8(fx.host.notices[0].title.armenian), "Սխալների ուղղում");
    EXPECT_EQ(fx.host.result, "House is big.");
    EXPECT_TRUE(e.SpellMode.empty());
}

TEST(SentenceEnd, TheDialectRepairRunsOverTheResultPane) {
    EmissionFixture fx;
    writeFile(fx.data() / "uxxumy", pairFile({{"ա", "բ"}, {"բ", "գ"}, {"", ""}}, kDialectWidth));
    Engine& e = *fx.engine;
    fx.host.setResultText(font("ամառ"));
    e.CTYD();
    EXPECT_EQ(utf8(fx.host.result), "գմգռ");
    EXPECT_EQ(e.ReplacementCount, 2);
}

}  // namespace
}  // namespace vorlexa::test
