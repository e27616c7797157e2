// The converters between Unicode Armenian and font text used by the converter window and by
// UTF-16 export. They are deliberately not each other's inverse: ":" never turns back into the
// Armenian full stop, ՞ is not taken in, and the quotation and punctuation codes are left alone.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>

namespace vorlexa {

// Unicode to font text, over the working string of the converter window (UTF-16 units, each
// converted letter becoming a unit that holds its font code).
void UnicodeAnsciConverter(std::u16string& ConverterText);

// Font text to Unicode, over the same string.
void AnsciUnicodeConverter(std::u16string& ConverterText);

// Low byte of the UTF-16 unit of an Armenian letter code above 177.
int bdali(int c);

// The UTF-16 unit a font code is saved as: 167 and 168 as the ligature U+0587 (so « is written
// as և), 177 as U+055E, other codes up to 177 as themselves, the letters through bdali.
char16_t utf16UnitOf(unsigned char c);

// Writes the lines of the temporary file `enc`: "255", "254", then a low and a high byte per
// character of DialogText.
void encd_Click(std::string_view DialogText, const std::filesystem::path& encPath);

// Reads `enc` back into Utf16Body, one character per number. Returns false if `enc` can't be read.
bool decd_Click(const std::filesystem::path& encPath, std::string& Utf16Body);

// Pause between writing and reading `enc`, so that the file system has settled.
inline constexpr std::chrono::milliseconds kEncSettleTime{5000};

struct Utf16Export {
    bool aas = false;  // "append" mode: leave the body in Utf16Body for the caller
    // The bytes are made in memory and written at once. The route through the temporary file
    // `enc` and its settle time gives the same bytes; it is kept for the tests of that file.
    bool throughEncFile = false;
    std::filesystem::path encPath = "enc";                  // with throughEncFile
    std::function<void(std::chrono::milliseconds)> sleep;  // with throughEncFile; empty: sleep the thread
};

// The bytes of the UTF-16 little-endian file of a font text: FF FE, then a low and a high byte
// per character.
std::string utf16FileBytes(std::string_view DialogText);

// Leaves in `file9` a UTF-16 little-endian text with byte-order mark (or, with aas, only in
// Utf16Body). Through `enc` when options.throughEncFile is set, which is deleted afterwards.
bool ResultANSCIToUnicode(std::string_view DialogText, std::ostream& file9, std::string& Utf16Body,
                          const Utf16Export& options);

}  // namespace vorlexa
