#include "text/font_text.h"

namespace vorlexa {

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

namespace {

void appendEscape(FontText& out, char32_t cp) {
    out += static_cast<char>(font::kEscape);
    for (int shift = 4 * (font::kEscapeDigits - 1); shift >= 0; shift -= 4)
        out += static_cast<char>(font::kEscapeDigitCodes[(cp >> shift) & 0xF]);
}

// Reads the escape at font[i] (font[i] is kEscape); returns false for a broken one.
bool readEscape(std::string_view font, std::size_t i, char32_t& cp) {
    if (i + font::kEscapeDigits >= font.size()) return false;
    cp = 0;
    for (int k = 1; k <= font::kEscapeDigits; ++k) {
        const int digit = font::escapeDigitValue(static_cast<unsigned char>(font[i + k]));
        if (digit < 0) return false;
        cp = (cp << 4) | static_cast<char32_t>(digit);
    }
    return cp <= 0x10FFFF && !(cp >= 0xD800 && cp <= 0xDFFF);
}

}  // namespace

std::optional<char32_t> escapeAt(std::string_view font, std::size_t i) {
    char32_t cp = 0;
    if (i >= font.size() || static_cast<unsigned char>(font[i]) != font::kEscape || !readEscape(font, i, cp))
        return std::nullopt;
    return cp;
}

FontText fromUtf8(std::string_view utf8, Utf8Report* report) {
    FontText out;
    out.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const std::size_t at = i;
        bool valid = true;
        const char32_t cp = font::decodeUtf8At(utf8, i, valid);
        if (!valid && report) {
            if (report->invalidSequences == 0) report->firstInvalidOffset = at;
            ++report->invalidSequences;
        }
        const int code = font::codeOf(cp);
        if (code >= 0)
            out += static_cast<char>(code);
        else
            appendEscape(out, cp);
    }
    return out;
}

std::string toUtf8(std::string_view font) {
    std::string out;
    out.reserve(font.size() * 2);
    for (std::size_t i = 0; i < font.size(); ++i) {
        const auto c = static_cast<unsigned char>(font[i]);
        if (c == font::kEscape) {
            char32_t cp = 0;
            if (readEscape(font, i, cp)) {
                appendUtf8(out, cp);
                i += font::kEscapeDigits;
            } else {
                appendUtf8(out, font::kReplacementChar);
            }
            continue;
        }
        const char32_t u = font::unicodeOf(c);
        appendUtf8(out, (u != 0 || c == 0) ? u : font::kReplacementChar);
    }
    return out;
}

FontText foldArmenianCase(std::string_view font) {
    FontText out(font);
    for (char& ch : out) ch = static_cast<char>(font::toSmall(static_cast<unsigned char>(ch)));
    return out;
}

}  // namespace vorlexa
