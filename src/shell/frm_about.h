// frmAbout: the program's name, version and the maker's lines, in the interface language.
#pragma once

#include <QDialog>

#include "app/menu_commands.h"

class QLabel;
class QPushButton;

namespace vorlexa::shell {

class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent);
    // Sets the captions of the language (Armenian ones in the face with Armenian letters).
    void setCaptions(const app::AboutCaptions& captions, bool armenian);

private:
    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lblDisclaimer = nullptr;
    QPushButton* cmdOK = nullptr;
};

}  // namespace vorlexa::shell
