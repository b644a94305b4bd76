#pragma once

#include "tarnmodel/backup/BackupManifest.h"
#include "tarnmodel/backup/StoreBackup.h"
#include "tarnmodel/backup/archive/BackupHash.h"
#include "tarnmodel/backup/archive/BackupScratch.h"
#include "tarnmodel/backup/snapshot/CompanionSnapshot.h"
#include "tarnmodel/backup/snapshot/FileSnapshot.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

class ArchiveWriter;
class NSEntityDescription;
class NSManagedObject;
class NSManagedObjectContext;
class NSManagedObjectModel;
class UnfinishedArchive;

/// One backup on its way into a file. What fails throws a `BackupFailure`.
class BackupRun {
public:
    BackupRun(const std::filesystem::path& store, std::filesystem::path file, const BackupOptions& options);

    BackupManifest run();

private:
    void findModel(const std::filesystem::path& store);
    void takeSnapshot(const std::filesystem::path& store);
    void stageCompanions();
    void writeRecords();
    void writeRecordsOf(const NSEntityDescription& entity, NSManagedObjectContext& context);
    void noteFileOf(const NSManagedObject& record);
    void stageItem(const std::filesystem::path& item, const std::string& name);
    void stage(const std::filesystem::path& file, const std::string& name, std::uint64_t size);
    void hashFiles();
    void writeArchive(UnfinishedArchive& unfinished);
    void readBack(const UnfinishedArchive& unfinished);
    void advance(std::uint64_t bytes);

    std::filesystem::path file_;
    const BackupOptions& options_;
    BackupScratch scratch_;
    std::shared_ptr<NSManagedObjectModel> model_;
    std::optional<FileSnapshot> files_;
    std::optional<CompanionSnapshot> companions_;
    BackupManifest manifest_;
    std::vector<std::filesystem::path> staged_; ///< the file of each member of the manifest
    std::string manifestText_;
    std::uint64_t done_ = 0;
    std::uint64_t total_ = 0;
};

} // namespace tarn
