#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/filetypes/UTType.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"

namespace tarn {

namespace {

/// "png" of "a.png"; empty when there is none.
std::string extensionOf(const std::filesystem::path& file)
{
    const std::string extension = file.extension().string();
    return extension.empty() ? extension : extension.substr(1);
}

} // namespace

bool OVNoteImage::canImportFileURL(const FileURL& url)
{
    const auto type = UTType::typeWithFilenameExtension(extensionOf(url.path));
    return type && type->conformsToImage() && !type->conformsToSVG();
}

OVNoteFile* OVNoteImage::recordForFileURL(const FileURL& url, NSManagedObjectContext& context, NSError* error)
{
    // What its header says it is, and within what a thumbnail can be made of; decoded it is only when it is shown.
    const auto header = readImageHeader(url.path, error);
    if (!header || !imageIsWithinLimits(*header, ImageLimits::current(), error))
        return nullptr;
    OVNoteImage* const image = insertInManagedObjectContext(context);
    image->setWidthValue(header->uprightWidth());
    image->setHeightValue(header->uprightHeight());
    return image;
}

OVNoteFile* OVNoteImage::noteFileForFileURL(const FileURL& url, NSManagedObjectContext& context, NSError* error)
{
    auto* const image = static_cast<OVNoteImage*>(recordForFileURL(url, context, error));
    if (!image)
        return nullptr;
    const std::int64_t width = image->widthValue();
    const std::int64_t height = image->heightValue();
    if (!image->takeFile(url, error))
        return nullptr;
    image->setWidthValue(width);
    image->setHeightValue(height);
    return image;
}

OVNoteImage::Size OVNoteImage::imageSizeForImageURL(const FileURL& url)
{
    const auto header = readImageHeader(url.path, nullptr);
    if (!header)
        return {};
    return {static_cast<double>(header->uprightWidth()), static_cast<double>(header->uprightHeight())};
}

std::string OVNoteImage::localFolderName() const
{
    return OVNoteFile::localFolderName() + "/" + std::string(OVNoteImageDirectoryName);
}

std::map<std::string, Value> OVNoteImage::additionalFileData() const
{
    return {{"width", valueForKey("width")}, {"height", valueForKey("height")}};
}

void OVNoteImage::deleteFileThumbnails()
{
    if (encryptedValue())
        return;
    if (const auto file = fileURL())
        OVThumbFileManager::thumbFileManagerForPathComponent(OVNoteThumbFileDirectoryName)
            ->deleteAllThumbsForImageURL(*file);
}

void OVNoteImage::updateFileMetadata()
{
    _OVNoteImage::updateFileMetadata();
    if (hasEncryptionAndIsLocked())
        return;
    const auto file = encryptedValue() && !downloadedValue() ? std::nullopt : fileURL();
    if (encryptedValue() && !file)
        return;
    const Size size = file ? imageSizeForImageURL(*file) : Size();
    setWidthValue(static_cast<std::int64_t>(size.width));
    setHeightValue(static_cast<std::int64_t>(size.height));
}

} // namespace tarn
