#include "tools/tarn/export/ExportedText.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKLink.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/files/AttachmentLinks.h"
#include "tools/tarn/import/links/LinkComparison.h"
#include "tools/tarn/import/links/LinkText.h"
#include "tools/tarn/import/reading/ExportedFiles.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

namespace {

constexpr std::string_view kNoteURL = "tarn://x-callback-url/open-note?id=";

/// A value that reads back from a line of YAML.
std::string yamlText(const std::string& text)
{
    const bool isPlain = !text.empty() && std::ranges::all_of(text, [](char byte) {
        return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z')
            || byte == '-' || byte == '/' || byte == '.';
    });
    return isPlain ? text : JSON(text).dump(-1, ' ', true, JSON::error_handler_t::replace);
}

std::string frontMatterOfNote(const OVNote& note, bool linksToFiles)
{
    std::string lines = "---\n" + std::string(kIdentifierLine) + yamlText(note.uniqueIdentifier().value_or("")) + "\n";
    if (const auto created = note.creationDate())
        lines += "created: " + iso8601String(*created) + "\n";
    if (const auto modified = note.modificationDate())
        lines += "modified: " + iso8601String(*modified) + "\n";
    for (const auto& [name, isTrue] : {std::pair("pinned", note.isPinned()), std::pair("archived", note.isArchived()),
             std::pair("trashed", note.isTrashed()), std::pair("readonly", note.isReadOnly())})
        lines += isTrue ? std::string(name) + ": true\n" : "";
    if (const auto conflict = note.conflictUniqueIdentifier())
        lines += "conflict: " + yamlText(*conflict) + "\n";
    return lines + (linksToFiles ? "tarn-links: files\n---\n" : "---\n");
}

/// Whether a link names the attachment: as the note compares names, which a name with a stray "%" is equal to none of.
bool namesFile(const std::string& destination, const OVNoteFile& file)
{
    return file.filenameIsEqualTo(destination)
        || stringByRemovingPercentEncoding(destination).value_or(destination) == file.filename();
}

} // namespace

/// The links of one text, as its file is to have them.
class ExportedText::Links {
public:
    Links(const ExportPlan& plan, const PlannedNote& planned, const OVNote& note, const std::string& text)
        : plan_(plan), planned_(planned), note_(note), document_(CVKAST::fromMarkdown(text)), links_(document_.links())
    { }

    void leadToAttachments(const std::map<const OVNoteFile*, std::string>& places);
    void leadToNotes();
    std::string result();

private:
    void leadToNote(const CVKLink& link);
    void leadToNoteOfURL(const CVKLink& link);
    std::optional<std::string> pathTo(const std::string& identifier) const;
    void edit(CVKRange range, std::string replacement);

    const ExportPlan& plan_;
    const PlannedNote& planned_;
    const OVNote& note_;
    CVKAST document_;
    std::vector<CVKLink> links_;
    std::map<std::string, const OVNote*> targets_; ///< of wiki links, by what they say
    std::vector<CVKTextEdit> edits_;
    std::set<std::size_t> edited_; ///< where they begin: a definition gives many links their destination
};

void ExportedText::Links::edit(CVKRange range, std::string replacement)
{
    if (edited_.insert(range.location).second)
        edits_.push_back({range, std::move(replacement)});
}

void ExportedText::Links::leadToAttachments(const std::map<const OVNoteFile*, std::string>& places)
{
    const std::vector<OVNoteFile*> files = note_.orderedFiles();
    for (const CVKLink& link : links_) {
        if (link.form == CVKLinkForm::Wiki || link.form == CVKLinkForm::Autolink)
            continue;
        const auto file = std::ranges::find_if(files, [&](const OVNoteFile* candidate) {
            return places.contains(candidate) && namesFile(link.decodedDestination, *candidate);
        });
        if (file != files.end())
            edit({link.destination.location, 0}, places.at(*file));
    }
}

void ExportedText::Links::leadToNotes()
{
    for (const OVNoteBackLink* link : note_.linkingToSet().allObjects()) {
        if (const OVNote* target = link->linkingTo())
            targets_.emplace(link->title().value_or(""), target);
    }
    for (const CVKLink& link : links_) {
        if (link.form == CVKLinkForm::Wiki)
            leadToNote(link);
        else if (link.form != CVKLinkForm::Autolink && link.decodedDestination.starts_with(kNoteURL))
            leadToNoteOfURL(link);
    }
}

/// Only where an import can say by the title which note is meant.
void ExportedText::Links::leadToNote(const CVKLink& link)
{
    const auto target = targets_.find(link.decodedDestination);
    if (target == targets_.end())
        return;
    const std::string title = target->second->title().value_or("");
    const auto path = pathTo(target->second->uniqueIdentifier().value_or(""));
    const std::string_view alias = std::string_view(document_.markdown()).substr(link.text.location, link.text.length);
    const std::string text = link.hasText ? std::string(alias) : escapedLinkText(link.decodedDestination);
    const bool canReturn = !title.empty() && plan_.isOnlyOneCalled(title) && !text.empty()
        && text.find_first_of("[]|") == std::string::npos && (!link.isInTableRow || text == title);
    if (path && canReturn)
        edit(link.range, (link.isEmbed ? "![" : "[") + text + "](" + *path + ")");
}

/// The number sign tells that no title is to stand for it.
void ExportedText::Links::leadToNoteOfURL(const CVKLink& link)
{
    const auto identifier = stringByRemovingPercentEncoding(link.decodedDestination.substr(kNoteURL.size()));
    if (const auto path = identifier ? pathTo(*identifier) : std::nullopt)
        edit(link.destination, *path + "#");
}

std::optional<std::string> ExportedText::Links::pathTo(const std::string& identifier) const
{
    const PlannedNote* target = plan_.note(identifier);
    if (!target || target->isLocked)
        return std::nullopt;
    const std::filesystem::path path = target->path.lexically_relative(planned_.path.parent_path());
    return std::string(kLinkedFileBeginning) + linkDestinationForFilename(path.native());
}

std::string ExportedText::Links::result()
{
    std::ranges::sort(edits_, {}, [](const CVKTextEdit& edit) { return edit.range.location; });
    const auto saysTheSameAsBefore = [this](const CVKAST& after, const std::vector<bool>&) {
        return saysTheSame(document_, after) && after.links().size() == links_.size();
    };
    return edits_.empty() ? document_.markdown()
                          : document_.applyEdits(edits_, saysTheSameAsBefore).document.markdown();
}

std::string ExportedText::ofNote(const OVNote& note, const std::string& text, const PlannedNote& planned,
    const std::map<const OVNoteFile*, std::string>& places) const
{
    const std::string frontMatter = frontMatterOfNote(note, linksToFiles_);
    if (places.empty() && !linksToFiles_)
        return frontMatter + text;
    Links links(plan_, planned, note, text);
    links.leadToAttachments(places);
    if (linksToFiles_)
        links.leadToNotes();
    return frontMatter + links.result();
}

} // namespace tarn
