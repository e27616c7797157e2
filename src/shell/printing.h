// Printing of the result box: the platform's print dialog, and the page layout shared with the
// printing to a PDF file.
#pragma once

#include <QFont>
#include <QString>

class QPrinter;
class QWidget;

namespace vorlexa::shell {

// Lays `text` out in `font` on the printer's pages and prints it.
void printText(QPrinter& printer, const QString& text, const QFont& font);

// prnt_Click: the print dialog for the text; true when it was printed.
bool printWithDialog(QWidget* parent, const QString& text, const QFont& font);

}  // namespace vorlexa::shell
