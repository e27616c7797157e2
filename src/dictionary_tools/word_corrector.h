// The Word Corrector (Form2) without its widgets: it finds a record of dictionarye-a or
// dictionarya-e, steps through its column, changes it in place or frees it, and writes the word
// lists. It edits one dictionary at a time: a change is not mirrored into the other, since only
// the adding of a word keeps the two in step.
//
// Every write goes through the dictionary store the translator reads, so the next run sees it,
// and the store writes it to disk before the call returns.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/dictionary_store.h"
#include "engine/host.h"
#include "text/font_text.h"

namespace vorlexa {

// What the window shows for the Word Corrector: questions, notices and a written list file.
class CorrectorView {
  public:
    virtual ~CorrectorView() = default;
    // Returns kAnswerYes or kAnswerNo; the wording is chosen by `armenian`.
    virtual int ask(const Question& question, bool armenian) = 0;
    virtual void notify(const Notice& notice, bool armenian) = 0;
    // Shows a list file to the user without waiting for them to close it.
    virtual void showList(const std::filesystem::path& file, bool armenian) = 0;
};

// Typing into Text3 is limited to a tag, or to the tags of all meanings with Check1 on.
inline constexpr int kAllMeaningsTagLength = 25;
// Text4 reads "e-a " or "a-e " and the record number.
inline constexpr std::string_view kEnglishPosition = "e-a ";
inline constexpr std::string_view kArmenianPosition = "a-e ";

// A record of one dictionary, as Text4 names it.
struct RecordPosition {
    Direction direction = Direction::EnglishToArmenian;
    std::int64_t record = 0;
};
std::optional<RecordPosition> parsePosition(std::string_view text4);
std::string positionText(const RecordPosition& position);

// The column of a word in the window's own key functions: 0 for a word in the other alphabet.
int sskizbe(std::string_view word);
int formSkizba(std::string_view word);

// The records of a column whose key is the word, walked from `start` down to the column's end
// record: the first one only, or with `all` every one.
struct ColumnMatches {
    std::vector<std::int64_t> records;
    std::int64_t end = 0;  // the record the walk stopped at
};
ColumnMatches findInColumn(const RecordFile& file, Direction direction, std::string_view word,
                           std::int64_t start, bool all);

class WordCorrector {
  public:
    WordCorrector(DictionaryStore& store, CorrectorView& view);

    // The menu item Corr opened the window: the captions of the interface language.
    void Corr_Click(bool armenianInterface);

    // ---- Controls ----------------------------------------------------------------------------
    FontText Text1;     // English
    FontText Text2;     // Armenian
    FontText Text3;     // tag
    std::string Text4;  // "e-a 123"
    std::string Label4;
    bool check1() const { return check1_; }
    int text3MaxLength() const { return check1_ ? kAllMeaningsTagLength : kTagWidth; }

    const std::string& caption(std::string_view control) const;  // UTF-8
    bool enabled(std::string_view control) const;
    const std::string& command3ToolTip() const;
    bool armenianInterface() const { return armenian_; }

    // ---- Commands ------------------------------------------------------------------------------
    void Check1_Click(bool on);
    void Command3_Click();  // search
    void Command2_Click();  // next record of the column
    void Command5_Click();  // previous record
    void Command4_Click();  // change
    void Command1_Click();  // delete
    void Command6_Click();  // word resources
    void Command7_Click();  // dictionary report
    void Text1_DblClick();
    void Text2_DblClick();
    // A key typed into the Armenian box: Enter in a non-empty box searches (true: the key is
    // taken); any other key comes back as the Armenian letter it types.
    bool Text2_Enter();
    static unsigned char Text2_KeyPress(unsigned char key);

    // The flat lists of records with a gloss (Stringea, Stringae): the counts and the listings
    // by part of speech read them. By default the files the start-up built in the folder.
    std::function<std::string(Direction)> flatList;
    // The folder the list files are written to.
    std::filesystem::path folder;

  private:
    void search(bool fromDoubleClick);
    void show(const RecordPosition& position);
    void step(int sign);
    bool edit(bool deleting);
    void setLabel4(std::int64_t record, Direction direction);
    void setCaption(std::string_view control, std::string caption);
    void enable(std::initializer_list<std::string_view> controls, bool on);

    DictionaryStore& store_;
    CorrectorView& view_;
    bool check1_ = false;
    bool armenian_ = false;
    std::optional<RecordPosition> current_;
    std::map<std::string, std::pair<std::string, bool>, std::less<>> controls_;
};

}  // namespace vorlexa
