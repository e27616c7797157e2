// The spell-check pass over the engine: the question per unplaced word, the suggestions handed to
// the window, the replacement in the text of the pass, the words asked about once, the dialect
// question, the end of the pass, and the question after a transliteration.
#include <gtest/gtest.h>

#include "engine/engine_fixture.h"
#include "spell/spell_pass.h"
#include "spell_fixture.h"

namespace vorlexa::test {
namespace {

using namespace literals;

// A host with a suggestion panel: it says Yes to correcting, keeps what it is shown and, when
// told, picks the right spelling for the word.
class SpellHost : public ScriptedHost, public spell::SpellPanel {
  public:
    int ask(const Question& q) override {
        questions.push_back(q);
        if (q.kind == QuestionKind::CorrectUnknownWord) return correct ? kAnswerYes : kAnswerNo;
        if (q.kind == QuestionKind::DialectRepair) return dialectAnswer;
        return genericAnswer;
    }
    void showSuggestions(const spell::SpellResult& r) override { shown.push_back(r); }
    void setBusy(bool b) override {
        NullHost::setBusy(b);
        busySteps.push_back(b);
    }

    bool correct = true;
    int dialectAnswer = kAnswerNo;
    int genericAnswer = kAnswerNo;
    std::vector<spell::SpellResult> shown;
    std::vector<bool> busySteps;
};

class PassFixture {
  public:
    explicit PassFixture(const std::string& armenianEnglish = kSpellLexicon) {
        folder_.write("source/lexicon/en-hy.tsv", "house\tտուն\tn\nbig\tմեծ\ta\n");
        folder_.write("source/pairs/uxxumy.tsv", "\" ա \"\t\" է \"\n");
        folder_.write("source/lexicon/hy-en.tsv", armenianEnglish);
        const CompileReport report = buildDataFolder(folder_ / "source", folder_ / "data");
        for (const auto& d : report.diagnostics) ADD_FAILURE() << d.str();
        store.open(folder_ / "data");
        engine = std::make_unique<Engine>(store, folder_ / "data", host);
    }

    // Puts the text into the result box and starts a pass as the menu item does.
    void pass(const std::string& utf8, bool suggest = true) {
        host.result = fromUtf8(utf8);
        spell::startPass(*engine, suggest, [this](const FontText& t) { engine->Text3_Change(t); });
    }

    std::vector<std::string> questionedWords() const {
        std::vector<std::string> out;
        for (const Question& q : host.questions)
            if (q.kind == QuestionKind::CorrectUnknownWord) out.push_back(toUtf8(q.subject));
        return out;
    }

    TempFolder folder_;
    DictionaryStore store;
    SpellHost host;
    std::unique_ptr<Engine> engine;
};

std::vector<std::string> utf8(const std::vector<FontText>& list) {
    std::vector<std::string> out;
    for (const FontText& s : list) out.push_back(toUtf8(s));
    return out;
}

TEST(SpellPass, QuestionsEachUnplacedWordAndOffersItsRightSpelling) {
    PassFixture f;
    f.pass("մեծ քիրք, ջետ և գույղ:");
    // Each stop offers the suggestions; the first suggestion replaces the word.
    const std::vector<std::string> right = {"գիրք", "գետ", "գյուղ"};
    std::size_t n = 0;
    while (f.engine->state == RunState::Waiting) {
        ASSERT_LT(n, right.size()) << toUtf8(f.host.shown.back().Text1);
        ASSERT_EQ(f.host.shown.size(), n + 1) << toUtf8(f.host.shown.back().Text1);
        const std::vector<std::string> offered = utf8(f.host.shown[n].List1);
        EXPECT_TRUE(contains(offered, right[n])) << n;
        spell::replaceInPass(*f.engine, f.host.shown[n].Text1, fromUtf8(right[n]));
        ++n;
    }
    EXPECT_EQ(f.questionedWords(), (std::vector<std::string>{"քիրք", "ջետ", "գույղ"}));
    ASSERT_FALSE(f.host.notices.empty());
    EXPECT_EQ(f.host.notices.back().text.english, "Spell-Check is completed.");
    EXPECT_EQ(f.host.notices.back().title.english, "Spellchecker");
    EXPECT_EQ(toUtf8(f.host.notices.back().text.armenian), "Սխալների ուղղումն ավարտվեց:");
    EXPECT_EQ(toUtf8(f.host.notices.back().title.armenian), "Սխալների ուղղում");
    EXPECT_TRUE(toUtf8(f.host.result).starts_with("մեծ գիրք, գետ և գյուղ:"));
    EXPECT_FALSE(f.engine->SpellMode.isSet());
}

TEST(SpellPass, QuestionHasBothWordings) {
    PassFixture f;
    f.host.correct = false;
    f.pass("քիրք");
    ASSERT_EQ(f.questionedWords().size(), 1u);
    const Question& q = f.host.questions.front();
    EXPECT_EQ(toUtf8(q.text.english), "Word 'քիրք' - not recognised!\r\nTo be corrected?");
    EXPECT_EQ(q.title.english, "Spellchecker");
    EXPECT_EQ(toUtf8(q.text.armenian), "«քիրք» բառը չի ճանաչվել:\r\nՈւղղե՞լ");
}

TEST(SpellPass, WordAnsweredNoIsNotAskedAboutASecondTime) {
    PassFixture f;
    f.host.correct = false;
    f.pass("քիրք մեծ քիրք");
    EXPECT_EQ(f.questionedWords(), std::vector<std::string>{"քիրք"});
    EXPECT_EQ(f.engine->state, RunState::Idle);
    EXPECT_TRUE(toUtf8(f.host.result).starts_with("քիրք մեծ քիրք"));
}

TEST(SpellPass, LeavingAWordGoesOnAfterIt) {
    PassFixture f;
    f.pass("քիրք մեծ");
    ASSERT_EQ(f.engine->state, RunState::Waiting);
    spell::skipInPass(*f.engine);
    EXPECT_EQ(f.engine->state, RunState::Idle);
    EXPECT_TRUE(toUtf8(f.host.result).starts_with("քիրք մեծ"));
}

TEST(SpellPass, ReplacementIsCheckedAgain) {
    PassFixture f;
    f.pass("քիրք մեծ");
    ASSERT_EQ(f.engine->state, RunState::Waiting);
    // A replacement the translator cannot place either is questioned in its turn.
    spell::replaceInPass(*f.engine, fromUtf8("քիրք"), fromUtf8("քիրքք"));
    EXPECT_EQ(f.questionedWords(), (std::vector<std::string>{"քիրք", "քիրքք"}));
}

TEST(SpellPass, HourglassShowsWhileSuggestionsAreMade) {
    PassFixture f;
    f.pass("քիրք մեծ");
    ASSERT_EQ(f.host.busySteps.size(), 2u);
    EXPECT_TRUE(f.host.busySteps[0]);
    EXPECT_FALSE(f.host.busySteps[1]);
}

TEST(SpellPass, WithoutSuggestionsTheWordIsOfferedAsItStands) {
    PassFixture f;
    f.pass("քիրք", false);
    EXPECT_TRUE(f.host.isChecked(MenuItem::DSO));
    ASSERT_EQ(f.host.shown.size(), 1u);
    EXPECT_TRUE(f.host.shown[0].List1.empty());
    EXPECT_EQ(toUtf8(f.host.shown[0].Text2), "քիրք");
}

TEST(SpellPass, SuggestingPassUnchecksDso) {
    PassFixture f;
    f.host.setChecked(MenuItem::DSO, true);
    f.host.setChecked(MenuItem::ITR, true);
    f.pass("մեծ");
    EXPECT_FALSE(f.host.isChecked(MenuItem::DSO));
    EXPECT_FALSE(f.host.isChecked(MenuItem::ITR));
}

TEST(SpellPass, WordInQuestionIsSelectedInTheResultBox) {
    PassFixture f;
    f.pass("մեծ քիրք");
    ASSERT_EQ(f.engine->state, RunState::Waiting);
    EXPECT_EQ(f.host.selectionStart, 5);  // 1-based: "մեծ " is four characters
    EXPECT_EQ(f.host.selectionLength, 4);
}

TEST(SpellPass, LoneAOffersTheDialectRepairAndThenItsCorrection) {
    PassFixture f;
    f.pass("մեծ ա:");
    std::vector<QuestionKind> kinds;
    for (const Question& q : f.host.questions) kinds.push_back(q.kind);
    EXPECT_EQ(kinds, (std::vector<QuestionKind>{QuestionKind::CorrectUnknownWord,
                                                QuestionKind::DialectRepair}));
    ASSERT_EQ(f.host.shown.size(), 1u);
    // "ա" for "է": the word with a character either side, and "է" with the character after it.
    EXPECT_EQ(toUtf8(f.host.shown[0].Text1), " ա:");
    EXPECT_EQ(toUtf8(f.host.shown[0].Text2), " է:");
    EXPECT_EQ(f.engine->state, RunState::Waiting);
    spell::replaceInPass(*f.engine, f.host.shown[0].Text1, f.host.shown[0].Text2);
    EXPECT_EQ(f.engine->state, RunState::Idle);
    EXPECT_TRUE(toUtf8(f.host.result).starts_with("մեծ է:"));
}

TEST(SpellPass, DialectRepairIsKeptAndThePassGoesOverTheRepairedText) {
    PassFixture f;
    f.host.dialectAnswer = kAnswerYes;
    f.pass("մեծ ա քիրք:");
    // " ա " became " է "; the pass went over the repaired text and stopped at the next word.
    ASSERT_EQ(f.engine->state, RunState::Waiting);
    EXPECT_EQ(f.questionedWords(), (std::vector<std::string>{"ա", "քիրք"}));
    ASSERT_EQ(f.host.shown.size(), 1u);
    spell::replaceInPass(*f.engine, f.host.shown[0].Text1, fromUtf8("գիրք"));
    EXPECT_EQ(f.engine->state, RunState::Idle);
    EXPECT_TRUE(toUtf8(f.host.result).starts_with("մեծ է գիրք:")) << toUtf8(f.host.result);
}

TEST(SpellPass, DialectQuestionIsOnlyForTheLoneA) {
    PassFixture f;
    f.host.correct = true;
    f.pass("քիրք");
    for (const Question& q : f.host.questions) EXPECT_NE(q.kind, QuestionKind::DialectRepair);
}

TEST(SpellPass, EmptyTextEndsAtOnceWithTheMessage) {
    PassFixture f;
    f.pass("");
    EXPECT_EQ(f.engine->state, RunState::Idle);
    ASSERT_EQ(f.host.notices.size(), 1u);
    EXPECT_EQ(f.host.notices[0].text.english, "Spell-Check is completed.");
}

TEST(SpellPass, LongWordAndLongLineEndWithoutSuggestions) {
    PassFixture f;
    std::string word;
    for (int i = 0; i < 200; ++i) word += "ք";
    f.pass(word);
    ASSERT_EQ(f.host.shown.size(), 1u);
    EXPECT_TRUE(f.host.shown[0].List1.empty());
    spell::skipInPass(*f.engine);
    EXPECT_EQ(f.engine->state, RunState::Idle);
}

TEST(CorrectorWorning, NoLeavesTheTextAlone) {
    PassFixture f;
    f.host.result = fromUtf8("քիրք");
    int runs = 0;
    EXPECT_EQ(spell::CorrectorWorning(*f.engine, [&](const FontText&) { ++runs; }), kAnswerNo);
    EXPECT_EQ(runs, 0);
    ASSERT_EQ(f.host.questions.size(), 1u);
    EXPECT_EQ(f.host.questions[0].text.english, "Would you like to check spelling?");
    EXPECT_EQ(f.host.questions[0].title.english, "Attention");
    EXPECT_EQ(toUtf8(f.host.questions[0].text.armenian), "Կկամենայի՞ք կատարել սխալների ուղղում:");
    EXPECT_EQ(toUtf8(f.host.questions[0].title.armenian), "Ուշադրություն");
    EXPECT_EQ(f.engine->AnswerCode, 0);
}

TEST(CorrectorWorning, YesStartsAPassWithSuggestions) {
    PassFixture f;
    f.host.genericAnswer = kAnswerYes;
    f.host.result = fromUtf8("քիրք");
    f.host.setChecked(MenuItem::DSO, true);
    spell::CorrectorWorning(*f.engine, [&](const FontText& t) { f.engine->Text3_Change(t); });
    EXPECT_FALSE(f.host.isChecked(MenuItem::DSO));
    EXPECT_EQ(f.questionedWords(), std::vector<std::string>{"քիրք"});
    ASSERT_EQ(f.host.shown.size(), 1u);
    EXPECT_TRUE(contains(utf8(f.host.shown[0].List1), "գիրք"));
    EXPECT_EQ(f.engine->AnswerCode, 0);
}

}  // namespace
}  // namespace vorlexa::test
