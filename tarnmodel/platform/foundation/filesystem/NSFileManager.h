#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

namespace tarn {

class NSData;
class NSError;

/// What the file system knows of a file or folder.
struct NSFileAttributes {
    std::int64_t size = 0;              ///< bytes
    NSDate modificationDate;            ///< of the content
    std::optional<NSDate> creationDate; ///< none where the file system keeps no such date
    bool isFolder = false;              ///< not a file
};

/// Files and folders as an application needs them: what is written is whole or not there, nothing covers what was there
/// before, and no file is held in memory.
///
/// Errors are the system's (`NSPOSIXErrorDomain`); they name the file. Any thread.
class NSFileManager {
public:
    NSFileManager() = delete;

    /// Whether something has that name, a link that leads nowhere included.
    static bool fileExistsAtURL(const std::filesystem::path& url);
    /// Links are followed. None and an error when there is nothing, or it cannot be looked at.
    static std::optional<NSFileAttributes> attributesOfItemAtURL(
        const std::filesystem::path& url, NSError* error = nullptr);
    /// Gives a file or folder another date of modification.
    static bool setModificationDate(NSDate date, const std::filesystem::path& ofItemAtURL, NSError* error = nullptr);
    /// Gives a file the permissions of another one, and its owner and group where this user may.
    static bool setAccess(
        const std::filesystem::path& ofItemAtURL, const std::filesystem::path& likeItemAtURL, NSError* error = nullptr);
    /// Copies a file, or a folder with all that is in it, under a new name; fails when that is taken. The copy is for
    /// its owner alone and has the original's modification date; until it is whole it has another, hidden name in the
    /// same folder. Blocks are shared where the file system can, and holes stay holes. A link is followed, but those
    /// within a folder are copied as links. What is neither file nor folder is refused.
    static bool copyItemAtURL(
        const std::filesystem::path& source, const std::filesystem::path& destination, NSError* error = nullptr);
    /// Renames a file or folder; fails when the name is taken. To another file system it is copied and then removed.
    static bool moveItemAtURL(
        const std::filesystem::path& source, const std::filesystem::path& destination, NSError* error = nullptr);
    /// Puts a file or folder in the place of another, which gets an unused name, in one step where the file system can:
    /// who looks finds the one or the other. All of one file system. After a failure all is as it was.
    static bool replaceItemAtURL(const std::filesystem::path& url, const std::filesystem::path& withItemAtURL,
        const std::filesystem::path& backupURL, NSError* error = nullptr);
    /// Writes a new file, for its owner alone, under a hidden name first; fails when the name is taken.
    static bool createFileAtURL(const std::filesystem::path& url, const NSData& contents, NSError* error = nullptr);
    /// The same, piece by piece: `nextPiece` fills a buffer from its beginning and says how much of it; 0 is the end,
    /// none gives up, and then `error` is left as it is.
    static bool createFileAtURL(const std::filesystem::path& url,
        const std::function<std::optional<std::size_t>(std::span<std::byte>)>& nextPiece, NSError* error = nullptr);
    /// Removes a file, or a folder with all that is in it. Links are removed, not followed. True when there was
    /// nothing.
    static bool removeItemAtURL(const std::filesystem::path& url, NSError* error = nullptr);
    /// Makes one folder, for its owner alone; fails when the name is taken, or the folder around it is not there.
    static bool createDirectoryAtURL(const std::filesystem::path& url, NSError* error = nullptr);
    /// Makes one folder, for its owner alone, whose name begins so and ends in six characters that nothing else there
    /// has.
    static std::optional<std::filesystem::path> createUniqueDirectoryInDirectory(
        const std::filesystem::path& directory, std::string_view prefix, NSError* error = nullptr);
    /// Whether something can be renamed from one to the other. What is not there yet counts as the folder around it.
    static bool areOnOneFileSystem(const std::filesystem::path& one, const std::filesystem::path& other);
    /// Whether both are files of the same bytes. False when one of them cannot be read.
    static bool contentsEqualAtURLs(const std::filesystem::path& one, const std::filesystem::path& other);
    /// Returns when what was written to these files and folders would survive a loss of power. Many are cheaper than
    /// one by one.
    static bool synchronizeItemsAtURLs(std::span<const std::filesystem::path> urls, NSError* error = nullptr);

    /// Beginning of the names of files that are not whole yet; who finds one that is not being written may remove it.
    static constexpr std::string_view unfinishedPrefix = ".unfinished-";
};

} // namespace tarn
