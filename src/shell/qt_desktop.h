// The desktop's services behind app::Desktop: the clipboard, the colour chooser, the browser,
// the default application of a file type, and other programs started without waiting.
#pragma once

#include <QColor>
#include <functional>

#include "app/desktop.h"

class QWidget;

namespace vorlexa::shell {

// Colours as the settings keep them, 0x00BBGGRR, and back.
QColor colorOfBgr(std::int64_t bgr);
std::int64_t bgrOf(const QColor& color);

class QtDesktop : public app::Desktop {
public:
    explicit QtDesktop(QWidget* parent) : parent_(parent) {}

    FontText clipboardText() const override;
    void setClipboardText(const FontText& text) override;
    void clearClipboard() override;
    std::optional<std::int64_t> chooseColor(std::int64_t current) override;
    bool openUrl(const std::string& url) override;
    bool openFile(const std::filesystem::path& file) override;
    std::optional<std::filesystem::path> findProgram(std::string_view name) const override;
    bool startProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments) override;
    void endProgram() override;

    std::function<void()> onEnd;  // the main window's own ending

private:
    QWidget* parent_;
};

// Forwards to another desktop, which tests may swap for one that starts nothing.
class DesktopProxy : public app::Desktop {
public:
    explicit DesktopProxy(app::Desktop* target) : target_(target) {}
    void setTarget(app::Desktop* target) { target_ = target; }

    FontText clipboardText() const override { return target_->clipboardText(); }
    void setClipboardText(const FontText& text) override { target_->setClipboardText(text); }
    void clearClipboard() override { target_->clearClipboard(); }
    std::optional<std::int64_t> chooseColor(std::int64_t current) override { return target_->chooseColor(current); }
    bool openUrl(const std::string& url) override { return target_->openUrl(url); }
    bool openFile(const std::filesystem::path& file) override { return target_->openFile(file); }
    std::optional<std::filesystem::path> findProgram(std::string_view name) const override {
        return target_->findProgram(name);
    }
    bool startProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments) override {
        return target_->startProgram(program, arguments);
    }
    void endProgram() override { target_->endProgram(); }

private:
    app::Desktop* target_;
};

}  // namespace vorlexa::shell
