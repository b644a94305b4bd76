#include "tarnmodel/encryption/manager/DecryptedCopies.h"

#include "tarnmodel/platform/foundation/filesystem/HeldFolder.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tests/encryption/EncryptionFixture.h"

#include <thread>

namespace tarn {
namespace {

namespace fs = std::filesystem;

class CopiesOfFiles : public EncryptionFixture {
protected:
    fs::path copyOf(PlainNoteFile& file)
    {
        NSError error;
        const auto copy = manager->fileURLForNoteFile(file, &error);
        EXPECT_TRUE(copy) << error;
        return copy.value_or("");
    }
    static bool liesIn(const fs::path& folder, const fs::path& file)
    {
        return file.string().starts_with(folder.string() + "/");
    }
    static std::size_t filesIn(const fs::path& folder)
    {
        std::size_t count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            count += entry.is_regular_file() ? 1 : 0;
        return count;
    }
};

TEST_F(CopiesOfFiles, LieInMemoryUnderTheirNames)
{
    PlainNoteFile& file = protectedFile("plan é.pdf", "the bytes", passwordOf("secret"));
    const fs::path copy = copyOf(file);
    EXPECT_TRUE(liesIn(runtimeFolder(), copy));
    EXPECT_EQ(copy.filename(), "plan é.pdf");
    EXPECT_EQ(contentsOf(copy), "the bytes");
    EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(copy.parent_path()).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::last_write_time(copy), fs::last_write_time(*file.storedFileURL()));
}

TEST_F(CopiesOfFiles, AreMadeOnce)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", passwordOf("secret"));
    const fs::path copy = copyOf(file);
    EXPECT_EQ(copyOf(file), copy);
    EXPECT_EQ(filesIn(runtimeFolder()), 1U);
    fs::remove(copy);
    EXPECT_EQ(contentsOf(copyOf(file)), "the bytes");
}

TEST_F(CopiesOfFiles, FollowTheName)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", passwordOf("secret"));
    copyOf(file);
    manager->setFilename("other.pdf", file);
    EXPECT_EQ(copyOf(file).filename(), "other.pdf");
    EXPECT_EQ(filesIn(runtimeFolder()), 1U);
    manager->setFilename("../../a/b", file);
    EXPECT_EQ(copyOf(file).filename(), ".._.._a_b");
    for (const std::optional<std::string>& name :
        {std::optional<std::string>(), std::optional<std::string>(".."), std::optional<std::string>("")}) {
        manager->setFilename(name, file);
        EXPECT_EQ(contentsOf(copyOf(file)), "the bytes");
    }
    EXPECT_EQ(filesIn(runtimeFolder()), 1U);
}

TEST_F(CopiesOfFiles, GoWhenThePasswordIsLocked)
{
    OVPassword& one = passwordOf("one");
    OVPassword& other = passwordOf("other");
    const fs::path first = copyOf(protectedFile("first", "first", one));
    const fs::path second = copyOf(protectedFile("second", "second", other));
    manager->lock(one);
    EXPECT_FALSE(fs::exists(first));
    EXPECT_TRUE(fs::exists(second));
    manager.reset();
    EXPECT_TRUE(fs::is_empty(runtimeFolder()));
}

TEST_F(CopiesOfFiles, StayForWhoHolds)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", passwordOf("secret"));
    auto hold = manager->holdUnlocked();
    const fs::path copy = copyOf(file);
    manager->lock();
    EXPECT_EQ(contentsOf(copy), "the bytes");
    EXPECT_EQ(copyOf(file), copy);
    hold.reset();
    EXPECT_FALSE(fs::exists(copy));
}

TEST_F(CopiesOfFiles, LieOnDiskWhereMemoryHasNoRoom)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", passwordOf("secret"));
    world_.setAvailableSpace(1 << 20);
    const fs::path copy = copyOf(file);
    EXPECT_TRUE(liesIn(scratchFolder(), copy));
    manager->lock();
    EXPECT_EQ(filesIn(scratchFolder()), 0U);
}

TEST_F(CopiesOfFiles, LieOnDiskWhereThereIsNoFolderInMemory)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", passwordOf("secret"));
    world_.setRuntimeDirectory(std::nullopt);
    EXPECT_TRUE(liesIn(scratchFolder(), copyOf(file)));
}

TEST_F(CopiesOfFiles, LieInTheCacheFolderWhereNobodyNamesOne)
{
    manager.reset();
    OVEncryptionOptions plain = options();
    plain.scratchDirectory = nullptr;
    world_.setRuntimeDirectory(std::nullopt);
    world_.setCacheDirectory(storeFile().parent_path() / "cache");
    manager = std::make_unique<OVEncryptionCoreManager>(context(), plain);
    const fs::path copy = copyOf(protectedFile("plan.pdf", "the bytes", passwordOf("secret")));
    EXPECT_TRUE(liesIn(storeFile().parent_path() / "cache" / "TarnModel", copy));
}

TEST_F(CopiesOfFiles, AreKnown)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", passwordOf("secret"));
    EXPECT_FALSE(OVEncryptionCoreManager::isDecryptedFile(*file.storedFileURL()));
    const fs::path copy = copyOf(file);
    EXPECT_TRUE(OVEncryptionCoreManager::isDecryptedFile(copy));
    EXPECT_TRUE(
        OVEncryptionCoreManager::isDecryptedFile(copy.parent_path() / ".." / copy.parent_path().filename() / "x"));
    EXPECT_FALSE(OVEncryptionCoreManager::isDecryptedFile(*file.storedFileURL()));
    EXPECT_FALSE(OVEncryptionCoreManager::isDecryptedFile(runtimeFolder()));
    EXPECT_FALSE(OVEncryptionCoreManager::isDecryptedFile(copy.parent_path().parent_path().string() + "x/y"));
    manager.reset();
    EXPECT_FALSE(OVEncryptionCoreManager::isDecryptedFile(copy));
}

TEST_F(CopiesOfFiles, OfDeadProcessesAreRemoved)
{
    manager.reset();
    const fs::path left = runtimeFolder() / "TarnClear.dead00";
    const fs::path onDisk = scratchFolder() / "TarnClear.dead01";
    const fs::path strange = runtimeFolder() / "theirs";
    for (const fs::path& folder : {left, onDisk, strange}) {
        fs::create_directory(folder);
        writeFile(folder / "clear", "clear");
    }
    const auto held = HeldFolder::makeIn(runtimeFolder(), "TarnClear.");
    manager = std::make_unique<OVEncryptionCoreManager>(context(), options());
    EXPECT_FALSE(fs::exists(left));
    EXPECT_FALSE(fs::exists(onDisk));
    EXPECT_TRUE(fs::exists(strange / "clear"));
    EXPECT_TRUE(fs::exists(held->path()));
}

TEST_F(CopiesOfFiles, AreNotMadeOfWhatIsDamagedOrMissing)
{
    PlainNoteFile& file = protectedFile("plan.pdf", std::string(200'000, 'x'), passwordOf("secret"));
    std::string bytes = contentsOf(*file.storedFileURL());
    bytes[bytes.size() - 5] = static_cast<char>(bytes[bytes.size() - 5] ^ 1);
    writeFile(*file.storedFileURL(), bytes);
    NSError error;
    EXPECT_FALSE(manager->fileURLForNoteFile(file, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorDamaged);
    EXPECT_EQ(filesIn(runtimeFolder()) + filesIn(scratchFolder()), 0U);
    fs::remove(*file.storedFileURL());
    EXPECT_FALSE(manager->fileURLForNoteFile(file, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
    file.filename.reset();
    EXPECT_FALSE(manager->fileURLForNoteFile(file, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
}

TEST_F(CopiesOfFiles, MayBeFolders)
{
    PlainNoteFile& file = plainFile("sketch.pages", "");
    fs::remove(*file.storedFileURL());
    fs::create_directories(*file.storedFileURL() / "Data");
    writeFile(*file.storedFileURL() / "Data" / "page", "the page");
    OVPassword& password = passwordOf("secret");
    protect(file, password);
    EXPECT_TRUE(fs::is_regular_file(*file.storedFileURL()));
    EXPECT_EQ(contentsOf(copyOf(file) / "Data" / "page"), "the page");
    ASSERT_TRUE(manager->removeEncryptionFromObject(file, nullptr));
    EXPECT_EQ(contentsOf(*file.storedFileURL() / "Data" / "page"), "the page");
}

TEST_F(CopiesOfFiles, FollowTheContents)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", passwordOf("secret"));
    const fs::path former = copyOf(file);
    const auto formerName = file.filename;
    NSError error;
    ASSERT_TRUE(manager->setContents(NSFileWrapper::withContents(NSData::fromText("other bytes")), file, &error))
        << error;
    EXPECT_FALSE(fs::exists(former));
    EXPECT_NE(file.filename, formerName);
    EXPECT_EQ(contentsOf(copyOf(file)), "other bytes");
    writeFile(scratchFolder() / "third", "third bytes");
    ASSERT_TRUE(manager->setContents(NSFileWrapper::withURL(scratchFolder() / "third"), file, nullptr));
    EXPECT_EQ(contentsOf(copyOf(file)), "third bytes");
    NSFileWrapper inner = NSFileWrapper::withContents(NSData::fromText("page"));
    inner.setFilename("page");
    ASSERT_TRUE(manager->setContents(NSFileWrapper::withFileWrappers({inner}), file, nullptr));
    EXPECT_EQ(contentsOf(copyOf(file) / "page"), "page");
    EXPECT_EQ(filesIn(runtimeFolder()), 1U);
}

TEST_F(CopiesOfFiles, KeepTheContentsWhenOthersCannotBeWritten)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", passwordOf("secret"));
    NSError error;
    EXPECT_FALSE(manager->setContents(NSFileWrapper::withURL(scratchFolder() / "none"), file, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
    EXPECT_EQ(contentsOf(copyOf(file)), "the bytes");
    manager->lock();
    EXPECT_FALSE(manager->setContents(NSFileWrapper::withContents(NSData::fromText("x")), file, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorLocked);
    EXPECT_EQ(file.names().size(), 1U);
}

TEST_F(CopiesOfFiles, AreMadeByManyThreadsAtOnce)
{
    PlainNoteFile& file = protectedFile("plan.pdf", std::string(100'000, 'x'), passwordOf("secret"));
    std::vector<std::thread> threads;
    for (int count = 0; count < 4; ++count)
        threads.emplace_back([&] { EXPECT_EQ(contentsOf(copyOf(file)).size(), 100'000U); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(filesIn(runtimeFolder()), 1U);
}

} // namespace
} // namespace tarn
