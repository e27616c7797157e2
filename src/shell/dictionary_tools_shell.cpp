#include "shell/dictionary_tools_shell.h"

#include <QAction>
#include <QCursor>
#include <QEvent>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolTip>

#include "app/word_lookup_panel.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/form4.h"
#include "shell/qt_text.h"

namespace vorlexa::shell {

namespace {
QPlainTextEdit* box(Form1& window, const char* name) {
    return window.findChild<QPlainTextEdit*>(QString::fromLatin1(name));
}
}  // namespace

DictionaryToolsShell::DictionaryToolsShell(Form1& window) : QObject(&window), window_(window) {
    setObjectName(QStringLiteral("DictionaryTools"));
    // A plain text box gets its mouse through its viewport.
    for (const char* name : {"Text3", "Text4"})
        if (QPlainTextEdit* b = box(window, name)) b->viewport()->installEventFilter(this);
    window.registerCommand(QStringLiteral("Corr"), [this] { Corr_Click(); });
    window.registerCommand(QStringLiteral("ETE"), [this] { ETE_Click(); });
}

void DictionaryToolsShell::Corr_Click() {
    // A closed window opens afresh, as the design loads it; an open one comes to the front.
    if (form2_ && !form2_->isVisible()) delete form2_.data();
    if (!form2_) form2_ = new Form2(window_.logic(), window_.prompter(), &window_);
    form2_->open(window_.logic().language() == app::Language::Armenian);
}

void DictionaryToolsShell::ETE_Click() {
    if (!form4_) form4_ = new Form4(window_.logic(), window_.prompter(), &window_);
    const app::TextSelection sel = window_.text4Selection();
    const FontText all = window_.text4();
    const auto start = std::min(static_cast<std::size_t>(std::max(sel.start, 0)), all.size());
    form4_->open(all.substr(start, static_cast<std::size_t>(std::max(sel.length, 0))));
}

bool DictionaryToolsShell::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick) {
        const bool resultBox = watched == box(window_, "Text4")->viewport();
        // The box selects the word first; it is read once the click has been handled.
        QTimer::singleShot(0, this, [this, resultBox] { wordDoubleClicked(resultBox); });
    }
    return QObject::eventFilter(watched, event);
}

void DictionaryToolsShell::wordDoubleClicked(bool resultBox) {
    QPlainTextEdit* clicked = box(window_, resultBox ? "Text4" : "Text3");
    if (!clicked || !window_.logic().engine()) return;
    const FontText selection = fontText(clicked->textCursor().selectedText());
    const app::DoubleClickResult r = resultBox ? app::Text4_dblclick(window_.logic(), selection)
                                               : app::Text3_DblClick(window_.logic(), selection);
    window_.stateChanged();
    if (!r.toolTip.empty()) {
        clicked->setToolTip(messageText(r.toolTip));
        QToolTip::showText(QCursor::pos(), clicked->toolTip(), clicked);
    }
    if (r.runReplace) {
        // The find and replace box of the Edit menu, as far as it is built.
        if (auto* replace = window_.findChild<QAction*>(QStringLiteral("Replacce"));
            replace && replace->isEnabled())
            replace->trigger();
    }
}

DictionaryToolsShell* installDictionaryTools(Form1& window) {
    return new DictionaryToolsShell(window);
}

}  // namespace vorlexa::shell
