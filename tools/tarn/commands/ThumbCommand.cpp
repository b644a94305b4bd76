#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/arguments/ThumbOptions.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/files/FileList.h"
#include "tools/tarn/listing/NoteList.h"
#include "tools/tarn/session/StoreSession.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

struct ThumbCommandArguments : ThumbArguments {
    std::optional<std::string> fileOrNote;
    std::optional<std::string> filename;
    std::optional<std::string> output;
};

// The picture ---------------------------------------------------------------------------------------------------------

OVNoteFile& imageOfNote(const OVNote& note, const std::optional<std::string>& filename)
{
    if (filename) {
        if (OVNoteFile* file = note.attachmentIncludingUnusedForFilename(*filename))
            return *file;
        throw CommandFailure(ExitCode::Failed, nameOfNote(note) + " has no attachment \"" + *filename + "\"");
    }
    const std::vector<OVNoteImage*> images = note.orderedImages();
    if (images.empty())
        throw CommandFailure(ExitCode::Failed, nameOfNote(note) + " has no image");
    return *images.front();
}

/// A file goes before a note of the same title.
fs::path pictureOf(const Invocation& invocation, const ThumbCommandArguments& arguments)
{
    const fs::path given = *arguments.fileOrNote;
    std::error_code failure;
    if (!arguments.filename && fs::is_regular_file(given, failure))
        return fs::canonical(given);
    StoreSession session(invocation, StoreSession::Access::Read);
    OVNote& note = noteForArgument(*arguments.fileOrNote, session);
    session.unlock([&] { return std::vector{&note}; });
    if (note.hasEncryptionAndIsLocked())
        throw CommandFailure(ExitCode::Locked, nameOfNote(note) + " is protected by a password");
    const OVNoteFile& file = imageOfNote(note, arguments.filename);
    const auto path = pathOfFile(file);
    if (!path)
        throw CommandFailure(ExitCode::Failed, "the bytes of \"" + nameOfFile(file) + "\" are not here");
    return *path;
}

// The thumbnail -------------------------------------------------------------------------------------------------------

CommandFailure failureOfThumb(const fs::path& picture, const NSError& error)
{
    const bool isOfImage = error.domain() == TarnImagingErrorDomain;
    const bool isOfDisk = error.domain() == NSPOSIXErrorDomain
        || (isOfImage && (error.code() == ImagingErrorCannotRead || error.code() == ImagingErrorCannotWrite));
    return {isOfDisk ? ExitCode::InputOutput : ExitCode::Failed,
        "no thumbnail of " + picture.string() + ": " + singleLine(error.localizedDescription())};
}

fs::path madeThumb(
    const OVThumbFileManager& manager, const fs::path& picture, OVThumbSize size, const OVThumbOptions& options)
{
    NSError error;
    const auto made = manager.makeThumbForImageURL(picture, size, options, &error);
    if (!made)
        throw failureOfThumb(picture, error);
    return *made;
}

fs::path keptThumb(const fs::path& picture, OVThumbSize size, const OVThumbOptions& options)
{
    const auto manager = OVThumbFileManager::thumbFileManagerForPathComponent(OVNoteThumbFileDirectoryName);
    const auto found = manager->thumbURLForImageURL(picture, size, options);
    const bool isWanted = found && OVThumbFileManager::thumbAtURLShowsOptions(*found, options);
    return isWanted ? *found : madeThumb(*manager, picture, size, options);
}

/// A folder that goes, with what is in it.
class PassingFolder {
public:
    explicit PassingFolder(const fs::path& parent)
    {
        NSError error;
        const auto made
            = NSFileManager::createUniqueDirectoryInDirectory(parent, NSFileManager::unfinishedPrefix, &error);
        if (!made)
            throw CommandFailure(ExitCode::InputOutput, singleLine(error.localizedDescription()));
        path_ = *made;
    }
    ~PassingFolder() { NSFileManager::removeItemAtURL(path_); }
    PassingFolder(const PassingFolder&) = delete;
    PassingFolder& operator=(const PassingFolder&) = delete;
    const fs::path& path() const noexcept { return path_; }

private:
    fs::path path_;
};

/// Makes it beside its place, so that there is a whole one or none.
fs::path thumbAtPlace(const fs::path& picture, OVThumbSize size, const OVThumbOptions& options, const fs::path& place)
{
    if (place.empty())
        throw CommandFailure(ExitCode::Usage, "--output is empty; name a file");
    const PassingFolder folder(fs::absolute(place).parent_path());
    const auto manager = OVThumbFileManager::initWithBaseURL(folder.path());
    const auto extensionOf = [&manager](const fs::path& path) {
        const std::string extension = path.extension().string();
        return manager->thumbExtensionForImageExtension(extension.empty() ? extension : extension.substr(1));
    };
    const std::string extension = extensionOf(picture);
    if (place.extension().empty() || extensionOf(place) != extension)
        throw CommandFailure(ExitCode::Usage,
            "the thumbnail of " + picture.filename().string() + " is a ." + extension
                + " file; give --output a name that says so");
    const fs::path made = madeThumb(*manager, picture, size, options);
    NSError error;
    if (!NSFileManager::moveItemAtURL(made, place, &error))
        throw CommandFailure(
            ExitCode::InputOutput, "cannot write " + place.string() + ": " + singleLine(error.localizedDescription()));
    return place;
}

void tellOfThumb(const Invocation& invocation, const fs::path& thumb, double seconds)
{
    NSError error;
    const auto header = readImageHeader(thumb, &error);
    if (!header)
        throw failureOfThumb(thumb, error);
    if (invocation.json) {
        writeJSON(invocation.output,
            {{"path", thumb.string()}, {"width", header->uprightWidth()}, {"height", header->uprightHeight()},
                {"seconds", seconds}});
        return;
    }
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "%.3f s", seconds);
    invocation.output.writeLine(invocation.output.shown(thumb.string()) + "  " + std::to_string(header->uprightWidth())
        + "x" + std::to_string(header->uprightHeight()) + "  " + time.data());
}

ExitCode makeThumb(const Invocation& invocation, const ThumbCommandArguments& arguments)
{
    const OVThumbSize size = thumbSizeOf(arguments);
    const OVThumbOptions options = thumbOptionsOf(arguments);
    const fs::path picture = pictureOf(invocation, arguments);
    const auto start = std::chrono::steady_clock::now();
    const fs::path thumb = arguments.output ? thumbAtPlace(picture, size, options, *arguments.output)
                                            : keptThumb(picture, size, options);
    tellOfThumb(invocation, thumb, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    return ExitCode::Done;
}

} // namespace

void addThumbCommand(CommandLine& commandLine)
{
    const auto arguments = std::make_shared<ThumbCommandArguments>();
    const Command command = commandLine.addCommand(
        {.name = "thumb",
            .summary = "Make or find a thumbnail of a picture",
            .explanation
            = "Of a picture file, or of an image of a note: FILENAME, or without it the first. It is kept in the "
              "folder of "
              "all\nthumbnails and found there the next time, until the picture changes; with --output it is made "
              "there.\nA thumbnail of a JPEG is a JPEG, of all else a PNG.",
            .examples = {"tarn thumb photo.jpg --size 200x150", "tarn thumb Groceries shelf.jpg --size 64x64 --cover"}},
        [arguments](const Invocation& invocation) { return makeThumb(invocation, *arguments); });
    command.addArgument("FILE-OR-NOTE", arguments->fileOrNote, "A picture, or a note as other commands take it")
        .required();
    command.addArgument("FILENAME", arguments->filename, "The name of an attachment of the note");
    command.addOption("--size", arguments->size, "The size that it is to fit into, in pixels").called("WxH").required();
    const CommandOption contain = command.addFlag(
        "--contain", arguments->contain, "Exactly of the size: the whole picture, and room beside it");
    command.addFlag("--cover", arguments->cover, "Exactly of the size: filled by the picture, the rest cut off")
        .excludes({contain});
    command.addFlag("--no-ratio", arguments->noRatio, "Stretch the picture to the size");
    command
        .addOption("--align", arguments->align,
            "Where the picture lies, from left to right and from bottom to top, each from 0 to 1")
        .called("X,Y");
    command
        .addFlagWithValue("--trim", arguments->trim,
            "Cut transparent rows away above and below, but so many; with a number write --trim=N")
        .called("[MARGIN]");
    command.addOption("--background", arguments->background, "Paint this colour under it").called("RRGGBB");
    command.addOption("--output", arguments->output, "Write it to this file, which must not be there yet")
        .called("PATH");
}

} // namespace tarn
