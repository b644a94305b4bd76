#include "tools/tarn/import/links/NoteIndex.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/import/reading/NoteExtensions.h"

#include <algorithm>
#include <filesystem>
#include <tuple>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

std::string foldedPath(const std::string& path)
{
    return fold(validUTF8(path));
}

/// One that a symbolic link led to may lie elsewhere.
std::string pathFromRoot(const LinkableNote& note)
{
    const std::string beginning = note.root->target.native() + "/";
    return note.path.starts_with(beginning) ? note.path.substr(beginning.size())
                                            : fs::path(note.path).lexically_relative(note.root->target).native();
}

std::string_view folderOf(std::string_view path)
{
    return path.substr(0, path.rfind('/'));
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

std::string NoteIndex::Names::keyInFolder(const std::string& key, std::string_view folder)
{
    std::string both = key + '\0';
    return both.append(folder);
}

void NoteIndex::Names::add(const std::string& key, const NoteIndex& index, Number number)
{
    const auto [known, isNew] = everywhere_.try_emplace(key, Match{number, false});
    if (!isNew) {
        known->second.isOneOfSeveral = true;
        if (index.isNearer(number, known->second.note))
            known->second.note = number;
    }
    const auto [neighbour, isFirst]
        = inFolder_.try_emplace(keyInFolder(key, folderOf(index.notes_[number].path)), number);
    if (!isFirst && index.isNearer(number, neighbour->second))
        neighbour->second = number;
}

std::optional<NoteIndex::Match> NoteIndex::Names::nearest(const std::string& key, std::string_view folder) const
{
    const auto found = everywhere_.find(key);
    if (found == everywhere_.end())
        return std::nullopt;
    Match match = found->second;
    if (const auto neighbour = inFolder_.find(keyInFolder(key, folder)); neighbour != inFolder_.end())
        match.note = neighbour->second;
    return match;
}

bool NoteIndex::isNearer(Number one, Number other) const
{
    const std::string& a = notes_[one].path;
    const std::string& b = notes_[other].path;
    return std::tuple(std::ranges::count(a, '/'), a) < std::tuple(std::ranges::count(b, '/'), b);
}

void NoteIndex::add(LinkableNote added)
{
    const Number number = notes_.size();
    notes_.push_back(std::move(added));
    const LinkableNote& note = notes_.back();
    byPath_.emplace(note.path, number);
    const std::string whole = foldedPath(note.path);
    const std::string relative = foldedPath(pathFromRoot(note));
    addPaths(whole, relative, number);
    if (const std::size_t length = lengthOfNoteExtension(whole); length > 0)
        addPaths(whole.substr(0, whole.size() - length), relative.substr(0, relative.size() - length), number);
    if (!note.title.empty())
        addName(byTitle_, fold(note.title), number);
    for (const std::string& alias : note.aliases)
        addName(byAlias_, fold(alias), number);
}

/// What a file may be called: its path, the ends of that, and its name. Both are folded.
void NoteIndex::addPaths(const std::string& whole, const std::string& relative, Number number)
{
    if (linkedNames_.haveSlashes())
        byFoldedPath_.add(whole, *this, number);
    const std::size_t name = relative.rfind('/') == std::string::npos ? 0 : relative.rfind('/') + 1;
    addName(byFileName_, relative.substr(name), number);
    for (std::size_t end = name; end > 1;) {
        const std::size_t slash = relative.rfind('/', end - 2);
        end = slash == std::string::npos ? 0 : slash + 1;
        addName(byPathEnd_, relative.substr(end), number);
    }
}

void NoteIndex::addName(Names& names, const std::string& key, Number number)
{
    if (linkedNames_.contain(key))
        names.add(key, *this, number);
}

std::optional<NoteIndex::Number> NoteIndex::noteAtPath(const std::string& path) const
{
    const auto found = byPath_.find(path);
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
    const std::string_view folder = folderOf(from.path);
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
    for (const fs::path& folder : {from.root->target, fs::path(folderOf(from.path))}) {
        const std::string path = (folder / relative).lexically_normal().native();
        for (const char* ending : {"", ".md"}) {
            if (const auto number = noteAtPath(path + ending))
                return Match{.note = *number};
        }
        if (const auto match = byFoldedPath_.nearest(foldedPath(path), folder.native()))
            return match;
    }
    return std::nullopt;
}

} // namespace tarn
