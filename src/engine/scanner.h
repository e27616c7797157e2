// The character classes of the token scanner.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlexa {

// The delimiters that end a word, in the order the scanner tests them: blank, "-", CR, LF,
// brackets, punctuation, digits, signs, the typographic quotes and dashes, "՝" and "_".
// The double quote is not among them: it ends a word only when it isn't standing for a letter.
bool isWordDelimiter(unsigned char c);
// The same list with the double quote: what is cut off the end of RawWord.
bool isRawWordDelimiter(unsigned char c);
// Delimiters copied to the output as they stand.
bool isCopiedDelimiter(unsigned char c);

constexpr bool isAsciiDigit(int c) { return c >= '0' && c <= '9'; }

// Words of a text as the scanner sees them: runs of characters between delimiters (the double
// quote counted among them).
std::int64_t countWords(std::string_view text);

}  // namespace vorlexa
