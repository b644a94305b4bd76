#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/notes/Paragraphs.h"

namespace tarn {

void OVNote::prependNoteWithText(std::string_view addition)
{
    std::string current = text().value_or("");
    const std::string_view line = firstLine(current);
    const bool hasTitleLine = line.starts_with("# ");
    const std::size_t position = hasTitleLine ? line.size() : 0;

    std::string inserted(addition);
    if (hasTitleLine && !inserted.empty() && !inserted.starts_with('\n'))
        inserted.insert(0, 1, '\n');
    if (position < current.size() && !inserted.empty() && !inserted.ends_with('\n') && current[position] != '\n')
        inserted += '\n';
    updateNoteWithText(current.insert(position, inserted));
}

void OVNote::appendNoteWithText(std::string_view addition)
{
    appendNoteWithText(addition, true);
}

void OVNote::appendNoteWithText(std::string_view addition, bool newLine)
{
    if (addition.empty())
        return;
    std::string current = text().value_or("");
    const auto tagLine = startOfClosingTagLine(current, tagsStrings());
    const std::size_t position = tagLine.value_or(current.size());

    std::string inserted(addition);
    if (tagLine && newLine) {
        // Kept: only the first blank line is looked at, so a text with one in its middle gets another at its end.
        const std::size_t blankLine = inserted.find("\n\n");
        const bool endsWithBlankLine = blankLine != std::string::npos && blankLine + 2 == inserted.size();
        if (!endsWithBlankLine)
            inserted += inserted.ends_with('\n') ? "\n" : "\n\n";
    }
    if (newLine && !inserted.starts_with('\n') && position > 0 && current[position - 1] != '\n')
        inserted.insert(0, 1, '\n');
    updateNoteWithText(current.insert(position, inserted));
}

void OVNote::replaceNoteWithText(std::string_view replacement)
{
    const std::string current = text().value_or("");
    const std::string_view line = firstLine(current);
    const bool isHeading = line.starts_with("# ") || line.starts_with("## ") || line.starts_with("### ");
    const bool isKept = isHeading && line.size() < current.size();

    // Kept: without a heading to keep the new text begins with a line feed.
    std::string changed(isKept ? line : std::string_view());
    changed += '\n';
    changed += replacement;
    updateNoteWithText(changed);
}

} // namespace tarn
