// Files of any bytes as sealed ones, and any bytes as the archive of a folder that was sealed: nothing is made outside
// of the place that was named.

#include "fuzz/encryption/FuzzKeys.h"
#include "tarnmodel/encryption/sealing/FileSealer.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"

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
    }
    ~Place() { fs::remove_all(folder); }

    FixedRandom random;
    SecretBytes key = *newKey(nullptr);
    fs::path folder;
};

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

    FileSealer sealer(sealed, ContentKind::Folder, size, fuzzedIdentifier);
    tarn::require(sealer.begin(place.key, nullptr) && sealer.write(input, nullptr) && sealer.finish(nullptr));
    const bool isMade = unsealItem(sealed, clear, place.key, fuzzedIdentifier, nullptr);
    require(place, isMade ? 2 : 1);
    fs::remove_all(clear);
    fs::remove(sealed);
    return 0;
}
