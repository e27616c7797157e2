// Phonetic typing at the Qt edge: a printable Latin key pressed in a text box is replaced by the
// Armenian letter a key table gives it.
#pragma once

#include <functional>

class QKeyEvent;
class QObject;

namespace vorlexa::shell {

// Inserts the mapped letter into the box (a line or a plain text edit) and returns true when the
// key maps to another character; false leaves the key to the box.
bool insertPhonetic(QObject* box, const QKeyEvent* key,
                    const std::function<unsigned char(unsigned char)>& map);

}  // namespace vorlexa::shell
