// Case change of the Case Change menu: separate commands for the two alphabets, since a
// general rule can't serve the font codes (an Armenian capital is its small letter's code - 1).
#pragma once

#include <string_view>

#include "text/font_text.h"

namespace vorlexa::text_tools {

// CaseMode: which of the four commands runs.
inline constexpr int kArmenianUpper = 1;  // AUC
inline constexpr int kArmenianLower = 2;  // ALC
inline constexpr int kEnglishUpper = 3;   // EUC
inline constexpr int kEnglishLower = 4;   // ELC

// Modes 1 and 2. Upper case writes the ligature և as the two capitals ԵՎ; lower case turns them
// into ե and վ, not back into the ligature. Latin letters are left alone.
void ArmCaseConv(FontText& WorkText, int CaseMode);

// Modes 3 and 4: the plain casing of the C library's default locale, which touches the Latin
// letters A-Z and a-z only, so Armenian codes and characters outside the font keep their bytes.
void EngCaseConv(FontText& WorkText, int CaseMode);

// The command of CaseMode over a text (ArmCaseConv for 1 and 2, EngCaseConv for 3 and 4).
FontText changeCase(std::string_view text, int CaseMode);

}  // namespace vorlexa::text_tools
