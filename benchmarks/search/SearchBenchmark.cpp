// Searches in a store, beside what the machine itself takes and what other tools take for the same texts:
// `bench_search FOLDER-OF-MARKDOWN [count ...]`. The folder is made by scripts/fetch-benchmark-data.sh.

#include "benchmarks/search/SearchCorpus.h"
#include "benchmarks/support/Yardsticks.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/text/RegularExpression.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <fmt/core.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sys/wait.h>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

constexpr std::size_t kBatch = 2500; ///< notes that one import saves together, as the command line does
constexpr std::size_t kShown = 50;   ///< what a list shows at first

[[noreturn]] void stop(const std::string& why)
{
    fmt::print(stderr, "bench_search: {}\n", why);
    std::exit(1);
}

struct Store {
    explicit Store(const fs::path& file)
        : coordinator(std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current()))
    {
        NSError error;
        if (!coordinator->addPersistentStoreWithType(StoreType::SQLite, file, {}, &error))
            stop(error.localizedDescription());
        store = coordinator->rowStore();
    }
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator;
    RowStore* store = nullptr;
};

double secondsSince(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

template <typename Work> double secondsFor(Work&& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return secondsSince(begin);
}

// What is searched ----------------------------------------------------------------------------------------------------

/// What the search field makes of one word.
NSPredicate searchForWord(const std::string& word)
{
    return NSPredicate::predicateWithFormat(
        "trashed == NO AND archived == NO AND ((encrypted == YES AND title CONTAINS[cd] %@) OR (encrypted == NO AND "
        "(text CONTAINS[cd] %@ OR (0 == 1 AND SUBQUERY(files, $file, $file.unused == NO AND $file.searchText "
        "CONTAINS[cd] %@).@count != 0))))",
        word, word, word);
}

std::string wholeWordPattern(const std::string& word)
{
    return R"((?mis).*?(?:^|[^\w]))" + word + R"((?:[^\w]|$).*)";
}

class Searcher {
public:
    explicit Searcher(const Store& store)
        : store_(*store.store), entity_(*OVManagedObjectModel::current()->entityNamed("OVNote"))
    { }

    StoreFetch fetch(const NSPredicate& predicate, std::size_t limit) const
    {
        StoreFetch fetch;
        fetch.entity = &entity_;
        fetch.predicate = &predicate;
        fetch.limit = limit;
        if (limit > 0)
            fetch.sortDescriptors = order_;
        return fetch;
    }
    std::size_t first(const NSPredicate& predicate) const
    {
        std::vector<StoreRow> rows;
        NSError error;
        if (!store_.fetch(fetch(predicate, kShown), rows, &error))
            stop(error.localizedDescription());
        return rows.size();
    }
    std::size_t count(const NSPredicate& predicate) const
    {
        std::size_t count = 0;
        NSError error;
        if (!store_.count(fetch(predicate, 0), count, &error))
            stop(error.localizedDescription());
        return count;
    }
    /// The last line of what the store says about the fetch.
    std::string plan(const NSPredicate& predicate, std::size_t limit) const
    {
        const std::string text = store_.explain(fetch(predicate, limit));
        const std::size_t start = text.find("search: ");
        return start == std::string::npos ? "" : text.substr(start + 8, text.find(';', start) - start - 8);
    }
    RowStore& store() const { return store_; }

private:
    RowStore& store_;
    const NSEntityDescription& entity_;
    std::vector<NSSortDescriptor> order_{{"pinned", false}, {"modificationDate", false}};
};

// Other ways ----------------------------------------------------------------------------------------------------------

double secondsForLike(const fs::path& file, const std::string& word)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle, "SELECT count(*) FROM \"OVNote_large\" WHERE text LIKE ?", -1, &statement, nullptr);
    const std::string pattern = "%" + word + "%";
    const double seconds = medianSeconds(3, [&](int) {
        sqlite3_bind_text(statement, 1, pattern.c_str(), -1, SQLITE_STATIC);
        sqlite3_step(statement);
        sqlite3_reset(statement);
    });
    sqlite3_finalize(statement);
    sqlite3_close(handle);
    return seconds;
}

/// Whether it could be run; the seconds that it took.
std::optional<double> secondsForRipgrep(const fs::path& folder, const std::string& word)
{
    const std::string command = "rg -i -l -F -e '" + word + "' '" + folder.string() + "' > /dev/null";
    bool ran = true;
    const double seconds = medianSeconds(3, [&](int) {
        const int status = std::system(command.c_str());
        ran = ran && WIFEXITED(status) && WEXITSTATUS(status) <= 1; // 1: nothing found
    });
    return ran ? std::optional(seconds) : std::nullopt;
}

/// The pattern as it is, text by text; over some of the texts, for all of them.
double secondsForPattern(const std::vector<std::string>& texts, const std::string& pattern)
{
    const RegularExpression expression(pattern, {.caseInsensitive = true});
    const std::size_t sample = std::min<std::size_t>(texts.size(), 2000);
    const double seconds = secondsFor([&] {
        for (std::size_t i = 0; i < sample; ++i)
            static_cast<void>(expression.matches(texts[i * texts.size() / sample]));
    });
    return seconds * static_cast<double>(texts.size()) / static_cast<double>(sample);
}

/// Bytes of the tables that narrow searches.
double bytesOfIndex(const fs::path& file)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* statement = nullptr;
    double bytes = 0;
    if (sqlite3_prepare_v2(handle,
            "SELECT sum(pgsize) FROM dbstat WHERE name LIKE '%\\_signature' ESCAPE '\\' OR name LIKE '%\\_changes' "
            "ESCAPE '\\'",
            -1, &statement, nullptr)
            == SQLITE_OK
        && sqlite3_step(statement) == SQLITE_ROW)
        bytes = sqlite3_column_double(statement, 0);
    sqlite3_finalize(statement);
    sqlite3_close(handle);
    return bytes;
}

// The table -----------------------------------------------------------------------------------------------------------

void header(const char* title)
{
    fmt::print("\n{}\n\n| Operation | ms | of the yardstick | target | plan |\n|---|---|---|---|---|\n", title);
}

void line(const std::string& name, double seconds, double unit, const char* yardstick, const std::string& target,
    const std::string& plan = "")
{
    fmt::print(
        "| {} | {:.3f} | {:.2f} {} | {} | {} |\n", name, seconds * 1000, seconds / unit, yardstick, target, plan);
}

class Measurement {
public:
    Measurement(const fs::path& folder, std::vector<std::string> texts)
        : folder_(folder), file_(folder / "database.sqlite"), texts_(std::move(texts))
    { }

    void run()
    {
        for (const std::string& text : texts_)
            bytes_ += static_cast<double>(text.size());
        const double imported = import();
        yardsticks_ = {secondsToWrite(folder_, texts_), secondsToReadTexts(file_), secondsToCommit(folder_),
            secondsForPointLookup(file_)};
        fmt::print("\n## {} notes, {:.1f} MB of text, store {:.1f} MB\n\n", texts_.size(), bytes_ / 1e6,
            static_cast<double>(fs::file_size(file_)) / 1e6);
        fmt::print("L_write {:.1f} ms, L_read {:.1f} ms, L_commit {:.3f} ms, L_point {:.2f} us\n",
            yardsticks_.write * 1000, yardsticks_.read * 1000, yardsticks_.commit * 1000, yardsticks_.point * 1e6);
        header("Writing");
        line("import with tags and signatures, object layer included", imported, yardsticks_.write, "L_write", "<= 12");
        edits();
        fmt::print("| index on disk | {:.1f} MB | {:.1f} % of the text | <= 15 % | |\n", bytesOfIndex(file_) / 1e6,
            100 * bytesOfIndex(file_) / bytes_);
        firstSearch();
        searches();
        counts();
        words();
        lookups();
        others();
    }

private:
    double import()
    {
        return secondsFor([&] {
            const Store store(file_);
            NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::MainQueue);
            context.setPersistentStoreCoordinator(store.coordinator);
            for (std::size_t first = 0; first < texts_.size(); first += kBatch) {
                NSError error;
                const bool saved = context.performExclusive(
                    [&] {
                        for (std::size_t i = first; i < std::min(first + kBatch, texts_.size()); ++i)
                            OVNote::noteWithText(texts_[i], context);
                    },
                    &error);
                if (!saved)
                    stop(error.localizedDescription());
                context.reset();
            }
        });
    }

    void edits()
    {
        const Store store(file_);
        NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::MainQueue);
        context.setPersistentStoreCoordinator(store.coordinator);
        NSFetchRequest request(*context.managedObjectModel().entityNamed("OVNote"));
        request.fetchLimit = 200;
        request.fetchOffset = texts_.size() / 2;
        const auto notes = context.executeFetchRequest(request);
        const double seconds = medianSeconds(101, [&](int run) {
            auto& note = static_cast<OVNote&>(*notes[static_cast<std::size_t>(run * 7919) % notes.size()]);
            note.updateNoteWithText(note.text().value_or("") + "\nedit " + std::to_string(run));
            NSError error;
            if (!context.save(&error))
                stop(error.localizedDescription());
        });
        line("edit of one note, saved", seconds, yardsticks_.commit, "L_commit", "<= 1.8");
    }

    void firstSearch()
    {
        header("Searches, first 50 by pinned and modification date, engine");
        const NSPredicate predicate = searchForWord("zygomorphic");
        const double seconds = medianSeconds(5, [&](int) {
            const Store store(file_);
            Searcher(store).first(predicate);
        });
        line("open the store and search, nothing in memory", seconds, yardsticks_.read, "L_read", "<= 60 ms");
    }

    void searches()
    {
        const Store store(file_);
        const Searcher searcher(store);
        struct Row {
            const char* word;
            const char* what;
            const char* target;
        };
        for (const Row& row : {Row{"zygomorphic", "rare", "<= 0.15"}, Row{"quixotry", "rare", "<= 0.15"},
                 Row{"creme brulee", "phrase with marks", "<= 0.15"}, Row{"xylophonist", "absent", "<= 0.15"},
                 Row{"constations", "absent, common grams", "<= 0.8"}, Row{"приложения", "Cyrillic", "<= 0.8"},
                 Row{"窗口", "two Han characters", "<= 0.8"}, Row{"ウィンドウ", "Japanese", "<= 0.8"},
                 Row{"window", "common", "<= 0.8"}, Row{"on", "two letters", "<= 0.8"},
                 Row{"e", "one letter", "<= 0.8"}}) {
            const NSPredicate predicate = searchForWord(row.word);
            searcher.first(predicate);
            const double seconds = medianSeconds(9, [&](int) { searcher.first(predicate); });
            line(fmt::format("`{}`, {}, {} hits", row.word, row.what, searcher.count(predicate)), seconds,
                yardsticks_.read, "L_read", row.target, searcher.plan(predicate, kShown));
        }
        const auto two = NSPredicate::andPredicateWithSubpredicates(
            std::vector<NSPredicate>{searchForWord("window"), searchForWord("quixotry")});
        line("`window quixotry`", medianSeconds(9, [&](int) { searcher.first(two); }), yardsticks_.read, "L_read",
            "<= 0.15", searcher.plan(two, kShown));
        const auto without = NSPredicate::andPredicateWithSubpredicates(std::vector<NSPredicate>{
            searchForWord("quixotry"), NSPredicate::notPredicateWithSubpredicate(searchForWord("window"))});
        line("`quixotry -window`", medianSeconds(9, [&](int) { searcher.first(without); }), yardsticks_.read, "L_read",
            "<= 0.15", searcher.plan(without, kShown));
    }

    void counts()
    {
        header("Counts of `text CONTAINS[cd]`");
        const Store store(file_);
        const Searcher searcher(store);
        for (const char* word : {"zygomorphic", "window", "on", "a"}) {
            const auto predicate = NSPredicate::predicateWithFormat("text CONTAINS[cd] %@", word);
            searcher.count(predicate);
            const double two = medianSeconds(5, [&](int) { searcher.count(predicate); });
            line(fmt::format("`{}`, {} hits", word, searcher.count(predicate)), two, yardsticks_.read, "L_read",
                "<= 2.0", searcher.plan(predicate, 0));
            // Within a transaction there is one thread.
            NSError error;
            const auto transaction = searcher.store().beginTransaction(&error);
            const double one = medianSeconds(5, [&](int) { searcher.count(predicate); });
            line(fmt::format("`{}`, one thread", word), one, yardsticks_.read, "L_read", "<= 3.5");
        }
    }

    void words()
    {
        header("Quoted words, all hits counted, against the matcher on each text");
        const Store store(file_);
        const Searcher searcher(store);
        for (const auto& [word, target] : {std::pair("zygomorphic", ">= 500"), std::pair("window", ">= 25")}) {
            const auto predicate = NSPredicate::predicateWithFormat("text MATCHES[cd] %@", wholeWordPattern(word));
            searcher.count(predicate);
            const double seconds = medianSeconds(5, [&](int) { searcher.count(predicate); });
            const double matcher = secondsForPattern(texts_, wholeWordPattern(word));
            fmt::print("| `\"{}\"`, {} hits | {:.3f} | {:.0f} times faster than {:.0f} ms | {} | {} |\n", word,
                searcher.count(predicate), seconds * 1000, matcher / seconds, matcher * 1000, target,
                searcher.plan(predicate, 0));
        }
    }

    void lookups()
    {
        header("Titles and tags");
        const Store store(file_);
        const Searcher searcher(store);
        const std::size_t lookups = 1000;
        std::vector<NSPredicate> titles;
        for (std::size_t i = 0; i < lookups; ++i)
            titles.push_back(NSPredicate::predicateWithFormat(
                "title ==[cd] %@", "NOTE " + std::to_string(i * texts_.size() / lookups)));
        const double seconds = secondsFor([&] {
            for (const NSPredicate& title : titles)
                if (searcher.count(title) == 0)
                    stop("a title was not found");
        });
        line("title ==[cd]", seconds / lookups, yardsticks_.point, "L_point", "<= 3");
        for (const auto& [tag, target] : {std::pair("area39/topic1999", "<= 0.2 ms"), std::pair("area1", "<= 3 ms")}) {
            const auto predicate = NSPredicate::predicateWithFormat(
                "trashed == NO AND archived == NO AND ANY tags.title ==[cd] %@", tag);
            searcher.first(predicate);
            const double taken = medianSeconds(9, [&](int) { searcher.first(predicate); });
            line(fmt::format("tag `{}`, {} notes", tag, searcher.count(predicate)), taken, yardsticks_.read, "L_read",
                target);
        }
    }

    void others()
    {
        header("Other ways through the same texts");
        const fs::path files = folder_ / "files";
        for (std::size_t i = 0; i < texts_.size(); ++i) {
            const fs::path folder = files / std::to_string(i / 1000);
            fs::create_directories(folder);
            std::ofstream(folder / (std::to_string(i) + ".md"), std::ios::binary) << texts_[i];
        }
        for (const char* word : {"zygomorphic", "window"}) {
            if (const auto seconds = secondsForRipgrep(files, word))
                line(fmt::format("ripgrep -i -l `{}`", word), *seconds, yardsticks_.read, "L_read", "");
            else
                fmt::print("| ripgrep -i -l `{}` | not installed | | | |\n", word);
            line(fmt::format("SQLite's LIKE `{}`, ASCII case only", word), secondsForLike(file_, word),
                yardsticks_.read, "L_read", "");
        }
    }

    fs::path folder_;
    fs::path file_;
    std::vector<std::string> texts_;
    double bytes_ = 0;
    Yardsticks yardsticks_;
};

} // namespace

int main(int argc, char** argv)
{
    std::string corpus;
    std::vector<std::size_t> counts;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument.starts_with("--"))
            continue; // options of other benchmarks
        if (corpus.empty())
            corpus = argument;
        else
            counts.push_back(std::strtoul(argv[i], nullptr, 10));
    }
    if (corpus.empty()) {
        fmt::print("bench_search FOLDER [COUNT ...]: the folder is made by scripts/fetch-benchmark-data.sh\n");
        return 0;
    }
    if (counts.empty())
        counts = {10'000, 100'000};
    for (const std::size_t count : counts) {
        auto texts = tarn::searchCorpus(corpus, count);
        if (texts.empty())
            stop("no Markdown in " + corpus);
        const auto folder = fs::temp_directory_path() / ("tarn search benchmark " + newUUIDString());
        fs::create_directories(folder);
        Measurement(folder, std::move(texts)).run();
        fs::remove_all(folder);
    }
}
