#include "dictionary_tools/expressions.h"

#include "dictionary_tools/lexicon_compiler.h"
#include "engine/dictionary_store.h"

namespace vorlexa {

namespace {
// The code of a box's first character; an empty box counts as code 0.
unsigned firstCode(std::string_view text) {
    return text.empty() ? 0 : static_cast<unsigned char>(text[0]);
}

constexpr unsigned kBelowCode = 255;  // the text to find: any code of the font but the last
constexpr unsigned kAboveCode = 167;  // the text to put: an Armenian letter, or the ligature

std::string half(std::string_view text) {
    std::string h = "\"" + std::string(text) + "\"";
    h.resize(kExpressionHalf, ' ');
    return h;
}
}  // namespace

std::string_view CorrectionFile(std::string_view text1, std::string_view text2) {
    return firstCode(text1) < kBelowCode && firstCode(text2) > kAboveCode ? kArmenianPairsName
                                                                          : kEnglishPairsName;
}

std::string expressionRecord(std::string_view find, std::string_view replace) {
    return half(find) + half(replace);
}

ExpressionResult addExpression(const std::filesystem::path& folder, std::string_view find,
                               std::string_view replace) {
    ExpressionResult result;
    result.file = folder / CorrectionFile(find, replace);
    RecordFile list;
    if (!list.open(result.file, kPairRecordLength)) {
        result.error = "cannot open " + result.file.string();
        return result;
    }
    std::int64_t at = 1;
    while (at <= list.recordCount() && trimBlanks(list.read(at)) != kNullKey) ++at;
    if (!list.write(at, expressionRecord(find, replace)) || !list.write(at + 1, kNullKey)) {
        result.error = "cannot write " + result.file.string();
        return result;
    }
    result.record = at;
    return result;
}

ExpressionResult ExpressionEditor::Command1_Click() {
    if (Text1.empty() && Text2.empty()) return {};
    ExpressionResult result = addExpression(folder_, Text1, Text2);
    Text1.clear();
    Text2.clear();
    return result;
}

}  // namespace vorlexa
