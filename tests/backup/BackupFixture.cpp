#include "tests/backup/BackupFixture.h"

#include "tarnmodel/backup/archive/StoredRecord.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/store/BackupMigration.h"
#include "tarnmodel/sync/TolVectorClock.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

namespace tarn {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void writeBytes(const fs::path& file, std::string_view bytes)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

bool bringForward(const fs::path& store, NSError* error)
{
    return migrateRecordsOfBackup(store, error);
}

namespace {

std::string nameOf(const NSManagedObject& record)
{
    const Value identifier = record.storedValueForKey("uniqueIdentifier");
    return record.entity().name() + " " + (identifier.isNil() ? "-" : identifier.asString());
}

std::string textOf(const Value& value)
{
    std::ostringstream text;
    switch (value.kind()) {
    case Value::Kind::Nil:
        return "-";
    case Value::Kind::Bool:
        return value.asBool() ? "true" : "false";
    case Value::Kind::Integer:
        return std::to_string(value.asInteger());
    case Value::Kind::Double:
        text << std::hexfloat << value.asDouble();
        return text.str();
    case Value::Kind::String:
        return value.asString();
    case Value::Kind::Date:
        return std::to_string(value.asDate().microsecondsSince1970());
    case Value::Kind::Data:
        return std::string(value.asData().text());
    case Value::Kind::Object:
        return nameOf(static_cast<const NSManagedObject&>(value.asObject()));
    case Value::Kind::Array:
        break;
    }
    std::vector<std::string> names;
    for (const Value& member : value.asArray())
        names.push_back(textOf(member));
    std::ranges::sort(names);
    for (const std::string& name : names)
        text << name << ", ";
    return text.str();
}

} // namespace

std::map<std::string, std::string> contentsOfStore(NSManagedObjectContext& context)
{
    std::map<std::string, std::string> contents;
    for (const NSEntityDescription* entity : backedUpEntities(context.managedObjectModel())) {
        NSFetchRequest request(*entity);
        request.includesSubentities = false;
        for (const NSManagedObject* record : context.executeFetchRequest(request)) {
            std::string text;
            for (const auto* attribute : backedUpAttributes(*entity))
                text += attribute->name() + "=" + textOf(record->storedValueForKey(attribute->name())) + "\n";
            for (const auto* relationship : backedUpRelationships(*entity))
                text += relationship->name() + ": " + textOf(record->storedValueForKey(relationship->name())) + "\n";
            // Records without an identifier are told apart by what they hold.
            const bool isNamed = !record->storedValueForKey("uniqueIdentifier").isNil();
            contents[isNamed ? nameOf(*record) : text] += text;
        }
    }
    return contents;
}

std::map<std::string, std::string> filesBelow(const fs::path& root)
{
    std::map<std::string, std::string> files;
    std::error_code failure;
    for (fs::recursive_directory_iterator entry(root / "Local Files", failure), end; entry != end; ++entry)
        if (entry->is_regular_file())
            files[entry->path().lexically_relative(root).string()] = bytesOf(entry->path());
    return files;
}

BackupFixture::BackupFixture() : TestStore(StoreType::SQLite), place_(filesRoot() / "backups")
{
    fs::create_directories(place_);
}

BackupFixture::~BackupFixture() = default;

void BackupFixture::TearDown()
{
    EXPECT_TRUE(problems().empty());
    if (other_) {
        EXPECT_TRUE(other_->problems().empty());
    }
    other_.reset();
    EXPECT_THAT(takeLog(), testing::IsEmpty());
}

OVNoteFile& BackupFixture::attach(OVNote& note, std::string_view name, std::string_view bytes)
{
    const fs::path file = filesRoot() / "scratch" / name;
    writeBytes(file, bytes);
    OVNoteFile* attached = note.addAttachmentFromFileURL(file);
    EXPECT_NE(attached, nullptr);
    return *attached;
}

void BackupFixture::fillNotebook()
{
    OVNote& shopping
        = note("# Shopping\n\n#home/kitchen\n\n- [ ] milk\n[receipt](receipt.pdf) ![](shelf.png)\n[[Trip]]");
    OVNote& trip = note("# Trip\n\n#rome #home\n\n[[Shopping]] and [[Nowhere yet]]");
    attach(shopping, "receipt.pdf", std::string("%PDF\0\xFF bytes", 12));
    attach(shopping, "shelf.png", "no picture at all");
    attach(trip, "überraschung (2).txt", "");
    trip.pinInTag(tag("rome"));
    OVNote& secret = note("# Secret");
    auto& password = insert<OVPassword>();
    password.setEncryptedData(NSData::fromText("verifier"));
    secret.updatePrimitiveText(std::nullopt);
    secret.setEncryptionState({true, NSData::fromText("sealed text"), now(), "KEY", &password});
    note("# Old").trash();
    image(trip, "elsewhere.jpg").setUploadedValue(true);
    save();
    // What follows from a text follows from it whole.
    shopping.updateNoteWithText(*shopping.text() + "\n");
    save();
}

OVNote& BackupFixture::noteOf(NSManagedObjectContext& context, std::string_view title)
{
    OVNote* note = OVNote::noteWithTitle(title, context);
    EXPECT_NE(note, nullptr) << title;
    return *note;
}

void BackupFixture::makeUnrelated(OVNote& note)
{
    TolVectorClock clock;
    clock.updateClockValueForID("another device");
    note.setVectorClock(clock.data());
}

BackupManifest BackupFixture::backUp(const BackupOptions& options)
{
    NSError error;
    const auto manifest = StoreBackup(storeFile()).writeToURL(archive(), options, &error);
    EXPECT_TRUE(manifest) << error;
    return manifest.value_or(BackupManifest());
}

TestStore& BackupFixture::otherStore()
{
    OVLocalFileManager::setApplicationPersistentDataTestURL(otherRoot());
    if (!other_) {
        fs::create_directories(otherRoot());
        other_ = std::make_unique<TestStore>(StoreType::SQLite);
        other_->open();
    }
    return *other_;
}

void BackupFixture::useFirstFolder()
{
    OVLocalFileManager::setApplicationPersistentDataTestURL(filesRoot());
}

BackupRestoration BackupFixture::restore(TestStore& store, const BackupReadOptions& options)
{
    BackupReadOptions complete = options;
    complete.migrate = bringForward;
    NSError error;
    const auto restoration = BackupRestore(archive()).restoreIntoContext(store.context(), complete, &error);
    EXPECT_TRUE(restoration) << error;
    return restoration.value_or(BackupRestoration());
}

NSError BackupFixture::errorOfRestore(TestStore& store, const BackupReadOptions& options)
{
    NSError error;
    EXPECT_FALSE(BackupRestore(archive()).restoreIntoContext(store.context(), options, &error));
    return error;
}

} // namespace tarn
