#include "tests/search/SearchFixture.h"

#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::string_view kDefaultDate = "2001-02-03T04:05:06Z";

std::optional<std::string> written(const SearchCase& block, std::string_view key)
{
    const auto value = block.value(key);
    return value && *value == "\"\"" ? std::optional(std::string()) : value;
}

NSDate dateOf(const SearchCase& block, std::string_view key)
{
    return dateFromISO8601String(block.value(key).value_or(std::string(kDefaultDate))).value();
}

} // namespace

SearchLibrary::SearchLibrary(StoreType type)
    // Nothing that these files hold has to outlive a loss of power.
    : TestStore(type, {.pragmas = {{"journal_mode", "MEMORY"}, {"synchronous", "OFF"}}})
{
    open();
    const std::vector<SearchCase> blocks = readSearchCases("search-notes.cases");
    EXPECT_GE(blocks.size(), 15U);
    for (const SearchCase& block : blocks)
        addNote(block);
    for (const SearchCase& block : blocks)
        addDetails(*notes_.at(*block.value("note")), block);
    save();
}

// Attributes one by one: what a text would derive is not what is tested here.
void SearchLibrary::addNote(const SearchCase& block)
{
    OVNote& note = *OVNote::insertInManagedObjectContext(context());
    const std::string name = *block.value("note");
    notes_[name] = &note;
    namesByIdentifier_[*note.uniqueIdentifier()] = name;
    note.setTitle(written(block, "title"));
    note.setSubtitle(written(block, "subtitle"));
    note.updatePrimitiveText(written(block, "text"));
    note.setTagsFromStrings(listOf(block.value("tags").value_or("")));
    for (const std::string& key : listOf(block.value("set").value_or("")))
        note.setValueForKey(key, Value(true));
    const std::vector<std::string> todos = listOf(block.value("todos").value_or("0, 0"));
    note.setTodoIncompletedValue(static_cast<std::int16_t>(std::stoi(todos.at(0))));
    note.setTodoCompletedValue(static_cast<std::int16_t>(std::stoi(todos.at(1))));
}

void SearchLibrary::addDetails(OVNote& note, const SearchCase& block)
{
    for (const std::string& target : listOf(block.value("links").value_or(""))) {
        OVNoteBackLink* link = OVNoteBackLink::insertInManagedObjectContext(context());
        link->setLinkedBy(&note);
        link->setLinkingTo(notes_.at(target));
    }
    for (const std::string_view key : {"file", "unused"}) {
        const auto text = block.value(key);
        if (!text)
            continue;
        OVNoteGenericFile& attachment = file(note, std::string(key) + ".pdf");
        attachment.setSearchText(*text);
        attachment.setUnusedValue(key == "unused");
    }
    note.setCreationDate(dateOf(block, "created"));
    note.setModificationDate(dateOf(block, "modified"));
}

std::vector<std::string> SearchLibrary::hits(const std::optional<NSPredicate>& predicate)
{
    std::vector<std::string> names;
    for (const OVNote* note : OVNote::notesInManagedObjectContext(context(), predicate))
        names.push_back(namesByIdentifier_.at(*note->uniqueIdentifier()));
    std::ranges::sort(names);
    return names;
}

std::vector<std::string> SearchLibrary::namesInList(std::string_view list) const
{
    constexpr std::string_view kAllBut = "all but";
    const bool isComplement = list.starts_with(kAllBut);
    if (isComplement)
        list.remove_prefix(std::min(list.size(), kAllBut.size() + 1));
    std::vector<std::string> listed = listOf(list == "-" ? "" : list);
    std::ranges::sort(listed);
    for (const std::string& name : listed)
        EXPECT_TRUE(notes_.contains(name)) << name << " is no note";
    if (!isComplement)
        return listed;
    std::vector<std::string> names;
    for (const auto& [name, note] : notes_) {
        if (!std::ranges::binary_search(listed, name))
            names.push_back(name);
    }
    return names;
}

} // namespace tarn
