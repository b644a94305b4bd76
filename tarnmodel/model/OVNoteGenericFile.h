#pragma once

#include "tarnmodel/model/_OVNoteGenericFile.h"

namespace tarn {

/// An attached file that is no image.
///
/// Confined to its context's queue.
class OVNoteGenericFile : public _OVNoteGenericFile {
public:
    using _OVNoteGenericFile::_OVNoteGenericFile;

    /// A new attachment with its identifier, version 3 and the date of now.
    static OVNoteGenericFile* insertInManagedObjectContext(NSManagedObjectContext& context);

    // Files (tarnmodel/files/OVNoteGenericFile+Files.cpp) ------------------------------------------------------------
    /// Always: any file can be attached.
    static bool canImportFileURL(const FileURL& url);
    /// A new attachment with a copy of the file, of no note yet. Null and an error when it cannot be copied.
    static OVNoteFile* noteFileForFileURL(
        const FileURL& url, NSManagedObjectContext& context, NSError* error = nullptr);
    /// The same without a copy of the file: its bytes come in another way.
    static OVNoteFile* recordForFileURL(const FileURL& url, NSManagedObjectContext& context, NSError* error = nullptr);

    std::string localFolderName() const override;
    std::map<std::string, Value> additionalFileData() const override;
};

} // namespace tarn
