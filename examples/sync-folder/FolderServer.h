#pragma once

#include "examples/sync-folder/Messages.h"

#include <filesystem>
#include <string>

namespace tarn::syncfolder {

/// A folder that plays the server: one file for each record, and one list of what was changed in which order. Several
/// processes may use one folder at once.
///
///     records/<unique identifier>     the record: its change tag, and a line for each value
///     changes                         the name of a record for each time that it was kept
///     lock                            held while a request is answered
///
/// A change tag counts the versions of a record. A token says how many bytes of the list were read; both mean nothing
/// to a device. What fails throws `std::runtime_error`.
class FolderServer {
public:
    explicit FolderServer(std::filesystem::path folder);

    Reply answer(const Request& request) const;

private:
    UploadReply keep(const CKRecord& sent) const;
    FetchReply changesSince(const std::optional<CKServerChangeToken>& since) const;
    std::optional<CKRecord> read(const std::string& recordName) const;
    void write(const CKRecord& record) const;

    std::filesystem::path folder_;
};

} // namespace tarn::syncfolder
