// Form2, the Word Corrector: the English box Text1, the Armenian box Text2 (typed phonetically),
// the tag Text3, the position Text4 and Label4, the all-meanings box Check1 and the buttons
// Command1 to Command7. What a button does lives in WordCorrector; this window maps its widgets.
#pragma once

#include <QDialog>
#include <QString>
#include <functional>

#include "app/main_form.h"
#include "dictionary_tools/word_corrector.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vorlexa::shell {

class Prompter;

// Opens a file with the desktop's default application for its type, without waiting; false
// when no application is set or none could be started.
bool openWithDefaultApplication(const QString& path);

class Form2 : public QDialog, public CorrectorView {
    Q_OBJECT

  public:
    Form2(app::MainForm& main, Prompter& prompter, QWidget* parent = nullptr);

    WordCorrector& logic() { return corrector_; }
    // Shows the window in the interface language of the main window (Corr_Click).
    void open(bool armenianInterface);

    // How a written list is shown; tests put their own here.
    std::function<bool(const QString&)> openFile = openWithDefaultApplication;

    // ---- CorrectorView ---------------------------------------------------------------------
    int ask(const Question& question, bool armenian) override;
    void notify(const Notice& notice, bool armenian) override;
    void showList(const std::filesystem::path& file, bool armenian) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildControls();
    // The boxes as typed go to the logic before a command, and come back after it.
    void collect();
    void refresh();
    void run(const std::function<void()>& command);

    WordCorrector corrector_;
    Prompter& prompter_;
    bool syncing_ = false;

    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    QLineEdit* Text3 = nullptr;
    QLineEdit* Text4 = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label4 = nullptr;
    QLabel* Label5 = nullptr;
    QCheckBox* Check1 = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
    QPushButton* Command5 = nullptr;
    QPushButton* Command6 = nullptr;
    QPushButton* Command7 = nullptr;
};

}  // namespace vorlexa::shell
