// Word lists of the dictionary window: the records of one column that begin with a word, or all
// the words of a part of speech, sorted and numbered in a plain text file of the data folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "engine/dictionary_store.h"
#include "text/font_text.h"

namespace vorlexa {

// The list files, rewritten by each report and deleted at exit; the letter names the dictionary.
inline constexpr std::string_view kEnglishReportName = "tmpe.txt";
inline constexpr std::string_view kArmenianReportName = "tmpa.txt";
// Characters of a record after its key that a report line carries: gloss and tag.
inline constexpr int kReportTailWidth = kGlossWidth + kTagWidth;
// The box that selects a listing of a whole part of speech holds this instead of a word.
inline constexpr std::string_view kEveryWord = "*";

// The sort key of an Armenian word: each character as three digits of its code. A code below 100
// is written "000" and loses its identity. The ligature "և" (168) is written "250", the code 250
// "252" and 252 "254", which puts "և" after "ք" and before "օ"; otherwise the code order is the
// alphabet order, capital before small.
std::string armenianSortKey(std::string_view word);
// The item of an Armenian record in the sorted list: the sort key of its key, a tab, and the
// last 25 characters of the record.
std::string ArmAlphabeticSort(std::string_view record);
// The word back from its key, three digits at a time ("000" gives code 0).
FontText decodeSortKey(std::string_view digits);

// Which report the boxes ask for.
enum class ReportKind { None, PartOfSpeech, EnglishBucket, ArmenianBucket };
ReportKind chooseReport(std::string_view text1, std::string_view text2);

// The items gathered for the list, unsorted, and the count of records examined (starting at 1).
struct ReportItems {
    bool armenian = false;
    std::vector<std::string> items;
    std::int64_t recordCount = 1;
};

// The records of the column of `word` that begin with it (and whose tag begins with `tag` when
// one is given). Freed and blank records are passed over and not counted; "null" ends the walk.
ReportItems bucketReport(const RecordFile& dictionary, Direction direction, std::string_view word,
                         std::string_view tag);

// Every record of a flat list (Stringea or Stringae) whose tag begins with `tag` and whose key
// begins with `box`, or any key when the box holds "*".
ReportItems PartOfSpeech(std::string_view flatRecords, bool armenian, std::string_view box,
                         std::string_view tag);

// The numbered lines of the list file, sorted. A box of exactly two letters adds the count line.
std::vector<FontText> AlphabeticSort(const ReportItems& report, std::string_view box);

// The records of a dictionary that carry a gloss, one after the other, as Stringea holds them.
std::string flatRecords(const RecordFile& dictionary);
// Stringea or Stringae as built at start, or nothing when the file is absent.
std::string readStringsFile(const std::filesystem::path& folder, Direction direction);

// A report written to its list file.
struct ReportResult {
    ReportKind kind = ReportKind::None;
    std::filesystem::path file;  // empty when no report was asked for or it could not be written
    std::size_t lineCount = 0;
    std::string error;
};

// Command7: chooses the report from the boxes, gathers, sorts and writes the list file into
// `folder`. `english` and `armenian` are the flat lists a listing by part of speech reads.
ReportResult writeDictionaryReport(const DictionaryStore& store,
                                   const std::filesystem::path& folder, std::string_view english,
                                   std::string_view armenian, std::string_view text1,
                                   std::string_view text2, std::string_view text3);

}  // namespace vorlexa
