// Archives of any bytes: read to their end, or refused. The first byte says whether the rest is a list of contents
// or an archive as it lies on disk.

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/ArchiveContents.h"
#include "tarnmodel/backup/archive/ManifestText.h"

#include <cstdint>
#include <cstdlib>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

using namespace tarn;

namespace {

class Nobody final : public ArchiveContents::Taker {
public:
    bool begin(const BackupManifest::Member&) override { return true; }
    void take(std::span<const std::byte>) override { }
    void end(bool) override { }
};

void readArchive(std::string_view bytes)
{
    static const int file = ::memfd_create("archive", 0);
    static const std::string name = "/proc/self/fd/" + std::to_string(file);
    if (::ftruncate(file, 0) != 0
        || ::pwrite(file, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size()))
        std::abort();
    Nobody nobody;
    const BackupLimits limits{.members = 100, .bytes = 1 << 20, .manifestBytes = 1 << 16};
    ArchiveContents(name, limits, ArchiveContents::Damage::Listed, {}).readMembers(nobody);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    try {
        if (data[0] % 2 == 0)
            readArchive(bytes);
        else
            textOfManifest(manifestFromText(bytes, 100));
    } catch (const BackupFailure&) {
        return 0;
    }
    return 0;
}
