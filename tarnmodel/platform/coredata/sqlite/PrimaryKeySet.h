#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace tarn {

/// Primary keys of one table, ascending, each once. Immutable; any thread.
class KeySet {
public:
    explicit KeySet(std::vector<std::int64_t> ascendingKeys);
    KeySet(const KeySet&) = delete;
    KeySet& operator=(const KeySet&) = delete;

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
using KeySetPtr = std::shared_ptr<const KeySet>;

/// The set without keys.
const KeySetPtr& noKeys();
KeySetPtr intersection(const KeySetPtr& left, const KeySetPtr& right);
KeySetPtr unionOf(const KeySetPtr& left, const KeySetPtr& right);

} // namespace tarn
