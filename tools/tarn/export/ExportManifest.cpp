#include "tools/tarn/export/ExportManifest.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/files/DurableFile.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

// What stands in the folder of an export; both names and the format are read by later versions.
constexpr const char* kManifestName = ".tarn-export.json";
constexpr const char* kJournalName = ".tarn-export.journal";
constexpr int kFormat = 1;

/// Whether it stays in the folder: somebody else may have written the manifest.
bool isSafePath(const fs::path& path)
{
    const auto isPart = [](const fs::path& part) { return !part.empty() && part != "." && part != ".."; };
    return !path.empty() && path.is_relative() && std::ranges::all_of(path, isPart);
}

JSON jsonOfExportedFile(const ExportedFile& file)
{
    return {{"path", file.path.native()}, {"size", file.size}, {"hash", file.hash}};
}

ExportedFile exportedFileOfJSON(const JSON& json)
{
    ExportedFile file{json.at("path").get<std::string>(), json.at("size"), json.at("hash")};
    if (!isSafePath(file.path))
        throw std::invalid_argument("a path that leads out of the folder");
    return file;
}

JSON jsonOfExportedFiles(const std::vector<ExportedFile>& files)
{
    JSON list = JSON::array();
    std::ranges::transform(files, std::back_inserter(list), jsonOfExportedFile);
    return list;
}

std::vector<ExportedFile> exportedFilesOfJSON(const JSON& json)
{
    std::vector<ExportedFile> files;
    std::ranges::transform(json, std::back_inserter(files), exportedFileOfJSON);
    return files;
}

JSON jsonOfContents(const ExportContents& contents)
{
    JSON notes = JSON::object();
    for (const auto& [identifier, note] : contents.notes) {
        JSON json = jsonOfExportedFile(note.text);
        json["name"] = note.name;
        json["attachments"] = jsonOfExportedFiles(note.attachments);
        notes[identifier] = std::move(json);
    }
    return {{"format", kFormat}, {"store", contents.store}, {"notes", std::move(notes)},
        {"left", jsonOfExportedFiles(contents.leftovers)}};
}

ExportContents contentsOfJSON(const JSON& json)
{
    ExportContents contents{.store = json.at("store")};
    for (const auto& [identifier, note] : json.at("notes").items())
        contents.notes[identifier]
            = {exportedFileOfJSON(note), note.at("name"), exportedFilesOfJSON(note.at("attachments"))};
    contents.leftovers = exportedFilesOfJSON(json.at("left"));
    return contents;
}

} // namespace

ExportManifest::ExportManifest(ExportFolder& folder, const std::string& store) : folder_(folder)
{
    hasManifest_ = folder_.hasFile(kManifestName);
    hasJournal_ = folder_.hasFile(kJournalName);
    if (!hasManifest_ && !hasJournal_ && !folder_.isEmpty())
        throw CommandFailure(ExitCode::Failed,
            folder_.root().string() + " holds other files; name an empty folder, or that of an earlier export");
    if (hasManifest_)
        read(store);
    onDisk_ = contents_;
    contents_.store = store;
    if (hasJournal_)
        readJournal();
}

void ExportManifest::read(const std::string& store)
{
    const fs::path path = folder_.root() / kManifestName;
    std::ifstream stream(path, std::ios::binary);
    const JSON json = JSON::parse(stream, nullptr, false);
    try {
        if (json.at("format") > kFormat)
            throw CommandFailure(ExitCode::NeedsMigration, path.string() + " was written by a later version of tarn");
        contents_ = contentsOfJSON(json);
    } catch (const CommandFailure&) {
        throw;
    } catch (const std::exception&) { // of the JSON library as well
        throw CommandFailure(ExitCode::Failed, path.string() + " is damaged; export to another folder");
    }
    if (contents_.store != store)
        throw CommandFailure(
            ExitCode::Failed, folder_.root().string() + " holds an export of another store; name another folder");
    for (const auto& [identifier, note] : contents_.notes) {
        know(note.text);
        std::ranges::for_each(note.attachments, [this](const ExportedFile& file) { know(file); });
    }
    std::ranges::for_each(contents_.leftovers, [this](const ExportedFile& file) { know(file); });
}

/// What an export that was killed had begun. Whether a file got its name is told by its bytes.
void ExportManifest::readJournal()
{
    std::set<fs::path> begun;
    std::ifstream stream(folder_.root() / kJournalName, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        try {
            const ExportedFile file = exportedFileOfJSON(JSON::parse(line));
            know(file);
            begun.insert(file.path);
        } catch (const std::exception&) {
            continue; // cut off before its file was written
        }
    }
    const auto settle = [&](ExportedFile& file) {
        const ExportFolder::Found found = begun.contains(file.path) ? folder_.find(file.path) : ExportFolder::Found{};
        if (isOurs(file.path, found.hash))
            file = {file.path, found.size, found.hash};
    };
    for (auto& [identifier, note] : contents_.notes) {
        settle(note.text);
        std::ranges::for_each(note.attachments, settle);
    }
}

std::vector<fs::path> ExportManifest::knownPaths() const
{
    std::vector<fs::path> paths;
    for (const auto& [path, hashes] : known_)
        paths.push_back(path);
    return paths;
}

bool ExportManifest::isOurs(const fs::path& path, const std::string& hash) const
{
    const auto known = known_.find(path);
    return known != known_.end() && known->second.contains(hash);
}

ExportedFile ExportManifest::lastKnown(const fs::path& path) const
{
    const auto& [hash, size] = *known_.at(path).begin();
    return {path, size, hash};
}

void ExportManifest::announce(const ExportedFile& file)
{
    const fs::path path = folder_.root() / kJournalName;
    if (!std::exchange(hasJournal_, true) || !journal_.is_open()) {
        journal_.open(path, std::ios::binary | std::ios::app);
        journal_ << '\n'; // ends a line that was cut off
    }
    journal_ << jsonOfExportedFile(file).dump() << '\n' << std::flush;
    if (!journal_)
        throw CommandFailure(ExitCode::InputOutput, "cannot write " + path.string());
    know(file);
}

void ExportManifest::finish(const ExportContents& contents)
{
    if (!hasManifest_ || contents != onDisk_) {
        folder_.synchronize();
        writeDurably(folder_.root() / kManifestName, jsonOfContents(contents).dump(1) + "\n");
    }
    journal_.close();
    std::error_code failure;
    if (hasJournal_)
        fs::remove(folder_.root() / kJournalName, failure);
}

} // namespace tarn
