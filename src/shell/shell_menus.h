// The commands of the File, View (Font), Internet and Help menus that open the Open/Save/Font
// dialog, print, export to the word processor, show the help texts and About, and open the
// Internet addresses. Made by the main window, which they register themselves with.
#pragma once

#include <QFont>
#include <QString>
#include <functional>
#include <memory>

#include "app/menu_commands.h"
#include "shell/qt_desktop.h"

namespace vorlexa::shell {

class Dialog;
class Form1;
class frmAbout;

class ShellMenus {
public:
    explicit ShellMenus(Form1& window);
    ~ShellMenus();

    Dialog& dialog() { return *dialog_; }
    app::MenuCommands& commands() { return *commands_; }
    frmAbout& about() { return *about_; }
    // Tests put a desktop here that starts nothing; nullptr brings back the real one.
    void setDesktop(app::Desktop* desktop) { proxy_.setTarget(desktop ? desktop : &desktop_); }
    // Save As after the exit question: the dialog shows, and saving ends the program.
    void saveAtExit();
    // Lets prnt_Click print somewhere else than through the print dialog (tests: a PDF file).
    std::function<void(const QString& text, const QFont& font)> printer;

private:
    void prnt_Click();
    void abo_Click();

    Form1& window_;
    QtDesktop desktop_;
    DesktopProxy proxy_;
    std::unique_ptr<Dialog> dialog_;
    std::unique_ptr<app::MenuCommands> commands_;
    std::unique_ptr<frmAbout> about_;
};

}  // namespace vorlexa::shell
