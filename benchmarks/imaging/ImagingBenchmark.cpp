// From a file to a small picture, as a thumbnail is made; then its parts: headers, drawing, writing. Files are made
// first, in the temporary folder, of soft shapes with some grain, as photographs have.

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageDrawing.h"
#include "tarnmodel/platform/imaging/ImageEncoding.h"
#include "tarnmodel/platform/imaging/ImageFile.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <jpeglib.h>
#include <random>
#include <string>

using namespace tarn;

namespace {

Bitmap aPicture(std::int32_t width, std::int32_t height, Bitmap::Alpha alpha)
{
    Bitmap picture(width, height, alpha);
    std::minstd_rand random(1);
    for (std::int32_t y = 0; y < height; ++y) {
        std::uint8_t* pixel = picture.row(y);
        for (std::int32_t x = 0; x < width; ++x, pixel += 4) {
            const double shape = 60 * std::sin(x / 97.0) * std::cos(y / 71.0) + 30 * std::sin((x + y) / 13.0);
            const int light = 128 + static_cast<int>(shape) + static_cast<int>(random() % 9);
            const int opacity = alpha == Bitmap::Alpha::None ? 255 : std::min(255, 40 + x * 300 / width);
            for (int channel = 0; channel < 3; ++channel)
                pixel[channel] = static_cast<std::uint8_t>(std::clamp(light + 9 * channel, 0, 255) * opacity / 255);
            pixel[3] = static_cast<std::uint8_t>(opacity);
        }
    }
    return picture;
}

/// A folder of this run, gone with it.
class Files {
public:
    Files()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "tarn-bench-XXXXXX").string();
        folder_ = ::mkdtemp(pattern.data());
        const Bitmap photograph = aPicture(4'000, 3'000, Bitmap::Alpha::None);
        writeJPEG(photograph, path("photograph.jpg"), nullptr, 90);
        writeProgressive(photograph);
        writePNG(aPicture(2'400, 1'700, Bitmap::Alpha::Premultiplied), path("drawing.png"));
    }
    ~Files()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    std::filesystem::path path(const char* name) const { return folder_ / name; }

private:
    void writeProgressive(const Bitmap& picture) const
    {
        jpeg_compress_struct info = {};
        jpeg_error_mgr errors = {};
        info.err = jpeg_std_error(&errors);
        jpeg_create_compress(&info);
        std::FILE* file = std::fopen(path("progressive.jpg").c_str(), "wb");
        jpeg_stdio_dest(&info, file);
        info.image_width = static_cast<JDIMENSION>(picture.width());
        info.image_height = static_cast<JDIMENSION>(picture.height());
        info.input_components = 4;
        info.in_color_space = JCS_EXT_RGBX;
        jpeg_set_defaults(&info);
        jpeg_set_quality(&info, 90, TRUE);
        jpeg_simple_progression(&info);
        jpeg_start_compress(&info, TRUE);
        for (std::int32_t y = 0; y < picture.height(); ++y) {
            auto* row = const_cast<JSAMPROW>(picture.row(y));
            jpeg_write_scanlines(&info, &row, 1);
        }
        jpeg_finish_compress(&info);
        jpeg_destroy_compress(&info);
        std::fclose(file);
    }

    std::filesystem::path folder_;
};

const Files& files()
{
    static const Files made;
    return made;
}

void thumbnail(benchmark::State& state, const char* name, std::int32_t width, std::int32_t height)
{
    const std::filesystem::path path = files().path(name);
    const std::filesystem::path target = files().path("small.png");
    for ([[maybe_unused]] auto round : state) {
        const auto samples = loadImageForDrawing(path, width, height);
        Bitmap canvas(width, height, Bitmap::Alpha::Premultiplied);
        drawImage(*samples, canvas, 0, 0, width, height);
        writePNG(canvas, target);
    }
}

void decodeForDrawing(benchmark::State& state, const char* name, std::int32_t width, std::int32_t height)
{
    const std::filesystem::path path = files().path(name);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(loadImageForDrawing(path, width, height));
}

void decodeWhole(benchmark::State& state, const char* name)
{
    const std::filesystem::path path = files().path(name);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(loadImage(path));
}

void header(benchmark::State& state, const char* name)
{
    const std::filesystem::path path = files().path(name);
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(readImageHeader(path));
}

void drawSamples(benchmark::State& state, const char* name, std::int32_t width, std::int32_t height)
{
    const auto samples = loadImageForDrawing(files().path(name), width, height);
    Bitmap canvas(width, height, Bitmap::Alpha::Premultiplied);
    for ([[maybe_unused]] auto round : state)
        drawImage(*samples, canvas, 0, 0, width, height);
}

void drawBitmap(benchmark::State& state, std::int32_t width, std::int32_t height)
{
    const Bitmap picture = aPicture(2'400, 1'700, Bitmap::Alpha::Premultiplied);
    Bitmap canvas(width, height, Bitmap::Alpha::Premultiplied);
    for ([[maybe_unused]] auto round : state)
        drawImage(picture, canvas, 0, 0, width, height);
}

void encodePNG(benchmark::State& state, std::int32_t width, std::int32_t height)
{
    const Bitmap picture = aPicture(width, height, Bitmap::Alpha::Premultiplied);
    const std::filesystem::path target = files().path("written.png");
    for ([[maybe_unused]] auto round : state)
        writePNG(picture, target);
}

BENCHMARK_CAPTURE(thumbnail, photograph, "photograph.jpg", 200, 150)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(thumbnail, progressive, "progressive.jpg", 200, 150)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(thumbnail, drawing, "drawing.png", 200, 142)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decodeForDrawing, photograph, "photograph.jpg", 200, 150)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decodeForDrawing, photographAtHalfSize, "photograph.jpg", 2'000, 1'500)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decodeForDrawing, drawing, "drawing.png", 200, 142)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decodeWhole, photograph, "photograph.jpg")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(decodeWhole, drawing, "drawing.png")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(header, photograph, "photograph.jpg")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(header, drawing, "drawing.png")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(drawSamples, photograph, "photograph.jpg", 200, 150)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawSamples, drawing, "drawing.png", 200, 142)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawBitmap, toAThumbnail, 200, 142)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawBitmap, toHalfItsSize, 1'200, 850)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(encodePNG, thumbnail, 200, 142)->Unit(benchmark::kMillisecond);

} // namespace
