#include "tools/tarn/import/ImportPlan.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/files/TextFile.h"
#include "tools/tarn/import/reading/SourceText.h"
#include "tools/tarn/import/record/RecordSettling.h"
#include "tools/tarn/import/titles/TitleSuffixes.h"
#include "tools/tarn/session/StoreSession.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Files of one folder that begin with one heading before it is a habit and no title.
constexpr std::size_t kCommonHeading = 3;
/// Notes of one question to the store.
constexpr std::size_t kNotesAtOnce = 500;

/// Behind it stands when a version came to it.
std::string groupOfConflict(std::string_view conflict)
{
    return std::string(conflict.substr(0, conflict.find('/')));
}

bool isFile(const fs::path& path)
{
    std::error_code failure;
    return fs::is_regular_file(fs::symlink_status(path, failure));
}

bool isThere(const fs::path& path)
{
    std::error_code failure;
    return fs::exists(fs::symlink_status(path, failure));
}

} // namespace

ImportPlan::ImportPlan(StoreSession* session, const ImportRecord* record, const ImportRules& rules)
    : session_(session), record_(record), rules_(rules), storeTitles_(session)
{ }

void ImportPlan::make(const std::vector<MarkdownFile>& files, const FailureHandler& failed)
{
    for (const MarkdownFile& file : files) {
        Interruption::endIfRequested("interrupted");
        try {
            look(file);
        } catch (const TextFileError& error) {
            unreadable_.insert(pathWithoutSymbolicLinks(file.path).native());
            failed(file.path, error);
        }
    }
    putInOrder();
    countHeadings();
    recognise();
    decideTitles();
    if (rules_.titles == TitleMode::Unique)
        tellTitlesApart();
    giveIdentifiers();
    askStore();
    fillIndex();
}

void ImportPlan::fillIndex()
{
    for (const PlannedFile& planned : files_) {
        const auto aliases = aliases_.find(planned.path);
        index_.add({planned.path, planned.file.root, planned.title,
            aliases == aliases_.end() ? std::vector<std::string>() : std::move(aliases->second)});
    }
    if (!record_)
        return;
    // Who imports one file again means the folder that it was imported with.
    std::map<std::string, std::shared_ptr<const ImportRoot>> roots;
    for (const auto& [given, root] : roots_)
        roots.emplace(root->target.native() + "/", root);
    for (const auto& [beginning, root] : roots) {
        const auto& sources = record_->sources();
        for (auto known = sources.lower_bound(beginning); known != sources.end() && known->first.starts_with(beginning);
             ++known) {
            const ImportedSource& source = *known->second;
            // Where a symbolic link lies by now, it is no file of its own any more.
            if (index_.noteAtPath(source.path) || !isFile(source.path))
                continue;
            othersOfIndex_.push_back(source.note);
            index_.add({source.path, root, {}, {}});
        }
    }
}

std::optional<ImportPlan::FoundNote> ImportPlan::noteOfNumber(NoteIndex::Number number)
{
    if (number < files_.size())
        return FoundNote{files_[number].title, files_[number].identifier};
    const std::string& identifier = othersOfIndex_[number - files_.size()];
    const OVNote* note = session_ ? noteWithIdentifier(identifier, *session_) : nullptr;
    if (!note || note->isTrashed())
        return std::nullopt;
    return FoundNote{note->title().value_or(""), identifier};
}

/// A folder below one that was imported before is part of that.
std::shared_ptr<const ImportRoot> ImportPlan::wholeRoot(const std::shared_ptr<const ImportRoot>& given)
{
    const auto [known, isNew] = roots_.try_emplace(given.get(), given);
    const std::string above = isNew && record_ ? record_->rootAbove(given->target) : std::string();
    const bool isHigher = above != given->target;
    if (!above.empty() && (isHigher || !given->isWalked))
        known->second = std::make_shared<const ImportRoot>(
            ImportRoot{.path = above, .target = above, .isWalked = given->isWalked && !isHigher, .isRecorded = true});
    return known->second;
}

void ImportPlan::look(const MarkdownFile& file)
{
    const TextFile found = readTextFile(file.path);
    SourceText source = sourceTextOfFile(found.text);
    PlannedFile planned{.file = {file.path, wholeRoot(file.root)},
        .path = pathWithoutSymbolicLinks(file.path).native(),
        .bytes = hashOfBytes(found.text),
        .facts = titleFactsOf(source, fs::absolute(file.path).lexically_normal(), rules_.titles)};
    if (source.exported) {
        planned.identifier = source.exported->identifier;
        planned.exported = source.creationDate.value_or(NSDate());
        ++conflicts_[groupOfConflict(source.exported->conflict)];
    }
    if (!rules_.keepsLinks && source.body.find("[[") != std::string::npos) {
        const CVKAST document = CVKAST::fromMarkdown(source.body);
        for (const CVKWikiLink& link : document.textSummary().wikiLinks)
            linkedNames_.add(link.decodedTitle());
    }
    if (!source.aliases.empty())
        aliases_[planned.path] = std::move(source.aliases);
    files_.push_back(std::move(planned));
}

/// What was exported comes in the order in which it was made: of notes of one title the first gets the links.
void ImportPlan::putInOrder()
{
    std::ranges::stable_sort(files_, [](const PlannedFile& one, const PlannedFile& other) {
        if (one.exported && other.exported)
            return std::pair(*one.exported, one.identifier) < std::pair(*other.exported, other.identifier);
        return one.exported.has_value() && !other.exported;
    });
}

std::string ImportPlan::headingKey(const PlannedFile& planned) const
{
    return fs::path(planned.path).parent_path().native() + '\0' + fold(planned.facts.headingTitle);
}

void ImportPlan::countHeadings()
{
    for (const PlannedFile& planned : files_) {
        if (planned.facts.headingLevel > 0)
            ++headings_[headingKey(planned)];
    }
}

void ImportPlan::recognise()
{
    if (!record_)
        return;
    for (PlannedFile& planned : files_) {
        if (const ImportedSource* known = record_->sourceAtPath(planned.path))
            planned.known = std::make_unique<const ImportedSource>(*known);
    }
    std::unordered_map<std::string_view, const ImportedSource*> goneByBytes; // each looked at once
    for (PlannedFile& planned : files_) {
        if (planned.known)
            continue;
        const auto [gone, isNew] = goneByBytes.try_emplace(planned.bytes);
        if (isNew)
            gone->second = onlyGoneFileOf(planned.bytes);
        if (!gone->second || !movedFrom_.insert(gone->second->path).second)
            continue;
        planned.known = std::make_unique<const ImportedSource>(*gone->second);
        planned.hasMoved = true;
    }
}

/// A file of the same bytes as one that is not there any more is that one, where it can be no other.
const ImportedSource* ImportPlan::onlyGoneFileOf(const std::string& bytes) const
{
    const ImportedSource* only = nullptr;
    for (const ImportedSource* source : record_->sourcesOfBytes(bytes)) {
        if (isThere(source->path))
            continue;
        if (only)
            return nullptr;
        only = source;
    }
    return only;
}

void ImportPlan::decideTitles()
{
    for (PlannedFile& planned : files_) {
        const bool isCommon = planned.facts.headingLevel > 0 && headings_.at(headingKey(planned)) >= kCommonHeading;
        const auto known = planned.known ? std::optional(planned.known->titleRule) : std::nullopt;
        // What was exported says its title itself.
        planned.titleRule
            = planned.exported ? TitleRule::Text : titleRuleFor(planned.facts, rules_.titles, known, isCommon);
        planned.title = titleByRule(planned.facts, planned.titleRule);
        if (planned.known && !planned.known->titleSuffix.empty()) {
            planned.titleSuffix = planned.known->titleSuffix;
            planned.title += " (" + planned.titleSuffix + ")";
        }
    }
}

/// Each title gets the shortest end of the path, from the folder that was named, that no other file of the title has.
void ImportPlan::tellTitlesApart()
{
    std::unordered_map<std::string, std::vector<PlannedFile*>> sharing;
    for (PlannedFile& planned : files_) {
        if (!planned.title.empty())
            sharing[fold(planned.title)].push_back(&planned);
    }
    for (const auto& [title, files] : sharing) {
        if (files.size() > 1)
            tellApart(files);
    }
}

void ImportPlan::tellApart(const std::vector<PlannedFile*>& files)
{
    std::vector<fs::path> paths;
    for (const PlannedFile* planned : files)
        paths.push_back(fs::path(planned->path).lexically_relative(planned->file.root->target));
    const std::vector<std::string> suffixes = suffixesTellingApart(paths);
    for (std::size_t i = 0; i < files.size(); ++i) {
        PlannedFile& planned = *files[i];
        if (planned.titleRule == TitleRule::Text || !planned.titleSuffix.empty())
            continue; // it gets no heading, or has its title from before
        planned.titleSuffix = suffixes[i];
        planned.title += " (" + suffixes[i] + ")";
    }
}

void ImportPlan::giveIdentifiers()
{
    for (PlannedFile& planned : files_) {
        if (planned.known)
            identifiers_.insert(planned.known->note);
    }
    for (PlannedFile& planned : files_) {
        std::string told = std::exchange(planned.identifier, {});
        if (planned.known) {
            planned.identifier = planned.known->note;
            continue;
        }
        const std::string reserved = record_ ? record_->reservedIdentifier(planned.path) : "";
        if (!reserved.empty())
            planned.identifier = reserved;
        else
            planned.identifier = told.empty() || identifiers_.contains(told) ? newUUIDString() : told;
        if (!told.empty() && planned.identifier != told)
            planned.takenIdentifier = std::move(told);
        identifiers_.insert(planned.identifier);
    }
}

std::size_t ImportPlan::versionsInConflict(std::string_view group) const
{
    const auto versions = conflicts_.find(groupOfConflict(group));
    return versions == conflicts_.end() ? 0 : versions->second;
}

void ImportPlan::askStore()
{
    std::unordered_map<std::string, StoredNote> stored;
    std::vector<std::string> known;
    std::unordered_map<std::string, const PlannedFile*> files;
    for (const PlannedFile& planned : files_) {
        if (planned.known && files.try_emplace(planned.identifier, &planned).second)
            known.push_back(planned.identifier);
    }
    for (std::size_t from = 0; session_ && session_->exists() && from < known.size(); from += kNotesAtOnce) {
        const std::size_t end = std::min(from + kNotesAtOnce, known.size());
        const std::vector<std::string> some(
            known.begin() + static_cast<std::ptrdiff_t>(from), known.begin() + static_cast<std::ptrdiff_t>(end));
        for (const OVNote* note : OVNote::notesWithUUIDs(some, {}, session_->context())) {
            const std::string identifier = note->uniqueIdentifier().value_or("");
            stored[identifier] = storedNote(*note, *files.at(identifier));
        }
    }
    std::vector<std::string> titles(linkedNames_.all().begin(), linkedNames_.all().end());
    for (PlannedFile& planned : files_) {
        const auto note = stored.find(planned.identifier);
        const bool isTrashed = note != stored.end() && note->second.isTrashed;
        if (!isTrashed && note != stored.end() && note->second.getsCopy)
            addTitle(planned.title, "a copy of " + planned.identifier, titles);
        if (note != stored.end() && note->second.keepsTitle)
            planned.title = note->second.title;
        if (planned.exported)
            ++exportedTitles_[fold(planned.title)];
        if (isTrashed)
            continue; // nobody links what is in the trash
        addTitle(planned.title, planned.identifier, titles);
    }
    storeTitles_.lookUp(titles);
}

/// A note that is left alone keeps its title. So does one that somebody edited, and that of the file goes to its
/// conflicted copy.
ImportPlan::StoredNote ImportPlan::storedNote(const OVNote& note, const PlannedFile& planned)
{
    const bool isUnchanged = planned.known->file == planned.bytes;
    // What is in the trash keeps it, too, but nobody is to link it by that.
    const bool isLeftAlone = !note.isTrashed() && !obstacleOf(&note).empty();
    const bool isEdited = !isUnchanged && !isLeftAlone
        && !isAsImported(note, planned.known->text, [this](const std::string& title, const std::string& target) {
               return storeTitles_.onlyNoteOf(title) == target;
           });
    return {.title = note.title().value_or(""),
        .isTrashed = note.isTrashed(),
        .keepsTitle = isUnchanged || isEdited || isLeftAlone,
        .getsCopy = isEdited};
}

void ImportPlan::addTitle(const std::string& title, const std::string& note, std::vector<std::string>& titles)
{
    const auto [known, isNew] = plannedTitles_.try_emplace(fold(title), PlannedTitle{note});
    known->second.isShared = known->second.isShared || !isNew;
    titles.push_back(title);
}

std::optional<std::string> ImportPlan::onlyNoteOf(const std::string& title)
{
    std::optional<std::string> only;
    if (const auto planned = plannedTitles_.find(fold(title)); planned != plannedTitles_.end()) {
        if (planned->second.isShared)
            return std::nullopt;
        only = planned->second.note;
    }
    for (const std::string& note : storeTitles_.notesOf(title)) {
        if (identifiers_.contains(note))
            continue;
        if (only)
            return std::nullopt;
        only = note;
    }
    return only;
}

bool ImportPlan::isOnlyExportedTitle(const std::string& title) const
{
    const auto known = exportedTitles_.find(fold(title));
    return known != exportedTitles_.end() && known->second == 1;
}

bool ImportPlan::hasTitle(const std::string& title)
{
    const auto isElsewhere = [this](const std::string& note) { return !identifiers_.contains(note); };
    return plannedTitles_.contains(fold(title)) || std::ranges::any_of(storeTitles_.notesOf(title), isElsewhere);
}

bool ImportPlan::isFileOfNote(const std::string& path) const
{
    return index_.noteAtPath(path) || unreadable_.contains(path);
}

std::vector<const ImportedSource*> ImportPlan::goneBelow(const std::vector<fs::path>& roots) const
{
    std::vector<const ImportedSource*> gone;
    if (!record_)
        return gone;
    for (const auto& [path, source] : record_->sources()) {
        const fs::path place(path);
        const bool isBelow = std::ranges::any_of(roots, [&place](const fs::path& root) {
            const fs::path relative = place.lexically_relative(root);
            return !relative.empty() && *relative.begin() != "..";
        });
        if (isBelow && !index_.noteAtPath(source->path) && !movedFrom_.contains(source->path) && !isThere(place))
            gone.push_back(source.get());
    }
    return gone;
}

} // namespace tarn
