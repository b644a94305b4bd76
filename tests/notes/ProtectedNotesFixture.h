#pragma once

#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tests/support/ProtectedStore.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace tarn {

inline std::string bytesIn(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Notes with attachments, and a password for them.
class ProtectedNotesFixture : public ProtectedStore {
protected:
    std::filesystem::path aFile(std::string_view name, std::string_view bytes) const
    {
        std::filesystem::create_directories(filesRoot() / "Import");
        std::ofstream(filesRoot() / "Import" / name, std::ios::binary) << bytes;
        return filesRoot() / "Import" / name;
    }
    OVNoteFile& attach(OVNote& owner, std::string_view name, std::string_view bytes)
    {
        return *owner.addAttachmentFromFileURL(aFile(name, bytes));
    }
    /// A note with an attachment that is in use, protected and saved.
    OVNote& savedSecret()
    {
        OVNote& secret = note("# Secret\nbody #work [[Target]]");
        attach(secret, "a.bin", "bytes of a");
        secret.updateNoteWithText("# Secret\nbody #work [[Target]] [f](a.bin)");
        protect(secret);
        save();
        return secret;
    }
};

} // namespace tarn
