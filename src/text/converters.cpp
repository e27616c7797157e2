#include "text/converters.h"

#include <charconv>
#include <fstream>
#include <thread>

#include "text/font_text.h"

namespace vorlexa {

namespace {
constexpr char16_t kFirstCapitalU = 1329;  // U+0531 Ա
constexpr char16_t kLastCapitalU = 1366;   // U+0556 Ֆ
constexpr char16_t kFirstSmallU = 1377;    // U+0561 ա
constexpr char16_t kLastU = 1414;          // U+0586 ֆ
}  // namespace

// The design runs one global replacement per Unicode value, in rising order. No replacement
// produces a value that a later one looks for, so a single pass gives the same text.
void UnicodeAnsciConverter(std::u16string& ConverterText) {
    for (char16_t& u : ConverterText) {
        if (u >= kFirstSmallU && u <= kLastU) {
            u = static_cast<char16_t>((u - 1198) + (u - 1377));
        } else if (u >= kFirstCapitalU && u <= kLastCapitalU) {
            u = static_cast<char16_t>((u - 1151) + (u - 1329));
        } else if (u == 0x0587 || u == 0x0588) {
            u = 0xA8;  // U+0588 too, though it is no assigned letter
        } else if (u == 0x0589) {
            u = ':';
        }
    }
}

void AnsciUnicodeConverter(std::u16string& ConverterText) {
    for (char16_t& c : ConverterText) {
        if (c >= 178 && c <= 253) {
            c = (c % 2 == 0) ? static_cast<char16_t>((c + 1151) - (c - 178) / 2)
                             : static_cast<char16_t>((c + 1198) - (c - 179) / 2);
        } else if (c == 177) {
            c = 0x055E;
        } else if (c == 168) {
            c = 0x0587;
        }
    }
}

int bdali(int c) {
    if (c % 2 == 1) return (c - 82) - (c - 179) / 2;
    return (c - 129) - (c - 178) / 2;
}

char16_t utf16UnitOf(unsigned char c) {
    if (c == 167 || c == 168) return 0x0587;  // 167 too: « is written as the ligature
    if (c == 177) return 0x055E;
    if (c > 177) return static_cast<char16_t>(0x0500 + bdali(c));
    return c;
}

void encd_Click(std::string_view DialogText, const std::filesystem::path& encPath) {
    std::ofstream enc(encPath, std::ios::binary | std::ios::trunc);
    enc << "255\r\n254\r\n";
    for (const char ch : DialogText) {
        const char16_t unit = utf16UnitOf(static_cast<unsigned char>(ch));
        enc << (unit & 0xFF) << "\r\n" << (unit >> 8) << "\r\n";
    }
}

namespace {

void appendUnit(std::string& bytes, char16_t unit) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
}

}  // namespace

// A character the font has no code for travels in font text as an escape; it is saved as the
// character itself, so that it leaves the file as it came into the window.
std::string utf16FileBytes(std::string_view DialogText) {
    std::string bytes = "\xFF\xFE";
    bytes.reserve(2 + 2 * DialogText.size());
    for (std::size_t i = 0; i < DialogText.size(); ++i) {
        if (const auto cp = escapeAt(DialogText, i)) {
            if (*cp >= 0x10000) {
                appendUnit(bytes, static_cast<char16_t>(0xD800 + ((*cp - 0x10000) >> 10)));
                appendUnit(bytes, static_cast<char16_t>(0xDC00 + ((*cp - 0x10000) & 0x3FF)));
            } else {
                appendUnit(bytes, static_cast<char16_t>(*cp));
            }
            i += font::kEscapeDigits;
            continue;
        }
        appendUnit(bytes, utf16UnitOf(static_cast<unsigned char>(DialogText[i])));
    }
    return bytes;
}

// A line of the enc file as a number: blanks and a sign before the digits, and what follows
// them, are passed over; a line that holds no number, or one too large, reads as 0. Someone may
// have edited the file between the write and the read, and a bad line must not end the program.
namespace {
int encNumber(std::string_view line) {
    while (!line.empty() && line.front() == ' ') line.remove_prefix(1);
    if (!line.empty() && line.front() == '+') line.remove_prefix(1);
    int value = 0;
    const auto r = std::from_chars(line.data(), line.data() + line.size(), value);
    return r.ec == std::errc() ? value : 0;
}
}  // namespace

bool decd_Click(const std::filesystem::path& encPath, std::string& Utf16Body) {
    std::ifstream enc(encPath, std::ios::binary);
    if (!enc) return false;
    std::string line;
    while (std::getline(enc, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty()) continue;
        Utf16Body += static_cast<char>(encNumber(line) & 0xFF);
    }
    return true;
}

bool ResultANSCIToUnicode(std::string_view DialogText, std::ostream& file9, std::string& Utf16Body,
                          const Utf16Export& options) {
    if (!options.throughEncFile) {
        Utf16Body += utf16FileBytes(DialogText);
        if (options.aas) return true;
        file9 << Utf16Body;
        file9.flush();
        return static_cast<bool>(file9);
    }
    encd_Click(DialogText, options.encPath);
    if (options.sleep)
        options.sleep(kEncSettleTime);
    else
        std::this_thread::sleep_for(kEncSettleTime);
    const bool read = decd_Click(options.encPath, Utf16Body);
    if (read && !options.aas) file9 << Utf16Body;
    file9.flush();
    std::error_code ignored;
    std::filesystem::remove(options.encPath, ignored);
    return read;
}

}  // namespace vorlexa
