#include "tools/tarn/import/record/BackedUpRecord.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/import/record/ImportRecord.h"
#include "tools/tarn/import/record/RecordSettling.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kNotesOfOneQuestion = 500;
constexpr const char* kRecordOfImports = "the record of imports";

/// Those of the notes that are in the store.
std::set<std::string> notesInStore(const std::vector<std::string>& identifiers, StoreSession& session)
{
    std::set<std::string> there;
    for (std::size_t from = 0; from < identifiers.size(); from += kNotesOfOneQuestion) {
        const auto begin = identifiers.begin() + static_cast<std::ptrdiff_t>(from);
        const std::size_t count = std::min(kNotesOfOneQuestion, identifiers.size() - from);
        const std::vector<std::string> some(begin, begin + static_cast<std::ptrdiff_t>(count));
        for (const OVNote* note : OVNote::notesWithUUIDs(some, {}, session.context()))
            there.insert(note->uniqueIdentifier().value_or(""));
        session.context().reset();
    }
    return there;
}

} // namespace

// An import announces a batch and saves it with the store locked, and confirms it afterwards. A backup copies both
// files under that lock: so its record says what its store has, or announces more, of which a store can be asked. One
// copied before the store would not know the notes of a batch that came between, and importing the folder would make
// them twice; one copied behind it could have confirmed notes that the store has not got, which then count as deleted.
BackupCompanion companionOfImportRecord(StoreSession& session)
{
    const auto forgetProtectedNotes = [&session](const fs::path& copy) {
        try {
            ImportRecord record(ImportRecord::Place{copy});
            if (forgetProtectedTexts(record, session))
                record.finish();
        } catch (const CommandFailure& failure) {
            // What a later version wrote is for a later version to read.
            if (failure.code() != ExitCode::NeedsMigration)
                throw;
        }
    };
    return {.name = std::string(ImportRecord::nameInBackups),
        .file = ImportRecord::pathForDatabase(session.database()),
        .prepare = forgetProtectedNotes};
}

std::function<void(const std::string&, const fs::path&)> RestoredRecord::taker()
{
    return [this](const std::string& name, const fs::path& file) {
        if (name != ImportRecord::nameInBackups)
            return;
        isTaken_ = true;
        try {
            take(file);
        } catch (...) {
            failure_ = std::current_exception();
        }
    };
}

void RestoredRecord::take(const fs::path& file)
{
    std::optional<ImportRecord> restored;
    try {
        restored.emplace(ImportRecord::Place{file});
    } catch (const CommandFailure& failure) {
        if (failure.code() != ExitCode::NeedsMigration)
            throw;
        omission_ = {kRecordOfImports, "a later version of tarn wrote it; it was left out"};
        isTaken_ = false;
        return;
    }
    if (restored->isDamaged())
        omission_ = {kRecordOfImports, "damaged: it was read up to the damage"};
    ImportRecord own(session_.database());
    settleRecord(own, session_);
    settleRecord(*restored, session_);
    // A note that is missing was deleted before the backup was made, and importing its file again is not to bring it
    // back. Of another store's files that cannot be said, nor where notes were damaged.
    const bool takesAll = own.isEmpty() && !isSalvage_;
    own.takeFrom(*restored, [&](const std::vector<std::string>& notes) {
        return takesAll ? std::set(notes.begin(), notes.end()) : notesInStore(notes, session_);
    });
    own.finish();
}

void RestoredRecord::finish()
{
    try {
        if (failure_)
            std::rethrow_exception(failure_);
        if (isTaken_)
            return;
        ImportRecord own(session_.database());
        settleRecord(own, session_);
        own.finish();
    } catch (const CommandFailure& failure) {
        throw CommandFailure(failure.code(),
            std::string("the backup was restored, but not ") + kRecordOfImports + ": " + failure.what()
                + "; the same restore completes it");
    }
}

} // namespace tarn
