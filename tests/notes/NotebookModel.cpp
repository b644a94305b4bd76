#include "tests/notes/NotebookModel.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>

namespace tarn::test {

std::string NotebookModel::keyOf(const Note& note)
{
    return fold(note.title.value_or("").empty() ? note.identifier : *note.title);
}

NotebookModel::Note& NotebookModel::add(const std::string& identifier)
{
    notes_.push_back(std::make_unique<Note>());
    notes_.back()->identifier = identifier;
    madeNow(*notes_.back());
    return *notes_.back();
}

void NotebookModel::remove(Note& note)
{
    std::erase_if(links_, [&note](const auto& link) { return link->source == &note; });
    for (const auto& link : links_) {
        if (link->target == &note)
            link->target = nullptr;
    }
    std::erase_if(notes_, [&note](const auto& one) { return one.get() == &note; });
}

void NotebookModel::edit(Note& note, const std::string& text, Cache* cache)
{
    const CVKAST document = CVKAST::fromMarkdown(text);
    const CVKTextSummary& summary = document.textSummary();
    note.text = text;
    const std::optional<std::string> oldTitle = note.title;
    note.title = summary.title;
    setLinks(note, summary.wikiLinks, cache);
    followTitle(note, summary.title, oldTitle);
}

NotebookModel::Note* NotebookModel::known(const std::string& title, const Cache& cache)
{
    const std::string key = fold(title);
    const auto found = cache.find(key);
    return found != cache.end() && keyOf(*found->second) == key ? found->second : nullptr;
}

/// The untrashed note before a trashed one, and among those the one made first.
void NotebookModel::lookUp(const std::vector<CVKWikiLink>& links, Cache& cache) const
{
    std::vector<Note*> found;
    for (const CVKWikiLink& link : links) {
        if (known(link.decodedTitle(), cache))
            continue;
        for (const auto& note : notes_) {
            if (fold(note->title.value_or("")) == fold(link.decodedTitle()) || note->identifier == link.decodedTitle())
                found.push_back(note.get());
        }
    }
    std::ranges::sort(found, {}, [](const Note* note) { return std::pair(note->trashed, note->made); });
    for (auto note = found.rbegin(); note != found.rend(); ++note)
        cache[keyOf(**note)] = *note;
}

void NotebookModel::setLinks(Note& note, const std::vector<CVKWikiLink>& links, Cache* cache)
{
    const auto stays = [&](const Link& link) {
        return link.target && fold(link.title) == fold(link.target->title.value_or(""))
            && std::ranges::any_of(links, [&](const CVKWikiLink& parsed) {
                   return parsed.offset() == link.location && fold(parsed.decodedTitle()) == fold(link.title);
               });
    };
    std::erase_if(links_, [&](const auto& link) { return link->source == &note && !stays(*link); });
    std::vector<CVKWikiLink> missing;
    for (const CVKWikiLink& parsed : links) {
        if (std::ranges::none_of(
                links_, [&](const auto& link) { return link->source == &note && link->location == parsed.offset(); }))
            missing.push_back(parsed);
    }
    Cache own;
    Cache& targets = cache ? *cache : own;
    lookUp(missing, targets);
    for (const CVKWikiLink& parsed : missing) {
        Note* target = known(parsed.decodedTitle(), targets);
        links_.push_back(std::make_unique<Link>(Link{&note, parsed.decodedTitle(), parsed.offset(), target}));
    }
}

bool NotebookModel::canReplace(const Note& note, const std::string& title, Visited& visited) const
{
    if (!visited.insert(&note).second)
        return false;
    const CVKAST line = CVKAST::fromMarkdown(note.text.substr(0, note.text.find('\n')));
    const auto& links = line.textSummary().wikiLinks;
    const bool isInvolved
        = std::ranges::any_of(links, [&](const CVKWikiLink& link) { return fold(link.decodedTitle()) == fold(title); });
    if (!isInvolved)
        return true;
    return std::ranges::all_of(links_, [&](const auto& link) {
        return link->target != &note || canReplace(*link->source, note.title.value_or(""), visited);
    });
}

void NotebookModel::followTitle(Note& note, const std::string& newTitle, std::optional<std::string> oldTitle)
{
    if (oldTitle == newTitle)
        return;
    const std::string linkedNew = newTitle.empty() ? note.identifier : newTitle;
    if (oldTitle) {
        const std::string linkedOld = oldTitle->empty() ? note.identifier : *oldTitle;
        std::vector<Note*> sources;
        for (const auto& link : links_) {
            if (link->target == &note && std::ranges::find(sources, link->source) == sources.end())
                sources.push_back(link->source);
        }
        std::ranges::sort(sources, {}, &Note::made);
        for (Note* source : sources) {
            Visited visited;
            const bool can = canReplace(*source, linkedOld, visited);
            const std::string text
                = CVKWikiLink::updateWikiLinkWithTitle(linkedOld, linkedNew, !can, source->text).markdown();
            const auto isOutdated = [&](const auto& link) {
                return link->source == source && link->target == &note && fold(link->title) != fold(linkedNew);
            };
            if (text != source->text || !can || std::ranges::any_of(links_, isOutdated))
                edit(*source, text);
        }
    }
    for (const auto& link : links_) {
        if ((!link->target || link->target->trashed) && fold(link->title) == fold(linkedNew))
            link->target = &note;
    }
}

std::vector<const NotebookModel::Link*> NotebookModel::linksOf(const Note& note) const
{
    std::vector<const Link*> links;
    for (const auto& link : links_) {
        if (link->source == &note)
            links.push_back(link.get());
    }
    std::ranges::sort(links, {}, &Link::location);
    return links;
}

std::set<std::string> NotebookModel::tagKeysOf(const Note& note)
{
    const CVKAST document = CVKAST::fromMarkdown(note.text);
    std::set<std::string> keys;
    for (const std::string& tag : document.textSummary().tags)
        keys.insert(CVKHashtag::normalizeTagName(tag));
    return keys;
}

std::set<std::string> NotebookModel::tagKeys() const
{
    std::set<std::string> keys;
    for (const auto& note : notes_)
        keys.merge(tagKeysOf(*note));
    return keys;
}

} // namespace tarn::test
