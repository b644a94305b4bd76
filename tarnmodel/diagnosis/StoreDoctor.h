#pragma once

#include "tarnmodel/diagnosis/StoreFinding.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace tarn {

class NSManagedObjectContext;
class NSPersistentStore;
class OVNote;

/// Finds out whether a store is sound, and repairs what can be: its file, the index of its texts, what notes and tags
/// derive from texts, and the files of attachments.
///
/// Works in a context on the store which is the doctor's alone, on that one's queue: it is reset again and again, and
/// must have no unsaved changes. Protected texts are not read, so what follows from them is taken on trust.
///
///     StoreDoctor doctor(context);
///     const auto examination = doctor.examine();
///     if (examination && !examination->isSound() && !examination->fileIsDamaged())
///         doctor.repair(*examination);
class StoreDoctor {
public:
    /// What the doctor does, or did when it failed.
    enum class Step : std::uint8_t {
        CheckingFile,
        CheckingSearchIndex,
        ReadingRecords,
        SavingRecords,
        RepairingSearchIndex
    };
    /// How many findings of each check `examine` keeps unless it is told otherwise.
    static constexpr std::size_t findingsKeptByDefault = 20;

    /// Raises `NSInvalidArgumentException` for a context that has unsaved changes or a parent, or no store.
    explicit StoreDoctor(NSManagedObjectContext& context);

    /// Examines all; of each check at most `findingsKept` findings are kept, and all counted. The index of a damaged
    /// file is not looked at. Files are, where the store is the application's own. None and an error when something
    /// cannot be read.
    std::optional<StoreExamination> examine(NSError* error = nullptr, std::size_t findingsKept = findingsKeptByDefault);
    /// Gives tags the names that texts can give them, derives the notes anew whose fields were found wrong, and brings
    /// the index of texts in step. Texts and dates of notes stay as they are; so do links of other notes to a wrong
    /// title. Files get their attachments' names, attachments learn what lies on disk, and what is nobody's goes to
    /// "Lost and Found": no bytes are deleted but what was never whole, and clear ones of what is protected: these go,
    /// as long as the encrypted ones are there. None and an error when something cannot be read
    /// or saved; what was saved before stays repaired. A damaged file is refused with `StoreErrorCorrupt`, since
    /// writing could make it worse.
    std::optional<StoreRepairs> repair(const StoreExamination& examination, NSError* error = nullptr);

    /// What it is at; after a failure what it was at.
    Step step() const noexcept { return step_; }

private:
    void examineAll();
    void examineFile();
    void examineSearchIndex();
    void examineNotes();
    void examineNote(const OVNote& note);
    void examineFiles();
    void add(StoreFinding finding);
    void addAll(StoreFinding::Kind kind, std::vector<std::string> descriptions);
    std::size_t repairTags();
    std::size_t repairNotes(std::span<const NSManagedObjectID> notes);
    std::size_t deriveNotes(std::span<const NSManagedObjectID> notes);
    std::size_t repairSearchIndex();
    std::size_t repairFiles(const StoreExamination& examination);
    std::size_t repairProtection(const StoreExamination& examination);
    void save(const std::function<void()>& work);

    NSManagedObjectContext& context_;
    NSPersistentStore& store_;
    Step step_ = Step::CheckingFile;
    std::size_t findingsKept_ = 0;
    StoreExamination examination_;
    std::set<std::string> tagKeysInTexts_;
};

} // namespace tarn
