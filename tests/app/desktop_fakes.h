// A main window without widgets and a desktop that starts nothing, for the tests of the dialog
// and of the small menu commands: what would have been started, opened or put on the clipboard
// is recorded.
#pragma once

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/app_fixture.h"
#include "app/desktop.h"
#include "app/main_form.h"
#include "support/temp_folder.h"

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
    int runs = 0;

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
    void progressChanged(int) override {}
    void stateChanged() override {}
    void minimise() override {}
    void setBusy(bool) override {}

    std::string lastNotice() const { return notices.empty() ? std::string() : toUtf8(notices.back().text.english); }
};

class FakeDesktop : public app::Desktop {
public:
    struct Started {
        std::filesystem::path program;
        std::vector<std::string> arguments;
    };

    FontText clipboard;
    int clipboardClears = 0;
    std::optional<std::int64_t> colorAnswer;
    std::set<std::string> programs;  // command names found, as /usr/bin/NAME
    bool defaultApplication = false;  // openFile finds an application for the type
    bool browserWorks = true;
    std::vector<std::filesystem::path> openedFiles;
    std::vector<std::string> urls;
    std::vector<Started> started;
    bool ended = false;

    FontText clipboardText() const override { return clipboard; }
    void setClipboardText(const FontText& text) override { clipboard = text; }
    void clearClipboard() override {
        clipboard.clear();
        ++clipboardClears;
    }
    std::optional<std::int64_t> chooseColor(std::int64_t) override { return colorAnswer; }
    bool openUrl(const std::string& url) override {
        urls.push_back(url);
        return browserWorks;
    }
    bool openFile(const std::filesystem::path& file) override {
        if (!defaultApplication) return false;
        openedFiles.push_back(file);
        return true;
    }
    std::optional<std::filesystem::path> findProgram(std::string_view name) const override {
        if (!programs.count(std::string(name))) return std::nullopt;
        return std::filesystem::path("/usr/bin") / name;
    }
    bool startProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments) override {
        started.push_back({program, arguments});
        return true;
    }
    void endProgram() override { ended = true; }
};

// A started main window over the fixture data, with the fake view and desktop.
struct ShellFixture {
    TempFolder dir;
    std::filesystem::path data = buildFixtureData(dir);
    FakeView view;
    FakeDesktop desktop;
    std::unique_ptr<app::MainForm> form = std::make_unique<app::MainForm>(view);

    ShellFixture() {
        view.form = form.get();
        EXPECT_EQ(form->Form_Load(data, {}), app::StartResult::Started);
    }
    ~ShellFixture() { form->finish(); }
};

}  // namespace vorlexa::test
