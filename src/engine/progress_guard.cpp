#include "engine/progress_guard.h"

#include <algorithm>

#include "text/font_text.h"

namespace vorlexa {

void ProgressGuard::start() {
    furthest_ = 0;
    turnsWithoutProgress_ = 0;
}

std::int64_t characterNumber(std::string_view font, std::int64_t pos) {
    const auto before = static_cast<std::size_t>(std::clamp<std::int64_t>(pos - 1, 0, static_cast<std::int64_t>(font.size())));
    std::int64_t n = 0;
    std::size_t i = 0;
    while (i < before) {
        const auto c = static_cast<unsigned char>(font[i]);
        if (c == font::kEscape) {
            i += 1 + font::kEscapeDigits;
            if (i > before) return n + 1;  // the position lies inside this escaped character
            ++n;
            continue;
        }
        if (!(c == '\r' && i + 1 < font.size() && font[i + 1] == '\n')) ++n;
        ++i;
    }
    return n + 1;
}

}  // namespace vorlexa
