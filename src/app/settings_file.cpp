#include "app/settings_file.h"

#include <cmath>
#include <charconv>
#include <string>

#include "engine/dictionary_store.h"

namespace vorlexa::app {

namespace {

std::string numberText(double value) {
    return std::to_string(static_cast<std::int64_t>(std::llround(value)));
}

}  // namespace

std::vector<std::string> readSettingsRecords(const std::filesystem::path& folder) {
    RecordFile file;
    std::vector<std::string> records;
    // A missing file opens empty, as a random file does; it is made for good at exit.
    if (!file.open(folder / kSettingsFileName, kSettingsRecordLength)) return records;
    for (std::int64_t n = 1; n <= file.recordCount(); ++n) records.push_back(file.read(n));
    return records;
}

bool writeSettingsRecord(const std::filesystem::path& folder, int record, std::string_view value) {
    RecordFile file;
    if (!file.open(folder / kSettingsFileName, kSettingsRecordLength)) return false;
    std::string padded(value.substr(0, kSettingsRecordLength));
    padded.resize(kSettingsRecordLength, ' ');
    return file.write(record, padded);
}

bool setsetings(const std::filesystem::path& folder, const SettingsToWrite& values) {
    RecordFile file;
    if (!file.open(folder / kSettingsFileName, kSettingsRecordLength)) return false;
    const auto put = [&file](int record, std::string_view value) {
        std::string padded(value.substr(0, kSettingsRecordLength));
        padded.resize(kSettingsRecordLength, ' ');
        return file.write(record, padded);
    };
    bool ok = true;
    ok &= put(kRecordLanguage, values.armenianInterface ? kArmenianValue : "");
    ok &= put(kRecordTypeArmenian, values.typeArmenian ? kTypeArmenianValue : "");
    ok &= put(kRecordEditingMode, values.editingMode ? kEditingModeValue : "");
    ok &= put(kRecordInstant, values.instant ? kInstantValue : "");
    ok &= put(kRecordFontSize, numberText(values.fontSize));
    ok &= put(kRecordFontColor, std::to_string(values.fontColor));
    ok &= put(kRecordFontName, values.fontName);
    return ok;
}

double recordNumber(std::string_view record) {
    std::size_t i = 0;
    while (i < record.size() && record[i] == ' ') ++i;
    if (i < record.size() && record[i] == '+') ++i;
    // from_chars: the reading must not depend on the locale the window toolkit sets.
    double value = 0;
    const auto r = std::from_chars(record.data() + i, record.data() + record.size(), value,
                                   std::chars_format::fixed);
    if (r.ec != std::errc() || !std::isfinite(value)) return 0;
    return value;
}

}  // namespace vorlexa::app
