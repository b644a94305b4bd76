#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tarn {

/// Different values in the order in which they came; each is found, added and taken out in constant time.
///
/// What is taken out leaves a gap, which closes when the values are next walked. A few values are searched one by one,
/// and cost no more room than a vector of them.
template <typename T, typename Hash = std::hash<T>> class OrderedSet {
public:
    OrderedSet() = default;
    /// `values`: each once.
    explicit OrderedSet(std::vector<T> values) : slots_(std::move(values)), count_(slots_.size()) { }

    /// Whether the value is here.
    bool contains(const T& value) const { return place(value) != kNowhere; }
    /// Whether there is none.
    bool isEmpty() const noexcept { return count_ == 0; }
    /// How many there are.
    std::size_t size() const noexcept { return count_; }

    /// Puts it behind the others; false when it is here already.
    bool add(T value)
    {
        if (contains(value))
            return false;
        if (!places_.empty())
            places_.emplace(value, slots_.size());
        slots_.push_back(std::move(value));
        ++count_;
        return true;
    }

    /// False when it is not here.
    bool erase(const T& value)
    {
        const std::size_t at = place(value);
        if (at == kNowhere)
            return false;
        if (places_.empty()) {
            slots_.erase(slots_.begin() + static_cast<std::ptrdiff_t>(at));
        } else {
            places_.erase(value);
            gaps_.push_back(at);
        }
        if (--count_ == 0)
            clear();
        return true;
    }

    /// Takes out all values for which the predicate holds.
    template <typename Predicate> void eraseIf(Predicate predicate)
    {
        if (std::none_of(values().begin(), values().end(), predicate))
            return;
        std::vector<T> kept = values();
        std::erase_if(kept, predicate);
        *this = OrderedSet(std::move(kept));
    }

    /// Takes out all.
    void clear() { *this = OrderedSet(); }

    /// Valid until the next change.
    const std::vector<T>& values() const
    {
        closeGaps();
        return slots_;
    }

private:
    static constexpr std::size_t kFew = 16;
    static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

    std::size_t place(const T& value) const
    {
        if (places_.empty() && slots_.size() <= kFew) {
            const auto found = std::find(slots_.begin(), slots_.end(), value);
            return found == slots_.end() ? kNowhere : static_cast<std::size_t>(found - slots_.begin());
        }
        if (places_.empty())
            for (std::size_t at = 0; at < slots_.size(); ++at)
                places_.emplace(slots_[at], at);
        const auto found = places_.find(value);
        return found == places_.end() ? kNowhere : found->second;
    }

    void closeGaps() const
    {
        if (gaps_.empty())
            return;
        std::sort(gaps_.begin(), gaps_.end());
        auto gap = gaps_.begin();
        std::size_t to = *gap;
        for (std::size_t from = to; from < slots_.size(); ++from) {
            if (gap != gaps_.end() && *gap == from) {
                ++gap;
                continue;
            }
            slots_[to] = std::move(slots_[from]);
            places_.find(slots_[to])->second = to;
            ++to;
        }
        slots_.erase(slots_.begin() + static_cast<std::ptrdiff_t>(to), slots_.end());
        gaps_.clear();
    }

    mutable std::vector<T> slots_; ///< in order; those of `gaps_` hold nothing that counts
    mutable std::vector<std::size_t> gaps_;
    mutable std::unordered_map<T, std::size_t, Hash> places_; ///< in slots_; empty while there are few
    std::size_t count_ = 0;
};

} // namespace tarn
