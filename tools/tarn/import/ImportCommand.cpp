#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commandline/Progress.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/import/ImportReport.h"
#include "tools/tarn/import/Importer.h"

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
    std::optional<std::string> titles;
    std::optional<std::string> links;
    std::optional<std::string> movedFrom;
    bool foldersAsTags = false;
    bool dryRun = false;
    bool verbose = false;
};

constexpr std::array kTitleModes{
    std::pair<std::string_view, TitleMode>{"auto", TitleMode::Auto},
    std::pair<std::string_view, TitleMode>{"text", TitleMode::Text},
    std::pair<std::string_view, TitleMode>{"file", TitleMode::File},
    std::pair<std::string_view, TitleMode>{"unique", TitleMode::Unique},
};

std::vector<std::string> namesOfTitleModes()
{
    std::vector<std::string> names;
    for (const auto& [name, mode] : kTitleModes)
        names.emplace_back(name);
    return names;
}

ImportRules rulesOf(const ImportOptions& options)
{
    ImportRules rules{.keepsLinks = options.links == "keep", .makesTagsOfFolders = options.foldersAsTags};
    for (const auto& [name, mode] : kTitleModes) {
        if (options.titles == name)
            rules.titles = mode;
    }
    return rules;
}

std::string_view textOfOutcome(FileOutcome outcome)
{
    switch (outcome) {
    case FileOutcome::Updated:
        return " (updated)";
    case FileOutcome::Unchanged:
        return " (unchanged)";
    case FileOutcome::Conflicted:
        return " (a conflicted copy)";
    case FileOutcome::Skipped:
        return " (skipped)";
    case FileOutcome::Imported:
        break;
    }
    return "";
}

void requireUsableTags(const std::vector<std::string>& tags)
{
    for (const std::string& tag : tags) {
        if (CVKHashtag::sanitizeTagName(tag).empty())
            throw CommandFailure(ExitCode::Usage, "\"" + tag + "\" cannot be the name of a tag");
    }
}

/// The folder that a moved root is now: the one that is imported.
void moveRoot(Importer& importer, const ImportOptions& options)
{
    if (!options.movedFrom)
        return;
    if (options.paths.size() != 1)
        throw CommandFailure(ExitCode::Usage, "--moved-from goes with one PATH, the folder as it is named now");
    const auto old = std::filesystem::absolute(*options.movedFrom).lexically_normal();
    importer.moveRoot(old.has_filename() ? old : old.parent_path(), pathWithoutSymbolicLinks(options.paths.front()));
}

ImportResult importFiles(const Invocation& invocation, const ImportOptions& options, const MarkdownFiles& found)
{
    // An import that finds nothing, or was ended before it began, makes no store.
    std::optional<StoreSession> session;
    std::error_code failure;
    const bool isThere
        = std::filesystem::exists(OVLocalFileManager::databaseURLInGroupFolder(storeFolderOf(invocation)), failure);
    const bool isToBe = isThere || !found.files.empty();
    if (options.dryRun) {
        if (isThere)
            session.emplace(invocation, StoreSession::Access::Read);
    } else if (isToBe && !Interruption::requested()) {
        session.emplace(invocation, StoreSession::Access::Write);
    }
    Progress progress(options.dryRun ? "Reading" : "Importing", found.files.size());
    Importer importer(session ? &*session : nullptr, !options.dryRun, rulesOf(options), options.tags);
    moveRoot(importer, options);
    const bool listsFiles = options.dryRun && !invocation.json;
    ImportResult result = importer.importFiles(found, [&](const ImportedFile& file) {
        progress.advance();
        if (listsFiles)
            invocation.output.writeLine(displayText(file.path.native()) + ": "
                + displayText(file.title.empty() ? "(untitled)" : file.title)
                + std::string(textOfOutcome(file.outcome)));
    });
    for (const ToldLink& told : result.toldLinks) {
        if (listsFiles)
            invocation.output.writeLine("  " + displayText(textOfLink(told)));
    }
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
    const ImportReport report{.result = result,
        .skipped = skippedBy(result, found.skipped),
        .seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
        .isDryRun = options.dryRun};
    tellOfImport(report, options.verbose);
    if (invocation.json)
        writeJSON(invocation.output, jsonOfReport(report));
    else
        invocation.output.writeLine(summaryOfReport(report));
    if (result.code != ExitCode::Done)
        return result.code;
    if (found.files.empty())
        tellOnStandardError("there are no .md, .markdown or .txt files in what was named");
    return found.files.empty() ? ExitCode::Failed : ExitCode::Done;
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
              "Importing a file again changes the note that was made of it, unless somebody else did: then it gets a\n"
              "conflicted copy.\n"
              "A text that does not say its title gets a heading that does, from front matter or the name of the file, "
              "and links\n"
              "between the files lead to their notes.\n"
              "YAML front matter is taken off: its tags become hashtags, its dates win over those of the file; "
              "anything else\n"
              "stays in a block below the text.",
            .examples = {"tarn import ~/Documents/notes", "tarn import --tag old --dry-run notes.md archive/"}},
        [options](const Invocation& invocation) { return import(invocation, *options); });
    command.addArguments("PATH", options->paths, "Files and folders").required();
    command.addOptionList("--tag", options->tags, "Add this tag to every note, at the bottom").called("NAME");
    command
        .addOption("--titles", options->titles,
            "Where titles come from: auto (the default), text, file, or unique, which tells shared ones apart")
        .oneOf(namesOfTitleModes())
        .called("MODE");
    command
        .addOption("--links", options->links,
            "Links between the files: wiki (the default), so that they lead to notes, or keep, as they are")
        .oneOf({"wiki", "keep"})
        .called("MODE");
    command.addFlag("--folders-as-tags", options->foldersAsTags, "Add the path of its folder to every note as a tag");
    command.addOption("--moved-from", options->movedFrom, "Where PATH lay when it was imported before").called("OLD");
    command.addFlag(
        "--verbose", options->verbose, "Name each file that was skipped or left out, and each link that was left");
    command.addFlag("--dry-run", options->dryRun, "Read everything, write nothing, tell what would be imported");
}

} // namespace tarn
