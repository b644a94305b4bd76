#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVPassword.h"
#include "tests/encryption/PlainRecords.h"
#include "tests/support/StoreFixture.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// So little work that a test may try hundreds of passwords.
inline constexpr OVKeyDerivationCost cheapCost{1, 8};

inline void writeFile(const std::filesystem::path& file, std::string_view bytes)
{
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

inline std::string contentsOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A store in memory with a manager, and folders for files, decrypted ones among them.
class EncryptionFixture : public testing::Test, protected StillWorld, protected TestStore {
protected:
    explicit EncryptionFixture(StoreType type = StoreType::InMemory) : TestStore(type)
    {
        for (const auto& place : {runtimeFolder(), scratchFolder(), attachmentFolder()})
            std::filesystem::create_directories(place);
        world_.setRuntimeDirectory(runtimeFolder());
    }
    void SetUp() override
    {
        open();
        manager = std::make_unique<OVEncryptionCoreManager>(context(), options());
    }
    void TearDown() override
    {
        manager.reset();
        EXPECT_EQ(takeLog(), std::vector<std::string>());
        close();
    }

    std::filesystem::path runtimeFolder() const { return storeFile().parent_path() / "run"; }
    std::filesystem::path scratchFolder() const { return storeFile().parent_path() / "scratch"; }
    std::filesystem::path attachmentFolder() const { return storeFile().parent_path() / "attachments"; }
    OVEncryptionOptions options() const
    {
        OVEncryptionOptions options;
        options.cost = cheapCost;
        options.scratchDirectory = [folder = scratchFolder()] { return folder; };
        return options;
    }

    /// A new password record, unlocked.
    OVPassword& passwordOf(std::string_view word)
    {
        OVPassword& record = insert<OVPassword>();
        NSError error;
        EXPECT_TRUE(manager->setPassword(record, word, std::nullopt, &error)) << error;
        return record;
    }
    PlainNote& plainNote(std::optional<std::string_view> text)
    {
        PlainNote& note = notes_.emplace_back(insert<OVNote>());
        note.text = text;
        return note;
    }
    PlainNoteFile& plainFile(std::string_view filename, std::string_view bytes)
    {
        PlainNoteFile& file
            = files_.emplace_back(insert<OVNote>(), attachmentFolder() / std::to_string(files_.size() + 1));
        file.filename = filename;
        file.fileSize = static_cast<std::int64_t>(bytes.size());
        writeFile(*file.storedFileURL(), bytes);
        return file;
    }
    PlainNote& protectedNote(std::optional<std::string_view> text, OVPassword& password)
    {
        PlainNote& note = plainNote(text);
        protect(note, password);
        return note;
    }
    PlainNoteFile& protectedFile(std::string_view filename, std::string_view bytes, OVPassword& password)
    {
        PlainNoteFile& file = plainFile(filename, bytes);
        protect(file, password);
        return file;
    }
    void protect(OVEncryptableObject& object, OVPassword& password)
    {
        NSError error;
        EXPECT_TRUE(manager->addEncryptionToObject(object, password, &error)) << error;
    }

    std::unique_ptr<OVEncryptionCoreManager> manager;

private:
    std::list<PlainNote> notes_;
    std::list<PlainNoteFile> files_;
};

} // namespace tarn
