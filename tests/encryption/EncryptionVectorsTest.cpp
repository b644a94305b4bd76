#include "tests/vectors/EncryptionVectors.h"

#include "tests/encryption/EncryptionFixture.h"

namespace tarn {
namespace {

class EncryptionVectors : public EncryptionFixture { };

TEST_F(EncryptionVectors, AreWrittenAsEver)
{
    const std::filesystem::path kept = std::filesystem::path(TARN_TEST_CASES) / "encryption-vectors";
    ASSERT_TRUE(writeEncryptionVectors(scratchFolder()));
    for (const char* const name : {"password", "note", "attachment", "file", "vectors.json"}) {
        EXPECT_FALSE(contentsOf(kept / name).empty()) << name;
        EXPECT_TRUE(contentsOf(scratchFolder() / name) == contentsOf(kept / name)) << name;
    }
}

TEST_F(EncryptionVectors, AreReadByAManager)
{
    const std::filesystem::path kept = std::filesystem::path(TARN_TEST_CASES) / "encryption-vectors";
    OVPassword& password = insert<OVPassword>();
    password.setUniqueIdentifier("8C4B9E6A-0F0D-4B6B-9A51-2F6C1D0E7A01");
    password.setVerifier(NSData::fromText(contentsOf(kept / "password")));
    NSError error;
    ASSERT_TRUE(manager->unlock(password, "cafe\u0301 \U0001F511", &error)) << error;
    PlainNote& note = plainNote(std::nullopt);
    note.state = {true, NSData::fromText(contentsOf(kept / "note")), std::nullopt,
        "8C4B9E6A-0F0D-4B6B-9A51-2F6C1D0E7A02", &password};
    EXPECT_EQ(manager->textForNote(note, nullptr), "# Größe\n\nA text that nobody reads.");
    PlainNoteFile& file = plainFile("file", contentsOf(kept / "file"));
    file.state = {true, NSData::fromText(contentsOf(kept / "attachment")), std::nullopt,
        "8C4B9E6A-0F0D-4B6B-9A51-2F6C1D0E7A03", &password};
    const auto copy = manager->fileURLForNoteFile(file, &error);
    ASSERT_TRUE(copy) << error;
    EXPECT_EQ(copy->filename(), "Größe.pdf");
    EXPECT_EQ(std::filesystem::file_size(*copy), 70'000U);
}

} // namespace
} // namespace tarn
