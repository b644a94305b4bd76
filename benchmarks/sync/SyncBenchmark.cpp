// What it costs that others hear of a save, and what the main context feels of work in the background:
// `bench_sync [most notes]`.

#include "benchmarks/support/BenchmarkStore.h"
#include "benchmarks/support/Yardsticks.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVExternalChanges.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/store/OVCoreDataStack.h"

#include <fmt/core.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

std::string textOfNote(std::size_t number)
{
    std::string text = "# Note " + std::to_string(number) + "\n\n#tag" + std::to_string(number % 50) + "\n";
    for (int line = 0; line < 12; ++line)
        text += "Line " + std::to_string(line) + ": some words of a note, and a few more.\n";
    return text;
}

void fill(NSManagedObjectContext& context, std::size_t from, std::size_t count)
{
    for (std::size_t number = from; number < from + count; ++number)
        OVNote::noteWithText(textOfNote(number), context);
}

std::vector<OVNote*> notesOf(NSManagedObjectContext& context, std::size_t most = 0)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context));
    request.sortDescriptors = {{"pinned", false}, {"modificationDate", false}};
    request.fetchLimit = most;
    std::vector<OVNote*> notes;
    for (NSManagedObject* record : context.executeFetchRequest(request))
        notes.push_back(static_cast<OVNote*>(record));
    return notes;
}

/// Whether saves of the context are written to the change log, as an application's are.
std::optional<NSNotificationSubscription> changeLogOf(NSManagedObjectContext& context, bool isKept)
{
    if (!isKept)
        return std::nullopt;
    return NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextWillSaveNotification, &context,
        [&context](const NSNotification&) { OVChange::updateChangesInInManagedObjectContext(context); });
}

double secondsToSave(const fs::path& file, std::size_t changed, bool logs)
{
    BenchmarkStore store(file);
    const auto log = changeLogOf(store.context, logs);
    const std::vector<OVNote*> notes = notesOf(store.context, changed);
    return medianSeconds(changed > 1000 ? 3 : 31, [&](int) {
        for (OVNote* note : notes)
            note->setPinned(!note->pinnedValue());
        store.save();
    });
}

void measureSaves(const fs::path& file, std::size_t most, double commit)
{
    for (const std::size_t changed : {std::size_t{1}, std::size_t{100}, most}) {
        const double plain = secondsToSave(file, changed, false);
        const double logged = secondsToSave(file, changed, true);
        fmt::print("save of {:>6} changed notes {:>10.2f} ms {:>7.2f} L_commit   with the log {:>10.2f} ms {:>7.2f} "
                   "L_commit, {:.2f} times\n",
            changed, plain * 1000, plain / commit, logged * 1000, logged / commit, logged / plain);
    }
}

void measureImport(const fs::path& folder, std::size_t count)
{
    const auto import = [&](bool logs) {
        BenchmarkStore store(folder / (logs ? "logged.sqlite" : "plain.sqlite"));
        const auto log = changeLogOf(store.context, logs);
        return secondsOf([&] {
            for (std::size_t from = 0; from < count; from += 500) {
                fill(store.context, from, std::min<std::size_t>(500, count - from));
                store.save();
                store.context.reset();
            }
        });
    };
    const double plain = import(false);
    const double logged = import(true);
    fmt::print("import of {} notes {:.0f} ms, with the log {:.0f} ms, {:.2f} times\n", count, plain * 1000,
        logged * 1000, logged / plain);
}

void measureMerge(const fs::path& file, std::size_t most)
{
    for (const std::size_t changed : {most / 10, most}) {
        BenchmarkStore application(file);
        const auto seen = notesOf(application.context);
        {
            BenchmarkStore extension(file);
            const auto queue = NSNotificationCenter::defaultCenter().addObserver(
                NSManagedObjectContextWillSaveNotification, &extension.context, [&](const NSNotification&) {
                    OVExternalChanges::updateExternalChangesInManagedObjectContext(extension.context);
                });
            for (OVNote* note : notesOf(extension.context, changed))
                note->setPinned(!note->pinnedValue());
            extension.save();
        }
        const double merging
            = secondsOf([&] { OVExternalChanges::mergeExternalChangesInManagedObjectContext(application.context); });
        const double saving = secondsOf([&] { application.save(); });
        fmt::print("merge of {:>6} external changes {:>10.1f} ms, {:.4f} ms each; the save that empties the queue "
                   "{:.1f} ms\n",
            changed, merging * 1000, merging * 1000 / static_cast<double>(changed), saving * 1000);
    }
}

double quantile(std::vector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
}

void measureFetchesBesideAnImport(const fs::path& folder, std::size_t count)
{
    fs::create_directories(folder);
    OVLocalFileManager::setApplicationPersistentDataTestURL(folder);
    MainQueue& queue = MainQueue::main();
    OVCoreDataStack stack;
    stack.setupStack();
    NSManagedObjectContext& main = *stack.managedObjectContext();
    fill(main, 0, 1000);
    stack.saveUsingCoalescence(false);

    std::atomic<bool> isDone = false;
    stack.performBackgroundTask([&](NSManagedObjectContext& context) {
        for (std::size_t from = 0; from < count; from += 100) {
            fill(context, 1000 + from, 100);
            context.save();
        }
        isDone = true;
    });
    std::vector<double> fetches;
    std::vector<double> passes;
    while (!isDone) {
        passes.push_back(secondsOf([&] { queue.drain(); }));
        fetches.push_back(secondsOf([&] { notesOf(main, 50); }));
    }
    queue.runUntil([&] { return !main.hasChanges(); });
    fmt::print(
        "import of {} notes in the background, meanwhile {} fetches of the first 50: median {:.2f} ms, 99 of 100 "
        "within {:.2f} ms, longest {:.2f} ms; longest pass of the main queue {:.2f} ms\n",
        count, fetches.size(), quantile(fetches, 0.5) * 1000, quantile(fetches, 0.99) * 1000,
        quantile(fetches, 1) * 1000, quantile(passes, 1) * 1000);
    OVLocalFileManager::setApplicationPersistentDataTestURL(std::nullopt);
}

} // namespace

int main(int argc, char** argv)
{
    // Whoever runs all benchmarks hands them options of Google Benchmark, which read as 0.
    const std::size_t given = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 0;
    const std::size_t most = given ? given : 10000;
    const BenchmarkFolder folder;
    const double commit = secondsToCommit(folder.path());
    fmt::print("L_commit {:.2f} ms\n", commit * 1000);
    measureImport(folder.path(), most);
    const fs::path file = folder.path() / "plain.sqlite";
    measureSaves(file, most, commit);
    measureMerge(file, most);
    measureFetchesBesideAnImport(folder.path() / "application", most / 2);
}
