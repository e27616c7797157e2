// Answers the windows' questions from a script, and keeps what was asked and told.
#pragma once

#include <QString>
#include <QStringList>
#include <deque>
#include <functional>

#include "shell/form1.h"

namespace vorlexa::test {

// Answers the window's questions from a script; No once the script is used up.
class ScriptedPrompter : public shell::Prompter {
public:
    std::deque<int> answers;
    QStringList asked;
    QStringList notices;
    std::function<void()> whenAsked;  // looks at the window while the question stands

    int ask(QWidget*, const QString& title, const QString& text, Buttons) override {
        asked << title + QStringLiteral(" | ") + text;
        if (whenAsked) whenAsked();
        if (answers.empty()) return kAnswerNo;
        const int a = answers.front();
        answers.pop_front();
        return a;
    }
    void notify(QWidget*, const QString&, const QString& text) override { notices << text; }
};

}  // namespace vorlexa::test
