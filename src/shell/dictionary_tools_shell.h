// The dictionary tools in the main window: the menu item Corr opens the Word Corrector (Form2),
// ETE opens Edit Expressions (Form4) with the selection of the result box, and a double click on
// a word in Text3 or Text4 shows its translation and synonyms as the box's tool tip and in the
// panel.
#pragma once

#include <QObject>
#include <QPointer>

#include "shell/form2.h"
#include "shell/form4.h"

namespace vorlexa::shell {

class Form1;

class DictionaryToolsShell : public QObject {
    Q_OBJECT

  public:
    explicit DictionaryToolsShell(Form1& window);

    Form2* corrector() const { return form2_; }
    Form4* expressions() const { return form4_; }

    void Corr_Click();
    void ETE_Click();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void wordDoubleClicked(bool resultBox);

    Form1& window_;
    QPointer<Form2> form2_;
    QPointer<Form4> form4_;
};

// Registers the commands and watches the two big boxes; the window owns what it makes.
DictionaryToolsShell* installDictionaryTools(Form1& window);

}  // namespace vorlexa::shell
