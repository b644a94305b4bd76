#include "tarnmodel/notes/TitleLineGuard.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>

namespace tarn {

namespace {

/// What Markdown takes for the first line, which may be more than the first paragraph: U+2029 ends only that.
std::string firstMarkdownLineOf(const OVNote& note)
{
    std::string text = note.text().value_or("");
    text.resize(std::min(text.size(), text.find_first_of("\r\n")));
    return text;
}

} // namespace

bool titleLineLinksTo(const OVNote& note, std::string_view title)
{
    if (note.encryptedValue())
        return false;
    const std::string line = firstMarkdownLineOf(note);
    if (line.find("[[") == std::string::npos)
        return false;
    const CVKAST document = CVKAST::fromMarkdown(line);
    const std::string key = fold(title);
    const auto& links = document.textSummary().wikiLinks;
    return std::any_of(
        links.begin(), links.end(), [&key](const CVKWikiLink& link) { return fold(link.decodedTitle()) == key; });
}

bool TitleLineGuard::walk(
    OVNote& note, std::string_view title, OVNote::VisitedNotes& visited, std::vector<Passed>* passed)
{
    // A stack of our own: chains of links may be longer than the thread's stack is deep.
    std::vector<Passed> open{{&note, nullptr, std::string(title)}};
    while (!open.empty()) {
        Passed next = std::move(open.back());
        open.pop_back();
        if (!visited.insert(next.note).second)
            return false;
        if (titleLineLinksTo(*next.note, next.title)) {
            const std::string ownTitle = next.note->title().value_or("");
            for (const OVNoteBackLink* link : next.note->linkedBySet().allObjects()) {
                if (const OVNote* source = link->linkedBy())
                    open.push_back({source, next.note, ownTitle});
            }
        }
        if (passed)
            passed->push_back(std::move(next));
    }
    return true;
}

bool TitleLineGuard::walk(OVNote& note, std::string_view title, OVNote::VisitedNotes& visited)
{
    return walk(note, title, visited, nullptr);
}

bool TitleLineGuard::allows(OVNote& note, std::string_view title)
{
    if (const auto known = passed_.find(&note); known != passed_.end() && known->second.title == title)
        return true;
    OVNote::VisitedNotes visited;
    std::vector<Passed> passed;
    if (!walk(note, title, visited, &passed))
        return false;
    remember(std::move(passed));
    return true;
}

void TitleLineGuard::remember(std::vector<Passed> passed)
{
    for (const Passed& one : passed)
        forget(*one.note);
    for (Passed& one : passed)
        passed_.insert_or_assign(one.note, std::move(one));
}

void TitleLineGuard::forget(const OVNote& note)
{
    // What was said of the notes from which a walk came here rested on this one too.
    const OVNote* next = &note;
    for (auto found = passed_.find(next); next && found != passed_.end(); found = passed_.find(next)) {
        next = found->second.cameFrom;
        passed_.erase(found);
    }
}

} // namespace tarn
