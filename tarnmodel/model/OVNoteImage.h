#pragma once

#include "tarnmodel/model/_OVNoteImage.h"

namespace tarn {

/// An attached image.
///
/// Confined to its context's queue.
class OVNoteImage : public _OVNoteImage {
public:
    using _OVNoteImage::_OVNoteImage;

    /// A new attachment with its identifier, version 3 and the date of now.
    static OVNoteImage* insertInManagedObjectContext(NSManagedObjectContext& context);

    // Files (tarnmodel/files/OVNoteImage+Files.cpp) ------------------------------------------------------------------
    /// Whether the extension is that of a picture other than SVG.
    static bool canImportFileURL(const FileURL& url);
    /// A new image with a copy of the file, of no note yet. Null and an error when it cannot be opened as a picture, or
    /// is larger than `ImageLimits` lets be decoded, or cannot be copied.
    static OVNoteFile* noteFileForFileURL(
        const FileURL& url, NSManagedObjectContext& context, NSError* error = nullptr);
    /// The same without a copy of the file: its bytes come in another way.
    static OVNoteFile* recordForFileURL(const FileURL& url, NSManagedObjectContext& context, NSError* error = nullptr);
    /// Width and height of a picture as it is looked at, upright, in pixels.
    struct Size {
        double width = 0;  ///< pixels
        double height = 0; ///< pixels
    };
    /// Read from the beginning of the file; 0 by 0 when that is no picture.
    static Size imageSizeForImageURL(const FileURL& url);

    std::string localFolderName() const override;
    std::map<std::string, Value> additionalFileData() const override;
    void deleteFileThumbnails() override;
    void updateFileMetadata() override;
};

} // namespace tarn
