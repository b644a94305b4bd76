// Several devices that sync by the example's engine over a folder: whatever the network does, and whatever their clocks
// say, they end with the same notes, and no edit is lost.

#include "examples/sync-folder/FolderServer.h"
#include "examples/sync-folder/NoteRecord.h"
#include "examples/sync-folder/SyncEngine.h"
#include "tarnmodel/sync/HostUUID.h"
#include "tests/support/LogCapture.h"
#include "tests/support/StoreFixture.h"

#include <algorithm>
#include <charconv>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iostream>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>

namespace tarn::syncfolder {
namespace {

/// One device: a store in memory, and its engine. Many are opened in one world, from whose random bytes a fixture with
/// a folder of its own would take some.
struct Device {
    HostUUID identifier;
    std::chrono::seconds skew{0}; ///< how far its clock is off
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator;
    std::unique_ptr<NSManagedObjectContext> context;
    std::unique_ptr<SyncEngine> engine;
};

/// A message under way: to the server, or from it to a device.
struct Message {
    std::size_t device = 0;
    std::variant<Request, Reply> content;
};

class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "tarn sync XXXXXX").string();
        if (!::mkdtemp(name.data()))
            throw std::runtime_error("no folder");
        path_ = name;
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

/// The first line of an edit's text names the edit.
std::string editOf(const OVNote& note)
{
    return note.title().value_or("");
}

/// Devices, their users and a network, all by the numbers of one seed.
class Simulation {
public:
    explicit Simulation(unsigned seed)
        : random_(seed),
          previousHost_(setHostUUIDProvider([this](std::chrono::seconds) { return current().identifier; })),
          server_(folder_.path())
    {
        world_.setClock([this] {
            time_ += std::chrono::milliseconds(7);
            return time_ + current().skew;
        });
        world_.setRandomBytes([this](std::span<std::byte> bytes) {
            std::generate(bytes.begin(), bytes.end(), [this] { return static_cast<std::byte>(random_() & 0xFFU); });
        });
        const unsigned count = 2 + chance(3);
        devices_.reserve(count);
        for (unsigned index = 0; index < count; ++index)
            addDevice(static_cast<std::byte>(index + 1));
    }
    ~Simulation()
    {
        devices_.clear();
        setHostUUIDProvider(previousHost_);
    }
    Simulation(const Simulation&) = delete;
    Simulation& operator=(const Simulation&) = delete;

    void step()
    {
        current_ = chance(static_cast<unsigned>(devices_.size()));
        const unsigned what = chance(10);
        if (what < 3)
            actAsUser();
        else if (what < 6)
            ask();
        else
            deliver();
    }

    /// Nobody edits any more and the network is sound: delivers what is under way, then lets all sync until they agree.
    bool settle()
    {
        while (!network_.empty())
            deliver();
        for (int round = 0; round < 40; ++round) {
            bool isQuiet = true;
            for (current_ = 0; current_ < devices_.size(); ++current_) {
                const std::string before = portrait();
                EXPECT_TRUE(synchronise(
                    *current().engine, [this](const Request& request) { return server_.answer(request); }, 2'000));
                isQuiet = isQuiet && before == portrait();
            }
            current_ = 0;
            if (isQuiet)
                return true;
        }
        return false;
    }

    void expectAgreement()
    {
        const std::string first = portrait();
        for (current_ = 0; current_ < devices_.size(); ++current_) {
            EXPECT_EQ(portrait(), first) << "device " << current_;
            EXPECT_FALSE(current().engine->nextUpload()) << "something is left to send on device " << current_;
        }
        current_ = 0;
    }

    /// Each edit that no later one was made upon is there, once; nothing else is.
    void expectEdits()
    {
        std::multiset<std::string> found;
        for (const OVNote* note : notes())
            found.insert(editOf(*note));
        EXPECT_EQ(found, std::multiset(edits_.begin(), edits_.end()));
    }

    std::size_t conflicts() const
    {
        std::size_t count = 0;
        for (const Device& device : devices_)
            count += device.engine->counts().conflicts;
        return count;
    }

private:
    Device& current() { return devices_[current_]; }
    unsigned chance(unsigned count) { return static_cast<unsigned>(random_() % count); }

    void addDevice(std::byte number)
    {
        current_ = devices_.size();
        Device& device = devices_.emplace_back();
        device.identifier = {HostUUIDStatus::Known, {number}};
        device.skew = std::chrono::seconds(static_cast<int>(chance(7'200)) - 3'600);
        device.coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
        NSError error;
        if (!device.coordinator->addPersistentStoreWithType(StoreType::InMemory, {}, {}, &error))
            throw std::runtime_error(error.localizedDescription());
        device.context = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
        device.context->setPersistentStoreCoordinator(device.coordinator);
        device.engine = std::make_unique<SyncEngine>(*device.context);
    }

    /// The notes that the user of the current device sees.
    std::vector<OVNote*> notes()
    {
        return OVNote::notesInManagedObjectContext(
            *current().context, NSPredicate::predicateWithFormat("permanentlyDeleted == NO"));
    }

    std::string textOfNewEdit()
    {
        const std::string edit = "Edit " + std::to_string(++editCount_);
        edits_.insert(edit);
        return "# " + edit + "\n\n#tag" + std::to_string(chance(5)) + " words of it";
    }

    void actAsUser()
    {
        const std::vector<OVNote*> all = notes();
        const unsigned what = chance(20);
        if (all.size() < 3 || (what < 2 && all.size() < 25)) {
            OVNote::noteWithText(textOfNewEdit(), *current().context);
            return;
        }
        OVNote& note = *all[chance(static_cast<unsigned>(all.size()))];
        if (what < 12) {
            edits_.erase(editOf(note));
            note.updateNoteWithText(textOfNewEdit());
        } else if (what < 15 || all.size() > 25) {
            edits_.erase(editOf(note));
            current().engine->deleteNote(note);
        } else if (what < 17)
            note.isPinned() ? note.unpin() : note.pin();
        else
            note.isTrashed() ? note.restoreFromTrash() : note.trash();
        const bool isToBeSaved = chance(2) == 0;
        EXPECT_TRUE(!isToBeSaved || current().context->save());
    }

    void ask()
    {
        if (chance(2) == 0)
            network_.push_back({current_, Request(current().engine->nextFetch())});
        else if (auto upload = current().engine->nextUpload())
            network_.push_back({current_, Request(std::move(*upload))});
    }

    /// Any message, not the oldest; some get lost, some come twice.
    void deliver()
    {
        if (network_.empty())
            return;
        const auto chosen = network_.begin() + chance(static_cast<unsigned>(network_.size()));
        const Message message = *chosen;
        if (chance(10) != 0)
            network_.erase(chosen);
        if (chance(10) == 0)
            return;
        current_ = message.device;
        if (const auto* request = std::get_if<Request>(&message.content))
            network_.push_back({message.device, server_.answer(*request)});
        else
            current().engine->receive(std::get<Reply>(message.content));
    }

    std::string portrait()
    {
        std::vector<std::string> lines;
        for (const OVNote* note : OVNote::allNotesInManagedObjectContext(*current().context)) {
            const CKRecord record = recordOfNote(*note, {"Notes"});
            std::string line = note->uniqueIdentifier().value_or("-") + ' ' + editOf(*note) + ' '
                + clockOf(record).stringRepresentation() + ' ' + note->conflictUniqueIdentifier().value_or("-");
            for (const bool flag : {note->isTrashed(), note->isPinned(), note->permanentlyDeletedValue()})
                line += flag ? " yes" : " no";
            lines.push_back(line + ' ' + iso8601String(note->modificationDate().value_or(NSDate())));
        }
        std::sort(lines.begin(), lines.end());
        std::string text;
        for (const std::string& line : lines)
            text += line + '\n';
        return text;
    }

    std::mt19937 random_;
    NSDate time_ = dateWithMicrosecondsSince1970(1'700'000'000'000'000);
    std::size_t current_ = 0;
    EnvironmentOverride world_;
    HostUUIDProvider previousHost_;
    TemporaryFolder folder_;
    FolderServer server_;
    std::vector<Device> devices_;
    std::vector<Message> network_;
    int editCount_ = 0;
    std::set<std::string> edits_; ///< that nobody has built upon, or deleted
};

int numberGiven(std::string_view variable, int otherwise)
{
    int number = otherwise;
    if (const auto given = Environment::current().variable(variable))
        std::from_chars(given->data(), given->data() + given->size(), number);
    return number;
}

constexpr int kPhases = 4;
constexpr int kStepsOfAPhase = 125;

/// TARN_SYNC_STEPS sets how many steps are taken; TARN_SYNC_SEED replays one seed alone.
TEST(SyncFolder, BringsDevicesToTheSameNotesWithoutLosingAnEdit)
{
    const int steps = numberGiven("TARN_SYNC_STEPS", 2'000);
    const int onlySeed = numberGiven("TARN_SYNC_SEED", 0);
    const int seeds = onlySeed > 0 ? 1 : std::max(1, steps / (kPhases * kStepsOfAPhase));
    std::size_t conflicts = 0;
    const LogCapture log;
    for (int index = 0; index < seeds; ++index) {
        const int seed = onlySeed > 0 ? onlySeed : index + 1;
        SCOPED_TRACE(testing::Message() << "replay with TARN_SYNC_SEED=" << seed);
        Simulation simulation(static_cast<unsigned>(seed));
        for (int phase = 0; phase < kPhases; ++phase) {
            for (int step = 0; step < kStepsOfAPhase; ++step)
                simulation.step();
            ASSERT_TRUE(simulation.settle()) << "the devices do not come to an end";
            simulation.expectAgreement();
            simulation.expectEdits();
            ASSERT_FALSE(HasFailure()) << "in phase " << phase;
        }
        conflicts += simulation.conflicts();
    }
    std::cout << seeds << " seeds of " << kPhases * kStepsOfAPhase << " steps, " << conflicts << " conflicts\n";
    EXPECT_GT(conflicts, 0U) << "nobody ever edited what another one edited";
}

TEST(SyncFolder, BringsBackANoteThatWasDeletedWithoutATombstone)
{
    const TemporaryFolder folder;
    const FolderServer server(folder.path());
    const auto ask = [&](const Request& request) { return server.answer(request); };
    TestStore store(StoreType::InMemory);
    store.open();
    NSManagedObjectContext& context = store.context();
    OVNote* note = OVNote::noteWithText("# Pears", context);
    OVNote::noteWithText("# Private", context)->setSkipSyncValue(true);
    store.save();

    SyncEngine engine(context); // knows what was there before it
    ASSERT_TRUE(synchronise(engine, ask));
    EXPECT_EQ(engine.counts().sent, 1U) << "the private one stays";
    context.deleteObject(*note);
    ASSERT_TRUE(synchronise(engine, ask)); // sees that it is gone
    ASSERT_TRUE(synchronise(engine, ask));
    EXPECT_TRUE(OVNote::noteWithTitle("Pears", context));

    engine.deleteNote(*OVNote::noteWithTitle("Pears", context));
    ASSERT_TRUE(synchronise(engine, ask));
    ASSERT_TRUE(synchronise(engine, ask));
    EXPECT_THAT(OVNote::allNotesInManagedObjectContext(context), testing::SizeIs(1)) << "gone for good";
    EXPECT_EQ(engine.counts().conflicts, 0U);
}

} // namespace
} // namespace tarn::syncfolder
