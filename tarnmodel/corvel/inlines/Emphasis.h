#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace tarn::corvel {

enum class EmphasisKind : std::uint8_t { Emphasis, Strong, Strikethrough, Highlight };

using RunIndex = std::uint32_t;
using PairIndex = std::uint32_t;
inline constexpr std::uint32_t kNone = 0xFFFFFFFF;

/// A run of one emphasis mark. Written out it is: the pairs that it closes, what is left of it, the pairs that it
/// opens.
struct DelimiterRun {
    char mark = 0;
    bool canOpen = false;
    bool canClose = false;
    std::uint32_t length = 0;
    std::uint32_t remaining = 0;
    RunIndex below = kNone; ///< neighbours on the stack
    RunIndex above = kNone;
    PairIndex firstClosed = kNone; ///< innermost first
    PairIndex lastClosed = kNone;
    PairIndex firstOpened = kNone; ///< outermost first
};

struct EmphasisPair {
    EmphasisKind kind = EmphasisKind::Emphasis;
    PairIndex nextClosed = kNone; ///< by the same run
    PairIndex nextOpened = kNone;
};

/// Pairs runs of emphasis marks to emphasis.
class DelimiterStack {
public:
    void clear() noexcept;

    RunIndex push(char mark, std::uint32_t length, bool canOpen, bool canClose);
    RunIndex top() const noexcept { return top_; }
    /// Pairs the runs above `bottom` and takes them off the stack.
    void resolve(RunIndex bottom);

    const DelimiterRun& run(RunIndex index) const { return runs_[index]; }
    const EmphasisPair& pair(PairIndex index) const { return pairs_[index]; }

private:
    /// Where the search for an opener need not go below, by what a closer is like.
    using Floors = std::array<RunIndex, 4 * 3 * 2>;

    RunIndex firstAbove(RunIndex bottom) const noexcept;
    RunIndex findOpener(RunIndex closer, RunIndex floor) const noexcept;
    void join(RunIndex opener, RunIndex closer);
    void remove(RunIndex index) noexcept;

    std::vector<DelimiterRun> runs_;
    std::vector<EmphasisPair> pairs_;
    RunIndex top_ = kNone;
};

} // namespace tarn::corvel
