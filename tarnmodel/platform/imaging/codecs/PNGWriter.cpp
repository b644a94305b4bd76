#include "tarnmodel/platform/imaging/codecs/PNGWriterInternal.h"

#include <cstring>
#include <new>

namespace tarn {

PNGWriter::PNGWriter()
    : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, this, stop, [](png_structp, png_const_charp) {}))
{
    if (png_)
        info_ = png_create_info_struct(png_);
    if (!info_) {
        png_destroy_write_struct(&png_, nullptr);
        throw std::bad_alloc();
    }
    png_set_write_fn(png_, this, write, [](png_structp) {});
}

PNGWriter::~PNGWriter()
{
    png_destroy_write_struct(&png_, &info_);
}

bool PNGWriter::begin(std::int32_t width, std::int32_t height, bool hasAlpha)
{
    if (setjmp(png_jmpbuf(png_)) != 0)
        return false;
    png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_set_IHDR(png_, info_, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8,
        hasAlpha ? PNG_COLOR_TYPE_RGBA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
        PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png_, info_);
    return true;
}

bool PNGWriter::addRow(const std::uint8_t* pixels)
{
    if (setjmp(png_jmpbuf(png_)) != 0)
        return false;
    png_write_row(png_, pixels);
    return true;
}

bool PNGWriter::finish()
{
    if (setjmp(png_jmpbuf(png_)) != 0)
        return false;
    png_write_end(png_, nullptr);
    return true;
}

void PNGWriter::write(png_structp png, png_bytep source, std::size_t count)
{
    std::vector<std::uint8_t>& bytes = static_cast<PNGWriter*>(png_get_io_ptr(png))->bytes_;
    bool isKept = true;
    try {
        bytes.insert(bytes.end(), source, source + count);
    } catch (const std::bad_alloc&) {
        // An exception must not pass through the library.
        isKept = false;
    }
    if (!isKept)
        png_error(png, "there is not enough memory");
}

void PNGWriter::stop(png_structp png, png_const_charp message)
{
    PNGWriter& writer = *static_cast<PNGWriter*>(png_get_error_ptr(png));
    std::strncpy(writer.failure_.data(), message, writer.failure_.size() - 1);
    png_longjmp(png, 1);
}

} // namespace tarn
