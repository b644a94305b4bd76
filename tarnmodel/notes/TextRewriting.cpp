#include "tarnmodel/notes/TextRewriting.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <map>
#include <set>

namespace tarn {

namespace {

/// Each try parses the text; who renames changes a handful of names.
constexpr std::size_t kMostTags = 16;

using TagNames = std::map<std::string, std::string>; ///< by key

TagNames tagsOf(std::string_view text)
{
    TagNames names;
    const CVKAST document = CVKAST::fromMarkdown(text);
    for (const std::string& tag : document.textSummary().tags)
        names.emplace(CVKHashtag::normalizeTagName(tag), tag);
    return names;
}

/// Names of `names` that `others` lacks.
std::vector<std::string> missingIn(const TagNames& others, const TagNames& names)
{
    std::vector<std::string> missing;
    for (const auto& [key, name] : names)
        if (!others.contains(key))
            missing.push_back(name);
    return missing;
}

} // namespace

std::optional<TextRewriting> TextRewriting::between(std::string_view former, std::string_view rewritten)
{
    TextRewriting rewriting;
    if (!rewriting.takeLinks(former, rewritten))
        return std::nullopt;
    for (const bool skipsTitleLine : {false, true}) {
        rewriting.skipsTitleLine_ = skipsTitleLine;
        if (rewriting.makes(former, rewritten) || rewriting.takeTags(former, rewritten))
            return rewriting;
        if (rewriting.renamedTitles_.empty())
            break;
    }
    return std::nullopt;
}

/// A rename leaves every link where it was in their row.
bool TextRewriting::takeLinks(std::string_view former, std::string_view rewritten)
{
    const auto before = CVKAST::fromMarkdown(former).textSummary().wikiLinks;
    const auto after = CVKAST::fromMarkdown(rewritten).textSummary().wikiLinks;
    if (before.size() != after.size())
        return false;
    std::set<std::string> known;
    for (std::size_t index = 0; index < before.size(); ++index) {
        const std::string& title = before[index].decodedTitle();
        const std::string& newTitle = after[index].decodedTitle();
        if (title != newTitle && known.insert(fold(title)).second)
            renamedTitles_.emplace_back(title, newTitle);
    }
    return true;
}

bool TextRewriting::takeTags(std::string_view former, std::string_view rewritten)
{
    const TagNames before = tagsOf(former);
    const TagNames after = tagsOf(rewritten);
    const std::vector<std::string> gone = missingIn(after, before);
    const std::vector<std::string> added = missingIn(before, after);
    if (gone.size() > kMostTags || added.size() > kMostTags || after.size() > kMostTags * 4)
        return false;
    const auto fits = [&](TagChange change, const std::string& tag, const std::string& newTag) {
        tagChange_ = change;
        tag_ = tag;
        newTag_ = newTag;
        return makes(former, rewritten);
    };
    for (const std::string& tag : gone) {
        if (fits(TagChange::Removed, tag, {}))
            return true;
        for (const auto& [key, newTag] : after)
            if (fits(TagChange::Renamed, tag, newTag))
                return true;
    }
    // The same tag in another spelling.
    for (const auto& [key, newTag] : after)
        if (const auto tag = before.find(key);
            tag != before.end() && tag->second != newTag && fits(TagChange::Renamed, tag->second, newTag))
            return true;
    for (const std::string& tag : added)
        if (fits(TagChange::AddedOnTop, tag, {}) || fits(TagChange::AddedAtBottom, tag, {}))
            return true;
    tagChange_ = TagChange::None;
    return false;
}

bool TextRewriting::makes(std::string_view former, std::string_view rewritten) const
{
    return appliedTo(std::string(former)) == rewritten;
}

std::string TextRewriting::appliedTo(std::string text) const
{
    for (const auto& [title, newTitle] : renamedTitles_)
        text = CVKWikiLink::updateWikiLinkWithTitle(title, newTitle, skipsTitleLine_, text).markdown();
    return withTag(std::move(text));
}

std::string TextRewriting::withTag(std::string text) const
{
    const auto hasTag = [&] { return tagsOf(text).contains(CVKHashtag::normalizeTagName(tag_)); };
    switch (tagChange_) {
    case TagChange::None:
        break;
    case TagChange::Renamed:
        return CVKHashtag::renameTagName(tag_, newTag_, text).markdown();
    case TagChange::Removed:
        return CVKHashtag::removeTagName(tag_, text).markdown();
    case TagChange::AddedOnTop:
        if (!hasTag())
            return CVKHashtag::addTagNameToTheTopOfString(tag_, text).markdown();
        break;
    case TagChange::AddedAtBottom:
        if (!hasTag())
            return CVKHashtag::addTagNameToTheBottomOfString(tag_, text).markdown();
        break;
    }
    return text;
}

} // namespace tarn
