#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tarn {

/// What the sets of all record classes share; see `NSManagedObjectSet`.
class UntypedManagedObjectSet {
public:
    /// For `NSManagedObjectSet`.
    explicit UntypedManagedObjectSet(ToManySet& set) noexcept : set_(&set) { }

    /// All members: stored ones by primary key, then added ones in order. Loads the set; good until a member comes or
    /// goes.
    const std::vector<NSManagedObject*>& members() const;
    /// How many members; without loading them where it can.
    std::size_t count() const;
    /// Whether it is a member; without loading the others where it can.
    bool contains(const NSManagedObject& member) const;
    /// Puts the member behind the others; nothing when it is one.
    void add(NSManagedObject& member);
    /// Takes the member out; nothing when it is none.
    void remove(NSManagedObject& member);
    /// Makes these the members; writes the difference only.
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

    /// For generated accessors.
    explicit NSManagedObjectSet(ToManySet& set) noexcept : set_(set) { }

    /// The members themselves. Where the body fetches or changes members, walk `allObjects()`.
    Iterator begin() const { return Iterator(set_.members().begin()); }
    /// Behind the last member.
    Iterator end() const { return Iterator(set_.members().end()); }

    /// Adds the record, and this record at the other end; nothing when it is a member.
    void addObject(Record& record) { set_.add(record); }
    /// Takes the record out, and this record at the other end; nothing when it is no member.
    void removeObject(Record& record) { set_.remove(record); }
    /// Whether the record is a member; without loading the others where it can.
    bool containsObject(const Record& record) const { return set_.contains(record); }
    /// How many members; without loading them where it can.
    std::size_t count() const { return set_.count(); }
    /// Whether there is none.
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
    /// Takes out all members.
    void removeAllObjects() { set_.set({}); }

private:
    UntypedManagedObjectSet set_;
};

} // namespace tarn
