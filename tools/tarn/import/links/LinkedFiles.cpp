#include "tools/tarn/import/links/LinkedFiles.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"

#include <algorithm>
#include <iterator>
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

/// A path that a destination may stand for.
struct MeantPath {
    std::string path;
    std::string anchor;
};

/// The likeliest first.
std::vector<MeantPath> pathsForDestination(std::string_view destination)
{
    std::vector<MeantPath> paths;
    const auto decoded = [](std::string_view written) {
        return stringByRemovingPercentEncoding(written).value_or(std::string(written));
    };
    const auto add = [&](std::string_view written, std::string_view anchor) {
        if (std::string path = decoded(written); path != written)
            paths.push_back({std::move(path), decoded(anchor)});
        paths.push_back({std::string(written), decoded(anchor)});
    };
    add(destination, "");
    if (const std::size_t end = destination.find_first_of("?#"); end != std::string_view::npos && end > 0) {
        const std::size_t hash = destination.find('#', end);
        add(destination.substr(0, end), hash == std::string_view::npos ? "" : destination.substr(hash + 1));
    }
    std::erase_if(paths, [](const MeantPath& meant) { return meant.path.find('\0') != std::string::npos; });
    return paths;
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

} // namespace

LinkedFile LinkedFiles::fileForLink(std::string_view destination, const MarkdownFile& note)
{
    using Kind = LinkedFile::Kind;
    if (destination.empty() || destination.front() == '#' || destination.front() == '?' || hasScheme(destination)
        || destination.starts_with("//"))
        return {};
    const fs::path& root = note.root->target;
    bool leadsOut = false;
    for (const MeantPath& meant : pathsForDestination(destination)) {
        const bool fromRoot = meant.path.starts_with('/');
        const fs::path folder = fromRoot ? note.root->path : fs::path(note.path).parent_path();
        const fs::path relative = fs::path(meant.path).relative_path();
        const auto path = existing(folder, relative);
        LinkedFile file;
        if (path)
            file = fileAtPath(*path, root);
        if (file.kind == Kind::NoPath) {
            if (auto near = noteNear(path.value_or(folder / relative), root))
                file = std::move(*near);
        }
        if (file.kind != Kind::NoPath) {
            file.anchor = file.kind == Kind::ImportedNote ? meant.anchor : std::string();
            return file;
        }
        std::error_code failure;
        const fs::path place = fs::weakly_canonical(placeOf(folder) / relative, failure);
        leadsOut = leadsOut || (!failure && !isBelow(place, root));
    }
    return {.kind = leadsOut ? Kind::Outside : Kind::Missing, .path = {}, .target = {}, .anchor = {}};
}

/// The file that lies there; `NoPath` for none.
LinkedFile LinkedFiles::fileAtPath(const fs::path& path, const fs::path& root) const
{
    using Kind = LinkedFile::Kind;
    std::error_code failure;
    fs::path target = fs::canonical(path, failure);
    if (failure)
        return {};
    if (!isBelow(target, root))
        return {.kind = Kind::Outside, .path = {}, .target = {}, .anchor = {}};
    if (isNote_(target.native()))
        return {.kind = Kind::ImportedNote, .path = path, .target = std::move(target), .anchor = {}};
    if (fs::is_regular_file(target, failure))
        return {.kind = Kind::Found, .path = path, .target = std::move(target), .anchor = {}};
    return {};
}

/// The note that a path means which is none itself: its ending is left out, or is that of a page made of it, or the
/// path is that of its folder.
std::optional<LinkedFile> LinkedFiles::noteNear(const fs::path& place, const fs::path& root)
{
    std::vector<fs::path> names;
    if (place.has_filename()) {
        names.push_back(place.native() + ".md");
        if (place.extension() == ".html" || place.extension() == ".htm")
            names.push_back(fs::path(place).replace_extension(".md"));
    }
    std::ranges::move(pagesOf(place), std::back_inserter(names));
    for (const fs::path& name : names) {
        const auto path = existing(name.parent_path(), name.filename());
        if (!path)
            continue;
        LinkedFile file = fileAtPath(*path, root);
        if (file.kind == LinkedFile::Kind::ImportedNote)
            return file;
    }
    return std::nullopt;
}

/// The notes that stand for a folder, the likeliest first.
std::vector<fs::path> LinkedFiles::pagesOf(const fs::path& folder)
{
    std::vector<fs::path> pages;
    std::error_code failure;
    if (!fs::is_directory(placeOf(folder), failure))
        return pages;
    for (const std::string_view page : {"readme", "index"}) {
        for (const auto& [composed, name] : namesIn(folder)) {
            if (foldCase(fs::path(name).stem().native()) == page)
                pages.push_back(folder / name);
        }
    }
    return pages;
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
