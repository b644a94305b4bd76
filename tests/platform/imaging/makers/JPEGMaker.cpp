#include "tests/platform/imaging/makers/JPEGMaker.h"

#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>

namespace tarn {

namespace {

J_COLOR_SPACE storedSpace(JPEGKind::Colours colours)
{
    switch (colours) {
    case JPEGKind::Colours::Grey:
        return JCS_GRAYSCALE;
    case JPEGKind::Colours::RGB:
        return JCS_RGB;
    case JPEGKind::Colours::CMYK:
        return JCS_CMYK;
    case JPEGKind::Colours::YCCK:
        return JCS_YCCK;
    default:
        return JCS_YCbCr;
    }
}

bool isInked(const JPEGKind& kind)
{
    return kind.colours == JPEGKind::Colours::CMYK || kind.colours == JPEGKind::Colours::YCCK;
}

/// Red, green, blue as inks without black, 255 for none, as they are stored under the maker's marker.
ImageBytes rowFor(const Bitmap& picture, std::int32_t y, const JPEGKind& kind)
{
    ImageBytes row(picture.row(y), picture.row(y) + picture.bytesPerRow());
    if (kind.colours == JPEGKind::Colours::Grey) {
        ImageBytes greys;
        for (std::size_t at = 1; at < row.size(); at += 4)
            greys.push_back(row[at]);
        return greys;
    }
    for (std::size_t at = 3; isInked(kind) && at < row.size(); at += 4)
        row[at] = 255;
    return row;
}

void setUp(jpeg_compress_struct& info, const Bitmap& picture, const JPEGKind& kind)
{
    const bool isGrey = kind.colours == JPEGKind::Colours::Grey;
    info.image_width = static_cast<JDIMENSION>(picture.width());
    info.image_height = static_cast<JDIMENSION>(picture.height());
    info.input_components = isGrey ? 1 : 4;
    info.in_color_space = isGrey ? JCS_GRAYSCALE : isInked(kind) ? JCS_CMYK : JCS_EXT_RGBX;
    jpeg_set_defaults(&info);
    jpeg_set_colorspace(&info, storedSpace(kind.colours));
    jpeg_set_quality(&info, kind.quality, TRUE);
    info.arith_code = kind.isArithmetic ? TRUE : FALSE;
    info.comp_info[0].h_samp_factor = info.comp_info[0].v_samp_factor = kind.isSubsampled && !isGrey ? 2 : 1;
    if (kind.colours == JPEGKind::Colours::YCCK)
        info.comp_info[3].h_samp_factor = info.comp_info[3].v_samp_factor = info.comp_info[0].h_samp_factor;
    if (kind.isProgressive)
        jpeg_simple_progression(&info);
}

void writeExif(jpeg_compress_struct& info, int orientation)
{
    ImageBytes exif;
    append(exif, std::string_view("Exif\0\0", 6));
    append(exif, exifWith(orientation, orientation % 2 == 0 ? ByteOrder::Big : ByteOrder::Little));
    jpeg_write_marker(&info, JPEG_APP0 + 1, exif.data(), static_cast<unsigned>(exif.size()));
}

} // namespace

ImageBytes jpegOf(const Bitmap& picture, const JPEGKind& kind)
{
    jpeg_compress_struct info = {};
    jpeg_error_mgr errors = {};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &bytes, &size);
    setUp(info, picture, kind);
    jpeg_start_compress(&info, TRUE);
    if (kind.orientation > 0)
        writeExif(info, kind.orientation);
    for (std::int32_t y = 0; y < picture.height(); ++y) {
        ImageBytes row = rowFor(picture, y, kind);
        JSAMPROW line = row.data();
        jpeg_write_scanlines(&info, &line, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    ImageBytes result(bytes, bytes + size);
    std::free(bytes);
    return result;
}

ImageBytes jpegWithScans(const Bitmap& picture, int scans)
{
    JPEGKind kind;
    kind.isProgressive = true;
    kind.colours = JPEGKind::Colours::Grey;
    ImageBytes bytes = jpegOf(picture, kind);
    // The end of the image, which comes again behind the scans.
    bytes.resize(bytes.size() - 2);
    // The last bit of coefficients 1 to 63 of one component, for blocks that all end at once.
    static constexpr std::uint8_t kScan[] = {0xFF, 0xDA, 0, 8, 1, 1, 0, 1, 63, 0x10, 0};
    for (int scan = 0; scan < scans; ++scan)
        bytes.insert(bytes.end(), std::begin(kScan), std::end(kScan));
    append(bytes, std::string_view("\xFF\xD9", 2));
    return bytes;
}

ImageBytes jpegClaiming(const ImageBytes& jpeg, std::uint32_t width, std::uint32_t height)
{
    ImageBytes bytes = jpeg;
    for (std::size_t at = 2; at + 9 < bytes.size(); at += 2U + (bytes[at + 2] << 8) + bytes[at + 3])
        if (bytes[at + 1] >= 0xC0 && bytes[at + 1] <= 0xC2) {
            bytes[at + 5] = static_cast<std::uint8_t>(height >> 8);
            bytes[at + 6] = static_cast<std::uint8_t>(height);
            bytes[at + 7] = static_cast<std::uint8_t>(width >> 8);
            bytes[at + 8] = static_cast<std::uint8_t>(width);
            break;
        }
    return bytes;
}

} // namespace tarn
