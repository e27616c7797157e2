// The help text "read.txt" of the data folder: font text in sections, each closed by a line
// that ends in a mark: the Armenian help ("null"), the English help ("null0"), then the note on
// the Armenian font, shown when the Armenian captions can't be read.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "text/font_text.h"

namespace vorlexa::app {

inline constexpr std::string_view kHelpFileName = "read.txt";

// Reads a text line by line as the design's line input does: a line ends at CR LF, CR or LF,
// and a break at the very end starts no further line. `each` takes every line in turn and
// returns false to stop.
void readLines(std::string_view text, const std::function<bool(std::string_view line)>& each);

// What AMN_Click puts into Text4 after a "No" to its question: the lines read one by one, each
// after CR LF; whenever the text so far ends in a mark and fewer than two marks were counted,
// it starts afresh. What stays is the section after the second mark, less its last 4
// characters. Nothing when the file can't be read.
std::optional<FontText> fontNoteFromHelp(const std::filesystem::path& readTxt);

// The same over the text of the file.
FontText fontNoteFromHelpText(std::string_view text);

}  // namespace vorlexa::app
