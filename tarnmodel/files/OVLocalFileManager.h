#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

class NSError;

/// Folder of all attachments in the persistent data folder. Part of the layout on disk.
inline constexpr std::string_view OVNoteLocalFileDirectoryName = "Local Files";
/// Folders of the images and of the other attachments in that one. Part of the layout on disk.
inline constexpr std::string_view OVNoteImageDirectoryName = "Note Images";
inline constexpr std::string_view OVNoteGenericFileDirectoryName = "Note Files";
/// Folder of all thumbnails in the application support folder. Part of the layout on disk.
inline constexpr std::string_view OVNoteThumbFileDirectoryName = "Thumbs";

/// Which folders of the system belong to an application.
struct ApplicationIdentity {
    /// Names the folder that the application shares with its extensions, its widgets and `tarn`.
    std::string groupIdentifier = "tarn";
    /// Names the folders of the application's own, which no other program looks into.
    std::string bundleIdentifier = "TarnModel";
};

/// Where files lie on disk, and one folder of attachments.
///
///     <data folder of the user>/tarn              applicationGroupURL
///         Application Data                        applicationPersistentDataURL
///             database.sqlite                     the store
///             Local Files                         the attachments
///                 Note Images                     baseURL of a manager
///                     <identifier>/<name>         one attachment
///                 Note Files
///     <data folder of the user>/TarnModel         applicationSupportURL
///         Thumbs                                  thumbnails
///     <cache folder of the user>/TarnModel        temporaryDirectoryURL, in here
///
/// The data folder is $XDG_DATA_HOME, else ".local/share" in the home folder; the cache folder $XDG_CACHE_HOME, else
/// ".cache". Folders that are made here are for their owner alone. Any thread.
class OVLocalFileManager {
public:
    /// Null when `baseURL` is empty.
    static std::shared_ptr<OVLocalFileManager> initWithBaseURL(std::filesystem::path baseURL);
    /// A manager of the folder of that component.
    static std::shared_ptr<OVLocalFileManager> initWithPathComponent(std::string_view component);
    /// The one that all share; while there is a test folder a new one, so that the folder counts at once.
    static std::shared_ptr<OVLocalFileManager> localFileManagerForPathComponent(std::string_view component);

    // Roots ---------------------------------------------------------------------------------------------------------
    /// The component in the persistent data folder, made when nothing has that name (a failure is ignored).
    static std::filesystem::path folderURLForPathComponent(std::string_view component);
    /// The folder that all programs of the application share: the one that was set, else the one that the group
    /// identifier names. Not made here.
    static std::filesystem::path applicationGroupURL();
    /// The same whatever `setApplicationGroupURL` has said: where the user's own store lies, whose pictures have their
    /// thumbnails in the application's folder.
    static std::filesystem::path defaultApplicationGroupURL();
    /// "Application Data" in the group folder, made when it is missing (a failure is ignored); or the folder of
    /// `setApplicationPersistentDataTestURL`, as it is.
    static std::filesystem::path applicationPersistentDataURL();
    /// The store in that folder.
    static std::filesystem::path databaseURL();
    /// The store of a group folder, which need not be the one that is set. Makes nothing.
    static std::filesystem::path databaseURLInGroupFolder(const std::filesystem::path& folder);
    /// The folder of the application's own, made when it is missing (a failure is ignored).
    static std::filesystem::path applicationSupportURL();

    /// The application's own folder for what can be made again. Not made here.
    static std::filesystem::path applicationCachesURL();

    // What a host sets before first use -----------------------------------------------------------------------------
    /// Names the folders of this application; the default is `ApplicationIdentity`'s.
    static void setApplicationIdentity(ApplicationIdentity identity);
    /// Another group folder, `tarn --store DIR` for example; none goes back to the identity's.
    static void setApplicationGroupURL(std::optional<std::filesystem::path> folder);
    /// Takes the place of the whole persistent data folder; none clears it. For tests.
    static void setApplicationPersistentDataTestURL(std::optional<std::filesystem::path> folder);

    // Temporary files (OVLocalFileManager+Temporary.cpp) ------------------------------------------------------------
    /// The folder of this process for temporary files: private, made when it is first asked for, and held as long as
    /// the process lives. It lies below the user's cache folder; below "Caches" in the group folder where that is on
    /// another file system, since only within one a file can be moved into place; and where neither can be made, in the
    /// folder that all programs share. Empty when it cannot be made there either.
    static std::filesystem::path temporaryDirectoryURL();
    /// A new, empty folder "TarnTemp.XXXXXX" in there at each call. When it cannot be made, the path of none that
    /// exists.
    static std::filesystem::path temporaryUniqueDirectoryURL();
    /// The same as a text.
    static std::string temporaryUniqueDirectoryPath();
    /// Copies a file or folder, under its own name, into a new temporary folder. None when there is no file, or when
    /// the copy fails.
    static std::optional<std::filesystem::path> copyFileURLToTemporaryDirectory(
        const std::optional<std::filesystem::path>& file);
    /// Removes all that is in the process's own folder, and what processes left that ended; never what a living
    /// process uses. Call it when nothing is being imported. Failures are ignored.
    static void deleteTemporaryDirectoryContent();
    /// Removes only what processes left that ended. A store stack does it before it opens the store: a migration that
    /// was killed may have left a second name of it there.
    static void removeAbandonedTemporaryDirectories();

    // One folder of attachments ---------------------------------------------------------------------------------------
    /// The folder that it serves; it need not exist any more.
    const std::filesystem::path& baseURL() const noexcept { return baseURL_; }
    /// The folder of a record, made when nothing has its name; what has it is taken as the folder. None and an error
    /// when it cannot be made, as when `baseURL` is gone.
    std::optional<std::filesystem::path> getOrCreateFolderForUniqueID(
        std::string_view uniqueIdentifier, NSError* error = nullptr) const;
    /// The folder of a record, which need not exist. An identifier never leads out of `baseURL`.
    std::filesystem::path folderURLForUniqueID(std::string_view uniqueIdentifier) const;
    /// The file of a record, which need not exist. A name never leads out of the record's folder: what it may not hold
    /// becomes "_", and 255 bytes are the most.
    std::filesystem::path fileURLForUniqueID(std::string_view uniqueIdentifier, std::string_view filename) const;
    /// Copies a file, or a folder, into the record's folder; none and an error when that fails, as when the name is
    /// taken. A folder that was made for it goes again then.
    std::optional<std::filesystem::path> copyFileAtURL(const std::filesystem::path& source,
        std::string_view toLocalFolderForUniqueID, std::string_view filename, NSError* error = nullptr) const;
    /// The same, but the source is gone afterwards.
    std::optional<std::filesystem::path> moveFileAtURL(const std::filesystem::path& source,
        std::string_view toLocalFolderForUniqueID, std::string_view filename, NSError* error = nullptr) const;
    /// Removes the record's folder with all that is in it, at once; failures are ignored. None: nothing happens.
    void deleteFileForUniqueID(std::optional<std::string_view> uniqueIdentifier) const;

private:
    explicit OVLocalFileManager(std::filesystem::path baseURL);

    const std::filesystem::path baseURL_;
};

} // namespace tarn
