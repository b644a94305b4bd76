#include "tools/tarn/listing/NoteJSON.h"

#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/sync/TolVectorClock.h"

#include <algorithm>

namespace tarn {

namespace {

template <typename T> JSON jsonOf(const std::optional<T>& value)
{
    return value ? JSON(*value) : JSON(nullptr);
}

JSON jsonOfDate(const std::optional<NSDate>& date)
{
    return date ? JSON(iso8601String(*date)) : JSON(nullptr);
}

/// In the order of their bytes: a set has none that lasts.
JSON jsonOfTags(const OVNote& note)
{
    std::vector<std::string> titles;
    for (const OVNoteTag* tag : note.tagsSet().allObjects())
        titles.push_back(tag->title().value_or(""));
    std::ranges::sort(titles);
    return titles;
}

JSON jsonOfClock(const OVNote& note)
{
    const std::optional<NSData> data = note.vectorClock();
    if (!data)
        return nullptr;
    const auto clock = TolVectorClock::initWithData(data);
    return clock ? JSON(clock->stringRepresentation()) : JSON(nullptr);
}

void indentLines(std::string& text, std::string_view indentation)
{
    for (std::size_t offset = 0; (offset = text.find('\n', offset)) != std::string::npos; offset += indentation.size())
        text.insert(++offset, indentation);
}

} // namespace

JSON jsonOfNote(const OVNote& note)
{
    JSON json;
    json["uniqueIdentifier"] = jsonOf(note.uniqueIdentifier());
    json["title"] = jsonOf(note.title());
    json["subtitle"] = jsonOf(note.subtitle());
    json["creationDate"] = jsonOfDate(note.creationDate());
    json["modificationDate"] = jsonOfDate(note.modificationDate());
    json["lastEditingDevice"] = jsonOf(note.lastEditingDevice());
    json["version"] = note.versionValue();
    json["trashed"] = note.trashedValue();
    json["archived"] = note.archivedValue();
    json["pinned"] = note.pinnedValue();
    json["locked"] = note.lockedValue();
    json["encrypted"] = note.encryptedValue();
    json["hasImages"] = note.hasImagesValue();
    json["hasFiles"] = note.hasFilesValue();
    json["hasSourceCode"] = note.hasSourceCodeValue();
    json["todoCompleted"] = note.todoCompletedValue();
    json["todoIncompleted"] = note.todoIncompletedValue();
    json["tags"] = jsonOfTags(note);
    json["vectorClock"] = jsonOfClock(note);
    if (const auto identifier = note.conflictUniqueIdentifier())
        json["conflictUniqueIdentifier"] = *identifier;
    return json;
}

JSON jsonOfNoteWithText(const OVNote& note)
{
    JSON json = jsonOfNote(note);
    const bool isLocked = note.encryptedValue() && note.hasEncryptionAndIsLocked();
    json["text"] = isLocked ? JSON(nullptr) : jsonOf(note.text());
    return json;
}

JSON jsonOfNotes(std::span<OVNote* const> notes)
{
    JSON list = JSON::array();
    for (const OVNote* note : notes)
        list.push_back(jsonOfNote(*note));
    return {{"notes", std::move(list)}};
}

void writeNoteList(Output& output, std::size_t count, std::span<OVNote* const> notes, const JSON& moreKeys,
    const std::function<JSON(const OVNote&)>& jsonOf)
{
    output.write("{\n  \"count\": " + std::to_string(count) + ",\n  \"notes\": [");
    std::string_view separator = "\n    ";
    for (const OVNote* note : notes) {
        std::string text = textOfJSON(jsonOf(*note));
        indentLines(text, "    ");
        output.write(separator);
        output.write(text);
        separator = ",\n    ";
    }
    output.write(notes.empty() ? "]" : "\n  ]");
    for (const auto& [key, value] : moreKeys.items()) {
        std::string text = textOfJSON(value);
        indentLines(text, "  ");
        output.write(",\n  " + textOfJSON(key) + ": " + text);
    }
    output.write("\n}\n");
}

} // namespace tarn
