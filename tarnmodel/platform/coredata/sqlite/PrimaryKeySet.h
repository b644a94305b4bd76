#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace tarn {

/// Primary keys of one table, ascending, each once. Immutable; any thread.
class PrimaryKeySet {
public:
    explicit PrimaryKeySet(std::vector<std::int64_t> ascendingKeys);
    PrimaryKeySet(const PrimaryKeySet&) = delete;
    PrimaryKeySet& operator=(const PrimaryKeySet&) = delete;

    std::size_t size() const noexcept { return keys_.size(); }
    /// As `value_list` takes them; stays in place.
    const std::span<const std::int64_t>& keys() const noexcept { return view_; }
    bool contains(std::int64_t key) const noexcept;

private:
    std::vector<std::int64_t> keys_;
    std::span<const std::int64_t> view_;
    std::vector<std::uint64_t> bits_; ///< from the first key on; empty where keys lie too far apart
};

/// Null stands for all keys.
using PrimaryKeySetPtr = std::shared_ptr<const PrimaryKeySet>;

/// The set without keys.
const PrimaryKeySetPtr& noKeys();
PrimaryKeySetPtr intersection(const PrimaryKeySetPtr& left, const PrimaryKeySetPtr& right);
PrimaryKeySetPtr unionOf(const PrimaryKeySetPtr& left, const PrimaryKeySetPtr& right);

} // namespace tarn
