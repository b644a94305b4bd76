#include "tests/encryption/EncryptionFixture.h"

namespace tarn {
namespace {

class Passwords : public EncryptionFixture {
protected:
    long codeOfUnlocking(const OVPassword& record, std::string_view word)
    {
        NSError error;
        return manager->unlock(record, word, &error) ? 0 : error.code();
    }
};

TEST_F(Passwords, AreUnlockedWhenTheyAreSet)
{
    const OVPassword& record = passwordOf("correct horse");
    EXPECT_TRUE(manager->hasCachedPassword(record));
    EXPECT_EQ(record.verifierVersion(), 1);
}

TEST_F(Passwords, AreNotSetTwice)
{
    OVPassword& record = passwordOf("correct horse");
    const auto before = record.verifier();
    NSError error;
    EXPECT_FALSE(manager->setPassword(record, "another", std::nullopt, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorHasPassword);
    EXPECT_EQ(record.verifier(), before);
}

TEST_F(Passwords, AreLockedAndUnlocked)
{
    const OVPassword& record = passwordOf("correct horse");
    manager->lock();
    EXPECT_FALSE(manager->hasCachedPassword(record));
    EXPECT_EQ(codeOfUnlocking(record, "correct horse"), 0);
    EXPECT_TRUE(manager->hasCachedPassword(record));
}

TEST_F(Passwords, AreTriedInVain)
{
    const OVPassword& record = passwordOf("correct horse");
    manager->lock();
    EXPECT_EQ(codeOfUnlocking(record, "Correct horse"), OVEncryptionErrorWrongPassword);
    EXPECT_FALSE(manager->hasCachedPassword(record));
}

TEST_F(Passwords, StayUnlockedWhenAWrongOneIsTried)
{
    const OVPassword& record = passwordOf("correct horse");
    EXPECT_EQ(codeOfUnlocking(record, "wrong"), OVEncryptionErrorWrongPassword);
    EXPECT_TRUE(manager->hasCachedPassword(record));
}

TEST_F(Passwords, AreLockedOneByOne)
{
    const OVPassword& one = passwordOf("one");
    const OVPassword& other = passwordOf("other");
    manager->lock(one);
    EXPECT_FALSE(manager->hasCachedPassword(one));
    EXPECT_TRUE(manager->hasCachedPassword(other));
}

TEST_F(Passwords, AreTheSameComposedAndDecomposed)
{
    const OVPassword& composed = passwordOf("caf\u00e9");
    const OVPassword& decomposed = passwordOf("cafe\u0301");
    manager->lock();
    EXPECT_EQ(codeOfUnlocking(composed, "cafe\u0301"), 0);
    EXPECT_EQ(codeOfUnlocking(decomposed, "caf\u00e9"), 0);
    EXPECT_EQ(codeOfUnlocking(decomposed, "cafe"), OVEncryptionErrorWrongPassword);
}

TEST_F(Passwords, HaveOneByteToOneKibibyte)
{
    OVPassword& record = insert<OVPassword>();
    for (const std::string& word :
        {std::string(), std::string(1025, 'x'), std::string(4000, 'x'), std::string("\xff"), std::string("a\xc3")}) {
        NSError error;
        EXPECT_FALSE(manager->setPassword(record, word, std::nullopt, &error));
        EXPECT_EQ(error.code(), OVEncryptionErrorNotAPassword);
        EXPECT_FALSE(record.verifier());
    }
    // As long as that only before it was composed.
    std::string decomposed;
    for (int count = 0; count < 512; ++count)
        decomposed += "e\u0301";
    EXPECT_TRUE(manager->setPassword(record, decomposed, std::nullopt, nullptr));
    EXPECT_TRUE(manager->setPassword(insert<OVPassword>(), std::string(1024, 'x'), std::nullopt, nullptr));
    EXPECT_TRUE(manager->setPassword(insert<OVPassword>(), std::string("\0", 1), std::nullopt, nullptr));
}

TEST_F(Passwords, HaveAHintThatNeedsNoPassword)
{
    OVPassword& record = insert<OVPassword>();
    ASSERT_TRUE(manager->setPassword(record, "secret", "the usual one", nullptr));
    manager->lock();
    EXPECT_EQ(OVEncryptionCoreManager::hint(record), "the usual one");
    OVEncryptionCoreManager::setHint("", record);
    EXPECT_EQ(OVEncryptionCoreManager::hint(record), "");
    EXPECT_FALSE(record.passwordHint());
}

TEST_F(Passwords, CannotBeTriedOnARecordWithoutOne)
{
    EXPECT_EQ(codeOfUnlocking(insert<OVPassword>(), "secret"), OVEncryptionErrorUnknownVersion);
}

TEST_F(Passwords, OfALaterSchemeAreNotTried)
{
    OVPassword& record = passwordOf("secret");
    record.setVerifierVersion(2);
    EXPECT_EQ(codeOfUnlocking(record, "secret"), OVEncryptionErrorUnknownVersion);
}

TEST_F(Passwords, BelongToTheirRecords)
{
    const OVPassword& one = passwordOf("same");
    OVPassword& other = passwordOf("same");
    other.setVerifier(one.verifier());
    EXPECT_EQ(codeOfUnlocking(other, "same"), OVEncryptionErrorWrongPassword);
}

} // namespace
} // namespace tarn
