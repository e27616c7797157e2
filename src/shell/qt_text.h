// The Unicode edge of the windows: font text to QString and back. Text boxes show line ends as
// the toolkit does ("\n"); the engine sees them as CR LF, as the boxes of the design hold them.
#pragma once

#include <QString>
#include <string_view>

#include "text/font_text.h"

namespace vorlexa::shell {

// Font text for a text box: CR LF and a lone CR become a line feed.
QString boxText(std::string_view font);
// The text of a box as font text: each line feed becomes CR LF.
FontText fontText(const QString& box);
// A message or a title: every pairing of CR and LF is one line break.
QString messageText(std::string_view font);
// A UTF-8 caption.
inline QString captionText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Positions: the font position of a box position, and the box position of a font position.
int fontPosition(const QString& box, int boxPosition);
int boxPosition(std::string_view font, int fontPosition);

}  // namespace vorlexa::shell
