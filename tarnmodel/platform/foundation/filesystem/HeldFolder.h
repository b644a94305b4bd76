#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace tarn {

class NSError;

/// A folder that a process has for itself as long as it lives. Others see that it is held; once its process is gone, in
/// whatever way, one of them can take it over. Any thread, one at a time.
///
///     auto own = HeldFolder::makeIn(parent, "work-");
///     for (HeldFolder& left : HeldFolder::abandonedIn(parent, "work-"))
///         left.remove();
class HeldFolder {
public:
    /// A new folder, for its owner alone, whose name begins so and ends at random. None and an error when it cannot be
    /// made.
    static std::optional<HeldFolder> makeIn(
        const std::filesystem::path& parent, std::string_view prefix, NSError* error = nullptr);
    /// Folders of such names that no process holds: this one does from now on. Empty when there are none, or when the
    /// parent cannot be read.
    static std::vector<HeldFolder> abandonedIn(const std::filesystem::path& parent, std::string_view prefix);
    /// Whether somebody holds that folder, this process included. False when it is not there.
    static bool isHeld(const std::filesystem::path& folder);

    /// Lets go of it; the folder stays.
    ~HeldFolder();
    HeldFolder(HeldFolder&& other) noexcept;
    HeldFolder& operator=(HeldFolder&& other) noexcept;
    HeldFolder(const HeldFolder&) = delete;
    HeldFolder& operator=(const HeldFolder&) = delete;

    /// Where it is.
    const std::filesystem::path& path() const noexcept { return path_; }
    /// Removes it with all that is in it; a failure is ignored.
    void remove();

private:
    HeldFolder(std::filesystem::path path, int descriptor);

    std::filesystem::path path_;
    int descriptor_; ///< of the folder, which carries the lock; -1 for none
};

} // namespace tarn
