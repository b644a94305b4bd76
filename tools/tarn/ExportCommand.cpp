#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/Exporter.h"
#include "tools/tarn/Interruption.h"
#include "tools/tarn/JSON.h"
#include "tools/tarn/NoteArgument.h"
#include "tools/tarn/NoteFilter.h"
#include "tools/tarn/Progress.h"

#include <algorithm>
#include <memory>

namespace tarn {

namespace {

struct ExportOptions {
    std::optional<std::string> folder;
    std::vector<std::string> notes;
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
    document["left"] = std::move(left);
    document["renamed"] = std::move(renamed);
    return document;
}

std::string summaryOfExport(const ExportResult& result)
{
    std::string line = "exported " + numbered(result.exported, "note") + " and " + numbered(result.files, "attachment");
    if (result.unchanged > 0)
        line += ", " + numbered(result.unchanged, "file") + " unchanged";
    if (!result.renamed.empty())
        line += ", " + numbered(result.renamed.size(), "name") + " changed";
    if (!result.left.empty())
        line += ", left " + numbered(result.left.size(), "file");
    return line;
}

void exportNotes(StoreSession& session, Exporter& exporter, const ExportOptions& options)
{
    const auto predicate = predicateOfFilter(options.all ? "all" : "active");
    Progress progress("Exporting", options.notes.empty() ? session.countNotes(predicate) : options.notes.size());
    const auto exportOne = [&](const OVNote& note) {
        Interruption::endIfRequested("interrupted; " + summaryOfExport(exporter.result()));
        exporter.exportNote(note);
        progress.advance();
    };
    if (options.notes.empty())
        return session.forEachNote(predicate, exportOne);
    std::vector<const OVNote*> notes;
    for (const std::string& name : options.notes) {
        const OVNote* note = &noteForArgument(name, session);
        if (std::ranges::find(notes, note) == notes.end())
            notes.push_back(note);
    }
    std::ranges::for_each(notes, [&](const OVNote* note) { exportOne(*note); });
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
    Exporter exporter(*options.folder);
    exportNotes(session, exporter, options);
    const ExportResult& result = exporter.result();
    for (const LeftFile& file : result.left)
        tellOnStandardError("not exported: " + file.path.native() + ": " + file.reason);
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
            = "Each note becomes \"Title.md\", its attachments go into a folder \"Title.assets\" beside it, and its "
              "links lead\nthere. Characters that some system does not take in names become \"_\"; a name that is "
              "taken gets a counter.\nWhat is there is never written over: a file of the same bytes counts as "
              "unchanged, any other is left.",
            .examples = {"tarn export ~/Desktop/notes", "tarn export out Groceries 'Packing list'"}},
        [options](const Invocation& invocation) { return exportToFolder(invocation, *options); });
    command.addArgument("DIR", options->folder, "The folder; it is made when it is not there").required();
    const CommandOption notes = command.addArguments(
        "NOTE", options->notes, "Identifiers, beginnings of them, or titles; without them all active notes");
    command.addFlag("--all", options->all, "Archived notes and those in the trash as well").excludes({notes});
}

} // namespace tarn
