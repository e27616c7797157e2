#include "engine/dictionary_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

#include "text/font_text.h"

namespace vorlexa {

using namespace literals;

std::string DictRecord::tag() const {
    std::string t(trimBlanks(mid(raw, 41, kTagWidth)));
    t.resize(kTagWidth, ' ');
    return t;
}

namespace {
std::string padded(std::string_view s, std::size_t width) {
    std::string out(s.substr(0, width));
    out.resize(width, ' ');
    return out;
}
}  // namespace

DictRecord DictRecord::make(std::string_view key, std::string_view gloss, std::string_view tag) {
    DictRecord r;
    r.raw = padded(key, kKeyWidth) + padded(gloss, kGlossWidth) + padded(tag, kTagWidth);
    return r;
}

DictRecord DictRecord::null() {
    DictRecord r;
    r.raw = padded(kNullKey, kRecordLength);
    return r;
}

int skizbeColumn(std::string_view word) {
    if (word.size() >= 2 && word[0] >= 'a' && word[0] <= 'z' && word[1] >= 'a' && word[1] <= 'z')
        return 26 * (word[0] - 'a') + (word[1] - 'a' + 1);
    return kEnglishOddColumn;
}

namespace {

// Letter index 0..37 of a small Armenian letter code, -1 otherwise.
constexpr int smallIndex(unsigned char c) {
    return font::isSmall(c) ? (c - font::kFirstSmall) / 2 : -1;
}

constexpr int letterIndexOf(std::string_view oneLetter) {
    return smallIndex(static_cast<unsigned char>(oneLetter[0]));
}

// The classes of first letters, in the order of their rows; paired letters share a class.
constexpr std::array<std::string_view, 23> kFirstClasses = {
    "ա"_ft,  "բ"_ft,  "գ"_ft,  "դ"_ft,  "ե"_ft,  "զ"_ft,  "է"_ft,  "ոը"_ft,
    "թչ"_ft, "պժ"_ft, "իջ"_ft, "լռ"_ft, "խս"_ft, "վծ"_ft, "կտ"_ft, "հր"_ft,
    "ձց"_ft, "ղ"_ft,  "փճ"_ft, "մք"_ft, "օյ"_ft, "նֆ"_ft, "շ"_ft};

// Where each first-letter row begins.
constexpr std::array<int, 23> kRowStarts = {1,   24,  48,  71,  93,  116, 139, 162,
                                            185, 208, 231, 254, 278, 301, 324, 347,
                                            370, 393, 416, 439, 464, 487, 510};

// The order of second letters within a row; "և" shares the class of "բ".
constexpr std::array<std::string_view, 23> kSecondClasses = {
    "ա"_ft,  "բև"_ft, "ցձ"_ft, "դ"_ft,  "ե"_ft,  "շ"_ft,  "գ"_ft,  "հր"_ft,
    "իջ"_ft, "պժ"_ft, "կտ"_ft, "լռ"_ft, "մք"_ft, "նֆ"_ft, "օյ"_ft, "փճ"_ft,
    "ղ"_ft,  "խս"_ft, "թչ"_ft, "վծ"_ft, "ոը"_ft, "է"_ft,  "զ"_ft};

template <std::size_t N>
constexpr int classOf(const std::array<std::string_view, N>& classes, unsigned char c) {
    for (std::size_t i = 0; i < N; ++i)
        for (const char member : classes[i])
            if (static_cast<unsigned char>(member) == c) return static_cast<int>(i);
    return -1;
}

// The class of every byte, worked out once: the column is computed for every word looked up.
template <std::size_t N>
constexpr std::array<std::int8_t, 256> classTable(const std::array<std::string_view, N>& classes) {
    std::array<std::int8_t, 256> table{};
    for (int c = 0; c < 256; ++c) table[c] = static_cast<std::int8_t>(classOf(classes, static_cast<unsigned char>(c)));
    return table;
}

constexpr std::array<std::int8_t, 256> kFirstClassOf = classTable(kFirstClasses);
constexpr std::array<std::int8_t, 256> kSecondClassOf = classTable(kSecondClasses);

}  // namespace

int skizbaColumn(std::string_view word) {
    if (word.size() < 2) return kArmenianOddColumn;
    const auto c1 = static_cast<unsigned char>(word[0]);
    const auto c2 = static_cast<unsigned char>(word[1]);
    if (word.substr(0, 2) == "ու"_ft) return kArmenianOuColumn;
    const int row = kFirstClassOf[c1];
    const int col = kSecondClassOf[c2];
    if (row < 0 || col < 0) return kArmenianOddColumn;
    // Rows are about 23 columns long; a long row simply runs into the next one, which a hash
    // grid allows, and the last row ends at 533 below the two special columns.
    const int column = kRowStarts[row] + col;
    return column > kArmenianOuColumn - 1 ? kArmenianOuColumn - 1 : column;
}

bool hasArmenianLetter(std::string_view word) {
    for (const char ch : word) {
        const auto c = static_cast<unsigned char>(ch);
        if (font::isArmenianLetter(c) || c == font::kLigature) return true;
    }
    return false;
}

// --- RecordFile -------------------------------------------------------------------------------

void OwnedFd::reset() {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
}

std::optional<FileStamp> FileStamp::ofOpen(int fd) {
    struct stat st {};
    if (fd < 0 || ::fstat(fd, &st) != 0 || st.st_nlink == 0) return std::nullopt;
    constexpr std::int64_t kNsPerSecond = 1'000'000'000;
    return FileStamp{static_cast<std::uint64_t>(st.st_size),
                     static_cast<std::int64_t>(st.st_mtim.tv_sec) * kNsPerSecond + st.st_mtim.tv_nsec};
}

namespace {
// The bytes read from a file at a time while it is opened: the file is sifted for its filled
// records through this buffer, so the blank records of the grid are never held.
constexpr std::size_t kOpeningChunkRecords = 16384;

bool allBlanks(const char* p, std::size_t n) {
    constexpr std::uint64_t kEightBlanks = 0x2020202020202020ull;
    if (n < 8) {
        for (std::size_t i = 0; i < n; ++i)
            if (p[i] != ' ') return false;
        return true;
    }
    // Eight bytes at a time without a branch, the last eight overlapping the ones before.
    std::uint64_t differs = 0;
    std::uint64_t word;
    for (std::size_t i = 0; i + 8 <= n; i += 8) {
        std::memcpy(&word, p + i, 8);
        differs |= word ^ kEightBlanks;
    }
    std::memcpy(&word, p + n - 8, 8);
    return (differs | (word ^ kEightBlanks)) == 0;
}
}  // namespace

void RecordFile::takeRecords(std::string_view bytes) {
    const auto length = static_cast<std::size_t>(recordLength_);
    const std::size_t count = bytes.size() / length;
    std::size_t slot = slots_.size();
    slots_.resize(slot + count, 0);
    for (std::size_t at = 0; at + length <= bytes.size(); at += length, ++slot) {
        const char* record = bytes.data() + at;
        if (allBlanks(record, length)) continue;
        pool_.append(record, length);
        slots_[slot] = static_cast<std::uint32_t>(pool_.size() / length);
    }
    length_ += count * length;
}

void RecordFile::load(std::string_view bytes) {
    dropIndex();
    length_ = 0;
    slots_.clear();
    pool_.clear();
    tail_.clear();
    const auto whole = bytes.size() / static_cast<std::size_t>(recordLength_) * recordLength_;
    takeRecords(bytes.substr(0, whole));
    tail_.assign(bytes.substr(whole));
    length_ += tail_.size();
}

bool RecordFile::open(const std::filesystem::path& path, int recordLength) {
    path_ = path;
    writable_.reset();
    recordLength_ = recordLength;
    blank_.assign(static_cast<std::size_t>(recordLength), ' ');
    load({});
    open_ = false;
    // A missing file is made empty; the run's list of unknown words is made this way each run,
    // so the file is opened once, read with one call per block, and kept open for the writes.
    OwnedFd file(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    const bool writable = file.get() >= 0;
    if (!writable) file = OwnedFd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));  // read-only data
    if (file.get() < 0) return false;
    struct stat st {};
    if (::fstat(file.get(), &st) == 0 && st.st_size > 0)
        slots_.reserve(static_cast<std::size_t>(st.st_size) / static_cast<std::size_t>(recordLength));
    // A small file is read in one call; a large one through the buffer, whole records at a time.
    std::string chunk(std::min<std::size_t>(kOpeningChunkRecords * static_cast<std::size_t>(recordLength),
                                            st.st_size > 0 ? static_cast<std::size_t>(st.st_size) : 0),
                      ' ');
    std::size_t filled = 0;
    for (;;) {
        const ssize_t n = chunk.empty() ? 0 : ::read(file.get(), chunk.data() + filled, chunk.size() - filled);
        if (n < 0 && errno == EINTR) continue;
        if (n > 0) filled += static_cast<std::size_t>(n);
        if (n > 0 && filled < chunk.size()) continue;
        const std::size_t whole = filled / static_cast<std::size_t>(recordLength) * recordLength;
        takeRecords(std::string_view(chunk).substr(0, whole));
        // A read that ends inside a record keeps the rest for the next one.
        std::memmove(chunk.data(), chunk.data() + whole, filled - whole);
        filled -= whole;
        if (n <= 0) break;
    }
    tail_.assign(chunk, 0, filled);
    length_ += tail_.size();
    if (writable) writable_ = std::move(file);
    open_ = true;
    return true;
}

double RecordFile::recordCountExact() const {
    return static_cast<double>(length_) / recordLength_;
}

std::string RecordFile::read(std::int64_t n) const {
    if (n >= 1 && n <= recordCount()) return std::string(view(n));
    std::string rec(static_cast<std::size_t>(recordLength_), ' ');
    if (n == recordCount() + 1) rec.replace(0, tail_.size(), tail_);
    return rec;
}

void RecordFile::setRecord(std::int64_t n, std::string_view record) {
    const auto length = static_cast<std::size_t>(recordLength_);
    std::uint32_t& slot = slots_[static_cast<std::size_t>(n - 1)];
    if (slot == 0) {
        if (allBlanks(record.data(), std::min(record.size(), length))) return;  // blank it stays
        pool_.append(length, ' ');
        slot = static_cast<std::uint32_t>(pool_.size() / length);
    }
    const std::size_t at = static_cast<std::size_t>(slot - 1) * length;
    const std::size_t len = std::min(record.size(), length);
    pool_.replace(at, len, record.substr(0, len));
    std::fill_n(pool_.begin() + static_cast<std::ptrdiff_t>(at + len), length - len, ' ');
}

std::string RecordFile::bytesOf(std::uint64_t from, std::uint64_t to) const {
    std::string out;
    out.reserve(static_cast<std::size_t>(to - from));
    const auto length = static_cast<std::uint64_t>(recordLength_);
    const std::uint64_t wholeEnd = length_ - tail_.size();
    for (std::uint64_t at = from; at < to;) {
        if (at >= wholeEnd) {
            out.append(tail_, static_cast<std::size_t>(at - wholeEnd), static_cast<std::size_t>(to - at));
            break;
        }
        const std::uint64_t offset = at % length;
        const std::uint64_t take = std::min(length - offset, to - at);
        out.append(view(static_cast<std::int64_t>(at / length) + 1).substr(offset, take));
        at += take;
    }
    return out;
}

bool RecordFile::write(std::int64_t n, std::string_view record) {
    if (!open_ || n < 1) return false;
    const auto length = static_cast<std::uint64_t>(recordLength_);
    const std::uint64_t from = static_cast<std::uint64_t>(n - 1) * length;
    const std::uint64_t oldSize = length_;
    if (length_ < from + length) {
        // The records between the old end and this one are blank; a record cut short is
        // completed with blanks.
        const std::string cut = tail_ + std::string(length - tail_.size(), ' ');
        const bool hadTail = !tail_.empty();
        tail_.clear();
        slots_.resize(static_cast<std::size_t>(n), 0);
        length_ = from + length;
        if (hadTail) setRecord(static_cast<std::int64_t>(oldSize / length) + 1, cut);
        dropIndex();  // new records join every column
    } else if (indexStride_ > 0) {
        columns_[static_cast<std::size_t>((n - 1) % indexStride_)].built = false;
    }
    setRecord(n, record);
    if (!writeThrough_) return true;
    return flushRange(std::min(oldSize, from), from + length);
}

bool RecordFile::replaceAll(std::string_view bytes) {
    load(bytes);
    std::ofstream out(path_, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.flush();
    return static_cast<bool>(out);
}

bool RecordFile::setWriteThrough(bool on) {
    writeThrough_ = on;
    return on ? replaceAll(bytesOf(0, length_)) : true;
}

void RecordFile::dropIndex() const {
    indexStride_ = 0;
    columns_.clear();
}

namespace {
// FNV-1a over the key's bytes: keys are at most 20 bytes, so a short loop beats a general hash.
std::uint32_t keyHash(std::string_view key) {
    constexpr std::uint32_t kOffset = 2166136261u;
    constexpr std::uint32_t kPrime = 16777619u;
    std::uint32_t h = kOffset;
    for (const char ch : key) h = (h ^ static_cast<unsigned char>(ch)) * kPrime;
    return h;
}
}  // namespace

std::int64_t RecordFile::findSlot(const ColumnIndex& index, std::uint32_t hash, std::string_view key) const {
    if (index.keySlots.empty()) return 0;
    const std::size_t mask = index.keySlots.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        const KeySlot& slot = index.keySlots[i];
        if (slot.record == 0) return 0;
        if (slot.hash == hash && trimBlanks(mid(view(slot.record), 1, kKeyWidth)) == key) return slot.record;
    }
}

const RecordFile::ColumnIndex& RecordFile::column(int stride, int column) const {
    if (stride != indexStride_) {
        columns_.assign(static_cast<std::size_t>(stride), ColumnIndex{});
        indexStride_ = stride;
    }
    ColumnIndex& index = columns_[static_cast<std::size_t>(column - 1)];
    if (index.built) return index;
    index.firstNull = 0;
    const std::int64_t count = recordCount();
    const std::size_t records = count >= column ? static_cast<std::size_t>((count - column) / stride + 1) : 0;
    constexpr std::size_t kFewestSlots = 8;
    std::size_t size = kFewestSlots;
    while (size < 2 * records) size *= 2;
    index.keySlots.assign(size, KeySlot{});
    for (std::int64_t rec = column; rec <= count; rec += stride) {
        const std::string_view raw = view(rec);
        const std::string_view key = trimBlanks(mid(raw, 1, kKeyWidth));
        const std::uint32_t hash = keyHash(key);
        if (findSlot(index, hash, key) == 0) {
            std::size_t i = hash & (size - 1);
            while (index.keySlots[i].record != 0) i = (i + 1) & (size - 1);
            index.keySlots[i] = KeySlot{hash, static_cast<std::uint32_t>(rec)};
        }
        if (index.firstNull == 0 && trimBlanks(raw) == kNullKey) index.firstNull = rec;
    }
    index.built = true;
    return index;
}

std::int64_t RecordFile::firstKeyInColumn(int stride, int column, std::string_view key) const {
    if (column < 1 || column > stride) return 0;
    return findSlot(this->column(stride, column), keyHash(key), key);
}

std::int64_t RecordFile::firstNullInColumn(int stride, int column) const {
    if (column < 1 || column > stride) return 0;
    return this->column(stride, column).firstNull;
}

bool RecordFile::flushRange(std::uint64_t from, std::uint64_t to) {
    // A file opened read-only is tried again by its name, in case it may be written now.
    const OwnedFd byName(writable_.get() < 0 ? ::open(path_.c_str(), O_WRONLY | O_CLOEXEC) : -1);
    const int fd = writable_.get() >= 0 ? writable_.get() : byName.get();
    if (fd < 0) return false;
    const std::string bytes = bytesOf(from, to);
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t n = ::pwrite(fd, bytes.data() + done, bytes.size() - done, static_cast<off_t>(from + done));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<std::size_t>(n);
    }
    return true;
}

// --- DictionaryStore --------------------------------------------------------------------------

bool DictionaryStore::open(const std::filesystem::path& folder) {
    folder_ = folder;
    const bool e = english_.open(folder / kEnglishDictName, kRecordLength);
    const bool a = armenian_.open(folder / kArmenianDictName, kRecordLength);
    return e && a;
}

std::optional<std::int64_t> DictionaryStore::findEnglish(std::string_view word) const {
    const int column = skizbeColumn(word);
    const std::int64_t first = english_.firstKeyInColumn(kEnglishStride, column, word);
    const std::int64_t end = english_.firstNullInColumn(kEnglishStride, column);
    if (first == 0 || (end != 0 && end <= first)) return std::nullopt;
    return first;
}

std::optional<std::int64_t> DictionaryStore::findArmenian(std::string_view word) const {
    const int column = skizbaColumn(word);
    const std::int64_t first = armenian_.firstKeyInColumn(kArmenianStride, column, word);
    if (first == 0 || first == armenian_.firstNullInColumn(kArmenianStride, column)) return std::nullopt;
    return first;
}

bool carriesGloss(std::string_view record) {
    // An empty record compares blanks with blanks; "null" closes a column.
    return mid(record, 1, 20) != mid(record, 26, 20) && mid(record, 1, 4) != kNullKey;
}

namespace {
// Writes the flat list of the records of `from` that carry a real gloss, in one pass over the
// records in place and one write of the file.
bool writeRealRecords(const RecordFile& from, const std::filesystem::path& to) {
    std::string out;
    const std::int64_t count = from.recordCount();
    for (std::int64_t rec = 1; rec <= count; ++rec) {
        if (from.knownBlank(rec)) continue;
        const std::string_view r = from.view(rec);
        if (carriesGloss(r)) out += r;
    }
    std::ofstream file(to, std::ios::binary | std::ios::trunc);
    file.write(out.data(), static_cast<std::streamsize>(out.size()));
    file.flush();
    return static_cast<bool>(file);
}
}  // namespace

bool DictionaryStore::CreateDicStrings() {
    const bool e = writeRealRecords(english_, folder_ / kEnglishStringsName);
    const bool a = writeRealRecords(armenian_, folder_ / kArmenianStringsName);
    return e && a;
}

void DictionaryStore::deleteDerivedFiles() {
    std::error_code ignored;
    std::filesystem::remove(folder_ / kEnglishStringsName, ignored);
    std::filesystem::remove(folder_ / kArmenianStringsName, ignored);
}

int strideOf(Direction d) {
    return d == Direction::EnglishToArmenian ? kEnglishStride : kArmenianStride;
}

int columnOf(Direction d, std::string_view key) {
    return d == Direction::EnglishToArmenian ? skizbeColumn(key) : skizbaColumn(key);
}

bool createEmptyDictionary(RecordFile& file, int stride) {
    std::string row;
    row.reserve(static_cast<std::size_t>(stride) * kRecordLength);
    for (int i = 0; i < stride; ++i) row += DictRecord::null().raw;
    return file.replaceAll(row);
}

namespace {
// The gloss as the insertion stores it: English lower-cased; Armenian in small letters with the
// ligature for "եւ".
std::string normaliseGloss(Direction direction, std::string_view gloss) {
    std::string g(gloss.substr(0, kGlossWidth));
    if (direction == Direction::ArmenianToEnglish) {
        for (char& ch : g)
            if (ch >= 'A' && ch <= 'Z') ch = static_cast<char>(ch + 32);
        return g;
    }
    g = foldArmenianCase(g);
    const std::string_view eyew = "եւ"_ft;
    for (std::size_t at = g.find(eyew); at != std::string::npos; at = g.find(eyew, at))
        g.replace(at, eyew.size(), "և"_ft);
    return g;
}
}  // namespace

std::optional<std::int64_t> insertRecord(RecordFile& file, Direction direction, std::string_view key,
                                         std::string_view gloss, std::string_view tag,
                                         std::string* error) {
    const std::string k(key.substr(0, kKeyWidth));
    const DictRecord record = DictRecord::make(k, normaliseGloss(direction, gloss), tag);
    const int stride = strideOf(direction);
    DictRecord slot;
    for (std::int64_t rec = columnOf(direction, trimBlanks(k)); rec <= file.recordCountExact();
         rec += stride) {
        slot.raw = file.read(rec);
        const bool freed = slot.isFreed();
        if (!freed && !slot.isNull()) continue;
        // A freed slot is simply reused; at the end record the column is closed again below.
        const bool ok = file.write(rec, record.raw) &&
                        (freed || file.write(rec + stride, DictRecord::null().raw));
        if (ok) return rec;
        if (error) *error = "cannot write " + file.path().string();
        return std::nullopt;
    }
    if (error) *error = "the column has no free slot and no end record";
    return std::nullopt;
}

namespace {
// The checks shared by a change and a delete: the record exists and is no column's end.
bool editableRecord(const RecordFile& file, std::int64_t n, std::string* error) {
    if (n < 1 || n > file.recordCount()) {
        if (error)
            *error = "record " + std::to_string(n) + " is outside " + file.path().filename().string() + " (1.." +
                     std::to_string(file.recordCount()) + ")";
        return false;
    }
    DictRecord current;
    current.raw = file.read(n);
    if (current.isNull()) {
        if (error) *error = "record " + std::to_string(n) + " ends its column and cannot be edited";
        return false;
    }
    return true;
}

bool writeEdited(RecordFile& file, std::int64_t n, const std::string& raw, std::string* error) {
    if (file.write(n, raw)) return true;
    if (error) *error = "cannot write " + file.path().string();
    return false;
}
}  // namespace

bool changeRecord(DictionaryStore& store, Direction direction, std::int64_t n, const DictRecord& record,
                  std::string* error) {
    RecordFile& file = store.source(direction);
    if (!editableRecord(file, n, error)) return false;
    if (record.isNull()) {
        if (error) *error = "a record reading \"null\" would end the column";
        return false;
    }
    return writeEdited(file, n, record.raw, error);
}

bool deleteRecord(DictionaryStore& store, Direction direction, std::int64_t n, std::string* error) {
    RecordFile& file = store.source(direction);
    if (!editableRecord(file, n, error)) return false;
    return writeEdited(file, n, std::string(kRecordLength, 'w'), error);
}

InsertResult insertWordPair(DictionaryStore& store, Direction direction, std::string_view key,
                            std::string_view gloss, std::string_view tag) {
    InsertResult result;
    result.record = insertRecord(store.source(direction), direction, key, gloss, tag, &result.error);
    if (!result.record) return result;

    // A gloss that is a phrase, an alternative or a part of a word makes no reverse entry.
    const std::string g = normaliseGloss(direction, gloss);
    const std::string_view reverseKey = trimBlanks(g);
    if (reverseKey.empty() || reverseKey.find_first_of(" /()-") != std::string_view::npos) {
        result.reverseSkipped = true;
        return result;
    }
    const Direction other = direction == Direction::EnglishToArmenian ? Direction::ArmenianToEnglish
                                                                      : Direction::EnglishToArmenian;
    RecordFile& target = store.source(other);
    const int otherStride = strideOf(other);
    // Freed slots are not reused here, unlike the insertion above.
    DictRecord slot;
    for (std::int64_t rec = columnOf(other, reverseKey); rec <= target.recordCountExact();
         rec += otherStride) {
        slot.raw = target.read(rec);
        if (slot.key() == reverseKey) {
            result.reverseSkipped = true;
            return result;
        }
        if (slot.isNull()) {
            const DictRecord reverse = DictRecord::make(reverseKey, trimBlanks(key.substr(0, kKeyWidth)), tag);
            if (target.write(rec, reverse.raw) && target.write(rec + otherStride, DictRecord::null().raw))
                result.reverseRecord = rec;
            else
                result.error = "cannot write " + target.path().string();
            return result;
        }
    }
    return result;
}

}  // namespace vorlexa
