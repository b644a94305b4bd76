#include "tools/tarn/import/reading/ExportedFiles.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKLink.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tools/tarn/files/AttachmentLinks.h"

#include <fstream>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Whether it begins as an export begins it.
bool isFileOfExport(const fs::path& file)
{
    const std::string beginning = "---\n" + std::string(kIdentifierLine);
    std::string found(beginning.size(), '\0');
    std::ifstream stream(file, std::ios::binary);
    stream.read(found.data(), static_cast<std::streamsize>(found.size()));
    return stream && found == beginning;
}

/// As a note compares names with what its links say.
std::string comparedName(const std::string& name)
{
    return canonicallyComposed(stringByRemovingPercentEncoding(name).value_or(name));
}

/// An identifier that begins so.
std::string identifierBeginningWith(const std::string& beginning, NSManagedObjectContext& context)
{
    const std::string random = newUUIDString();
    if (beginning.size() > random.size())
        return beginning;
    const std::string whole = beginning + random.substr(beginning.size());
    return OVNoteFile::noteFileWithUniqueIdentifier(whole, context) ? random : whole;
}

} // namespace

std::string_view placeOfAttachment(std::string_view destination)
{
    const std::size_t folder = kAttachmentsFolder.size() + 1;
    if (!destination.starts_with(kAttachmentsFolder) || destination.find('/') != kAttachmentsFolder.size())
        return {};
    const std::size_t end = destination.find('/', folder);
    return end == std::string_view::npos || end == folder ? std::string_view() : destination.substr(0, end + 1);
}

std::string textWithoutPlaces(const std::string& text, const std::map<std::string, std::optional<std::string>>& names)
{
    const CVKAST document = CVKAST::fromMarkdown(text);
    std::map<std::size_t, CVKTextEdit> edits; // by their place: a definition gives many links their destination
    for (const CVKLink& link : document.links()) {
        const auto name = names.find(link.decodedDestination);
        if (link.form == CVKLinkForm::Wiki || link.form == CVKLinkForm::Autolink || name == names.end()
            || !name->second)
            continue;
        const CVKRange written = link.destination;
        const std::size_t place
            = placeOfAttachment(std::string_view(text).substr(written.location, written.length)).size();
        const std::string file = fs::path(link.decodedDestination).filename().native();
        edits[written.location] = place > 0 && comparedName(file) == comparedName(*name->second)
            ? CVKTextEdit{{written.location, place}, ""}
            : CVKTextEdit{written, linkDestinationForFilename(*name->second)};
    }
    std::string without;
    std::size_t from = 0;
    for (const auto& [location, edit] : edits) {
        without += text.substr(from, edit.range.location - from) + edit.replacement;
        from = edit.range.end();
    }
    return without + text.substr(from);
}

OVNoteFile* attachExportedFile(const fs::path& path, OVNote& note, NSError* error)
{
    NSManagedObjectContext& context = note.managedObjectContext();
    for (const OVNoteFile::Kind& kind : OVNoteFile::concreteSubclasses()) {
        OVNoteFile* file = kind.canImportFileURL(path) ? kind.recordForFileURL(path, context, error) : nullptr;
        if (!file)
            continue;
        file->setUniqueIdentifier(identifierBeginningWith(path.parent_path().filename().native(), context));
        const auto copy = file->copyFileToLocalFolder(path, error);
        if (!copy) {
            context.deleteObject(*file);
            return nullptr;
        }
        file->setFilename(copy->filename().native());
        file->updateNormalizedExtension();
        file->setDownloadedValue(true);
        file->setInUse();
        auto* image = dynamic_cast<OVNoteImage*>(file);
        const auto width = image ? image->widthValue() : 0;
        const auto height = image ? image->heightValue() : 0;
        file->updateFileMetadata(); // which would decode a picture for these
        if (image) {
            image->setWidthValue(width);
            image->setHeightValue(height);
        }
        file->setNote(&note);
        return file;
    }
    return nullptr;
}

bool holdsExportedNotes(const fs::path& folder)
{
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
        std::error_code none;
        if (entry->path().extension() == ".md" && entry->is_regular_file(none) && isFileOfExport(entry->path()))
            return true;
    }
    return false;
}

} // namespace tarn
