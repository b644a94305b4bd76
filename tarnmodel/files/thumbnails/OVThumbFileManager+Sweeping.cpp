#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/files/thumbnails/ThumbDraft.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string, std::less<>>;

/// As many as the hexadecimal digits of a SHA-1.
constexpr std::size_t kBaseLength = 40;

NSFetchRequest picturesThatAre(const char* predicate, NSManagedObjectContext& context)
{
    NSFetchRequest request(OVNoteImage::entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat(predicate);
    return request;
}

/// The beginnings of the names that thumbnails of clear pictures may have; false when the store cannot be asked.
bool collectBasesOfClearPictures(NSManagedObjectContext& context, Names& bases)
{
    const auto pictures = fetchRecords<OVNoteImage>(picturesThatAre("encrypted == NO", context), context);
    if (!pictures)
        return false;
    for (const OVNoteImage* picture : *pictures)
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
    return context.count(picturesThatAre("encrypted == YES", context)).value_or(0) > 0;
}

void OVThumbFileManager::deleteThumbsWithoutPicture(NSManagedObjectContext& context) const
{
    // Listed first: what is made meanwhile is of a picture that was clear then.
    std::vector<fs::path> thumbs;
    std::error_code failure;
    for (fs::directory_iterator item(baseURL_, failure), end; !failure && item != end; item.increment(failure))
        if (!baseOf(item->path().filename().native()).empty())
            thumbs.push_back(item->path());
    Names bases;
    if (thumbs.empty() || !areTherePicturesWithoutThumbs(context) || !collectBasesOfClearPictures(context, bases))
        return;
    std::size_t removed = 0;
    for (const fs::path& thumb : thumbs)
        if (!bases.contains(baseOf(thumb.filename().native())) && fs::remove_all(thumb, failure) > 0)
            ++removed;
    if (removed > 0)
        logMessage(std::to_string(removed) + " thumbnails of no picture that may have any were removed");
}

} // namespace tarn
