#include "tests/processes/RoundsOfProtection.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/store/OVCoreDataStack.h"
#include "tests/processes/Worker.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Passwords of tests need not be hard to guess.
constexpr OVKeyDerivationCost kLittleWork{.passes = 1, .memoryInKibibytes = 8};

/// An application with its store open and its password unlocked.
class ProtectedApplication : public OVCoreDataStackDelegate {
public:
    explicit ProtectedApplication(const fs::path& root)
    {
        OVLocalFileManager::setApplicationPersistentDataTestURL(root / "Data");
        world_.setCacheDirectory(root / "Cache");
        world_.setVariable("XDG_RUNTIME_DIR", (root / "Runtime").string());
        MainQueue::main();
        stack_.setupStackWithDelegate(this);
        MainQueue::main().runUntil(
            [this] { return stack_.managedObjectContext() || !failure_.empty(); }, std::chrono::seconds(60));
        require(stack_.managedObjectContext() != nullptr, NSError("", 0, failure_));
        manager_ = std::make_unique<OVEncryptionCoreManager>(
            context(), OVEncryptionOptions{.cost = kLittleWork, .timeLimit = std::chrono::seconds(0)});
    }
    ~ProtectedApplication() override { manager_.reset(); }

    NSManagedObjectContext& context() { return *stack_.managedObjectContext(); }
    OVEncryptionCoreManager& manager() { return *manager_; }
    OVPassword& password()
    {
        const auto passwords = OVPassword::passwordsInManagedObjectContext(context(), std::nullopt);
        require(passwords.size() == 1, NSError("", 0, "there is not one password"));
        return *passwords.front();
    }
    /// The one of these that opens.
    std::string unlock(std::string_view candidates)
    {
        std::istringstream words{std::string(candidates)};
        NSError error;
        for (std::string word; std::getline(words, word, ',');)
            if (manager().unlock(password(), word, &error))
                return word;
        throw WorkerFailure{"no password opens: " + error.localizedDescription()};
    }
    OVNote& note(int number)
    {
        OVNote* note = OVNote::noteWithTitle("Note " + std::to_string(number), context());
        require(note != nullptr, NSError("", 0, "there is no note " + std::to_string(number)));
        return *note;
    }
    void save()
    {
        NSError error;
        require(context().save(&error), error);
    }

    void coreDataStackDidInitializeManagedObjectContext(OVCoreDataStack&, NSManagedObjectContext&) override { }
    void coreDataStackDidFailToInitializeManagedObjectContext(OVCoreDataStack&, const NSError& error) override
    {
        failure_ = error.localizedDescription();
    }

private:
    EnvironmentOverride world_;
    std::string failure_;
    OVCoreDataStack stack_;
    std::unique_ptr<OVEncryptionCoreManager> manager_;
};

// Reading -------------------------------------------------------------------------------------------------------------

std::string bytesOfFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "-";
}

int numberAfter(std::string_view mark, const std::string& text)
{
    const std::size_t found = text.find(mark);
    return found == std::string::npos ? -1 : std::atoi(text.c_str() + found + mark.size());
}

/// What a note says of itself; what does not belong together shows in the texts.
PlayedNote playedNote(int number, const OVNote& note)
{
    const std::string text = note.text().value_or("");
    PlayedNote played;
    played.revision = numberAfter(" text revision ", text);
    played.isProtected = note.encryptedValue();
    for (const OVNoteFile* file : note.filesSet().allObjects()) {
        require(file->encryptedValue() == played.isProtected, NSError("", 0, "a file is not protected as its note is"));
        require(!file->isUnused(), NSError("", 0, "a file is not in use"));
        require(played.filename.empty(), NSError("", 0, "there are two files"));
        played.filename = file->filename().value_or("-");
        const std::string bytes = bytesOfFile(file->fileURL().value_or(""));
        played.fileRevision = numberAfter(" file revision ", bytes);
        require(bytes == bytesOfPlayedFile(number, played), NSError("", 0, "the bytes are " + bytes));
        require(file->fileSize() == static_cast<std::int64_t>(bytes.size()), NSError("", 0, "the size is wrong"));
    }
    require(text == textOfPlayedNote(number, played), NSError("", 0, "the text is " + text));
    require(note.subtitle().has_value() != played.isProtected, NSError("", 0, "the subtitle is wrong"));
    return played;
}

PlayedStore playedStore(NSManagedObjectContext& context)
{
    PlayedStore store;
    for (const OVNote* note : OVNote::allNotesInManagedObjectContext(context)) {
        const int number = numberAfter("Note ", note->title().value_or(""));
        require(store.emplace(number, playedNote(number, *note)).second, NSError("", 0, "two notes have one number"));
    }
    return store;
}

/// Each in a folder of its own: exactly one item.
void requireNothingBesideFiles(NSManagedObjectContext& context)
{
    std::size_t folders = 0;
    for (const char* area : {"Note Files", "Note Images"}) {
        std::error_code failure;
        const fs::path place = OVLocalFileManager::applicationPersistentDataURL() / "Local Files" / area;
        for (fs::directory_iterator entry(place, failure), end; !failure && entry != end; ++entry, ++folders)
            require(std::distance(fs::directory_iterator(entry->path()), {}) == 1,
                NSError("", 0, "there is not one item in " + entry->path().filename().string()));
    }
    require(OVNoteFile::filesInManagedObjectContext(context, std::nullopt).size() == folders,
        NSError("", 0, "there are folders without a record"));
}

// Working -------------------------------------------------------------------------------------------------------------

NSFileWrapper wrapperOf(int number, const PlayedNote& note)
{
    NSFileWrapper wrapper = NSFileWrapper::withContents(NSData::fromText(bytesOfPlayedFile(number, note)));
    wrapper.setFilename(note.filename);
    return wrapper;
}

void setText(ProtectedApplication& application, int number, const PlayedNote& played)
{
    application.note(number).updateNoteWithText(textOfPlayedNote(number, played));
}

void make(ProtectedApplication& application)
{
    NSError error;
    OVPassword* password = OVPassword::insertInManagedObjectContext(application.context());
    require(application.manager().setPassword(*password, "first", std::nullopt, &error), error);
    for (int number = 0; number < 4; ++number) {
        PlayedNote played;
        OVNote* note = OVNote::noteWithText(textOfPlayedNote(number, played), application.context());
        if (number % 2 != 0)
            continue;
        played.filename = "file-0.txt";
        require(note->addAttachmentFromFileWrapper(wrapperOf(number, played)) != nullptr, NSError("", 0, "no file"));
        note->updateNoteWithText(textOfPlayedNote(number, played));
    }
}

OVNoteFile& fileOf(OVNote& note)
{
    const auto files = note.filesSet().allObjects();
    require(files.size() == 1, NSError("", 0, "there is not one file"));
    return *files.front();
}

/// A word and its numbers.
struct Work {
    explicit Work(std::string_view text)
    {
        std::istringstream words{std::string(text)};
        words >> name;
        words >> argument;
        words >> value;
        number = std::atoi(argument.c_str());
    }
    std::string name;
    std::string argument; ///< the first one as it was written
    int number = 0;       ///< the same as a number
    int value = 0;
};

void workOnText(ProtectedApplication& application, const Work& work)
{
    OVNote& note = application.note(work.number);
    PlayedNote played = playedNote(work.number, note);
    NSError error;
    if (work.name == "edit")
        played.revision = work.value;
    if (work.name == "attach") {
        played.filename = "file-" + std::to_string(work.value) + ".txt";
        played.fileRevision = work.value;
        require(OVNoteFile::getOrCreateFileFromFileWrapper(wrapperOf(work.number, played), note, &error), error);
    }
    if (work.name == "rename") {
        played.filename = "renamed-" + std::to_string(work.value) + ".txt";
        fileOf(note).renameWithFilename(played.filename, &error);
        require(error == NSError(), error);
    }
    if (work.name == "bytes") {
        played.fileRevision = work.value;
        require(fileOf(note).updateAttachmentWithFileWrapper(wrapperOf(work.number, played), &error), error);
    }
    setText(application, work.number, played);
}

void duplicate(ProtectedApplication& application, const Work& work)
{
    OVNote& note = application.note(work.number);
    const PlayedNote played = playedNote(work.number, note);
    OVNote* copy = note.duplicate();
    PlayedNote own = played;
    if (!own.filename.empty()) {
        NSError error;
        const NSFileWrapper bytes = wrapperOf(work.value, own);
        require(fileOf(*copy).updateAttachmentWithFileWrapper(bytes, &error), error);
    }
    copy->updateNoteWithText(textOfPlayedNote(work.value, own));
}

void rotate(ProtectedApplication& application, std::string_view word)
{
    NSError error;
    OVPassword& password = application.password();
    require(application.manager().rotateMasterKey(password, word, &error), error);
    for (OVEncryptableObject* object : password.encryptableObjects())
        if (application.manager().isReencryptionNeeded(*object))
            require(application.manager().reencrypt(*object, &error), error);
}

void doWork(ProtectedApplication& application, const Work& work, const std::string& word)
{
    OVEncryptionCoreManager& manager = application.manager();
    NSError error;
    if (work.name == "protect")
        require(manager.addEncryptionToObject(application.note(work.number), application.password(), &error), error);
    else if (work.name == "unprotect")
        require(manager.removeEncryptionFromObject(application.note(work.number), &error), error);
    else if (work.name == "duplicate")
        duplicate(application, work);
    else if (work.name == "delete")
        application.note(work.number).permanentlyDelete();
    else if (work.name == "change")
        require(manager.changePassword(application.password(), word, work.argument, &error), error);
    else if (work.name == "rotate")
        rotate(application, word);
    else
        workOnText(application, work);
}

} // namespace

std::string markerOfPlayedNote(int number)
{
    return "MARKER-" + std::to_string(number) + "-";
}

std::string textOfPlayedNote(int number, const PlayedNote& note)
{
    const std::string link = note.filename.empty() ? "" : "[a file](" + note.filename + ")\n";
    return "# Note " + std::to_string(number) + "\n\n" + markerOfPlayedNote(number) + " text revision "
        + std::to_string(note.revision) + "\n" + link
        + std::string(static_cast<std::size_t>(note.revision % 7) * 900, 'x') + "\n";
}

std::string bytesOfPlayedFile(int number, const PlayedNote& note)
{
    return markerOfPlayedNote(number) + " file revision " + std::to_string(note.fileRevision) + "\n"
        + std::string(static_cast<std::size_t>(note.fileRevision % 5) * 50'000, 'y');
}

std::string describe(const PlayedStore& store)
{
    std::string lines;
    for (const auto& [number, note] : store)
        lines += "note " + std::to_string(number) + ": revision " + std::to_string(note.revision)
            + (note.isProtected ? ", protected" : ", open")
            + (note.filename.empty() ? "" : ", " + note.filename + " revision " + std::to_string(note.fileRevision))
            + "\n";
    return lines;
}

void playRoundOfProtection(std::span<const std::string_view> arguments)
{
    const Work work(arguments[2]);
    ProtectedApplication application{fs::path(arguments[0])};
    if (work.name == "make") {
        make(application);
        return application.save();
    }
    const std::string word = application.unlock(arguments[1]);
    if (work.name == "show") {
        requireNothingBesideFiles(application.context());
        std::cout << "opened by " << word << "\n" << describe(playedStore(application.context()));
        return;
    }
    doWork(application, work, word);
    application.save();
}

} // namespace tarn
