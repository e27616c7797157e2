// What the Qt tests of the windows share: a prompter that answers from a script, and the small
// helpers that write a data folder's sources and spell Unicode literals.
#pragma once

#include <QString>
#include <QStringList>
#include <QTest>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>

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

// A main window on the data folder, started and drawn; its questions go to the prompter.
inline std::unique_ptr<Form1> startWindow(const std::filesystem::path& data, Prompter& prompter) {
    auto window = std::make_unique<Form1>();
    window->setPrompter(&prompter);
    window->saveForExit = [] { return true; };
    if (window->start(data, {}) != app::StartResult::Started) qFatal("the window did not start");
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get())) qWarning("window not exposed");
    return window;
}

inline QString u(const char* utf8) {
    return QString::fromUtf8(utf8);
}

}  // namespace vorlexa::shell::test
