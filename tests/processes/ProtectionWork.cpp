#include "tests/processes/ProtectionWork.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/notes/OwedCompaction.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/store/OVCoreDataStack.h"
#include "tests/processes/KnownWorld.h"
#include "tests/processes/Worker.h"
#include "tests/support/FreedPages.h"

#include <array>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPassword = "correct horse";
constexpr std::array<std::string_view, 6> kMarkers{"marker-of-a-text", "marker-of-a-later-text", "marker-of-a-name",
    "marker-of-a-later-name", "marker-of-the-bytes", "marker-of-later-bytes"};
constexpr std::array<std::string_view, 9> kWorks{
    "edit", "rename", "bytes", "attach", "duplicate", "trash", "tag", "password", "lock"};

NSFileWrapper fileOf(std::string_view name, std::string_view bytes)
{
    NSFileWrapper wrapper = NSFileWrapper::withContents(NSData::fromText(bytes));
    wrapper.setFilename(std::string(name));
    return wrapper;
}

/// The application of a person who has typed the password.
class ProtectingApplication {
public:
    explicit ProtectingApplication(const fs::path& root)
    {
        stack_.setupStackWithDelegate(nullptr);
        require(stack_.managedObjectContext() != nullptr, NSError("", 0, "the store could not be opened"));
        OVEncryptionOptions options;
        options.cost = {1, 8};
        options.scratchDirectory = [root] { return root / "Cache"; };
        manager_.emplace(context(), options);
    }
    ~ProtectingApplication() { manager_.reset(); }
    ProtectingApplication(const ProtectingApplication&) = delete;
    ProtectingApplication& operator=(const ProtectingApplication&) = delete;

    NSManagedObjectContext& context() { return *stack_.managedObjectContext(); }
    OVEncryptionCoreManager& manager() { return *manager_; }
    OVNote& note()
    {
        OVNote* const found = OVNote::noteWithTitle("Secret", context());
        require(found != nullptr, NSError("", 0, "the note is gone"));
        return *found;
    }
    OVNoteFile& file() { return *note().filesSet().allObjects().front(); }
    OVPassword& password() { return *OVPassword::passwordsInManagedObjectContext(context(), std::nullopt).front(); }
    void unlock()
    {
        NSError error;
        require(manager().unlock(password(), kPassword, &error), error);
    }
    void save()
    {
        NSError error;
        require(context().save(&error), error);
    }

private:
    OVCoreDataStack stack_;
    std::optional<OVEncryptionCoreManager> manager_;
};

void makeProtectedNote(ProtectingApplication& application)
{
    NSError error;
    NSManagedObjectContext& context = application.context();
    OVNote& note = *OVNote::noteWithText("# Secret", context);
    require(note.addAttachmentFromFileWrapper(fileOf("marker-of-a-name.txt", "marker-of-the-bytes")) != nullptr,
        NSError("", 0, "nothing was attached"));
    OVPassword* const password = OVPassword::insertInManagedObjectContext(context);
    require(application.manager().setPassword(*password, kPassword, std::nullopt, &error), error);
    require(application.manager().addEncryptionToObject(note, *password, &error), error);
    note.updateNoteWithText("# Secret\nmarker-of-a-text #work [f](marker-of-a-name.txt)");
    application.save();
}

void changeProtectedNote(ProtectingApplication& application, std::string_view work)
{
    NSError error;
    application.unlock();
    if (work == "edit")
        application.note().appendNoteWithText("marker-of-a-later-text");
    if (work == "rename")
        application.file().renameWithFilename("marker-of-a-later-name.txt", &error);
    if (work == "bytes")
        require(application.file().updateAttachmentWithFileWrapper(fileOf("", "marker-of-later-bytes"), &error), error);
    if (work == "attach")
        require(OVNoteFile::getOrCreateFileFromFileWrapper(
                    fileOf("marker-of-a-later-name.txt", "marker-of-later-bytes"), application.note(), &error)
                != nullptr,
            error);
    if (work == "duplicate")
        application.note().duplicate();
    if (work == "trash")
        application.note().trash();
    if (work == "tag")
        OVNoteTag::tagWithName("work", application.context())->renameTagWithTagNamed("play");
    if (work == "password")
        require(application.manager().changePassword(application.password(), kPassword, "another", &error), error);
    if (work == "lock")
        application.manager().lock();
    require(error == NSError(), error);
    application.save();
}

void oweCompaction(ProtectingApplication& application)
{
    for (const char* text : {"# One", "# Two\n\n[[One]] #work"})
        OVNote::noteWithText(text, application.context());
    application.save();
    NSError error;
    require(application.context().persistentStoreCoordinator().persistentStore()->setMetadataValue(
                StoreCompactionKey, StoreCompactionOwed, &error),
        error);
}

} // namespace

std::span<const std::string_view> protectedMarkers()
{
    return kMarkers;
}

std::span<const std::string_view> protectedWorks()
{
    return kWorks;
}

void workWithProtection(std::span<const std::string_view> arguments)
{
    const fs::path root(arguments[0]);
    const std::string_view work = arguments[1];
    const KnownWorld world(work == "make" ? 7 : 8);
    EnvironmentOverride folders;
    folders.setCacheDirectory(root / "Cache");
    folders.setHomeDirectory(root / "Home");
    for (const char* folder : {"Run", "Cache", "Home"})
        fs::create_directories(root / folder);
    folders.setRuntimeDirectory(root / "Run");
    OVLocalFileManager::setApplicationPersistentDataTestURL(root);
    MainQueue::main();
    {
        ProtectingApplication application(root);
        if (work == "make")
            makeProtectedNote(application);
        else if (work == "owe")
            oweCompaction(application);
        else if (work == "open")
            std::cout << OVNote::allNotesInManagedObjectContext(application.context()).size() << " notes\n";
        else
            changeProtectedNote(application, work);
    }
    if (work == "owe")
        leaveInFreedPages(OVLocalFileManager::databaseURL(), kMarkers[0]);
}

} // namespace tarn
