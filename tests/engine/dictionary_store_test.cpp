#include "engine/dictionary_store.h"

#include <gtest/gtest.h>

#include <random>

#include "support/temp_folder.h"
#include "text/font_text.h"

using namespace vorlexa;
using namespace vorlexa::literals;

TEST(EnglishColumns, TwoLowerCaseLettersGiveTheirOrdinal) {
    EXPECT_EQ(skizbeColumn("aa"), 1);
    EXPECT_EQ(skizbeColumn("ab"), 2);
    EXPECT_EQ(skizbeColumn("az"), 26);
    EXPECT_EQ(skizbeColumn("ba"), 27);
    EXPECT_EQ(skizbeColumn("zy"), 675);
    EXPECT_EQ(skizbeColumn("zz"), 676);
    EXPECT_EQ(skizbeColumn("house"), 26 * 7 + 15);
}

TEST(EnglishColumns, OddKeysShareTheColumnOfZx) {
    EXPECT_EQ(skizbeColumn("zx"), 674);
    EXPECT_EQ(skizbeColumn("a"), 674);
    EXPECT_EQ(skizbeColumn("i"), 674);
    EXPECT_EQ(skizbeColumn("Abc"), 674);
    EXPECT_EQ(skizbeColumn("3-story"), 674);
    EXPECT_EQ(skizbeColumn("-ed"), 674);
    EXPECT_EQ(skizbeColumn(""), 674);
}

TEST(ArmenianColumns, OuAndOddKeys) {
    EXPECT_EQ(skizbaColumn("ու"_ft), 534);
    EXPECT_EQ(skizbaColumn("ուր"_ft), 534);
    EXPECT_EQ(skizbaColumn("ա"_ft), 535);
    EXPECT_EQ(skizbaColumn("Ամ"_ft), 535);  // capitals have no row
    EXPECT_EQ(skizbaColumn("-ն"_ft), 535);
    EXPECT_EQ(skizbaColumn("ևս"_ft), 535);  // the ligature starts no row
    EXPECT_EQ(skizbaColumn("աւ"_ft), 535);  // "ւ" is no second letter of a row
}

TEST(ArmenianColumns, PairedLettersShareAColumn) {
    EXPECT_EQ(skizbaColumn("բբ"_ft), skizbaColumn("բև"_ft));
    EXPECT_EQ(skizbaColumn("պա"_ft), skizbaColumn("ժա"_ft));
    EXPECT_EQ(skizbaColumn("աց"_ft), skizbaColumn("աձ"_ft));
    EXPECT_EQ(skizbaColumn("որ"_ft), skizbaColumn("ըհ"_ft));
    EXPECT_EQ(skizbaColumn("կտ"_ft), skizbaColumn("տկ"_ft));
    EXPECT_NE(skizbaColumn("բա"_ft), skizbaColumn("բբ"_ft));
}

TEST(ArmenianColumns, RowsBeginWhereTheGridPutsThem) {
    EXPECT_EQ(skizbaColumn("բա"_ft), 24);
    EXPECT_EQ(skizbaColumn("բբ"_ft), 25);
    EXPECT_EQ(skizbaColumn("գա"_ft), 48);
    EXPECT_EQ(skizbaColumn("աց"_ft), 3);
    EXPECT_EQ(skizbaColumn("ադ"_ft), 4);
}

TEST(ArmenianColumns, EveryPairOfLettersFallsInTheGrid) {
    for (int a = 179; a <= 253; a += 2) {
        for (int b = 179; b <= 253; b += 2) {
            const std::string word{static_cast<char>(a), static_cast<char>(b)};
            const int c = skizbaColumn(word);
            EXPECT_GE(c, 1);
            EXPECT_LE(c, 535);
        }
    }
}

TEST(DictRecordFields, TrimmedFieldsAndTheFiveCharacterTagBuffer) {
    const DictRecord r = DictRecord::make("free of charge", "անվճար"_ft, "a");
    EXPECT_EQ(r.raw.size(), 45u);
    EXPECT_EQ(r.key(), "free of charge");
    EXPECT_EQ(r.gloss(), "անվճար"_ft);
    EXPECT_EQ(r.tag(), "a    ");
    EXPECT_EQ(r.tag().back(), ' ');  // a one-letter tag has blanks in position 5
    EXPECT_TRUE(DictRecord::null().isNull());
    EXPECT_EQ(DictRecord::null().raw.substr(0, 4), "null");
}

TEST(DictRecordFields, LongGlossIsStoredCut) {
    const DictRecord r = DictRecord::make("environment", "environmental protection", "n");
    EXPECT_EQ(r.gloss(), "environmental protec");
}

TEST(Mid, SlicesPastTheEndYieldWhatIsThere) {
    EXPECT_EQ(mid("abc", 2, 5), "bc");
    EXPECT_EQ(mid("abc", 4, 1), "");
    EXPECT_EQ(mid("abc", 0, 1), "");
}

class StoreTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(store.open(dir.path()));
        ASSERT_TRUE(createEmptyDictionary(store.english(), kEnglishStride));
        ASSERT_TRUE(createEmptyDictionary(store.armenian(), kArmenianStride));
    }
    std::string fileBytes(std::string_view name) { return dir.read(std::string(name)); }

    test::TempFolder dir;
    DictionaryStore store;
};

TEST_F(StoreTest, FreshDictionaryIsOneRowOfEndRecords) {
    EXPECT_EQ(store.english().recordCount(), 676);
    EXPECT_EQ(store.armenian().recordCount(), 535);
    EXPECT_EQ(fileBytes(kEnglishDictName).size(), 676u * 45);
}

TEST_F(StoreTest, InsertionWritesRecordEndRecordAndReverseEntry) {
    const auto r = insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    ASSERT_TRUE(r.record);
    EXPECT_EQ(*r.record, skizbeColumn("house"));
    ASSERT_TRUE(r.reverseRecord);
    EXPECT_EQ(*r.reverseRecord, skizbaColumn("տուն"_ft));
    // The end record moved one stride down, past the old end of the file.
    EXPECT_EQ(store.english().recordCount(), skizbeColumn("house") + 676);
    EXPECT_EQ(store.findEnglish("house"), r.record);
    EXPECT_EQ(store.findArmenian("տուն"_ft), r.reverseRecord);
    DictRecord back;
    back.raw = store.armenian().read(*r.reverseRecord);
    EXPECT_EQ(back.gloss(), "house");
    EXPECT_EQ(back.tag(), "n    ");
}

TEST_F(StoreTest, EveryChangeIsOnDiskBeforeTheCallReturns) {
    insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    DictionaryStore other;
    ASSERT_TRUE(other.open(dir.path()));
    EXPECT_TRUE(other.findEnglish("house"));
    EXPECT_TRUE(other.findArmenian("տուն"_ft));
}

TEST_F(StoreTest, ColumnOrderIsInsertionOrderAndTheUpperRecordWins) {
    const auto first = insertWordPair(store, Direction::EnglishToArmenian, "bank", "բանկ"_ft, "n");
    const auto second = insertWordPair(store, Direction::EnglishToArmenian, "bank", "ափ"_ft, "n");
    ASSERT_TRUE(first.record && second.record);
    EXPECT_EQ(*second.record, *first.record + kEnglishStride);
    EXPECT_EQ(store.findEnglish("bank"), first.record);
}

TEST_F(StoreTest, GlossWithSlashBlankOrBracketGetsNoReverseRecord) {
    for (const auto& gloss : {"երկրորդ/վայրկյան"_ft, "մեծ տուն"_ft, "տուն(ը)"_ft, "-ն"_ft}) {
        const auto r = insertWordPair(store, Direction::EnglishToArmenian, "second", gloss, "n");
        EXPECT_TRUE(r.record);
        EXPECT_FALSE(r.reverseRecord);
        EXPECT_TRUE(r.reverseSkipped);
    }
    EXPECT_EQ(store.armenian().recordCount(), 535);
}

TEST_F(StoreTest, ReverseEntryIsNotMadeTwice) {
    insertWordPair(store, Direction::EnglishToArmenian, "home", "տուն"_ft, "n");
    const auto r = insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    EXPECT_TRUE(r.reverseSkipped);
    DictRecord back;
    back.raw = store.armenian().read(*store.findArmenian("տուն"_ft));
    EXPECT_EQ(back.gloss(), "home");
}

TEST_F(StoreTest, InsertionLowerCasesTheGlossAndJoinsTheLigature) {
    insertWordPair(store, Direction::EnglishToArmenian, "hello", "Բարեւ"_ft, "j");
    DictRecord r;
    r.raw = store.english().read(*store.findEnglish("hello"));
    EXPECT_EQ(r.gloss(), "բարև"_ft);
    insertWordPair(store, Direction::ArmenianToEnglish, "բարև"_ft, "Hello", "j");
    r.raw = store.armenian().read(*store.findArmenian("բարև"_ft));
    EXPECT_EQ(r.gloss(), "hello");
}

TEST_F(StoreTest, FreedSlotIsReusedByInsertionButNotByTheReverseEntry) {
    const int col = skizbeColumn("house");
    insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    // Free the slot of "house" as the editor does.
    store.english().write(col, DictRecord::make(std::string(kFreedKey), "", "").raw);
    const auto again = insertWordPair(store, Direction::EnglishToArmenian, "hotel", "հյուրանոց"_ft, "n");
    EXPECT_EQ(again.record, col);
    EXPECT_EQ(store.english().recordCount(), col + 676);  // nothing moved

    const int acol = skizbaColumn("տուն"_ft);
    store.armenian().write(acol, DictRecord::make(std::string(kFreedKey), "", "").raw);
    const auto rev = insertWordPair(store, Direction::EnglishToArmenian, "home", "տուն"_ft, "n");
    ASSERT_TRUE(rev.reverseRecord);
    EXPECT_EQ(*rev.reverseRecord, acol + kArmenianStride);
}

TEST_F(StoreTest, AddingToAColumnWhoseEndRecordIsLastExtendsTheFileByOneStride) {
    // "zz" is the last column, so its end record is the last record of the file.
    insertWordPair(store, Direction::EnglishToArmenian, "zzz", "խռռ"_ft, "j");
    EXPECT_EQ(fileBytes(kEnglishDictName).size(), 2u * 676 * 45);
    // The records between stay blank, which a reader passes as empty.
    DictRecord gap;
    gap.raw = store.english().read(676 + 1);
    EXPECT_TRUE(trimBlanks(gap.raw).empty());
    EXPECT_FALSE(store.findEnglish("aardvark"));
}

TEST_F(StoreTest, NullAsEnglishWordEndsTheWalkAtTheSentinel) {
    EXPECT_FALSE(store.findEnglish("null"));
}

TEST_F(StoreTest, NullAsArmenianKeyReadsAsNotFound) {
    // The Armenian walk compares the key first; a record whose key is "null" is then not found.
    EXPECT_FALSE(store.findArmenian("null"));
}

TEST_F(StoreTest, ArmenianWalkPassesTheEndRecordOfItsColumn) {
    // A record below the column's end record is still reached by the Armenian walk only.
    const int col = skizbaColumn("տուն"_ft);
    store.armenian().write(col + 2 * kArmenianStride, DictRecord::make("տուն"_ft, "house", "n").raw);
    EXPECT_EQ(store.findArmenian("տուն"_ft), col + 2 * kArmenianStride);
    const int ecol = skizbeColumn("house");
    store.english().write(ecol + 2 * kEnglishStride, DictRecord::make("house", "տուն"_ft, "n").raw);
    EXPECT_FALSE(store.findEnglish("house"));
}

TEST_F(StoreTest, OneLetterWordsLiveInTheOddColumns) {
    const auto e = insertWordPair(store, Direction::EnglishToArmenian, "a", "մի"_ft, "x");
    EXPECT_EQ(e.record, 674);
    const auto a = insertWordPair(store, Direction::ArmenianToEnglish, "և"_ft, "and", "c");
    EXPECT_EQ(a.record, 535);
}

TEST_F(StoreTest, CapitalisedWordIsNotFoundUnlessStoredInColumn674) {
    insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    EXPECT_FALSE(store.findEnglish("House"));
}

TEST_F(StoreTest, DerivedFilesHoldOnlyRealRecordsGapFree) {
    insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    insertWordPair(store, Direction::EnglishToArmenian, "zebra", "զեբր"_ft, "n");
    ASSERT_TRUE(store.CreateDicStrings());
    const std::string ea = fileBytes(kEnglishStringsName);
    ASSERT_EQ(ea.size(), 2u * 45);
    EXPECT_EQ(ea.substr(0, 5), "house");
    EXPECT_EQ(ea.substr(45, 5), "zebra");
    EXPECT_EQ(fileBytes(kArmenianStringsName).size(), 2u * 45);
    store.deleteDerivedFiles();
    EXPECT_FALSE(std::filesystem::exists(dir / std::string(kEnglishStringsName)));
}

TEST(StoreFiles, MissingDictionaryIsCreatedEmptyAndEveryWordIsUnknown) {
    test::TempFolder dir;
    DictionaryStore store;
    ASSERT_TRUE(store.open(dir.path()));
    EXPECT_TRUE(std::filesystem::exists(dir / std::string(kEnglishDictName)));
    EXPECT_EQ(store.english().recordCount(), 0);
    EXPECT_FALSE(store.findEnglish("house"));
    EXPECT_FALSE(store.findArmenian("տուն"_ft));
    const auto r = insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    EXPECT_FALSE(r.record);
    EXPECT_FALSE(r.error.empty());
}

TEST(StoreFiles, LengthNotAMultipleOf45CountsWholeRecordsAndReadsThePartialOne) {
    test::TempFolder dir;
    std::string bytes = DictRecord::make("house", "տուն"_ft, "n").raw;
    bytes += "null";  // a partial record: 4 bytes
    dir.write(std::string(kEnglishDictName), bytes);
    DictionaryStore store;
    ASSERT_TRUE(store.open(dir.path()));
    EXPECT_EQ(store.english().recordCount(), 1);
    EXPECT_NEAR(store.english().recordCountExact(), 49.0 / 45.0, 1e-9);
}

TEST(StoreFiles, ColumnWithoutSentinelIsWalkedToTheEndOfTheFile) {
    test::TempFolder dir;
    std::string bytes;
    for (int i = 0; i < 676 * 3; ++i) bytes += std::string(45, ' ');
    dir.write(std::string(kEnglishDictName), bytes);
    DictionaryStore store;
    ASSERT_TRUE(store.open(dir.path()));
    EXPECT_FALSE(store.findEnglish("house"));
    EXPECT_FALSE(insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n").record);
}

TEST(StoreFiles, RandomBytesNeverCrashOrHang) {
    test::TempFolder dir;
    std::mt19937 rng(7);
    std::string junk(45 * 2000 + 17, '\0');
    for (char& c : junk) c = static_cast<char>(rng() & 0xFF);
    dir.write(std::string(kEnglishDictName), junk);
    dir.write(std::string(kArmenianDictName), junk);
    DictionaryStore store;
    ASSERT_TRUE(store.open(dir.path()));
    for (const char* w : {"house", "a", "null", "zz"}) EXPECT_NO_THROW(store.findEnglish(w));
    EXPECT_NO_THROW(store.findArmenian("տուն"_ft));
    EXPECT_NO_THROW(insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n"));
    EXPECT_TRUE(store.CreateDicStrings());
}

// The store holds only the records that are not blank; what it reads and what it writes to disk
// must still be the file byte for byte.
TEST(StoreFiles, RecordsReadAndFileWrittenAgreeWithThePlainBytesAfterRandomWrites) {
    test::TempFolder dir;
    constexpr int kLength = 45;
    std::mt19937 rng(11);
    // A grid of blanks with a few words, ending in a record cut short.
    std::string model;
    for (int i = 0; i < 300; ++i)
        model += i % 17 == 3 ? DictRecord::make("w" + std::to_string(i), "x", "n").raw : std::string(kLength, ' ');
    model += "cut";
    dir.write("grid", model);
    RecordFile file;
    ASSERT_TRUE(file.open(dir.path() / "grid", kLength));
    auto agrees = [&](const std::string& step) {
        ASSERT_EQ(file.byteLength(), model.size()) << step;
        ASSERT_EQ(dir.read("grid"), model) << step;
        const auto whole = static_cast<std::int64_t>(model.size() / kLength);
        ASSERT_EQ(file.recordCount(), whole) << step;
        for (std::int64_t n = 1; n <= whole + 2; ++n) {
            std::string expected(kLength, ' ');
            const auto from = static_cast<std::size_t>(n - 1) * kLength;
            if (from < model.size()) {
                const auto there = std::min<std::size_t>(kLength, model.size() - from);
                expected.replace(0, there, model, from, there);
            }
            ASSERT_EQ(file.read(n), expected) << step << ", record " << n;
            if (n <= whole) {
                ASSERT_EQ(file.view(n), expected) << step << ", record " << n;
            }
        }
    };
    agrees("opened");
    for (int step = 0; step < 200; ++step) {
        const auto count = static_cast<std::int64_t>(model.size() / kLength);
        const std::int64_t n = 1 + static_cast<std::int64_t>(rng() % static_cast<unsigned>(count + 4));
        std::string record;
        switch (rng() % 3) {
            case 0: record = std::string(kLength, ' '); break;                    // blanked
            case 1: record = "k" + std::to_string(step); break;                   // short, padded
            default: record = DictRecord::make("z" + std::to_string(step), "y", "v").raw;
        }
        ASSERT_TRUE(file.write(n, record));
        const auto from = static_cast<std::size_t>(n - 1) * kLength;
        if (model.size() < from + kLength) model.resize(from + kLength, ' ');
        std::string padded = record.substr(0, kLength);
        padded.resize(kLength, ' ');
        model.replace(from, kLength, padded);
        agrees("write " + std::to_string(step) + " at " + std::to_string(n));
    }
    RecordFile reopened;
    ASSERT_TRUE(reopened.open(dir.path() / "grid", kLength));
    for (std::int64_t n = 1; n <= reopened.recordCount(); ++n) EXPECT_EQ(reopened.view(n), file.view(n));
}

TEST(StoreFiles, WritesHeldBackForABulkBuildReachTheFileWhole) {
    test::TempFolder dir;
    RecordFile file;
    ASSERT_TRUE(file.open(dir.path() / "grid", kRecordLength));
    ASSERT_TRUE(file.setWriteThrough(false));
    ASSERT_TRUE(file.write(3, DictRecord::make("house", "x", "n").raw));
    ASSERT_TRUE(file.write(1, DictRecord::null().raw));
    EXPECT_EQ(dir.read("grid"), "");  // nothing written yet
    ASSERT_TRUE(file.setWriteThrough(true));
    EXPECT_EQ(dir.read("grid"),
              DictRecord::null().raw + std::string(kRecordLength, ' ') + DictRecord::make("house", "x", "n").raw);
}

TEST(StoreFiles, ABlankRecordIsKnownBlankAndAFilledOneIsNot) {
    test::TempFolder dir;
    dir.write("grid", std::string(kRecordLength, ' ') + DictRecord::null().raw);
    RecordFile file;
    ASSERT_TRUE(file.open(dir.path() / "grid", kRecordLength));
    EXPECT_TRUE(file.knownBlank(1));
    EXPECT_FALSE(file.knownBlank(2));
    ASSERT_TRUE(file.write(1, DictRecord::make("house", "x", "n").raw));
    EXPECT_FALSE(file.knownBlank(1));
}

TEST(StoreFiles, AGridLargerThanOneReadIsHeldWholeWithItsRecordCutShort) {
    test::TempFolder dir;
    std::string bytes;
    constexpr int kRecords = 50'000;  // several reads of the opening buffer
    for (int i = 0; i < kRecords; ++i)
        bytes += i % 97 == 0 ? DictRecord::make("w" + std::to_string(i), "x", "n").raw
                             : std::string(kRecordLength, ' ');
    bytes += "nul";
    dir.write("grid", bytes);
    RecordFile file;
    ASSERT_TRUE(file.open(dir.path() / "grid", kRecordLength));
    ASSERT_EQ(file.byteLength(), bytes.size());
    ASSERT_EQ(file.recordCount(), kRecords);
    for (std::int64_t n = 1; n <= kRecords; ++n) {
        const auto at = static_cast<std::size_t>(n - 1) * kRecordLength;
        ASSERT_EQ(file.view(n), std::string_view(bytes).substr(at, kRecordLength));
    }
    EXPECT_EQ(file.read(kRecords + 1), "nul" + std::string(kRecordLength - 3, ' '));
}
