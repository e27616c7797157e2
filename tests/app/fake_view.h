// A main window without widgets: the two boxes as strings, questions answered from a script,
// and what the window was told to show kept for the tests to read.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "app/main_form.h"

namespace vorlexa::test {

class FakeView : public app::Form1View {
public:
    app::MainForm* form = nullptr;
    FontText Text3;
    FontText Text4;
    app::TextSelection selection;
    std::deque<int> answers;  // empty: every question is answered No
    std::vector<Question> questions;
    std::vector<Notice> notices;
    std::vector<int> drawnProgress;
    int runs = 0;
    bool minimised = false;

    int ask(const Question& q, app::Language) override {
        questions.push_back(q);
        if (answers.empty()) return kAnswerNo;
        const int a = answers.front();
        answers.pop_front();
        return a;
    }
    void notify(const Notice& n, app::Language) override { notices.push_back(n); }
    FontText text3() const override { return Text3; }
    void setText3(const FontText& t) override {
        Text3 = t;
        ++runs;
        if (form) form->Text3_Change(t);
    }
    FontText text4() const override { return Text4; }
    void setText4(const FontText& t) override { Text4 = t; }
    app::TextSelection text4Selection() const override { return selection; }
    void selectText4(app::TextSelection s) override { selection = s; }
    void progressChanged(int percent) override { drawnProgress.push_back(percent); }
    void stateChanged() override {}
    void minimise() override {
        minimised = true;
        events.push_back("minimise");
    }
    void setBusy(bool) override {}
    void restoreAfterUnattendedRun() override {
        minimised = false;
        events.push_back("restore");
    }
    std::vector<std::string> events;  // the window's minimise and restore, in order

    std::vector<QuestionKind> kinds() const {
        std::vector<QuestionKind> k;
        for (const auto& q : questions) k.push_back(q.kind);
        return k;
    }
    // The English wording of the last notice, or nothing.
    std::string lastNotice() const { return notices.empty() ? std::string() : toUtf8(notices.back().text.english); }
};

}  // namespace vorlexa::test
