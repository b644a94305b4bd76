#include "tools/tarn/editor/EditorRun.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/editor/EditorProcess.h"
#include "tools/tarn/files/TextFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tarn {

EditorRun::EditorRun(const std::string& text, PrivateTextFile::Content content)
    : original_(text), file_("tarn-edit-", "note.md", text, content)
{ }

EditorRun::~EditorRun()
{
    if (placeOfUnsaved().empty())
        file_.remove();
}

std::string EditorRun::textFromEditor(const std::string& editor)
{
    std::string text;
    namePlaceOnFailure([&] {
        mayStillChange_ = true;
        try {
            runEditor(editor, file_.path());
            mayStillChange_ = false;
        } catch (const CommandFailure& failure) {
            mayStillChange_ = failure.code() == ExitCode::Interrupted;
            throw;
        }
        text = contents();
    });
    return text;
}

void EditorRun::saveBy(const std::function<void()>& work)
{
    namePlaceOnFailure(work);
    isSaved_ = true;
}

std::string EditorRun::placeOfUnsaved() const
{
    if (isSaved_ || (!mayStillChange_ && file_.holdsNothingBut(original_)))
        return {};
    std::error_code error;
    const bool isThere = std::filesystem::exists(file_.path(), error);
    return (isThere ? file_.path() : file_.path().parent_path()).string();
}

void EditorRun::namePlaceOnFailure(const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::exception&) {
        const CommandFailure failure = failureOfCurrentException();
        const std::string place = placeOfUnsaved();
        throw CommandFailure(place.empty() ? failure : failure.saying("the edited text is in " + place));
    }
}

std::string EditorRun::contents() const
{
    const int descriptor = ::open(file_.path().c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        throw failureForSystemError("cannot read what the editor left", errno);
    std::string text;
    try {
        text = readDescriptor(descriptor, "what the editor left");
    } catch (...) {
        ::close(descriptor);
        throw;
    }
    ::close(descriptor);
    if (const std::size_t invalid = firstInvalidByte(text); invalid != std::string::npos)
        throw CommandFailure(ExitCode::InputOutput,
            "the edited text is not UTF-8 (byte " + std::to_string(invalid + 1) + "); nothing was saved");
    return text;
}

} // namespace tarn
