#include "tarnmodel/platform/coredata/context/records/ObjectRegistry.h"

namespace tarn {

namespace {

constexpr std::size_t initialSlots = 64;

std::int64_t keyOf(const NSManagedObject& object)
{
    return object.objectID().key();
}

} // namespace

std::size_t ObjectRegistry::Table::home(std::int64_t key) const noexcept
{
    const auto hash = static_cast<std::uint64_t>(key) * 0x9E3779B97F4A7C15ULL;
    return static_cast<std::size_t>(hash >> 17) & (slots_.size() - 1);
}

NSManagedObject* ObjectRegistry::Table::find(std::int64_t key) const noexcept
{
    if (slots_.empty())
        return nullptr;
    for (std::size_t slot = home(key); slots_[slot]; slot = (slot + 1) & (slots_.size() - 1))
        if (keyOf(*slots_[slot]) == key)
            return slots_[slot];
    return nullptr;
}

void ObjectRegistry::Table::insert(NSManagedObject& object)
{
    if ((count_ + 1) * 3 > slots_.size() * 2)
        grow();
    std::size_t slot = home(keyOf(object));
    while (slots_[slot])
        slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = &object;
    ++count_;
}

void ObjectRegistry::Table::grow()
{
    std::vector<NSManagedObject*> former = std::move(slots_);
    slots_.assign(former.empty() ? initialSlots : former.size() * 2, nullptr);
    count_ = 0;
    for (NSManagedObject* object : former)
        if (object)
            insert(*object);
}

void ObjectRegistry::Table::erase(std::int64_t key) noexcept
{
    if (slots_.empty())
        return;
    const std::size_t mask = slots_.size() - 1;
    std::size_t hole = home(key);
    while (slots_[hole] && keyOf(*slots_[hole]) != key)
        hole = (hole + 1) & mask;
    if (!slots_[hole])
        return;
    // Close the gap: move every later member of the run back that may stand there.
    for (std::size_t next = (hole + 1) & mask; slots_[next]; next = (next + 1) & mask) {
        const std::size_t wanted = home(keyOf(*slots_[next]));
        if (((next - wanted) & mask) >= ((next - hole) & mask)) {
            slots_[hole] = slots_[next];
            hole = next;
        }
    }
    slots_[hole] = nullptr;
    --count_;
}

NSManagedObject* ObjectRegistry::find(const NSEntityDescription& root, std::int64_t key) const
{
    const auto table = tables_.find(&root);
    if (table != tables_.end())
        if (NSManagedObject* object = table->second.find(key))
            return object;
    if (key >= 0)
        return nullptr;
    const auto former = formerKeys_.find(key);
    return former == formerKeys_.end() ? nullptr : former->second;
}

NSManagedObject& ObjectRegistry::add(std::unique_ptr<NSManagedObject> object)
{
    owned_.push_back(std::move(object));
    remember(*owned_.back());
    return *owned_.back();
}

void ObjectRegistry::forget(const NSManagedObject& object)
{
    const auto table = tables_.find(&object.entity().rootEntity());
    if (table != tables_.end())
        table->second.erase(keyOf(object));
}

void ObjectRegistry::remember(NSManagedObject& object)
{
    Table& table = tables_[&object.entity().rootEntity()];
    if (!table.find(keyOf(object)))
        table.insert(object);
}

std::vector<NSManagedObject*> ObjectRegistry::objects() const
{
    std::vector<NSManagedObject*> found;
    found.reserve(owned_.size());
    for (const auto& object : owned_)
        if (find(object->entity().rootEntity(), keyOf(*object)) == object.get())
            found.push_back(object.get());
    return found;
}

void ObjectRegistry::clear()
{
    tables_.clear();
    formerKeys_.clear();
    owned_.clear();
}

} // namespace tarn
