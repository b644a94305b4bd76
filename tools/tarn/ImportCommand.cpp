#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/Importer.h"
#include "tools/tarn/Interruption.h"
#include "tools/tarn/JSON.h"
#include "tools/tarn/Progress.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace tarn {

namespace {

struct ImportOptions {
    std::vector<std::string> paths;
    std::vector<std::string> tags;
    bool dryRun = false;
    bool verbose = false;
};

std::string textOfPath(const std::filesystem::path& path)
{
    return validUTF8(path.native());
}

std::size_t countOfLinks(const ImportResult& result, LinkedFile::Kind kind)
{
    return static_cast<std::size_t>(std::ranges::count(result.leftLinks, kind, &LeftLink::kind));
}

std::string_view reasonOf(const LeftLink& link)
{
    return link.kind == LinkedFile::Kind::Outside ? "outside of what is imported" : "no such file";
}

JSON jsonOfLeftLinks(const ImportResult& result)
{
    JSON links = JSON::array();
    for (const LeftLink& link : result.leftLinks)
        links.push_back({{"path", textOfPath(link.note)}, {"link", link.destination}, {"reason", reasonOf(link)}});
    return links;
}

/// Files that were attached were not passed over.
std::vector<SkippedPath> skippedBy(const ImportResult& result, std::vector<SkippedPath> skipped)
{
    std::erase_if(skipped, [&result](const SkippedPath& file) {
        std::error_code failure;
        return (file.reason == SkipReason::Picture || file.reason == SkipReason::InAssets)
            && result.attachedFiles.contains(std::filesystem::canonical(file.path, failure));
    });
    return skipped;
}

JSON jsonOf(const ImportResult& result, const std::vector<SkippedPath>& skipped, double seconds)
{
    JSON skippedFiles = JSON::array();
    for (const SkippedPath& file : skipped)
        skippedFiles.push_back({{"path", textOfPath(file.path)}, {"reason", textOfReason(file.reason)}});
    JSON failed = JSON::array();
    for (const PathFailure& failure : result.failures)
        failed.push_back({{"path", textOfPath(failure.path)}, {"error", failure.error}});
    for (const std::filesystem::path& path : result.left)
        failed.push_back({{"path", textOfPath(path)}, {"error", result.reasonLeft}});
    JSON document;
    document["imported"] = result.imported;
    document["attachments"] = result.attachments;
    document["skipped"] = skipped.size();
    document["skippedFiles"] = std::move(skippedFiles);
    document["failed"] = std::move(failed);
    document["links"] = {{"outside", countOfLinks(result, LinkedFile::Kind::Outside)},
        {"missing", countOfLinks(result, LinkedFile::Kind::Missing)}};
    document["leftLinks"] = jsonOfLeftLinks(result);
    document["seconds"] = seconds;
    return document;
}

std::string summaryOf(const ImportResult& result, const std::vector<SkippedPath>& skipped, double seconds, bool dryRun)
{
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "%.2f s", seconds);
    std::string line = (dryRun ? "would import " : "imported ") + numbered(result.imported, "note");
    if (result.attachments > 0)
        line += " with " + numbered(result.attachments, "attachment");
    if (!skipped.empty())
        line += ", skipped " + numbered(skipped.size(), "file");
    if (const auto pictures = std::ranges::count(skipped, SkipReason::Picture, &SkippedPath::reason); pictures > 0)
        line += " (" + numbered(static_cast<std::size_t>(pictures), "picture") + ")";
    if (!result.failures.empty())
        line += ", failed on " + numbered(result.failures.size(), "file");
    if (!result.leftLinks.empty())
        line += ", left " + numbered(result.leftLinks.size(), "link") + " to no such file or elsewhere";
    if (!result.left.empty())
        line += ", left out " + numbered(result.left.size(), "file");
    return line + " in " + time.data();
}

/// Where an import ended before its time: what is in the store, and what is not.
void tellOfEnd(const ImportResult& result, bool dryRun)
{
    if (result.reasonLeft.empty())
        return;
    std::string left;
    if (!result.left.empty())
        left = "; " + numbered(result.left.size(), "file") + ", from " + textOfPath(result.left.front())
            + (result.left.size() == 1 ? " on, is" : " on, are") + (dryRun ? " not looked at" : " not");
    const std::string taken = dryRun ? "nothing was written"
        : result.imported == 0       ? "nothing of it is in the store"
                                     : "the " + numbered(result.imported, "note") + " up to "
            + textOfPath(result.lastImported) + " are in the store";
    tellOnStandardError(result.reasonLeft + ": " + taken + left);
}

void tellOfPaths(const ImportResult& result, const std::vector<SkippedPath>& skipped, bool verbose)
{
    for (const PathFailure& failure : result.failures)
        tellOnStandardError("not imported: " + failure.path.native() + ": " + failure.error);
    if (!verbose)
        return;
    for (const SkippedPath& file : skipped)
        tellOnStandardError("skipped: " + file.path.native() + ": " + std::string(textOfReason(file.reason)));
    for (const LeftLink& link : result.leftLinks)
        tellOnStandardError(
            "left a link: " + link.note.native() + ": " + link.destination + ": " + std::string(reasonOf(link)));
    for (const std::filesystem::path& path : result.left)
        tellOnStandardError("not imported: " + path.native() + ": " + result.reasonLeft);
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
    // An import that finds nothing, or was ended before it began, makes no store.
    std::optional<StoreSession> session;
    if (!options.dryRun && !found.files.empty() && !Interruption::requested())
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
    const Interruption interruption;
    const auto start = std::chrono::steady_clock::now();
    const MarkdownFiles found = markdownFilesAtPaths(options.paths);
    const ImportResult result = importFiles(invocation, options, found);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();

    const std::vector<SkippedPath> skipped = skippedBy(result, found.skipped);
    tellOfPaths(result, skipped, options.verbose);
    tellOfEnd(result, options.dryRun);
    if (invocation.json)
        writeJSON(invocation.output, jsonOf(result, skipped, seconds));
    else
        invocation.output.writeLine(summaryOf(result, skipped, seconds, options.dryRun));
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
              "Files that a text links by a relative path, and that lie below the folder that was named, become "
              "attachments of\n"
              "the note, and the link gets the attachment's name; other links stay. Pictures that no text links are "
              "counted.\n"
              "Notes are saved 2,500 at a time: where Control-C ends an import, it says up to which file.\n"
              "Every import makes new notes: importing a file again makes a second one.\n"
              "YAML front matter is taken off: its title becomes the heading of a text that begins with none, its "
              "tags\n"
              "become hashtags, its dates win over those of the file; anything else stays in a block below the text.",
            .examples = {"tarn import ~/Documents/notes", "tarn import --tag old --dry-run notes.md archive/"}},
        [options](const Invocation& invocation) { return import(invocation, *options); });
    command.addArguments("PATH", options->paths, "Files and folders").required();
    command.addOptionList("--tag", options->tags, "Add this tag to every note, at the bottom").called("NAME");
    command.addFlag(
        "--verbose", options->verbose, "Name each file that was skipped or left out, and each link that was left");
    command.addFlag("--dry-run", options->dryRun, "Read everything, write nothing, tell what would be imported");
}

} // namespace tarn
