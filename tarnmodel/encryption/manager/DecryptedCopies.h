#pragma once

#include "tarnmodel/platform/foundation/filesystem/HeldFolder.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

class NSError;

/// Clear copies of sealed files, for as long as their passwords are unlocked: in memory where the user has a folder
/// there that holds them, else in the folder that the host names. Any thread.
class DecryptedCopies {
public:
    /// Makes an item where it is told; what is left after a failure is removed.
    using Write = std::function<bool(const std::filesystem::path& place, NSError* error)>;

    explicit DecryptedCopies(std::function<std::filesystem::path()> scratchFolder);
    /// Removes all.
    ~DecryptedCopies();
    DecryptedCopies(const DecryptedCopies&) = delete;
    DecryptedCopies& operator=(const DecryptedCopies&) = delete;

    struct Wish {
        std::filesystem::path sealed; ///< the file to be decrypted
        std::string filename;         ///< of the copy
        std::string password;         ///< whose lock ends it
        std::uint64_t length = 0;     ///< bytes that it takes at most
    };
    /// The copy that is there, while the sealed file is the same, or a new one. `isStillUnlocked` is asked once it is
    /// made. None and an error when it cannot be made, or was locked meanwhile.
    std::optional<std::filesystem::path> copy(
        const Wish& wish, const Write& write, const std::function<bool()>& isStillUnlocked, NSError* error);
    /// A place for something clear of that length, for the scope of `use`, after which it is removed.
    bool withScratchPlace(std::uint64_t length, const Write& use, NSError* error);

    void removeOfPassword(std::string_view password);
    void removeOfSealedFile(const std::filesystem::path& sealed);

    /// Whether a file lies where some object of this class puts its copies.
    static bool hold(const std::filesystem::path& file);
    /// Removes what processes left there that died.
    static void removeAbandonedIn(const std::filesystem::path& folder);
    /// The folder for those who name none.
    static std::filesystem::path defaultScratchFolder();
    /// The name of a file that has this name in its record, whatever that is.
    static std::string nameForFile(const std::optional<std::string>& filename);

private:
    struct Copy {
        std::filesystem::path folder; ///< of its own
        std::string filename;
        std::string password;
        std::string stamp; ///< of the sealed file
    };
    std::filesystem::path keep(const Wish& wish, Copy copy);
    template <typename Make>
    std::optional<std::filesystem::path> makeSomewhere(std::uint64_t length, const Make& make, NSError* error);
    const HeldFolder* folderInMemory(std::uint64_t length);
    const HeldFolder* folderOnDisk(NSError* error);
    const HeldFolder* folderIn(std::optional<HeldFolder>& folder, const std::filesystem::path& parent, NSError* error);

    const std::function<std::filesystem::path()> scratchFolder_;
    std::mutex mutex_;
    std::optional<HeldFolder> inMemory_;
    std::optional<HeldFolder> onDisk_;
    std::map<std::filesystem::path, Copy> copies_; ///< by the sealed file
};

} // namespace tarn
