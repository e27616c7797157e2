// Every edit of a dictionary is on disk when the call returns: a process killed right after it
// leaves the edit behind, and the records around it as they were.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <functional>

#include "dict_tools_fixture.h"
#include "dictionary_tools/expressions.h"

namespace vorlexa::test {
namespace {

const std::string kEnglish =
    "house\tտուն\tn\n"
    "hotel\tհյուրանոց\tn\n"
    "big\tմեծ\ta\n";

constexpr std::int64_t kHoColumn = 26 * 7 + 15;

class WriteThroughTest : public DictToolsTest {
  protected:
    void SetUp() override { build(kEnglish, "տուն\thouse\tn\n"); }

    // Runs the edit in a child process over its own store, which is killed the moment the edit
    // returns; nothing of the child runs after it, no destructor, no flush.
    void editThenKill(const std::function<bool(DictionaryStore&)>& edit) {
        const pid_t child = fork();
        ASSERT_NE(child, -1);
        if (child == 0) {
            DictionaryStore own;
            if (!own.open(data()) || !edit(own)) _exit(1);
            kill(getpid(), SIGKILL);
            _exit(2);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status))
            << "the child ended by itself with " << WEXITSTATUS(status);
        EXPECT_EQ(WTERMSIG(status), SIGKILL);
    }

    DictRecord reopened(Direction d, std::int64_t n) {
        DictionaryStore again;
        EXPECT_TRUE(again.open(data()));
        DictRecord r;
        r.raw = again.source(d).read(n);
        return r;
    }
};

TEST_F(WriteThroughTest, ChangeSurvivesAKillRightAfterIt) {
    const std::string below = file(kEA).read(kHoColumn + kEnglishStride);
    const std::string end = file(kEA).read(kHoColumn + 2 * kEnglishStride);
    const std::string left = file(kEA).read(kHoColumn - 1);
    editThenKill([](DictionaryStore& s) {
        return changeRecord(s, kEA, kHoColumn, DictRecord::make("house", fontOf("շենք"), "n"));
    });
    EXPECT_EQ(reopened(kEA, kHoColumn).raw, DictRecord::make("house", fontOf("շենք"), "n").raw);
    EXPECT_EQ(reopened(kEA, kHoColumn + kEnglishStride).raw, below);
    EXPECT_EQ(reopened(kEA, kHoColumn + 2 * kEnglishStride).raw, end);
    EXPECT_TRUE(reopened(kEA, kHoColumn + 2 * kEnglishStride).isNull());
    EXPECT_EQ(reopened(kEA, kHoColumn - 1).raw, left);
}

TEST_F(WriteThroughTest, DeleteSurvivesAKillRightAfterIt) {
    editThenKill([](DictionaryStore& s) { return deleteRecord(s, kEA, kHoColumn); });
    EXPECT_TRUE(reopened(kEA, kHoColumn).isFreed());
    EXPECT_EQ(reopened(kEA, kHoColumn + kEnglishStride).key(), "hotel");
}

TEST_F(WriteThroughTest, AddedWordAndItsMovedEndSurviveAKill) {
    editThenKill([](DictionaryStore& s) {
        return insertWordPair(s, kEA, "hold", fontOf("պահել"), "v").record.has_value();
    });
    EXPECT_EQ(reopened(kEA, kHoColumn + 2 * kEnglishStride).key(), "hold");
    EXPECT_TRUE(reopened(kEA, kHoColumn + 3 * kEnglishStride).isNull());
    DictionaryStore again;
    ASSERT_TRUE(again.open(data()));
    EXPECT_TRUE(again.findArmenian(fontOf("պահել")));
}

TEST_F(WriteThroughTest, WordCorrectorChangeSurvivesAKill) {
    editThenKill([](DictionaryStore& s) {
        RecordingCorrectorView view;
        WordCorrector corrector(s, view);
        corrector.Text1 = "big";
        corrector.Command3_Click();
        corrector.Text2 = fontOf("խոշոր");
        corrector.Command4_Click();
        return view.notices.empty();
    });
    DictionaryStore again;
    ASSERT_TRUE(again.open(data()));
    const auto at = again.findEnglish("big");
    ASSERT_TRUE(at);
    DictRecord r;
    r.raw = again.english().read(*at);
    EXPECT_EQ(r.gloss(), fontOf("խոշոր"));
}

TEST_F(WriteThroughTest, ExpressionSurvivesAKill) {
    editThenKill(
        [this](DictionaryStore&) { return addExpression(data(), "big", "large").record == 1; });
    RecordFile list;
    ASSERT_TRUE(list.open(data() / "uxxume", kPairRecordLength));
    EXPECT_EQ(list.read(1), expressionRecord("big", "large"));
    EXPECT_EQ(trimBlanks(list.read(2)), "null");
}

}  // namespace
}  // namespace vorlexa::test
