#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/JSON.h"
#include "tools/tarn/StoreSession.h"

#include <array>
#include <system_error>

namespace tarn {

namespace {

struct NoteCount {
    const char* key;
    const char* label;
    const char* format; ///< a predicate over notes; "" for all
};

constexpr std::array kNoteCounts{
    NoteCount{"notes", "notes", ""},
    NoteCount{"active", "  active", "trashed == NO AND archived == NO"},
    NoteCount{"archived", "  archived", "archived == YES AND trashed == NO"},
    NoteCount{"trashed", "  trashed", "trashed == YES"},
    NoteCount{"pinned", "pinned", "pinned == YES"},
    NoteCount{"readOnly", "read-only", "locked == YES"},
    NoteCount{"encrypted", "encrypted", "encrypted == YES"},
    NoteCount{"conflicted", "in conflict", "conflictUniqueIdentifier != nil"},
    NoteCount{"untagged", "without tags", "tags.@count == 0"},
    NoteCount{"withOpenTodos", "with open to-dos", "todoIncompleted > 0"},
    NoteCount{"withSourceCode", "with source code", "hasSourceCode == YES"},
};

struct Statistic {
    std::string key;
    std::string label;
    std::uintmax_t value;
};

std::uintmax_t databaseBytes(StoreSession& session)
{
    std::error_code error;
    const std::uintmax_t bytes
        = std::filesystem::file_size(OVLocalFileManager::databaseURLInGroupFolder(session.folder()), error);
    return error ? 0 : bytes;
}

std::vector<Statistic> statisticsOf(StoreSession& session)
{
    std::vector<Statistic> statistics;
    for (const NoteCount& count : kNoteCounts) {
        const std::string_view format = count.format;
        const auto predicate = format.empty() ? std::nullopt : std::optional(NSPredicate::predicateWithFormat(format));
        statistics.push_back({count.key, count.label, session.countNotes(predicate)});
    }
    NSManagedObjectContext& context = session.context();
    statistics.push_back(
        {"tags", "tags", session.countOfEntity(OVNoteTag::entityInManagedObjectContext(context), std::nullopt)});
    statistics.push_back({"files", "attachments",
        session.countOfEntity(OVNoteFile::entityInManagedObjectContext(context), std::nullopt)});
    statistics.push_back({"databaseBytes", "bytes of the database", databaseBytes(session)});
    return statistics;
}

ExitCode showStatistics(const Invocation& invocation)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const std::vector<Statistic> statistics = statisticsOf(session);
    JSON document = JSON::object();
    for (const Statistic& statistic : statistics) {
        document[statistic.key] = statistic.value;
        if (!invocation.json)
            invocation.output.writeLine(textPaddedToWidth(statistic.label, 24) + std::to_string(statistic.value));
    }
    if (invocation.json)
        writeJSON(invocation.output, document);
    return ExitCode::Done;
}

} // namespace

void addStatsCommand(CommandLine& commandLine)
{
    commandLine.addCommand({.name = "stats",
                               .summary = "Count what is in the store",
                               .explanation = "",
                               .examples = {"tarn stats", "tarn --json stats"}},
        showStatistics);
}

} // namespace tarn
