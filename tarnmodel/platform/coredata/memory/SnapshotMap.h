#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>

namespace tarn {

/// A map by key, in order, whose copies share what did not change since.
///
/// Keys that lie close together rest in one shard; writing copies the shards that it touches. So a copy is a cheap
/// snapshot that later writes to the original leave alone. A value type; as safe between threads as `std::map`.
template <typename T> class SnapshotMap {
public:
    /// Null when there is none.
    const T* find(std::int64_t key) const
    {
        const auto shard = shards_.find(shardOf(key));
        if (shard == shards_.end())
            return nullptr;
        const auto found = shard->second->find(key);
        return found == shard->second->end() ? nullptr : &found->second;
    }

    /// The value to write to, made when there is none.
    T& operator[](std::int64_t key) { return writable(key)[key]; }

    void erase(std::int64_t key)
    {
        if (!find(key))
            return;
        Shard& shard = writable(key);
        shard.erase(key);
        if (shard.empty())
            shards_.erase(shardOf(key));
    }

    bool isEmpty() const { return shards_.empty(); }

    std::size_t size() const
    {
        std::size_t count = 0;
        for (const auto& [number, shard] : shards_)
            count += shard->size();
        return count;
    }

    /// Calls `visit(key, value)` in order of keys.
    template <typename Visit> void forEach(Visit visit) const
    {
        for (const auto& [number, shard] : shards_)
            for (const auto& [key, value] : *shard)
                visit(key, value);
    }

private:
    using Shard = std::map<std::int64_t, T>;
    static std::int64_t shardOf(std::int64_t key) { return key >> 6; }

    Shard& writable(std::int64_t key)
    {
        std::shared_ptr<Shard>& shard = shards_[shardOf(key)];
        if (!shard)
            shard = std::make_shared<Shard>();
        else if (shard.use_count() > 1)
            shard = std::make_shared<Shard>(*shard);
        return *shard;
    }

    std::map<std::int64_t, std::shared_ptr<Shard>> shards_;
};

} // namespace tarn
