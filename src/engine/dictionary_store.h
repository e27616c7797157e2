// The dictionary store: two files of fixed 45-character records laid out as a hash grid.
//
// A word's first two characters pick a column; the column is the chain of records c, c + stride,
// c + 2 x stride ... and ends in a "null" record. Order within a column is insertion order, and
// the first record that matches wins, so a later word can never shadow an older one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vorlexa {

inline constexpr int kRecordLength = 45;  // 20 key + 20 gloss + 5 tag, one byte per character
inline constexpr int kKeyWidth = 20;      // the widest word a record can hold
inline constexpr int kGlossWidth = 20;    // longer glosses are stored cut
inline constexpr int kTagWidth = 5;
inline constexpr int kTermRecordLength = 20;    // a record of the run's list of unknown words
inline constexpr int kEnglishStride = 676;      // columns of dictionarye-a: "aa".."zz"
inline constexpr int kArmenianStride = 535;     // columns of dictionarya-e
inline constexpr int kEnglishOddColumn = 674;   // the column of "zx", shared by all odd keys
inline constexpr int kArmenianOuColumn = 534;   // the pair "ու" alone
inline constexpr int kArmenianOddColumn = 535;  // one-letter words, capitals, signs

inline constexpr std::string_view kNullKey = "null";
inline constexpr std::string_view kFreedKey = "wwwwwwwwwwwwwwwwwwww";

// File names in the working folder.
inline constexpr std::string_view kEnglishDictName = "dictionarye-a";
inline constexpr std::string_view kArmenianDictName = "dictionarya-e";
inline constexpr std::string_view kEnglishStringsName = "Stringea";
inline constexpr std::string_view kArmenianStringsName = "Stringae";
inline constexpr std::string_view kTermsFileName = "zhamanakavor";

// Trim as the records are compared: blanks only, both ends.
inline std::string_view trimBlanks(std::string_view s) {
    const auto first = s.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    const auto last = s.find_last_not_of(' ');
    return s.substr(first, last - first + 1);
}

// A slice of a record or any text, 1-based like the engine's positions; past the end it yields
// what is there or the empty string.
inline std::string_view mid(std::string_view s, std::size_t start, std::size_t length = std::string_view::npos) {
    if (start == 0 || start > s.size()) return {};
    return s.substr(start - 1, length);
}

// One 45-character record and the fields the engine compares.
struct DictRecord {
    std::string raw = std::string(kRecordLength, ' ');

    std::string_view key() const { return trimBlanks(mid(raw, 1, kKeyWidth)); }
    std::string_view gloss() const { return trimBlanks(mid(raw, 21, kGlossWidth)); }
    // The trimmed tag held in a five-character buffer again: a tag "n" reads "n    ".
    std::string tag() const;
    bool isNull() const { return trimBlanks(raw) == kNullKey; }
    bool isFreed() const { return mid(raw, 1, kKeyWidth) == kFreedKey; }

    static DictRecord make(std::string_view key, std::string_view gloss, std::string_view tag);
    static DictRecord null();
};

// English key function: the column of the first two characters, 1..676.
int skizbeColumn(std::string_view word);
// Armenian key function: the column of the first two font characters, 1..535.
int skizbaColumn(std::string_view word);
// True when the word holds an Armenian letter (and so is looked up in the Armenian grid).
bool hasArmenianLetter(std::string_view word);

// A file's size and time of last change, read in one call; equal stamps mean an unchanged file.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t modifiedNs = 0;  // nanoseconds since the epoch
    bool operator==(const FileStamp&) const = default;
    // The stamp of an open file; none when it cannot be read or the file has no name left (it was
    // deleted, or another took its name).
    static std::optional<FileStamp> ofOpen(int fd);
};

// A file descriptor owned: closed when dropped or replaced, moved but never copied.
class OwnedFd {
public:
    OwnedFd() = default;
    explicit OwnedFd(int fd) : fd_(fd) {}
    OwnedFd(OwnedFd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    OwnedFd& operator=(OwnedFd&& other) noexcept {
        if (this != &other) {
            reset();
            fd_ = std::exchange(other.fd_, -1);
        }
        return *this;
    }
    OwnedFd(const OwnedFd&) = delete;
    OwnedFd& operator=(const OwnedFd&) = delete;
    ~OwnedFd() { reset(); }

    int get() const { return fd_; }
    void reset();

private:
    int fd_ = -1;
};

// A random-access file of fixed-length records. Every write goes through to disk before the call
// returns. In memory only the records that hold more than blanks are kept: a dictionary's hash
// grid is mostly blank records (its columns are as deep as the fullest one), so holding the file
// whole would cost ten times the memory its words need.
class RecordFile {
public:
    RecordFile() = default;
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;
    RecordFile(RecordFile&&) = default;
    RecordFile& operator=(RecordFile&&) = default;

    // Opens the file, creating it empty when it is missing. False only when it can't be made.
    bool open(const std::filesystem::path& path, int recordLength);
    bool isOpen() const { return open_; }
    const std::filesystem::path& path() const { return path_; }
    int recordLength() const { return recordLength_; }

    // File length / record length, a floating division as the walk's upper bound uses it.
    double recordCountExact() const;
    // The last whole record number.
    std::int64_t recordCount() const {
        return static_cast<std::int64_t>(length_ / static_cast<std::uint64_t>(recordLength_));
    }
    std::uint64_t byteLength() const { return length_; }

    // Record n (1-based), blank-padded past the end of the file.
    std::string read(std::int64_t n) const;
    // Record n (1-based) in place, without a copy; empty past the last whole record. Valid until
    // the next write.
    std::string_view view(std::int64_t n) const {
        if (n < 1 || n > recordCount()) return {};
        const std::uint32_t slot = slots_[static_cast<std::size_t>(n - 1)];
        if (slot == 0) return blank_;
        return std::string_view(pool_).substr(static_cast<std::size_t>(slot - 1) * recordLength_,
                                              static_cast<std::size_t>(recordLength_));
    }
    // True when whole record n is known to hold blanks only (false tells nothing). Such a record
    // is no word and no column's end, so a walk over every record may skip it.
    bool knownBlank(std::int64_t n) const { return slots_[static_cast<std::size_t>(n - 1)] == 0; }
    // Writes record n, growing the file with blank records as needed. False on a disk error.
    bool write(std::int64_t n, std::string_view record);
    // Replaces the whole file by these bytes.
    bool replaceAll(std::string_view bytes);
    // Off: writes stay in memory (a bulk build); turning it back on writes the file once.
    bool setWriteThrough(bool on);

    // A dictionary's column is the chain of records column, column + stride ... to the end of
    // the file. These answer what a walk down it would find, from an index of the column that is
    // built on its first question and dropped by any write into it, so it always agrees with
    // the records. 0 when there is no such record.
    // The first record whose trimmed key is `key`.
    std::int64_t firstKeyInColumn(int stride, int column, std::string_view key) const;
    // The first "null" record, the end of the column.
    std::int64_t firstNullInColumn(int stride, int column) const;

private:
    bool flushRange(std::uint64_t from, std::uint64_t to);
    // Bytes [from, to) of the file as it stands in memory.
    std::string bytesOf(std::uint64_t from, std::uint64_t to) const;
    // Takes whole records of the file in order, from `bytes` (a multiple of the record length).
    void takeRecords(std::string_view bytes);
    // Replaces the file's contents in memory by `bytes`.
    void load(std::string_view bytes);
    // Sets whole record n, within the file, to this record.
    void setRecord(std::int64_t n, std::string_view record);

    // The first record of each key of a column, in open addressing: a slot holds the key's hash
    // and its record, whose key in the file is the one compared. Record 0 marks an empty slot.
    struct KeySlot {
        std::uint32_t hash = 0;
        std::uint32_t record = 0;
    };
    struct ColumnIndex {
        bool built = false;
        std::int64_t firstNull = 0;
        std::vector<KeySlot> keySlots;  // a power of two long, at most half full
    };
    std::int64_t findSlot(const ColumnIndex& index, std::uint32_t hash, std::string_view key) const;
    const ColumnIndex& column(int stride, int column) const;
    void dropIndex() const;

    std::filesystem::path path_;
    OwnedFd writable_;  // the file held open for writing since its opening, when it may be written
    int recordLength_ = kRecordLength;
    std::uint64_t length_ = 0;          // the file's length in bytes
    std::vector<std::uint32_t> slots_;  // per whole record: 0 when blank, else 1 + its place in pool_
    std::string pool_;                  // the records that hold more than blanks, in order of arrival
    std::string tail_;                  // the bytes of a last record cut short
    std::string blank_;                 // one record of blanks, the view of every blank record
    bool open_ = false;
    bool writeThrough_ = true;
    mutable int indexStride_ = 0;
    mutable std::vector<ColumnIndex> columns_;
};

enum class Direction { EnglishToArmenian = 0, ArmenianToEnglish = 1 };

// The two dictionaries of the working folder, open from start to exit.
class DictionaryStore {
public:
    bool open(const std::filesystem::path& folder);
    const std::filesystem::path& folder() const { return folder_; }

    RecordFile& english() { return english_; }    // dictionarye-a
    RecordFile& armenian() { return armenian_; }  // dictionarya-e
    const RecordFile& english() const { return english_; }
    const RecordFile& armenian() const { return armenian_; }
    RecordFile& source(Direction d) { return d == Direction::EnglishToArmenian ? english_ : armenian_; }
    const RecordFile& source(Direction d) const { return d == Direction::EnglishToArmenian ? english_ : armenian_; }

    // The walks with their exact-key test. English: the "null" test comes first and ends the
    // walk. Armenian: the key is compared first, and only a matching record is tested for
    // "null"; the walk otherwise runs to the end of the file.
    std::optional<std::int64_t> findEnglish(std::string_view word) const;
    std::optional<std::int64_t> findArmenian(std::string_view word) const;

    // Builds Stringea and Stringae: the records that carry a real gloss, gap-free.
    bool CreateDicStrings();
    void deleteDerivedFiles();

private:
    std::filesystem::path folder_;
    RecordFile english_;
    RecordFile armenian_;
};

int strideOf(Direction d);
int columnOf(Direction d, std::string_view key);

// The outcome of an insertion.
struct InsertResult {
    std::optional<std::int64_t> record;          // where the pair was written
    std::optional<std::int64_t> reverseRecord;   // where the reverse pair was written
    bool reverseSkipped = false;                 // the gloss can't be a key, or is one already
    std::string error;                           // why nothing was written
};

// Steps of an insertion without the reverse entry: the pair goes to the first freed slot or to
// the end record of its column, which moves one stride down. Returns the record number.
std::optional<std::int64_t> insertRecord(RecordFile& file, Direction direction, std::string_view key,
                                         std::string_view gloss, std::string_view tag,
                                         std::string* error = nullptr);

// Stores a word pair in the source dictionary of `direction` and its reverse entry in the other.
// The key, gloss and tag are font text as typed; they are blank-padded or cut to their widths.
InsertResult insertWordPair(DictionaryStore& store, Direction direction, std::string_view key,
                            std::string_view gloss, std::string_view tag);

// Rewrites record n of the dictionary of `direction` in place, as the dictionary editor changes a
// word. Nothing checks that the key still belongs to the column. Refuses, writing nothing, a
// number outside the file, a column's end record, and a record that would read as an end record,
// so that an edit never cuts a column short.
bool changeRecord(DictionaryStore& store, Direction direction, std::int64_t n, const DictRecord& record,
                  std::string* error = nullptr);

// Frees record n: all 45 characters become "w". The slot keeps its place in the column, matches no
// word, and is reused by the next insertion into that column. The same refusals as a change.
bool deleteRecord(DictionaryStore& store, Direction direction, std::int64_t n, std::string* error = nullptr);

// True when a record carries a real word: not empty (its first 20 characters equal to its last
// 20, blanks with blanks) and not a column's end record. Such records make up Stringea/Stringae.
bool carriesGloss(std::string_view record);

// Writes a fresh dictionary: one row of "null" records, one per column.
bool createEmptyDictionary(RecordFile& file, int stride);

}  // namespace vorlexa
