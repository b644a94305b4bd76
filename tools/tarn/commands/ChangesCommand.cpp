#include "tarnmodel/model/OVChange.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/session/StoreSession.h"

#include <algorithm>
#include <memory>

namespace tarn {

namespace {

/// What a client of the log is told: what to send, and the token from which it goes on.
struct Changes {
    std::optional<std::string> token;
    std::vector<NSManagedObject*> updated;
    std::vector<std::string> deleted;
};

std::string identifierOf(const NSManagedObject& record)
{
    return record.storedValueForKey("uniqueIdentifier").asString();
}

void write(const Invocation& invocation, const Changes& changes)
{
    if (!invocation.json) {
        for (const NSManagedObject* record : changes.updated)
            invocation.output.writeLine("updated " + record->entity().name() + " " + identifierOf(*record));
        for (const std::string& identifier : changes.deleted)
            invocation.output.writeLine("deleted " + identifier);
        if (changes.token)
            invocation.output.writeLine("token " + *changes.token);
        return;
    }
    JSON updated = JSON::array();
    for (const NSManagedObject* record : changes.updated)
        updated.push_back({{"entity", record->entity().name()}, {"uniqueIdentifier", identifierOf(*record)}});
    JSON document = JSON::object();
    document["token"] = changes.token ? JSON(*changes.token) : JSON();
    document["updated"] = std::move(updated);
    document["deleted"] = changes.deleted;
    writeJSON(invocation.output, document);
}

ExitCode showChanges(const Invocation& invocation, const std::optional<std::string>& sinceToken)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    NSManagedObjectContext& context = session.context();
    // A log that cannot be read must not look like one in which nothing changed.
    session.countOfEntity(OVChange::entityInManagedObjectContext(context), std::nullopt);
    Changes changes;
    // Before the list: what another process saves in between is listed again next time, and never passed over.
    if (const OVChange* latest = OVChange::latestChangeInManagedObjectContext(context))
        changes.token = latest->token();
    const OVChange* since = sinceToken ? OVChange::changeWithToken(*sinceToken, context) : nullptr;
    if (!since && sinceToken)
        throw CommandFailure(ExitCode::Failed,
            "the change log does not hold the token " + *sinceToken
                + " any more; start from a baseline: 'tarn baseline'");
    changes.updated = OVChange::objectsUpdatedSinceChange(since, &changes.deleted, context);
    // Classes are walked one by one: each may name an identifier.
    std::sort(changes.deleted.begin(), changes.deleted.end());
    changes.deleted.erase(std::unique(changes.deleted.begin(), changes.deleted.end()), changes.deleted.end());
    write(invocation, changes);
    return session.exists() ? ExitCode::Done : ExitCode::Failed;
}

ExitCode makeBaseline(const Invocation& invocation)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    NSManagedObjectContext& context = session.context();
    const OVChange* baseline = nullptr;
    session.write([&] {
        baseline = OVChange::baselineChangesInManagedObjectContext(context, true);
        if (!baseline)
            throw CommandFailure(ExitCode::Failed, "the change log cannot be read; it stays as it is");
    });
    Changes changes;
    changes.token = baseline->token();
    changes.updated = OVChange::objectsUpdatedForChange(*baseline, &changes.deleted, context);
    write(invocation, changes);
    return ExitCode::Done;
}

} // namespace

void addChangesCommand(CommandLine& commandLine)
{
    const auto since = std::make_shared<std::optional<std::string>>();
    const Command command = commandLine.addCommand(
        {.name = "changes",
            .summary = "List what was saved since a token of the change log",
            .explanation
            = "Each save of the store is one change, named by a token. Without --since the whole log counts.\n"
              "A record that was changed and then deleted is only listed as deleted. The last line is the\n"
              "token from which to go on. A token that the log does not hold any more is an error.",
            .examples = {"tarn changes", "tarn --json changes --since 2B0C3A4E-6D5F-4E8A-9C1B-7A8D9E0F1A2B"}},
        [since](const Invocation& invocation) { return showChanges(invocation, *since); });
    command.addOption("--since", *since, "Only what was saved after this change").called("TOKEN");
}

void addBaselineCommand(CommandLine& commandLine)
{
    commandLine.addCommand(
        {.name = "baseline",
            .summary = "Fold the change log into one change",
            .explanation = "Prints what the log holds, with the token of the one change that is left; all other\n"
                           "tokens are unknown from then on. An empty log begins with every record of the store.",
            .examples = {"tarn baseline", "tarn --json baseline"}},
        makeBaseline);
}

} // namespace tarn
