#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/PNGReaderInternal.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <span>

namespace tarn {

namespace {

// Pixels are read in pieces of so many bytes: of a file that ends early, the last piece is lost.
constexpr std::size_t kPieceSize = 1'024;

} // namespace

PNGReader::PNGReader(ImageInput& input, const ImageLimits& limits)
    : input_(input),
      png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, this, stop, [](png_structp, png_const_charp) {}))
{
    if (png_)
        info_ = png_create_info_struct(png_);
    if (!info_) {
        png_destroy_read_struct(&png_, nullptr, nullptr);
        throw std::bad_alloc();
    }
    png_set_read_fn(png_, this, read);
    png_set_compression_buffer_size(png_, kPieceSize);
    setLimits(limits);
}

PNGReader::~PNGReader()
{
    png_destroy_read_struct(&png_, &info_, nullptr);
}

void PNGReader::setLimits(const ImageLimits& limits)
{
    if (setjmp(png_jmpbuf(png_)) != 0)
        return;
    // Sides are asked for once they are known, with an error that names them.
    png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_set_chunk_cache_max(png_, static_cast<png_uint_32>(limits.chunksOfAPNG));
    png_set_chunk_malloc_max(png_, static_cast<png_alloc_size_t>(limits.bytesOfAPNGChunk));
    // Profiles and texts are compressed, and may grow a thousandfold: all but pixels, palette and transparency is left
    // out.
    png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
}

bool PNGReader::readHeader()
{
    input_.seek(0);
    if (setjmp(png_jmpbuf(png_)) != 0)
        return false;
    png_read_info(png_, info_);
    return true;
}

bool PNGReader::hasAlpha() const
{
    return (png_get_color_type(png_, info_) & PNG_COLOR_MASK_ALPHA) != 0
        || png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
}

bool PNGReader::start()
{
    if (setjmp(png_jmpbuf(png_)) != 0)
        return false;
    // Palettes, greys of few bits and a transparent colour become channels.
    png_set_expand(png_);
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_set_add_alpha(png_, 255, PNG_FILLER_AFTER);
    passes_ = png_set_interlace_handling(png_);
    png_read_update_info(png_, info_);
    return png_get_rowbytes(png_, info_) == static_cast<std::size_t>(width()) * 4;
}

bool PNGReader::readRow(std::uint8_t* row, std::uint8_t* rowOfPass)
{
    if (setjmp(png_jmpbuf(png_)) != 0)
        return false;
    png_read_row(png_, row, rowOfPass);
    return true;
}

void PNGReader::read(png_structp png, png_bytep target, std::size_t count)
{
    if (!static_cast<PNGReader*>(png_get_io_ptr(png))->input_.readAll(std::span(target, count)))
        png_error(png, "it ends early");
}

void PNGReader::stop(png_structp png, png_const_charp message)
{
    PNGReader& reader = *static_cast<PNGReader*>(png_get_error_ptr(png));
    std::strncpy(reader.failure_.data(), message, reader.failure_.size() - 1);
    png_longjmp(png, 1);
}

} // namespace tarn
