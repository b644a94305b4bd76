#pragma once

#include "tarnmodel/files/OVLocalFileManager.h"

#include <compare>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSManagedObjectContext;
class OVNoteFile;

/// Where the file of an attachment lies: the kind's folder below the persistent data folder, and the record's in that.
struct RecordFolder {
    std::string area;       ///< "Local Files/Note Images", as `OVNoteFile::localFolderName` gives it
    std::string identifier; ///< the record's unique identifier

    /// That of a record, which has an identifier.
    static RecordFolder ofRecord(const OVNoteFile& record);
    /// The folders of all kinds, "Local Files/Note Images" and so on.
    static std::vector<std::string> areas();
    /// The record's folder, which need not exist.
    std::filesystem::path url() const;
    friend auto operator<=>(const RecordFolder&, const RecordFolder&) = default;
};

using RecordsOfFolders = std::map<RecordFolder, const OVNoteFile*>;

/// The records with these identifiers. False when the store cannot be asked; that is logged. On the context's queue.
bool fetchRecordsOfFolders(
    const std::vector<std::string>& identifiers, NSManagedObjectContext& context, RecordsOfFolders& records);

/// Whether that is a file or folder that was not written whole.
bool isUnfinishedItem(const std::filesystem::path& item);

/// What lies in a folder, without what is not whole; by name.
std::vector<std::filesystem::path> itemsInFolder(const std::filesystem::path& folder);

/// Bytes of a file, or of all files in a folder: a folder's own entry does not count. None when nothing is there.
std::optional<std::int64_t> sizeOfItem(const std::filesystem::path& item);

/// Gives the one item of a record's folder the name that the record says, where nothing has it. Whether that was done.
bool giveFileItsName(const RecordFolder& folder, std::string_view filename);

} // namespace tarn
