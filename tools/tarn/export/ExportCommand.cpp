#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/arguments/NoteFilter.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commandline/Progress.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/export/Exporter.h"
#include "tools/tarn/import/record/ImportRecord.h"
#include "tools/tarn/session/StoreSession.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

namespace {

struct ExportOptions {
    std::optional<std::string> folder;
    std::vector<std::string> notes;
    std::optional<std::string> layout;
    std::optional<std::string> links;
    bool all = false;
};

JSON jsonOfExport(const ExportResult& result)
{
    JSON left = JSON::array();
    for (const LeftFile& file : result.left)
        left.push_back({{"path", validUTF8(file.path.native())}, {"reason", file.reason}});
    JSON renamed = JSON::array();
    for (const RenamedFile& file : result.renamed)
        renamed.push_back({{"name", file.name}, {"path", validUTF8(file.path.native())}});
    JSON document;
    document["exported"] = result.exported;
    document["unchanged"] = result.unchanged;
    document["files"] = result.files;
    document["removed"] = result.removed;
    document["left"] = std::move(left);
    document["renamed"] = std::move(renamed);
    return document;
}

std::string summaryOfExport(const ExportResult& result)
{
    std::string line = "exported " + numbered(result.exported, "note") + " and " + numbered(result.files, "attachment");
    if (result.unchanged > 0)
        line += ", " + numbered(result.unchanged, "file") + " unchanged";
    if (result.removed > 0)
        line += ", removed " + numbered(result.removed, "file");
    if (!result.renamed.empty())
        line += ", " + numbered(result.renamed.size(), "name") + " changed";
    if (!result.left.empty())
        line += ", left " + numbered(result.left.size(), "file");
    return line;
}

constexpr std::array kLayouts{
    std::pair<std::string_view, ExportLayout>{"flat", ExportLayout::Flat},
    std::pair<std::string_view, ExportLayout>{"tags", ExportLayout::Tags},
    std::pair<std::string_view, ExportLayout>{"source", ExportLayout::Source},
};

std::vector<std::string> namesOfLayouts()
{
    std::vector<std::string> names;
    for (const auto& [name, layout] : kLayouts)
        names.emplace_back(name);
    return names;
}

ExportLayout layoutOf(const ExportOptions& options)
{
    const auto* named = std::ranges::find(
        kLayouts, options.layout.value_or("flat"), &std::pair<std::string_view, ExportLayout>::first);
    return named == kLayouts.end() ? ExportLayout::Flat : named->second;
}

/// Calls the handler for each note that is to be exported.
void forEachNoteToExport(
    StoreSession& session, const ExportOptions& options, const std::function<void(const OVNote&)>& handler)
{
    if (options.notes.empty())
        return session.forEachNote(predicateOfFilter(options.all ? "all" : "active"), handler);
    std::vector<const OVNote*> notes;
    for (const std::string& name : options.notes) {
        const OVNote* note = &noteForArgument(name, session);
        if (std::ranges::find(notes, note) == notes.end())
            notes.push_back(note);
    }
    std::ranges::for_each(notes, [&](const OVNote* note) { handler(*note); });
}

ExportResult exportNotes(StoreSession& session, const ExportOptions& options)
{
    ExportFolder folder(*options.folder);
    ExportManifest manifest(folder, session.store().identifier());
    const ExportLayout layout = layoutOf(options);
    std::optional<ImportRecord> record;
    if (layout == ExportLayout::Source)
        record.emplace(session.database());
    ExportPlan plan(layout, record ? &*record : nullptr);
    forEachNoteToExport(session, options, [&](const OVNote& note) {
        Interruption::endIfRequested("interrupted; nothing was exported");
        plan.add(note);
    });
    if (plan.notes().empty() && manifest.knownPaths().empty())
        return {};
    folder.open();
    const bool keepsOthers = !options.notes.empty();
    plan.giveNames(manifest, folder, keepsOthers);
    Progress progress("Exporting", plan.notes().size());
    Exporter exporter(folder, manifest, plan,
        {.linksToFiles = options.links == "files", .takesUnusedFiles = options.all, .keepsOthers = keepsOthers});
    forEachNoteToExport(session, options, [&](const OVNote& note) {
        Interruption::endIfRequested("interrupted; " + summaryOfExport(exporter.result()));
        exporter.exportNote(note);
        progress.advance();
    });
    exporter.finish();
    return exporter.result();
}

ExitCode exitCodeOfExport(const ExportResult& result, const StoreSession& session)
{
    if (std::ranges::any_of(result.left, &LeftFile::isFailure))
        return ExitCode::InputOutput;
    if (std::ranges::any_of(result.left, &LeftFile::isLocked))
        return ExitCode::Locked;
    if (!result.left.empty())
        return ExitCode::Failed;
    return session.exitCodeOfSearch(result.exported + result.unchanged > 0, "there are no notes to export");
}

ExitCode exportToFolder(const Invocation& invocation, const ExportOptions& options)
{
    if (options.folder->empty())
        throw CommandFailure(ExitCode::Usage, "DIR is empty; name a folder");
    const Interruption interruption;
    StoreSession session(invocation, StoreSession::Access::Read);
    session.protection().unlockAll();
    const ExportResult result = session.exists() ? exportNotes(session, options) : ExportResult();
    for (const LeftFile& file : result.left)
        tellOnStandardError("left: " + file.path.native() + ": " + file.reason);
    if (invocation.json)
        writeJSON(invocation.output, jsonOfExport(result));
    else
        invocation.output.writeLine(summaryOfExport(result));
    return exitCodeOfExport(result, session);
}

} // namespace

void addExportCommand(CommandLine& commandLine)
{
    const auto options = std::make_shared<ExportOptions>();
    const Command command = commandLine.addCommand(
        {.name = "export",
            .summary = "Write notes as Markdown files, with their attachments",
            .explanation
            = "Each note becomes a file: front matter with its identifier, dates and state, then its text. "
              "Attachments lie in\n"
              "\"attachments\" beside the file, each in a folder of its own, and its links lead there. Characters "
              "that some system\n"
              "does not take in names become \"_\"; a name that is taken gets a number.\n"
              "DIR is empty, not there, or holds an earlier export: then it is brought in step, and files of notes "
              "that are\n"
              "not exported any more go, unless notes are named. A file that others changed is left as it is.",
            .examples = {"tarn export ~/Desktop/notes", "tarn export out Groceries 'Packing list'"}},
        [options](const Invocation& invocation) { return exportToFolder(invocation, *options); });
    command.addArgument("DIR", options->folder, "The folder; it is made when it is not there").required();
    const CommandOption notes = command.addArguments(
        "NOTE", options->notes, "Identifiers, beginnings of them, or titles; without them all active notes");
    command
        .addOption("--layout", options->layout,
            "Folders in DIR: flat for none (the default), tags for those of each text's first tag, or source for "
            "those of\nthe files that notes were imported from")
        .oneOf(namesOfLayouts())
        .called("LAYOUT");
    command
        .addOption("--links", options->links,
            "Links between notes: wiki, as they are written (the default), or files, to the files of the export")
        .oneOf({"wiki", "files"})
        .called("MODE");
    command.addFlag("--all", options->all, "Archived notes, those in the trash, and attachments that no text names")
        .excludes({notes});
}

} // namespace tarn
