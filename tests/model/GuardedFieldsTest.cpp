// Every field that a password protects: what its accessors do without a manager, locked and unlocked.

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/support/BackwardsManager.h"
#include "tests/support/InvalidAccessor.h"
#include "tests/support/StoreFixture.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace tarn {
namespace {

struct GuardedField {
    std::string_view key;
    Value clear;
    Value kept;  ///< what the manager stores of it
    Value other; ///< another clear value
    Value (*read)(const NSManagedObject& record);
    void (*write)(NSManagedObject& record, const Value& value);

    bool isOfNote() const { return key == "text"; }
};

std::optional<std::string> textIn(const Value& value)
{
    return value.isNil() ? std::nullopt : std::optional(value.asString());
}

std::optional<std::int64_t> bytesOf(const Value& value)
{
    return value.isNil() ? std::nullopt : std::optional(value.asInteger());
}

const OVNote& asNote(const NSManagedObject& record)
{
    return static_cast<const OVNote&>(record);
}

const OVNoteFile& asFile(const NSManagedObject& record)
{
    return static_cast<const OVNoteFile&>(record);
}

OVNoteFile& asFile(NSManagedObject& record)
{
    return static_cast<OVNoteFile&>(record);
}

const std::array<GuardedField, 5>& guardedFields()
{
    using Record = NSManagedObject;
    static const std::array<GuardedField, 5> fields{
        GuardedField{"text", "abc", "cba", "other", [](const Record& note) { return Value(asNote(note).text()); },
            [](Record& note, const Value& value) { static_cast<OVNote&>(note).setText(textIn(value)); }},
        GuardedField{"filename", "a.pdf", "fdp.a", "b.txt",
            [](const Record& file) { return Value(asFile(file).filename()); },
            [](Record& file, const Value& value) { asFile(file).setFilename(textIn(value)); }},
        GuardedField{"normalizedFileExtension", "pdf", "fdp", "md",
            [](const Record& file) { return Value(asFile(file).normalizedFileExtension()); },
            [](Record& file, const Value& value) { asFile(file).setNormalizedFileExtension(textIn(value)); }},
        GuardedField{"fileSize", 7, -7, 8, [](const Record& file) { return Value(asFile(file).fileSize()); },
            [](Record& file, const Value& value) { asFile(file).setFileSize(bytesOf(value)); }},
        GuardedField{"searchText", "ab", "ba", "words",
            [](const Record& file) { return Value(asFile(file).searchText()); },
            [](Record& file, const Value& value) { asFile(file).setSearchText(textIn(value)); }},
    };
    return fields;
}

class GuardedFields : public StoreFixture {
protected:
    void TearDown() override
    {
        serve(nullptr);
        StoreFixture::TearDown();
    }
    void serve(OVEncryptionCoreManagerProtocol* manager)
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(manager, context());
    }
    NSManagedObject& recordWith(const GuardedField& field)
    {
        NSManagedObject* record = nullptr;
        if (field.isOfNote())
            record = &insert<OVNote>();
        else
            record = &insert<OVNoteGenericFile>();
        return *record;
    }
    NSManagedObject& protectedRecordWith(const GuardedField& field)
    {
        NSManagedObject& record = recordWith(field);
        record.setValueForKey("encrypted", true);
        return record;
    }
    /// That the field is read and written as it is stored, and that its observers hear of it.
    static void expectStored(NSManagedObject& record, const GuardedField& field)
    {
        int heard = 0;
        const auto observation = record.addObserver(field.key, [&](NSManagedObject&, std::string_view) { ++heard; });
        field.write(record, field.clear);
        EXPECT_EQ(heard, 1);
        EXPECT_EQ(record.storedValueForKey(field.key), field.clear);
        EXPECT_EQ(field.read(record), field.clear);
        EXPECT_EQ(record.valueForKey(field.key), field.clear);
        record.setValueForKey(field.key, field.other);
        EXPECT_EQ(heard, 2);
        EXPECT_EQ(field.read(record), field.other);
        EXPECT_EQ(record.storedValueForKey(field.key), field.other);
        field.write(record, Value());
        EXPECT_EQ(field.read(record), Value());
    }

    BackwardsManager manager_;
};
INSTANTIATE_TEST_SUITE_P(Stores, GuardedFields, everyStore(), storeName);

TEST_P(GuardedFields, WithoutAManagerAreWhatIsStored)
{
    for (const GuardedField& field : guardedFields()) {
        SCOPED_TRACE(field.key);
        expectStored(protectedRecordWith(field), field);
    }
}

TEST_P(GuardedFields, OfARecordThatIsNotProtectedAreWhatIsStored)
{
    serve(&manager_);
    for (const bool isLocked : {false, true})
        for (const GuardedField& field : guardedFields()) {
            SCOPED_TRACE(field.key);
            manager_.isLocked = isLocked;
            expectStored(recordWith(field), field);
        }
}

TEST_P(GuardedFields, AreWhatIsStoredWhileTheManagerIsOutOfSight)
{
    manager_.isLocked = true;
    serve(&manager_);
    OVEncryptionCoreManager::performInManagedObjectContext(context(), [&] {
        for (const GuardedField& field : guardedFields()) {
            SCOPED_TRACE(field.key);
            expectStored(protectedRecordWith(field), field);
        }
    });
}

TEST_P(GuardedFields, OfALockedRecordRaiseAndStay)
{
    manager_.isLocked = true;
    for (const GuardedField& field : guardedFields()) {
        SCOPED_TRACE(field.key);
        serve(nullptr);
        NSManagedObject& record = protectedRecordWith(field);
        field.write(record, field.clear);
        save();
        serve(&manager_);
        expectInvalidAccessor([&] { (void)field.read(record); });
        expectInvalidAccessor([&] { (void)record.valueForKey(field.key); });
        expectInvalidAccessor([&] { field.write(record, field.other); });
        expectInvalidAccessor([&] { field.write(record, Value()); });
        expectInvalidAccessor([&] { record.setValueForKey(field.key, field.other); });
        EXPECT_EQ(record.storedValueForKey(field.key), field.clear);
        EXPECT_FALSE(context().hasChanges());
    }
}

TEST_P(GuardedFields, OfAnOpenRecordGoThroughTheManager)
{
    serve(&manager_);
    for (const GuardedField& field : guardedFields()) {
        SCOPED_TRACE(field.key);
        NSManagedObject& record = protectedRecordWith(field);
        field.write(record, field.clear);
        EXPECT_EQ(record.storedValueForKey(field.key), field.kept);
        EXPECT_EQ(field.read(record), field.clear);
        EXPECT_EQ(record.valueForKey(field.key), field.clear);
        record.setValueForKey(field.key, field.other);
        EXPECT_NE(record.storedValueForKey(field.key), field.other);
        EXPECT_EQ(field.read(record), field.other);
        field.write(record, Value());
        EXPECT_EQ(field.read(record), Value());
    }
}

TEST_P(GuardedFields, AreNilWhereTheManagerCannotReadThem)
{
    serve(&manager_);
    for (const GuardedField& field : guardedFields()) {
        SCOPED_TRACE(field.key);
        manager_.isFailing = false;
        NSManagedObject& record = protectedRecordWith(field);
        field.write(record, field.clear);
        manager_.isFailing = true;
        EXPECT_EQ(field.read(record), Value());
        EXPECT_EQ(record.valueForKey(field.key), Value());
        EXPECT_EQ(record.storedValueForKey(field.key), field.kept);
    }
}

TEST_P(GuardedFields, OfScalarsAreGuardedToo)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    file.setEncryptedValue(true);
    serve(&manager_);
    file.setFileSizeValue(7);
    EXPECT_EQ(file.primitiveFileSize(), -7);
    EXPECT_EQ(file.fileSizeValue(), 7);
    manager_.isLocked = true;
    expectInvalidAccessor([&] { (void)file.fileSizeValue(); });
    expectInvalidAccessor([&] { file.setFileSizeValue(1); });
    EXPECT_EQ(file.primitiveFileSize(), -7);
}

TEST_P(GuardedFields, CoverThePlaceOfTheBytes)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    file.setFilename("a.pdf");
    const auto stored = file.primitiveFileURL();
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->filename(), "a.pdf");
    file.setEncryptedValue(true);
    EXPECT_EQ(file.fileURL(), stored) << "without a manager";
    serve(&manager_);
    EXPECT_EQ(file.fileURL(), BackwardsManager::decryptedFile);
    manager_.isFailing = true;
    EXPECT_EQ(file.fileURL(), std::nullopt);
    manager_.isLocked = true;
    expectInvalidAccessor([&] { (void)file.fileURL(); });
    EXPECT_EQ(file.primitiveFileURL(), stored);
    file.setEncryptedValue(false);
    EXPECT_EQ(file.fileURL(), stored) << "what is not protected is never locked";
}

} // namespace
} // namespace tarn
