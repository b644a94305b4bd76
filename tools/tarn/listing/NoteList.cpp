#include "tools/tarn/listing/NoteList.h"

#include "tarnmodel/platform/foundation/time/Calendar.h"
#include "tools/tarn/commandline/DisplayText.h"

#include <array>
#include <cstdio>

namespace tarn {

namespace {

constexpr std::size_t kIdentifierColumns = 8;
constexpr std::size_t kMarkColumns = 3;
constexpr std::size_t kShortestSubtitle = 10;

std::string marksOf(const OVNote& note)
{
    std::string marks;
    if (note.pinnedValue())
        marks += '*';
    if (note.trashedValue())
        marks += 'x';
    if (note.archivedValue())
        marks += 'a';
    if (note.lockedValue())
        marks += 'r';
    if (note.encryptedValue())
        marks += 'e';
    if (note.conflictUniqueIdentifier())
        marks += '!';
    return marks;
}

} // namespace

std::string displayDate(NSDate date)
{
    const CalendarFields local = Calendar().fieldsOfDate(date);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d", local.year, local.month, local.day, local.hour,
        local.minute);
    return text.data();
}

std::string nameOfNote(const OVNote& note)
{
    return "\"" + note.title().value_or("") + "\" ("
        + note.uniqueIdentifier().value_or("").substr(0, kIdentifierColumns) + ")";
}

std::string noteLine(const Output& output, const OVNote& note)
{
    const std::string identifier = displayText(note.uniqueIdentifier().value_or("").substr(0, kIdentifierColumns));
    const std::string date = note.modificationDate() ? displayDate(*note.modificationDate()) : std::string(16, ' ');
    std::string title = displayText(note.title().value_or(""));
    std::string subtitle = displayText(note.subtitle().value_or(""));
    const bool untitled = title.empty();
    if (untitled)
        title = note.encryptedValue() ? "(protected)" : "(untitled)";

    if (const auto width = output.width()) {
        const std::size_t used = kIdentifierColumns + date.size() + kMarkColumns + 5;
        const std::size_t room = *width > used + 10 ? *width - used : 10;
        title = textFittedToWidth(title, room);
        const std::size_t left = room - displayWidth(title);
        subtitle = left > kShortestSubtitle + 2 ? textFittedToWidth(subtitle, left - 2) : std::string();
    } else {
        subtitle.clear();
    }

    std::string line = output.styled(textPaddedToWidth(identifier, kIdentifierColumns), TextStyle::Faint) + "  " + date
        + "  " + textPaddedToWidth(marksOf(note), kMarkColumns) + " "
        + output.styled(title, untitled ? TextStyle::Faint : TextStyle::Strong);
    if (!subtitle.empty())
        line += "  " + output.styled(subtitle, TextStyle::Faint);
    return line;
}

void writeNoteLine(Output& output, const OVNote& note)
{
    output.writeLine(noteLine(output, note));
}

} // namespace tarn
