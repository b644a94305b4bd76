// Files of any bytes as sealed ones, and any bytes as the archive of a folder that was sealed: nothing is made outside
// of the place that was named.

#include "fuzz/encryption/FuzzKeys.h"
#include "tarnmodel/encryption/sealing/FileSealer.h"
#include "tarnmodel/encryption/sealing/FolderArchive.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <unistd.h>

using namespace tarn;

namespace {

namespace fs = std::filesystem;

struct Place {
    Place()
    {
        std::string name = (fs::temp_directory_path() / "tarn-fuzz-XXXXXX").string();
        require(::mkdtemp(name.data()) != nullptr);
        folder = name;
        fs::create_directories(folder / "sound" / "inner");
        std::ofstream(folder / "sound" / "inner" / "file") << "content";
        fs::create_symlink("inner/file", folder / "sound" / "link");
        std::vector<std::byte> bytes;
        const ArchiveSink sink = [&](std::span<const std::byte> some) {
            bytes.insert(bytes.end(), some.begin(), some.end());
            return true;
        };
        tarn::require(writeFolderArchive(folder / "sound", sink, nullptr));
        archive = NSData(std::move(bytes));
        fs::remove_all(folder / "sound");
    }
    ~Place() { fs::remove_all(folder); }

    FixedRandom random;
    SecretBytes key = *newKey(nullptr);
    fs::path folder;
    NSData archive; ///< of a folder
};

/// The sums of the headers of an archive, which a fuzzer would have to guess.
std::vector<std::byte> withRightSums(std::vector<std::byte> archive)
{
    constexpr std::size_t block = 512;
    constexpr std::size_t sumAt = 148;
    constexpr std::string_view magic = "ustar";
    for (std::size_t at = 0; at + block <= archive.size(); at += block) {
        const auto header = std::span(archive).subspan(at, block);
        if (std::memcmp(header.data() + 257, magic.data(), magic.size()) != 0)
            continue;
        std::memset(header.data() + sumAt, ' ', 8);
        unsigned sum = 0;
        for (const std::byte byte : header)
            sum += std::to_integer<unsigned>(byte);
        std::array<char, 8> text{};
        std::snprintf(text.data(), text.size(), "%06o", sum);
        std::memcpy(header.data() + sumAt, text.data(), 7);
    }
    return archive;
}

void require(const Place& place, std::size_t items)
{
    tarn::require(static_cast<std::size_t>(std::distance(fs::directory_iterator(place.folder), {})) == items);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Place place;
    const fs::path sealed = place.folder / "sealed";
    const fs::path clear = place.folder / "clear";
    const auto input = std::as_bytes(std::span(data, size));
    std::ofstream(sealed, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    tarn::require(!unsealItem(sealed, clear, place.key, fuzzedIdentifier, nullptr));
    fs::remove(sealed);
    require(place, 0);

    for (const auto& archive :
        {std::vector(input.begin(), input.end()), withRightSums(patched(place.archive, input))}) {
        FileSealer sealer(sealed, ContentKind::Folder, archive.size(), fuzzedIdentifier);
        tarn::require(sealer.begin(place.key, nullptr) && sealer.write(archive, nullptr) && sealer.finish(nullptr));
        const bool isMade = unsealItem(sealed, clear, place.key, fuzzedIdentifier, nullptr);
        require(place, isMade ? 2 : 1);
        fs::remove_all(clear);
        fs::remove(sealed);
    }
    return 0;
}
