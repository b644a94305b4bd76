#pragma once

#include "tarnmodel/platform/imaging/ImageFile.h"

#include <optional>

namespace tarn {

class ImageInput;

/// The format that the first bytes tell; none when they tell none.
std::optional<ImageFormat> formatOf(ImageInput& input);

/// What the file says of its image; none with an error.
std::optional<ImageHeader> readHeader(ImageInput& input, NSError* error);

/// "JPEG" and the like.
const char* nameOf(ImageFormat format);

// One for each format, from the beginning of the file: size, orientation and alpha. None when they are not all there,
// or a side is 0. None of them reads more of a file than the frame around its data.
std::optional<ImageHeader> readJPEGHeader(ImageInput& input);
std::optional<ImageHeader> readPNGHeader(ImageInput& input);
std::optional<ImageHeader> readGIFHeader(ImageInput& input);
std::optional<ImageHeader> readWebPHeader(ImageInput& input);
std::optional<ImageHeader> readBMPHeader(ImageInput& input);
// Only where the library was built with them.
std::optional<ImageHeader> readTIFFHeader(ImageInput& input);
std::optional<ImageHeader> readHEIFHeader(ImageInput& input);

} // namespace tarn
