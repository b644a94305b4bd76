#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"

#include <algorithm>

namespace tarn {

bool OVNote::hasAttachments() const
{
    return hasFilesValue() || hasImagesValue();
}

std::vector<OVNoteFile*> OVNote::orderedFiles() const
{
    std::vector<OVNoteFile*> files = filesSet().allObjects();
    std::erase_if(files, [](const OVNoteFile* file) { return file->unused() != false; });
    std::stable_sort(files.begin(), files.end(),
        [](const OVNoteFile* left, const OVNoteFile* right) { return left->index() < right->index(); });
    return files;
}

std::vector<OVNoteImage*> OVNote::orderedImages() const
{
    std::vector<OVNoteImage*> images;
    for (OVNoteFile* file : orderedFiles()) {
        if (auto* image = dynamic_cast<OVNoteImage*>(file))
            images.push_back(image);
    }
    return images;
}

std::vector<OVNoteFile*> OVNote::orderedFilesWithoutImages() const
{
    std::vector<OVNoteFile*> files = orderedFiles();
    std::erase_if(files, [](OVNoteFile* file) { return dynamic_cast<OVNoteImage*>(file) != nullptr; });
    return files;
}

OVNoteFile* OVNote::attachmentIncludingUnusedForFilename(std::string_view filename) const
{
    OVNoteFile* unused = nullptr;
    for (OVNoteFile* file : filesSet().allObjects()) {
        if (!file->filenameIsEqualTo(filename))
            continue;
        if (!file->isUnused())
            return file;
        unused = unused ? unused : file;
    }
    return unused;
}

OVNoteFile* OVNote::attachmentForFilename(std::string_view filename) const
{
    OVNoteFile* file = attachmentIncludingUnusedForFilename(filename);
    return file && !file->isUnused() ? file : nullptr;
}

OVNoteFile* OVNote::addAttachmentFromFileURL(const FileURL& url)
{
    return OVNoteFile::getOrCreateFileFromURL(url, *this, nullptr);
}

OVNoteFile* OVNote::addAttachmentFromFileWrapper(const NSFileWrapper& fileWrapper)
{
    return OVNoteFile::getOrCreateFileFromFileWrapper(fileWrapper, *this, nullptr);
}

void OVNote::encryptFileIfNeeded(OVNoteFile* file)
{
    OVPassword* notePassword = password();
    if (!file || !notePassword || !encryptedValue())
        return;
    OVEncryptionCoreManagerProtocol* manager = encryptionCoreManager();
    if (manager && manager->hasCachedPassword(*notePassword))
        manager->addEncryptionToObject(*file, *notePassword, nullptr);
}

} // namespace tarn
