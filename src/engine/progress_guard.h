// The progress invariant of a translation run, and the guard that holds the scanner to it.
//
// Every turn of the scanner, and every rule that moves ScanPos back or rewrites the source, must
// leave the run closer to the end of its text. A rule may step back to read a word again, and a
// rescan may stand still for a turn, but the furthest position the run has reached must move on
// again soon. The guard watches each turn: a run whose furthest position stays put for
// kMaxTurnsWithoutProgress turns that did not move ScanPos forward is in a loop, and a run whose
// output outgrows its source by more than kMaxOutputPerSourceChar is writing without end. Either
// way the run stops with a notice that names the character where the scanner stood.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vorlexa {

// A chain of rescans or one step back over a word costs a few turns; a thousand such turns with
// no new ground is a loop, not a long sentence.
inline constexpr int kMaxTurnsWithoutProgress = 1000;
// A one-letter word and its blank give at most a 20-character gloss, its endings and a held
// copula: 64 output characters per source character is far above any honest translation.
inline constexpr std::size_t kMaxOutputPerSourceChar = 64;
// Headroom for very short texts, where a single fixed expression may write more than 64 a letter.
inline constexpr std::size_t kOutputAllowance = 4096;

enum class GuardVerdict {
    Go,             // the run is making progress
    Stalled,        // no new ground for kMaxTurnsWithoutProgress turns
    OutputTooLong,  // the output outgrew the source
};

// The guard's limits; the defaults are the named ones above, tests tighten them.
struct ProgressLimits {
    int turnsWithoutProgress = kMaxTurnsWithoutProgress;
    std::size_t outputPerSourceChar = kMaxOutputPerSourceChar;
    std::size_t outputAllowance = kOutputAllowance;

    // The largest output a source of that many bytes may have.
    constexpr std::size_t maxOutputFor(std::size_t sourceSize) const {
        return sourceSize * outputPerSourceChar + outputAllowance;
    }
};

class ProgressGuard {
public:
    ProgressLimits limits;

    // A new run from its first position.
    void start();
    // After one turn of the scanner that went from ScanPos `before` to `after`. Inline: the
    // scanner asks it at every character.
    GuardVerdict afterTurn(std::int64_t before, std::int64_t after, std::size_t outputSize, std::size_t sourceSize) {
        if (outputSize > limits.maxOutputFor(sourceSize)) return GuardVerdict::OutputTooLong;
        if (after > furthest_) {
            furthest_ = after;
            turnsWithoutProgress_ = 0;
        } else if (after <= before && ++turnsWithoutProgress_ >= limits.turnsWithoutProgress) {
            return GuardVerdict::Stalled;
        }
        return GuardVerdict::Go;
    }

    std::int64_t furthest() const { return furthest_; }

private:
    std::int64_t furthest_ = 0;
    int turnsWithoutProgress_ = 0;
};

// The character number, as the user counts them, of 1-based byte position `pos` of font text:
// an escaped character counts once, and the CR of a CR LF line end is not counted.
std::int64_t characterNumber(std::string_view font, std::int64_t pos);

}  // namespace vorlexa
