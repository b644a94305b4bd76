#include "examples/sync-folder/FolderServer.h"

#include "examples/sync-folder/RecordFile.h"

#include <fcntl.h>
#include <fstream>
#include <set>
#include <stdexcept>
#include <sys/file.h>
#include <unistd.h>

namespace tarn::syncfolder {

namespace {

/// One answer at a time, whichever process gives it. The lock of a process that dies is free.
class FolderLock {
public:
    explicit FolderLock(const std::filesystem::path& file) : descriptor_(::open(file.c_str(), O_RDWR | O_CREAT, 0600))
    {
        if (descriptor_ < 0 || ::flock(descriptor_, LOCK_EX) != 0)
            throw std::runtime_error("cannot lock " + file.string());
    }
    ~FolderLock() { ::close(descriptor_); }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    int descriptor_;
};

constexpr std::size_t kMostRecordsOfAReply = 50;

/// No device can name a file outside of the folder.
void checkName(const std::string& recordName)
{
    if (!isUUIDString(recordName))
        throw std::runtime_error("\"" + recordName + "\" is no name of a record");
}

std::optional<std::string> nextTag(const std::optional<CKRecord>& present)
{
    return std::to_string(present ? std::stoll(present->recordChangeTag.value_or("0")) + 1 : 1);
}

} // namespace

FolderServer::FolderServer(std::filesystem::path folder) : folder_(std::move(folder))
{
    std::filesystem::create_directories(folder_ / "records");
}

Reply FolderServer::answer(const Request& request) const
{
    const FolderLock lock(folder_ / "lock");
    if (const auto* upload = std::get_if<Upload>(&request))
        return keep(upload->record);
    return changesSince(std::get<Fetch>(request).since);
}

UploadReply FolderServer::keep(const CKRecord& sent) const
{
    checkName(sent.recordID().recordName);
    const auto present = read(sent.recordID().recordName);
    // Whoever has not seen the present version must not replace it.
    if (present && present->recordChangeTag != sent.recordChangeTag)
        return {false, *present};
    CKRecord kept = sent;
    kept.recordChangeTag = nextTag(present);
    write(kept);
    return {true, kept};
}

FetchReply FolderServer::changesSince(const std::optional<CKServerChangeToken>& since) const
{
    std::ifstream list(folder_ / "changes", std::ios::binary);
    std::streamoff end = since ? std::stoll(std::string(since->data().text())) : 0;
    list.seekg(end);
    std::set<std::string> names;
    std::string name;
    bool moreComing = false;
    while (std::getline(list, name)) {
        moreComing = names.size() == kMostRecordsOfAReply && !names.contains(name);
        if (moreComing)
            break;
        names.insert(name);
        end += static_cast<std::streamoff>(name.size()) + 1;
    }
    FetchReply reply{since, {}, CKServerChangeToken(NSData::fromText(std::to_string(end))), moreComing};
    for (const std::string& changed : names)
        if (auto record = read(changed))
            reply.changed.push_back(std::move(*record));
    return reply;
}

std::optional<CKRecord> FolderServer::read(const std::string& recordName) const
{
    std::ifstream file(folder_ / "records" / recordName, std::ios::binary);
    return file ? std::optional(readRecord(file, recordName)) : std::nullopt;
}

void FolderServer::write(const CKRecord& record) const
{
    const std::filesystem::path path = folder_ / "records" / record.recordID().recordName;
    std::filesystem::path fresh = path;
    fresh += ".new";
    std::ofstream file(fresh, std::ios::binary);
    writeRecord(file, record);
    file.close();
    std::ofstream list(folder_ / "changes", std::ios::binary | std::ios::app);
    // In the list first: a name too many does no harm, a missing one would hide the change.
    list << record.recordID().recordName << '\n' << std::flush;
    if (!file || !list)
        throw std::runtime_error("cannot write to " + folder_.string());
    std::filesystem::rename(fresh, path);
}

} // namespace tarn::syncfolder
