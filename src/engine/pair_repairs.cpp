#include "engine/pair_repairs.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

namespace vorlexa {

namespace {

constexpr std::uint32_t kNoState = std::numeric_limits<std::uint32_t>::max();  // no trie edge yet
constexpr std::size_t kBitsPerWord = 64;
// A list whose pairs would make a piece of text more than this many times longer (plus the slack,
// for short pieces) is broken: the shipped lists lengthen a text by a few letters. The pairs from
// there on are left out rather than grow the text without end, each a multiple of the last.
constexpr std::size_t kMostGrowth = 64;
constexpr std::size_t kGrowthSlack = 4096;

// The first set bit at or after `from`, or the bit count when there is none.
std::size_t nextSet(const std::vector<std::uint64_t>& bits, std::size_t from) {
    std::size_t w = from / kBitsPerWord;
    if (w >= bits.size()) return bits.size() * kBitsPerWord;
    std::uint64_t word = bits[w] & (~std::uint64_t{0} << (from % kBitsPerWord));
    while (word == 0) {
        if (++w == bits.size()) return bits.size() * kBitsPerWord;
        word = bits[w];
    }
    return w * kBitsPerWord + static_cast<std::size_t>(std::countr_zero(word));
}

}  // namespace

PairRepairs::PairRepairs(std::vector<std::pair<std::string, std::string>> pairs) {
    bool used[256] = {};
    for (auto& pair : pairs) {
        if (pair.first.empty()) continue;
        for (const char ch : pair.first) used[static_cast<unsigned char>(ch)] = true;
        for (const char ch : pair.second) used[static_cast<unsigned char>(ch)] = true;
        longestFind_ = std::max(longestFind_, pair.first.size());
        pairs_.push_back(std::move(pair));
    }
    for (std::size_t b = 0; b < 256; ++b) cut_[b] = !used[b];
    for (const auto& [find, with] : pairs_)
        for (const char ch : find) {
            auto& cls = byteClass_[static_cast<unsigned char>(ch)];
            if (cls == 0) cls = static_cast<std::uint8_t>(++classes_);
        }

    // The trie of the finds; state 0 is the root.
    const std::size_t stride = classes_ + 1;
    next_.assign(stride, kNoState);
    std::vector<std::vector<std::uint32_t>> endsAt(1);
    for (std::size_t i = 0; i < pairs_.size(); ++i) {
        std::size_t s = 0;
        for (const char ch : pairs_[i].first) {
            const std::size_t edge = s * stride + byteClass_[static_cast<unsigned char>(ch)];
            if (next_[edge] == kNoState) {
                next_[edge] = static_cast<std::uint32_t>(endsAt.size());
                endsAt.emplace_back();
                next_.resize(endsAt.size() * stride, kNoState);
            }
            s = next_[edge];
        }
        endsAt[s].push_back(static_cast<std::uint32_t>(i));
    }

    // Breadth first: each state's missing edges are those of its longest proper suffix state.
    const std::size_t states = endsAt.size();
    std::vector<std::uint32_t> suffix(states, 0);
    outputLink_.assign(states, 0);
    std::vector<std::uint32_t> queue;
    queue.reserve(states);
    for (std::size_t c = 0; c < stride; ++c) {
        std::uint32_t& child = next_[c];
        if (child == kNoState) child = 0;
        else queue.push_back(child);
    }
    for (std::size_t head = 0; head < queue.size(); ++head) {
        const std::uint32_t s = queue[head];
        for (std::size_t c = 0; c < stride; ++c) {
            std::uint32_t& child = next_[s * stride + c];
            const std::uint32_t viaSuffix = next_[suffix[s] * stride + c];
            if (child == kNoState) {
                child = viaSuffix;
                continue;
            }
            suffix[child] = viaSuffix;
            outputLink_[child] = endsAt[viaSuffix].empty() ? outputLink_[viaSuffix] : viaSuffix;
            queue.push_back(child);
        }
    }
    endsFrom_.reserve(states + 1);
    for (const auto& ends : endsAt) {
        endsFrom_.push_back(static_cast<std::uint32_t>(ends_.size()));
        ends_.insert(ends_.end(), ends.begin(), ends.end());
    }
    endsFrom_.push_back(static_cast<std::uint32_t>(ends_.size()));
}

bool PairRepairs::markOccurrences(std::string_view text, std::size_t from, std::size_t to,
                                  std::vector<std::uint64_t>& occurs) const {
    const std::size_t stride = classes_ + 1;
    std::uint32_t s = 0;
    bool any = false;
    for (std::size_t j = from; j < to; ++j) {
        s = next_[s * stride + byteClass_[static_cast<unsigned char>(text[j])]];
        for (std::uint32_t t = endsFrom_[s] != endsFrom_[s + 1] ? s : outputLink_[s]; t != 0; t = outputLink_[t]) {
            for (std::uint32_t e = endsFrom_[t]; e < endsFrom_[t + 1]; ++e)
                occurs[ends_[e] / kBitsPerWord] |= std::uint64_t{1} << (ends_[e] % kBitsPerWord);
            any = true;
        }
    }
    return any;
}

bool PairRepairs::applyToPiece(std::string& piece, std::vector<std::uint64_t>& occurs) const {
    bool changed = false;
    std::string out;
    std::vector<std::size_t> placed;
    const std::size_t count = pairs_.size();
    const std::size_t most = piece.size() * kMostGrowth + kGrowthSlack;
    for (std::size_t i = nextSet(occurs, 0); i < count; i = nextSet(occurs, i + 1)) {
        const auto& [find, with] = pairs_[i];
        std::size_t pos = piece.find(find);
        if (pos == std::string::npos) continue;  // it occurred before a pair above removed it
        out.clear();
        out.reserve(piece.size());
        placed.clear();
        std::size_t from = 0;
        for (; pos != std::string::npos; pos = piece.find(find, from)) {
            out.append(piece, from, pos - from);
            placed.push_back(out.size());
            out += with;
            from = pos + find.size();
        }
        out.append(piece, from, std::string::npos);
        if (out.size() > most) break;
        piece.swap(out);
        changed = true;

        // A find that occurs now and did not before overlaps a replacement or its join.
        const std::size_t reach = longestFind_ - 1;
        std::size_t windowFrom = 0;
        std::size_t windowTo = 0;
        for (const std::size_t at : placed) {
            const std::size_t lo = at > reach ? at - reach : 0;
            const std::size_t hi = std::min(piece.size(), at + with.size() + reach);
            if (windowTo > windowFrom && lo <= windowTo) {
                windowTo = std::max(windowTo, hi);
                continue;
            }
            if (windowTo > windowFrom) markOccurrences(piece, windowFrom, windowTo, occurs);
            windowFrom = lo;
            windowTo = hi;
        }
        if (windowTo > windowFrom) markOccurrences(piece, windowFrom, windowTo, occurs);
    }
    return changed;
}

namespace {
// Writes the repaired text back over the text itself, behind the point read so far, so that a
// long result is never held twice. What does not fit yet (a piece the repair made longer) waits
// in `carry_`, in order, until reading frees room or the text ends.
class WriteBehind {
public:
    explicit WriteBehind(std::string& text) : text_(text) {}

    // The text up to `end` is read, and its bytes from `start` go to the result as they are.
    void keep(std::size_t start, std::size_t end) {
        if (carry_.size() == carryHead_) {
            if (written_ != start) std::memmove(text_.data() + written_, text_.data() + start, end - start);
            written_ += end - start;
            read_ = end;
            return;
        }
        carry_.append(text_, start, end - start);
        read_ = end;
        flush();
    }

    // The text up to `end` is read, and `bytes` go to the result in its place.
    void put(std::size_t end, std::string_view bytes) {
        read_ = end;
        if (carry_.size() == carryHead_ && written_ + bytes.size() <= read_) {
            std::memcpy(text_.data() + written_, bytes.data(), bytes.size());
            written_ += bytes.size();
            return;
        }
        carry_.append(bytes);
        flush();
    }

    void finish() {
        text_.resize(written_);
        text_.append(carry_, carryHead_, std::string::npos);
    }

private:
    void flush() {
        const std::size_t n = std::min(carry_.size() - carryHead_, read_ - written_);
        std::memcpy(text_.data() + written_, carry_.data() + carryHead_, n);
        written_ += n;
        carryHead_ += n;
        if (carryHead_ == carry_.size()) {
            carry_.clear();
            carryHead_ = 0;
        } else if (carryHead_ > carry_.size() / 2) {
            carry_.erase(0, carryHead_);  // what was written leaves the queue, at most once per half
            carryHead_ = 0;
        }
    }

    std::string& text_;
    std::size_t written_ = 0;  // the result so far is text_[0, written_) and then carry_
    std::size_t read_ = 0;     // text_[read_, end) is not read yet
    std::string carry_;
    std::size_t carryHead_ = 0;
};
}  // namespace

void PairRepairs::apply(std::string& text) const {
    if (pairs_.empty() || text.empty()) return;
    std::vector<std::uint64_t> occurs((pairs_.size() + kBitsPerWord - 1) / kBitsPerWord);
    bool marked = false;  // `occurs` holds marks of the piece before
    WriteBehind result(text);
    std::string piece;
    std::size_t start = 0;
    while (true) {
        std::size_t end = start;
        while (end < text.size() && !cut_[static_cast<unsigned char>(text[end])]) ++end;
        bool repaired = false;
        if (end > start) {
            // Most pieces hold no find: they are scanned in place and never copied.
            if (marked) std::fill(occurs.begin(), occurs.end(), 0);
            marked = markOccurrences(text, start, end, occurs);
            if (marked) {
                piece.assign(text, start, end - start);
                repaired = applyToPiece(piece, occurs);
            }
        }
        const std::size_t next = end == text.size() ? end : end + 1;  // with the cutting byte
        if (repaired) {
            result.put(end, piece);
            result.keep(end, next);
        } else {
            result.keep(start, next);
        }
        if (end == text.size()) break;
        start = next;
    }
    result.finish();
}

}  // namespace vorlexa
