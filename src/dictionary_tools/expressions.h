// Edit Expressions (Form4) without its widgets: a pair of a text and what it is to become, added
// to the correction lists the end of every run applies to the whole translation. uxxuma mends
// Armenian results, uxxume English ones.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "text/font_text.h"

namespace vorlexa {

inline constexpr std::string_view kArmenianPairsName = "uxxuma";
inline constexpr std::string_view kEnglishPairsName = "uxxume";
// A text and its two marks fill one half of a 100-character record.
inline constexpr int kExpressionHalf = 50;
inline constexpr int kExpressionTextWidth = kExpressionHalf - 2;

// The list a pair goes to, by the first characters of the two texts.
std::string_view CorrectionFile(std::string_view text1, std::string_view text2);

// The record of a pair: each text in double quotes in its half, blank-padded; a text too long for
// its half is cut at the half's width and loses its closing mark.
std::string expressionRecord(std::string_view find, std::string_view replace);

struct ExpressionResult {
    std::filesystem::path file;
    std::int64_t record = 0;  // where the pair was written; 0 when nothing was
    std::string error;
};

// Writes the pair at the list's "null" record (or after its last record) and "null" after it.
// A pair that stands already is added again; the earlier one is applied first.
ExpressionResult addExpression(const std::filesystem::path& folder, std::string_view find,
                               std::string_view replace);

class ExpressionEditor {
  public:
    explicit ExpressionEditor(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // The window opens with the text selected in the result box.
    void Form_Load(const FontText& selectedInText4) { Text1 = selectedInText4; }
    // Adds Text1 and Text2 and empties both; nothing when both are empty.
    ExpressionResult Command1_Click();

    FontText Text1;
    FontText Text2;

  private:
    std::filesystem::path folder_;
};

}  // namespace vorlexa
