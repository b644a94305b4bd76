#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

// What an export writes and an import knows again; files of earlier versions have the same.
/// The folder beside a note's file that holds, in a folder of its own, each of its attachments.
inline constexpr std::string_view kAttachmentsFolder = "attachments";
/// How the second line of a note's file begins.
inline constexpr std::string_view kIdentifierLine = "tarn-id: ";
/// How links to files begin that stand for links to notes, and no others.
inline constexpr std::string_view kLinkedFileBeginning = "./";

/// What stands before the name of an attachment in the links of an exported text: "attachments/0FE1A2B3/". "" for a
/// destination that has no such thing.
std::string_view placeOfAttachment(std::string_view destination);

/// The text with links to attachments as they were before the export. `names`: of the attachments, by the destinations
/// of the links. A link to one that got another name than the link says gets that name.
std::string textWithoutPlaces(const std::string& text, const std::map<std::string, std::optional<std::string>>& names);

/// Attaches a file of an export under the name that it has there. Its identifier begins as the folder of the file is
/// called, so that the next export puts it there again. Null and an error when it cannot be attached.
OVNoteFile* attachExportedFile(const std::filesystem::path& path, OVNote& note, NSError* error);

/// Whether an export wrote one of the files of notes in a folder.
bool holdsExportedNotes(const std::filesystem::path& folder);

} // namespace tarn
