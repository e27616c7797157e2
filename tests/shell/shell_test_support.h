// What the Qt tests of the windows share: a prompter that answers from a script, and the small
// helpers that write a data folder's sources and spell Unicode literals.
#pragma once

#include <QString>
#include <QStringList>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>

#include "shell/form1.h"

namespace vorlexa::shell::test {

// Answers the window's questions from a script; No once the script is used up.
class ScriptedPrompter : public Prompter {
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

inline void writeFile(const std::filesystem::path& path, const char* text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

inline QString u(const char* utf8) {
    return QString::fromUtf8(utf8);
}

}  // namespace vorlexa::shell::test
