#include "tools/tarn/import/NoteIndex.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <iterator>
#include <tuple>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

bool isNoteExtension(const std::string& extension)
{
    const std::string folded = fold(extension);
    return folded == ".md" || folded == ".markdown" || folded == ".txt";
}

std::string foldedPath(const fs::path& path)
{
    return fold(validUTF8(path.native()));
}

/// What a file may be called: by its name with its ending, and where it is a note without it.
std::vector<fs::path> namesOf(const fs::path& path)
{
    if (!isNoteExtension(path.extension().native()))
        return {path};
    return {path, fs::path(path).replace_extension()};
}

std::size_t depthOf(const fs::path& path)
{
    return static_cast<std::size_t>(std::distance(path.begin(), path.end()));
}

} // namespace

void LinkedNames::add(std::string_view name)
{
    if (!names_.emplace(name).second)
        return;
    for (const std::string_view ends : {"", "#", "|", "#|"}) {
        const std::string_view part = trimmed(name.substr(0, ends.empty() ? ends.npos : name.find_first_of(ends)));
        keys_.insert(fold(part));
    }
    haveSlashes_ = haveSlashes_ || name.find('/') != std::string_view::npos;
}

void NoteIndex::Names::add(const std::string& key, const NoteIndex& index, Number number)
{
    const auto [known, isNew] = everywhere_.try_emplace(key, Match{number, false});
    if (!isNew) {
        known->second.isOneOfSeveral = true;
        if (index.isNearer(number, known->second.note))
            known->second.note = number;
    }
    const std::string folder = index.notes_[number].path.parent_path().native();
    const auto [neighbour, isFirst] = inFolder_.try_emplace(key + '\0' + folder, number);
    if (!isFirst && index.isNearer(number, neighbour->second))
        neighbour->second = number;
}

std::optional<NoteIndex::Match> NoteIndex::Names::nearest(const std::string& key, const fs::path& folder) const
{
    const auto found = everywhere_.find(key);
    if (found == everywhere_.end())
        return std::nullopt;
    Match match = found->second;
    if (const auto neighbour = inFolder_.find(key + '\0' + folder.native()); neighbour != inFolder_.end())
        match.note = neighbour->second;
    return match;
}

bool NoteIndex::isNearer(Number one, Number other) const
{
    const fs::path& a = notes_[one].path;
    const fs::path& b = notes_[other].path;
    return std::tuple(depthOf(a), a.native()) < std::tuple(depthOf(b), b.native());
}

void NoteIndex::add(LinkableNote added)
{
    const Number number = notes_.size();
    notes_.push_back(std::move(added));
    const LinkableNote& note = notes_.back();
    byPath_.emplace(note.path.native(), number);
    for (const fs::path& path : namesOf(note.path)) {
        if (linkedNames_.haveSlashes())
            byFoldedPath_.add(foldedPath(path), *this, number);
        const std::string relative = foldedPath(path.lexically_relative(note.root));
        const std::size_t name = relative.rfind('/') == std::string::npos ? 0 : relative.rfind('/') + 1;
        addName(byFileName_, relative.substr(name), number);
        for (std::size_t end = name; end > 1;) {
            const std::size_t slash = relative.rfind('/', end - 2);
            end = slash == std::string::npos ? 0 : slash + 1;
            addName(byPathEnd_, relative.substr(end), number);
        }
    }
    if (!note.title.empty())
        addName(byTitle_, fold(note.title), number);
    for (const std::string& alias : note.aliases)
        addName(byAlias_, fold(alias), number);
}

void NoteIndex::addName(Names& names, const std::string& key, Number number)
{
    if (linkedNames_.contain(key))
        names.add(key, *this, number);
}

std::optional<NoteIndex::Number> NoteIndex::noteAtPath(const fs::path& path) const
{
    const auto found = byPath_.find(path.native());
    return found == byPath_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<NoteIndex::Match> NoteIndex::noteNamed(std::string_view name, const LinkableNote& from) const
{
    const std::string text(trimmed(name));
    if (text.empty() || text.find('\0') != std::string::npos)
        return std::nullopt;
    if (text.find('/') != std::string::npos) {
        if (const auto match = atPath(text, from))
            return match;
    }
    const fs::path folder = from.path.parent_path();
    const std::string key = fold(text);
    for (const Names* names : {&byPathEnd_, &byFileName_, &byTitle_, &byAlias_}) {
        if (const auto match = names->nearest(key, folder))
            return match;
    }
    return std::nullopt;
}

std::optional<NoteIndex::Match> NoteIndex::atPath(const std::string& name, const LinkableNote& from) const
{
    const fs::path relative = fs::path(name).relative_path();
    for (const fs::path& folder : {from.root, from.path.parent_path()}) {
        for (const char* ending : {"", ".md"}) {
            const auto number = noteAtPath((folder / relative).lexically_normal().native() + ending);
            if (number)
                return Match{.note = *number};
        }
        const std::string key = foldedPath((folder / relative).lexically_normal());
        if (const auto match = byFoldedPath_.nearest(key, folder))
            return match;
    }
    return std::nullopt;
}

} // namespace tarn
