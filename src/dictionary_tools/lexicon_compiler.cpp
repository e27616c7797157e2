#include "dictionary_tools/lexicon_compiler.h"

#include <fstream>
#include <set>
#include <sstream>

#include "text/font_text.h"

namespace vorlexa {

using namespace literals;
namespace fs = std::filesystem;

std::string Diagnostic::str() const {
    std::string s = file;
    if (line > 0) s += ":" + std::to_string(line);
    s += warning ? ": warning: " : ": ";
    s += message;
    return s;
}

bool CompileReport::ok() const {
    for (const auto& d : diagnostics)
        if (!d.warning) return false;
    return true;
}

namespace {

constexpr std::string_view kPositionOneLetters = "nvapo12drcsjx";
constexpr std::string_view kArmenianSigns = " -/(),.*0123456789";
constexpr std::string_view kEnglishKeySigns = " -'.*&0123456789";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string shown(std::string_view font) { return toUtf8(font); }

bool isArmenianSideChar(unsigned char c, bool key) {
    if (font::isSmall(c) || c == font::kLigature) return true;
    if (key) return c == ' ' || c == '-' || c == '*';
    return c == font::kQuestionSign || c == font::kEmphasisSign ||
           kArmenianSigns.find(static_cast<char>(c)) != std::string_view::npos;
}

void checkArmenianSide(std::string_view text, bool key, const char* what,
                       std::vector<std::string>& reasons) {
    for (const char ch : text) {
        const auto c = static_cast<unsigned char>(ch);
        if (font::isCapital(c)) {
            reasons.push_back(std::string("capital letter in the Armenian ") + what +
                              " (write it in small letters; the engine capitalises)");
            return;
        }
        if (!isArmenianSideChar(c, key)) {
            reasons.push_back(std::string("character '") + shown(std::string_view(&ch, 1)) +
                              "' is not allowed in an Armenian " + what);
            return;
        }
    }
}

void checkEnglishSide(std::string_view text, bool key, const char* what,
                      std::vector<std::string>& reasons) {
    for (const char ch : text) {
        const auto c = static_cast<unsigned char>(ch);
        const bool ok = key ? ((c >= 'a' && c <= 'z') ||
                               kEnglishKeySigns.find(ch) != std::string_view::npos)
                            : (c >= 0x20 && c < 0x7F);
        if (!ok) {
            if (key && c >= 'A' && c <= 'Z') {
                reasons.push_back("upper-case letter in a key (keys are looked up in lower case)");
            } else {
                reasons.push_back(std::string("character '") + shown(std::string_view(&ch, 1)) +
                                  "' is not allowed in an English " + what);
            }
            return;
        }
    }
}

void checkTag(Direction direction, std::string_view gloss, std::string_view tag,
              std::vector<std::string>& reasons) {
    if (trimBlanks(tag).empty()) {
        reasons.push_back("missing tag");
        return;
    }
    if (tag.size() > kTagWidth) {
        reasons.push_back("tag longer than five positions");
        return;
    }
    std::string t(tag);
    t.resize(kTagWidth, ' ');
    if (t.compare(0, 3, "cto") == 0) {
        if (direction != Direction::ArmenianToEnglish) reasons.push_back("tag \"cto\" belongs to the Armenian dictionary");
        if (trimBlanks(t.substr(3)).size() != 0) reasons.push_back("nothing may follow \"cto\" in a tag");
        return;
    }
    if (kPositionOneLetters.find(t[0]) == std::string_view::npos) {
        reasons.push_back(std::string("tag position 1 '") + t[0] + "' is no part of speech");
        return;
    }
    if (t[1] != ' ' && !(t[1] == 'i' && t[0] == 'v'))
        reasons.push_back(std::string("tag position 2 '") + t[1] + "': only \"i\" on a verb");
    if (t[2] != ' ' && !isDigit(t[2]))
        reasons.push_back(std::string("tag position 3 '") + t[2] + "': only a vowel-fall digit");
    if (t[3] == 't') {
        if (t[0] != 'v') reasons.push_back("tag position 4 \"t\" (transitive) only on a verb");
    } else if (isDigit(t[3])) {
        if (!isDigit(t[2])) reasons.push_back("tag position 4 digit without a digit in position 3");
    } else if (t[3] != ' ') {
        reasons.push_back(std::string("tag position 4 '") + t[3] + "': only \"t\" or a digit");
    }
    if (isDigit(t[2]) && t[3] == ' ')
        reasons.push_back("vowel fall needs two digits in positions 3-4, or one digit before \"t\"");
    if (t[4] == 'n') {
        if (t[0] != 'v') reasons.push_back("tag position 5 \"n\" only on a verb");
    } else if (t[4] == 'v') {
        if (direction != Direction::ArmenianToEnglish)
            reasons.push_back("tag position 5 \"v\" belongs to the Armenian dictionary");
    } else if (t[4] != ' ') {
        reasons.push_back(std::string("tag position 5 '") + t[4] + "': only \"n\" or \"v\"");
    }
    if (isDigit(t[2]) && direction == Direction::EnglishToArmenian) {
        const int n = t[3] == 't' ? t[2] - '0' : (t[2] - '0') * 10 + (isDigit(t[3]) ? t[3] - '0' : 0);
        if (n < 1 || n > static_cast<int>(gloss.size()))
            reasons.push_back("vowel-fall position " + std::to_string(n) + " is outside the gloss");
    }
}

}  // namespace

std::vector<std::string> checkRecordFields(Direction direction, std::string_view key,
                                           std::string_view gloss, std::string_view tag,
                                           bool keySpelledByRule) {
    std::vector<std::string> reasons;
    if (key.empty()) reasons.push_back("empty key");
    if (gloss.empty()) reasons.push_back("empty gloss");
    if (key.size() > kKeyWidth)
        reasons.push_back("key longer than " + std::to_string(kKeyWidth) + " characters");
    if (!key.empty() && (key.front() == ' ' || key.back() == ' '))
        reasons.push_back("blank at the edge of the key");
    if (key == kNullKey || key == kFreedKey) reasons.push_back("the key is a reserved record mark");
    if (direction == Direction::EnglishToArmenian) {
        if (!keySpelledByRule) checkEnglishSide(key, true, "key", reasons);
        checkArmenianSide(gloss, false, "gloss", reasons);
    } else {
        if (!keySpelledByRule) checkArmenianSide(key, true, "key", reasons);
        checkEnglishSide(gloss, false, "gloss", reasons);
    }
    checkTag(direction, gloss, tag, reasons);
    return reasons;
}

namespace {

std::vector<std::string> splitTabs(std::string_view line) {
    std::vector<std::string> fields;
    std::size_t from = 0;
    while (true) {
        const auto tab = line.find('\t', from);
        fields.emplace_back(line.substr(from, tab == std::string_view::npos ? tab : tab - from));
        if (tab == std::string_view::npos) break;
        from = tab + 1;
    }
    return fields;
}

bool readLines(const fs::path& file, std::vector<std::string>& lines) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return false;
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return true;
}

// The text of one line in font text; a line that is not UTF-8 is reported.
std::string lineToFont(const std::string& line, const std::string& file, int number,
                       std::vector<Diagnostic>& diagnostics) {
    Utf8Report report;
    std::string font = fromUtf8(line, &report);
    if (report.invalidSequences > 0)
        diagnostics.push_back({file, number, "bytes that are not UTF-8", false});
    return font;
}

}  // namespace

std::vector<LexiconEntry> readLexicon(const fs::path& file, Direction direction,
                                      std::vector<Diagnostic>& diagnostics,
                                      const std::set<std::string>& ruleSpelledKeys) {
    std::vector<LexiconEntry> entries;
    std::vector<std::string> lines;
    const std::string name = file.string();
    if (!readLines(file, lines)) {
        diagnostics.push_back({name, 0, "cannot read the file", false});
        return entries;
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const int number = static_cast<int>(i + 1);
        if (lines[i].empty() || lines[i][0] == '#') continue;
        const std::string font = lineToFont(lines[i], name, number, diagnostics);
        const auto fields = splitTabs(font);
        if (fields.size() != 3) {
            diagnostics.push_back({name, number,
                                   "expected key<TAB>gloss<TAB>tag, found " +
                                       std::to_string(fields.size()) + " field(s)",
                                   false});
            continue;
        }
        LexiconEntry e{number, fields[0], fields[1], fields[2]};
        for (char& c : e.tag)
            if (c == kTagBlank) c = ' ';
        while (!e.tag.empty() && e.tag.back() == ' ') e.tag.pop_back();
        std::string gloss = e.gloss;
        if (gloss.size() > kGlossWidth) gloss.resize(kGlossWidth);
        // A key the rules look up exactly as they spell it ("Pope", "թ.") keeps its spelling.
        const auto reasons =
            checkRecordFields(direction, e.key, gloss, e.tag, ruleSpelledKeys.count(e.key) > 0);
        for (const auto& r : reasons) diagnostics.push_back({name, number, r, false});
        if (!reasons.empty()) continue;
        if (e.gloss.size() > kGlossWidth) {
            diagnostics.push_back({name, number,
                                   "gloss longer than " + std::to_string(kGlossWidth) +
                                       " characters is stored cut: \"" + shown(gloss) + "\"",
                                   true});
        }
        entries.push_back(std::move(e));
    }
    return entries;
}

namespace {

// Keys that may stand twice in one file: the later record is a second sense, read only by a rule
// that asks for it. Lines "en-hy<TAB>key" or "hy-en<TAB>key".
std::set<std::pair<std::string, std::string>> readSecondSenses(const fs::path& file) {
    std::set<std::pair<std::string, std::string>> allowed;
    std::vector<std::string> lines;
    if (!readLines(file, lines)) return allowed;
    for (const auto& line : lines) {
        if (line.empty() || line[0] == '#') continue;
        const auto fields = splitTabs(fromUtf8(line));
        if (fields.size() == 2) allowed.insert({fields[0], fields[1]});
    }
    return allowed;
}

// The keys of rule-keys.txt for one dictionary: lines under "# en-hy" or "# hy-en".
std::set<std::string> readRuleKeys(const fs::path& file, const char* fileTag) {
    std::set<std::string> keys;
    std::vector<std::string> lines;
    if (!readLines(file, lines)) return keys;
    bool inSection = false;
    for (const auto& line : lines) {
        if (line.rfind("# en-hy", 0) == 0 || line.rfind("# hy-en", 0) == 0) {
            inSection = line.compare(2, 5, fileTag) == 0;
            continue;
        }
        if (inSection && !line.empty() && line[0] != '#') keys.insert(fromUtf8(line));
    }
    return keys;
}

void compileDictionary(const fs::path& sourceFile, const char* fileTag, Direction direction,
                       const fs::path& target,
                       const std::set<std::pair<std::string, std::string>>& secondSenses,
                       CompileReport& report, int& count) {
    const auto ruleKeys = readRuleKeys(sourceFile.parent_path() / "rule-keys.txt", fileTag);
    const auto entries = readLexicon(sourceFile, direction, report.diagnostics, ruleKeys);
    std::set<std::string> seen;
    for (const auto& e : entries) {
        if (!seen.insert(e.key).second && !secondSenses.count({fileTag, e.key})) {
            report.diagnostics.push_back({sourceFile.string(), e.line,
                                          "key \"" + shown(e.key) +
                                              "\" stands twice; a deliberate second sense "
                                              "belongs in lexicon/second-senses.txt",
                                          false});
        }
    }
    if (!report.ok()) return;
    RecordFile file;
    if (!file.open(target, kRecordLength)) {
        report.diagnostics.push_back({target.string(), 0, "cannot create the file", false});
        return;
    }
    file.setWriteThrough(false);
    createEmptyDictionary(file, strideOf(direction));
    for (const auto& e : entries) {
        std::string error;
        if (!insertRecord(file, direction, e.key, e.gloss, e.tag, &error)) {
            report.diagnostics.push_back({sourceFile.string(), e.line, error, false});
            return;
        }
        ++count;
    }
    if (!file.setWriteThrough(true))
        report.diagnostics.push_back({target.string(), 0, "cannot write the file", false});
}

void compilePairs(const fs::path& sourceFile, const fs::path& target, int recordLength,
                  CompileReport& report) {
    std::vector<std::string> lines;
    const std::string name = sourceFile.string();
    if (!readLines(sourceFile, lines)) {
        report.diagnostics.push_back({name, 0, "cannot read the file", false});
        return;
    }
    const int half = recordLength / 2;
    std::string out;
    auto appendPair = [&](std::string_view find, std::string_view replace) {
        std::string rec = "\"" + std::string(find) + "\"";
        rec.resize(half, ' ');
        rec += "\"" + std::string(replace) + "\"";
        rec.resize(recordLength, ' ');
        out += rec;
    };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const int number = static_cast<int>(i + 1);
        if (lines[i].empty() || lines[i][0] == '#') continue;
        const auto fields = splitTabs(lineToFont(lines[i], name, number, report.diagnostics));
        bool quoted = fields.size() == 2;
        for (const auto& f : fields)
            quoted = quoted && f.size() >= 2 && f.front() == '"' && f.back() == '"';
        if (!quoted) {
            report.diagnostics.push_back({name, number, "expected \"find\"<TAB>\"replace\"", false});
            continue;
        }
        const std::string find = fields[0].substr(1, fields[0].size() - 2);
        const std::string replace = fields[1].substr(1, fields[1].size() - 2);
        if (find.empty()) {
            report.diagnostics.push_back({name, number, "empty text to find", false});
            continue;
        }
        if (static_cast<int>(find.size()) > half - 2 || static_cast<int>(replace.size()) > half - 2) {
            report.diagnostics.push_back(
                {name, number, "a text longer than " + std::to_string(half - 2) + " characters", false});
            continue;
        }
        appendPair(find, replace);
    }
    // The reader stops one record short of the end: a closing pair of empty marks, which
    // matches nowhere, lets it reach every real pair.
    appendPair("", "");
    RecordFile file;
    if (!file.open(target, recordLength) || !file.replaceAll(out))
        report.diagnostics.push_back({target.string(), 0, "cannot write the file", false});
}

void compileHelp(const fs::path& sourceFile, const fs::path& target, CompileReport& report) {
    std::ifstream in(sourceFile, std::ios::binary);
    if (!in) {
        report.diagnostics.push_back({sourceFile.string(), 0, "cannot read the file", false});
        return;
    }
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    Utf8Report utf8;
    const std::string font = fromUtf8(text, &utf8);
    if (utf8.invalidSequences > 0)
        report.diagnostics.push_back({sourceFile.string(), 0, "bytes that are not UTF-8", false});
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    out << font;
    if (!out) report.diagnostics.push_back({target.string(), 0, "cannot write the file", false});
}

}  // namespace

CompileReport buildDataFolder(const fs::path& source, const fs::path& target) {
    CompileReport report;
    std::error_code ec;
    fs::create_directories(target, ec);
    if (ec) {
        report.diagnostics.push_back({target.string(), 0, "cannot create the folder", false});
        return report;
    }
    const auto secondSenses = readSecondSenses(source / "lexicon" / "second-senses.txt");
    compileDictionary(source / "lexicon" / "en-hy.tsv", "en-hy", Direction::EnglishToArmenian,
                      target / kEnglishDictName, secondSenses, report, report.englishRecords);
    compileDictionary(source / "lexicon" / "hy-en.tsv", "hy-en", Direction::ArmenianToEnglish,
                      target / kArmenianDictName, secondSenses, report, report.armenianRecords);
    struct PairFile {
        const char* name;
        int recordLength;
    };
    for (const PairFile p : {PairFile{"uxxuma", kPairRecordLength}, PairFile{"uxxume", kPairRecordLength},
                             PairFile{"uxxumy", kDialectRecordLength}}) {
        const fs::path from = source / "pairs" / (std::string(p.name) + ".tsv");
        if (fs::exists(from)) compilePairs(from, target / p.name, p.recordLength, report);
    }
    // The rules' own spellings of keys travel with the data, so a check of the compiled folder
    // knows them too.
    if (fs::exists(source / "lexicon" / "rule-keys.txt")) {
        fs::copy_file(source / "lexicon" / "rule-keys.txt", target / "rule-keys.txt",
                      fs::copy_options::overwrite_existing, ec);
        if (ec) report.diagnostics.push_back({target.string(), 0, "cannot copy rule-keys.txt", false});
    }
    if (fs::exists(source / "help" / "read.txt"))
        compileHelp(source / "help" / "read.txt", target / "read.txt", report);
    return report;
}

CompileReport checkDataFolder(const fs::path& folder) {
    CompileReport report;
    for (const Direction d : {Direction::EnglishToArmenian, Direction::ArmenianToEnglish}) {
        const fs::path path =
            folder / (d == Direction::EnglishToArmenian ? kEnglishDictName : kArmenianDictName);
        const std::string name = path.string();
        if (!fs::exists(path)) {
            report.diagnostics.push_back({name, 0, "missing", false});
            continue;
        }
        RecordFile file;
        if (!file.open(path, kRecordLength)) {
            report.diagnostics.push_back({name, 0, "cannot read the file", false});
            continue;
        }
        if (file.byteLength() % kRecordLength != 0)
            report.diagnostics.push_back({name, 0,
                                          "length " + std::to_string(file.byteLength()) +
                                              " is not a whole number of 45-character records",
                                          false});
        const auto ruleKeys = readRuleKeys(folder / "rule-keys.txt",
                                           d == Direction::EnglishToArmenian ? "en-hy" : "hy-en");
        const int stride = strideOf(d);
        std::vector<bool> closed(static_cast<std::size_t>(stride) + 1, false);
        int count = 0;
        for (std::int64_t rec = 1; rec <= file.recordCount(); ++rec) {
            DictRecord r;
            r.raw = file.read(rec);
            const int column = static_cast<int>((rec - 1) % stride) + 1;
            if (r.isNull()) {
                closed[static_cast<std::size_t>(column)] = true;
                continue;
            }
            if (r.isFreed() || trimBlanks(r.raw).empty()) continue;
            const int line = static_cast<int>(rec);
            if (closed[static_cast<std::size_t>(column)]) {
                report.diagnostics.push_back({name, line, "record below the end of its column", false});
                continue;
            }
            if (columnOf(d, r.key()) != column) {
                report.diagnostics.push_back({name, line,
                                              "key \"" + shown(r.key()) + "\" stands in column " +
                                                  std::to_string(column) + ", its own is " +
                                                  std::to_string(columnOf(d, r.key())),
                                              false});
            }
            std::string tag = r.tag();
            while (!tag.empty() && tag.back() == ' ') tag.pop_back();
            const bool ruleSpelled = ruleKeys.count(std::string(r.key())) > 0;
            for (const auto& reason : checkRecordFields(d, r.key(), r.gloss(), tag, ruleSpelled))
                report.diagnostics.push_back({name, line, "record: " + reason, false});
            ++count;
        }
        for (int c = 1; c <= stride; ++c) {
            if (!closed[static_cast<std::size_t>(c)]) {
                report.diagnostics.push_back(
                    {name, 0, "column " + std::to_string(c) + " has no end record", false});
                break;
            }
        }
        (d == Direction::EnglishToArmenian ? report.englishRecords : report.armenianRecords) = count;
    }
    return report;
}

}  // namespace vorlexa
