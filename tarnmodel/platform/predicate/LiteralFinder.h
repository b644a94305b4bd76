#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace tarn {

/// Finds out which of many byte strings a text contains, in one pass over the text however many they are.
///
/// After Aho and Corasick: a tree of the literals, in which each state knows where to go on when the next byte does not
/// fit. The states nearest to the root, where nearly all of a text is passed in, have a table of all bytes.
///
/// One thread at a time.
class LiteralFinder {
public:
    /// Non-empty; equal ones are found together.
    explicit LiteralFinder(std::span<const std::string_view> literals);

    /// Called once for each literal that the text contains, by its place among those given; false ends the pass.
    using Found = std::function<bool(std::size_t literal)>;
    void find(std::string_view text, const Found& found);

private:
    using State = std::uint32_t;
    static constexpr State kRoot = 0;
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    /// The tree as it grows from sorted literals; states in the order in which they were made.
    struct Tree;
    void layOut(const Tree& tree);
    void connect();
    void makeTable();
    State child(State state, std::uint8_t byte) const noexcept;
    State next(State state, std::uint8_t byte) const noexcept;

    // By state, level by level: the children of one lie side by side, ascending by byte.
    std::vector<State> firstChild_;
    std::vector<std::uint16_t> childCount_;
    std::vector<std::uint8_t> byte_;
    std::vector<State> fallback_;         ///< the longest proper end of it that is a state too
    std::vector<std::uint32_t> literal_;  ///< the group of literals that end here, or none
    std::vector<State> nearestWithMatch_; ///< itself or the longest end of it where a literal ends, or the root
    std::vector<State> table_;            ///< 256 for each of the first states
    State tableSize_ = 0;

    std::vector<std::vector<std::size_t>> groups_; ///< equal literals
    std::vector<std::uint32_t> foundInPass_;       ///< by group: the number of the pass
    std::uint32_t pass_ = 0;
};

} // namespace tarn
