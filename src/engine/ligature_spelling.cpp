#include "engine/ligature_spelling.h"

#include <algorithm>
#include <array>

namespace vorlexa {

using namespace literals;

namespace {

// First parts of compounds that end in the joining "ե" ("հոգի" + "վարք"): after them "եվ" is two
// letters, never the ligature.
constexpr std::array kCompoundFirstParts = {"հոգե"_ft, "գինե"_ft, "գերե"_ft, "տարե"_ft};

}  // namespace

void readLigatureSpelling(FontText& word) {
    const std::string_view ev = "եվ"_ft;
    const std::string_view ligature = "և"_ft;
    if (word == ev || word == FontText(ev) + FontText("ս"_ft)) {
        word = FontText(ligature) + word.substr(ev.size());
        return;
    }
    // The first letters stay: a word that begins with "եվ" is a loanword.
    FontText read;
    read.reserve(word.size());
    std::size_t from = 0;
    for (std::size_t pos = word.find(ev, 1); pos != std::string::npos; pos = word.find(ev, pos + ev.size())) {
        const std::string_view before = std::string_view(word).substr(0, pos + 1);
        const bool compoundJoint = std::any_of(kCompoundFirstParts.begin(), kCompoundFirstParts.end(),
                                               [&](std::string_view part) { return before.ends_with(part); });
        if (compoundJoint) continue;
        read.append(word, from, pos - from);
        read += ligature;
        from = pos + ev.size();
    }
    if (from == 0) return;
    read.append(word, from, std::string::npos);
    word = std::move(read);
}

}  // namespace vorlexa
