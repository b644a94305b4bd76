#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/OrderedSet.h"

#include <cstddef>
#include <iterator>
#include <span>
#include <vector>

namespace tarn {

/// The members of a to-many relationship of one record.
///
/// While it is not loaded it keeps only what was added and removed, so a change never reads the other members.
/// Owned by its record. Every change keeps the inverse in step.
class ToManySet {
public:
    ToManySet(NSManagedObject& owner, const NSRelationshipDescription& relationship);

    /// All members: stored ones by primary key, then added ones in order. Loads the set.
    const std::vector<NSManagedObject*>& members();
    /// Without loading other members where it can.
    bool contains(const NSManagedObject& member);
    std::size_t count();
    void add(NSManagedObject& member);
    void remove(NSManagedObject& member);
    /// Writes the difference only; an equal set changes nothing.
    void set(std::span<NSManagedObject* const> members);

    bool isLoaded() const noexcept { return loaded_; }
    const NSRelationshipDescription& relationship() const noexcept { return *relationship_; }
    /// Since the last save.
    const std::vector<NSManagedObject*>& added() const { return added_.values(); }
    const std::vector<NSManagedObject*>& removed() const { return removed_.values(); }

private:
    friend class RelationshipMaintenance;
    bool holds(const NSManagedObject& member) const;
    void put(NSManagedObject& member);
    void take(NSManagedObject& member);
    void settle();
    void unload();
    /// Reads the stored members again at next use; unsaved additions and removals stay.
    void forgetStored();

    void putInOrder();

    NSManagedObject* owner_;
    const NSRelationshipDescription* relationship_;
    bool loaded_ = false;
    bool isInOrder_ = true;
    std::size_t place_ = 0;                ///< among the loaded sets of the context
    OrderedSet<NSManagedObject*> members_; ///< while not loaded those that were, if any
    OrderedSet<NSManagedObject*> added_;
    OrderedSet<NSManagedObject*> removed_;
};

/// The live, typed set that a record's `xSet()` gives. A light handle: copy it freely, keep it no longer than the
/// record.
///
///     for (OVNote* note : tag.notesSet())
///         titles.push_back(note->title());
template <typename Record> class NSManagedObjectSet {
public:
    using Members = std::vector<NSManagedObject*>;
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using difference_type = std::ptrdiff_t;
        using value_type = Record*;
        using pointer = Record* const*;
        using reference = Record*;

        Iterator() = default;
        explicit Iterator(Members::const_iterator place) : place_(place) { }
        Record* operator*() const { return static_cast<Record*>(*place_); }
        Iterator& operator++()
        {
            ++place_;
            return *this;
        }
        Iterator operator++(int)
        {
            Iterator before = *this;
            ++place_;
            return before;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        Members::const_iterator place_;
    };

    explicit NSManagedObjectSet(ToManySet& set) : set_(&set) { }

    /// The members themselves. Where the body fetches or changes members, walk `allObjects()`.
    Iterator begin() const { return Iterator(set_->members().begin()); }
    Iterator end() const { return Iterator(set_->members().end()); }

    void addObject(Record& record) { set_->add(record); }
    void removeObject(Record& record) { set_->remove(record); }
    bool containsObject(const Record& record) const { return set_->contains(record); }
    std::size_t count() const { return set_->count(); }
    bool empty() const { return count() == 0; }
    /// A copy, which members that come and go do not touch.
    std::vector<Record*> allObjects() const
    {
        std::vector<Record*> records;
        const auto& members = set_->members();
        records.reserve(members.size());
        for (NSManagedObject* member : members)
            records.push_back(static_cast<Record*>(member));
        return records;
    }
    void setObjects(const std::vector<Record*>& records)
    {
        const std::vector<NSManagedObject*> members(records.begin(), records.end());
        set_->set(members);
    }
    void removeAllObjects() { set_->set({}); }

private:
    ToManySet* set_;
};

} // namespace tarn
