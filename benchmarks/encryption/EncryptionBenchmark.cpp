// Protected notes beside plain ones, files sealed, and passwords tried: `bench_encryption [notes]`.

#include "benchmarks/support/BenchmarkStore.h"
#include "benchmarks/support/Yardsticks.h"
#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/keys/KeyWrapping.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVPassword.h"

#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

constexpr int kReads = 20'000;
constexpr std::size_t kLargeFile = std::size_t{256} << 20;

void require(bool holds, const NSError& error = {})
{
    if (holds)
        return;
    fmt::print(stderr, "{}\n", error.localizedDescription());
    std::exit(EXIT_FAILURE);
}

std::string textOf(std::size_t number, std::size_t length)
{
    std::string text = fmt::format("# Note {}\n\n", number);
    while (text.size() < length)
        text += "Some words of a note that nobody else is to read. ";
    text.resize(length);
    return text;
}

double microsecondsPerRead(const OVNote& note)
{
    std::size_t bytes = 0;
    const double seconds = medianSeconds(7, [&](int) {
        for (int count = 0; count < kReads; ++count)
            bytes += note.text()->size();
    });
    require(bytes > 0);
    return seconds / kReads * 1e6;
}

double microsecondsPerWrite(OVNote& note)
{
    const std::string text = note.text().value();
    return medianSeconds(7,
               [&](int) {
                   for (int count = 0; count < kReads; ++count)
                       note.setText(text);
               })
        / kReads * 1e6;
}

void compareTexts(BenchmarkStore& store, OVEncryptionCoreManager& manager, OVPassword& password)
{
    for (const std::size_t length : {std::size_t{400}, std::size_t{4} << 10, std::size_t{64} << 10}) {
        OVNote& note = *OVNote::noteWithText(textOf(0, length), store.context);
        const double plainRead = microsecondsPerRead(note);
        const double plainWrite = microsecondsPerWrite(note);
        NSError error;
        require(manager.addEncryptionToObject(note, password, &error), error);
        fmt::print(
            "text of {:>6} bytes   read: plain {:7.2f} us, protected {:7.2f} us   write: {:7.2f} us, {:7.2f} us\n",
            length, plainRead, microsecondsPerRead(note), plainWrite, microsecondsPerWrite(note));
    }
    store.save();
}

void protectMany(BenchmarkStore& store, OVEncryptionCoreManager& manager, OVPassword& password, std::size_t count)
{
    std::vector<OVNote*> notes;
    store.exclusively([&] {
        for (std::size_t number = 0; number < count; ++number)
            notes.push_back(OVNote::noteWithText(textOf(number, 2'000), store.context));
    });
    const double protecting = secondsOf([&] {
        for (OVNote* const note : notes) {
            NSError error;
            require(manager.addEncryptionToObject(*note, password, &error), error);
        }
    });
    const double saving = secondsOf([&] { store.save(); });
    const double reading = secondsOf([&] {
        for (const OVNote* const note : notes)
            require(note->text()->size() == 2'000);
    });
    fmt::print("{} notes of 2,000 bytes: protected in {:.2f} s, saved in {:.2f} s, read in {:.2f} s\n", count,
        protecting, saving, reading);
}

void sealFiles(const fs::path& folder)
{
    const fs::path clear = folder / "clear";
    {
        std::ofstream stream(clear, std::ios::binary);
        const std::string piece(std::size_t{1} << 20, 'x');
        for (std::size_t written = 0; written < kLargeFile; written += piece.size())
            stream << piece;
    }
    const SecretBytes key = *newKey(nullptr);
    const double sealing = secondsOf([&] { require(sealItem(clear, folder / "sealed", key, "ID", nullptr)); });
    const double verifying = secondsOf([&] { require(verifySealedItem(folder / "sealed", key, "ID", nullptr)); });
    const double copying = secondsOf([&] { fs::copy_file(clear, folder / "copy"); });
    const double mebibytes = static_cast<double>(kLargeFile >> 20U);
    fmt::print("a file of {} MiB: sealed at {:.0f} MiB/s, read at {:.0f} MiB/s (copied at {:.0f} MiB/s)\n",
        kLargeFile >> 20U, mebibytes / sealing, mebibytes / verifying, mebibytes / copying);
}

void tryPasswords(BenchmarkStore& store)
{
    for (const OVKeyDerivationCost cost : {OVKeyDerivationCost{}, OVKeyDerivationCost{3, 64U << 10U}}) {
        OVEncryptionOptions options;
        options.cost = cost;
        OVEncryptionCoreManager manager(store.context, options);
        OVPassword& password = *OVPassword::insertInManagedObjectContext(store.context);
        NSError error;
        require(manager.setPassword(password, "correct horse", std::nullopt, &error), error);
        const double seconds
            = medianSeconds(5, [&](int) { require(manager.unlock(password, "correct horse", &error), error); });
        fmt::print("a password, {} passes over {} MiB: {:.0f} ms\n", cost.passes, cost.memoryInKibibytes >> 10U,
            seconds * 1e3);
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const std::size_t count = argumentCount > 1 ? std::strtoul(arguments[1], nullptr, 10) : 10'000;
    const BenchmarkFolder folder;
    BenchmarkStore store(folder.path() / "database.sqlite");
    tryPasswords(store);
    OVEncryptionOptions options;
    options.cost = {1, 8};
    OVEncryptionCoreManager manager(store.context, options);
    fmt::print("memory of keys: {}\n", manager.areKeysLockedInMemory() ? "locked" : "not locked");
    OVPassword& password = *OVPassword::insertInManagedObjectContext(store.context);
    NSError error;
    require(manager.setPassword(password, "correct horse", std::nullopt, &error), error);
    compareTexts(store, manager, password);
    protectMany(store, manager, password, count);
    sealFiles(folder.path());
    return EXIT_SUCCESS;
}
