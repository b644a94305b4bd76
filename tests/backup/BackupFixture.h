#pragma once

#include "tarnmodel/backup/BackupRestore.h"
#include "tarnmodel/backup/StoreBackup.h"
#include "tests/support/StoreFixture.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Every record that a backup holds, by entity and identifier, as text: attributes, and relationships by identifiers.
std::map<std::string, std::string> contentsOfStore(NSManagedObjectContext& context);
/// The bytes of every file of an attachment, by its place in the data folder.
std::map<std::string, std::string> filesBelow(const std::filesystem::path& root);
/// Brings a store of an older version forward.
bool bringForward(const std::filesystem::path& store, NSError* error);
/// The bytes of a file, and the other way.
std::string bytesOf(const std::filesystem::path& file);
void writeBytes(const std::filesystem::path& file, std::string_view bytes);

/// A notebook in a store on disk, a place for backups of it, and a second place to restore to.
class BackupFixture : public testing::Test, protected StillWorld, protected TestStore {
protected:
    BackupFixture();
    ~BackupFixture() override;
    void SetUp() override { open(); }
    void TearDown() override;

    std::filesystem::path archive() const { return place_ / "notes, alle.tarnbackup"; }
    const std::filesystem::path& place() const { return place_; }
    /// Notes, tags, links, attachments of both kinds and a protected note; saved.
    void fillNotebook();
    OVNoteFile& attach(OVNote& note, std::string_view name, std::string_view bytes);
    OVNote& noteOf(NSManagedObjectContext& context, std::string_view title);
    /// Gives the note's state a past of its own, so that it neither descends from another one nor the other way.
    static void makeUnrelated(OVNote& note);

    BackupManifest backUp(const BackupOptions& options = {});
    /// A store of its own with a data folder of its own, which is the application's from then on.
    TestStore& otherStore();
    /// Goes on with the data folder of the first store.
    void useFirstFolder();
    std::filesystem::path otherRoot() const { return filesRoot() / "other"; }
    BackupRestoration restore(TestStore& store, const BackupReadOptions& options = {});
    NSError errorOfRestore(TestStore& store, const BackupReadOptions& options = {});

private:
    std::filesystem::path place_;
    std::unique_ptr<TestStore> other_;
};

} // namespace tarn
