#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

/// In the order in which they are asked: a picture that cannot be opened is still a file.
constexpr std::array kKinds{
    OVNoteFile::Kind{OVNoteImage::entityName(), OVNoteImage::canImportFileURL, OVNoteImage::noteFileForFileURL,
        OVNoteImage::recordForFileURL},
    OVNoteFile::Kind{OVNoteGenericFile::entityName(), OVNoteGenericFile::canImportFileURL,
        OVNoteGenericFile::noteFileForFileURL, OVNoteGenericFile::recordForFileURL},
};

} // namespace

std::span<const OVNoteFile::Kind> OVNoteFile::concreteSubclasses() noexcept
{
    return kKinds;
}

bool OVNoteFile::canImportFileURL(const FileURL& url)
{
    return std::ranges::any_of(kKinds, [&](const Kind& kind) { return kind.canImportFileURL(url); });
}

std::string OVNoteFile::localFolderName() const
{
    return std::string(OVNoteLocalFileDirectoryName);
}

std::map<std::string, Value> OVNoteFile::additionalFileData() const
{
    return {};
}

} // namespace tarn
