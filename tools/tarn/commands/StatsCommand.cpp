#include "tarnmodel/diagnosis/StoreStatistics.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/session/StoreSession.h"

#include <array>

namespace tarn {

namespace {

/// A number as people and programs are told of it.
struct Statistic {
    const char* key;
    const char* label;
    std::size_t StoreStatistics::*count;
};

constexpr std::array kStatistics{
    Statistic{"notes", "notes", &StoreStatistics::notes},
    Statistic{"active", "  active", &StoreStatistics::activeNotes},
    Statistic{"archived", "  archived", &StoreStatistics::archivedNotes},
    Statistic{"trashed", "  trashed", &StoreStatistics::trashedNotes},
    Statistic{"pinned", "pinned", &StoreStatistics::pinnedNotes},
    Statistic{"readOnly", "read-only", &StoreStatistics::readOnlyNotes},
    Statistic{"encrypted", "encrypted", &StoreStatistics::encryptedNotes},
    Statistic{"conflicted", "in conflict", &StoreStatistics::conflictedNotes},
    Statistic{"untagged", "without tags", &StoreStatistics::untaggedNotes},
    Statistic{"withOpenTodos", "with open to-dos", &StoreStatistics::notesWithOpenToDos},
    Statistic{"withSourceCode", "with source code", &StoreStatistics::notesWithSourceCode},
    Statistic{"tags", "tags", &StoreStatistics::tags},
    Statistic{"files", "attachments", &StoreStatistics::files},
};

StoreStatistics statisticsOf(StoreSession& session)
{
    NSError error;
    const auto statistics = statisticsOfStore(session.context(), &error);
    if (!statistics)
        throw session.failure("cannot read the store", error);
    return *statistics;
}

ExitCode showStatistics(const Invocation& invocation)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const StoreStatistics statistics = statisticsOf(session);
    JSON document = JSON::object();
    const auto tell = [&](const char* key, const char* label, std::uintmax_t value) {
        document[key] = value;
        if (!invocation.json)
            invocation.output.writeLine(textPaddedToWidth(label, 24) + std::to_string(value));
    };
    for (const Statistic& statistic : kStatistics)
        tell(statistic.key, statistic.label, statistics.*statistic.count);
    tell("attachmentBytes", "bytes of attachments", statistics.attachmentBytes);
    tell("databaseBytes", "bytes of the database", statistics.fileBytes);
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
