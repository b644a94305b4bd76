// Attachments in a store, beside `cp -r` of the same files: `bench_files [count]`.

#include "benchmarks/support/BenchmarkStore.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"

#include <fmt/core.h>
#include <sys/resource.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

constexpr std::size_t kFilesOfANote = 10;
constexpr std::size_t kNotesOfASave = 100;

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
    fmt::print("{:<42} {:>10.1f} MiB\n", "memory that this took at most", peakMegabytes() - before);
}
