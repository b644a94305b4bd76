#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/foundation/text/ByteCount.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/store/StoreMigrationPlan.h"
#include "tarnmodel/store/VexMigrationManager.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commandline/Progress.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/session/StoreLock.h"
#include "tools/tarn/session/StoreSession.h"
#include "tools/tarn/session/StoreVersion.h"
#include "tools/tarn/session/WaitForOthers.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kWholeStep = 100;

/// What a migration came to.
struct MigrationResult {
    std::string from;
    std::vector<std::string> versions;
    std::optional<NSError> error; ///< why it did not come to the end
    double seconds = 0;

    const std::string& to() const { return versions.empty() ? from : versions.back(); }
};

/// A bar for each step, and the end of the migration when a signal comes.
class ShownMigration : public VexMigrationManagerDelegate {
public:
    explicit ShownMigration(std::vector<std::string> versions) : versions_(std::move(versions)) { }

    void migrationManagerMigrationProgress(VexMigrationManager& manager, float progress) override
    {
        if (Interruption::requested())
            manager.cancelMigration();
        const std::size_t step = manager.migratedVersions().size();
        if (step >= versions_.size())
            return;
        if (!bar_ || step != step_) {
            bar_.reset();
            bar_.emplace("Migrating to " + versions_[step], kWholeStep);
            step_ = step;
            shown_ = 0;
        }
        const auto done = static_cast<std::size_t>(progress * static_cast<float>(kWholeStep));
        bar_->advance(done - std::min(done, shown_));
        shown_ = std::max(done, shown_);
    }

private:
    std::vector<std::string> versions_;
    std::optional<Progress> bar_;
    std::size_t step_ = 0;
    std::size_t shown_ = 0;
};

/// How the store stands, once nobody has it locked. Raises `CommandFailure` for one that cannot be migrated.
StoreMigrationPlan planOf(const fs::path& database, WaitForOthers& wait)
{
    const auto model = modelOfStores();
    std::error_code failure;
    NSError error;
    const auto goesOn = [&wait](std::chrono::milliseconds waited) { return wait.goesOn(waited); };
    if (fs::exists(database, failure) && !isStoreOfOtherVersion(database, goesOn, &error)
        && exitCodeForStoreError(error) == ExitCode::Locked) {
        Interruption::endIfRequested(database.string() + ": interrupted while another program was using the store");
        throw failureForStoreError(database.string(), error);
    }
    StoreMigrationPlan plan = StoreMigrationPlan::planForStoreAtURL(database, *model);
    switch (plan.standing) {
    case StoreStanding::Missing:
    case StoreStanding::Current:
    case StoreStanding::Older:
        return plan;
    case StoreStanding::Newer:
    case StoreStanding::Unknown:
    case StoreStanding::Unreadable:
        break;
    }
    throw failureForVersionOfStore(database, plan);
}

MigrationResult runMigration(const fs::path& database, StoreMigrationPlan plan, WaitForOthers& wait)
{
    MigrationResult result{.from = std::move(plan.storeVersion), .versions = {}, .error = {}};
    const auto start = std::chrono::steady_clock::now();
    ShownMigration shown(std::move(plan.versions));
    VexMigrationManager manager;
    manager.setDelegate(&shown);
    manager.setWhileWaiting([&wait](std::chrono::milliseconds waited) { return wait.goesOn(waited); });
    NSError error;
    if (!manager.progressivelyMigrateURL(database, StoreType::SQLite, modelOfStores(), &error))
        result.error = error;
    result.versions = manager.migratedVersions();
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return result;
}

/// Where the store is after a migration that did not come to its end.
std::string placeOf(const MigrationResult& result)
{
    return result.versions.empty()
        ? "the store is as it was, of version " + result.from
        : "the store is of version " + result.to() + " now; 'tarn migrate' goes on from there";
}

CommandFailure failureOf(const fs::path& database, const MigrationResult& result)
{
    const NSError& error = *result.error;
    const std::string store = database.string() + ": ";
    if (Interruption::requested())
        return {ExitCode::Interrupted, store + "interrupted; " + placeOf(result)};
    if (error.domain() == NSPOSIXErrorDomain)
        return {ExitCode::InputOutput, store + singleLine(error.localizedDescription()) + "; " + placeOf(result)};
    if (error.domain() != MigrationErrorDomain)
        return failureForStoreError(database.string(), error).saying(placeOf(result));
    const std::string what = store + singleLine(error.localizedDescription());
    if (error.code() == MigrationErrorNoSpace)
        return {ExitCode::InputOutput, what + "; make room and try again; " + placeOf(result)};
    return {ExitCode::NeedsMigration, what + "; " + placeOf(result)};
}

std::string sentenceOf(const std::string& from, const std::vector<std::string>& versions)
{
    std::string sentence = " from " + from + " to " + versions.back();
    for (std::size_t index = 0; index + 1 < versions.size(); ++index)
        sentence += (index == 0 ? ", by way of " : " and ") + versions[index];
    return sentence;
}

JSON jsonOf(
    const fs::path& database, const std::string& from, const std::string& to, const std::vector<std::string>& versions)
{
    std::error_code failure;
    const std::uintmax_t bytes = fs::file_size(database, failure);
    JSON document;
    document["from"] = from;
    document["to"] = to;
    document["versions"] = versions;
    document["path"] = validUTF8(database.native());
    document["bytes"] = failure ? 0 : bytes;
    return document;
}

void writeResult(const Invocation& invocation, const fs::path& database, const MigrationResult& result)
{
    if (invocation.json) {
        JSON document = jsonOf(database, result.from, result.to(), result.versions);
        document["seconds"] = result.seconds;
        writeJSON(invocation.output, document);
    } else if (!result.versions.empty()) {
        std::array<char, 32> time{};
        std::snprintf(time.data(), time.size(), "%.2f s", result.seconds);
        invocation.output.writeLine(
            "migrated the store" + sentenceOf(result.from, result.versions) + " in " + time.data());
    } else if (!result.error) {
        invocation.output.writeLine("the store is of version " + result.to() + ", which is the current one");
    }
}

/// A rehearsal: what a migration would do and need, by the plan alone.
ExitCode tellOfPlan(const Invocation& invocation, const fs::path& database, const StoreMigrationPlan& plan)
{
    const MigrationResult end{.from = plan.storeVersion, .versions = plan.versions, .error = {}};
    if (invocation.json) {
        JSON document = jsonOf(database, end.from, end.to(), end.versions);
        document["needed"] = plan.neededSpace;
        document["available"] = plan.availableSpace ? JSON(*plan.availableSpace) : JSON(nullptr);
        document["fits"] = plan.fits();
        writeJSON(invocation.output, document);
    } else if (plan.versions.empty()) {
        writeResult(invocation, database, end);
    } else {
        const auto tell = [&](const char* label, const std::string& value) {
            invocation.output.writeLine(textPaddedToWidth(label, 16) + value);
        };
        tell("would migrate", displayText(database.native()));
        tell("from", plan.storeVersion);
        for (const std::string& version : plan.versions)
            tell("to", version);
        tell("size", stringFromByteCount(plan.storeSize));
        tell("needed space", stringFromByteCount(plan.neededSpace));
        tell("free space", plan.availableSpace ? stringFromByteCount(*plan.availableSpace) : "not known");
    }
    if (!plan.fits())
        tellOnStandardError("there is not enough room for the new store beside the old one; make room first");
    return plan.fits() ? ExitCode::Done : ExitCode::InputOutput;
}

ExitCode tellThatThereIsNoStore(const Invocation& invocation, const fs::path& folder)
{
    if (invocation.json) {
        JSON document;
        document["from"] = nullptr;
        document["to"] = nullptr;
        document["versions"] = JSON::array();
        writeJSON(invocation.output, document);
    }
    tellOnStandardError("there is no store in " + folder.string() + " yet; 'tarn new' and 'tarn import' make one");
    return ExitCode::Failed;
}

ExitCode migrate(const Invocation& invocation, bool dryRun)
{
    const Interruption interruption;
    const fs::path folder = storeFolderOf(invocation);
    const fs::path database = OVLocalFileManager::databaseURLInGroupFolder(folder);
    OVLocalFileManager::setApplicationGroupURL(fs::absolute(folder));
    WaitForOthers wait(database);
    StoreMigrationPlan plan = planOf(database, wait);
    if (plan.standing == StoreStanding::Missing)
        return tellThatThereIsNoStore(invocation, folder);
    if (dryRun)
        return tellOfPlan(invocation, database, plan);
    std::optional<StoreLock> lock;
    if (plan.standing == StoreStanding::Older) {
        lock.emplace(database.parent_path() / "tarn.lock", StoreLock::limitOfEnvironment());
        OVLocalFileManager::removeAbandonedTemporaryDirectories();
        plan = planOf(database, wait); // another tarn may have been at it
    }
    const MigrationResult result = plan.standing == StoreStanding::Older
        ? runMigration(database, std::move(plan), wait)
        : MigrationResult{.from = plan.storeVersion, .versions = {}, .error = {}};
    writeResult(invocation, database, result);
    if (result.error)
        throw failureOf(database, result);
    return ExitCode::Done;
}

} // namespace

void addMigrateCommand(CommandLine& commandLine)
{
    const auto dryRun = std::make_shared<bool>(false);
    const Command command = commandLine.addCommand(
        {.name = "migrate",
            .summary = "Bring a store of an older version forward to the current one",
            .explanation
            = "The store goes through one version after the other. Each step makes the new store beside the old one "
              "and\n"
              "then puts it in its place; where a step fails, or Control-C ends it, the store is what it was before "
              "that step.\n"
              "Other programs wait meanwhile. A store that is newer than this tarn, or of a version that it cannot "
              "migrate, is\n"
              "left as it is (exit code 4).",
            .examples = {"tarn migrate --dry-run", "tarn migrate"}},
        [dryRun](const Invocation& invocation) { return migrate(invocation, *dryRun); });
    command.addFlag("--dry-run", *dryRun, "Change nothing, tell the versions, the size and the space that is needed");
}

} // namespace tarn
