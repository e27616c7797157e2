#include "shell/phonetic_input.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "text/font_text.h"

namespace vorlexa::shell {

bool insertPhonetic(QObject* box, const QKeyEvent* key,
                    const std::function<unsigned char(unsigned char)>& map) {
    const QString typed = key->text();
    if (typed.size() != 1 ||
        (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return false;
    const char16_t c = typed.at(0).unicode();
    if (c < 0x20 || c >= 0x80) return false;
    const unsigned char mapped = map(static_cast<unsigned char>(c));
    if (mapped == c) return false;
    const QString letter(QChar(static_cast<char16_t>(font::unicodeOf(mapped))));
    if (auto* edit = qobject_cast<QPlainTextEdit*>(box)) {
        edit->insertPlainText(letter);
    } else if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->insert(letter);
    }
    return true;
}

}  // namespace vorlexa::shell
