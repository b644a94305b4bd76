#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/SHA1.h"
#include "tarnmodel/files/thumbnails/ThumbDraft.h"
#include "tarnmodel/files/thumbnails/ThumbDrawing.h"
#include "tarnmodel/files/thumbnails/ThumbStamp.h"
#include "tarnmodel/platform/foundation/filesystem/PrivateFolder.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <set>
#include <system_error>
#include <utility>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

struct SharedManagers {
    std::mutex mutex;
    std::map<fs::path, std::shared_ptr<OVThumbFileManager>> byFolder;
};

/// Never destroyed: threads may still ask when the process ends.
SharedManagers& sharedManagers()
{
    static auto* const instance = new SharedManagers;
    return *instance;
}

/// What begins with `prefix` and one of the names of `bases`, which are all of one length.
void removeItems(const fs::path& folder, std::string_view prefix, const std::set<std::string, std::less<>>& bases)
{
    const std::size_t length = bases.begin()->size();
    std::vector<fs::path> items;
    std::error_code failure;
    for (fs::directory_iterator item(folder, failure), end; !failure && item != end; item.increment(failure)) {
        std::string_view name = item->path().native();
        name.remove_prefix(name.rfind('/') + 1);
        if (name.starts_with(prefix) && bases.contains(name.substr(prefix.size(), length)))
            items.push_back(item->path());
    }
    for (const fs::path& item : items)
        fs::remove_all(item, failure);
}

} // namespace

OVThumbFileManager::OVThumbFileManager(fs::path baseURL) : baseURL_(std::move(baseURL)) { }

// A component names another folder once the application has another identity, as in tests.
std::shared_ptr<OVThumbFileManager> OVThumbFileManager::thumbFileManagerForPathComponent(std::string_view component)
{
    SharedManagers& managers = sharedManagers();
    const std::lock_guard lock(managers.mutex);
    auto& manager = managers.byFolder[folderURLForPathComponent(component)];
    if (!manager)
        manager = initWithPathComponent(component);
    return manager;
}

fs::path OVThumbFileManager::folderURLForPathComponent(std::string_view component)
{
    fs::path folder = OVLocalFileManager::applicationSupportURL() / component;
    createPrivateFolder(folder);
    return folder;
}

std::shared_ptr<OVThumbFileManager> OVThumbFileManager::initWithPathComponent(std::string_view component)
{
    return initWithBaseURL(folderURLForPathComponent(component));
}

std::shared_ptr<OVThumbFileManager> OVThumbFileManager::initWithBaseURL(fs::path baseURL)
{
    if (baseURL.empty())
        return nullptr;
    return std::shared_ptr<OVThumbFileManager>(new OVThumbFileManager(std::move(baseURL)));
}

std::optional<fs::path> OVThumbFileManager::thumbURLForImageURL(
    const fs::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options) const
{
    if (OVEncryptionCoreManager::isDecryptedFile(imageURL))
        return std::nullopt;
    const NSDate moment = now();
    const auto state = stateOfSource(imageURL);
    fs::path thumb = baseURL_ / thumbNameForImageURL(imageURL, thumbSize, options);
    const auto published = state ? publishedStamp(thumb) : std::nullopt;
    if (!published || !published->stamp.isOf(*state))
        return std::nullopt;
    if (isSettled(*state, published->seen))
        return thumb;
    // The image had just changed when the thumbnail was made. Another change in the same tick of the clock would not
    // show in its state; its content tells.
    if (published->stamp.sha1.empty() || published->stamp.sha1 != sha1OfFile(imageURL))
        return std::nullopt;
    if (isSettled(*state, moment))
        noteSourceSeen(thumb, moment);
    return thumb;
}

bool OVThumbFileManager::thumbAtURLShowsOptions(const fs::path& thumbURL, const OVThumbOptions& options)
{
    const auto published = publishedStamp(thumbURL);
    return published && published->stamp.look == lookBeyondName(options);
}

void OVThumbFileManager::deleteAllThumbsForImageURL(const fs::path& imageURL) const
{
    deleteAllThumbsForImageURLs(std::span(&imageURL, 1));
}

void OVThumbFileManager::deleteAllThumbsForImageURLs(std::span<const fs::path> imageURLs) const
{
    std::set<std::string, std::less<>> bases;
    for (const fs::path& imageURL : imageURLs)
        if (!imageURL.empty())
            bases.insert(baseThumbNameImageURL(imageURL));
    if (bases.empty())
        return;
    // Drafts go first: what has been published by then goes next, and what has not cannot be.
    removeItems(baseURL_, ThumbDraft::nameBeginning(""), bases);
    removeItems(baseURL_, "", bases);
}

} // namespace tarn
