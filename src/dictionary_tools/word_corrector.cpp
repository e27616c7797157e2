#include "dictionary_tools/word_corrector.h"

#include <algorithm>
#include <charconv>

#include "app/phonetic_keys.h"
#include "dictionary_tools/dictionary_reports.h"

namespace vorlexa {

using namespace literals;

namespace {

const std::string kNoCaption;

// The captions of the window's design, and those Corr_Click sets in the Armenian interface
// (empty: the design's caption stays).
struct Form2Caption {
    std::string_view control;
    std::string_view english;
    std::string_view armenian;
};
constexpr Form2Caption kCaptions[] = {
    {"Form2", "Dictionary", "Բառարան"},
    {"Label1", "English", "անգլերեն"},
    {"Label2", "Armenian", "հայերեն"},
    {"Label3", "Part of Speech", "խոսքի մաս"},
    {"Label5", "All", "բոլորը"},
    {"Command1", "Delete", "Ջնջել"},
    {"Command2", "Next", ""},
    {"Command3", "Search", "Որոնել"},
    {"Command4", "Chng", "Փոխել"},
    {"Command5", "Previous", ""},
    {"Command6", "Word Resources", "Բառապաշար"},
    {"Command7", "Dictionary Report", "Հաշվետվություն"},
};

constexpr std::string_view kSearch[2] = {"Search", "Փնտրել"};
constexpr std::string_view kSearchAll[2] = {"Search for all Meanings", "Փնտրել բոլոր իմսատները"};
constexpr std::string_view kResources[2] = {"Word Resources", "Բառապաշար"};
constexpr std::string_view kResourcesOk[2] = {"OK", "Շատ լավ"};
constexpr std::string_view kReport[2] = {"Dictionary Report", "Հաշվետվություն"};
constexpr std::string_view kSearchToolTip[2] = {"Hot key - 'ENTER'.",
                                                "Գործարկող ստեղնը 'ENTER'-ն է:"};

const Wording kAttention{"Attention!!!", FontText("Ուշադրություն"_ft)};

Wording changeQuestion(Direction direction) {
    if (direction == Direction::EnglishToArmenian)
        return {"Are you sure you want to make a change in 'English to Armenian' dictionary?",
                FontText("Վստաh ե՞ք, որ ուզում եք փոփոխել «Անգլերեն-հայերեն» բառարանը:"_ft)};
    return {"Are you sure you want to make a change in 'Armenian to English' dictionary?",
            FontText("Վստաh ե՞ք, որ ուզում եք փոփոխել «Հայերեն-անգլերեն» բառարանը:"_ft)};
}

// The delete asks about 'English to Armenian' in English whichever dictionary it frees a
// record of; the Armenian wording names the right one.
Wording deleteQuestion(Direction direction) {
    return {"Are you sure you want to make a change in 'English to Armenian' dictionary?",
            direction == Direction::EnglishToArmenian
                ? FontText("Վստահ ե՞ք, որ ուզում եք փոփոխել «Անգլերեն-հայերեն» բառարանը:"_ft)
                : FontText("Վստահ ե՞ք, որ ուզում եք փոփոխել «Հայերեն-անգլերեն» բառարանը:"_ft)};
}

std::string recordCountOf(const std::string& flat) {
    return std::to_string(flat.size() / static_cast<std::size_t>(kRecordLength));
}

}  // namespace

std::optional<RecordPosition> parsePosition(std::string_view text4) {
    RecordPosition p;
    const std::string_view prefix = text4.substr(0, kEnglishPosition.size());
    if (prefix == kEnglishPosition) {
        p.direction = Direction::EnglishToArmenian;
    } else if (prefix == kArmenianPosition) {
        p.direction = Direction::ArmenianToEnglish;
    } else {
        return std::nullopt;
    }
    const std::string_view digits = trimBlanks(text4.substr(prefix.size()));
    const auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), p.record);
    if (ec != std::errc() || end != digits.data() + digits.size() || p.record < 1)
        return std::nullopt;
    return p;
}

std::string positionText(const RecordPosition& position) {
    return std::string(position.direction == Direction::EnglishToArmenian ? kEnglishPosition
                                                                          : kArmenianPosition) +
           std::to_string(position.record);
}

int sskizbe(std::string_view word) {
    if (word.empty() || hasArmenianLetter(word.substr(0, 1))) return 0;
    return skizbeColumn(word);
}

int formSkizba(std::string_view word) {
    if (word.empty()) return 0;
    const char first = word[0];
    if ((first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z')) return 0;
    return skizbaColumn(word);
}

ColumnMatches findInColumn(const RecordFile& file, Direction direction, std::string_view word,
                           std::int64_t start, bool all) {
    ColumnMatches m;
    DictRecord r;
    m.end = start;
    for (; m.end <= file.recordCountExact(); m.end += strideOf(direction)) {
        r.raw = file.read(m.end);
        if (r.isNull()) break;
        if (r.key() != word) continue;
        m.records.push_back(m.end);
        if (!all) break;
    }
    return m;
}

WordCorrector::WordCorrector(DictionaryStore& store, CorrectorView& view)
    : store_(store), view_(view) {
    folder = store.folder();
    flatList = [this](Direction d) { return readStringsFile(folder, d); };
    for (const Form2Caption& c : kCaptions)
        controls_[std::string(c.control)] = {std::string(c.english), true};
}

void WordCorrector::Corr_Click(bool armenianInterface) {
    armenian_ = armenianInterface;
    // The window opens with the captions of its design, in Armenian where the interface is.
    for (const Form2Caption& c : kCaptions)
        setCaption(c.control,
                   std::string(armenian_ && !c.armenian.empty() ? c.armenian : c.english));
    if (check1_) setCaption("Command3", std::string(kSearchAll[armenian_ ? 1 : 0]));
}

const std::string& WordCorrector::caption(std::string_view control) const {
    const auto it = controls_.find(control);
    return it == controls_.end() ? kNoCaption : it->second.first;
}

bool WordCorrector::enabled(std::string_view control) const {
    const auto it = controls_.find(control);
    return it == controls_.end() || it->second.second;
}

const std::string& WordCorrector::command3ToolTip() const {
    static const std::string tips[2] = {std::string(kSearchToolTip[0]),
                                        std::string(kSearchToolTip[1])};
    return tips[armenian_ ? 1 : 0];
}

void WordCorrector::setCaption(std::string_view control, std::string text) {
    controls_[std::string(control)].first = std::move(text);
}

void WordCorrector::enable(std::initializer_list<std::string_view> controls, bool on) {
    for (const std::string_view c : controls) controls_[std::string(c)].second = on;
}

void WordCorrector::setLabel4(std::int64_t record, Direction direction) {
    Label4 = std::to_string(std::max<std::int64_t>(0, record / strideOf(direction)));
}

void WordCorrector::Check1_Click(bool on) {
    check1_ = on;
    const int lang = armenian_ ? 1 : 0;
    setCaption("Command3", std::string(on ? kSearchAll[lang] : kSearch[lang]));
    enable({"Command1", "Command2", "Command4", "Command5"}, !on);
    if (!on) {
        Text1.clear();
        Text2.clear();
        Text3.clear();
    }
}

// ---- Search and stepping
// ---------------------------------------------------------------------------

void WordCorrector::Command3_Click() {
    search(false);
}

void WordCorrector::Text1_DblClick() {
    Text2.clear();
    search(true);
}

void WordCorrector::Text2_DblClick() {
    Text1.clear();
    search(true);
}

bool WordCorrector::Text2_Enter() {
    if (Text2.empty()) return false;
    Command3_Click();
    return true;
}

unsigned char WordCorrector::Text2_KeyPress(unsigned char key) {
    return app::kanci(key, app::KeyTable::Dictionary);
}

void WordCorrector::search(bool fromDoubleClick) {
    Text3.clear();
    if (Text1.empty() == Text2.empty()) return;
    const Direction d = Text1.empty() ? Direction::ArmenianToEnglish : Direction::EnglishToArmenian;
    const FontText word(trimBlanks(d == Direction::EnglishToArmenian ? Text1 : Text2));
    FontText& other = d == Direction::EnglishToArmenian ? Text2 : Text1;

    // A double click searches on from the record shown; with none shown yet, from the column.
    std::int64_t start = d == Direction::EnglishToArmenian ? sskizbe(word) : formSkizba(word);
    if (fromDoubleClick && current_) start = current_->record;
    if (start == 0) {
        view_.notify(
            {{"Change the Language Settings, Please!", FontText("Խնդրեմ, փոխել լեզուները:"_ft)},
             kAttention},
            armenian_);
        return;
    }

    const ColumnMatches found = findInColumn(store_.source(d), d, word, start, check1_);
    DictRecord r;
    for (const std::int64_t rec : found.records) {
        r.raw = store_.source(d).read(rec);
        const FontText gloss(r.gloss());
        const FontText tag(trimBlanks(r.tag()));
        if (check1_) {
            other += gloss + "; ";
            Text3 += tag + "; ";
        } else {
            other = gloss;
            Text3 = tag;
        }
        current_ = RecordPosition{d, rec};
        Text4 = positionText(*current_);
    }
    const bool matched = !found.records.empty();
    if (!matched)
        view_.notify({{"Word '" + word + "' Not Found in Dictionaries.",
                       FontText("«"_ft) + word + FontText("» բառը չկա բառարաններում:"_ft)},
                      kAttention},
                     armenian_);
    setLabel4(matched ? current_->record : found.end, d);
}

void WordCorrector::show(const RecordPosition& position) {
    DictRecord r;
    r.raw = store_.source(position.direction).read(position.record);
    const bool english = position.direction == Direction::EnglishToArmenian;
    (english ? Text1 : Text2) = FontText(r.key());
    (english ? Text2 : Text1) = FontText(r.gloss());
    Text3 = FontText(trimBlanks(r.tag()));
    current_ = position;
    Text4 = positionText(position);
    setLabel4(position.record, position.direction);
}

void WordCorrector::step(int sign) {
    const auto at = parsePosition(Text4);
    if (!at) return;
    RecordPosition next = *at;
    next.record += sign * strideOf(at->direction);
    const RecordFile& file = store_.source(at->direction);
    // Back to the top of the column, or down to its end record, the window stays where it is.
    if (next.record < 1 || next.record > file.recordCount()) return;
    DictRecord r;
    r.raw = file.read(next.record);
    if (r.isNull()) return;
    show(next);
}

void WordCorrector::Command2_Click() {
    if (check1_) return;
    step(1);
}

void WordCorrector::Command5_Click() {
    if (check1_) {
        view_.notify({{"For this function you need to check off the box",
                       FontText("Այս գործողության համար պետք է հանել նշումը:"_ft)},
                      kAttention},
                     armenian_);
        return;
    }
    step(-1);
}

// ---- Change and delete
// -----------------------------------------------------------------------------

bool WordCorrector::edit(bool deleting) {
    if (Text4.empty() || Text1.empty() || Text2.empty()) return false;
    const auto at = parsePosition(Text4);
    if (!at) {
        view_.notify({{"'" + Text4 + "' names no record.",
                       FontText("«"_ft) + Text4 + FontText("» գրառում չկա:"_ft)},
                      kAttention},
                     armenian_);
        return false;
    }
    const Wording text = deleting ? deleteQuestion(at->direction) : changeQuestion(at->direction);
    if (view_.ask({QuestionKind::Generic, text, kAttention, Buttons::YesNo, {}}, armenian_) !=
        kAnswerYes)
        return false;
    std::string error;
    bool ok = false;
    if (deleting) {
        ok = deleteRecord(store_, at->direction, at->record, &error);
    } else {
        const bool english = at->direction == Direction::EnglishToArmenian;
        const DictRecord r =
            DictRecord::make(english ? Text1 : Text2, english ? Text2 : Text1, Text3);
        ok = changeRecord(store_, at->direction, at->record, r, &error);
    }
    if (!ok) view_.notify({{error, fromUtf8(error)}, kAttention}, armenian_);
    return ok;
}

void WordCorrector::Command4_Click() {
    edit(false);
}

void WordCorrector::Command1_Click() {
    if (!edit(true)) return;
    Text1.clear();
    Text2.clear();
    Text3.clear();
}

// ---- Resources and reports
// -------------------------------------------------------------------------

void WordCorrector::Command6_Click() {
    const int lang = armenian_ ? 1 : 0;
    const std::string& now = caption("Command6");
    if (now == kResources[0] || now == kResources[1]) {
        enable({"Command1", "Command3", "Command4", "Command7"}, false);
        Text1 = recordCountOf(flatList(Direction::EnglishToArmenian)) +
                (armenian_ ? FontText(" Անգլերենից հայերեն"_ft) : FontText(" English to Armenian"));
        Text2 = recordCountOf(flatList(Direction::ArmenianToEnglish)) +
                (armenian_ ? FontText(" Հայերենից անգլերեն"_ft) : FontText(" Armenian to English"));
        setCaption("Command6", std::string(kResourcesOk[lang]));
        return;
    }
    if (now == kResourcesOk[0] || now == kResourcesOk[1]) {
        setCaption("Command6", std::string(kResources[lang]));
        setCaption("Command7", std::string(kReport[lang]));
        enable({"Command1", "Command3", "Command4", "Command7"}, true);
        Text1.clear();
        Text2.clear();
    }
}

void WordCorrector::Command7_Click() {
    const ReportResult result =
        writeDictionaryReport(store_, folder, flatList(Direction::EnglishToArmenian),
                              flatList(Direction::ArmenianToEnglish), Text1, Text2, Text3);
    if (!result.error.empty()) {
        view_.notify({{result.error, fromUtf8(result.error)}, kAttention}, armenian_);
        return;
    }
    if (!result.file.empty()) view_.showList(result.file, armenian_);
}

}  // namespace vorlexa
