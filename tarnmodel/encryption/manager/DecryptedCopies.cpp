#include "tarnmodel/encryption/manager/DecryptedCopies.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/PrivateFolder.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <sys/stat.h>

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;

/// Begins the names of the folders; others of this prefix may be taken over once their process is gone.
constexpr std::string_view kFolderPrefix = "TarnClear.";
constexpr std::string_view kCopyPrefix = "copy-";
/// Left free in a folder that is memory.
constexpr std::uintmax_t kMargin = std::uintmax_t{4} << 20;

/// The folders of this process, for those who ask about a file. Never destroyed: that may be at the very end.
struct OwnFolders {
    std::mutex mutex;
    std::vector<fs::path> folders;
};

OwnFolders& ownFolders()
{
    static auto* const folders = new OwnFolders;
    return *folders;
}

fs::path resolved(const fs::path& path)
{
    std::error_code failure;
    fs::path whole = fs::weakly_canonical(path, failure);
    return failure ? path.lexically_normal() : whole;
}

/// Another one as soon as the file is another one.
std::string stampOf(const fs::path& file)
{
    struct stat status { };
    if (::stat(file.c_str(), &status) != 0)
        return {};
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino) + ":" + std::to_string(status.st_size)
        + ":" + std::to_string(status.st_mtim.tv_sec) + ":" + std::to_string(status.st_mtim.tv_nsec);
}

} // namespace

DecryptedCopies::DecryptedCopies(std::function<fs::path()> scratchFolder) : scratchFolder_(std::move(scratchFolder)) { }

DecryptedCopies::~DecryptedCopies()
{
    for (auto* const folder : {&inMemory_, &onDisk_}) {
        if (!*folder)
            continue;
        (*folder)->remove();
        std::lock_guard lock(ownFolders().mutex);
        std::erase(ownFolders().folders, resolved((*folder)->path()));
    }
}

fs::path DecryptedCopies::defaultScratchFolder()
{
    return Environment::current().cacheDirectory() / "TarnModel";
}

std::string DecryptedCopies::nameForFile(const std::optional<std::string>& filename)
{
    std::string name = filename.value_or("");
    std::ranges::replace_if(
        name, [](char character) { return character == '/' || character == '\0'; }, '_');
    return name.empty() || name == "." || name == ".." ? "_" + name : name;
}

bool DecryptedCopies::hold(const fs::path& file)
{
    OwnFolders& own = ownFolders();
    std::lock_guard lock(own.mutex);
    if (own.folders.empty())
        return false;
    const fs::path whole = resolved(file);
    return std::ranges::any_of(own.folders, [&](const fs::path& folder) {
        return std::mismatch(folder.begin(), folder.end(), whole.begin(), whole.end()).first == folder.end();
    });
}

void DecryptedCopies::removeAbandonedIn(const fs::path& folder)
{
    for (HeldFolder& left : HeldFolder::abandonedIn(folder, kFolderPrefix))
        left.remove();
}

const HeldFolder* DecryptedCopies::folderIn(std::optional<HeldFolder>& folder, const fs::path& parent, NSError* error)
{
    std::error_code ignored;
    if (folder && fs::is_directory(folder->path(), ignored))
        return &*folder;
    NSError failure;
    auto made = HeldFolder::makeIn(parent, kFolderPrefix, &failure);
    if (!made) {
        failEncryption(error, OVEncryptionErrorFile, failure.localizedDescription());
        return nullptr;
    }
    folder = std::move(made);
    std::lock_guard lock(ownFolders().mutex);
    ownFolders().folders.push_back(resolved(folder->path()));
    return &*folder;
}

const HeldFolder* DecryptedCopies::folderInMemory(std::uint64_t length)
{
    const auto parent = Environment::current().runtimeDirectory();
    if (!parent)
        return nullptr;
    const auto room = Environment::current().availableSpace(*parent);
    if (!room || *room < kMargin || *room - kMargin < length)
        return nullptr;
    return folderIn(inMemory_, *parent, nullptr);
}

const HeldFolder* DecryptedCopies::folderOnDisk(NSError* error)
{
    const fs::path parent = scratchFolder_ ? scratchFolder_() : defaultScratchFolder();
    createPrivateFolder(parent); // that it is not there shows next
    return folderIn(onDisk_, parent, error);
}

/// Calls `make` with a new folder in memory, and where that does not work with one on disk.
template <typename Make>
std::optional<fs::path> DecryptedCopies::makeSomewhere(std::uint64_t length, const Make& make, NSError* error)
{
    for (const bool isInMemory : {true, false}) {
        std::optional<fs::path> folder;
        NSError failure;
        {
            std::lock_guard lock(mutex_);
            const HeldFolder* const parent = isInMemory ? folderInMemory(length) : folderOnDisk(error);
            if (parent)
                folder = NSFileManager::createUniqueDirectoryInDirectory(parent->path(), kCopyPrefix, &failure);
        }
        if (!folder) {
            if (!isInMemory && !failure.localizedDescription().empty())
                failEncryption(error, OVEncryptionErrorFile, failure.localizedDescription());
            continue;
        }
        if (make(*folder, error))
            return folder;
        NSFileManager::removeItemAtURL(*folder);
    }
    return std::nullopt;
}

std::optional<fs::path> DecryptedCopies::copy(
    const Wish& wish, const Write& write, const std::function<bool()>& isStillUnlocked, NSError* error)
{
    const std::string stamp = stampOf(wish.sealed);
    {
        std::lock_guard lock(mutex_);
        const auto found = copies_.find(wish.sealed);
        std::error_code ignored;
        if (found != copies_.end() && found->second.stamp == stamp && found->second.filename == wish.filename
            && fs::exists(found->second.folder / wish.filename, ignored))
            return found->second.folder / wish.filename;
    }
    removeOfSealedFile(wish.sealed);
    const auto folder = makeSomewhere(
        wish.length, [&](const fs::path& place, NSError* failure) { return write(place / wish.filename, failure); },
        error);
    if (!folder)
        return std::nullopt;
    const fs::path kept = keep(wish, {*folder, wish.filename, wish.password, stamp});
    // Who locks takes the keys first and the copies then, so this one is either seen there or given up here.
    if (isStillUnlocked())
        return kept;
    removeOfSealedFile(wish.sealed);
    failEncryption(error, OVEncryptionErrorLocked);
    return std::nullopt;
}

fs::path DecryptedCopies::keep(const Wish& wish, Copy copy)
{
    std::lock_guard lock(mutex_);
    const auto [place, isNew] = copies_.try_emplace(wish.sealed, copy);
    if (!isNew) // another thread was faster
        NSFileManager::removeItemAtURL(copy.folder);
    return place->second.folder / place->second.filename;
}

bool DecryptedCopies::withScratchPlace(std::uint64_t length, const Write& use, NSError* error)
{
    const auto folder = makeSomewhere(
        length, [&](const fs::path& place, NSError* failure) { return use(place / "content", failure); }, error);
    if (folder)
        NSFileManager::removeItemAtURL(*folder);
    return folder.has_value();
}

void DecryptedCopies::removeOfPassword(std::string_view password)
{
    std::lock_guard lock(mutex_);
    std::erase_if(copies_, [&](const auto& entry) {
        return entry.second.password == password && NSFileManager::removeItemAtURL(entry.second.folder);
    });
}

void DecryptedCopies::removeOfSealedFile(const fs::path& sealed)
{
    std::lock_guard lock(mutex_);
    if (const auto found = copies_.find(sealed); found != copies_.end()) {
        NSFileManager::removeItemAtURL(found->second.folder);
        copies_.erase(found);
    }
}

} // namespace tarn
