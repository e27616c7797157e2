#include "text_tools/case_change.h"

namespace vorlexa::text_tools {

// Each code is replaced by its neighbour, which no later code of the same pass looks for, so
// one pass over the text gives what a global replacement per code gives.
void ArmCaseConv(FontText& WorkText, int CaseMode) {
    if (CaseMode == kArmenianUpper) {
        FontText out;
        out.reserve(WorkText.size());
        for (const char ch : WorkText) {
            const auto c = static_cast<unsigned char>(ch);
            if (c == font::kLigature) {
                out += static_cast<char>(186);  // Ե
                out += static_cast<char>(236);  // Վ
            } else {
                out += static_cast<char>(font::toCapital(c));
            }
        }
        WorkText = std::move(out);
    } else if (CaseMode == kArmenianLower) {
        for (char& ch : WorkText)
            ch = static_cast<char>(font::toSmall(static_cast<unsigned char>(ch)));
    }
}

void EngCaseConv(FontText& WorkText, int CaseMode) {
    for (char& ch : WorkText) {
        if (CaseMode == kEnglishUpper && ch >= 'a' && ch <= 'z')
            ch = static_cast<char>(ch - 'a' + 'A');
        if (CaseMode == kEnglishLower && ch >= 'A' && ch <= 'Z')
            ch = static_cast<char>(ch - 'A' + 'a');
    }
}

FontText changeCase(std::string_view text, int CaseMode) {
    FontText WorkText(text);
    if (CaseMode == kArmenianUpper || CaseMode == kArmenianLower)
        ArmCaseConv(WorkText, CaseMode);
    else
        EngCaseConv(WorkText, CaseMode);
    return WorkText;
}

}  // namespace vorlexa::text_tools
