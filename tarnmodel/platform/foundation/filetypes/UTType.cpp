#include "tarnmodel/platform/foundation/filetypes/UTType.h"

#include "tarnmodel/platform/foundation/filetypes/FileTypeTableInternal.h"

#include <algorithm>
#include <compare>
#include <span>

namespace tarn {

namespace {

char lowered(char letter) noexcept
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

/// Whether `known`, in lower case, stands before `extension`, in any case.
bool standsBefore(std::string_view known, std::string_view extension) noexcept
{
    return std::lexicographical_compare_three_way(known.begin(), known.end(), extension.begin(), extension.end(),
               [](char one, char other) { return one <=> lowered(other); })
        < 0;
}

} // namespace

std::optional<UTType> UTType::typeWithFilenameExtension(std::string_view extension) noexcept
{
    const std::span<const FileType> types = fileTypes();
    const auto found = std::ranges::lower_bound(types, extension, standsBefore, &FileType::extension);
    if (found == types.end() || !std::ranges::equal(found->extension, extension, {}, {}, lowered))
        return std::nullopt;
    return UTType(*found);
}

std::string_view UTType::identifier() const noexcept
{
    return type_->identifier;
}

std::string_view UTType::preferredFilenameExtension() const noexcept
{
    return type_->preferredExtension;
}

bool UTType::conformsToImage() const noexcept
{
    return identifier().starts_with("image/");
}

bool UTType::conformsToJPEG() const noexcept
{
    return identifier() == "image/jpeg";
}

bool UTType::conformsToSVG() const noexcept
{
    return identifier() == "image/svg+xml";
}

} // namespace tarn
