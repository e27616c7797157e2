// The terminal host of vorlexa-cli --ask, over string streams.
#include <gtest/gtest.h>

#include <sstream>

#include "cli/terminal_host.h"
#include "text/font_text.h"

namespace vorlexa::cli {
namespace {

Question addWordQuestion(const char* word) {
    Question q;
    q.kind = QuestionKind::AddUnknownWord;
    q.subject = word;
    q.text.english = std::string("No Word '") + word + "' In Dictionary.\r\nShall We Add it Now?";
    q.title.english = "Attention !!!";
    return q;
}

TEST(TerminalHost, YesAndNoAnswers) {
    std::istringstream in("y\nn\n\nyes\n");
    std::ostringstream out;
    TerminalHost host(in, out);
    Question q;
    q.text.english = "Go on?";
    q.title.english = "Note";
    EXPECT_EQ(host.ask(q), kAnswerYes);
    EXPECT_EQ(host.ask(q), kAnswerNo);
    EXPECT_EQ(host.ask(q), kAnswerNo);
    EXPECT_EQ(host.ask(q), kAnswerYes);
    EXPECT_EQ(host.ask(q), kAnswerNo);  // the input has ended
    EXPECT_NE(out.str().find("[Note]\nGo on?\n[y/N] "), std::string::npos) << out.str();
}

TEST(TerminalHost, AddingAWordAsksForItsGlossAndTag) {
    std::istringstream in("y\nզորբ\na\n");
    std::ostringstream out;
    TerminalHost host(in, out);
    EXPECT_EQ(host.ask(addWordQuestion("zorb")), kAnswerYes);
    host.openAddWordPanel("zorb");
    const auto word = host.takePendingWord();
    ASSERT_TRUE(word.has_value());
    EXPECT_EQ(word->key, "zorb");
    EXPECT_EQ(toUtf8(word->gloss), "զորբ");
    EXPECT_EQ(word->tag, "a");
    EXPECT_FALSE(host.takePendingWord().has_value());
    EXPECT_NE(out.str().find("No Word 'zorb' In Dictionary.\nShall We Add it Now?"), std::string::npos);
}

TEST(TerminalHost, TagDefaultsToNoun) {
    std::istringstream in("y\nզորբ\n\n");
    std::ostringstream out;
    TerminalHost host(in, out);
    EXPECT_EQ(host.ask(addWordQuestion("zorb")), kAnswerYes);
    host.openAddWordPanel("zorb");
    EXPECT_EQ(host.takePendingWord()->tag, "n");
}

TEST(TerminalHost, EmptyOrBadGlossLeavesTheWord) {
    std::istringstream in("y\n\ny\nզորբ\nq\n");
    std::ostringstream out;
    TerminalHost host(in, out);
    EXPECT_EQ(host.ask(addWordQuestion("zorb")), kAnswerNo);
    EXPECT_EQ(host.ask(addWordQuestion("zorb")), kAnswerNo);  // "q" is no tag
    EXPECT_NE(out.str().find("Not added:"), std::string::npos);
}

TEST(TerminalHost, MessageBoxLineBreaksBecomeLines) {
    EXPECT_EQ(terminalText("a\n\rb\r\nc\rd"), "a\nb\nc\nd");
}

}  // namespace
}  // namespace vorlexa::cli
