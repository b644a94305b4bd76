// Attachments in a store, beside `cp -r` and `rm -r` of the same files, and thumbnails: `bench_files [count]`.

#include "benchmarks/support/BenchmarkStore.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/imaging/ImageEncoding.h"

#include <fmt/core.h>
#include <sys/resource.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

constexpr std::size_t kFilesOfANote = 10;
constexpr std::size_t kNotesOfASave = 100;
constexpr int kPictures = 1'000;

std::vector<fs::path> makeFiles(const fs::path& folder, std::size_t count)
{
    fs::create_directories(folder);
    std::mt19937 random(1);
    std::vector<fs::path> files;
    for (std::size_t number = 0; number < count; ++number) {
        files.push_back(folder / fmt::format("file {:05}.bin", number));
        std::string bytes(4'000 + random() % 36'000, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        std::ofstream(files.back(), std::ios::binary) << bytes;
    }
    return files;
}

double secondsToRun(const std::string& command)
{
    return secondsOf([&] {
        if (std::system(command.c_str()) != 0)
            std::abort();
    });
}

void attach(BenchmarkStore& store, const std::vector<fs::path>& files)
{
    const std::size_t batch = kFilesOfANote * kNotesOfASave;
    for (std::size_t first = 0; first < files.size(); first += batch) {
        store.exclusively([&] {
            OVNote* note = nullptr;
            for (std::size_t number = first; number < std::min(first + batch, files.size()); ++number) {
                if (number % kFilesOfANote == 0)
                    note = OVNote::noteWithText(fmt::format("# Note {}\n", number), store.context);
                if (!note->addAttachmentFromFileURL(files[number]))
                    std::abort();
            }
        });
        store.context.reset();
    }
}

/// A thousand files of twenty pictures: photographs of some megapixels, and drawings with transparent parts.
std::vector<fs::path> makePictures(const fs::path& folder)
{
    fs::create_directories(folder);
    std::vector<fs::path> pictures;
    for (int number = 0; number < kPictures; ++number) {
        const int kind = number % 20;
        const bool isPhotograph = kind % 2 == 0;
        pictures.push_back(folder / fmt::format("picture {:04}.{}", number, isPhotograph ? "jpg" : "png"));
        if (number != kind) {
            fs::copy_file(pictures[static_cast<std::size_t>(kind)], pictures.back());
            continue;
        }
        const int width = 400 + 130 * kind;
        Bitmap picture(width, width * 3 / 4, isPhotograph ? Bitmap::Alpha::None : Bitmap::Alpha::Premultiplied);
        std::minstd_rand random(static_cast<unsigned>(kind) + 1);
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < width; ++x) {
                const auto alpha = static_cast<std::uint8_t>(isPhotograph || (x / 50 + y / 50) % 3 != 0 ? 255 : 0);
                for (int channel = 0; channel < 3; ++channel)
                    picture.row(y)[4 * x + channel]
                        = static_cast<std::uint8_t>((x * (channel + 1) / 9 + y / 5 + random() % 9) * alpha / 255);
                picture.row(y)[4 * x + 3] = alpha;
            }
        if (!(isPhotograph ? writeJPEG(picture, pictures.back()) : writePNG(picture, pictures.back())))
            std::abort();
    }
    return pictures;
}

double secondsToMakeThumbs(const std::vector<fs::path>& pictures, const fs::path& folder, unsigned threads)
{
    fs::create_directories(folder);
    const auto thumbs = OVThumbFileManager::initWithBaseURL(folder);
    std::atomic<std::size_t> next = 0;
    return secondsOf([&] {
        std::vector<std::jthread> workers;
        for (unsigned thread = 0; thread < threads; ++thread)
            workers.emplace_back([&] {
                for (std::size_t index = next++; index < pictures.size(); index = next++)
                    if (!thumbs->makeThumbForImageURL(pictures[index], {200, 150}))
                        std::abort();
            });
    });
}

double peakMegabytes()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void report(const char* name, double seconds, double yardstick, const char* command)
{
    fmt::print("{:<42} {:>10.1f} ms  {:>6.2f} x {}\n", name, seconds * 1000, seconds / yardstick, command);
}

} // namespace

int main(int argc, char** argv)
{
    const std::size_t count = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 10'000;
    const BenchmarkFolder folder;
    const std::vector<fs::path> files = makeFiles(folder.path() / "files", count);
    OVLocalFileManager::setApplicationPersistentDataTestURL(folder.path() / "data");
    fs::create_directories(folder.path() / "data");
    const std::string from = (folder.path() / "files").string();
    const std::string to = (folder.path() / "copy").string();
    const double copying = secondsToRun(fmt::format("cp -r '{}' '{}'", from, to));
    const double durable = copying + secondsToRun(fmt::format("sync -f '{}'", to));
    const double removing = secondsToRun(fmt::format("rm -r '{}'", to));
    fmt::print("{} files\n", count);
    report("cp -r, then a sync of the file system", durable, copying, "cp -r");
    const double before = peakMegabytes();
    {
        BenchmarkStore store(folder.path() / "data" / "database.sqlite");
        report(
            "attached, ten to a note, a thousand a save", secondsOf([&] { attach(store, files); }), copying, "cp -r");
        report("deleted again, in one save", secondsOf([&] {
            store.exclusively([&] {
                for (OVNoteFile* file : OVNoteFile::filesInManagedObjectContext(store.context, std::nullopt))
                    file->permanentlyDelete();
            });
        }),
            removing, "rm -r");
    }
    {
        BenchmarkStore store(folder.path() / "data" / "one note.sqlite");
        OVNote* note = OVNote::noteWithText("# One\n", store.context);
        report("all attached to one note", secondsOf([&] {
            store.exclusively([&] {
                for (const fs::path& file : files)
                    note->addAttachmentFromFileURL(file);
            });
        }),
            copying, "cp -r");
    }
    const std::vector<fs::path> pictures = makePictures(folder.path() / "pictures");
    const double alone = secondsToMakeThumbs(pictures, folder.path() / "thumbs of one", 1);
    fmt::print("{:<42} {:>10.1f} ms\n", "thumbnails of 1,000 pictures, one thread", alone * 1000);
    report("the same on two threads", secondsToMakeThumbs(pictures, folder.path() / "thumbs of two", 2), alone, "one");
    fmt::print("{:<42} {:>10.1f} MiB\n", "memory that this took at most", peakMegabytes() - before);
}
