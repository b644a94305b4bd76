#pragma once

#include "tarnmodel/backup/BackupManifest.h"

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>

namespace tarn {

// Part of the format; docs/backups.md tells of each.
inline constexpr int kBackupFormat = 1;
inline constexpr std::string_view kManifestName = "manifest.json";
inline constexpr std::string_view kRecordFolder = "records/";
inline constexpr std::string_view kRecordExtension = ".jsonl";
inline constexpr std::string_view kCompanionFolder = "companions/";
inline constexpr std::string_view kFileFolder = "files/";

/// The manifest as JSON, UTF-8.
std::string textOfManifest(const BackupManifest& manifest);
/// Reads one. Throws a `BackupFailure` for what is none, of a later format, or of more than so many members.
BackupManifest manifestFromText(std::string_view text, std::size_t maximumMemberCount);

} // namespace tarn
