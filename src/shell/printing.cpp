#include "shell/printing.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace vorlexa::shell {

void printText(QPrinter& printer, const QString& text, const QFont& font) {
    QTextDocument document;
    document.setDefaultFont(font);
    document.setPlainText(text);
    document.print(&printer);
}

bool printWithDialog(QWidget* parent, const QString& text, const QFont& font) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) return false;
    printText(printer, text, font);
    return true;
}

}  // namespace vorlexa::shell
