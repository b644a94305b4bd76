#include "tarnmodel/encryption/sealing/FolderArchive.h"

#include "tarnmodel/encryption/keys/KeyWrapping.h"
#include "tarnmodel/encryption/sealing/ArchiveLibraryInternal.h"
#include "tarnmodel/encryption/sealing/SafeNames.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"
#include "tests/encryption/EncryptionFixture.h"

#include <sys/stat.h>

#include <clocale>

namespace tarn {
namespace {

namespace fs = std::filesystem;

class FolderArchives : public EncryptionFixture {
protected:
    fs::path place(std::string_view name) const { return scratchFolder() / name; }
    /// Seals the folder and brings it back under the name "back".
    bool sealAndBack(const fs::path& folder, NSError* error = nullptr)
    {
        const SecretBytes key = *newKey(nullptr);
        return sealItem(folder, place("sealed"), key, "ID", error)
            && unsealItem(place("sealed"), place("back"), key, "ID", error);
    }
    /// Reads an archive of one entry, of this type, into the folder "back".
    bool isTaken(const char* name, unsigned type, const char* linkTarget = nullptr)
    {
        std::vector<std::byte> bytes(1 << 16);
        std::size_t used = 0;
        {
            ArchiveWriter writer;
            archive_write_set_format_pax(writer.get());
            archive_write_set_options(writer.get(), "hdrcharset=BINARY");
            archive_write_open_memory(writer.get(), bytes.data(), bytes.size(), &used);
            ArchiveEntry entry;
            archive_entry_copy_pathname(entry.get(), name);
            archive_entry_set_filetype(entry.get(), type);
            archive_entry_set_perm(entry.get(), 0644);
            if (linkTarget && type == AE_IFLNK)
                archive_entry_copy_symlink(entry.get(), linkTarget);
            else if (linkTarget)
                archive_entry_copy_hardlink(entry.get(), linkTarget);
            archive_entry_set_size(entry.get(), 0);
            archive_write_header(writer.get(), entry.get());
            archive_write_close(writer.get());
        }
        bool isGiven = false;
        const ArchiveSource source = [&]() -> std::optional<std::span<const std::byte>> {
            return std::exchange(isGiven, true) ? std::span<const std::byte>() : std::span(bytes).first(used);
        };
        fs::remove_all(place("back"));
        fs::create_directory(place("back"));
        return readFolderArchive(source, place("back"), nullptr);
    }
};

TEST_F(FolderArchives, GiveBackWhatIsInAFolder)
{
    const fs::path folder = place("Sketch Größe.pages");
    fs::create_directories(folder / "Data" / "empty");
    writeFile(folder / "index.xml", "<index/>");
    writeFile(folder / "Data" / "Bild é \xe6\x97\xa5.png", std::string(200'000, 'x'));
    writeFile(folder / "Data" / std::string(200, 'n'), "");
    writeFile(folder / "not \xff UTF-8", "bytes");
    writeFile(folder / "run.sh", "#!");
    fs::permissions(folder / "run.sh", fs::perms::owner_all);
    fs::create_symlink("Data/empty", folder / "link");
    const NSDate date = dateWithMicrosecondsSince1970(1'500'000'000'123'456);
    NSFileManager::setModificationDate(date, folder / "index.xml");
    NSFileManager::setModificationDate(date, folder / "Data");
    NSFileManager::setModificationDate(date, folder);

    NSError error;
    ASSERT_TRUE(sealAndBack(folder, &error)) << error;
    EXPECT_TRUE(NSFileManager::contentsEqualAtURLs(folder / "index.xml", place("back") / "index.xml"));
    std::vector<std::string> expected;
    std::vector<std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        expected.push_back(entry.path().lexically_relative(folder).string());
    for (const auto& entry : fs::recursive_directory_iterator(place("back"))) {
        const fs::path name = entry.path().lexically_relative(place("back"));
        found.push_back(name.string());
        if (entry.is_regular_file() && !entry.is_symlink()) {
            EXPECT_EQ(contentsOf(entry.path()), contentsOf(folder / name));
            EXPECT_EQ(fs::last_write_time(entry.path()), fs::last_write_time(folder / name));
        }
    }
    EXPECT_THAT(found, testing::UnorderedElementsAreArray(expected));
    EXPECT_EQ(fs::read_symlink(place("back") / "link"), "Data/empty");
    EXPECT_TRUE(fs::is_directory(place("back") / "Data" / "empty"));
    EXPECT_EQ(fs::status(place("back") / "run.sh").permissions(), fs::perms::owner_all);
    EXPECT_EQ(NSFileManager::attributesOfItemAtURL(place("back"))->modificationDate, date);
    EXPECT_EQ(NSFileManager::attributesOfItemAtURL(place("back") / "Data")->modificationDate, date);
}

TEST_F(FolderArchives, AreTheSameInEveryLocale)
{
    const fs::path folder = place("folder");
    fs::create_directory(folder);
    writeFile(folder / "é", "bytes");
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const locale : {"C", "C.UTF-8"}) {
        std::setlocale(LC_ALL, locale);
        EXPECT_TRUE(sealAndBack(folder)) << locale;
        EXPECT_TRUE(fs::exists(place("back") / "é")) << locale;
        fs::remove_all(place("back"));
        fs::remove(place("sealed"));
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(FolderArchives, MayBeEmpty)
{
    fs::create_directory(place("folder"));
    EXPECT_TRUE(sealAndBack(place("folder")));
    EXPECT_TRUE(fs::is_empty(place("back")));
}

TEST_F(FolderArchives, HoldNoLinksThatLeadOut)
{
    const fs::path folder = place("folder");
    fs::create_directory(folder);
    fs::create_symlink("../clear", folder / "link");
    EXPECT_FALSE(sealAndBack(folder));
    EXPECT_FALSE(fs::exists(place("sealed")));
}

TEST_F(FolderArchives, HoldFilesFoldersAndLinksOnly)
{
    const fs::path folder = place("folder");
    fs::create_directory(folder);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    NSError error;
    EXPECT_FALSE(sealAndBack(folder, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
}

TEST_F(FolderArchives, EndWhereTheyAreRefused)
{
    const fs::path folder = place("folder");
    fs::create_directory(folder);
    writeFile(folder / "file", std::string(200'000, 'x'));
    const auto length = lengthOfFolderArchive(folder, nullptr);
    ASSERT_TRUE(length);
    for (const std::uint64_t most : {std::uint64_t(0), std::uint64_t(600), std::uint64_t(100'000), *length - 1}) {
        std::uint64_t taken = 0;
        int refusals = 0;
        const ArchiveSink sink = [&](std::span<const std::byte> bytes) {
            taken += bytes.size();
            refusals += taken > most ? 1 : 0;
            return taken <= most;
        };
        NSError error;
        EXPECT_FALSE(writeFolderArchive(folder, sink, &error)) << most;
        EXPECT_EQ(refusals, 1) << "nothing comes behind it";
        EXPECT_EQ(error, NSError()) << "which the sink gives";
    }
}

TEST_F(FolderArchives, EndWhereAFileCannotBeReadToItsEnd)
{
    const fs::path folder = place("folder");
    fs::create_directory(folder);
    writeFile(folder / "file", std::string(200'000, 'x'));
    const auto length = lengthOfFolderArchive(folder, nullptr);
    std::uint64_t taken = 0;
    const ArchiveSink sink = [&](std::span<const std::byte> bytes) {
        taken += bytes.size();
        fs::resize_file(folder / "file", 100'000);
        return true;
    };
    NSError error;
    EXPECT_FALSE(writeFolderArchive(folder, sink, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
    EXPECT_GT(taken, 0U);
    EXPECT_LT(taken, *length) << "it is not filled up with what is not the file's";
}

TEST_F(FolderArchives, AreNotTrustedWithNames)
{
    EXPECT_TRUE(isTaken("file", AE_IFREG));
    EXPECT_TRUE(fs::exists(place("back") / "file"));
    EXPECT_FALSE(isTaken("../file", AE_IFREG));
    EXPECT_FALSE(isTaken("folder/../../file", AE_IFREG));
    EXPECT_FALSE(isTaken((place("absolute")).c_str(), AE_IFREG));
    EXPECT_FALSE(isTaken("..", AE_IFDIR));
    EXPECT_FALSE(isTaken("pipe", AE_IFIFO));
    EXPECT_FALSE(isTaken("hard", AE_IFREG, "../clear"));
    EXPECT_FALSE(isTaken("link", AE_IFLNK, "../clear"));
    EXPECT_FALSE(isTaken("link", AE_IFLNK, "/etc/passwd"));
    EXPECT_TRUE(isTaken("link", AE_IFLNK, "file"));
    EXPECT_FALSE(fs::exists(place("file")));
    EXPECT_FALSE(fs::exists(place("absolute")));
}

TEST(SafeNames, StayInTheirFolder)
{
    EXPECT_TRUE(staysInFolder("a"));
    EXPECT_TRUE(staysInFolder("a/b/..c"));
    EXPECT_FALSE(staysInFolder(""));
    EXPECT_FALSE(staysInFolder("/a"));
    EXPECT_FALSE(staysInFolder("a/.."));
    EXPECT_FALSE(staysInFolder(std::string("a\0b", 3)));
    EXPECT_TRUE(leadsNowhereElse("b", "a"));
    EXPECT_TRUE(leadsNowhereElse("../b", "folder/a"));
    EXPECT_TRUE(leadsNowhereElse("./b/c", "a"));
    EXPECT_FALSE(leadsNowhereElse("../b", "a"));
    EXPECT_FALSE(leadsNowhereElse("../../b", "folder/a"));
    EXPECT_FALSE(leadsNowhereElse("b/../../c", "a"));
    EXPECT_FALSE(leadsNowhereElse("b/..", "a")) << "b may be a link itself";
    EXPECT_FALSE(leadsNowhereElse("/b", "a"));
    EXPECT_FALSE(leadsNowhereElse("", "a"));
}

} // namespace
} // namespace tarn
