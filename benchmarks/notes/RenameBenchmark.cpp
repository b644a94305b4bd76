// What it costs to rename what many notes speak of: `bench_rename [most notes]`.
//
// Each measure is taken on a store that was just opened, and saved in one transaction; the shares of parsing, of
// fetching and of writing are told apart, and how the time grows with the number of notes.

#include "benchmarks/support/BenchmarkStore.h"
#include "benchmarks/support/Yardsticks.h"
#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

/// What a rename took, in all and in its parts.
struct Cost {
    double reading = 0;   ///< fetching notes and their texts
    double parsing = 0;   ///< rewriting and parsing the same texts, without any record
    double rewriting = 0; ///< the rename itself, parsing included
    double writing = 0;   ///< the save
    double whole() const { return reading + rewriting + writing; }
};

/// A case: how a note's text is made, how the rename is done, how a text alone is rewritten.
struct Case {
    const char* name;
    StoreType store;
    std::size_t few;
    std::size_t many;
    std::function<std::string(std::size_t)> text;
    std::function<std::vector<OVNote*>(NSManagedObjectContext&)> notesToRewrite;
    std::function<void(NSManagedObjectContext&)> rename;
    std::function<CVKAST(const std::string&)> rewrite;
};

std::string paragraph(std::size_t number)
{
    std::string text;
    for (std::size_t line = 0; line < 12; ++line)
        text += "Line " + std::to_string(line) + " of note " + std::to_string(number)
            + ": *some* words, a [link](https://example.org/" + std::to_string(line) + ") and `code`.\n";
    return text;
}

void fill(BenchmarkStore& store, const Case& tried, std::size_t count)
{
    OVNote::noteWithText("# Target", store.context);
    for (std::size_t number = 0; number < count; ++number)
        OVNote::noteWithText(tried.text(number), store.context);
    store.save();
}

Cost measure(const fs::path& folder, const Case& tried, std::size_t count)
{
    const fs::path file = folder / (newUUIDString() + ".sqlite");
    auto opened = std::make_unique<BenchmarkStore>(file, tried.store);
    fill(*opened, tried, count);
    // What rests in memory goes with its store, but its records are read again all the same.
    if (tried.store == StoreType::SQLite)
        opened = std::make_unique<BenchmarkStore>(file);
    opened->context.reset();
    BenchmarkStore& store = *opened;
    Cost cost;
    std::vector<std::string> texts;
    cost.reading = secondsOf([&] {
        for (const OVNote* note : tried.notesToRewrite(store.context))
            texts.push_back(note->text().value_or(""));
    });
    cost.parsing = secondsOf([&] {
        for (const std::string& text : texts)
            static_cast<void>(tried.rewrite(text).textSummary());
    });
    cost.rewriting = secondsOf([&] { tried.rename(store.context); });
    cost.writing = secondsOf([&] { store.save(); });
    if (texts.size() != count)
        fmt::print(stderr, "{} notes instead of {}\n", texts.size(), count);
    fs::remove(file);
    return cost;
}

std::vector<OVNote*> notesOfTag(NSManagedObjectContext& context)
{
    return OVNoteTag::tagWithName("work", context)->notesSet().allObjects();
}

void renameTag(NSManagedObjectContext& context)
{
    OVNoteTag::tagWithName("work", context)->renameTagWithTagNamed("day job");
}

/// Every note links to the one that gets another title; in its own title, too, where that begins with the link.
Case newTitle(const char* name, StoreType store, bool isInTitles = false)
{
    return {name, store, 1000, 32000,
        [isInTitles](std::size_t number) {
            const std::string title = isInTitles ? "" : "# Note " + std::to_string(number) + "\n\n";
            return title + "See [[Target]].\n" + paragraph(number);
        },
        [](NSManagedObjectContext& context) { return OVNote::noteWithTitle("Target", context)->linkedByNotes(); },
        [](NSManagedObjectContext& context) { OVNote::noteWithTitle("Target", context)->updateNoteWithText("# Goal"); },
        [](const std::string& text) { return CVKWikiLink::updateWikiLinkWithTitle("Target", "Goal", false, text); }};
}

std::vector<Case> cases()
{
    const auto rewriteTag = [](const std::string& text) { return CVKHashtag::renameTagName("work", "day job", text); };
    return {
        {"rename of a tag", StoreType::SQLite, 500, 2000,
            [](std::size_t number) {
                return "# Note " + std::to_string(number) + "\n\n" + paragraph(number) + "\n#work\n";
            },
            notesOfTag, renameTag, rewriteTag},
        {"rename of a tag with 500 below it", StoreType::SQLite, 2500, 10000,
            [](std::size_t number) {
                return "# Note " + std::to_string(number) + "\n\n" + paragraph(number) + "\n#work/project "
                    + std::to_string(number % 500) + "#\n";
            },
            notesOfTag, renameTag, rewriteTag},
        newTitle("new title of a linked note", StoreType::SQLite),
        newTitle("new title of one, in memory", StoreType::InMemory),
        newTitle("new title that all titles hold", StoreType::SQLite, true),
        newTitle("the same, in memory", StoreType::InMemory, true),
    };
}

void report(const Case& tried, std::size_t count, const Cost& cost)
{
    const double whole = cost.whole();
    fmt::print("{:<34} {:>6} notes {:>9.1f} ms {:>7.3f} ms a note   reading {:>2.0f} %, parsing {:>2.0f} %, "
               "records {:>2.0f} %, writing {:>2.0f} %\n",
        tried.name, count, whole * 1000, whole * 1000 / static_cast<double>(count), 100 * cost.reading / whole,
        100 * cost.parsing / whole, 100 * (cost.rewriting - cost.parsing) / whole, 100 * cost.writing / whole);
}

} // namespace

int main(int argc, char** argv)
{
    // Whoever runs all benchmarks hands them options of Google Benchmark, which read as 0.
    const std::size_t given = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 0;
    const BenchmarkFolder folder;
    for (const Case& tried : cases()) {
        const std::size_t many = given ? std::min(tried.many, given) : tried.many;
        const std::size_t few = std::min(tried.few, std::max<std::size_t>(many / 4, 1));
        const Cost costOfFew = measure(folder.path(), tried, few);
        const Cost costOfMany = measure(folder.path(), tried, many);
        report(tried, few, costOfFew);
        report(tried, many, costOfMany);
        const double growth
            = costOfMany.whole() / static_cast<double>(many) / (costOfFew.whole() / static_cast<double>(few));
        fmt::print("{:<34} time for each note, {} against {}: {:.2f} (linear is 1)\n", "", many, few, growth);
    }
}
