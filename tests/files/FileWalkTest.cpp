// Files on disk and records in the store say the same after whatever was done to them: imports, edits, renamings,
// copies, deletions, what was taken back, and programs that died over unsaved changes.

#include "tests/files/FilesFixture.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <charconv>
#include <map>
#include <random>
#include <set>

namespace tarn {
namespace {

namespace fs = std::filesystem;

/// What a file is called, and what is in it.
struct Content {
    std::string name;
    std::string bytes;
    friend auto operator<=>(const Content&, const Content&) = default;
};
using Contents = std::map<std::string, Content>; ///< by the identifier of the record

/// One application's life with its notes and files, and what has to be there: kept by hand, in two books, of what is
/// saved and of what the context shows.
class Life {
public:
    Life(const fs::path& folder, unsigned seed) : folder_(folder), random_(seed)
    {
        root_ = folder_ / "0";
        fs::create_directories(root_);
        open();
    }
    ~Life()
    {
        context_.reset();
        OVLocalFileManager::setApplicationPersistentDataTestURL(std::nullopt);
    }

    void live(int steps)
    {
        for (step_ = 1; step_ <= steps && !testing::Test::HasFailure(); ++step_) {
            takeStep();
            expectContentsOfRecords();
        }
        saveAll();
        expectFilesAndRecordsInStep();
    }

    int deaths() const { return deaths_; }
    std::size_t strays() const { return strays_.size(); }

private:
    // The store
    // --------------------------------------------------------------------------------------------------------
    void open()
    {
        OVLocalFileManager::setApplicationPersistentDataTestURL(root_);
        NSError error;
        coordinator_ = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
        ASSERT_TRUE(coordinator_->addPersistentStoreWithType(StoreType::SQLite, root_ / "database.sqlite", {}, &error))
            << error;
        context_ = TestStore::contextOn(coordinator_);
        OVNoteFile::recoverFilesInManagedObjectContext(*context_);
    }

    /// As if the program died here: the disk as it is now, and a new life on it.
    void die()
    {
        const fs::path next = folder_ / std::to_string(++deaths_);
        fs::copy(root_, next, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        for (const auto& entry : fs::recursive_directory_iterator(root_))
            fs::last_write_time(next / fs::relative(entry.path(), root_), fs::last_write_time(entry.path()));
        context_.reset();
        coordinator_.reset();
        fs::remove_all(root_);
        root_ = next;
        open();
        shown_ = saved_;
        expectFilesAndRecordsInStep();
    }

    void reopen()
    {
        context_.reset(); // what is unsaved goes with it
        coordinator_.reset();
        open();
        shown_ = saved_;
        expectFilesAndRecordsInStep();
    }

    void saveAll()
    {
        NSError error;
        ASSERT_TRUE(context_->save(&error)) << error;
        saved_ = shown_;
        strays_.insert(unsavedStrays_.begin(), unsavedStrays_.end());
        unsavedStrays_.clear();
    }

    void takeBack()
    {
        context_->rollback();
        shown_ = saved_;
        unsavedStrays_.clear();
        expectFilesAndRecordsInStep();
    }

    // Steps
    // ------------------------------------------------------------------------------------------------------------
    void takeStep()
    {
        switch (random_() % 20) {
        case 0:
            OVNote::noteWithText("# N\n", *context_);
            break;
        case 1:
        case 2:
        case 3:
        case 4:
            import();
            break;
        case 5:
        case 6:
            edit();
            break;
        case 7:
        case 8:
            rename();
            break;
        case 9:
            replace();
            break;
        case 10:
            duplicate();
            break;
        case 11:
            merge();
            break;
        case 12:
            deleteNote();
            break;
        case 13:
            deleteFile();
            break;
        case 14:
            prune();
            break;
        case 15:
            takeBack();
            break;
        case 16:
            inAChild();
            break;
        case 17:
            random_() % 3 == 0 ? die() : saveAll();
            break;
        case 18:
            random_() % 3 == 0 ? reopen() : saveAll();
            break;
        default:
            saveAll();
            expectFilesAndRecordsInStep();
        }
    }

    template <typename Record> std::vector<Record*> all(NSManagedObjectContext& context) const
    {
        std::vector<Record*> records;
        for (NSManagedObject* record :
            context.executeFetchRequest(NSFetchRequest(Record::entityInManagedObjectContext(context))))
            records.push_back(static_cast<Record*>(record));
        return records;
    }
    template <typename Record> Record* any(NSManagedObjectContext& context)
    {
        const auto records = all<Record>(context);
        return records.empty() ? nullptr : records[random_() % records.size()];
    }

    /// Like nothing else, of some hundred bytes.
    std::string newBytes() { return std::to_string(++made_) + ": " + std::string(random_() % 300, 'x'); }

    void import() { importInto(*context_); }

    void importInto(NSManagedObjectContext& context)
    {
        OVNote* note = any<OVNote>(context);
        if (!note)
            note = OVNote::noteWithText("# N\n", context);
        const std::string name = std::string(1, static_cast<char>('a' + random_() % 3)) + ".bin";
        const std::string bytes = newBytes();
        fs::create_directories(folder_ / "source");
        std::ofstream(folder_ / "source" / name, std::ios::binary) << bytes;
        const OVNoteFile* file = note->addAttachmentFromFileURL(folder_ / "source" / name);
        ASSERT_TRUE(file);
        shown_[*file->uniqueIdentifier()] = {*file->filename(), bytes};
        if (random_() % 2 == 0)
            note->appendNoteWithText("[x](<" + *file->filename() + ">)");
    }

    /// Takes the links out of a text: what they named is unused from then on.
    void edit()
    {
        if (OVNote* note = any<OVNote>(*context_))
            note->updateNoteWithText("# N\n\nno more links\n");
    }

    void rename()
    {
        OVNoteFile* file = any<OVNoteFile>(*context_);
        if (!file)
            return;
        const std::string name = "renamed " + std::to_string(random_() % 4) + ".bin";
        NSError error;
        file->renameWithFilename(name, &error);
        ASSERT_EQ(error, NSError());
        shown_[*file->uniqueIdentifier()].name = name;
    }

    void replace()
    {
        OVNoteFile* file = any<OVNoteFile>(*context_);
        if (!file)
            return;
        const std::string bytes = newBytes();
        NSError error;
        ASSERT_TRUE(file->updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText(bytes)), &error))
            << error;
        shown_[*file->uniqueIdentifier()].bytes = bytes;
    }

    /// What a note's files hold, however they are called.
    static std::multiset<std::string> bytesOf(const std::vector<OVNoteFile*>& files)
    {
        std::multiset<std::string> bytes;
        for (const OVNoteFile* file : files)
            bytes.insert(contentsOf(*file->fileURL()));
        return bytes;
    }
    void writeDown(const OVNote& note)
    {
        for (const OVNoteFile* file : note.filesSet().allObjects())
            shown_[*file->uniqueIdentifier()] = {*file->filename(), contentsOf(*file->fileURL())};
    }

    void duplicate()
    {
        const OVNote* note = any<OVNote>(*context_);
        if (!note || shown_.size() > 60)
            return;
        const OVNote* copy = note->duplicate();
        EXPECT_EQ(bytesOf(copy->filesSet().allObjects()), bytesOf(note->filesSet().allObjects()));
        writeDown(*copy);
    }

    void merge()
    {
        OVNote* one = any<OVNote>(*context_);
        OVNote* other = any<OVNote>(*context_);
        if (one == other || shown_.size() > 60)
            return;
        std::multiset<std::string> bytes = bytesOf(one->orderedFiles());
        bytes.merge(bytesOf(other->orderedFiles()));
        const OVNote* merger = OVNote::mergeNotes({one, other});
        ASSERT_TRUE(merger);
        EXPECT_EQ(bytesOf(merger->filesSet().allObjects()), bytes) << "used or not";
        writeDown(*merger);
    }

    void deleteNote()
    {
        OVNote* note = any<OVNote>(*context_);
        if (!note)
            return;
        note->trash();
        if (random_() % 2 == 0)
            return;
        for (const OVNoteFile* file : note->filesSet().allObjects())
            shown_.erase(*file->uniqueIdentifier());
        note->permanentlyDelete();
    }

    void deleteFile()
    {
        OVNoteFile* file = any<OVNoteFile>(*context_);
        if (!file)
            return;
        shown_.erase(*file->uniqueIdentifier());
        file->permanentlyDelete();
    }

    void prune()
    {
        for (const OVNoteFile* file : all<OVNoteFile>(*context_))
            if (file->isUnused())
                shown_.erase(*file->uniqueIdentifier());
        OVNoteFile::deleteAllUnusedNoteFilesInManagedObjectContext(*context_);
    }

    /// Some of it in a child, which saves, or is dropped; in the background a deletion leaves its folder.
    void inAChild()
    {
        const Contents before = shown_;
        const bool isInBackground = random_() % 2 == 0;
        NSManagedObjectContext child(isInBackground ? NSManagedObjectContext::ConcurrencyType::PrivateQueue
                                                    : NSManagedObjectContext::ConcurrencyType::MainQueue);
        child.setParentContext(*context_);
        context_->processPendingChanges();
        const bool isSaved = random_() % 3 != 0;
        std::set<std::string> left;
        child.performBlockAndWait([&] {
            importInto(child);
            if (OVNoteFile* file = any<OVNoteFile>(child)) {
                const std::string identifier = *file->uniqueIdentifier();
                shown_.erase(identifier);
                file->permanentlyDelete();
                if (isInBackground)
                    left.insert(identifier);
            }
            NSError error;
            EXPECT_TRUE(!isSaved || child.save(&error)) << error;
        });
        if (isSaved)
            unsavedStrays_.insert(left.begin(), left.end());
        else
            shown_ = before;
    }

    // What has to hold
    // -------------------------------------------------------------------------------------------------
    void expectContentsOfRecords() const
    {
        Contents found;
        for (const OVNoteFile* file : all<OVNoteFile>(*context_)) {
            ASSERT_TRUE(file->fileURL());
            EXPECT_THAT(namesIn(file->fileURL()->parent_path()), testing::ElementsAre(*file->filename()));
            found[*file->uniqueIdentifier()] = {*file->filename(), contentsOf(*file->fileURL())};
        }
        EXPECT_EQ(found.size(), shown_.size()) << "at step " << step_;
        for (const auto& [identifier, content] : shown_) {
            EXPECT_EQ(found[identifier].name, content.name) << identifier << " at step " << step_;
            EXPECT_EQ(found[identifier].bytes, content.bytes) << identifier << " at step " << step_;
        }
    }

    void expectFilesAndRecordsInStep()
    {
        std::set<std::string> onDisk;
        for (const char* kind : {"Note Images", "Note Files"})
            for (const std::string& name : namesIn(root_ / "Local Files" / kind))
                onDisk.insert(name);
        std::set<std::string> recorded;
        for (const OVNoteFile* file : all<OVNoteFile>(*context_))
            recorded.insert(*file->uniqueIdentifier());
        std::set<std::string> expected = recorded;
        for (const std::string& stray : strays_)
            if (onDisk.contains(stray))
                expected.insert(stray);
        EXPECT_EQ(onDisk, expected) << "at step " << step_;
        for (const std::string& name : namesIn(root_ / "Local Files"))
            EXPECT_TRUE(name == "Note Images" || name == "Note Files") << name << " at step " << step_;
        expectContentsOfRecords();
    }

    fs::path folder_;
    fs::path root_;
    std::mt19937 random_;
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    std::unique_ptr<NSManagedObjectContext> context_;
    Contents saved_;
    Contents shown_;
    std::set<std::string> strays_; ///< folders of records that were deleted in the background
    std::set<std::string> unsavedStrays_;
    int made_ = 0;
    int deaths_ = 0;
    int step_ = 0;
};

class FileWalk : public testing::Test, protected StillWorld { };

TEST_F(FileWalk, KeepsFilesAndRecordsInStep)
{
    int walks = 40;
    if (const auto given = Environment::current().variable("TARN_FILE_WALKS"))
        std::from_chars(given->data(), given->data() + given->size(), walks);
    int deaths = 0;
    std::size_t strays = 0;
    for (int walk = 0; walk < walks && !HasFailure(); ++walk) {
        SCOPED_TRACE(testing::Message() << "seed " << 7'000 + walk);
        const fs::path folder = fs::temp_directory_path() / ("tarn walk " + newUUIDString());
        {
            Life life(folder, static_cast<unsigned>(7'000 + walk));
            life.live(60);
            deaths += life.deaths();
            strays += life.strays();
        }
        fs::remove_all(folder);
    }
    EXPECT_GT(deaths, walks / 4);
    EXPECT_GT(strays, 0U);
    for (const std::string& line : takeLog())
        EXPECT_THAT(line, testing::HasSubstr("brought in step with their records"));
}

} // namespace
} // namespace tarn
