#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/files/thumbnails/ScaledDrawing.h"
#include "tarnmodel/files/thumbnails/ThumbDraft.h"
#include "tarnmodel/files/thumbnails/ThumbDrawing.h"
#include "tarnmodel/files/thumbnails/ThumbStamp.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/ImageEncoding.h"
#include "tarnmodel/platform/imaging/ImageFile.h"

#include <fmt/format.h>

#include <new>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

std::nullopt_t fail(NSError* error, std::string_view text)
{
    assignError(error, NSError("Tarn Model", 0, text));
    return std::nullopt;
}

bool encode(const Bitmap& bitmap, std::string_view thumbName, const fs::path& file, NSError* error)
{
    return thumbName.ends_with(".jpg") ? writeJPEG(bitmap, file, error) : writePNG(bitmap, file, error);
}

std::optional<fs::path> makeThumb(
    const fs::path& picture, PixelSize size, const OVThumbOptions& options, const fs::path& destination, NSError* error)
{
    if (!stateOfSource(picture))
        return fail(error, fmt::format("\"{}\" is no file.", picture.string()));
    // The draft is there before the picture is read: whoever deletes the thumbnails meanwhile deletes it too.
    const std::string name = destination.filename().string();
    ThumbDraft draft(destination.parent_path(), name);
    if (!draft.isThere()) {
        logMessage(fmt::format("Failed to create CGImageDestination for {}", destination.string()));
        return fail(error, fmt::format("No file can be made in \"{}\".", destination.parent_path().string()));
    }
    std::optional<Bitmap> thumb;
    auto source = readInOneState(
        picture, [&] { return (thumb = drawThumb(picture, size, options, error)).has_value(); }, error);
    if (!source)
        return std::nullopt;
    source->stamp.look = lookBeyondName(options);
    const auto failToWrite = [&] {
        logMessage(fmt::format("Failed to write image to {}", destination.string()));
        return std::nullopt;
    };
    if (!encode(*thumb, name, draft.path(), error))
        return failToWrite();
    if (const std::error_code failure = draft.publish(*source, destination)) {
        fail(error, fmt::format("\"{}\" cannot be written: {}.", destination.string(), failure.message()));
        return failToWrite();
    }
    return destination;
}

std::optional<Bitmap> drawInMemory(const fs::path& picture, OVThumbSize thumbSize, const OVThumbOptions& options)
{
    try {
        return drawThumb(picture, {wholePixels(thumbSize.width), wholePixels(thumbSize.height)}, options, nullptr);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

} // namespace

std::optional<fs::path> OVThumbFileManager::makeThumbForImageURL(
    const fs::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options, NSError* error) const
{
    if (OVEncryptionCoreManager::isDecryptedFile(imageURL))
        return fail(error,
            fmt::format("\"{}\" is a protected picture, of which no thumbnail is kept.", imageURL.filename().string()));
    const PixelSize size = {wholePixels(thumbSize.width), wholePixels(thumbSize.height)};
    const fs::path destination = baseURL_ / thumbNameForImageURL(imageURL, thumbSize, options);
    try {
        return makeThumb(imageURL, size, options, destination, error);
    } catch (const std::bad_alloc&) {
        return fail(error, fmt::format("There is not enough memory for a thumbnail of \"{}\".", imageURL.string()));
    }
}

std::pair<std::optional<fs::path>, std::optional<Bitmap>> OVThumbFileManager::thumbAndImage(
    const fs::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options) const
{
    if (OVEncryptionCoreManager::isDecryptedFile(imageURL))
        return {std::nullopt, drawInMemory(imageURL, thumbSize, options)};
    auto url = thumbURLForImageURL(imageURL, thumbSize, options);
    if (!url)
        url = makeThumbForImageURL(imageURL, thumbSize, options);
    auto image = url ? loadImage(*url) : std::nullopt;
    return {std::move(url), std::move(image)};
}

// The main queue is asked for here: where it was not yet used, the thread that asks becomes its owner.
void OVThumbFileManager::makeThumbForImageURL(
    const fs::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options, ThumbHandler success) const
{
    GlobalQueue::shared().async([self = shared_from_this(), imageURL, thumbSize, options, success = std::move(success),
                                    &main = MainQueue::main()] {
        auto url = self->makeThumbForImageURL(imageURL, thumbSize, options);
        main.async([url = std::move(url), success] { success(url); });
    });
}

void OVThumbFileManager::makeThumbForImageURL(
    const fs::path& imageURL, OVThumbSize thumbSize, ThumbHandler success) const
{
    makeThumbForImageURL(imageURL, thumbSize, {}, std::move(success));
}

void OVThumbFileManager::thumbForImageURL(
    const fs::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options, ImageHandler success) const
{
    GlobalQueue::shared().async([self = shared_from_this(), imageURL, thumbSize, options, success = std::move(success),
                                    &main = MainQueue::main()] {
        auto [url, image] = self->thumbAndImage(imageURL, thumbSize, options);
        main.async([url = std::move(url), image = std::move(image), success] { success(url, image); });
    });
}

} // namespace tarn
