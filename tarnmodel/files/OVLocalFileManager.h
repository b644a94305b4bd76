#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Folder of all attachments in the persistent data folder. Part of the layout on disk.
inline constexpr std::string_view OVNoteLocalFileDirectoryName = "Local Files";
/// Folder of all thumbnails in the application support folder. Part of the layout on disk.
inline constexpr std::string_view OVNoteThumbFileDirectoryName = "Thumbs";

/// Which folders of the system belong to an application.
struct ApplicationIdentity {
    /// Names the folder that the application shares with its extensions, its widgets and `tarn`.
    std::string groupIdentifier = "tarn";
    /// Names the folder of the application's own, which no other program looks into.
    std::string bundleIdentifier = "TarnModel";
};

/// Where files lie on disk.
///
///     <data folder of the user>/tarn              applicationGroupURL
///         Application Data                        applicationPersistentDataURL
///             database.sqlite                     the store
///             Local Files                         the attachments
///     <data folder of the user>/TarnModel         applicationSupportURL
///         Thumbs                                  thumbnails
///
/// The data folder is $XDG_DATA_HOME, else ".local/share" in the home folder. Folders that are made here are for their
/// owner alone. Any thread.
class OVLocalFileManager {
public:
    OVLocalFileManager() = delete;

    // Roots ---------------------------------------------------------------------------------------------------------
    /// The folder that all programs of the application share: the one that was set, else the one that the group
    /// identifier names. Not made here.
    static std::filesystem::path applicationGroupURL();
    /// "Application Data" in the group folder, made when it is missing (a failure is ignored); or the folder of
    /// `setApplicationPersistentDataTestURL`, as it is.
    static std::filesystem::path applicationPersistentDataURL();
    /// The store in that folder.
    static std::filesystem::path databaseURL();
    /// The store of a group folder, which need not be the one that is set. Makes nothing.
    static std::filesystem::path databaseURLInGroupFolder(const std::filesystem::path& folder);
    /// The folder of the application's own, made when it is missing (a failure is ignored).
    static std::filesystem::path applicationSupportURL();

    // What a host sets before first use -----------------------------------------------------------------------------
    /// Names the folders of this application; the default is `ApplicationIdentity`'s.
    static void setApplicationIdentity(ApplicationIdentity identity);
    /// Another group folder, `tarn --store DIR` for example; none goes back to the identity's.
    static void setApplicationGroupURL(std::optional<std::filesystem::path> folder);
    /// Takes the place of the whole persistent data folder; none clears it. For tests.
    static void setApplicationPersistentDataTestURL(std::optional<std::filesystem::path> folder);
};

} // namespace tarn
