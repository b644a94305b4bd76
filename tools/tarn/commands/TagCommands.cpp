#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/tags/TagPredicates.h"
#include "tools/tarn/arguments/NotesOrQuery.h"
#include "tools/tarn/arguments/TagArgument.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/Confirmation.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/editor/EditableNote.h"
#include "tools/tarn/listing/NoteList.h"

#include <array>
#include <memory>

namespace tarn {

namespace {

struct TagArguments {
    std::optional<std::string> name;
    std::optional<std::string> newName;
    NotesOrQuery notes;
    bool top = false;
    bool confirmed = false;
};

/// What a command did: the title of the tag now, how many notes were rewritten, and what else there is to say.
void report(const Invocation& invocation, const std::string& tag, std::size_t notes, const std::string& more = {})
{
    if (invocation.json)
        writeJSON(invocation.output, {{"tag", tag}, {"notes", notes}});
    else
        invocation.output.writeLine(
            invocation.output.styled(displayText(tag), TextStyle::Strong) + "  " + numbered(notes, "note") + more);
}

/// A search found no notes, or nobody wants them changed.
ExitCode reportNothing(const Invocation& invocation, const std::string& tag)
{
    if (invocation.json)
        report(invocation, tag, 0);
    return ExitCode::Failed;
}

/// Adds the tag to those of the notes that do not carry it; how many took it.
std::size_t addTagTo(OVNoteTag& tag, std::vector<OVNote*>& notes, bool top)
{
    std::erase_if(notes, [&tag](const OVNote* note) { return note->tagsSet().containsObject(tag); });
    requireUnlocked(notes);
    tag.addTagToNotes(notes, !top);
    std::size_t added = 0;
    for (const OVNote* note : notes) {
        if (note->tagsSet().containsObject(tag))
            ++added;
        else
            tellOnStandardError("there is no place for the tag in " + nameOfNote(*note));
    }
    return added;
}

ExitCode addTag(const Invocation& invocation, const TagArguments& arguments)
{
    const std::string name = tagNameForArgument(*arguments.name);
    const ChosenNotes chosen = arguments.notes.choose(invocation, "tag add");
    if (chosen.areNone())
        return reportNothing(invocation, name);
    StoreSession session(invocation, StoreSession::Access::Write);
    session.unlock([&] { return chosen.all(session); });
    const OVNoteTag* tag = nullptr;
    std::vector<OVNote*> untagged;
    std::size_t added = 0;
    session.write([&] {
        untagged = chosen.all(session);
        OVNoteTag* found = OVNoteTag::getOrCreateTagWithName(name, session.context());
        if (!found)
            throw CommandFailure(
                ExitCode::Failed, "the tag \"" + name + "\" could not be looked up; nothing was changed");
        added = addTagTo(*found, untagged, arguments.top);
        tag = found;
    });
    report(invocation, tag->title().value_or(""), added);
    return added == untagged.size() ? ExitCode::Done : ExitCode::Failed;
}

ExitCode removeTag(const Invocation& invocation, const TagArguments& arguments)
{
    const std::string name = tagNameForArgument(*arguments.name);
    const ChosenNotes chosen = arguments.notes.choose(invocation, "tag remove");
    if (chosen.areNone())
        return reportNothing(invocation, name);
    StoreSession session(invocation, StoreSession::Access::Write);
    session.unlock([&] { return chosen.all(session); });
    const OVNoteTag* tag = nullptr;
    std::vector<OVNote*> tagged;
    session.write([&] {
        OVNoteTag& found = tagForArgument(name, session);
        tagged = chosen.all(session);
        std::erase_if(tagged, [&found](const OVNote* note) { return !note->tagsSet().containsObject(found); });
        requireUnlocked(tagged);
        found.deleteTagInNotes(tagged);
        tag = &found;
    });
    report(invocation, tag->title().value_or(""), tagged.size());
    return ExitCode::Done;
}

/// Notes whose texts cannot take the new name are told of.
bool allFollowed(const OVNoteTag& old, const OVNoteTag& renamed)
{
    const std::string above = fold(old.title().value_or("")) + "/";
    if (&old == &renamed || fold(renamed.title().value_or("")).starts_with(above) || old.notesSet().empty())
        return true;
    tellOnStandardError(numbered(old.notesSet().count(), "note")
        + " kept the old name of the tag: the new one makes the path of a tag below it too long");
    return false;
}

/// What a tag became, and the number of its notes.
struct Renaming {
    const OVNoteTag* old = nullptr;
    const OVNoteTag* renamed = nullptr;
    std::size_t notes = 0;
};

Renaming renamingOf(OVNoteTag& tag, const std::string& newName)
{
    if (tag.title() == newName)
        throw CommandFailure(ExitCode::Failed, "the tag is called \"" + newName + "\" already");
    const std::vector<OVNote*> notes = tag.notesSet().allObjects();
    requireUnlocked(notes);
    const OVNoteTag* renamed = tag.renameTagWithTagNamed(newName);
    if (!renamed)
        throw CommandFailure(ExitCode::Failed,
            "the tag \"" + tag.title().value_or("") + "\" was not renamed: no text can take the name \"" + newName
                + "\"");
    return {&tag, renamed, notes.size()};
}

ExitCode renameTag(const Invocation& invocation, const TagArguments& arguments)
{
    const std::string newName = tagNameForArgument(*arguments.newName);
    StoreSession session(invocation, StoreSession::Access::Write);
    session.unlock([&] { return tagForArgument(*arguments.name, session).notesSet().allObjects(); });
    Renaming renaming;
    session.write([&] { renaming = renamingOf(tagForArgument(*arguments.name, session), newName); });
    report(invocation, renaming.renamed->title().value_or(""), renaming.notes);
    return allFollowed(*renaming.old, *renaming.renamed) ? ExitCode::Done : ExitCode::Failed;
}

/// How many tags below one have notes; they go with it.
std::size_t countTagsBelow(const OVNoteTag& tag, StoreSession& session)
{
    return session.countOfEntity(
        OVNoteTag::entityInManagedObjectContext(session.context()), predicateForUsedTagsBelow(tag));
}

/// Asks who would take out more than what was named. The store is nobody's while somebody thinks.
bool confirmsDeletionOfTag(const Invocation& invocation, const TagArguments& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const OVNoteTag& tag = tagForArgument(*arguments.name, session);
    const std::vector<OVNote*> notes = tag.notesSet().allObjects();
    session.unlock([&] { return notes; });
    requireUnlocked(notes);
    const std::size_t below = countTagsBelow(tag, session);
    const std::string tagsBelow = numbered(below, "tag") + " below";
    return below == 0
        || confirmedOnTerminal("Take \"" + displayText(tag.title().value_or("")) + "\" and " + tagsBelow + " it out of "
                + numbered(notes.size(), "note") + "?",
            "tag delete asks before it takes out " + tagsBelow + " as well");
}

ExitCode deleteTag(const Invocation& invocation, const TagArguments& arguments)
{
    if (!arguments.confirmed && !confirmsDeletionOfTag(invocation, arguments)) {
        tellOnStandardError("nothing was changed");
        return ExitCode::Failed;
    }
    StoreSession session(invocation, StoreSession::Access::Write);
    session.unlock([&] { return tagForArgument(*arguments.name, session).notesSet().allObjects(); });
    const OVNoteTag* tag = nullptr;
    std::size_t notes = 0;
    std::size_t below = 0;
    session.write([&] {
        OVNoteTag& found = tagForArgument(*arguments.name, session);
        const std::vector<OVNote*> tagged = found.notesSet().allObjects();
        requireUnlocked(tagged);
        below = countTagsBelow(found, session);
        found.deleteTagInNotes(tagged);
        notes = tagged.size();
        tag = &found;
    });
    report(invocation, tag->title().value_or(""), notes, below > 0 ? ", " + numbered(below, "tag") + " below" : "");
    return ExitCode::Done;
}

template <void (OVNoteTag::*Change)()> ExitCode changeTag(const Invocation& invocation, const TagArguments& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    OVNoteTag* tag = nullptr;
    session.write([&] {
        tag = &tagForArgument(*arguments.name, session);
        (tag->*Change)();
    });
    report(invocation, tag->title().value_or(""), 0);
    return ExitCode::Done;
}

ExitCode pruneTags(const Invocation& invocation, const TagArguments&)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    std::vector<std::string> titles;
    session.write([&] {
        for (const OVNoteTag* tag : session.tags(predicateForUnusedTags()))
            titles.push_back(tag->title().value_or(""));
        OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(session.context());
    });
    if (invocation.json)
        writeJSON(invocation.output, {{"tag", nullptr}, {"notes", 0}, {"deleted", titles}});
    else
        invocation.output.writeLine("deleted " + numbered(titles.size(), "tag"));
    return ExitCode::Done;
}

/// Which arguments a command takes, beside the name of a tag.
enum class Takes { Nothing, Name, NameAndNotes, NameAndNewName };

struct TagCommand {
    const char* name;
    const char* summary;
    const char* explanation;
    const char* example;
    Takes takes;
    ExitCode (*run)(const Invocation&, const TagArguments&);
};

constexpr std::array kTagCommands{
    TagCommand{"add", "Add a tag to notes that do not carry it",
        "The hashtag is written at the bottom of the text: behind a last line of tags, else on a line of its own.",
        "tarn tag add home/kitchen 'Recipe for bread' --top", Takes::NameAndNotes, addTag},
    TagCommand{"remove", "Remove a tag, and those below it, from notes", "The hashtags are taken out of the texts.",
        "tarn tag remove home Groceries", Takes::NameAndNotes, removeTag},
    TagCommand{"rename", "Rename a tag, and those below it, in all notes",
        "Where the new name exists already, the two tags become one.", "tarn tag rename work 'day job'",
        Takes::NameAndNewName, renameTag},
    TagCommand{"delete", "Remove a tag, and those below it, from all notes",
        "The hashtags are taken out of the texts; 'tarn tag prune' forgets the tag. Asks when there are tags below.",
        "tarn tag delete home/kitchen --yes", Takes::Name, deleteTag},
    TagCommand{
        "pin", "Keep a tag on top of the list", "", "tarn tag pin work", Takes::Name, changeTag<&OVNoteTag::pin>},
    TagCommand{
        "unpin", "No longer keep a tag on top", "", "tarn tag unpin work", Takes::Name, changeTag<&OVNoteTag::unpin>},
    TagCommand{"prune", "Forget tags that no note carries", "Trashed and archived notes count.", "tarn tag prune",
        Takes::Nothing, pruneTags},
};

void addArguments(const Command& command, TagArguments& arguments, Takes takes)
{
    if (takes == Takes::Nothing)
        return;
    const bool isRename = takes == Takes::NameAndNewName;
    command.addArgument(isRename ? "OLD" : "NAME", arguments.name, "The path of a tag, as \"work/acme\"").required();
    if (isRename)
        command.addArgument("NEW", arguments.newName, "Its new path").required();
    if (takes == Takes::NameAndNotes)
        arguments.notes.addTo(command, "active");
}

} // namespace

void addTagCommands(CommandLine& commandLine)
{
    const Command group = commandLine.addGroup({.name = "tag",
        .summary = "Add, remove, rename, delete, pin and prune tags",
        .explanation
        = "Tags live in texts: whoever changes a tag rewrites the texts of its notes. A note that is protected "
          "stops the\ncommand before anything has changed.",
        .examples = {"tarn tag rename work 'day job'", "tarn tag add home Groceries", "tarn tag add --help"}});
    for (const TagCommand& tag : kTagCommands) {
        const auto arguments = std::make_shared<TagArguments>();
        const Command command = commandLine.addCommand(group,
            {.name = tag.name, .summary = tag.summary, .explanation = tag.explanation, .examples = {tag.example}},
            [arguments, &tag](const Invocation& invocation) { return tag.run(invocation, *arguments); });
        addArguments(command, *arguments, tag.takes);
        if (tag.run == addTag)
            command.addFlag("--top", arguments->top, "Write the hashtag below the title instead of at the bottom");
        if (tag.run == deleteTag)
            command.addFlag("--yes", arguments->confirmed, "Do not ask");
    }
}

} // namespace tarn
