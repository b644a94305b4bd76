#include "tarnmodel/platform/coredata/sqlite/PrimaryKeySet.h"

#include <algorithm>
#include <iterator>

namespace tarn {

namespace {

/// A bit for each key up to the last is worth it as long as it takes no more room than this many keys would.
constexpr std::uint64_t kMostBitsForAKey = 256;
constexpr std::uint64_t kFewBits = 1U << 16U;

} // namespace

PrimaryKeySet::PrimaryKeySet(std::vector<std::int64_t> ascendingKeys) : keys_(std::move(ascendingKeys)), view_(keys_)
{
    if (keys_.empty())
        return;
    const std::uint64_t range = static_cast<std::uint64_t>(keys_.back()) - static_cast<std::uint64_t>(keys_.front());
    if (range > std::max(kFewBits, keys_.size() * kMostBitsForAKey))
        return;
    bits_.resize(range / 64 + 1);
    for (const std::int64_t key : keys_) {
        const auto place = static_cast<std::uint64_t>(key - keys_.front());
        bits_[place / 64] |= std::uint64_t{1} << (place % 64);
    }
}

bool PrimaryKeySet::contains(std::int64_t key) const noexcept
{
    if (keys_.empty() || key < keys_.front() || key > keys_.back())
        return false;
    if (bits_.empty())
        return std::binary_search(keys_.begin(), keys_.end(), key);
    const auto place = static_cast<std::uint64_t>(key - keys_.front());
    return ((bits_[place / 64] >> (place % 64)) & 1U) != 0;
}

const PrimaryKeySetPtr& noKeys()
{
    static const PrimaryKeySetPtr none = std::make_shared<const PrimaryKeySet>(std::vector<std::int64_t>());
    return none;
}

PrimaryKeySetPtr intersection(const PrimaryKeySetPtr& left, const PrimaryKeySetPtr& right)
{
    if (!left || !right)
        return left ? left : right;
    std::vector<std::int64_t> both;
    std::set_intersection(
        left->keys().begin(), left->keys().end(), right->keys().begin(), right->keys().end(), std::back_inserter(both));
    return std::make_shared<const PrimaryKeySet>(std::move(both));
}

PrimaryKeySetPtr unionOf(const PrimaryKeySetPtr& left, const PrimaryKeySetPtr& right)
{
    if (!left || !right)
        return nullptr;
    if (left->size() == 0 || right->size() == 0)
        return left->size() == 0 ? right : left;
    std::vector<std::int64_t> either;
    either.reserve(left->size() + right->size());
    std::set_union(left->keys().begin(), left->keys().end(), right->keys().begin(), right->keys().end(),
        std::back_inserter(either));
    return std::make_shared<const PrimaryKeySet>(std::move(either));
}

} // namespace tarn
