#include "tools/tarn/export/ExportFolder.h"

#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/import/record/TextFingerprint.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Where files lie until they are whole.
constexpr const char* kStagingFolder = ".tarn-export.new";

fs::file_type typeOf(const fs::path& path)
{
    std::error_code failure;
    return fs::symlink_status(path, failure).type();
}

std::string reasonOf(const NSError& error)
{
    return singleLine(error.localizedDescription());
}

} // namespace

ExportFolder::~ExportFolder()
{
    if (isStaging_)
        NSFileManager::removeItemAtURL(root_ / kStagingFolder);
    if (lock_ >= 0)
        ::close(lock_);
}

bool ExportFolder::isEmpty() const
{
    std::error_code failure;
    if (!fs::exists(root_, failure) && !failure)
        return true;
    for (fs::directory_iterator entry(root_, failure), end; !failure && entry != end; entry.increment(failure)) {
        if (entry->path().filename() != kStagingFolder)
            return false;
    }
    if (failure)
        throw failureForSystemError("cannot read the folder " + root_.string(), failure.value());
    return true;
}

bool ExportFolder::hasFile(const fs::path& path) const
{
    return typeOf(root_ / path) == fs::file_type::regular;
}

void ExportFolder::open()
{
    std::error_code failure;
    fs::create_directories(root_, failure);
    if (failure)
        throw failureForSystemError("cannot make the folder " + root_.string(), failure.value());
    lock_ = ::open(root_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (lock_ < 0)
        throw failureForSystemError("cannot open the folder " + root_.string(), errno);
    if (::flock(lock_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        throw CommandFailure(ExitCode::Locked, "another export is writing " + root_.string());
    if (typeOf(root_ / kStagingFolder) != fs::file_type::not_found)
        NSFileManager::removeItemAtURL(root_ / kStagingFolder); // of an export that was killed
}

/// Whether no symbolic link leads there.
bool ExportFolder::isWithin(const fs::path& path) const
{
    fs::path folder = root_;
    for (const fs::path& part : path.parent_path()) {
        folder /= part;
        if (typeOf(folder) != fs::file_type::directory)
            return false;
    }
    return true;
}

ExportFolder::Found ExportFolder::find(const fs::path& path) const
{
    const fs::file_type type = typeOf(root_ / path);
    if (type == fs::file_type::not_found || type == fs::file_type::none)
        return {};
    Found found{.isThere = true};
    if (type != fs::file_type::regular || !isWithin(path))
        return found;
    found.hash = hashOfFile(root_ / path).value_or("");
    std::error_code failure;
    found.size = fs::file_size(root_ / path, failure);
    return found;
}

std::optional<std::string> ExportFolder::writeText(
    const fs::path& path, std::string_view bytes, NSDate date, bool replaces, const Announce& announce)
{
    const fs::path whole = unfinished();
    NSError error;
    if (!NSFileManager::createFileAtURL(whole, NSData::fromText(std::string(bytes)), &error))
        return reasonOf(error);
    NSFileManager::setModificationDate(date, whole); // a text without its date is still the text
    return place(whole, {path, bytes.size(), hashOfBytes(bytes)}, replaces, announce);
}

std::optional<std::string> ExportFolder::copyFile(
    const fs::path& source, const fs::path& path, bool replaces, const Announce& announce, ExportedFile& copied)
{
    const fs::path whole = unfinished();
    NSError error;
    if (!NSFileManager::copyItemAtURL(source, whole, &error))
        return reasonOf(error);
    const auto hash = hashOfFile(whole);
    std::error_code failure;
    copied = {path, fs::file_size(whole, failure), hash.value_or("")};
    if (!hash || failure)
        return "its copy cannot be read";
    return place(whole, copied, replaces, announce);
}

/// A name for a file that is not whole yet.
fs::path ExportFolder::unfinished()
{
    const fs::path staging = root_ / kStagingFolder;
    NSError error;
    if (!std::exchange(isStaging_, true) && !NSFileManager::createDirectoryAtURL(staging, &error))
        throw CommandFailure(ExitCode::InputOutput, reasonOf(error));
    const fs::path file = staging / "file";
    NSFileManager::removeItemAtURL(file);
    return file;
}

std::optional<std::string> ExportFolder::place(
    const fs::path& unfinished, const ExportedFile& file, bool replaces, const Announce& announce)
{
    if (auto reason = makeFolders(file.path.parent_path()))
        return reason;
    announce(file);
    const fs::path place = root_ / file.path;
    NSError error;
    std::error_code failure;
    if (replaces)
        fs::rename(unfinished, place, failure);
    else if (!NSFileManager::moveItemAtURL(unfinished, place, &error))
        return reasonOf(error);
    if (failure)
        return failureForSystemError("cannot write it", failure.value()).what();
    written_.push_back(place);
    return std::nullopt;
}

std::optional<std::string> ExportFolder::makeFolders(const fs::path& folder)
{
    fs::path relative;
    for (const fs::path& part : folder) {
        relative /= part;
        if (made_.contains(relative))
            continue;
        const fs::path place = root_ / relative;
        NSError error;
        if (typeOf(place) == fs::file_type::not_found && !NSFileManager::createDirectoryAtURL(place, &error))
            return reasonOf(error);
        if (typeOf(place) != fs::file_type::directory)
            return place.string() + " is no folder";
        made_.insert(relative);
    }
    return std::nullopt;
}

std::optional<std::string> ExportFolder::remove(const fs::path& path)
{
    NSError error;
    if (!isWithin(path))
        return "a folder around it is none any more";
    if (!NSFileManager::removeItemAtURL(root_ / path, &error))
        return reasonOf(error);
    removeEmptyFolders(path);
    return std::nullopt;
}

void ExportFolder::removeEmptyFolders(const fs::path& path)
{
    std::error_code failure;
    for (fs::path folder = path.parent_path(); !folder.empty() && !failure; folder = folder.parent_path()) {
        if (!isWithin(folder / "any") || !fs::remove(root_ / folder, failure))
            return;
        made_.erase(folder);
    }
}

void ExportFolder::synchronize()
{
    NSError error;
    if (!NSFileManager::synchronizeItemsAtURLs(written_, &error))
        throw CommandFailure(ExitCode::InputOutput, reasonOf(error));
    written_.clear();
}

} // namespace tarn
