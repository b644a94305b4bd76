#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tarn {

/// What the sets of all record classes share; see `NSManagedObjectSet`.
class UntypedManagedObjectSet {
public:
    explicit UntypedManagedObjectSet(ToManySet& set) noexcept : set_(&set) { }

    const std::vector<NSManagedObject*>& members() const;
    std::size_t count() const;
    bool contains(const NSManagedObject& member) const;
    void add(NSManagedObject& member);
    /// Takes the member out; nothing when it is none.
    void remove(NSManagedObject& member);
    void set(std::span<NSManagedObject* const> members);

private:
    ToManySet* set_;
};

/// The live, typed set that a record's `xSet()` gives. A light handle: copy it freely, keep it no longer than the
/// record.
///
///     for (OVNote* note : tag.notesSet())
///         titles.push_back(note->title());
template <typename Record> class NSManagedObjectSet {
public:
    /// The members as the store knows them, without their class.
    using Members = std::vector<NSManagedObject*>;
    /// Goes through the members in order; good until a member comes or goes.
    class Iterator {
    public:
        /// What the standard library asks of an iterator.
        using iterator_category = std::forward_iterator_tag;
        using difference_type = std::ptrdiff_t;
        using value_type = Record*;
        using pointer = Record* const*;
        using reference = Record*;

        Iterator() = default;
        /// For `begin` and `end`.
        explicit Iterator(Members::const_iterator place) : place_(place) { }
        /// The member that it stands at.
        Record* operator*() const { return static_cast<Record*>(*place_); }
        /// To the next one.
        Iterator& operator++()
        {
            ++place_;
            return *this;
        }
        /// To the next one; gives where it stood.
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

    explicit NSManagedObjectSet(ToManySet& set) noexcept : set_(set) { }

    /// The members themselves. Where the body fetches or changes members, walk `allObjects()`.
    Iterator begin() const { return Iterator(set_.members().begin()); }
    Iterator end() const { return Iterator(set_.members().end()); }

    void addObject(Record& record) { set_.add(record); }
    void removeObject(Record& record) { set_.remove(record); }
    bool containsObject(const Record& record) const { return set_.contains(record); }
    std::size_t count() const { return set_.count(); }
    bool empty() const { return count() == 0; }
    /// A copy, which members that come and go do not touch.
    std::vector<Record*> allObjects() const
    {
        std::vector<Record*> records;
        const auto& members = set_.members();
        records.reserve(members.size());
        for (NSManagedObject* member : members)
            records.push_back(static_cast<Record*>(member));
        return records;
    }
    /// Makes these the members; writes the difference only.
    void setObjects(const std::vector<Record*>& records)
    {
        const std::vector<NSManagedObject*> members(records.begin(), records.end());
        set_.set(members);
    }
    void removeAllObjects() { set_.set({}); }

private:
    UntypedManagedObjectSet set_;
};

} // namespace tarn
