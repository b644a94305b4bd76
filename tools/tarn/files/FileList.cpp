#include "tools/tarn/files/FileList.h"

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tools/tarn/commandline/DisplayText.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <system_error>

namespace tarn {

namespace {

constexpr std::size_t kKindColumns = 5;
constexpr std::size_t kSizeColumns = 8;
constexpr std::size_t kPixelColumns = 11;
constexpr std::size_t kFileMarkColumns = 3;

std::string marksOfFile(const OVNoteFile& file)
{
    const bool isHere = file.downloadedValue();
    std::string marks;
    if (file.isUnused())
        marks += 'u';
    if (isHere && !file.uploadedValue())
        marks += '^';
    if (!isHere && file.uploadedValue())
        marks += 'v';
    if (file.encryptedValue())
        marks += 'e';
    if (isHere && !isLocked(file) && !pathOfFile(file))
        marks += '!';
    return marks;
}

std::string aligned(const std::string& text, std::size_t columns)
{
    return std::string(columns > text.size() ? columns - text.size() : 0, ' ') + text;
}

} // namespace

bool isLocked(const OVNoteFile& file)
{
    return file.encryptedValue() && file.hasEncryptionAndIsLocked();
}

std::string nameOfFile(const OVNoteFile& file)
{
    return (isLocked(file) ? file.storedFilename() : file.filename()).value_or("");
}

std::optional<std::filesystem::path> pathOfFile(const OVNoteFile& file)
{
    const auto path = isLocked(file) ? std::nullopt : file.fileURL();
    std::error_code failure;
    return path && std::filesystem::exists(*path, failure) ? path : std::nullopt;
}

std::string displaySize(std::uintmax_t bytes)
{
    constexpr std::array kUnits{"kB", "MB", "GB", "TB", "PB", "EB"};
    if (bytes < 1000)
        return std::to_string(bytes) + " B";
    double size = static_cast<double>(bytes) / 1000;
    std::size_t unit = 0;
    while (size >= 999.95 && unit + 1 < kUnits.size()) {
        size /= 1000;
        ++unit;
    }
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f %s", size, kUnits.at(unit));
    return text.data();
}

std::uintmax_t bytesOfFiles(std::span<OVNoteFile* const> files)
{
    std::uintmax_t bytes = 0;
    for (const OVNoteFile* file : files)
        bytes += isLocked(*file) ? 0
                                 : static_cast<std::uintmax_t>(std::max<std::int64_t>(file->fileSize().value_or(0), 0));
    return bytes;
}

JSON jsonOfFile(const OVNoteFile& file)
{
    const auto* image = dynamic_cast<const OVNoteImage*>(&file);
    const bool locked = isLocked(file);
    const auto path = pathOfFile(file);
    JSON json;
    json["uniqueIdentifier"] = file.uniqueIdentifier().value_or("");
    json["filename"] = locked ? JSON(nullptr) : JSON(nameOfFile(file));
    json["kind"] = image ? "image" : "file";
    json["fileSize"] = locked ? JSON(nullptr) : JSON(file.fileSize().value_or(0));
    json["width"] = image ? JSON(image->widthValue()) : JSON(nullptr);
    json["height"] = image ? JSON(image->heightValue()) : JSON(nullptr);
    json["index"] = file.indexValue();
    json["unused"] = file.isUnused();
    json["path"] = path ? JSON(path->string()) : JSON(nullptr);
    return json;
}

JSON jsonOfFiles(std::span<OVNoteFile* const> files)
{
    JSON list = JSON::array();
    for (const OVNoteFile* file : files)
        list.push_back(jsonOfFile(*file));
    return {{"files", std::move(list)}};
}

void writeFileLine(Output& output, const OVNoteFile& file)
{
    const auto* image = dynamic_cast<const OVNoteImage*>(&file);
    const bool locked = isLocked(file);
    const std::string size = locked ? "?" : displaySize(bytesOfFiles(std::array{const_cast<OVNoteFile*>(&file)}));
    const std::string pixels
        = image ? std::to_string(image->widthValue()) + "x" + std::to_string(image->heightValue()) : "";
    const OVNote* note = file.note();
    output.writeLine(textPaddedToWidth(image ? "image" : "file", kKindColumns) + "  " + aligned(size, kSizeColumns)
        + "  " + aligned(pixels, kPixelColumns) + "  " + textPaddedToWidth(marksOfFile(file), kFileMarkColumns) + " "
        + output.styled(locked ? "(protected)" : displayText(nameOfFile(file)), TextStyle::Strong) + "  "
        + output.styled(note ? displayText(note->title().value_or("")) : "(of no note)", TextStyle::Faint));
}

} // namespace tarn
