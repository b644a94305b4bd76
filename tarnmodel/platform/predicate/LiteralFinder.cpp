#include "tarnmodel/platform/predicate/LiteralFinder.h"

#include <algorithm>
#include <numeric>

namespace tarn {

namespace {

/// A megabyte of table: what fits into the processor's cache.
constexpr std::uint32_t kStatesWithTable = 1024;
constexpr std::size_t kBytes = 256;
/// So few children are looked at one by one.
constexpr std::uint16_t kFewChildren = 8;

} // namespace

struct LiteralFinder::Tree {
    std::vector<State> parent{kRoot};
    std::vector<std::uint8_t> byte{0};
    std::vector<std::uint32_t> depth{0};
    std::vector<std::uint32_t> group{kNone};

    /// Behind the literal before it in order, of whose path it shares the beginning.
    void add(std::string_view literal, std::string_view before, std::vector<State>& path, std::uint32_t itsGroup)
    {
        const auto [mine, theirs] = std::mismatch(literal.begin(), literal.end(), before.begin(), before.end());
        path.resize(static_cast<std::size_t>(mine - literal.begin()) + 1);
        for (auto at = mine; at != literal.end(); ++at) {
            parent.push_back(path.back());
            byte.push_back(static_cast<std::uint8_t>(*at));
            depth.push_back(static_cast<std::uint32_t>(path.size()));
            group.push_back(kNone);
            path.push_back(static_cast<State>(parent.size() - 1));
        }
        group[path.back()] = itsGroup;
    }
};

LiteralFinder::LiteralFinder(std::span<const std::string_view> literals)
{
    std::vector<std::size_t> order(literals.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t at) { return literals[at]; });
    Tree tree;
    std::vector<State> path{kRoot};
    std::string_view before;
    for (const std::size_t at : order) {
        if (groups_.empty() || literals[at] != before) {
            tree.add(literals[at], before, path, static_cast<std::uint32_t>(groups_.size()));
            groups_.emplace_back();
        }
        groups_.back().push_back(at);
        before = literals[at];
    }
    foundInPass_.resize(groups_.size());
    layOut(tree);
    connect();
    makeTable();
}

/// Sorted literals make siblings in ascending order, so that a stable order by depth brings those of one parent
/// together.
void LiteralFinder::layOut(const Tree& tree)
{
    const std::size_t count = tree.parent.size();
    std::vector<State> order(count);
    std::iota(order.begin(), order.end(), State{0});
    std::ranges::stable_sort(order, {}, [&](State state) { return tree.depth[state]; });
    std::vector<State> place(count);
    for (std::size_t at = 0; at < count; ++at)
        place[order[at]] = static_cast<State>(at);
    firstChild_.resize(count);
    childCount_.resize(count);
    byte_.resize(count);
    fallback_.resize(count);
    literal_.resize(count);
    nearestWithMatch_.resize(count);
    for (std::size_t at = 0; at < count; ++at) {
        byte_[at] = tree.byte[order[at]];
        literal_[at] = tree.group[order[at]];
        fallback_[at] = place[tree.parent[order[at]]]; // for now
        if (at == kRoot)
            continue;
        const State parent = fallback_[at];
        if (childCount_[parent]++ == 0)
            firstChild_[parent] = static_cast<State>(at);
    }
}

LiteralFinder::State LiteralFinder::child(State state, std::uint8_t byte) const noexcept
{
    const auto first = byte_.begin() + firstChild_[state];
    const auto last = first + childCount_[state];
    const auto found
        = childCount_[state] <= kFewChildren ? std::find(first, last, byte) : std::lower_bound(first, last, byte);
    return found == last || *found != byte ? kNone : static_cast<State>(found - byte_.begin());
}

/// Level by level: the fallback of a state lies on a level above.
void LiteralFinder::connect()
{
    for (State state = 1; state < byte_.size(); ++state) {
        const State parent = fallback_[state];
        State end = kRoot;
        for (State tried = parent; tried != kRoot && end == kRoot;) {
            tried = fallback_[tried];
            const State reached = child(tried, byte_[state]);
            end = reached == kNone ? kRoot : reached;
        }
        fallback_[state] = end;
        nearestWithMatch_[state] = literal_[state] != kNone ? state : nearestWithMatch_[end];
    }
}

void LiteralFinder::makeTable()
{
    const auto size = static_cast<State>(std::min<std::size_t>(byte_.size(), kStatesWithTable));
    table_.resize(size * kBytes);
    for (State state = 0; state < size; ++state) {
        State* row = &table_[state * kBytes];
        if (state != kRoot)
            std::copy_n(&table_[fallback_[state] * kBytes], kBytes, row);
        for (std::uint16_t at = 0; at < childCount_[state]; ++at)
            row[byte_[firstChild_[state] + at]] = firstChild_[state] + at;
    }
    tableSize_ = size;
}

LiteralFinder::State LiteralFinder::next(State state, std::uint8_t byte) const noexcept
{
    while (state >= tableSize_) {
        const State reached = child(state, byte);
        if (reached != kNone)
            return reached;
        state = fallback_[state];
    }
    return table_[state * kBytes + byte];
}

void LiteralFinder::find(std::string_view text, const Found& found)
{
    if (++pass_ == 0) { // after four thousand million passes
        std::ranges::fill(foundInPass_, 0U);
        pass_ = 1;
    }
    State state = kRoot;
    for (const char c : text) {
        state = next(state, static_cast<std::uint8_t>(c));
        // Behind a literal that was found before stand only such as were found with it.
        for (State end = nearestWithMatch_[state]; end != kRoot; end = nearestWithMatch_[fallback_[end]]) {
            std::uint32_t& pass = foundInPass_[literal_[end]];
            if (pass == pass_)
                break;
            pass = pass_;
            for (const std::size_t literal : groups_[literal_[end]])
                if (!found(literal))
                    return;
        }
    }
}

} // namespace tarn
