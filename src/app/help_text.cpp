#include "app/help_text.h"

#include <fstream>
#include <iterator>

namespace vorlexa::app {

namespace {

constexpr int kSectionsBeforeNote = 2;  // the Armenian help and the English help
constexpr std::size_t kMarkLength = 4;  // "null", cut from the end of the note

}  // namespace

void readLines(std::string_view text, const std::function<bool(std::string_view line)>& each) {
    std::size_t i = 0;
    while (i < text.size()) {
        std::size_t end = text.find_first_of("\r\n", i);
        if (end == std::string_view::npos) end = text.size();
        const std::string_view line = text.substr(i, end - i);
        i = end;
        if (i < text.size() && text[i] == '\r') {
            ++i;
            if (i < text.size() && text[i] == '\n') ++i;
        } else if (i < text.size()) {
            ++i;
        }
        if (!each(line)) return;
    }
}

FontText fontNoteFromHelpText(std::string_view text) {
    FontText out;
    int marks = 0;
    readLines(text, [&](std::string_view line) {
        out += "\r\n";
        out += line;
        const std::string_view sofar(out);
        if ((sofar.ends_with("null") || sofar.ends_with("null0")) && marks != kSectionsBeforeNote) {
            out.clear();
            ++marks;
        }
        return true;
    });
    if (out.size() < kMarkLength) return {};
    out.resize(out.size() - kMarkLength);
    return out;
}

std::optional<FontText> fontNoteFromHelp(const std::filesystem::path& readTxt) {
    std::ifstream in(readTxt, std::ios::binary);
    if (!in) return std::nullopt;
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return fontNoteFromHelpText(text);
}

}  // namespace vorlexa::app
