// Dialog: the window of Open, Save, Save As, Add to File and Fonts over app::Dialog. Drive1
// lists the mounted file systems, Dir1 is the folder tree, File1 the matching files; in the
// font mode List1, Combo1, Combo2, Command1 and the sample Frame1 take their place.
#pragma once

#include <QDialog>
#include <memory>

#include "app/file_dialog.h"

class QComboBox;
class QFileSystemModel;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTreeView;

namespace vorlexa::shell {

class Dialog : public QDialog {
    Q_OBJECT

public:
    Dialog(app::MainForm& form, app::Form1View& view, app::Desktop& desktop, QWidget* parent);
    ~Dialog() override;

    app::Dialog& logic() { return logic_; }
    // The window redrawn from the state of its logic.
    void sync();

private:
    void buildControls();
    void fillDrives();

    app::Dialog logic_;
    bool syncing_ = false;

    QComboBox* Drive1 = nullptr;
    QTreeView* Dir1 = nullptr;
    QFileSystemModel* folders_ = nullptr;
    QListWidget* File1 = nullptr;
    QLineEdit* Text5 = nullptr;
    QPushButton* OKButton = nullptr;
    QPushButton* CancelButton = nullptr;
    QListWidget* List1 = nullptr;
    QComboBox* Combo1 = nullptr;
    QComboBox* Combo2 = nullptr;
    QPushButton* Command1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QLabel* sample_ = nullptr;
};

}  // namespace vorlexa::shell
