#include "tarnmodel/files/FileJournal.h"

#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"
#include "tarnmodel/platform/foundation/filesystem/PrivateFolder.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFolderPrefix = ".unsaved-";
constexpr std::string_view kJournal = "journal";
constexpr std::string_view kNewFolder = "+";
constexpr std::string_view kExchange = "=";
constexpr char kSeparator = '\t'; // neither identifiers on disk nor names hold one

fs::path placeOfJournals()
{
    return OVLocalFileManager::applicationPersistentDataURL() / OVNoteLocalFileDirectoryName;
}

std::string prefixForStore(std::string_view storeUUID)
{
    return std::string(kFolderPrefix) + std::string(storeUUID) + "-";
}

struct Journals {
    std::mutex mutex;
    std::map<std::string, std::weak_ptr<FileJournal>, std::less<>> open; ///< by the beginning of their folders' paths
};

/// Never destroyed: contexts may end after everything else.
Journals& journals()
{
    static auto* const instance = new Journals;
    return *instance;
}

std::vector<FileJournal::Line> linesOf(const fs::path& folder)
{
    std::vector<FileJournal::Line> lines;
    std::ifstream journal(folder / kJournal, std::ios::binary);
    std::string text;
    while (std::getline(journal, text) && !journal.eof()) { // a last one without its end was not written whole
        std::istringstream fields(text);
        FileJournal::Line line;
        std::string aside;
        std::getline(fields, aside, kSeparator);
        std::getline(fields, line.folder.area, kSeparator);
        std::getline(fields, line.folder.identifier, kSeparator);
        std::getline(fields, line.filename, kSeparator);
        std::getline(fields, line.exchangedFor, kSeparator);
        line.isNew = aside == kNewFolder;
        if (!aside.empty() && !line.isNew && aside != kExchange)
            line.aside = folder / aside;
        if (!line.folder.identifier.empty())
            lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace

FileJournal::FileJournal(HeldFolder folder, int descriptor) : folder_(std::move(folder)), descriptor_(descriptor) { }

FileJournal::~FileJournal()
{
    ::close(descriptor_);
    folder_.remove();
}

std::shared_ptr<FileJournal> FileJournal::forStore(std::string_view storeUUID, NSError* error)
{
    const fs::path place = placeOfJournals();
    const std::string prefix = prefixForStore(storeUUID);
    Journals& all = journals();
    const std::lock_guard lock(all.mutex);
    std::weak_ptr<FileJournal>& known = all.open[(place / prefix).string()];
    if (auto journal = known.lock())
        return journal;
    if (const std::error_code failure = createPrivateFolder(place)) {
        failWithSystemError(error, failure.value(), place, "made");
        return nullptr;
    }
    auto folder = HeldFolder::makeIn(place, prefix, error);
    if (!folder)
        return nullptr;
    const fs::path file = folder->path() / kJournal;
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        failWithSystemError(error, errno, file, "made");
        folder->remove();
        return nullptr;
    }
    std::shared_ptr<FileJournal> journal(new FileJournal(std::move(*folder), descriptor));
    known = journal;
    return journal;
}

bool FileJournal::append(std::string line, NSError* error)
{
    line += '\n';
    std::string_view rest = line;
    while (!rest.empty()) {
        const ssize_t count = ::write(descriptor_, rest.data(), rest.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return failWithSystemError(error, errno, folder_.path() / kJournal, "written");
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool FileJournal::note(const RecordFolder& folder, NSError* error)
{
    const std::lock_guard lock(mutex_);
    return append(fmt::format("\t{}\t{}", folder.area, folder.identifier), error);
}

bool FileJournal::noteNew(const RecordFolder& folder, NSError* error)
{
    const std::lock_guard lock(mutex_);
    return append(fmt::format("{}\t{}\t{}", kNewFolder, folder.area, folder.identifier), error);
}

bool FileJournal::noteExchange(
    const RecordFolder& folder, std::string_view former, std::string_view name, NSError* error)
{
    const std::lock_guard lock(mutex_);
    return append(fmt::format("{}\t{}\t{}\t{}\t{}", kExchange, folder.area, folder.identifier, former, name), error);
}

std::optional<fs::path> FileJournal::noteAside(const RecordFolder& folder, std::string_view filename, NSError* error)
{
    const std::lock_guard lock(mutex_);
    const std::string aside = std::to_string(nextAside_++);
    if (!append(fmt::format("{}\t{}\t{}\t{}", aside, folder.area, folder.identifier, filename), error))
        return std::nullopt;
    return folder_.path() / aside;
}

fs::path FileJournal::unusedURL()
{
    const std::lock_guard lock(mutex_);
    return folder_.path() / std::to_string(nextAside_++);
}

std::vector<FileJournal::Abandoned> FileJournal::abandonedForStore(std::string_view storeUUID)
{
    std::vector<Abandoned> abandoned;
    for (HeldFolder& folder : HeldFolder::abandonedIn(placeOfJournals(), prefixForStore(storeUUID))) {
        std::vector<Line> lines = linesOf(folder.path());
        abandoned.push_back({std::move(folder), std::move(lines)});
    }
    return abandoned;
}

std::vector<FileJournal::Sighting> FileJournal::journalsInSight(std::string_view storeUUID)
{
    std::vector<Sighting> journals;
    const std::string ownPrefix = prefixForStore(storeUUID);
    std::error_code failure;
    for (fs::directory_iterator entry(placeOfJournals(), failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with(kFolderPrefix))
            continue;
        const bool isHeld = HeldFolder::isHeld(entry->path()); // asked first: who lets go then has written all
        journals.push_back({entry->path(), isHeld, name.starts_with(ownPrefix), linesOf(entry->path())});
    }
    return journals;
}

} // namespace tarn
