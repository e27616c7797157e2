#include "shell/qt_desktop.h"

#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

#include "shell/qt_text.h"

namespace vorlexa::shell {

FontText QtDesktop::clipboardText() const { return fontText(QGuiApplication::clipboard()->text()); }

void QtDesktop::setClipboardText(const FontText& text) { QGuiApplication::clipboard()->setText(boxText(text)); }

void QtDesktop::clearClipboard() { QGuiApplication::clipboard()->clear(); }

QColor colorOfBgr(std::int64_t bgr) {
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF), static_cast<int>((bgr >> 16) & 0xFF));
}

std::int64_t bgrOf(const QColor& color) {
    return static_cast<std::int64_t>(color.red()) | (static_cast<std::int64_t>(color.green()) << 8) |
           (static_cast<std::int64_t>(color.blue()) << 16);
}

std::optional<std::int64_t> QtDesktop::chooseColor(std::int64_t current) {
    const QColor chosen = QColorDialog::getColor(colorOfBgr(current), parent_);
    if (!chosen.isValid()) return std::nullopt;
    return bgrOf(chosen);
}

bool QtDesktop::openUrl(const std::string& url) { return QDesktopServices::openUrl(QUrl(QString::fromStdString(url))); }

bool QtDesktop::openFile(const std::filesystem::path& file) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(file.string())));
}

std::optional<std::filesystem::path> QtDesktop::findProgram(std::string_view name) const {
    const QString found = QStandardPaths::findExecutable(captionText(name));
    if (found.isEmpty()) return std::nullopt;
    return std::filesystem::path(found.toStdString());
}

bool QtDesktop::startProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
    QStringList args;
    for (const std::string& a : arguments) args << QString::fromStdString(a);
    return QProcess::startDetached(QString::fromStdString(program.string()), args);
}

void QtDesktop::endProgram() {
    if (onEnd) onEnd();
}

}  // namespace vorlexa::shell
