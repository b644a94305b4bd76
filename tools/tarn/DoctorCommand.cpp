#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/Doctor.h"
#include "tools/tarn/JSON.h"

#include <algorithm>
#include <memory>

namespace tarn {

namespace {

/// What the doctor has to say.
struct Diagnosis {
    std::vector<DoctorCheck> checks;
    std::size_t repaired = 0; ///< notes
    std::size_t mendedTags = 0;
    std::size_t indexed = 0; ///< texts that the search index did not have, or had wrongly
    ExitCode code = ExitCode::Done;
};

Diagnosis diagnose(const Invocation& invocation, bool repair)
{
    Diagnosis diagnosis;
    StoreSession session(invocation, repair ? StoreSession::Access::Write : StoreSession::Access::Read);
    if (!session.exists())
        throw CommandFailure(ExitCode::InputOutput, "there is nothing to examine in " + session.folder().string());
    Doctor doctor(session);
    diagnosis.checks = doctor.examine();
    // A damaged file is not written to: that could make it worse.
    if (repair && !doctor.fileIsDamaged()) {
        diagnosis.mendedTags = doctor.repairTags();
        diagnosis.repaired = doctor.repair();
        diagnosis.indexed = doctor.repairSearchIndex();
        if (diagnosis.repaired + diagnosis.mendedTags + diagnosis.indexed > 0)
            diagnosis.checks = doctor.examine();
    }
    if (doctor.fileIsDamaged())
        diagnosis.code = ExitCode::Corrupt;
    else if (!std::ranges::all_of(diagnosis.checks, &DoctorCheck::ok))
        diagnosis.code = ExitCode::Failed;
    return diagnosis;
}

/// A store so damaged that it cannot even be opened or read is a diagnosis as well.
Diagnosis diagnosisOfFailure(const CommandFailure& failure)
{
    return {.checks = {{.name = "integrity", .found = 1, .problems = {failure.what()}}},
        .repaired = 0,
        .mendedTags = 0,
        .indexed = 0,
        .code = failure.code()};
}

JSON jsonOf(const Diagnosis& diagnosis, bool repair)
{
    JSON checks = JSON::array();
    for (const DoctorCheck& check : diagnosis.checks) {
        JSON json;
        json["name"] = check.name;
        json["ok"] = check.ok();
        json["found"] = check.found;
        json["problems"] = check.problems;
        checks.push_back(std::move(json));
    }
    JSON document;
    document["checks"] = std::move(checks);
    if (repair) {
        document["repaired"] = diagnosis.repaired;
        document["mendedTags"] = diagnosis.mendedTags;
        document["indexed"] = diagnosis.indexed;
    }
    return document;
}

void writeDiagnosis(Output& output, const Diagnosis& diagnosis, bool repair)
{
    for (const DoctorCheck& check : diagnosis.checks) {
        const std::string state = check.ok() ? output.styled("ok", TextStyle::Good)
                                             : output.styled(std::to_string(check.found) + " found", TextStyle::Bad);
        output.writeLine(textPaddedToWidth(check.name, 12) + state);
        for (const std::string& problem : check.problems)
            output.writeLine("    " + displayText(problem));
        if (check.found > check.problems.size())
            output.writeLine("    and " + std::to_string(check.found - check.problems.size()) + " more");
    }
    if (repair)
        output.writeLine("repaired " + numbered(diagnosis.repaired, "note"));
    if (diagnosis.mendedTags > 0)
        output.writeLine("mended " + numbered(diagnosis.mendedTags, "tag"));
    if (diagnosis.indexed > 0)
        output.writeLine("entered " + numbered(diagnosis.indexed, "text") + " in the search index");
}

ExitCode examine(const Invocation& invocation, bool repair)
{
    Diagnosis diagnosis;
    try {
        diagnosis = diagnose(invocation, repair);
    } catch (const CommandFailure& failure) {
        if (failure.code() != ExitCode::Corrupt)
            throw;
        diagnosis = diagnosisOfFailure(failure);
    }
    if (invocation.json)
        writeJSON(invocation.output, jsonOf(diagnosis, repair));
    else
        writeDiagnosis(invocation.output, diagnosis, repair);
    if (diagnosis.code == ExitCode::Failed && !repair)
        tellOnStandardError(
            "what is derived from the texts is not what they say; 'tarn doctor --repair' derives it anew");
    if (diagnosis.code == ExitCode::Corrupt)
        tellOnStandardError("the file of the store is damaged; keep a copy of it before anything else");
    return diagnosis.code;
}

} // namespace

void addDoctorCommand(CommandLine& commandLine)
{
    const auto repair = std::make_shared<bool>(false);
    const Command command = commandLine.addCommand(
        {.name = "doctor",
            .summary
            = "Examine the store: its file, its search index, and whether the notes' fields are what their texts say",
            .explanation = "Exits with 0 when all is well, with 5 when the file itself is damaged.",
            .examples = {"tarn doctor", "tarn doctor --repair"}},
        [repair](const Invocation& invocation) { return examine(invocation, *repair); });
    command.addFlag("--repair", *repair, "Derive wrong fields anew; texts and modification dates stay as they are");
}

} // namespace tarn
