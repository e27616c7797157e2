// The repairs of a pair list: find and replace pairs applied to a text one after another, each to
// every occurrence left to right (a replacement is not searched again), each pair seeing what the
// pairs above it wrote.
//
// The result is that of searching the whole text once per pair; the work is not. One automaton
// over all the finds tells which pairs occur at all, and after a replacement only the text around
// it is scanned again, because a new occurrence must overlap what was written. The text is taken
// in pieces cut at the bytes no find and no replacement holds: such a byte is never matched, made
// or removed, so no occurrence ever crosses it, and each piece is repaired on its own. A broken
// list that would make a piece many times longer stops at the pair that would pass the limit.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vorlexa {

class PairRepairs {
public:
    PairRepairs() = default;
    // Pairs with an empty find are left out.
    explicit PairRepairs(std::vector<std::pair<std::string, std::string>> pairs);

    const std::vector<std::pair<std::string, std::string>>& pairs() const { return pairs_; }
    // Applies every pair in order to the text.
    void apply(std::string& text) const;

private:
    // Marks in `occurs` every pair whose find occurs wholly inside text[from, to); true when it
    // marked any.
    bool markOccurrences(std::string_view text, std::size_t from, std::size_t to,
                         std::vector<std::uint64_t>& occurs) const;
    // Repairs one piece whose occurring pairs `occurs` marks; true when it changed.
    bool applyToPiece(std::string& piece, std::vector<std::uint64_t>& occurs) const;

    std::vector<std::pair<std::string, std::string>> pairs_;
    std::size_t longestFind_ = 0;
    bool cut_[256] = {};             // bytes that no find and no replacement holds
    std::uint8_t byteClass_[256] = {};  // 0 for bytes no find holds, else 1..classes_
    std::size_t classes_ = 0;
    // The automaton: next state by state and byte class, the pairs whose find ends in a state,
    // and the nearest shorter state (by suffix) that ends a find.
    std::vector<std::uint32_t> next_;
    std::vector<std::uint32_t> endsFrom_;  // index into ends_; one more entry than states
    std::vector<std::uint32_t> ends_;
    std::vector<std::uint32_t> outputLink_;  // 0 when none
};

}  // namespace vorlexa
