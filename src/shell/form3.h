// Form3, the converter window "UNICODE ANSI CONVERTER": TextBox1, the clickable labels Label1
// (to Unicode) and Label3 (close) and CheckBox1 (convert only). What they do lives in
// text_tools::ConverterForm; this class maps the widgets to it.
//
// installTextTools wires the window and the transliteration and case commands into Form1's menu.
#pragma once

#include <QWidget>
#include <functional>

#include "text_tools/converter_form.h"

class QCheckBox;
class QLabel;
class QPlainTextEdit;

namespace vorlexa::shell {

class Form1;

// The window's position value is in twips; a pixel of a 96-dpi screen is 15 of them.
inline constexpr int kTwipsPerPixel = 15;

class Form3 : public QWidget {
    Q_OBJECT

public:
    explicit Form3(QWidget* parent = nullptr);

    text_tools::ConverterForm& logic() { return logic_; }
    const text_tools::ConverterForm& logic() const { return logic_; }

    // The menu command uta.
    void uta_Click();
    // A run found Unicode Armenian: the window opens at the top with the focus in TextBox1.
    void openForPaste();
    // Redraws the widgets from the logic's state.
    void sync();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void textChanged();
    QString shownText() const;
    void place();
    void closeByUser();

    text_tools::ConverterForm logic_;
    bool syncing_ = false;

    QPlainTextEdit* TextBox1 = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label3 = nullptr;
    QCheckBox* CheckBox1 = nullptr;
    QLabel* FaceLabel = nullptr;  // the face of TextBox1, which tells what a copy gives
};

struct TextToolsHooks {
    // The question after LLAT_Click and the spell-check pass it starts on Yes. Empty: the main
    // window's own (app::MainForm::CorrectorWorning).
    std::function<void()> CorrectorWorning;
};

// Registers uta, cvtae, ET, LLAT, AUC, ALC, EUC and ELC with the window, and lets a run open
// and hide the converter. Returns the converter window, which the main window owns.
Form3* installTextTools(Form1& window, TextToolsHooks hooks = {});

}  // namespace vorlexa::shell
