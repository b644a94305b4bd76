#pragma once

#include "tarnmodel/files/thumbnails/OVThumbOptions.h"
#include "tarnmodel/platform/foundation/filetypes/UTType.h"
#include "tarnmodel/platform/imaging/Bitmap.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

class NSError;
class NSManagedObjectContext;

/// Makes, finds and deletes small copies of images, in one folder.
///
/// The name of a thumbnail follows from the image's path, the options and the size; so the same request finds the same
/// file. The file says of which state of the image it was made: once the image has changed it is not found any more.
/// Any thread; the folder may be used by several processes.
///
///     auto thumbs = OVThumbFileManager::thumbFileManagerForPathComponent(OVNoteThumbFileDirectoryName);
///     thumbs->thumbForImageURL(photograph, {200, 150}, OVThumbFileManager::defaultThumbOptions(),
///         [](auto url, auto image) { show(image); });
class OVThumbFileManager : public std::enable_shared_from_this<OVThumbFileManager> {
public:
    /// Hears where a thumbnail lies, or none; on the main queue.
    using ThumbHandler = std::function<void(std::optional<std::filesystem::path> url)>;
    /// Hears the same and gets the thumbnail's image, or none when it cannot be loaded.
    using ImageHandler = std::function<void(std::optional<std::filesystem::path> url, std::optional<Bitmap> image)>;

    // Managers ------------------------------------------------------------------------------------------------------
    /// The one of this process for the folder of that name, made at the first call; never destroyed.
    static std::shared_ptr<OVThumbFileManager> thumbFileManagerForPathComponent(std::string_view component);
    /// The folder of this name in the application's own folder, made when it is missing (a failure is ignored).
    static std::filesystem::path folderURLForPathComponent(std::string_view component);
    /// A manager of that folder.
    static std::shared_ptr<OVThumbFileManager> initWithPathComponent(std::string_view component);
    /// A manager of this folder, which is not made here; null for an empty path.
    static std::shared_ptr<OVThumbFileManager> initWithBaseURL(std::filesystem::path baseURL);

    /// Where the thumbnails lie.
    const std::filesystem::path& baseURL() const noexcept { return baseURL_; }

    // Names (OVThumbFileManager+Names.cpp) --------------------------------------------------------------------------
    /// What the names of all thumbnails of an image begin with: the SHA-1 of its path as 40 lower-case digits. The path
    /// of the home folder does not count.
    static std::string baseThumbNameImageURL(const std::filesystem::path& imageURL);
    /// The SHA-1 of a text's bytes as 40 lower-case digits.
    static std::string sha1ForString(std::string_view string);
    /// The name of a thumbnail's file.
    std::string thumbNameForImageURL(
        const std::filesystem::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options = {}) const;
    /// What each option has when it is not set, but for the trimming, the margin and the background.
    static OVThumbOptions defaultThumbOptions();
    /// What the options add to a name, in this order: "_pr_1" "_cn" "_cv" for those that are true, "_aa_0" or "_aa_1",
    /// "_x_" and "_y_" with six digits of the number, for those that are set. The others add nothing.
    static std::string stringFromOptions(const OVThumbOptions& options);
    /// What files with this extension are; none when it is empty or not known.
    std::optional<UTType> UTIFromExtension(std::string_view extension) const;
    /// The extensions that were asked for and known, as they were written, with their types.
    std::map<std::string, UTType, std::less<>> utiCache() const;
    /// "jpg" for the extensions of JPEG files, else "png".
    std::string thumbExtensionForImageExtension(std::string_view extension) const;

    // Finding and deleting ------------------------------------------------------------------------------------------
    /// The thumbnail, if it has been made of the image as it is now. None when the image has changed since or is gone.
    /// An image that had changed in the seconds before its thumbnail was made is read again, once.
    std::optional<std::filesystem::path> thumbURLForImageURL(
        const std::filesystem::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options = {}) const;
    /// Whether a thumbnail that was found is trimmed and painted as these options say. Its name does not tell: the one
    /// that was made last is found under it.
    static bool thumbAtURLShowsOptions(const std::filesystem::path& thumbURL, const OVThumbOptions& options);
    /// Deletes the thumbnails of an image in all sizes, and what makers of such have left behind; failures are ignored.
    /// Makers that are under way give none.
    void deleteAllThumbsForImageURL(const std::filesystem::path& imageURL) const;
    /// The same for many images, in one look through the folder.
    void deleteAllThumbsForImageURLs(std::span<const std::filesystem::path> imageURLs) const;

    // Sweeping (OVThumbFileManager+Sweeping.cpp) ----------------------------------------------------------------------
    /// Whether passwords of the store protect pictures. On the context's queue.
    static bool areTherePicturesWithoutThumbs(NSManagedObjectContext& context);
    /// Where the store has protected pictures: the thumbnails here that are of none of its clear ones, such as those
    /// that were made in clear times and that nobody deleted. Reads all pictures; none where the store cannot be asked.
    /// On the context's queue.
    std::vector<std::filesystem::path> thumbsWithoutPicture(NSManagedObjectContext& context) const;
    /// Deletes these; how many went. On the context's queue.
    std::size_t deleteThumbsWithoutPicture(NSManagedObjectContext& context) const;

    // Making (OVThumbFileManager+Making.cpp) ------------------------------------------------------------------------
    /// Makes the thumbnail, upright, in place of an earlier one. Readers see the earlier one or this one, whole. None
    /// with an error when the image cannot be decoded or is over a limit, nothing is left of it, the size cannot be
    /// drawn, or the file cannot be written; nothing is stored then. A failure to write is logged too. Of a decrypted
    /// copy of a protected picture none is made: it would outlive the copy.
    std::optional<std::filesystem::path> makeThumbForImageURL(const std::filesystem::path& imageURL,
        OVThumbSize thumbSize, const OVThumbOptions& options = {}, NSError* error = nullptr) const;
    /// The same on the global queue; `success` hears of it on the main queue.
    void makeThumbForImageURL(const std::filesystem::path& imageURL, OVThumbSize thumbSize,
        const OVThumbOptions& options, ThumbHandler success) const;
    void makeThumbForImageURL(const std::filesystem::path& imageURL, OVThumbSize thumbSize, ThumbHandler success) const;
    /// Finds the thumbnail, or makes it where there is none, and loads it, on the global queue; `success` gets both on
    /// the main queue. Of a decrypted copy of a protected picture there is only the image, in memory.
    void thumbForImageURL(const std::filesystem::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options,
        ImageHandler success) const;

private:
    explicit OVThumbFileManager(std::filesystem::path baseURL);
    std::pair<std::optional<std::filesystem::path>, std::optional<Bitmap>> thumbAndImage(
        const std::filesystem::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options) const;

    const std::filesystem::path baseURL_;
    mutable std::mutex mutex_;
    mutable std::map<std::string, UTType, std::less<>> utiCache_; ///< guarded by `mutex_`
};

} // namespace tarn
