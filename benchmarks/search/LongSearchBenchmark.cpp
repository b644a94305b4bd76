// Searches whose cost depends on what is asked rather than on what is found: very many words, words that no index
// knows, titles, and lists whose notes all have one date: `bench_long_searches [FOLDER-OF-MARKDOWN] [count ...]`.
// Without a folder the notes are made up.

#include "benchmarks/search/SearchCorpus.h"
#include "benchmarks/support/Corpus.h"
#include "benchmarks/support/Yardsticks.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/search/OVNoteSearchManager.h"

#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

constexpr std::size_t kBatch = 2500;
constexpr std::size_t kShown = 50;
/// A search that took longer is not run again for the median.
constexpr double kLongEnough = 2;

[[noreturn]] void stop(const std::string& why)
{
    fmt::print(stderr, "bench_long_searches: {}\n", why);
    std::exit(1);
}

class Store {
public:
    explicit Store(const fs::path& file)
        : coordinator_(std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current()))
    {
        NSError error;
        if (!coordinator_->addPersistentStoreWithType(StoreType::SQLite, file, {}, &error))
            stop(error.localizedDescription());
        store_ = coordinator_->rowStore();
    }

    void import(const std::vector<std::string>& texts, bool onOneDate)
    {
        NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::MainQueue);
        context.setPersistentStoreCoordinator(coordinator_);
        const NSDate date = dateWithMicrosecondsSinceReferenceDate(0);
        for (std::size_t first = 0; first < texts.size(); first += kBatch) {
            NSError error;
            const bool saved = context.performExclusive(
                [&] {
                    for (std::size_t i = first; i < std::min(first + kBatch, texts.size()); ++i) {
                        OVNote* note = OVNote::noteWithText(texts[i], context);
                        if (onOneDate)
                            note->setModificationDate(date);
                    }
                },
                &error);
            if (!saved)
                stop(error.localizedDescription());
            context.reset();
        }
    }

    std::size_t find(const std::optional<NSPredicate>& predicate, std::size_t limit) const
    {
        StoreFetch fetch;
        fetch.entity = OVManagedObjectModel::current()->entityNamed("OVNote");
        fetch.predicate = predicate ? &*predicate : nullptr;
        fetch.limit = limit;
        NSError error;
        std::size_t found = 0;
        if (limit == 0) {
            if (!store_->count(fetch, found, &error))
                stop(error.localizedDescription());
            return found;
        }
        fetch.sortDescriptors = order_;
        std::vector<StoreRow> rows;
        if (!store_->fetch(fetch, rows, &error))
            stop(error.localizedDescription());
        return rows.size();
    }

private:
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    RowStore* store_ = nullptr;
    std::vector<NSSortDescriptor> order_{{"pinned", false}, {"modificationDate", false}};
};

/// What the search field makes of it, in notes that are neither in the trash nor in the archive.
NSPredicate searchFor(const std::string& words)
{
    const std::vector<NSPredicate> both{NSPredicate::predicateWithFormat("trashed == NO AND archived == NO"),
        OVNoteSearchManager::predicateForSearchString(words).value()};
    return NSPredicate::andPredicateWithSubpredicates(both);
}

/// "first-0 first-1 ..." with something in front of each and between them.
std::string manyWords(std::size_t count, const std::string& before, const std::string& between)
{
    std::string words;
    for (std::size_t i = 0; i < count; ++i)
        words += (i ? between : "") + before + "qabsent" + std::to_string(i * 7919);
    return words;
}

class Measurement {
public:
    Measurement(const Store& store, double read) : store_(store), read_(read) { }

    void line(const std::string& name, const std::optional<NSPredicate>& predicate, std::size_t limit) const
    {
        std::size_t found = 0;
        const auto once = [&] { return medianSeconds(1, [&](int) { found = store_.find(predicate, limit); }); };
        double seconds = once();
        if (seconds < kLongEnough)
            seconds = medianSeconds(seconds < kLongEnough / 10 ? 9 : 3, [&](int) { store_.find(predicate, limit); });
        fmt::print("| {} | {} | {:.1f} ms | {:.2f} |\n", name, found, seconds * 1000, seconds / read_);
        std::fflush(stdout);
    }
    void search(const std::string& name, const std::string& words, std::size_t limit) const
    {
        line(name, searchFor(words), limit);
    }

private:
    const Store& store_;
    double read_;
};

void header(const std::string& title)
{
    fmt::print("\n{}\n\n| Search | found | time | L_read |\n|---|---|---|---|\n", title);
}

void measureSearches(const fs::path& file, const std::vector<std::string>& texts)
{
    Store store(file);
    store.import(texts, false);
    const double read = secondsToReadTexts(file);
    const Measurement of(store, read);
    double bytes = 0;
    for (const std::string& text : texts)
        bytes += static_cast<double>(text.size());
    fmt::print("\n## {} notes, {:.1f} MB of text, L_read {:.1f} ms\n", texts.size(), bytes / 1e6, read * 1000);
    const char* slow = std::getenv("TARN_BENCH_MOST_WORDS");
    const std::size_t mostWords = slow ? std::strtoul(slow, nullptr, 10) : 50'000;
    header("Many words, first 50");
    for (const std::size_t count : {2, 10, 100, 300, 400, 401, 2'000, 10'000, 50'000}) {
        if (count > mostWords)
            continue;
        of.search(fmt::format("{} absent words, or", count), manyWords(count, "", " or "), kShown);
        of.search(fmt::format("{} negated words", count), manyWords(count, "-", " "), kShown);
        of.search(fmt::format("{} negated words, counted", count), manyWords(count, "-", " "), 0);
    }
    std::string repeated;
    for (int i = 0; i < 300; ++i)
        repeated += "window ";
    of.search("`window` 300 times", repeated, kShown);
    header("Words without a usable gram, first 50");
    for (const char* word : {"zz", "%d", "🦆", "q🦆", "on"})
        of.search(fmt::format("`{}`", word), word, kShown);
    header("Titles, first 50");
    for (const char* word : {"@title xylophonist", "@title zz", "@title note", "@title 77"})
        of.search(fmt::format("`{}`", word), word, kShown);
}

void measureLists(const fs::path& file, const std::vector<std::string>& texts)
{
    Store store(file);
    store.import(texts, true);
    const Measurement of(store, secondsToReadTexts(file));
    header(fmt::format("Lists, first 50 of {} notes of one date", texts.size()));
    of.line("neither in the trash nor in the archive",
        NSPredicate::predicateWithFormat("trashed == NO AND archived == NO"), kShown);
    of.line("all", std::nullopt, kShown);
    of.search("`window`", "window", kShown);
}

} // namespace

int main(int argc, char** argv)
{
    std::string corpus;
    std::vector<std::size_t> counts;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument.starts_with("--"))
            continue; // options of other benchmarks
        if (const std::size_t count = std::strtoul(argv[i], nullptr, 10))
            counts.push_back(count);
        else
            corpus = argument;
    }
    if (counts.empty())
        counts = {20'000};
    for (const std::size_t count : counts) {
        const auto texts = corpus.empty() ? tarn::madeUpNotes(count) : tarn::searchCorpus(corpus, count);
        if (texts.empty())
            stop("no Markdown in " + corpus);
        const auto folder = fs::temp_directory_path() / ("tarn long searches " + newUUIDString());
        fs::create_directories(folder);
        measureSearches(folder / "searches.sqlite", texts);
        measureLists(folder / "lists.sqlite", texts);
        fs::remove_all(folder);
    }
}
