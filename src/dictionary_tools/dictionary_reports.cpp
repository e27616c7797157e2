#include "dictionary_tools/dictionary_reports.h"

#include <algorithm>
#include <fstream>

namespace vorlexa {

using namespace literals;

namespace {

constexpr int kSortDigits = 3;  // digits per character of a sort key
constexpr unsigned kFirstKeptCode =
    100;  // codes below are written "000": three digits hold no less
constexpr unsigned char kMovedOffset = 2;  // each moved code takes the next even code up

// The three codes the sort key moves, with the code each is written as.
struct MovedCode {
    unsigned char code;
    unsigned written;
};
constexpr MovedCode kMovedCodes[] = {
    {font::kLigature, 250},
    {250, 250 + kMovedOffset},
    {252, 252 + kMovedOffset},
};

std::string threeDigits(unsigned value) {
    std::string s = std::to_string(value);
    return std::string(static_cast<std::size_t>(kSortDigits) - s.size(), '0') + s;
}

bool startsWith(std::string_view s, std::string_view prefix) {
    return s.substr(0, prefix.size()) == prefix;
}

// A record the report passes over: a freed slot or a blank gap of the file.
bool passedOver(std::string_view raw) {
    return mid(raw, 1, 4) == "wwww" || mid(raw, 1, 4) == "    ";
}

// The item List1 gets for a record: English "key<TAB>tail", Armenian by ArmAlphabeticSort.
std::string listItem(std::string_view raw, bool armenian) {
    if (armenian) return ArmAlphabeticSort(raw);
    return std::string(trimBlanks(mid(raw, 1, kKeyWidth))) + '\t' +
           std::string(mid(raw, kKeyWidth + 1, kReportTailWidth));
}

bool tagQualifies(std::string_view raw, std::string_view tag) {
    if (tag.empty()) return true;
    const std::string_view t = trimBlanks(mid(raw, kKeyWidth + kGlossWidth + 1, kTagWidth));
    return t.substr(0, 1) == tag;
}

}  // namespace

std::string armenianSortKey(std::string_view word) {
    std::string key;
    key.reserve(word.size() * kSortDigits);
    for (const char ch : word) {
        const auto c = static_cast<unsigned char>(ch);
        unsigned written = c < kFirstKeptCode ? 0 : c;
        for (const MovedCode& m : kMovedCodes)
            if (m.code == c) written = m.written;
        key += threeDigits(written);
    }
    return key;
}

std::string ArmAlphabeticSort(std::string_view record) {
    return armenianSortKey(trimBlanks(mid(record, 1, kKeyWidth))) + '\t' +
           std::string(mid(record, kKeyWidth + 1, kReportTailWidth));
}

FontText decodeSortKey(std::string_view digits) {
    FontText word;
    for (std::size_t at = 0; at + kSortDigits <= digits.size(); at += kSortDigits) {
        unsigned value = 0;
        for (std::size_t i = at; i < at + kSortDigits; ++i)
            value = value * 10 + static_cast<unsigned>(digits[i] - '0');
        unsigned char code = static_cast<unsigned char>(value);
        for (const MovedCode& m : kMovedCodes)
            if (m.written == value) code = m.code;
        word += static_cast<char>(code);
    }
    return word;
}

ReportKind chooseReport(std::string_view text1, std::string_view text2) {
    if (text2 == "ր"_ft || text1 == kEveryWord || text1.size() == 1 || text2.size() == 1)
        return ReportKind::PartOfSpeech;
    if (text2.empty() && text1.size() > 1) return ReportKind::EnglishBucket;
    if (text1.empty() && text2.size() > 1) return ReportKind::ArmenianBucket;
    return ReportKind::None;
}

ReportItems bucketReport(const RecordFile& dictionary, Direction direction, std::string_view word,
                         std::string_view tag) {
    ReportItems report;
    report.armenian = direction == Direction::ArmenianToEnglish;
    const int stride = strideOf(direction);
    for (std::int64_t rec = columnOf(direction, word); rec <= dictionary.recordCountExact();
         rec += stride) {
        const std::string raw = dictionary.read(rec);
        if (passedOver(raw)) continue;
        if (mid(raw, 1, 4) == kNullKey) break;
        ++report.recordCount;
        if (startsWith(raw, word) && tagQualifies(raw, tag))
            report.items.push_back(listItem(raw, report.armenian));
    }
    return report;
}

ReportItems PartOfSpeech(std::string_view flat, bool armenian, std::string_view box,
                         std::string_view tag) {
    ReportItems report;
    report.armenian = armenian;
    for (std::size_t at = 0; at + kRecordLength <= flat.size(); at += kRecordLength) {
        const std::string_view raw = flat.substr(at, kRecordLength);
        ++report.recordCount;
        const bool wordQualifies = box == kEveryWord || startsWith(raw, box);
        if (wordQualifies && tagQualifies(raw, tag))
            report.items.push_back(listItem(raw, armenian));
    }
    return report;
}

std::vector<FontText> AlphabeticSort(const ReportItems& report, std::string_view box) {
    // List1 is a sorted list: the items in character order, a tab before any letter.
    std::vector<std::string> sorted = report.items;
    std::stable_sort(sorted.begin(), sorted.end());
    std::vector<FontText> lines;
    lines.reserve(sorted.size() + 1);
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        if (!report.armenian) {
            lines.push_back(number + '\t' + sorted[i]);
            continue;
        }
        const std::size_t tab = sorted[i].find('\t');
        lines.push_back(number + '\t' + decodeSortKey(std::string_view(sorted[i]).substr(0, tab)) +
                        "\t\t" + sorted[i].substr(tab + 1));
    }
    // Two letters are a whole column of the English grid: the count of its records closes it.
    constexpr std::size_t kCountedBoxLength = 2;
    if (box.size() == kCountedBoxLength) lines.push_back(std::to_string(report.recordCount - 1));
    return lines;
}

std::string flatRecords(const RecordFile& dictionary) {
    std::string out;
    for (std::int64_t rec = 1; rec <= dictionary.recordCountExact(); ++rec) {
        const std::string raw = dictionary.read(rec);
        if (carriesGloss(raw)) out += raw;
    }
    return out;
}

std::string readStringsFile(const std::filesystem::path& folder, Direction direction) {
    const auto name =
        direction == Direction::EnglishToArmenian ? kEnglishStringsName : kArmenianStringsName;
    std::ifstream in(folder / name, std::ios::binary);
    if (!in) return {};
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

ReportResult writeDictionaryReport(const DictionaryStore& store,
                                   const std::filesystem::path& folder, std::string_view english,
                                   std::string_view armenian, std::string_view text1,
                                   std::string_view text2, std::string_view text3) {
    ReportResult result;
    result.kind = chooseReport(text1, text2);
    ReportItems items;
    std::string_view box;
    switch (result.kind) {
        case ReportKind::None:
            return result;
        case ReportKind::PartOfSpeech: {
            const bool isArmenian = text1.empty();
            box = isArmenian ? text2 : text1;
            items = PartOfSpeech(isArmenian ? armenian : english, isArmenian, box, text3);
            break;
        }
        case ReportKind::EnglishBucket:
            box = text1;
            items = bucketReport(store.english(), Direction::EnglishToArmenian, box, text3);
            break;
        case ReportKind::ArmenianBucket:
            box = text2;
            items = bucketReport(store.armenian(), Direction::ArmenianToEnglish, box, text3);
            break;
    }
    const std::vector<FontText> lines = AlphabeticSort(items, box);
    const auto path = folder / (items.armenian ? kArmenianReportName : kEnglishReportName);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    for (const FontText& line : lines) out << toUtf8(line) << '\n';
    out.flush();
    if (!out) {
        result.error = "cannot write " + path.string();
        return result;
    }
    result.file = path;
    result.lineCount = lines.size();
    return result;
}

}  // namespace vorlexa
