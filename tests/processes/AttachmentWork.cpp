#include "tests/processes/AttachmentWork.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/store/OVCoreDataStackForExtensions.h"
#include "tests/processes/Worker.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 5> kWorks{"import", "rename", "replace", "exchange", "remove"};

void failUnless(bool isDone, std::string_view what)
{
    require(isDone, NSError("", 0, what));
}

NSFileWrapper fileNamed(std::string_view name, std::string_view bytes)
{
    NSFileWrapper wrapper = NSFileWrapper::withContents(NSData::fromText(bytes));
    wrapper.setFilename(std::string(name));
    return wrapper;
}

OVNoteFile& attachmentNamed(std::string_view name, OVNote& note)
{
    OVNoteFile* file = note.attachmentIncludingUnusedForFilename(name);
    failUnless(file != nullptr, "the attachment is gone");
    return *file;
}

void makeAttachments(NSManagedObjectContext& context)
{
    OVNote* note = OVNote::noteWithText("# Files\n", context);
    for (const char* name : {"a.bin", "b.bin", "c.bin"})
        failUnless(note->addAttachmentFromFileWrapper(fileNamed(name, "bytes of " + std::string(name))), name);
}

void importAttachments(OVNote& note)
{
    NSError error;
    for (const char* name : {"new.bin", "a.bin"})
        require(OVNoteFile::getOrCreateFileFromFileWrapper(fileNamed(name, "new bytes"), note, &error), error);
}

bool writeOtherBytes(const fs::path& place, NSError* error)
{
    return NSFileManager::createFileAtURL(place, NSData::fromText("other bytes"), error);
}

void change(NSManagedObjectContext& context, std::string_view work)
{
    OVNote* note = OVNote::noteWithTitle("Files", context);
    failUnless(note != nullptr, "the note is gone");
    NSError error;
    if (work == "import")
        importAttachments(*note);
    if (work == "rename")
        attachmentNamed("a.bin", *note).renameWithFilename("renamed.bin", &error);
    if (work == "replace")
        require(attachmentNamed("a.bin", *note).updateAttachmentWithFileWrapper(fileNamed("", "other bytes"), &error),
            error);
    if (work == "exchange")
        require(attachmentNamed("a.bin", *note).exchangeStoredFile("opaque", writeOtherBytes, &error), error);
    if (work == "remove") {
        attachmentNamed("a.bin", *note).permanentlyDelete();
        attachmentNamed("b.bin", *note).permanentlyDelete();
    }
    require(error == NSError(), error);
}

std::string bytesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "-";
}

/// Identifiers are new in each run, so they are left out.
void show(NSManagedObjectContext& context, const fs::path& root)
{
    std::multiset<std::string> lines;
    std::set<std::string> recorded;
    for (const OVNoteFile* file : OVNoteFile::filesInManagedObjectContext(context, std::nullopt)) {
        const fs::path place = file->fileURL().value_or("");
        std::size_t items = 0;
        std::error_code failure;
        for (fs::directory_iterator entry(place.parent_path(), failure), end; !failure && entry != end; ++entry)
            ++items;
        lines.insert(file->filename().value_or("-") + ": " + bytesOf(place) + ", "
            + std::to_string(file->fileSizeValue()) + " bytes, " + std::to_string(items) + " item in its folder");
        recorded.insert(file->uniqueIdentifier().value_or("-"));
    }
    std::error_code failure;
    for (fs::directory_iterator area(root / "Local Files", failure), end; !failure && area != end; ++area)
        for (const auto& entry : fs::directory_iterator(area->path()))
            if (!recorded.contains(entry.path().filename().string()))
                lines.insert("stray: " + fs::relative(entry.path(), root).parent_path().filename().string());
    std::ranges::copy(lines, std::ostream_iterator<std::string>(std::cout, "\n"));
}

} // namespace

std::span<const std::string_view> attachmentWorks()
{
    return kWorks;
}

void workWithAttachments(std::span<const std::string_view> arguments)
{
    const fs::path root(arguments[0]);
    const std::string_view work = arguments[1];
    OVLocalFileManager::setApplicationPersistentDataTestURL(root);
    EnvironmentOverride world;
    world.setCacheDirectory(root / "Cache");
    MainQueue::main();
    NSError error;
    const auto stack = OVCoreDataStackForExtensions::initStackOutputError(&error);
    require(stack != nullptr, error);
    NSManagedObjectContext& context = *stack->managedObjectContext();
    if (work == "show") {
        show(context, root);
        return;
    }
    if (work == "make")
        makeAttachments(context);
    else
        change(context, work);
    require(context.save(&error), error);
}

} // namespace tarn
