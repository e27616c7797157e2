// The output helpers shared by the rules, and the rules of auxiliaries and negation.
#include "rules/rule_contract.h"

#include "engine/engine.h"

namespace vorlexa {

using namespace literals;

// InsertText goes at the end of the output, capitalised when the word began with a capital. With
// Accurate Translation it goes in front of the word before instead, unless the last word of
// Armenian source was a noun.
void mctn(Engine& e) {
    if (e.CapitalFlag == 1) {
        pokrmc(e);
        e.OutputText += e.InsertText;
        e.CapitalFlag.clear();
    } else if (!e.TargetClasses.ends_with('n') && e.checked(MenuItem::IMPV)) {
        const std::int64_t saved = e.ScanPos;
        const auto outputLength = static_cast<std::int64_t>(e.OutputText.size());
        const std::int64_t start = outputLength - static_cast<std::int64_t>(e.InsertText.size()) - 1;
        std::int64_t cursor = start > 0 ? start : e.ScanPos;
        const auto charAt = [&](std::int64_t p) { return mid(e.OutputText, static_cast<std::size_t>(p), 1); };
        while (cursor > 0 && charAt(cursor) != " " && charAt(cursor) != "." &&
               mid(e.OutputText, static_cast<std::size_t>(cursor), 2) != "\r\n") {
            --cursor;
        }
        const auto cut = static_cast<std::size_t>(std::min(cursor, outputLength));
        e.OutputText.insert(cut, e.InsertText);
        e.ScanPos = saved;
    } else {
        e.OutputText += e.InsertText;
    }
    e.InsertText.clear();
}

// In English output the first letter goes to upper case; an Armenian small letter to its capital.
void pokrmc(Engine& e) {
    FontText& text = e.InsertText;
    if (text.size() <= 1) return;
    if (e.Check1 == 1 && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 32);
    const auto first = static_cast<unsigned char>(text[0]);
    if (font::isSmall(first)) text[0] = static_cast<char>(first - 1);
}

}  // namespace vorlexa
