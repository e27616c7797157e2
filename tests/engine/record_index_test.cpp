// The column index of the dictionaries: after any mix of additions, changes and deletions every
// look-up answers what a plain walk of the records answers.
#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <set>
#include <string>

#include "engine/dictionary_store.h"
#include "engine/engine.h"
#include "engine_fixture.h"
#include "support/temp_folder.h"
#include "text/font_text.h"

namespace vorlexa::test {
namespace {

using namespace literals;

// The walks as the records define them, one record read at a time.
std::int64_t walkFirstKey(const RecordFile& file, int stride, int column, std::string_view key) {
    DictRecord r;
    for (std::int64_t rec = column; rec <= file.recordCount(); rec += stride) {
        r.raw = file.read(rec);
        if (r.key() == key) return rec;
    }
    return 0;
}

std::int64_t walkFirstNull(const RecordFile& file, int stride, int column) {
    DictRecord r;
    for (std::int64_t rec = column; rec <= file.recordCount(); rec += stride) {
        r.raw = file.read(rec);
        if (r.isNull()) return rec;
    }
    return 0;
}

std::optional<std::int64_t> walkEnglish(const RecordFile& file, std::string_view word) {
    DictRecord r;
    for (std::int64_t rec = skizbeColumn(word); rec <= file.recordCount(); rec += kEnglishStride) {
        r.raw = file.read(rec);
        if (r.isNull()) return std::nullopt;
        if (r.key() == word) return rec;
    }
    return std::nullopt;
}

std::optional<std::int64_t> walkArmenian(const RecordFile& file, std::string_view word) {
    DictRecord r;
    for (std::int64_t rec = skizbaColumn(word); rec <= file.recordCount(); rec += kArmenianStride) {
        r.raw = file.read(rec);
        if (r.key() != word) continue;
        if (r.isNull()) return std::nullopt;
        return rec;
    }
    return std::nullopt;
}

// Every key of the file, the probe words, and "null" and the empty key.
std::set<std::string> wordsOf(const RecordFile& file, const std::vector<std::string>& probes) {
    std::set<std::string> words(probes.begin(), probes.end());
    words.insert("null");
    words.insert("");
    DictRecord r;
    for (std::int64_t rec = 1; rec <= file.recordCount(); ++rec) {
        r.raw = file.read(rec);
        words.insert(std::string(r.key()));
    }
    return words;
}

void expectIndexAgreesWithWalks(const DictionaryStore& store, const std::vector<std::string>& englishProbes,
                                const std::vector<std::string>& armenianProbes, const std::string& after) {
    SCOPED_TRACE(after);
    for (const auto& [file, stride] : {std::pair{&store.english(), kEnglishStride},
                                       std::pair{&store.armenian(), kArmenianStride}}) {
        for (int column = 1; column <= stride; ++column)
            ASSERT_EQ(file->firstNullInColumn(stride, column), walkFirstNull(*file, stride, column))
                << "column " << column;
    }
    for (const std::string& w : wordsOf(store.english(), englishProbes)) {
        const int column = skizbeColumn(w);
        ASSERT_EQ(store.english().firstKeyInColumn(kEnglishStride, column, w),
                  walkFirstKey(store.english(), kEnglishStride, column, w))
            << w;
        ASSERT_EQ(store.findEnglish(w), walkEnglish(store.english(), w)) << w;
    }
    for (const std::string& w : wordsOf(store.armenian(), armenianProbes)) {
        const int column = skizbaColumn(w);
        ASSERT_EQ(store.armenian().firstKeyInColumn(kArmenianStride, column, w),
                  walkFirstKey(store.armenian(), kArmenianStride, column, w))
            << toUtf8(w);
        ASSERT_EQ(store.findArmenian(w), walkArmenian(store.armenian(), w)) << toUtf8(w);
    }
}

// Short words over few letters, so that columns fill up and keys repeat.
std::string englishWord(std::mt19937& rng) {
    std::uniform_int_distribution<int> len(1, 4);
    std::uniform_int_distribution<int> letter(0, 2);
    std::string w;
    for (int i = len(rng); i > 0; --i) w += static_cast<char>('a' + letter(rng));
    return w;
}

std::string armenianWord(std::mt19937& rng) {
    std::uniform_int_distribution<int> len(1, 4);
    std::uniform_int_distribution<int> letter(0, 2);
    std::string w;
    for (int i = len(rng); i > 0; --i) w += static_cast<char>(font::kFirstSmall + 2 * letter(rng));
    return w;
}

TEST(RecordIndex, LookUpsAgreeWithPlainWalksAfterAddingChangingAndDeletingWords) {
    TempFolder dir;
    DictionaryStore store;
    ASSERT_TRUE(store.open(dir.path()));
    ASSERT_TRUE(createEmptyDictionary(store.english(), kEnglishStride));
    ASSERT_TRUE(createEmptyDictionary(store.armenian(), kArmenianStride));

    constexpr int kSteps = 300;  // enough for every kind of step to hit filled columns
    std::mt19937 rng(17);
    std::vector<std::string> englishProbes;
    std::vector<std::string> armenianProbes;
    for (int i = 0; i < 40; ++i) {
        englishProbes.push_back(englishWord(rng));
        armenianProbes.push_back(armenianWord(rng));
    }
    std::uniform_int_distribution<int> kind(0, 5);
    for (int step = 0; step < kSteps; ++step) {
        const bool english = rng() % 2 == 0;
        RecordFile& file = english ? store.english() : store.armenian();
        std::uniform_int_distribution<std::int64_t> anyRecord(1, file.recordCount());
        const std::string key = english ? englishWord(rng) : armenianWord(rng);
        const std::string gloss = english ? armenianWord(rng) : englishWord(rng);
        std::string what;
        switch (kind(rng)) {
            case 0:
            case 1:
                what = "adding a word pair";
                insertWordPair(store, english ? Direction::EnglishToArmenian : Direction::ArmenianToEnglish, key,
                               gloss, "n");
                break;
            case 2:
                what = "changing a record in place";
                ASSERT_TRUE(file.write(anyRecord(rng), DictRecord::make(key, gloss, "v").raw));
                break;
            case 3:
                what = "deleting a record";
                ASSERT_TRUE(file.write(anyRecord(rng), std::string(kRecordLength, 'w')));
                break;
            case 4:
                what = "closing a column early";
                ASSERT_TRUE(file.write(anyRecord(rng), DictRecord::null().raw));
                break;
            default:
                what = "writing past the end of the file";
                ASSERT_TRUE(file.write(file.recordCount() + 1 + static_cast<std::int64_t>(rng() % 900),
                                       DictRecord::make(key, gloss, "a").raw));
                break;
        }
        expectIndexAgreesWithWalks(store, englishProbes, armenianProbes,
                                   "step " + std::to_string(step) + ": " + what);
    }
}

TEST(RecordIndex, ReplacingOrReopeningTheFileForgetsTheOldRecords) {
    TempFolder dir;
    DictionaryStore store;
    ASSERT_TRUE(store.open(dir.path()));
    ASSERT_TRUE(createEmptyDictionary(store.english(), kEnglishStride));
    insertWordPair(store, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    ASSERT_TRUE(store.findEnglish("house"));

    ASSERT_TRUE(createEmptyDictionary(store.english(), kEnglishStride));
    EXPECT_FALSE(store.findEnglish("house"));

    // Another program writes the file; opening it again reads the new records.
    DictionaryStore other;
    ASSERT_TRUE(other.open(dir.path()));
    insertWordPair(other, Direction::EnglishToArmenian, "house", "տուն"_ft, "n");
    EXPECT_FALSE(store.findEnglish("house"));
    ASSERT_TRUE(store.open(dir.path()));
    EXPECT_TRUE(store.findEnglish("house"));
}

TEST(RecordIndex, TheEarlierOfTwoMatchingRecordsWinsTheEnglishLookUp) {
    // "mak" of "making" matches both "mak" and "make"; the record higher in the column wins.
    EngineFixture f("make\tանել\tv\nmak\tմակ\tn\n");
    Engine& e = *f.engine;
    e.CurrentWord = "mak";
    e.VerbFormMark = "ում"_ft;
    e.teqst_dblclick();
    EXPECT_EQ(e.DictRecord.key(), "make");

    // Once "make" is deleted, its freed slot matches nothing and "mak" is found below it.
    const std::int64_t makeRecord = *f.store.findEnglish("make");
    ASSERT_TRUE(f.store.english().write(makeRecord, std::string(kRecordLength, 'w')));
    e.resetWord();
    e.CurrentWord = "mak";
    e.VerbFormMark = "ում"_ft;
    e.teqst_dblclick();
    EXPECT_EQ(e.DictRecord.key(), "mak");
}

TEST(RecordIndex, AnArmenianWordAddedDuringARunIsFoundByTheNextLookUp) {
    EngineFixture f("", "");
    Engine& e = *f.engine;
    e.Check1 = 1;
    e.CurrentWord = "տուն"_ft;
    e.RawWord = "տուն"_ft;
    e.teqst_dblclick();
    EXPECT_NE(e.DictRecord.key(), "տուն"_ft);

    insertWordPair(f.store, Direction::ArmenianToEnglish, "տուն"_ft, "house", "n");
    e.resetWord();
    e.OutputText.clear();
    e.CurrentWord = "տուն"_ft;
    e.teqst_dblclick();
    EXPECT_EQ(e.DictRecord.key(), "տուն"_ft);
    EXPECT_EQ(e.RecIndex, *f.store.findArmenian("տուն"_ft));
}

}  // namespace
}  // namespace vorlexa::test
