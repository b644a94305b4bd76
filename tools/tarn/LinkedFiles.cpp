#include "tools/tarn/LinkedFiles.h"

#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

bool isLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

/// "https:", "mailto:", and "C:" of other systems.
bool hasScheme(std::string_view destination)
{
    if (destination.empty() || !isLetter(destination.front()))
        return false;
    const auto isSchemeByte = [](char byte) {
        return isLetter(byte) || (byte >= '0' && byte <= '9') || byte == '+' || byte == '-' || byte == '.';
    };
    const auto end = std::ranges::find_if_not(destination, isSchemeByte);
    return end != destination.end() && *end == ':';
}

/// The names that a destination may stand for, the likeliest first.
std::vector<std::string> namesForDestination(std::string_view destination)
{
    std::vector<std::string> names;
    const auto add = [&names](std::string_view written) {
        if (auto decoded = stringByRemovingPercentEncoding(written); decoded && *decoded != written)
            names.push_back(std::move(*decoded));
        names.emplace_back(written);
    };
    add(destination);
    if (const std::size_t end = destination.find_first_of("?#"); end != std::string_view::npos && end > 0)
        add(destination.substr(0, end));
    std::erase_if(names, [](const std::string& name) { return name.find('\0') != std::string::npos; });
    return names;
}

bool isBelow(const fs::path& path, const fs::path& folder)
{
    const auto [end, ignored] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
    return end == folder.end();
}

bool isASCII(const std::string& text)
{
    return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// The folder; of a file that was named without one the current.
fs::path placeOf(const fs::path& folder)
{
    return folder.empty() ? fs::path(".") : folder;
}

fs::path withoutLinks(const fs::path& path)
{
    std::error_code failure;
    fs::path target = fs::canonical(path, failure);
    return failure ? path : target;
}

} // namespace

LinkedFiles::LinkedFiles(std::span<const MarkdownFile> notes)
{
    for (const MarkdownFile& note : notes)
        notes_.insert(withoutLinks(note.path));
}

LinkedFile LinkedFiles::fileForLink(std::string_view destination, const fs::path& note, const fs::path& root)
{
    using Kind = LinkedFile::Kind;
    if (destination.empty() || destination.front() == '#' || destination.front() == '?' || hasScheme(destination)
        || destination.starts_with("//"))
        return {};
    bool leadsOut = false;
    for (const std::string& name : namesForDestination(destination)) {
        if (fs::path(name).is_absolute())
            return {.kind = Kind::Outside, .path = {}, .target = {}};
        std::error_code failure;
        const auto path = existing(note.parent_path(), name);
        if (!path) {
            const fs::path place = fs::weakly_canonical(placeOf(note.parent_path()) / name, failure);
            leadsOut = leadsOut || (!failure && !isBelow(place, canonicalRoot(root)));
            continue;
        }
        fs::path target = fs::canonical(*path, failure);
        if (failure)
            continue;
        if (!isBelow(target, canonicalRoot(root)))
            return {.kind = Kind::Outside, .path = {}, .target = {}};
        if (notes_.contains(target))
            return {.kind = Kind::ImportedNote, .path = {}, .target = {}};
        if (fs::is_regular_file(target, failure))
            return {.kind = Kind::Found, .path = *path, .target = std::move(target)};
    }
    return {.kind = leadsOut ? Kind::Outside : Kind::Missing, .path = {}, .target = {}};
}

/// What is there by that name, or by one that is written the same: some systems decompose names, others do not.
std::optional<fs::path> LinkedFiles::existing(const fs::path& folder, const fs::path& relative)
{
    std::error_code failure;
    if (fs::path path = folder / relative; fs::exists(path, failure))
        return path;
    if (isASCII(relative.native()))
        return std::nullopt;
    fs::path path = folder;
    for (const fs::path& part : relative) {
        if (isASCII(part.native()) || fs::exists(path / part, failure)) {
            path /= part;
            continue;
        }
        const NamesOfFolder& names = namesIn(path);
        const auto found = names.find(canonicallyComposed(part.native()));
        if (found == names.end())
            return std::nullopt;
        path /= found->second;
    }
    return fs::exists(path, failure) ? std::optional(std::move(path)) : std::nullopt;
}

const fs::path& LinkedFiles::canonicalRoot(const fs::path& root)
{
    const auto [known, isNew] = roots_.try_emplace(root);
    if (isNew)
        known->second = withoutLinks(placeOf(root));
    return known->second;
}

const LinkedFiles::NamesOfFolder& LinkedFiles::namesIn(const fs::path& folder)
{
    const auto [known, isNew] = names_.try_emplace(folder);
    if (isNew) {
        std::error_code failure;
        for (fs::directory_iterator entry(placeOf(folder), failure), end; !failure && entry != end;
             entry.increment(failure)) {
            std::string name = entry->path().filename().string();
            std::string composed = canonicallyComposed(name);
            known->second.emplace(std::move(composed), std::move(name));
        }
    }
    return known->second;
}

} // namespace tarn
