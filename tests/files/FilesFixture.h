#pragma once

#include "tests/support/StoreFixture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The bytes of a file; "-" when there is none.
inline std::string contentsOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "-";
}

/// The names of what lies in a folder, sorted; empty when there is no folder.
inline std::vector<std::string> namesIn(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    std::error_code failure;
    for (const auto& entry : std::filesystem::directory_iterator(folder, failure))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

/// A store of each kind, and a folder for files that are to be attached.
class FilesFixture : public StoreFixture {
protected:
    /// Where files lie that are not attached yet.
    std::filesystem::path scratch() const { return filesRoot() / "Scratch"; }
    /// Writes a file there.
    std::filesystem::path aFile(std::string_view name, std::string_view bytes) const
    {
        std::filesystem::create_directories(scratch());
        std::ofstream(scratch() / name, std::ios::binary | std::ios::trunc) << bytes;
        return scratch() / name;
    }
    /// A new attachment of a new note.
    OVNoteFile& attached(std::string_view name, std::string_view bytes = "bytes")
    {
        return *note("# T\n").addAttachmentFromFileURL(aFile(name, bytes));
    }
    /// The folders of records that lie on disk, of both kinds; asides and journals do not count.
    std::vector<std::string> foldersOnDisk() const
    {
        std::vector<std::string> folders = namesIn(filesRoot() / "Local Files" / "Note Images");
        std::ranges::copy(namesIn(filesRoot() / "Local Files" / "Note Files"), std::back_inserter(folders));
        std::ranges::sort(folders);
        return folders;
    }
    /// What lies in the folder of all attachments besides the kinds' own.
    std::vector<std::string> besidesTheKinds() const
    {
        std::vector<std::string> names = namesIn(filesRoot() / "Local Files");
        std::erase_if(names, [](const std::string& name) { return name == "Note Images" || name == "Note Files"; });
        return names;
    }
    /// No attachment lies on disk, nor anything else that one leaves.
    void expectNothingLeft() const
    {
        EXPECT_THAT(foldersOnDisk(), testing::IsEmpty());
        EXPECT_THAT(besidesTheKinds(), testing::IsEmpty());
    }
};

} // namespace tarn
