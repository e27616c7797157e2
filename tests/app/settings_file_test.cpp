#include "app/settings_file.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

using namespace vorlexa::app;
using vorlexa::test::TempFolder;

namespace {
std::string record(std::string_view value) {
    std::string r(value);
    r.resize(kSettingsRecordLength, ' ');
    return r;
}
}  // namespace

TEST(SettingsFile, MissingFileReadsAsNoRecords) {
    TempFolder dir;
    EXPECT_TRUE(readSettingsRecords(dir.path()).empty());
}

TEST(SettingsFile, SetsetingsWritesSevenRecordsOfFortyFiveCharacters) {
    TempFolder dir;
    SettingsToWrite v;
    v.armenianInterface = true;
    v.typeArmenian = false;
    v.editingMode = true;
    v.instant = true;
    v.fontSize = 13.6;
    v.fontColor = 255;
    v.fontName = "DejaVu Serif";
    ASSERT_TRUE(setsetings(dir.path(), v));
    const std::string bytes = dir.read("settings");
    ASSERT_EQ(bytes.size(), 7u * 45u);
    EXPECT_EQ(bytes.substr(0, 45), record("Armenian"));
    EXPECT_EQ(bytes.substr(45, 45), record(""));
    EXPECT_EQ(bytes.substr(90, 45), record("EditingMode"));
    EXPECT_EQ(bytes.substr(135, 45), record("14"));  // the size, rounded
    EXPECT_EQ(bytes.substr(180, 45), record("255"));
    EXPECT_EQ(bytes.substr(225, 45), record("DejaVu Serif"));
    EXPECT_EQ(bytes.substr(270, 45), record("SetInstant"));
}

TEST(SettingsFile, SetsetingsLeavesTheFontStyleAndTheSiblingRecordAlone) {
    TempFolder dir;
    ASSERT_TRUE(writeSettingsRecord(dir.path(), kRecordFontStyle, "BoldItalic"));
    ASSERT_TRUE(writeSettingsRecord(dir.path(), kRecordSibling, "Pelorand open"));
    ASSERT_TRUE(setsetings(dir.path(), SettingsToWrite{}));
    const auto records = readSettingsRecords(dir.path());
    ASSERT_EQ(records.size(), 9u);
    EXPECT_EQ(records[0], record(""));
    EXPECT_EQ(records[3], record("10"));
    EXPECT_EQ(records[4], record("0"));
    EXPECT_EQ(records[7], record("BoldItalic"));
    EXPECT_EQ(records[8], record("Pelorand open"));
}

TEST(SettingsFile, NumbersAreReadLikeTheOldNumericReading) {
    EXPECT_EQ(recordNumber("  12   "), 12);
    EXPECT_EQ(recordNumber("12.5x"), 12.5);
    EXPECT_EQ(recordNumber("+7"), 7);
    EXPECT_EQ(recordNumber("-3"), -3);
    EXPECT_EQ(recordNumber(""), 0);
    EXPECT_EQ(recordNumber("Arial"), 0);
}
