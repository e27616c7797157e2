#include "shell/shell_menus.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QPlainTextEdit>

#include "shell/dialog.h"
#include "shell/form1.h"
#include "shell/frm_about.h"
#include "shell/printing.h"

#ifndef VORLEXA_VERSION
#define VORLEXA_VERSION "0.0.0"
#endif

namespace vorlexa::shell {

ShellMenus::ShellMenus(Form1& window) : window_(window), desktop_(&window), proxy_(&desktop_) {
    desktop_.onEnd = [this] { window_.endProgram(); };
    dialog_ = std::make_unique<Dialog>(window.logic(), window, proxy_, &window);
    commands_ = std::make_unique<app::MenuCommands>(window.logic(), window, proxy_, dialog_->logic());
    commands_->programFolder = QCoreApplication::applicationDirPath().toStdString();
    about_ = std::make_unique<frmAbout>(&window);

    app::Dialog& d = dialog_->logic();
    const auto focusResult = [this] {
        if (auto* box = window_.findChild<QPlainTextEdit*>(QStringLiteral("Text4"))) box->setFocus();
    };
    window.registerCommand(QStringLiteral("Open1"), [&d] { d.Open1_Click(); });
    window.registerCommand(QStringLiteral("Save"), [&d] { d.Save_Click(); });
    window.registerCommand(QStringLiteral("aas"), [&d] { d.aas_Click(); });
    window.registerCommand(QStringLiteral("fnt"), [&d] {
        std::vector<std::string> families;
        for (const QString& family : QFontDatabase::families()) families.push_back(family.toStdString());
        d.fnt_Click(std::move(families));
    });
    window.registerCommand(QStringLiteral("CWD"), [this] { commands_->CWD_Click(); });
    window.registerCommand(QStringLiteral("HTD"), [this] { commands_->HTD_Click(); });
    window.registerCommand(QStringLiteral("prnt"), [this] { prnt_Click(); });
    window.registerCommand(QStringLiteral("Ha"), [this, focusResult] {
        commands_->Ha_Click();
        focusResult();
    });
    window.registerCommand(QStringLiteral("He"), [this, focusResult] {
        commands_->He_Click();
        focusResult();
    });
    window.registerCommand(QStringLiteral("abo"), [this] { abo_Click(); });
    window.registerCommand(QStringLiteral("muse5"), [this] { commands_->muse5_Click(); });
    window.registerCommand(QStringLiteral("gih"), [this] { commands_->gih_Click(); });
}

ShellMenus::~ShellMenus() = default;

void ShellMenus::saveAtExit() { dialog_->logic().Save_Click(); }

void ShellMenus::prnt_Click() {
    auto* box = window_.findChild<QPlainTextEdit*>(QStringLiteral("Text4"));
    if (!box) return;
    if (printer) {
        printer(box->toPlainText(), box->font());
        return;
    }
    printWithDialog(&window_, box->toPlainText(), box->font());
}

void ShellMenus::abo_Click() {
    const app::Language language = window_.logic().language();
    about_->setCaptions(app::aboutCaptions(language, VORLEXA_VERSION), language == app::Language::Armenian);
    about_->show();
    about_->raise();
}

}  // namespace vorlexa::shell
