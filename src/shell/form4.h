// Form4, Edit Expressions: the text to find (Text1, from the selection of the result box) and
// what it is to become (Text2); Command1 adds the pair to the list the end of a run applies.
#pragma once

#include <QDialog>

#include "app/main_form.h"
#include "dictionary_tools/expressions.h"

class QLineEdit;
class QPushButton;

namespace vorlexa::shell {

class Prompter;

class Form4 : public QDialog {
    Q_OBJECT

  public:
    Form4(app::MainForm& main, Prompter& prompter, QWidget* parent = nullptr);

    ExpressionEditor& logic() { return editor_; }
    // Form_Load: Text1 takes the text selected in the result box.
    void open(const FontText& selectedInText4);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Command1_Click();
    void refresh();

    app::MainForm& main_;
    Prompter& prompter_;
    ExpressionEditor editor_;
    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    QPushButton* Command1 = nullptr;
};

}  // namespace vorlexa::shell
