#include "tools/tarn/editor/EditableNote.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/listing/NoteJSON.h"
#include "tools/tarn/listing/NoteList.h"

namespace tarn {

namespace {

CommandFailure refusal(ExitCode code, const OVNote& note, const std::string& reason)
{
    return {code, nameOfNote(note) + " " + reason};
}

} // namespace

void requireUnlocked(const OVNote& note)
{
    if (note.encryptedValue() && note.hasEncryptionAndIsLocked())
        throw refusal(ExitCode::Locked, note,
            "is protected by a password; name a file with --password-file whose first line is it. Nothing was changed");
}

void requireUnlocked(const std::vector<OVNote*>& notes)
{
    for (const OVNote* note : notes)
        requireUnlocked(*note);
}

void requireEditable(const OVNote& note)
{
    requireUnlocked(note);
    if (note.isTrashed())
        throw refusal(ExitCode::Failed, note, "is in the trash; take it out with 'tarn restore'");
    if (note.isArchived())
        throw refusal(ExitCode::Failed, note, "is in the archive; take it out with 'tarn unarchive'");
    if (!note.isEditable())
        throw refusal(ExitCode::Failed, note, "is read-only; let it be edited with 'tarn editable'");
}

void writeNote(const Invocation& invocation, const OVNote& note)
{
    if (invocation.json)
        writeJSON(invocation.output, jsonOfNote(note));
    else
        writeNoteLine(invocation.output, note);
}

} // namespace tarn
