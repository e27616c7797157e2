// Form1, the main window: the source box Text3, the result box Text4, the direction box
// Check1, the progress bar, the pictures of the input language, the small panel of Text1,
// Text2, Text6, List1 and Command2, and the whole menu tree. Every control carries the name
// the design gives it as its objectName. What a command does lives in app::MainForm; this
// class maps the widgets to it.
#pragma once

#include <QMainWindow>
#include <QString>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>

#include "app/main_form.h"

class QAction;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QShortcut;
class QTimer;
class QWidget;

namespace vorlexa::shell {

class ShellMenus;

// The message boxes. Tests give the window a prompter of their own, which answers from a script.
class Prompter {
public:
    virtual ~Prompter() = default;
    // Returns kAnswerYes, kAnswerNo, kAnswerCancel or kAnswerOk.
    virtual int ask(QWidget* parent, const QString& title, const QString& text, Buttons buttons) = 0;
    virtual void notify(QWidget* parent, const QString& title, const QString& text) = 0;
};

class MessageBoxPrompter : public Prompter {
public:
    int ask(QWidget* parent, const QString& title, const QString& text, Buttons buttons) override;
    void notify(QWidget* parent, const QString& title, const QString& text) override;
};

// The face that shows Armenian letters where the design names "Arial Armenian" or "sylfaen",
// or a face this machine lacks.
inline constexpr const char* kArmenianFace = "DejaVu Sans";

class Form1 : public QMainWindow, public app::Form1View {
    Q_OBJECT

public:
    explicit Form1(QWidget* parent = nullptr);
    ~Form1() override;

    // Form_Load: refuses a second copy (with the design's message), opens the data folder,
    // reads the settings. The window is ready to show when it returns Started.
    app::StartResult start(const std::filesystem::path& dataFolder, const std::filesystem::path& shipped);

    app::MainForm& logic() { return *logic_; }
    // The window does not own the prompter; nullptr brings back the message boxes.
    void setPrompter(Prompter* prompter);
    Prompter& prompter() const { return *prompter_; }

    // A later window wires its command here; its menu item is enabled from then on, as far as
    // the design's own rules allow. Until then the item is shown with its caption, disabled.
    void registerCommand(const QString& item, std::function<void()> command);
    bool hasCommand(const QString& item) const;

    // Offers "Save As" at exit; true once the text is saved. By default it opens the save
    // dialog and answers false: the dialog ends the program once the text is saved.
    std::function<bool()> saveForExit;
    // The program ends here and now, without the exit question (after Save As).
    void endProgram();
    // The dialog, printing, export, Help, About and Internet commands.
    ShellMenus& shellMenus() { return *shellMenus_; }

    // ---- Form1View ------------------------------------------------------------------------
    int ask(const Question& question, app::Language language) override;
    void notify(const Notice& notice, app::Language language) override;
    FontText text3() const override;
    void setText3(const FontText& text) override;
    FontText text4() const override;
    void setText4(const FontText& text) override;
    app::TextSelection text4Selection() const override;
    void selectText4(app::TextSelection selection) override;
    void progressChanged(int percent) override;
    void stateChanged() override;
    void minimise() override;
    void setBusy(bool busy) override;
    void restoreAfterUnattendedRun() override;

    // Times the window asked the desktop for the user's attention.
    int attentionRequests() const { return attentionRequests_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void buildMenus();
    void runCommand(const QString& item);
    bool handleKey(QObject* box, QKeyEvent* key);
    void panelEdited();
    void text3Changed();
    void skipWord();

    std::unique_ptr<app::MainForm> logic_;
    std::unique_ptr<MessageBoxPrompter> messageBoxes_;
    Prompter* prompter_ = nullptr;
    std::map<QString, QAction*> actions_;
    std::map<QString, QMenu*> menus_;
    std::map<QString, std::function<void()>> commands_;
    bool syncing_ = false;  // the window is being set from the state: no edits to report
    bool closing_ = false;
    bool typing_ = false;  // a key stroke is going into Text3
    int attentionRequests_ = 0;
    QTimer* typingPause_ = nullptr;  // a typed change runs when typing pauses
    QTimer* nextSlice_ = nullptr;    // the next slice of an instant translation
    QShortcut* skipKey_ = nullptr;

    QPlainTextEdit* Text3 = nullptr;
    QPlainTextEdit* Text4 = nullptr;
    QCheckBox* Check1 = nullptr;
    QProgressBar* ProgressBar1 = nullptr;
    QLabel* Picture1 = nullptr;
    QLabel* Picture2 = nullptr;
    QWidget* panel_ = nullptr;
    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    QLineEdit* Text6 = nullptr;
    QListWidget* List1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* SkipWord = nullptr;

    std::unique_ptr<ShellMenus> shellMenus_;  // last: it uses the logic and the controls above
};

// The font of a box from the design's description of it.
QFont boxFont(const app::Text4Font& font);

}  // namespace vorlexa::shell
