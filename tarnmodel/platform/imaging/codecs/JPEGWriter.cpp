#include "tarnmodel/platform/imaging/codecs/JPEGWriterInternal.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace tarn {

JPEGWriter::JPEGWriter()
{
    info_.err = jpeg_std_error(&errors_);
    errors_.error_exit = stop;
    errors_.output_message = [](j_common_ptr) {};
    info_.client_data = this;
    if (setjmp(stopped_) != 0) {
        jpeg_destroy_compress(&info_);
        throw std::bad_alloc();
    }
    jpeg_create_compress(&info_);
    jpeg_mem_dest(&info_, &bytes_, &size_);
}

JPEGWriter::~JPEGWriter()
{
    jpeg_destroy_compress(&info_);
    std::free(bytes_);
}

bool JPEGWriter::begin(std::int32_t width, std::int32_t height, int quality)
{
    if (setjmp(stopped_) != 0)
        return false;
    info_.image_width = static_cast<JDIMENSION>(width);
    info_.image_height = static_cast<JDIMENSION>(height);
    info_.input_components = 4;
    info_.in_color_space = JCS_EXT_RGBX;
    jpeg_set_defaults(&info_);
    jpeg_set_quality(&info_, std::clamp(quality, 1, 100), TRUE);
    jpeg_start_compress(&info_, TRUE);
    return true;
}

bool JPEGWriter::addRow(const std::uint8_t* pixels)
{
    if (setjmp(stopped_) != 0)
        return false;
    // The library takes what it does not change as what it might.
    auto* row = const_cast<JSAMPROW>(pixels);
    return jpeg_write_scanlines(&info_, &row, 1) == 1;
}

bool JPEGWriter::finish()
{
    if (setjmp(stopped_) != 0)
        return false;
    jpeg_finish_compress(&info_);
    return true;
}

void JPEGWriter::stop(j_common_ptr info)
{
    JPEGWriter& writer = *static_cast<JPEGWriter*>(info->client_data);
    info->err->format_message(info, writer.failure_.data());
    std::longjmp(writer.stopped_, 1);
}

} // namespace tarn
