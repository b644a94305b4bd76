#include "tarnmodel/encryption/sealing/SealedRecord.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/keys/ByteFields.h"
#include "tarnmodel/encryption/sealing/PaddedLength.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn {
namespace {

constexpr std::string_view kEncryption = "ENCRYPTION-1";

class SealedRecords : public testing::Test {
protected:
    static MasterKey aKey()
    {
        return {randomArray<MasterKeyIdentifier>(), std::make_shared<const SecretBytes>(*newKey(nullptr))};
    }
    static ClearFields noteFields(std::optional<std::string> text)
    {
        ClearFields fields;
        fields.text = std::move(text);
        return fields;
    }
    static ClearFields attachmentFields()
    {
        ClearFields fields;
        fields.filename = "plan.pdf";
        fields.normalizedFileExtension = "pdf";
        fields.fileSize = -1;
        fields.searchText = "";
        return fields;
    }
    NSData sealed(const ClearFields& fields, RecordKind kind) const
    {
        return SealedRecord::seal(fields, kind, kEncryption, key_, nullptr)->data();
    }
    long codeOf(const NSData& data, RecordKind kind, std::string_view identifier = kEncryption) const
    {
        NSError error;
        const auto record = SealedRecord::open(data, kind, identifier, key_, &error);
        return record && record->fields(&error) ? 0 : error.code();
    }
    const MasterKey key_ = aKey();
};

TEST_F(SealedRecords, GiveBackTheirFields)
{
    for (const auto& fields : {noteFields(std::nullopt), noteFields(""), noteFields("text"),
             noteFields(std::string("a\0b", 3)), noteFields(std::string(5 << 20, 'x'))}) {
        const auto record
            = SealedRecord::open(sealed(fields, RecordKind::Note), RecordKind::Note, kEncryption, key_, nullptr);
        EXPECT_TRUE(record->fields(nullptr) == fields);
    }
    const auto record = SealedRecord::open(
        sealed(attachmentFields(), RecordKind::Attachment), RecordKind::Attachment, kEncryption, key_, nullptr);
    EXPECT_EQ(record->fields(nullptr), attachmentFields());
    EXPECT_EQ(record->masterKey(), key_.identifier);
}

TEST_F(SealedRecords, GiveBackEveryChoiceOfFields)
{
    for (unsigned choice = 0; choice < 16; ++choice) {
        ClearFields fields = attachmentFields();
        if (choice & 1U)
            fields.filename.reset();
        if (choice & 2U)
            fields.normalizedFileExtension.reset();
        if (choice & 4U)
            fields.fileSize.reset();
        if (choice & 8U)
            fields.searchText.reset();
        const auto record = SealedRecord::seal(fields, RecordKind::Attachment, kEncryption, key_, nullptr);
        EXPECT_EQ(record->fields(nullptr), fields);
    }
}

TEST_F(SealedRecords, TellLittleOfTheirLength)
{
    EXPECT_EQ(sealed(noteFields(""), RecordKind::Note).length(), 154U + 256 + 16);
    EXPECT_EQ(sealed(noteFields(std::string(251, 'x')), RecordKind::Note).length(), 154U + 256 + 16);
    EXPECT_EQ(sealed(noteFields(std::string(252, 'x')), RecordKind::Note).length(), 154U + 272 + 16);
    EXPECT_EQ(sealed(attachmentFields(), RecordKind::Attachment).length(), 154U + 256 + 16);
}

TEST_F(SealedRecords, KeepTheirKeyOverChanges)
{
    const auto record = SealedRecord::seal(noteFields("one"), RecordKind::Note, kEncryption, key_, nullptr);
    const SealedRecord changed = record->withFields(noteFields("two"));
    EXPECT_TRUE(std::ranges::equal(record->data().span().first(130), changed.data().span().first(130)));
    EXPECT_FALSE(std::ranges::equal(record->data().span().subspan(130, 24), changed.data().span().subspan(130, 24)));
    const auto read = SealedRecord::open(changed.data(), RecordKind::Note, kEncryption, key_, nullptr);
    EXPECT_EQ(read->fields(nullptr)->text, "two");
    EXPECT_TRUE(std::ranges::equal(read->objectKey().span(), record->objectKey().span()));
}

TEST_F(SealedRecords, HaveKeysOfTheirOwn)
{
    const auto one = SealedRecord::seal(noteFields("one"), RecordKind::Note, kEncryption, key_, nullptr);
    const auto other = SealedRecord::seal(noteFields("one"), RecordKind::Note, kEncryption, key_, nullptr);
    EXPECT_FALSE(std::ranges::equal(one->objectKey().span(), other->objectKey().span()));
}

TEST_F(SealedRecords, AreRefusedWithAnyByteChanged)
{
    for (const RecordKind kind : {RecordKind::Note, RecordKind::Attachment}) {
        const NSData data = sealed(kind == RecordKind::Note ? noteFields("text") : attachmentFields(), kind);
        for (std::size_t at = 0; at < data.length(); ++at) {
            std::vector<std::byte> bytes(data.span().begin(), data.span().end());
            bytes[at] ^= std::byte{0x40};
            const long code = codeOf(NSData(bytes), kind);
            EXPECT_EQ(code, at <= 8 ? OVEncryptionErrorUnknownVersion : OVEncryptionErrorDamaged) << at;
        }
    }
}

TEST_F(SealedRecords, AreRefusedAtEveryOtherLength)
{
    const NSData data = sealed(noteFields("text"), RecordKind::Note);
    for (std::size_t length = 0; length < data.length(); ++length)
        EXPECT_NE(codeOf(NSData(data.span().first(length)), RecordKind::Note), 0) << length;
    EXPECT_NE(codeOf(NSData(joined({data.span(), bytesOfText("x")})), RecordKind::Note), 0);
}

TEST_F(SealedRecords, AreBoundToRecordKindAndKey)
{
    const NSData data = sealed(noteFields("text"), RecordKind::Note);
    EXPECT_EQ(codeOf(data, RecordKind::Note), 0);
    EXPECT_EQ(codeOf(data, RecordKind::Note, "ENCRYPTION-2"), OVEncryptionErrorDamaged);
    EXPECT_EQ(codeOf(data, RecordKind::Attachment), OVEncryptionErrorDamaged);
    EXPECT_FALSE(SealedRecord::open(data, RecordKind::Note, kEncryption, aKey(), nullptr));
}

TEST_F(SealedRecords, AreNotPutTogetherOfTwo)
{
    const auto first = SealedRecord::seal(noteFields("first"), RecordKind::Note, kEncryption, key_, nullptr);
    const NSData second = sealed(noteFields("other"), RecordKind::Note);
    for (const std::size_t at : {50U, 98U, 130U, 154U}) {
        const auto mixed = joined({first->data().span().first(at), second.span().subspan(at)});
        EXPECT_NE(codeOf(NSData(mixed), RecordKind::Note), 0) << at;
    }
    // Fields of another time, under the nonce of now.
    const NSData later = first->withFields(noteFields("later")).data();
    EXPECT_NE(
        codeOf(NSData(joined({first->data().span().first(154), later.span().subspan(154)})), RecordKind::Note), 0);
}

TEST_F(SealedRecords, TellThatThereIsNoRoomForKeys)
{
    const NSData data = sealed(noteFields("text"), RecordKind::Note);
    const KeyArenaOverride small(std::make_shared<KeyArena>(2 * KeyArena::slotSize));
    EXPECT_EQ(codeOf(data, RecordKind::Note), OVEncryptionErrorOutOfMemory);
    NSError error;
    EXPECT_FALSE(SealedRecord::seal(noteFields("text"), RecordKind::Note, kEncryption, key_, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorOutOfMemory);
}

TEST(FieldBytes, AreReadOnlyAsTheyAreWritten)
{
    const auto bytes = [](std::initializer_list<int> numbers) {
        std::vector<std::byte> all;
        for (const int number : numbers)
            all.push_back(static_cast<std::byte>(number));
        return all;
    };
    const auto isRead
        = [](const std::vector<std::byte>& all, RecordKind kind) { return fieldsFromBytes(all, kind).has_value(); };
    EXPECT_TRUE(isRead({}, RecordKind::Note));
    EXPECT_TRUE(isRead(bytes({0, 0, 0}), RecordKind::Note));
    EXPECT_TRUE(isRead(bytes({1, 1, 0, 0, 0, 'x'}), RecordKind::Note));
    EXPECT_FALSE(isRead(bytes({0, 0, 1}), RecordKind::Note)) << "something behind the end";
    EXPECT_FALSE(isRead(bytes({1, 1, 0, 0}), RecordKind::Note)) << "cut in the length";
    EXPECT_FALSE(isRead(bytes({1, 2, 0, 0, 0, 'x'}), RecordKind::Note)) << "cut in the value";
    EXPECT_FALSE(isRead(bytes({1, 0, 0, 0, 0, 1, 0, 0, 0, 0}), RecordKind::Note)) << "twice";
    EXPECT_FALSE(isRead(bytes({3, 0, 0, 0, 0, 2, 0, 0, 0, 0}), RecordKind::Attachment)) << "out of order";
    EXPECT_FALSE(isRead(bytes({1, 0, 0, 0, 0}), RecordKind::Attachment)) << "a field of notes";
    EXPECT_FALSE(isRead(bytes({2, 0, 0, 0, 0}), RecordKind::Note)) << "a field of attachments";
    EXPECT_FALSE(isRead(bytes({6, 0, 0, 0, 0}), RecordKind::Attachment)) << "no field";
    EXPECT_FALSE(isRead(bytes({4, 1, 0, 0, 0, 1}), RecordKind::Attachment)) << "a short number";
}

} // namespace
} // namespace tarn
