#include "tarnmodel/backup/snapshot/BackupRun.h"
#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/ArchiveContents.h"
#include "tarnmodel/backup/archive/ArchiveWriter.h"
#include "tarnmodel/backup/archive/ManifestText.h"
#include "tarnmodel/backup/archive/StagedFile.h"
#include "tarnmodel/backup/archive/StoredRecord.h"
#include "tarnmodel/backup/archive/UnfinishedArchive.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/StoreFileCopy.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <algorithm>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPage = 500;
constexpr std::string_view kFileEntity = "OVNoteFile";

std::string textOf(const NSManagedObject& record, std::string_view key)
{
    if (!record.entity().attributeNamed(key))
        return {};
    const Value value = record.storedValueForKey(key);
    return value.kind() == Value::Kind::String ? value.asString() : std::string();
}

std::string areaOf(const NSManagedObject& record)
{
    const bool isImage = record.entity().name() == "OVNoteImage";
    return std::string(OVNoteLocalFileDirectoryName) + "/"
        + std::string(isImage ? OVNoteImageDirectoryName : OVNoteGenericFileDirectoryName);
}

/// A component of a name in the archive.
std::string withoutSlashes(std::string text)
{
    std::ranges::replace(text, '/', '_');
    return text;
}

} // namespace

BackupRun::BackupRun(const fs::path& store, fs::path file, const BackupOptions& options)
    : file_(std::move(file)), options_(options)
{
    findModel(store);
    manifest_.creationDate = now();
    takeSnapshot(store);
}

void BackupRun::findModel(const fs::path& store)
{
    NSError error;
    const auto metadata = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(
        StoreType::SQLite, store, &error, options_.whileWaiting);
    if (!metadata)
        throw BackupFailure(error);
    manifest_.modelVersion = NSPersistentStoreCoordinator::modelVersionOfStoreMetadata(*metadata);
    // A model without the classes of its records: what is stored is what is wanted, of any version alike.
    if (const auto url = OVManagedObjectModel::modelURLForVersion(manifest_.modelVersion))
        model_ = NSManagedObjectModel::modelWithContentsOfFile(*url, &error);
    if (!model_ || !NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*model_, *metadata))
        throw BackupFailure(NSError(TarnStoreErrorDomain, StoreErrorIncompatible,
            store.string() + " is of a version that this program does not know"));
}

void BackupRun::takeSnapshot(const fs::path& store)
{
    std::optional<BackupFailure> failure;
    const auto takeFiles = [&] {
        try {
            files_.emplace(scratch_.url() / "files", manifest_.storeUUID);
            companions_.emplace(scratch_.url() / "companions", options_.companions);
            return true;
        } catch (const BackupFailure& caught) {
            failure = caught;
            return false;
        }
    };
    const auto metadata = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, store);
    if (metadata && metadata->contains("storeUUID"))
        manifest_.storeUUID = metadata->at("storeUUID");
    orThrow([&](NSError* error) {
        const bool isCopied
            = copyStoreFile(store, scratch_.url() / "store.sqlite", takeFiles, options_.whileWaiting, error);
        if (failure)
            throw BackupFailure(*failure);
        return isCopied;
    });
}

BackupManifest BackupRun::run()
{
    stageCompanions();
    writeRecords();
    hashFiles();
    manifestText_ = textOfManifest(manifest_);
    UnfinishedArchive unfinished(file_);
    writeArchive(unfinished);
    unfinished.synchronize();
    readBack(unfinished);
    unfinished.finish(options_.replacesFile);
    return manifest_;
}

void BackupRun::advance(std::uint64_t bytes)
{
    done_ += bytes;
    if (options_.progress && !options_.progress(std::min(done_, total_), total_))
        throw BackupFailure(BackupErrorCancelled, "cancelled");
}

// Records -------------------------------------------------------------------------------------------------------------

void BackupRun::writeRecords()
{
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(model_);
    orThrow([&](NSError* error) {
        return coordinator->addPersistentStoreWithType(
                   StoreType::SQLite, scratch_.url() / "store.sqlite", {.createIfMissing = false}, error)
            != nullptr;
    });
    NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    context.setPersistentStoreCoordinator(coordinator);
    context.performBlockAndWait([&] {
        for (const NSEntityDescription* entity : backedUpEntities(*model_))
            writeRecordsOf(*entity, context);
    });
}

void BackupRun::writeRecordsOf(const NSEntityDescription& entity, NSManagedObjectContext& context)
{
    NSFetchRequest request(entity);
    request.includesSubentities = false;
    request.fetchLimit = kPage;
    const bool isFile = entity.rootEntity().name() == kFileEntity;
    StagedWriter writer(scratch_.url() / (entity.name() + std::string(kRecordExtension)));
    std::uint64_t count = 0;
    for (std::size_t fetched = kPage; fetched == kPage; request.fetchOffset += kPage) {
        NSError error;
        const auto records = context.fetch(request, &error);
        if (!records)
            throw BackupFailure(error);
        for (const NSManagedObject* record : *records) {
            writer.write(lineOfRecord(*record) + "\n");
            if (isFile)
                noteFileOf(*record);
        }
        fetched = records->size();
        count += fetched;
        advance(0);
        context.reset();
    }
    writer.finish();
    manifest_.recordCounts[entity.name()] = count;
    if (count > 0)
        stage(writer.url(), std::string(kRecordFolder) + entity.name() + std::string(kRecordExtension), writer.size());
}

/// Before the files, so that they lie before them in the archive: what is behind a damaged place cannot be had.
void BackupRun::stageCompanions()
{
    for (const auto& [companion, copy] : companions_->copies()) {
        if (companion->prepare)
            companion->prepare(copy);
        std::error_code failure;
        const std::uint64_t size = fs::file_size(copy, failure);
        stage(copy, std::string(kCompanionFolder) + companion->name, failure ? 0 : size);
    }
}

// Files ---------------------------------------------------------------------------------------------------------------

void BackupRun::noteFileOf(const NSManagedObject& record)
{
    const std::string identifier = textOf(record, "uniqueIdentifier");
    const std::string filename = textOf(record, "filename");
    const auto item = files_->itemOfRecord(areaOf(record), identifier, filename);
    if (!item || identifier.empty()) {
        manifest_.missingFiles.push_back({identifier, filename});
        return;
    }
    stageItem(*item, std::string(kFileFolder) + withoutSlashes(identifier) + "/" + item->filename().native());
    ++manifest_.fileCount;
}

void BackupRun::stageItem(const fs::path& item, const std::string& name)
{
    std::error_code failure;
    if (!fs::is_directory(fs::symlink_status(item, failure))) {
        const std::uint64_t size = fs::file_size(item, failure);
        stage(item, name, failure ? 0 : size);
        manifest_.fileBytes += failure ? 0 : size;
        return;
    }
    std::vector<fs::path> items;
    for (fs::directory_iterator entry(item, failure), end; !failure && entry != end; entry.increment(failure))
        items.push_back(entry->path());
    std::ranges::sort(items);
    if (items.empty())
        stage({}, name + "/", 0);
    for (const fs::path& inner : items)
        stageItem(inner, name + "/" + inner.filename().native());
}

void BackupRun::stage(const fs::path& file, const std::string& name, std::uint64_t size)
{
    manifest_.members.push_back({name, size, {}});
    staged_.push_back(file);
    // Read for its hash, written, and read back.
    total_ += 3 * size;
}

void BackupRun::hashFiles()
{
    // What is small, and without which nothing else is of use, comes first.
    for (std::size_t index = 0; index < staged_.size(); ++index) {
        BackupHash hash;
        std::uint64_t size = 0;
        readStagedFile(staged_[index], [&](std::span<const std::byte> bytes) {
            hash.add(bytes);
            size += bytes.size();
            advance(bytes.size());
        });
        manifest_.members[index].hash = hash.hexadecimal();
        manifest_.members[index].size = size;
    }
    std::vector<std::size_t> order(staged_.size());
    std::ranges::generate(order, [next = std::size_t(0)]() mutable { return next++; });
    std::stable_partition(order.begin(), order.end(),
        [&](std::size_t index) { return manifest_.members[index].name.starts_with(kRecordFolder); });
    std::vector<BackupManifest::Member> members;
    std::vector<fs::path> staged;
    for (const std::size_t index : order) {
        members.push_back(std::move(manifest_.members[index]));
        staged.push_back(std::move(staged_[index]));
    }
    manifest_.members = std::move(members);
    staged_ = std::move(staged);
}

// The archive ---------------------------------------------------------------------------------------------------------

void BackupRun::writeArchive(UnfinishedArchive& unfinished)
{
    const bool isAscii = std::ranges::all_of(manifest_.members, [](const BackupManifest::Member& member) {
        return std::ranges::all_of(member.name, [](unsigned char character) { return character < 0x80; });
    });
    ArchiveWriter writer(unfinished.descriptor(), file_, manifest_.creationDate,
        isAscii ? ArchiveWriter::Names::Ascii : ArchiveWriter::Names::Bytes);
    const auto manifestBytes = std::as_bytes(std::span(manifestText_));
    writer.addMember(std::string(kManifestName), manifestBytes.size(),
        [&](const ArchiveWriter::Sink& sink) { sink(manifestBytes); });
    for (std::size_t index = 0; index < staged_.size(); ++index) {
        const BackupManifest::Member& member = manifest_.members[index];
        writer.addMember(member.name, member.size, [&](const ArchiveWriter::Sink& sink) {
            readStagedFile(staged_[index], [&](std::span<const std::byte> bytes) {
                sink(bytes);
                advance(bytes.size());
            });
        });
    }
    BackupHash hash;
    hash.add(manifestBytes);
    writer.finish(manifestBytes.size(), hash.digest());
}

/// What was decoded and compared counts as made, not what was written.
void BackupRun::readBack(const UnfinishedArchive& unfinished)
{
    class Checker final : public ArchiveContents::Taker {
    public:
        bool begin(const BackupManifest::Member&) override { return false; }
        void take(std::span<const std::byte>) override { }
        void end(bool) override { }
    } checker;
    const auto goesOn = [this](std::uint64_t, std::uint64_t) { return !options_.progress || (advance(0), true); };
    const BackupLimits all{.members = SIZE_MAX,
        .bytes = UINT64_MAX,
        .manifestBytes = UINT64_MAX,
        .recordBytes = UINT64_MAX,
        .ratio = UINT64_MAX,
        .ratioFreeBytes = UINT64_MAX};
    ArchiveContents contents(unfinished.url(), all, ArchiveContents::Damage::Refused, goesOn);
    contents.readMembers(checker);
    if (textOfManifest(contents.manifest()) != manifestText_)
        throw BackupFailure(BackupErrorDamaged, file_.string() + " does not read back as it was written");
}

} // namespace tarn
