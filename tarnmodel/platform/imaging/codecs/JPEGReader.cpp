#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/JPEGReaderInternal.h"

#include <algorithm>
#include <new>
#include <span>

namespace tarn {

namespace {

constexpr std::array<std::uint8_t, 2> kEndOfImageMarker{0xFF, 0xD9};
// Of coefficients: two bytes each, of four components at most, and some room for tables.
constexpr std::int64_t kBytesPerHeldPixel = 8;
constexpr std::int64_t kRoomForTables = 64'000'000;

} // namespace

JPEGReader::JPEGReader(ImageInput& input, const ImageLimits& limits) : input_(input), limits_(limits)
{
    info_.err = jpeg_std_error(&errors_);
    errors_.error_exit = stop;
    // Warnings are counted, not printed.
    errors_.output_message = [](j_common_ptr) {};
    info_.client_data = this;
    if (setjmp(stopped_) != 0) {
        jpeg_destroy_decompress(&info_);
        throw std::bad_alloc();
    }
    jpeg_create_decompress(&info_);
    progress_.progress_monitor = countProgress;
    info_.progress = &progress_;
    setUpSource();
}

JPEGReader::~JPEGReader()
{
    jpeg_destroy_decompress(&info_);
}

bool JPEGReader::readHeader()
{
    input_.seek(0);
    if (setjmp(stopped_) != 0)
        return false;
    jpeg_read_header(&info_, TRUE);
    info_.mem->max_memory_to_use = static_cast<long>(limits_.bufferedPixels * kBytesPerHeldPixel + kRoomForTables);
    const bool isInked = info_.jpeg_color_space == JCS_CMYK || info_.jpeg_color_space == JCS_YCCK;
    info_.out_color_space = isInked ? JCS_CMYK : JCS_EXT_RGBA;
    isProgressive_ = jpeg_has_multiple_scans(&info_) != 0;
    return true;
}

bool JPEGReader::start(unsigned eighths)
{
    if (setjmp(stopped_) != 0)
        return false;
    info_.scale_num = eighths;
    info_.scale_denom = 8;
    jpeg_start_decompress(&info_);
    return true;
}

bool JPEGReader::readRow(std::uint8_t* pixels)
{
    if (setjmp(stopped_) != 0)
        return false;
    return info_.output_scanline < info_.output_height && jpeg_read_scanlines(&info_, &pixels, 1) == 1;
}

bool JPEGReader::hasDecodedARow() const
{
    if (!isAtEnd_ || hasScannedARow_)
        return true;
    // The file may lack no more than its last bytes. Arithmetic coding does not notice what is missing.
    return !isProgressive_ && info_.arith_code == FALSE && errors_.num_warnings == 0;
}

void JPEGReader::stop(j_common_ptr info)
{
    JPEGReader& reader = readerOf(info);
    info->err->format_message(info, reader.failure_.data());
    std::longjmp(reader.stopped_, 1);
}

void JPEGReader::countProgress(j_common_ptr info)
{
    JPEGReader& reader = readerOf(info);
    // Called ahead of each row of blocks in each scan.
    if (reader.rowsScanned_++ > 0 && reader.isProgressive_ && reader.errors_.num_warnings == 0)
        reader.hasScannedARow_ = true;
    if (reader.info_.input_scan_number <= reader.limits_.scansOfAJPEG)
        return;
    reader.isBeyondLimits_ = true;
    std::longjmp(reader.stopped_, 1);
}

boolean JPEGReader::fill(j_decompress_ptr info)
{
    JPEGReader& reader = readerOf(reinterpret_cast<j_common_ptr>(info));
    const std::size_t count = reader.input_.read(reader.buffer_);
    info->src->next_input_byte = reader.buffer_.data();
    info->src->bytes_in_buffer = count;
    if (count == 0) {
        // The library makes what it can of what it has.
        reader.isAtEnd_ = true;
        info->src->next_input_byte = kEndOfImageMarker.data();
        info->src->bytes_in_buffer = kEndOfImageMarker.size();
    }
    return TRUE;
}

void JPEGReader::skip(j_decompress_ptr info, long count)
{
    if (count <= 0)
        return;
    const std::size_t here = std::min(static_cast<std::size_t>(count), info->src->bytes_in_buffer);
    info->src->next_input_byte += here;
    info->src->bytes_in_buffer -= here;
    readerOf(reinterpret_cast<j_common_ptr>(info)).input_.skip(static_cast<std::size_t>(count) - here);
}

void JPEGReader::setUpSource()
{
    source_.init_source = [](j_decompress_ptr) {};
    source_.fill_input_buffer = fill;
    source_.skip_input_data = skip;
    source_.resync_to_restart = jpeg_resync_to_restart;
    source_.term_source = [](j_decompress_ptr) {};
    info_.src = &source_;
}

} // namespace tarn
