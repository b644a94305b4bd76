#include "tarnmodel/diagnosis/StoreDoctor.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/session/StoreSession.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

namespace tarn {

namespace {

/// One question about a store and what was found amiss.
struct DoctorCheck {
    std::string name;
    std::size_t found = 0;             ///< how many problems
    std::vector<std::string> problems; ///< the first of them, for people
};

/// What the doctor has to say.
struct Diagnosis {
    std::vector<DoctorCheck> checks;
    StoreRepairs repairs;
    ExitCode code = ExitCode::Done;
};

/// By `StoreCheck`.
constexpr std::array<const char*, kStoreCheckCount> kCheckNames{"integrity", "searchIndex", "title", "subtitle",
    "todos", "flags", "noteTags", "links", "tags", "protection", "files"};

/// The sentences about findings, behind the names of what they are about.
struct FindingSentence {
    StoreFinding::Kind kind;
    const char* sentence;
};

constexpr std::array kSentences{
    FindingSentence{StoreFinding::Kind::WrongTitle, "the title is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongSubtitle, "the subtitle is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongOpenToDos, "the number of open to-dos is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongDoneToDos, "the number of completed to-dos is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongCodeFlag, "the flag for source code is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongImagesFlag, "the flag for images is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongFilesFlag, "the flag for files is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongNoteTags, "the set of tags is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongLinks, "the set of links is not what the text says"},
    FindingSentence{StoreFinding::Kind::WrongLinkTarget, "where a link leads is not what the text says"},
    FindingSentence{StoreFinding::Kind::MissingParentTags, "it does not have every tag above its tags"},
    FindingSentence{StoreFinding::Kind::DuplicateTag, "there are two such tags"},
    FindingSentence{StoreFinding::Kind::TagWithoutText, "no text names it, but it has notes"},
    FindingSentence{StoreFinding::Kind::MissingTag, "a text names it, but no tag with notes is so called"},
    FindingSentence{StoreFinding::Kind::UnusableTagTitle, "no text can give a tag this name"},
    FindingSentence{StoreFinding::Kind::MissingFile, "its file is not there"},
    FindingSentence{StoreFinding::Kind::MisnamedFile, "its file has another name"},
    FindingSentence{StoreFinding::Kind::WrongFileSize, "its file has another size than it says"},
    FindingSentence{StoreFinding::Kind::FolderWithoutRecord, "no attachment has this"},
    FindingSentence{StoreFinding::Kind::UnfinishedFile, "it was never written whole"},
    FindingSentence{StoreFinding::Kind::AbandonedFileChanges, "a program ended while it was changing files"},
    FindingSentence{StoreFinding::Kind::ClearText, "its text is stored in clear beside the encrypted one"},
    FindingSentence{StoreFinding::Kind::ClearSubtitle, "its subtitle is stored in clear although it is protected"},
    FindingSentence{StoreFinding::Kind::ClearFilename, "its name is stored in clear although it is protected"},
    FindingSentence{StoreFinding::Kind::ClearFields,
        "its recognised text, extension or size is stored in clear although it is protected"},
    FindingSentence{StoreFinding::Kind::ClearFile, "something lies beside the encrypted file, maybe in clear"},
    FindingSentence{StoreFinding::Kind::ClearThumbnail, "this thumbnail is of no picture that is not protected"},
};

std::string sentenceOf(StoreFinding::Kind kind)
{
    const auto* const found = std::ranges::find(kSentences, kind, &FindingSentence::kind);
    return found == kSentences.end() ? "" : found->sentence;
}

std::string problemOf(const StoreFinding& finding)
{
    if (!finding.description.empty())
        return finding.check() == StoreCheck::Files || finding.check() == StoreCheck::Protection
            ? finding.description + ": " + sentenceOf(finding.kind)
            : finding.description;
    const std::string title = finding.title.value_or("");
    const std::string name = finding.check() == StoreCheck::Tags
        ? "#" + title
        : finding.uniqueIdentifier.value_or("?") + (finding.title ? " \"" + title + "\"" : "");
    return name + ": " + sentenceOf(finding.kind);
}

std::vector<DoctorCheck> checksOf(const StoreExamination& examination)
{
    std::vector<DoctorCheck> checks;
    for (std::size_t index = 0; index < kStoreCheckCount; ++index) {
        const StoreCheckResult& result = examination.results[index];
        DoctorCheck& check = checks.emplace_back();
        check.name = kCheckNames[index];
        check.found = result.count;
        for (const StoreFinding& finding : result.findings)
            check.problems.push_back(problemOf(finding));
    }
    return checks;
}

std::string failedStep(const StoreDoctor& doctor, const StoreSession& session)
{
    switch (doctor.step()) {
    case StoreDoctor::Step::CheckingFile:
        return "cannot check the file of the store";
    case StoreDoctor::Step::CheckingSearchIndex:
        return "cannot check the search index";
    case StoreDoctor::Step::ReadingRecords:
        return "cannot read the store";
    case StoreDoctor::Step::SavingRecords:
        return session.nothingWasSaved();
    case StoreDoctor::Step::RepairingSearchIndex:
        break;
    }
    return "cannot repair the search index";
}

/// What the doctor gives; raises `CommandFailure` when that is nothing.
template <typename Result>
Result required(
    std::optional<Result> result, const NSError& error, const StoreDoctor& doctor, const StoreSession& session)
{
    if (!result)
        throw session.failure(failedStep(doctor, session), error);
    return std::move(*result);
}

Diagnosis diagnose(const Invocation& invocation, bool repair)
{
    StoreSession session(invocation, repair ? StoreSession::Access::Write : StoreSession::Access::Read);
    if (!session.exists())
        throw CommandFailure(ExitCode::InputOutput, "there is nothing to examine in " + session.folder().string());
    Diagnosis diagnosis;
    StoreDoctor doctor(session.context());
    NSError error;
    StoreExamination examination = required(doctor.examine(&error), error, doctor, session);
    if (repair && !examination.fileIsDamaged()) {
        if (examination.resultOf(StoreCheck::Protection).count > 0)
            session.protection().unlockByFile();
        diagnosis.repairs = required(doctor.repair(examination, &error), error, doctor, session);
        if (!diagnosis.repairs.isEmpty())
            examination = required(doctor.examine(&error), error, doctor, session);
    }
    diagnosis.checks = checksOf(examination);
    if (examination.fileIsDamaged())
        diagnosis.code = ExitCode::Corrupt;
    else if (!examination.isSound())
        diagnosis.code = ExitCode::Failed;
    return diagnosis;
}

/// A store so damaged that it cannot even be opened or read is a diagnosis as well.
Diagnosis diagnosisOfFailure(const CommandFailure& failure)
{
    Diagnosis diagnosis;
    diagnosis.checks.push_back({.name = "integrity", .found = 1, .problems = {failure.what()}});
    diagnosis.code = failure.code();
    return diagnosis;
}

bool isAmiss(const Diagnosis& diagnosis, std::string_view name)
{
    return std::ranges::any_of(
        diagnosis.checks, [&](const DoctorCheck& check) { return check.found > 0 && check.name == name; });
}

/// What a doctor that repairs nothing has to say of what it found.
std::string adviceOf(const Diagnosis& diagnosis)
{
    const bool isClear = isAmiss(diagnosis, "protection");
    const bool isAnyOther = std::ranges::any_of(diagnosis.checks, [](const DoctorCheck& check) {
        return check.found > 0 && check.name != "files" && check.name != "protection";
    });
    if (isAnyOther)
        return "what is derived from the texts is not what they say; 'tarn doctor --repair' derives it anew";
    return isClear
        ? "clear text lies beside what is protected; 'tarn doctor --repair' takes away what is there encrypted"
        : "files of attachments are not what the store says; 'tarn doctor --repair' brings them in step";
}

JSON jsonOf(const Diagnosis& diagnosis, bool repair)
{
    JSON checks = JSON::array();
    for (const DoctorCheck& check : diagnosis.checks) {
        JSON json;
        json["name"] = check.name;
        json["ok"] = check.found == 0;
        json["found"] = check.found;
        json["problems"] = check.problems;
        checks.push_back(std::move(json));
    }
    JSON document;
    document["checks"] = std::move(checks);
    if (repair) {
        document["repaired"] = diagnosis.repairs.notes;
        document["mendedTags"] = diagnosis.repairs.tags;
        document["indexed"] = diagnosis.repairs.indexedTexts;
        document["mendedFiles"] = diagnosis.repairs.files;
        document["cleared"] = diagnosis.repairs.clearItems;
    }
    return document;
}

void writeDiagnosis(Output& output, const Diagnosis& diagnosis, bool repair)
{
    for (const DoctorCheck& check : diagnosis.checks) {
        const std::string state = check.found == 0
            ? output.styled("ok", TextStyle::Good)
            : output.styled(std::to_string(check.found) + " found", TextStyle::Bad);
        output.writeLine(textPaddedToWidth(check.name, 12) + state);
        for (const std::string& problem : check.problems)
            output.writeLine("    " + displayText(problem));
        if (check.found > check.problems.size())
            output.writeLine("    and " + std::to_string(check.found - check.problems.size()) + " more");
    }
    if (repair)
        output.writeLine("repaired " + numbered(diagnosis.repairs.notes, "note"));
    if (diagnosis.repairs.tags > 0)
        output.writeLine("mended " + numbered(diagnosis.repairs.tags, "tag"));
    if (diagnosis.repairs.indexedTexts > 0)
        output.writeLine("entered " + numbered(diagnosis.repairs.indexedTexts, "text") + " in the search index");
    if (diagnosis.repairs.files > 0)
        output.writeLine("mended " + numbered(diagnosis.repairs.files, "file"));
    if (diagnosis.repairs.clearItems > 0)
        output.writeLine("took clear text from " + numbered(diagnosis.repairs.clearItems, "protected item"));
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
        tellOnStandardError(adviceOf(diagnosis));
    if (diagnosis.code == ExitCode::Failed && repair && isAmiss(diagnosis, "protection"))
        tellOnStandardError(
            "clear text is left beside what is protected: it is taken away where the encrypted one can "
            "be read, with --password-file, and says the same; else 'tarn unprotect' and 'tarn protect' "
            "make one of both");
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
            .summary = "Examine the store: its file, its search index, whether the notes' fields are what their texts "
                       "say, clear "
                       "text of what is protected, and the files of attachments",
            .explanation = "Exits with 0 when all is well, with 5 when the file itself is damaged.",
            .examples = {"tarn doctor", "tarn doctor --repair"}},
        [repair](const Invocation& invocation) { return examine(invocation, *repair); });
    command.addFlag("--repair", *repair,
        "Derive wrong fields anew, bring files and attachments in step; texts and their dates stay as they are");
}

} // namespace tarn
