#include "tools/tarn/import/TextComposer.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/files/TextFile.h"
#include "tools/tarn/import/reading/ExportedFiles.h"

#include <array>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// The day that a name begins with: "2024-05-01 Lunch".
std::optional<NSDate> dayOfName(const fs::path& path)
{
    constexpr std::size_t kDayLength = 10;
    const std::string name = path.stem().native();
    if (name.size() < kDayLength || (name.size() > kDayLength && name[kDayLength] >= '0' && name[kDayLength] <= '9'))
        return std::nullopt;
    return dateFromISO8601String(name.substr(0, kDayLength));
}

/// Most texts are spared further parses.
bool mayHaveLinks(const std::string& text)
{
    return text.find("](") != std::string::npos || text.find("]:") != std::string::npos
        || text.find("[[") != std::string::npos;
}

/// What the text tells wins; a note is never modified before it was made.
void setDates(ComposedNote& note, const TextFile& file, const SourceText& source, const fs::path& path)
{
    const std::optional<NSDate> told = source.creationDate ? source.creationDate : dayOfName(path);
    note.creationDate = told.value_or(file.creationDate);
    note.modificationDate = source.modificationDate.value_or(file.modificationDate);
    if (note.modificationDate >= note.creationDate || source.exported)
        return;
    if (!source.modificationDate)
        note.modificationDate = note.creationDate;
    else if (!told)
        note.creationDate = note.modificationDate;
}

} // namespace

/// What links of one text mean.
class TextComposer::Links : public LinkMeanings {
public:
    Links(TextComposer& composer, std::size_t number) : composer_(composer), number_(number) { }

    LinkMeaning ofDestination(const std::string& destination) override;
    LinkMeaning ofName(const std::string& name) override;
    bool leadsSomewhere(const std::string& title) override
    {
        // What begins with a number sign would be taken for a heading; in what was exported it is a title.
        return composer_.plan_.hasTitle(title) || (composer_.linksAreExported_ && title.starts_with('#'));
    }

private:
    LinkedNote noteOf(NoteIndex::Number number) const;
    LinkMeaning fileNamed(const std::string& name) const;

    TextComposer& composer_;
    std::size_t number_;
};

LinkedNote TextComposer::Links::noteOf(NoteIndex::Number number) const
{
    const PlannedFile& planned = composer_.plan_.files()[number];
    return {.title = planned.title,
        .identifier = planned.identifier,
        .isKnownByTitle = !planned.title.empty() && composer_.plan_.onlyNoteOf(planned.title) == planned.identifier};
}

LinkMeaning TextComposer::Links::ofDestination(const std::string& destination)
{
    using Kind = LinkedFile::Kind;
    // Other paths stood in the text before the export, which made them lead somewhere by chance.
    if (composer_.linksAreExported_ && !destination.starts_with(kLinkedFileBeginning))
        return {};
    const LinkedFile file = composer_.fileForLink(number_, destination);
    if (file.kind == Kind::ImportedNote) {
        if (const auto number = composer_.plan_.index().noteAtPath(file.target.native())) {
            LinkMeaning meaning{.kind = LinkMeaning::Kind::Note, .note = noteOf(*number), .anchor = file.anchor};
            // An export writes an empty anchor where the link led by identifier; all others led by title.
            if (composer_.linksAreExported_)
                meaning.note.isKnownByTitle = !destination.ends_with('#')
                    && (meaning.note.isKnownByTitle || composer_.plan_.isOnlyExportedTitle(meaning.note.title));
            return meaning;
        }
    }
    if (file.kind == Kind::NoPath)
        return {};
    if (file.kind == Kind::Outside)
        return {.kind = LinkMeaning::Kind::Outside};
    return {.kind = file.kind == Kind::Found ? LinkMeaning::Kind::File : LinkMeaning::Kind::Missing};
}

/// The whole name first: a number sign is a character like any other.
LinkMeaning TextComposer::Links::ofName(const std::string& name)
{
    if (composer_.linksAreExported_)
        return {}; // it leads by title already
    const NoteIndex& index = composer_.plan_.index();
    for (const std::size_t hash : {std::string::npos, name.find('#')}) {
        const std::string part = name.substr(0, hash);
        const auto match = index.noteNamed(part, index.note(number_));
        if (!match)
            continue;
        return {.kind = LinkMeaning::Kind::Note,
            .note = noteOf(match->note),
            .name = part,
            .anchor = hash == std::string::npos ? std::string() : name.substr(hash + 1),
            .isOneOfSeveral = match->isOneOfSeveral};
    }
    return fileNamed(name);
}

LinkMeaning TextComposer::Links::fileNamed(const std::string& name) const
{
    const NoteIndex& index = composer_.plan_.index();
    const LinkableNote& here = index.note(number_);
    for (const std::size_t hash : {std::string::npos, name.find('#')}) {
        const std::string part = name.substr(0, hash);
        const auto match = composer_.otherFiles_.noteNamed(part, here);
        if (!match)
            continue;
        const fs::path path = composer_.otherFiles_.note(match->note).path;
        return {.kind = LinkMeaning::Kind::File,
            .name = part,
            .path = path.lexically_relative(fs::path(here.path).parent_path()).native(),
            .isOneOfSeveral = match->isOneOfSeveral};
    }
    return {};
}

TextComposer::TextComposer(
    ImportPlan& plan, const ImportRules& rules, std::vector<std::string> tags, const MarkdownFiles& found)
    : plan_(plan), rules_(rules), tags_(std::move(tags)),
      linkedFiles_([&plan](const std::string& path) { return plan.isFileOfNote(path); }),
      otherFiles_(plan.linkedNames())
{
    for (const MarkdownFile& file : found.others) {
        const fs::path path = pathWithoutSymbolicLinks(file.path);
        std::error_code failure;
        if (*path.lexically_relative(file.root->target).begin() != ".." && fs::is_regular_file(path, failure))
            otherFiles_.add({.path = path.native(), .root = file.root, .title = {}, .aliases = {}});
    }
}

LinkedFile TextComposer::fileForLink(std::size_t number, const std::string& destination)
{
    const PlannedFile& planned = plan_.files()[number];
    return linkedFiles_.fileForLink(destination, {.path = planned.path, .root = planned.file.root});
}

ComposedNote TextComposer::compose(std::size_t number)
{
    const PlannedFile& planned = plan_.files()[number];
    const TextFile file = readTextFile(planned.file.path);
    const SourceText source = sourceTextOfFile(file.text);
    ComposedNote note{.bytes = hashOfBytes(file.text),
        .text = textOfNote(source, planned.facts, planned.titleRule, planned.titleSuffix),
        .creationDate = {},
        .modificationDate = {},
        .isPinned = source.isPinned,
        .isArchived = source.isArchived,
        .exported = source.exported,
        .links = {},
        .files = {}};
    setDates(note, file, source, planned.path);
    linksAreExported_ = source.exported && source.exported->linksToFiles;
    const bool hasOwnLinks = source.exported && !source.exported->linksToFiles;
    if (mayHaveLinks(note.text)) {
        Links meanings(*this, number);
        const bool keeps = rules_.keepsLinks || hasOwnLinks;
        RewrittenText rewritten
            = keeps ? textWithLinksKept(note.text, meanings) : textWithLinksToNotes(note.text, meanings);
        note.text = std::move(rewritten.text);
        note.links = std::move(rewritten.links);
        note.files = filesToAttach(number, note.text);
        if (source.exported)
            std::erase_if(note.files, [](const auto& entry) { return placeOfAttachment(entry.first).empty(); });
    }
    note.text = textWithTags(std::move(note.text), tagsOf(planned));
    if (note.text.size() > OVNote::maximumTextLength)
        throw tooLongForANote();
    return note;
}

std::map<std::string, LinkedFile> TextComposer::filesToAttach(std::size_t number, const std::string& text)
{
    std::map<std::string, LinkedFile> files;
    const CVKAST document = CVKAST::fromMarkdown(text);
    for (const std::string& destination : document.textSummary().links) {
        if (files.contains(destination))
            continue;
        LinkedFile linked = fileForLink(number, destination);
        if (linked.kind == LinkedFile::Kind::Found)
            files.emplace(destination, std::move(linked));
    }
    return files;
}

std::vector<std::string> TextComposer::tagsOf(const PlannedFile& planned) const
{
    std::vector<std::string> tags = tags_;
    if (!rules_.makesTagsOfFolders)
        return tags;
    const fs::path folder = fs::path(planned.path).parent_path().lexically_relative(planned.file.root->target);
    const std::string name
        = folder == "." ? std::string() : CVKHashtag::sanitizeTagName(canonicallyComposed(validUTF8(folder.native())));
    if (!name.empty())
        tags.push_back(name);
    return tags;
}

} // namespace tarn
