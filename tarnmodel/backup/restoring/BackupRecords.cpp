#include "tarnmodel/backup/restoring/BackupRecords.h"
#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/StagedFile.h"
#include "tarnmodel/backup/archive/StoredRecord.h"
#include "tarnmodel/backup/restoring/BackupExtraction.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

namespace tarn {

namespace {

constexpr std::size_t kRecordsAtATime = 250;

std::shared_ptr<NSManagedObjectModel> modelOfVersion(const std::string& version)
{
    const auto url = OVManagedObjectModel::modelURLForVersion(version);
    if (!url)
        throw BackupFailure(
            BackupErrorNewer, "the backup is of the version \"" + version + "\", which this program does not know");
    std::shared_ptr<NSManagedObjectModel> model;
    orThrow([&](NSError* error) {
        model = NSManagedObjectModel::modelWithContentsOfFile(*url, error);
        return model != nullptr;
    });
    return model;
}

/// Nobody else reads a temporary store, and nobody wants it after a loss of power.
std::unique_ptr<NSManagedObjectContext> contextOnFile(
    const std::filesystem::path& file, const std::shared_ptr<NSManagedObjectModel>& model)
{
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(model);
    const StoreOptions options{.pragmas = {{"journal_mode", "DELETE"}, {"synchronous", "OFF"}}};
    orThrow([&](NSError* error) {
        return coordinator->addPersistentStoreWithType(StoreType::SQLite, file, options, error) != nullptr;
    });
    auto context = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    context->setPersistentStoreCoordinator(std::move(coordinator));
    return context;
}

/// Writes lines into a store.
class RecordFiller {
public:
    RecordFiller(NSManagedObjectContext& context, const std::function<void()>& madeSome)
        : context_(context), madeSome_(madeSome)
    { }

    void add(const NSEntityDescription& entity, std::string_view line)
    {
        NSManagedObject& record = context_.insertObject(entity);
        const auto find = [this](const NSEntityDescription& root, std::int64_t number) -> NSManagedObject* {
            const auto& known = identifiers_[&root];
            const auto found = known.find(number);
            return found == known.end() ? nullptr : context_.objectWithID(found->second);
        };
        unsaved_.emplace_back(readLineIntoRecord(line, record, find), &record);
        if (unsaved_.size() == kRecordsAtATime)
            save();
    }
    void save()
    {
        orThrow([this](NSError* error) { return context_.save(error); });
        for (const auto& [number, record] : unsaved_)
            if (!identifiers_[&record->entity().rootEntity()].emplace(number, record->objectID()).second)
                throw BackupFailure(BackupErrorDamaged, "the backup holds two records of one number");
        unsaved_.clear();
        context_.reset();
        madeSome_();
    }

private:
    NSManagedObjectContext& context_;
    const std::function<void()>& madeSome_;
    std::vector<std::pair<std::int64_t, NSManagedObject*>> unsaved_;
    std::map<const NSEntityDescription*, std::unordered_map<std::int64_t, NSManagedObjectID>> identifiers_;
};

std::vector<std::int64_t> numbersOf(const Value& related)
{
    const auto numberOf
        = [](const Value& value) { return static_cast<const NSManagedObject&>(value.asObject()).objectID().key(); };
    std::vector<std::int64_t> numbers;
    if (related.kind() == Value::Kind::Object)
        numbers.push_back(numberOf(related));
    if (related.kind() == Value::Kind::Array)
        for (const Value& value : related.asArray())
            numbers.push_back(numberOf(value));
    return numbers;
}

BackupRecord copyOf(const NSManagedObject& record)
{
    BackupRecord copy;
    copy.entityName = record.entity().name();
    copy.number = record.objectID().key();
    for (const NSAttributeDescription* attribute : backedUpAttributes(record.entity()))
        copy.attributes.emplace(attribute->name(), record.storedValueForKey(attribute->name()));
    for (const NSRelationshipDescription* relationship : backedUpRelationships(record.entity()))
        copy.related.emplace(relationship->name(), numbersOf(record.storedValueForKey(relationship->name())));
    return copy;
}

} // namespace

const Value& BackupRecord::attribute(std::string_view name) const
{
    static const Value none;
    const auto found = attributes.find(name);
    return found == attributes.end() ? none : found->second;
}

std::string BackupRecord::text(std::string_view name) const
{
    const Value& value = attribute(name);
    return value.kind() == Value::Kind::String ? value.asString() : std::string();
}

std::int64_t BackupRecord::toOne(std::string_view name) const
{
    const auto found = related.find(name);
    return found == related.end() || found->second.empty() ? 0 : found->second.front();
}

void BackupRecords::fill(const std::filesystem::path& file, const BackupExtraction& extraction,
    const std::string& modelVersion, std::uint64_t maximumLineLength, const std::function<void()>& madeSome)
{
    const auto model = modelOfVersion(modelVersion);
    const auto context = contextOnFile(file, model);
    context->performBlockAndWait([&] {
        RecordFiller filler(*context, madeSome);
        for (const NSEntityDescription* entity : backedUpEntities(*model)) {
            const auto lines = extraction.recordsOfEntity(entity->name());
            if (!lines)
                continue;
            readLinesOfStagedFile(*lines, maximumLineLength, [&](std::string_view line) { filler.add(*entity, line); });
            filler.save();
        }
    });
}

BackupRecords::BackupRecords(const std::filesystem::path& file)
{
    std::optional<std::string> version;
    orThrow([&](NSError* error) {
        version = OVManagedObjectModel::currentVersion(error);
        return version.has_value();
    });
    model_ = modelOfVersion(*version);
    context_ = contextOnFile(file, model_);
}

BackupRecords::~BackupRecords() = default;

void BackupRecords::forEachPage(
    std::string_view entityName, const std::function<void(const std::vector<BackupRecord>&)>& take)
{
    NSFetchRequest request(*model_->entityNamed(entityName));
    request.includesSubentities = false;
    request.fetchLimit = kRecordsAtATime;
    for (std::size_t fetched = kRecordsAtATime; fetched == kRecordsAtATime; request.fetchOffset += kRecordsAtATime) {
        std::vector<BackupRecord> page;
        NSError error;
        bool isRead = false;
        context_->performBlockAndWait([&] {
            const auto records = context_->fetch(request, &error);
            isRead = records.has_value();
            if (!isRead)
                return;
            for (const NSManagedObject* record : *records)
                page.push_back(copyOf(*record));
            context_->reset();
        });
        if (!isRead)
            throw BackupFailure(error);
        fetched = page.size();
        if (!page.empty())
            take(page);
    }
}

} // namespace tarn
