#pragma once

#include "tarnmodel/platform/coredata/SaveParticipant.h"

#include <string_view>

namespace tarn {

class NSManagedObjectContext;

/// Value of a store's metadata that says whether its file was written anew since something in it was protected. Part of
/// the file format.
inline constexpr std::string_view StoreCompactionKey = "compaction";
/// It is to be: clear texts may lie in pages that were freed before free pages were wiped.
inline constexpr std::string_view StoreCompactionOwed = "owed";
/// It was.
inline constexpr std::string_view StoreCompactionDone = "done";

/// Writes down, once for each store, that its file is to be compacted: with the save that protects its first record, or
/// before it. One that is written down and not needed costs little.
class OwedCompaction final : public SaveParticipant {
public:
    /// A record of the context was protected.
    static void begin(NSManagedObjectContext& context);

    bool prepareForSave(NSError* error) override;
    void didSave(NSManagedObjectContext& context) override;
    void didSaveIntoParent(NSManagedObjectContext& parent) override;
    void didDropChanges() override;

private:
    explicit OwedCompaction(NSManagedObjectContext& context);
    static OwedCompaction& ofContext(NSManagedObjectContext& context);

    NSManagedObjectContext& context_; ///< which owns it
    bool isOwed_ = false;             ///< by unsaved changes
};

} // namespace tarn
