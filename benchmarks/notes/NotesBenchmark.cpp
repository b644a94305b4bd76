// Notes in a store, beside what the machine itself takes: `bench_notes [count] [folder of Markdown]`.

#include "benchmarks/support/BenchmarkStore.h"
#include "benchmarks/support/Corpus.h"
#include "benchmarks/support/Yardsticks.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tarnmodel/notes/OVNoteCacheLoan.h"

#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <random>
#include <string>

namespace {

using namespace tarn;

/// Notes that one import saves together; what the command line does too.
constexpr std::size_t batchSize = 2500;

void report(const char* name, double seconds, const char* yardstick, double unit, double target)
{
    fmt::print("{:<34} {:>12.3f} ms  {:>8.2f} x {:<8} target <= {:g}\n", name, seconds * 1000, seconds / unit,
        yardstick, target);
}

double import(const std::filesystem::path& file, const std::vector<std::string>& texts)
{
    return secondsOf([&] {
        BenchmarkStore store(file);
        for (std::size_t first = 0; first < texts.size(); first += batchSize) {
            OVNote::TagsCache tags;
            OVNote::NotesCache notes;
            store.exclusively([&] {
                for (std::size_t number = first; number < std::min(first + batchSize, texts.size()); ++number) {
                    OVNote& note = *OVNote::insertInManagedObjectContext(store.context);
                    const OVNoteCacheLoan loan(note, tags, notes);
                    note.updateNoteWithText(texts[number]);
                }
            });
            store.context.reset();
        }
    });
}

NSFetchRequest standardOrder(NSManagedObjectContext& context)
{
    NSFetchRequest request(*context.managedObjectModel().entityNamed("OVNote"));
    request.sortDescriptors = {{"pinned", false}, {"modificationDate", false}};
    return request;
}

void measureEdits(const std::filesystem::path& file, std::size_t count, const Yardsticks& yardsticks)
{
    BenchmarkStore store(file);
    std::mt19937 random(1);
    NSFetchRequest request = standardOrder(store.context);
    request.fetchLimit = 200;
    request.fetchOffset = count / 2;
    const auto notes = store.context.executeFetchRequest(request);
    const double seconds = medianSeconds(101, [&](int run) {
        auto& note = static_cast<OVNote&>(*notes[random() % notes.size()]);
        note.updateNoteWithText(note.text().value_or("") + "\nedit " + std::to_string(run));
        store.save();
    });
    report("one-note edit and save", seconds, "L_commit", yardsticks.commit, 1.8);
}

void measureLookups(const std::filesystem::path& file, const Yardsticks& yardsticks)
{
    BenchmarkStore store(file);
    NSFetchRequest some = standardOrder(store.context);
    some.fetchLimit = 500;
    std::vector<std::string> titles;
    for (NSManagedObject* note : store.context.executeFetchRequest(some))
        titles.push_back(static_cast<OVNote*>(note)->title().value_or(""));
    const double seconds = medianSeconds(5, [&](int) {
        for (const std::string& title : titles)
            OVNote::noteWithTitle(title, store.context);
    });
    report("title look-up, object layer", seconds / static_cast<double>(titles.size()), "L_point", yardsticks.point, 3);

    const double list = medianSeconds(11, [&](int) {
        BenchmarkStore fresh(file);
        NSFetchRequest first = standardOrder(fresh.context);
        first.predicate = NSPredicate::predicateWithFormat("trashed == NO AND archived == NO");
        first.fetchLimit = 50;
        fresh.context.executeFetchRequest(first);
    });
    fmt::print("{:<34} {:>12.3f} ms  target <= 50 ms\n", "open the store, first 50 notes", list * 1000);

    BenchmarkStore whole(file);
    whole.context.executeFetchRequest(standardOrder(whole.context)); // fills what SQLite keeps of the file
    whole.context.reset();
    const std::size_t before = allocatedMemory();
    const auto everything = whole.context.executeFetchRequest(standardOrder(whole.context));
    const double bytes = static_cast<double>(allocatedMemory() - before)
        / static_cast<double>(std::max<std::size_t>(1, everything.size()));
    std::size_t raw = 0;
    for (NSManagedObject* record : everything)
        for (const NSAttributeDescription* attribute : record->entity().attributes()) {
            if (attribute->isLarge() || record->storedValueForKey(attribute->name()).isNil())
                continue;
            const Value value = record->storedValueForKey(attribute->name());
            raw += value.kind() == Value::Kind::String ? value.asString().size()
                : value.kind() == Value::Kind::Bool    ? 1
                                                       : 8;
        }
    const double rawBytes = static_cast<double>(raw) / static_cast<double>(std::max<std::size_t>(1, everything.size()));
    fmt::print("{:<34} {:>12.0f} bytes, {:.0f} over the raw values ({} fetched)  target <= 400\n",
        "memory of a fetched note", bytes, bytes - rawBytes, everything.size());
}

Yardsticks yardsticksFor(
    const std::filesystem::path& folder, const std::filesystem::path& file, const std::vector<std::string>& texts)
{
    Yardsticks yardsticks;
    yardsticks.write = secondsToWrite(folder, texts);
    yardsticks.commit = secondsToCommit(folder);
    yardsticks.read = secondsToReadTexts(file);
    yardsticks.point = secondsForPointLookup(file);
    fmt::print("L_write {:.1f} ms, L_read {:.1f} ms, L_commit {:.3f} ms, L_point {:.2f} us\n", yardsticks.write * 1000,
        yardsticks.read * 1000, yardsticks.commit * 1000, yardsticks.point * 1e6);
    return yardsticks;
}

double measure(const std::filesystem::path& folder, std::size_t count, const std::string& corpus)
{
    const auto texts = corpus.empty() ? madeUpNotes(count) : notesFromFolder(corpus, count);
    std::size_t bytes = 0;
    for (const std::string& text : texts)
        bytes += text.size();
    const auto file = folder / (std::to_string(count) + ".sqlite");
    const double imported = import(file, texts);
    fmt::print("\n{} notes, {:.1f} MB of text, store {:.1f} MB\n", texts.size(), static_cast<double>(bytes) / 1e6,
        static_cast<double>(std::filesystem::file_size(file)) / 1e6);
    const Yardsticks yardsticks = yardsticksFor(folder, file, texts);
    report("import through the object layer", imported, "L_write", yardsticks.write, 12);
    fmt::print("{:<34} {:>12.0f} notes/s\n", "", static_cast<double>(texts.size()) / imported);
    measureEdits(file, texts.size(), yardsticks);
    measureLookups(file, yardsticks);
    return imported / static_cast<double>(texts.size());
}

} // namespace

int main(int argc, char** argv)
{
    const std::size_t most = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 100000;
    const std::string corpus = argc > 2 ? argv[2] : "";
    const tarn::BenchmarkFolder folder;
    const double few = measure(folder.path(), std::max<std::size_t>(most / 10, 1), corpus);
    const double many = measure(folder.path(), most, corpus);
    fmt::print("\nimport time for each note, {} against {} notes: {:.2f} (linear is 1, target <= 1.2)\n", most,
        most / 10, many / few);
}
