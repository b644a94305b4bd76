#include "tarnmodel/backup/restoring/BackupMerge.h"
#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace tarn {

void setStoredAttributes(const BackupRecord& from, NSManagedObject& record, std::span<const std::string_view> except)
{
    for (const auto& [name, value] : from.attributes) {
        if (std::ranges::find(except, std::string_view(name)) != except.end()
            || record.storedValueForKey(name) == value)
            continue;
        record.willChangeValueForKey(name);
        record.setPrimitiveValueForKey(name, value);
        record.didChangeValueForKey(name);
    }
}

bool hasStoredAttributes(const NSManagedObject& record, const BackupRecord& of)
{
    return std::ranges::all_of(of.attributes,
        [&](const auto& attribute) { return record.storedValueForKey(attribute.first) == attribute.second; });
}

BackupMerge::BackupMerge(BackupRecords& records, const BackupExtraction& extraction, NSManagedObjectContext& context,
    bool isResumed, const std::function<void()>& madeSome, BackupRestoration& restoration)
    : records_(records), extraction_(extraction), context_(context), isResumed_(isResumed), madeSome_(madeSome),
      restoration_(restoration)
{ }

void BackupMerge::run()
{
    NSError error;
    const auto count = context_.count(NSFetchRequest(OVNote::entityInManagedObjectContext(context_)), &error);
    if (!count)
        throw BackupFailure(error);
    wasEmpty_ = *count == 0;
    // Each behind those that its relationships lead to.
    records_.forEachPage("OVPassword", [this](const Page& page) { save([&] { mergePasswords(page); }); });
    records_.forEachPage("OVNoteTag", [this](const Page& page) { save([&] { mergeTags(page); }); });
    records_.forEachPage("OVNote", [this](const Page& page) { save([&] { mergeNotes(page); }); });
    for (const char* kind : {"OVNoteFile", "OVNoteImage", "OVNoteGenericFile"})
        records_.forEachPage(kind, [this](const Page& page) { save([&] { mergeFiles(page); }); });
    records_.forEachPage("OVNoteBackLink", [this](const Page& page) { save([&] { mergeLinks(page); }); });
    deriveNotes();
}

/// Under the lock of the store, so that it builds upon what others wrote. Nothing is left of it when it fails.
void BackupMerge::save(const std::function<void()>& work)
{
    const auto changeRecords = [&] {
        OVEncryptionCoreManager::performInManagedObjectContext(context_, work);
        hasWritten_ = hasWritten_ || context_.hasChanges();
    };
    orThrow([&](NSError* error) { return context_.performExclusive(changeRecords, error); });
    for (const auto& remember : afterSave_)
        remember();
    afterSave_.clear();
    metOnPage_.clear();
    context_.reset();
    madeSome_();
}

BackupMerge::Existing BackupMerge::existingRecords(std::string_view entityName, const Page& page)
{
    Value::Array identifiers;
    for (const BackupRecord& record : page)
        if (const Value& identifier = record.attribute("uniqueIdentifier"); !identifier.isNil())
            identifiers.push_back(identifier);
    NSFetchRequest request(*context_.managedObjectModel().entityNamed(entityName));
    request.predicate = NSPredicate::predicateWithFormat("uniqueIdentifier IN %@", std::move(identifiers));
    NSError error;
    const auto records = context_.fetch(request, &error);
    if (!records)
        throw BackupFailure(error);
    Existing existing;
    for (NSManagedObject* record : *records)
        existing.emplace(record->storedValueForKey("uniqueIdentifier").asString(), record);
    return existing;
}

std::vector<NSManagedObject*> BackupMerge::recordsWithoutIdentifier(const std::string& entityName)
{
    NSFetchRequest request(*context_.managedObjectModel().entityNamed(entityName));
    request.predicate = NSPredicate::predicateWithFormat("uniqueIdentifier == nil");
    NSError error;
    auto records = context_.fetch(request, &error);
    if (!records)
        throw BackupFailure(error);
    return std::move(*records);
}

/// A record without an identifier is the one that is just like it; so is one of several that share theirs.
NSManagedObject* BackupMerge::existingRecord(const Existing& existing, const BackupRecord& record)
{
    const bool isNamed = !record.attribute("uniqueIdentifier").isNil();
    std::vector<NSManagedObject*> candidates;
    if (isNamed) {
        const auto [first, last] = existing.equal_range(record.text("uniqueIdentifier"));
        std::transform(first, last, std::back_inserter(candidates), [](const auto& entry) { return entry.second; });
    } else {
        candidates = recordsWithoutIdentifier(record.entityName);
    }
    std::erase_if(candidates, [this](const NSManagedObject* candidate) {
        return metOnPage_.contains(candidate) || met_.contains(candidate->objectID());
    });
    auto found = std::ranges::find_if(
        candidates, [&](const NSManagedObject* candidate) { return hasStoredAttributes(*candidate, record); });
    if (found == candidates.end() && isNamed)
        found = candidates.begin();
    if (found == candidates.end())
        return nullptr;
    meet(**found);
    return *found;
}

void BackupMerge::meet(NSManagedObject& record)
{
    metOnPage_.insert(&record);
    afterSave_.emplace_back([this, &record] { met_.insert(record.objectID()); });
}

NSManagedObject& BackupMerge::insertRecord(const BackupRecord& record)
{
    NSManagedObject& inserted = context_.insertObject(record.entityName);
    setStoredAttributes(record, inserted);
    meet(inserted);
    return inserted;
}

NSManagedObject* BackupMerge::recordFor(
    const std::unordered_map<std::int64_t, NSManagedObjectID>& known, std::int64_t number)
{
    const auto found = known.find(number);
    return found == known.end() ? nullptr : context_.existingObjectWithID(found->second);
}

void BackupMerge::remember(
    std::unordered_map<std::int64_t, NSManagedObjectID>& known, std::int64_t number, NSManagedObject& record)
{
    afterSave_.emplace_back([&known, number, &record] { known[number] = record.objectID(); });
}

void BackupMerge::tell(const BackupRecord& record, std::string_view reason)
{
    std::string title = record.text(record.entityName == "OVNote" ? "title" : "filename");
    if (title.empty())
        title = record.text("uniqueIdentifier");
    restoration_.skipped.push_back({std::move(title), std::string(reason)});
}

namespace {

std::vector<std::string> keysOf(const Value& verifier)
{
    return verifier.kind() == Value::Kind::Data ? OVEncryptionCoreManager::namesOfKeys(verifier.asData())
                                                : std::vector<std::string>();
}

} // namespace

/// A row that has all keys of the backup's, and perhaps more or another password, is as good.
void BackupMerge::takeNoteOfKeys(const BackupRecord& record, const NSManagedObject& password)
{
    const Value& theirs = record.attribute("encryptedData");
    const Value ours = password.storedValueForKey("encryptedData");
    if (theirs == ours)
        return;
    const std::vector<std::string> here = keysOf(ours);
    const std::vector<std::string> there = keysOf(theirs);
    const std::size_t lostBefore = lostKeys_.size();
    std::ranges::copy_if(there, std::inserter(lostKeys_, lostKeys_.end()),
        [&](const std::string& key) { return std::ranges::find(here, key) == here.end(); });
    if (lostKeys_.size() > lostBefore || there.empty() || here.empty())
        tell(record,
            "the store has another state of this password, which stays; what the backup protects by a key that is not "
            "in it stays locked");
}

bool BackupMerge::isUnderLostKey(const BackupRecord& record) const
{
    const Value& sealed = record.attribute("encryptedData");
    if (lostKeys_.empty() || sealed.kind() != Value::Kind::Data)
        return false;
    const auto key = OVEncryptionCoreManager::nameOfKey(sealed.asData());
    return key && lostKeys_.contains(*key);
}

void BackupMerge::tellWhereLocked(const BackupRecord& record)
{
    if (isUnderLostKey(record))
        tell(record,
            "it is protected by a key that the store's state of the password has not got, and stays locked until that "
            "comes from the device where the keys were rotated");
}

void BackupMerge::mergePasswords(const Page& page)
{
    const Existing existing = existingRecords("OVPassword", page);
    for (const BackupRecord& record : page) {
        NSManagedObject* password = existingRecord(existing, record);
        if (password)
            takeNoteOfKeys(record, *password);
        remember(passwords_, record.number, password ? *password : insertRecord(record));
    }
}

/// Of one name there is one tag, whatever its identifier.
void BackupMerge::mergeTags(const Page& page)
{
    const Existing existing = existingRecords("OVNoteTag", page);
    for (const BackupRecord& record : page) {
        NSManagedObject* tag = existingRecord(existing, record);
        if (!tag && !wasEmpty_)
            tag = OVNoteTag::tagWithName(record.text("title"), context_);
        remember(tags_, record.number, tag ? *tag : insertRecord(record));
    }
}

} // namespace tarn
