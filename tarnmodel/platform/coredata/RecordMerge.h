#pragma once

#include "tarnmodel/platform/coredata/PropertyValues.h"

#include <string_view>

namespace tarn {

class NSManagedObject;

/// The two sides of a merge: what is stored, and what a context has not saved.
enum class MergeSide : std::uint8_t { Store, Context };

/// What two writers made of one record, and which side kept what; told to the record by `awakeFromMerge`.
///
/// Values are those that are stored, never the clear text of protected fields. Valid during the call.
class RecordMerge {
public:
    /// For merges of a context.
    RecordMerge(NSManagedObject& record, PropertyValues former, PropertyValues ofContext, PropertyValues ofStore)
        : record_(&record), former_(std::move(former)), ofContext_(std::move(ofContext)), ofStore_(std::move(ofStore))
    { }

    /// The record that was merged.
    NSManagedObject& record() const noexcept { return *record_; }
    /// Whether both sides changed the attribute, or others of its group, so that one of them had to give way.
    bool isDecided(std::string_view key) const;
    /// Who kept the attribute, where it was decided.
    MergeSide winner(std::string_view key) const;
    Value formerValue(std::string_view key) const; ///< before either side changed it; nil where nobody had read it
    /// The value of that side; nil for none.
    Value valueOfContext(std::string_view key) const;
    Value valueOfStore(std::string_view key) const;
    Value losingValue(std::string_view key) const;
    /// The record holds, in another way, what the losing side did to this attribute and to those of its group: nothing
    /// of it is lost.
    void redoneInWinner(std::string_view key);

private:
    friend class MergeConflicts;
    PropertyMask bitOf(std::string_view key) const;
    Value value(const PropertyValues& values, std::string_view key) const;

    NSManagedObject* record_;
    PropertyValues former_;
    PropertyValues ofContext_;
    PropertyValues ofStore_;
    PropertyMask decided_ = 0;
    PropertyMask keptByContext_ = 0; ///< of `decided_`
    PropertyMask lost_ = 0;          ///< what the losing side had changed, and differs from what was kept
};

} // namespace tarn
