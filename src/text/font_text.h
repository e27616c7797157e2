// Font text: the one-byte Armenian encoding the whole engine works in.
//
// Capitals sit at the even codes 178..252 and each small letter at the next odd code, in
// alphabet order from Ա to Ֆ; the ligature և is 168 and the question sign ՞ is 177. Codes below
// 128 are ASCII. Position arithmetic of the engine is byte arithmetic on these strings.
//
// Unicode lives only at the edges (files, terminal, windows, network): fromUtf8 and toUtf8.
// A character that has no code of its own travels inside the font text as an escape, so that it
// leaves every operation exactly as it came in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorlexa {

// Armenian text in memory: a sequence of font codes, one byte each.
using FontText = std::string;

namespace font {

inline constexpr unsigned char kFirstCapital = 178;  // Ա
inline constexpr unsigned char kLastCapital = 252;   // Ֆ
inline constexpr unsigned char kFirstSmall = 179;    // ա
inline constexpr unsigned char kLastSmall = 253;     // ֆ
inline constexpr int kLetterCount = 38;              // Ա..Ֆ

inline constexpr unsigned char kLigature = 168;         // և (no capital of its own)
inline constexpr unsigned char kQuestionSign = 177;     // ՞
inline constexpr unsigned char kEmphasisSign = 176;     // ՛
inline constexpr unsigned char kExclamationSign = 175;  // ՜
inline constexpr unsigned char kCommaSign = 170;        // ՝
inline constexpr unsigned char kOpenGuillemet = 167;    // «
inline constexpr unsigned char kCloseGuillemet = 166;   // »

// Typographic signs that the scanner treats as delimiters keep the single codes they have in
// the Latin code page the texts were typed in, so a rule can compare them as one character.
inline constexpr unsigned char kEllipsis = 0x85;            // …
inline constexpr unsigned char kLeftSingleQuote = 0x91;     // ‘
inline constexpr unsigned char kRightSingleQuote = 0x92;    // ’
inline constexpr unsigned char kLeftDoubleQuote = 0x93;     // “
inline constexpr unsigned char kRightDoubleQuote = 0x94;    // ”
inline constexpr unsigned char kEnDash = 0x96;              // –
inline constexpr unsigned char kEmDash = 0x97;              // —

// A character with no code: kEscape followed by kEscapeDigits hex digits of its code point.
// The digits are drawn from unused codes below the letters, so the engine reads the whole
// escape as letters of one unknown word (never as delimiters, capitals or Armenian letters).
inline constexpr unsigned char kEscape = 0xFF;
inline constexpr int kEscapeDigits = 6;  // 24 bits hold every code point up to U+10FFFF
inline constexpr unsigned char kEscapeDigitCodes[16] = {0x80, 0x81, 0x82, 0x83, 0x84, 0x86,
                                                        0x87, 0x88, 0x89, 0x8A, 0x8B, 0x8C,
                                                        0x8D, 0x8E, 0x8F, 0x90};
inline constexpr char32_t kReplacementChar = 0xFFFD;

constexpr bool isCapital(unsigned char c) { return c >= kFirstCapital && c <= kLastCapital && c % 2 == 0; }
constexpr bool isSmall(unsigned char c) { return c >= kFirstSmall && c <= kLastSmall && c % 2 == 1; }
constexpr bool isArmenianLetter(unsigned char c) { return c >= kFirstCapital && c <= kLastSmall; }
constexpr unsigned char toSmall(unsigned char c) { return isCapital(c) ? c + 1 : c; }
constexpr unsigned char toCapital(unsigned char c) { return isSmall(c) ? c - 1 : c; }

constexpr int escapeDigitValue(unsigned char c) {
    for (int i = 0; i < 16; ++i)
        if (kEscapeDigitCodes[i] == c) return i;
    return -1;
}

// The font code of a Unicode character, or -1 when it has none (it is then escaped).
constexpr int codeOf(char32_t u) {
    if (u < 0x80) return static_cast<int>(u);
    if (u >= 0x0531 && u <= 0x0556) return kFirstCapital + 2 * static_cast<int>(u - 0x0531);
    if (u >= 0x0561 && u <= 0x0586) return kFirstSmall + 2 * static_cast<int>(u - 0x0561);
    switch (u) {
        case 0x0587: return kLigature;
        case 0x055E: return kQuestionSign;
        case 0x055B: return kEmphasisSign;
        case 0x055C: return kExclamationSign;
        case 0x055D: return kCommaSign;
        case 0x00AB: return kOpenGuillemet;
        case 0x00BB: return kCloseGuillemet;
        case 0x0589: return ':';  // the Armenian full stop is written as a colon
        case 0x2024: return ':';  // the one-dot leader, which many texts type for the full stop
        case 0x2026: return kEllipsis;
        case 0x2018: return kLeftSingleQuote;
        case 0x2019: return kRightSingleQuote;
        case 0x201C: return kLeftDoubleQuote;
        case 0x201D: return kRightDoubleQuote;
        case 0x2013: return kEnDash;
        case 0x2014: return kEmDash;
        default: return -1;
    }
}

// The Unicode character of a single font code; 0 for a code that stands for nothing.
constexpr char32_t unicodeOf(unsigned char c) {
    if (c < 0x80) return c;
    if (isCapital(c)) return 0x0531 + (c - kFirstCapital) / 2;
    if (isSmall(c)) return 0x0561 + (c - kFirstSmall) / 2;
    switch (c) {
        case kLigature: return 0x0587;
        case kQuestionSign: return 0x055E;
        case kEmphasisSign: return 0x055B;
        case kExclamationSign: return 0x055C;
        case kCommaSign: return 0x055D;
        case kOpenGuillemet: return 0x00AB;
        case kCloseGuillemet: return 0x00BB;
        case kEllipsis: return 0x2026;
        case kLeftSingleQuote: return 0x2018;
        case kRightSingleQuote: return 0x2019;
        case kLeftDoubleQuote: return 0x201C;
        case kRightDoubleQuote: return 0x201D;
        case kEnDash: return 0x2013;
        case kEmDash: return 0x2014;
        default: return 0;
    }
}

// Decodes one UTF-8 sequence at s[i]; returns the code point and advances i, or returns
// kReplacementChar and advances by one byte for a malformed, overlong or surrogate sequence.
constexpr char32_t decodeUtf8At(std::string_view s, std::size_t& i, bool& valid) {
    const auto b0 = static_cast<unsigned char>(s[i]);
    valid = true;
    if (b0 < 0x80) {
        ++i;
        return b0;
    }
    int extra = 0;
    char32_t cp = 0;
    char32_t min = 0;
    if ((b0 & 0xE0) == 0xC0) {
        extra = 1, cp = b0 & 0x1F, min = 0x80;
    } else if ((b0 & 0xF0) == 0xE0) {
        extra = 2, cp = b0 & 0x0F, min = 0x800;
    } else if ((b0 & 0xF8) == 0xF0) {
        extra = 3, cp = b0 & 0x07, min = 0x10000;
    } else {
        valid = false;
        ++i;
        return kReplacementChar;
    }
    if (i + extra >= s.size()) {
        valid = false;
        ++i;
        return kReplacementChar;
    }
    for (int k = 1; k <= extra; ++k) {
        const auto b = static_cast<unsigned char>(s[i + k]);
        if ((b & 0xC0) != 0x80) {
            valid = false;
            ++i;
            return kReplacementChar;
        }
        cp = (cp << 6) | (b & 0x3F);
    }
    if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) {
        valid = false;
        ++i;
        return kReplacementChar;
    }
    i += extra + 1;
    return cp;
}

}  // namespace font

// Where a conversion from UTF-8 met bytes that are not UTF-8.
struct Utf8Report {
    std::size_t invalidSequences = 0;  // each was replaced by U+FFFD
    std::size_t firstInvalidOffset = 0;
};

// UTF-8 to font text. Characters with no code are escaped; invalid bytes become U+FFFD.
FontText fromUtf8(std::string_view utf8, Utf8Report* report = nullptr);

// Font text to UTF-8. Escapes come back as the characters they hold; a broken escape or a code
// that stands for nothing becomes U+FFFD.
std::string toUtf8(std::string_view font);

// Appends the UTF-8 bytes of one code point.
void appendUtf8(std::string& out, char32_t cp);

// The character held by a well-formed escape that starts at font[i]; nothing when font[i] starts
// no escape or a broken one.
std::optional<char32_t> escapeAt(std::string_view font, std::size_t i);

// Case-insensitive form of Armenian font text: every capital replaced by its small letter.
FontText foldArmenianCase(std::string_view font);

// Compile-time literal: "ի մեջ"_ft is the font text of the Armenian letters written in the
// source, so the engine code reads like the words it handles and costs nothing at run time.
template <std::size_t N>
struct FontLiteral {
    char bytes[N]{};
    std::size_t size = 0;

    consteval FontLiteral(const char (&utf8)[N]) {
        const std::string_view s(utf8, N - 1);
        std::size_t i = 0;
        while (i < s.size()) {
            bool valid = true;
            const char32_t cp = font::decodeUtf8At(s, i, valid);
            const int code = font::codeOf(cp);
            if (!valid || code < 0) throw "character without a font code in a _ft literal";
            bytes[size++] = static_cast<char>(code);
        }
    }
};

namespace literals {
template <FontLiteral L>
constexpr std::string_view operator""_ft() {
    return std::string_view(L.bytes, L.size);
}
}  // namespace literals

}  // namespace vorlexa
