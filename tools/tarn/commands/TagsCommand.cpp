#include "tarnmodel/tags/TagOrder.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/session/StoreSession.h"

#include <algorithm>
#include <memory>

namespace tarn {

namespace {

struct TagLine {
    OVNoteTag* tag;
    std::size_t count; ///< of notes that are neither trashed nor archived
    std::vector<std::string> components;
};

std::vector<TagLine> tagLines(StoreSession& session, bool all)
{
    std::vector<TagLine> lines;
    for (OVNoteTag* tag : tagsInTreeOrder(session.tags(std::nullopt))) {
        const std::size_t count = session.countNotes(tag->untrashedNotesPredicate());
        if (all || count > 0)
            lines.push_back({tag, count, tag->tagComponents()});
    }
    return lines;
}

JSON jsonOf(const std::vector<TagLine>& lines)
{
    JSON tags = JSON::array();
    for (const TagLine& line : lines) {
        JSON tag;
        tag["title"] = line.tag->title().value_or("");
        tag["isRoot"] = line.tag->isRootValue();
        tag["pinned"] = line.tag->pinnedValue();
        tag["count"] = line.count;
        tags.push_back(std::move(tag));
    }
    return {{"tags", std::move(tags)}};
}

void writeTree(Output& output, const std::vector<TagLine>& lines)
{
    const TagLine* previous = nullptr;
    for (const TagLine& line : lines) {
        // Usually the line above is the tag that this one belongs to, and the last component is enough.
        const std::size_t depth = line.components.empty() ? 0 : line.components.size() - 1;
        const bool parentIsShown = depth == 0
            || (previous && previous->components.size() >= depth
                && std::equal(line.components.begin(), line.components.end() - 1, previous->components.begin()));
        const std::string name
            = parentIsShown && !line.components.empty() ? line.components.back() : line.tag->displayTitle();
        std::string text(2 * depth, ' ');
        text += output.styled(displayText(name), TextStyle::Strong);
        text += output.styled("  " + std::to_string(line.count), TextStyle::Faint);
        if (line.tag->pinnedValue())
            text += "  *";
        output.writeLine(text);
        previous = &line;
    }
}

ExitCode showTags(const Invocation& invocation, bool all)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const std::vector<TagLine> lines = tagLines(session, all);
    if (invocation.json)
        writeJSON(invocation.output, jsonOf(lines));
    else
        writeTree(invocation.output, lines);
    return session.exitCodeOfSearch(!lines.empty(),
        all ? "there are no tags; a #hashtag in a note makes one" : "no active note has a tag; --all shows every tag");
}

} // namespace

void addTagsCommand(CommandLine& commandLine)
{
    const auto all = std::make_shared<bool>(false);
    const Command command = commandLine.addCommand(
        {.name = "tags",
            .summary = "Show the tree of tags with the number of active notes of each",
            .explanation = "A note of a nested tag counts for the tags above it as well. * marks a pinned tag.",
            .examples = {"tarn tags", "tarn --json tags --all"}},
        [all](const Invocation& invocation) { return showTags(invocation, *all); });
    command.addFlag("--all", *all, "Also tags without active notes");
}

} // namespace tarn
