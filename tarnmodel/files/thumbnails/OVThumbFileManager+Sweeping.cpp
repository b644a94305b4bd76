#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/files/thumbnails/ThumbDraft.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <algorithm>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string, std::less<>>;

/// As many as the hexadecimal digits of a SHA-1.
constexpr std::size_t kBaseLength = 40;

NSFetchRequest pictures(NSPredicate predicate, NSManagedObjectContext& context)
{
    NSFetchRequest request(OVNoteImage::entityInManagedObjectContext(context));
    request.predicate = std::move(predicate);
    return request;
}

/// The beginnings of the names that thumbnails of clear pictures may have; false when the store cannot be asked.
bool collectBasesOfClearPictures(NSManagedObjectContext& context, Names& bases)
{
    const auto clear
        = fetchRecords<OVNoteImage>(pictures(NSPredicate::predicateWithFormat("encrypted == NO"), context), context);
    if (!clear)
        return false;
    for (const OVNoteImage* picture : *clear)
        if (const auto file = picture->primitiveFileURL())
            bases.insert(OVThumbFileManager::baseThumbNameImageURL(*file));
    return true;
}

/// Thumbnails, and drafts of such; what has no name of a thumbnail is nobody's here.
std::string_view baseOf(std::string_view name)
{
    if (const std::string draft = ThumbDraft::nameBeginning(""); name.starts_with(draft))
        name.remove_prefix(draft.size());
    const bool isBase = name.size() > kBaseLength && name.find_first_not_of("0123456789abcdef") == kBaseLength
        && name[kBaseLength] == '_';
    return isBase ? name.substr(0, kBaseLength) : std::string_view();
}

} // namespace

bool OVThumbFileManager::areTherePicturesWithoutThumbs(NSManagedObjectContext& context)
{
    // From the passwords, which have an index to what they protect; every opening of a store asks.
    const std::vector<OVPassword*> passwords = OVPassword::passwordsInManagedObjectContext(context, std::nullopt);
    return std::ranges::any_of(passwords, [&](const OVPassword* password) {
        NSFetchRequest request
            = pictures(NSPredicate::predicateWithFormat("password == %@ AND encrypted == YES", password), context);
        request.fetchLimit = 1;
        return context.count(request).value_or(0) > 0;
    });
}

std::vector<fs::path> OVThumbFileManager::thumbsWithoutPicture(NSManagedObjectContext& context) const
{
    // Listed first: what is made meanwhile is of a picture that was clear then.
    std::vector<fs::path> thumbs;
    std::error_code failure;
    for (fs::directory_iterator item(baseURL_, failure), end; !failure && item != end; item.increment(failure))
        if (!baseOf(item->path().filename().native()).empty())
            thumbs.push_back(item->path());
    Names bases;
    if (thumbs.empty() || !areTherePicturesWithoutThumbs(context) || !collectBasesOfClearPictures(context, bases))
        return {};
    std::erase_if(thumbs, [&](const fs::path& thumb) { return bases.contains(baseOf(thumb.filename().native())); });
    return thumbs;
}

std::size_t OVThumbFileManager::deleteThumbsWithoutPicture(NSManagedObjectContext& context) const
{
    std::size_t removed = 0;
    std::error_code failure;
    for (const fs::path& thumb : thumbsWithoutPicture(context))
        removed += fs::remove_all(thumb, failure) > 0 && !failure ? 1 : 0;
    if (removed > 0)
        logMessage(std::to_string(removed) + " thumbnails of no picture that may have any were removed");
    return removed;
}

} // namespace tarn
