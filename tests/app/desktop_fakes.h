// A desktop that starts nothing, for the tests of the dialog and of the small menu commands:
// what would have been started, opened or put on the clipboard is recorded.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/app_fixture.h"
#include "app/desktop.h"
#include "app/fake_view.h"
#include "app/main_form.h"
#include "support/temp_folder.h"

namespace vorlexa::test {

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
