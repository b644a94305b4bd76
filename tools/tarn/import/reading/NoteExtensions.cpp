#include "tools/tarn/import/reading/NoteExtensions.h"

#include <algorithm>

namespace tarn {

namespace {

bool isSameLetter(char one, char other) noexcept
{
    const auto small
        = [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte; };
    return small(one) == small(other);
}

} // namespace

std::size_t lengthOfNoteExtension(std::string_view path) noexcept
{
    const std::string_view name = path.substr(path.rfind('/') + 1); // all of it where there is no slash
    for (const std::string_view extension : kNoteExtensions) {
        if (name.size() > extension.size()
            && std::ranges::equal(name.substr(name.size() - extension.size()), extension, isSameLetter))
            return extension.size();
    }
    return 0;
}

} // namespace tarn
