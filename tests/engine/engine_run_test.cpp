// The run start: counts, the Unicode check, the direction guess and its titles, the blank fold,
// the progress bar, the TermsFile and the resets.
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "engine/engine.h"
#include "engine_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

TEST(EngineRun, TextOfDigitsAndSignsRunsArmenianToEnglish) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    f.translate("123 + 456 = 579");
    EXPECT_EQ(f.engine->Check1, 1);
    ASSERT_FALSE(f.host.titles.empty());
    EXPECT_EQ(f.host.titles.front().english, "Translating from Armenian to English");
    EXPECT_EQ(f.host.titles.front().armenian, FontText("Թարգմանում է հայերենից անգլերեն:"_ft));
    EXPECT_EQ(f.host.result, "123 + 456 = 579 ");
}

TEST(EngineRun, ExclamationAndAmpersandCountAsEnglish) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    f.translate("!& ա");  // English 1 + 2 against Armenian 1 + 1
    EXPECT_EQ(f.engine->Check1, 0);
}

TEST(EngineRun, TieOfLetterCountsGoesArmenianToEnglish) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    f.translate("ab աբ");
    EXPECT_EQ(f.engine->Check1, 1);
}

TEST(EngineRun, EnglishTextRunsEnglishToArmenianWithItsTitle) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate("big"), "մեծ ");
    EXPECT_EQ(f.engine->Check1, 0);
    ASSERT_FALSE(f.host.titles.empty());
    EXPECT_EQ(f.host.titles.front().english, "Translating from English to Armenian");
    EXPECT_EQ(f.host.titles.front().armenian, FontText("Թարգմանում է անգլերենից հայերեն:"_ft));
}

TEST(EngineRun, TextWithSixtyPercentQuestionMarksDoesNotTranslate) {
    EngineFixture f(kSmallLexicon);
    f.engine->Text3_Change("???a");  // "???a " : 3 of 5 characters
    EXPECT_TRUE(f.engine->OutputText.empty());
    EXPECT_TRUE(f.host.titles.empty());
    ASSERT_EQ(f.host.notices.size(), 1u);
    EXPECT_EQ(f.host.notices[0].text.english, "Armenian text is UNICODE.\r\nClick 'Ctrl+V' after 'OK' to continue.");
    EXPECT_EQ(f.host.notices[0].text.armenian,
              FontText("Հայերեն տեքստը UNICODE է:"_ft) + "\r\n" +
                  FontText("Շարունակության համար 'OK'-ից հետո սեղմեք 'Ctrl+V':"_ft));
    EXPECT_TRUE(f.host.converterOpen);
    EXPECT_TRUE(f.host.busy);
    EXPECT_EQ(toUtf8(f.host.result),
              "ՈՒՇԱԴՐՈՒԹՅՈՒՆ!!!! ԹԱՐԳՄԱՆՈՒԹՅՈՒՆԸ ՍՏԱՆԱԼՈՒ ՀԱՄԱՐ ՍԵՂՄԵ'Ք 'Ctrl+V':\r\n"
              "ATTENTION!!!!  CLICK 'Ctrl +V' TO RECIEVE THE TRANSLATION.");
    EXPECT_EQ(f.engine->state, RunState::Idle);
}

TEST(EngineRun, FewerQuestionMarksThanSixtyPercentStillTranslate) {
    EngineFixture f(kSmallLexicon);
    f.engine->Text3_Change("??ab?");  // 3 of 6 characters
    EXPECT_TRUE(f.host.notices.empty());
    EXPECT_FALSE(f.host.titles.empty());
}

TEST(EngineRun, EmptyTextBecomesOneBlankAndRunsArmenianToEnglish) {
    EngineFixture f(kSmallLexicon);
    EXPECT_EQ(f.translate(""), " ");
    EXPECT_EQ(f.engine->Check1, 1);
    EXPECT_EQ(f.engine->state, RunState::Idle);
    ASSERT_FALSE(f.host.titles.empty());
    EXPECT_EQ(f.host.titles.front().english, "Translating from Armenian to English");
}

TEST(EngineRun, DoubleBlanksFoldInOnePassSoThreeBecomeTwo) {
    EngineFixture f(kSmallLexicon);
    FontText seen;
    f.host.onAsk = [&](const Question&) { seen = f.engine->SourceText; };
    f.translate("zorb  qux   wim");
    EXPECT_EQ(seen, "zorb qux  wim ");
}

TEST(EngineRun, FourBlanksFoldToTwoFiveToThreeAndABlankAtTheEdgesStays) {
    EngineFixture f(kSmallLexicon);
    FontText seen;
    f.host.onAsk = [&](const Question&) { seen = f.engine->SourceText; };
    f.translate("  zorb    qux     wim  ");
    EXPECT_EQ(seen, " zorb  qux   wim ");
}

TEST(EngineRun, TextEndingInBlankGetsNoSecondBlank) {
    EngineFixture f(kSmallLexicon);
    FontText seen;
    f.host.onAsk = [&](const Question&) { seen = f.engine->SourceText; };
    f.translate("zorb ");
    EXPECT_EQ(seen, "zorb ");
}

TEST(EngineRun, SpellModeShowsTheSpellCheckerTitles) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    f.engine->SpellMode = 1;
    f.translate("big");
    ASSERT_FALSE(f.host.titles.empty());
    EXPECT_EQ(f.host.titles.front().english, "ENGLISH SPELLCHECKER");
    EXPECT_EQ(f.host.titles.front().armenian, FontText("Սխալների ուղղում` անգլերենով"_ft));

    EngineFixture g(kSmallLexicon, kSmallArmenianLexicon);
    g.engine->SpellMode = 1;
    g.translate("մեծ");
    ASSERT_FALSE(g.host.titles.empty());
    EXPECT_EQ(g.host.titles.front().english, "ARMENIAN SPELLCHECKER");
    EXPECT_EQ(g.host.titles.front().armenian, FontText("Սխալների ուղղում` հայերենով"_ft));
}

TEST(EngineRun, QuotesAboveFourPercentOfArmenianTextStandForTheLetterE) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    EXPECT_EQ(f.translate("ս\"ր"), "love ");
    EXPECT_EQ(f.engine->Check1, 1);
}

TEST(EngineRun, QuotesBelowFourPercentOfArmenianTextEndWords) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    // One quote in 30 characters: about 3 percent.
    const std::string text = "ս\"ր մեծ մեծ մեծ մեծ մեծ մեծ";
    FontText font = fromUtf8(text);
    ASSERT_LT(1.0 / static_cast<double>(font.size() + 1) * 100.0, 4.0);
    const std::string out = f.translate(text);
    EXPECT_TRUE(out.starts_with("ս\"ր")) << out;
}

TEST(EngineRun, EditMarkIsClearedAtRunStart) {
    EngineFixture f(kSmallLexicon);
    f.host.setChecked(MenuItem::EdtTr, true);
    f.translate("big");
    EXPECT_FALSE(f.host.isChecked(MenuItem::EdtTr));
}

TEST(EngineRun, LetterCountsGoBackToOneAfterTheRun) {
    EngineFixture f(kSmallLexicon);
    f.translate("big red house");
    EXPECT_EQ(f.engine->EnglishCount, 1);
    EXPECT_EQ(f.engine->ArmenianCount, 1);
}

TEST(EngineRun, CountsAreTakenBeforeTheRun) {
    EngineFixture f(kSmallLexicon);
    std::int64_t english = 0;
    Var questions;
    Var quotes;
    f.host.onAsk = [&](const Question&) {
        english = f.engine->EnglishCount;
        questions = f.engine->QuestionCount;
        quotes = f.engine->QuoteCount;
    };
    f.translate("zorb? \"big\" red?");
    EXPECT_EQ(english, 1 + 4 + 3 + 3);
    EXPECT_TRUE(questions == 2);
    EXPECT_TRUE(quotes == 2);
}

TEST(EngineRun, ProgressClimbsToAHundredAndTheBarHidesAtTheEnd) {
    EngineFixture f(kSmallLexicon);
    f.translate("big red house, big red house.");
    ASSERT_FALSE(f.host.progressSteps.empty());
    EXPECT_TRUE(std::is_sorted(f.host.progressSteps.begin(), f.host.progressSteps.end()));
    EXPECT_EQ(f.host.progressSteps.back(), 100);
    EXPECT_FALSE(f.host.progressVisible);
}

TEST(EngineRun, InstantTranslationShowsNoProgressNoTimingTitleNoQuestion) {
    EngineFixture f(kSmallLexicon);
    f.host.setChecked(MenuItem::ITR, true);
    EXPECT_EQ(f.translate("big zorb"), "մեծ zorb ");
    EXPECT_TRUE(f.host.progressSteps.empty());
    EXPECT_FALSE(f.host.progressVisible);
    EXPECT_EQ(f.host.titles.size(), 1u);  // the direction only
    EXPECT_TRUE(f.host.questions.empty());
}

TEST(EngineRun, TimingTitleClosesARun) {
    EngineFixture f(kSmallLexicon);
    f.translate("big");
    ASSERT_GE(f.host.titles.size(), 2u);
    EXPECT_TRUE(std::regex_match(f.host.titles.back().english,
                                 std::regex("Translated in [0-9]+ minutes and [0-9]+ seconds\\.")));
    EXPECT_TRUE(std::regex_match(toUtf8(f.host.titles.back().armenian),
                                 std::regex("Թարգմանությունը տևեց [0-9]+ րոպե և [0-9]+ վայրկյան:")));
}

TEST(EngineRun, TermsFileExistsDuringTheRunAndIsDeletedAtTheEnd) {
    EngineFixture f(kSmallLexicon);
    bool existed = false;
    f.host.onAsk = [&](const Question&) { existed = std::filesystem::exists(f.data() / "zhamanakavor"); };
    f.translate("zorb");
    EXPECT_TRUE(existed);
    EXPECT_FALSE(std::filesystem::exists(f.data() / "zhamanakavor"));
}

TEST(EngineRun, TermsFileExistsWhileARunIsSuspendedAndIsDeletedWhenItEnds) {
    EngineFixture f(kSmallLexicon);
    f.engine->yieldBetweenWords = [] { return true; };
    f.translate("big house");
    ASSERT_EQ(f.engine->state, RunState::Suspended);
    EXPECT_TRUE(std::filesystem::exists(f.data() / "zhamanakavor"));
    f.engine->yieldBetweenWords = nullptr;
    f.engine->ankap0_DblClick();
    EXPECT_EQ(f.engine->state, RunState::Idle);
    EXPECT_FALSE(std::filesystem::exists(f.data() / "zhamanakavor"));
}

TEST(EngineRun, TermsFileLeftByAnEarlierProgramIsDeletedAtTheEndOfTheFirstRun) {
    EngineFixture f(kSmallLexicon);
    { std::ofstream(f.data() / "zhamanakavor") << "zorb"; }
    f.translate("big");
    EXPECT_FALSE(std::filesystem::exists(f.data() / "zhamanakavor"));
}

TEST(EngineRun, TermsFileIsDeletedAtTheEndOfEachRunThatMadeIt) {
    EngineFixture f(kSmallLexicon);
    f.host.setChecked(MenuItem::ITR, true);
    bool existed = false;
    for (const char* text : {"big", "zorb", "big", "quux big"}) {
        f.engine->yieldBetweenWords = [&] {
            existed = std::filesystem::exists(f.data() / "zhamanakavor") || existed;
            return false;
        };
        f.translate(text);
        EXPECT_FALSE(std::filesystem::exists(f.data() / "zhamanakavor")) << text;
    }
    EXPECT_TRUE(existed);
}

TEST(EngineRun, ARunThatHandsNoControlOutMakesNoTermsFile) {
    EngineFixture f(kSmallLexicon);
    f.host.setChecked(MenuItem::ITR, true);
    f.translate("big");  // the first run opens (and so makes) the pair list
    // Every name made in the data folder during the run is told by the kernel.
    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    ASSERT_GE(watch, 0);
    ASSERT_GE(::inotify_add_watch(watch, f.data().c_str(), IN_CREATE), 0);
    EXPECT_EQ(f.translate("zorb big quux zorb"), "zorb մեծ quux zorb ");
    alignas(inotify_event) char events[4096];
    const ssize_t got = ::read(watch, events, sizeof events);
    ::close(watch);
    EXPECT_EQ(got, -1) << "made in the data folder: "
                       << (got > 0 ? reinterpret_cast<inotify_event*>(events)->name : "");
    EXPECT_EQ(f.engine->stats.termsWritten, 2);
    EXPECT_FALSE(std::filesystem::exists(f.data() / "zhamanakavor"));
}

TEST(EngineRun, TermsMetBeforeTheRunHandsControlOutStandInTheirFileInOrder) {
    EngineFixture f(kSmallLexicon);
    f.host.setChecked(MenuItem::ITR, true);
    std::string seen;
    f.engine->yieldBetweenWords = [&] {
        std::ifstream in(f.data() / "zhamanakavor", std::ios::binary);
        seen.assign(std::istreambuf_iterator<char>(in), {});
        return false;
    };
    f.translate("zorb quux big");
    EXPECT_EQ(seen, std::string("zorb") + std::string(16, ' ') + "quux" + std::string(16, ' '));
    EXPECT_FALSE(std::filesystem::exists(f.data() / "zhamanakavor"));
}

TEST(EngineRun, TermsFileListsTheUnknownWordsOfEachRunAlone) {
    EngineFixture f(kSmallLexicon);
    f.host.setChecked(MenuItem::ITR, true);
    f.host.setChecked(MenuItem::SUT, true);
    EXPECT_NE(f.translate("zorb big").find("zorb"), std::string::npos);
    EXPECT_NE(f.host.result.find("LIST OF NON-TRANSLATED TERMS\r\nzorb"), std::string::npos);
    f.host.setChecked(MenuItem::SUT, true);
    f.translate("quux zorb");
    EXPECT_NE(f.host.result.find("LIST OF NON-TRANSLATED TERMS\r\nquux, zorb"), std::string::npos);
}

TEST(EngineRun, ResetSentenceClearsTheSentenceState) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.PendingCopula = "է"_ft;
    e.PendingEnding = "ից"_ft;
    e.ArticleEnding = "ը"_ft;
    e.ClassChain = "nn";
    e.SentenceClasses = "nav";
    e.PersonCode = 5;
    e.ModalFlag = 1;
    e.NegationMark = "չ"_ft;
    e.ThirdPersonFlag = 1;
    e.PerfectFlag = 1;
    e.HaveForm = 3;
    e.ImperativeFlag = 1;
    e.ContractionFlag = 1;
    e.ToMark = "to";
    e.DefiniteState = -1;
    e.EnglishAuxBack = 7;
    e.PendingPlural = 1;
    e.LinkFlag = 1;
    e.QuestionAsked = 1;
    e.NounEndingSeen = "10";
    e.HeldConjunction = "ու"_ft;
    e.AfterHaveBeen = 1;
    e.InsertText = "x";
    e.CopulaUsedMark = 1;
    e.WhileFlag = 1;
    e.CanFlag = 1;
    e.IndefiniteFlag = 1;
    e.SecondLook = 1;
    e.FutureParticle = 1;
    e.resetSentence();
    EXPECT_TRUE(e.PendingCopula.empty());
    EXPECT_TRUE(e.PendingEnding.empty());
    EXPECT_TRUE(e.ArticleEnding.empty());
    EXPECT_TRUE(e.ClassChain.empty());
    EXPECT_TRUE(e.SentenceClasses.empty());
    EXPECT_TRUE(e.PersonCode.empty());
    EXPECT_TRUE(e.ModalFlag.empty());
    EXPECT_TRUE(e.NegationMark.empty());
    EXPECT_TRUE(e.ThirdPersonFlag.empty());
    EXPECT_TRUE(e.PerfectFlag.empty());
    EXPECT_TRUE(e.HaveForm.empty());
    EXPECT_TRUE(e.ImperativeFlag.empty());
    EXPECT_TRUE(e.ContractionFlag.empty());
    EXPECT_TRUE(e.ToMark.empty());
    EXPECT_TRUE(e.DefiniteState == 0);  // to 0, not to empty
    EXPECT_FALSE(e.DefiniteState.empty());
    EXPECT_EQ(e.EnglishAuxBack, 0);
    EXPECT_TRUE(e.PendingPlural.empty());
    EXPECT_TRUE(e.LinkFlag.empty());
    EXPECT_TRUE(e.QuestionAsked.empty());
    EXPECT_TRUE(e.NounEndingSeen.empty());
    EXPECT_TRUE(e.HeldConjunction.empty());
    EXPECT_TRUE(e.AfterHaveBeen.empty());
    EXPECT_TRUE(e.InsertText.empty());
    EXPECT_TRUE(e.CopulaUsedMark.empty());
    EXPECT_TRUE(e.WhileFlag.empty());
    EXPECT_TRUE(e.CanFlag.empty());
    EXPECT_TRUE(e.IndefiniteFlag.empty());
    EXPECT_TRUE(e.SecondLook.empty());
    EXPECT_TRUE(e.FutureParticle.empty());
}

TEST(EngineRun, ResetWordClearsTheWordButLeavesItsPendingEnding) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.CurrentWord = "big";
    e.WordGloss = "մեծ"_ft;
    e.ToMark = "to";
    e.VerbFormMark = "ում"_ft;
    e.CapitalFlag = 1;
    e.PendingEnding = "ի մեջ"_ft;
    e.resetWord();
    EXPECT_TRUE(e.CurrentWord.empty());
    EXPECT_TRUE(e.WordGloss.empty());
    EXPECT_TRUE(e.ToMark.empty());
    EXPECT_TRUE(e.VerbFormMark.empty());
    EXPECT_TRUE(e.CapitalFlag.empty());
    EXPECT_EQ(e.PendingEnding, FontText("ի մեջ"_ft));
}

TEST(EngineRun, ResetRunPutsTheTermCountBackToOne) {
    EngineFixture f(kSmallLexicon);
    Engine& e = *f.engine;
    e.TermCount = 9;
    e.RawWord = "zorb";
    e.PhraseTail = "x";
    e.SpellMode = 1;
    e.AnswerCode = 6;
    e.UnknownCount = 4;
    e.resetRun();
    EXPECT_EQ(e.TermCount, 1);
    EXPECT_TRUE(e.RawWord.empty());
    EXPECT_TRUE(e.PhraseTail.empty());
    EXPECT_TRUE(e.SpellMode.empty());
    EXPECT_EQ(e.AnswerCode, 0);
    EXPECT_EQ(e.UnknownCount, 0);
}

TEST(EngineRun, DirectionFlagIsCheck1) {
    EngineFixture f(kSmallLexicon, kSmallArmenianLexicon);
    f.translate("մեծ");
    EXPECT_EQ(f.engine->DirectionFlag, 1);
    f.engine->DirectionFlag = 0;
    EXPECT_EQ(f.engine->Check1, 0);
}

TEST(EngineVar, EmptyAndZeroAreDistinct) {
    Var v;
    EXPECT_TRUE(v.empty());
    EXPECT_FALSE(v == 0);
    EXPECT_EQ(v.number(), 0);
    v = 0;
    EXPECT_FALSE(v.empty());
    EXPECT_TRUE(v == 0);
    v = 1;
    EXPECT_TRUE(v.isSet());
    EXPECT_TRUE(v == "1");
    v = "եմ "_ft;
    EXPECT_FALSE(v == 1);
    EXPECT_TRUE(v == "եմ "_ft);
    EXPECT_FALSE(v.isNumber());
    v = -1;
    EXPECT_TRUE(v == -1);
    EXPECT_EQ(v.number(), -1);
}

}  // namespace
}  // namespace vorlexa::test
