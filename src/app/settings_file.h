// The `settings` file of the data folder: fixed records of 45 characters, blank-padded,
// numbered from 1, the count being the file length / 45.
//
//   1 "Armenian"      interface language        5 Text4 text colour (0x00BBGGRR)
//   2 "TypeArmenian"  TA checked                6 Text4 font name
//   3 "EditingMode"   EF checked                7 "SetInstant": ITR checked
//   4 Text4 font size, a whole number           8 font style, written by the font dialog only
//   9 written by the sibling dictionary program; read only here
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vorlexa::app {

inline constexpr std::string_view kSettingsFileName = "settings";
inline constexpr int kSettingsRecordLength = 45;  // the same record as the dictionaries

inline constexpr int kRecordLanguage = 1;
inline constexpr int kRecordTypeArmenian = 2;
inline constexpr int kRecordEditingMode = 3;
inline constexpr int kRecordFontSize = 4;
inline constexpr int kRecordFontColor = 5;
inline constexpr int kRecordFontName = 6;
inline constexpr int kRecordInstant = 7;
inline constexpr int kRecordFontStyle = 8;
inline constexpr int kRecordSibling = 9;

inline constexpr std::string_view kArmenianValue = "Armenian";
inline constexpr std::string_view kTypeArmenianValue = "TypeArmenian";
inline constexpr std::string_view kEditingModeValue = "EditingMode";
inline constexpr std::string_view kInstantValue = "SetInstant";
inline constexpr std::string_view kSiblingMark = "Pelorand";
inline constexpr std::string_view kSiblingOpen = "Pelorand open";

// The records of the file in rising order, each as stored (45 characters).
std::vector<std::string> readSettingsRecords(const std::filesystem::path& folder);

// Writes one record, blank-padded or cut to 45 characters, growing the file as needed.
bool writeSettingsRecord(const std::filesystem::path& folder, int record, std::string_view value);

// What setsetings writes: records 1, 2, 3, 7, then 4, 5, 6. Records 8 and 9 stay as they are.
struct SettingsToWrite {
    bool armenianInterface = false;
    bool typeArmenian = false;
    bool editingMode = false;
    bool instant = false;
    double fontSize = 10;
    std::int64_t fontColor = 0;
    std::string fontName;
};
bool setsetings(const std::filesystem::path& folder, const SettingsToWrite& values);

// The leading number of a record, as the old numeric reading took it: blanks skipped, digits
// with an optional sign and fraction; 0 when there is none.
double recordNumber(std::string_view record);

}  // namespace vorlexa::app
