#include "corvel/CVKHashtag.h"
#include "platform/foundation/UTF.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/Importer.h"
#include "tools/tarn/JSON.h"
#include "tools/tarn/Progress.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <memory>

namespace tarn {

namespace {

struct ImportOptions {
    std::vector<std::string> paths;
    std::vector<std::string> tags;
    bool dryRun = false;
};

JSON jsonOf(const ImportResult& result, std::size_t skipped, double seconds)
{
    JSON failed = JSON::array();
    for (const PathFailure& failure : result.failures)
        failed.push_back({{"path", validUTF8(failure.path.native())}, {"error", failure.error}});
    JSON document;
    document["imported"] = result.imported;
    document["skipped"] = skipped;
    document["failed"] = std::move(failed);
    document["seconds"] = seconds;
    return document;
}

std::string plural(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string summaryOf(const ImportResult& result, std::size_t skipped, double seconds, bool dryRun)
{
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "%.2f s", seconds);
    std::string line = (dryRun ? "would import " : "imported ") + plural(result.imported, "note");
    if (skipped > 0)
        line += ", skipped " + plural(skipped, "file");
    if (!result.failures.empty())
        line += ", failed on " + plural(result.failures.size(), "file");
    return line + " in " + time.data();
}

void requireUsableTags(const std::vector<std::string>& tags)
{
    for (const std::string& tag : tags) {
        if (CVKHashtag::sanitizeTagName(tag).empty())
            throw CommandFailure(ExitCode::Usage, "\"" + tag + "\" cannot be the name of a tag");
    }
}

ImportResult importFiles(const Invocation& invocation, const ImportOptions& options, const MarkdownFiles& found)
{
    // An import that finds nothing makes no store.
    std::optional<StoreSession> session;
    if (!options.dryRun && !found.files.empty())
        session.emplace(invocation, StoreSession::Access::Write);
    Progress progress(options.dryRun ? "Reading" : "Importing", found.files.size());
    Importer importer(session ? &*session : nullptr, options.tags);
    const bool listsFiles = options.dryRun && !invocation.json;
    ImportResult result = importer.importFiles(found.files, [&](const ImportedFile& file) {
        progress.advance();
        if (listsFiles)
            invocation.output.writeLine(
                displayText(file.path.native()) + ": " + displayText(file.title.empty() ? "(untitled)" : file.title));
    });
    if (!found.failures.empty()) {
        result.failures.insert(result.failures.begin(), found.failures.begin(), found.failures.end());
        result.code
            = result.code == ExitCode::Done || result.code == ExitCode::Failed ? ExitCode::InputOutput : result.code;
    }
    return result;
}

ExitCode import(const Invocation& invocation, const ImportOptions& options)
{
    requireUsableTags(options.tags);
    const auto start = std::chrono::steady_clock::now();
    const MarkdownFiles found = markdownFilesAtPaths(options.paths);
    const ImportResult result = importFiles(invocation, options, found);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();

    for (const PathFailure& failure : result.failures)
        tellOnStandardError("not imported: " + failure.path.native() + ": " + failure.error);
    if (invocation.json)
        writeJSON(invocation.output, jsonOf(result, found.skipped, seconds));
    else
        invocation.output.writeLine(summaryOf(result, found.skipped, seconds, options.dryRun));
    if (result.code != ExitCode::Done)
        return result.code;
    if (result.imported == 0)
        tellOnStandardError("there are no .md, .markdown or .txt files in what was named");
    return result.imported == 0 ? ExitCode::Failed : ExitCode::Done;
}

} // namespace

void addImportCommand(CommandLine& commandLine)
{
    const auto options = std::make_shared<ImportOptions>();
    const Command command = commandLine.addCommand(
        {.name = "import",
            .summary = "Make notes of Markdown and text files",
            .explanation
            = "Folders are searched for .md, .markdown and .txt files, in the order of names; hidden files and "
              "folders\n"
              "(.name) are passed over. A file that is named is taken whatever its ending, one that is named twice "
              "once.\n"
              "Every import makes new notes: importing a file again makes a second one.\n"
              "YAML front matter is taken off: its title becomes the heading of a text that begins with none, its "
              "tags\n"
              "become hashtags, its dates win over those of the file; anything else stays in a block below the text.",
            .examples = {"tarn import ~/Documents/notes", "tarn import --tag old --dry-run notes.md archive/"}},
        [options](const Invocation& invocation) { return import(invocation, *options); });
    command.addArguments("PATH", options->paths, "Files and folders").required();
    command.addOptionList("--tag", options->tags, "Add this tag to every note, at the bottom").called("NAME");
    command.addFlag("--dry-run", options->dryRun, "Read everything, write nothing, tell what would be imported");
}

} // namespace tarn
