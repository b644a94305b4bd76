#include "tools/tarn/export/ExportPlan.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// What both paths begin with.
fs::path commonBeginning(const fs::path& one, const fs::path& other)
{
    fs::path common;
    for (auto a = one.begin(), b = other.begin(); a != one.end() && b != other.end() && *a == *b; ++a, ++b)
        common /= *a;
    return common;
}

} // namespace

bool isLocked(const OVNote& note)
{
    return note.encryptedValue() && note.hasEncryptionAndIsLocked();
}

void ExportPlan::add(const OVNote& note)
{
    const std::string identifier = note.uniqueIdentifier().value_or("");
    if (!byIdentifier_.try_emplace(identifier, notes_.size()).second)
        return;
    const std::string title = note.title().value_or("");
    PlannedNote planned{
        .identifier = identifier, .title = title, .name = portableNoteName(title), .isLocked = isLocked(note)};
    planned.created = note.creationDate().value_or(NSDate());
    if (layout_ == ExportLayout::Tags)
        planned.folder = tagFolder(note);
    const ImportedSource* source = record_ ? record_->sourceOfNote(identifier) : nullptr;
    if (layout_ == ExportLayout::Source && source)
        planned.imported = source->path;
    ++titles_[fold(title)];
    notes_.push_back(std::move(planned));
}

/// The first tag as the text has them; of a text that cannot be read the first by name.
fs::path ExportPlan::tagFolder(const OVNote& note) const
{
    std::vector<std::string> tags;
    if (const auto text = isLocked(note) ? std::nullopt : note.text()) {
        const CVKAST document = CVKAST::fromMarkdown(*text);
        tags = document.textSummary().tags;
    } else {
        tags = note.tagsStrings();
        std::ranges::sort(tags);
    }
    std::string deepest; // those above a tag are listed with it
    for (const std::string& tag : tags) {
        if (!deepest.empty() && !tag.starts_with(deepest + "/"))
            break;
        deepest = tag;
    }
    return portableFolder(fs::path(deepest).relative_path());
}

/// From the folder that all have in common.
void ExportPlan::placeAsImported()
{
    std::optional<fs::path> root;
    for (const PlannedNote& planned : notes_) {
        if (!planned.imported.empty())
            root = root ? commonBeginning(*root, planned.imported.parent_path()) : planned.imported.parent_path();
    }
    for (PlannedNote& planned : notes_) {
        if (planned.imported.empty())
            continue;
        const fs::path folder = planned.imported.parent_path().lexically_relative(*root);
        planned.folder = folder == "." ? fs::path() : portableFolder(folder);
        planned.name = portableNoteName(planned.imported.stem().native());
    }
}

/// As they were made, wherever the store has them.
std::vector<PlannedNote*> ExportPlan::notesInOrder()
{
    std::vector<PlannedNote*> notes;
    for (PlannedNote& planned : notes_)
        notes.push_back(&planned);
    std::ranges::sort(notes, {}, [](const PlannedNote* note) { return std::pair(note->created, note->identifier); });
    return notes;
}

void ExportPlan::giveNames(const ExportManifest& manifest, const ExportFolder& folder, bool keepsOthers)
{
    placeAsImported();
    const std::vector<PlannedNote*> notes = notesInOrder();
    for (PlannedNote* planned : notes)
        planned->folder = names_.folder(planned->folder);
    const auto& before = manifest.contents().notes;
    for (const auto& [identifier, exported] : before) {
        if (keepsOthers && !note(identifier))
            names_.take(exported.text.path);
    }
    for (PlannedNote* planned : notes) {
        const auto known = before.find(planned->identifier);
        if (known == before.end())
            continue;
        const fs::path& path = known->second.text.path;
        const bool isSame = path.parent_path() == planned->folder && known->second.name == planned->name;
        if ((isSame || planned->isLocked) && names_.take(path))
            planned->path = path;
    }
    const auto isOthers = [&](const fs::path& path) { return !manifest.isKnown(path) && folder.find(path).isThere; };
    for (PlannedNote* planned : notes) {
        if (planned->path.empty())
            planned->path = names_.noteFile(planned->folder, planned->name, isOthers);
    }
}

const PlannedNote* ExportPlan::note(const std::string& identifier) const
{
    const auto found = byIdentifier_.find(identifier);
    return found == byIdentifier_.end() ? nullptr : &notes_[found->second];
}

bool ExportPlan::isOnlyOneCalled(std::string_view title) const
{
    const auto found = titles_.find(fold(title));
    return found != titles_.end() && found->second == 1;
}

} // namespace tarn
