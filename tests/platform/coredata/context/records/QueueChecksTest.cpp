#include "tarnmodel/platform/coredata/QueueChecks.h"
#include "tarnmodel/platform/coredata/KeyValueObservation.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tests/platform/coredata/context/ContextFixture.h"

#include <functional>
#include <mutex>
#include <sstream>
#include <thread>
#include <tuple>

namespace tarn {

using testing::ContainsRegex;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class QueueChecksTest : public ContextTest {
protected:
    QueueChecksTest()
        : previousSink_(setLogSink([this](std::string_view line) {
              const std::lock_guard lock(mutex_);
              lines_.emplace_back(line);
          }))
    { }
    ~QueueChecksTest() override
    {
        setLogSink(previousSink_);
        setQueueChecks(std::nullopt);
    }

    std::vector<std::string> takeLines()
    {
        const std::lock_guard lock(mutex_);
        return std::exchange(lines_, {});
    }
    /// What is logged when another queue does this.
    std::vector<std::string> linesOf(const std::function<void()>& use)
    {
        takeLines();
        SerialQueue::make("elsewhere")->sync(use);
        return takeLines();
    }

    EnvironmentOverride world_;

private:
    LogSink previousSink_;
    std::mutex mutex_;
    std::vector<std::string> lines_;
};

} // namespace

TEST_P(QueueChecksTest, NameTheRecordTheQueuesAndTheThread)
{
    setQueueChecks(QueueChecks::Log);
    NSManagedObject& book = context_->insertObject("Book");
    NSManagedObject& shelf = context_->insertObject("Shelf");
    book.setValueForKey("title", Value("One"));
    ASSERT_TRUE(context_->save());
    const std::string wanted = "The record " + book.objectID().URIRepresentation()
        + " of the queue \"main\" was used on the queue \"elsewhere\" \\(thread 0x[0-9a-f]+\\)";

    for (const std::function<void()>& use : std::vector<std::function<void()>>{[&] { book.valueForKey("title"); },
             [&] { book.setValueForKey("pages", Value(std::int64_t(3))); }, [&] { book.valueForKey("shelves"); },
             [&] { book.committedValuesForKeys({"title"}); }, [&] { context_->refreshObject(book, true); },
             [&] { std::ignore = book.addObserver("title", [](auto&&...) {}); }, [&] { context_->deleteObject(book); }})
        EXPECT_THAT(linesOf(use), testing::Contains(ContainsRegex(wanted)));
    EXPECT_THAT(linesOf([&] { shelf.valueForKey("name"); }),
        testing::Each(testing::HasSubstr(shelf.objectID().URIRepresentation())));

    std::ostringstream thread;
    std::thread([&] {
        thread << "a thread without a queue (thread " << std::hex << std::showbase << std::this_thread::get_id() << ")";
        shelf.valueForKey("name");
    }).join();
    EXPECT_THAT(takeLines(), testing::Contains(testing::HasSubstr(thread.str())));
}

TEST_P(QueueChecksTest, CoverTheContext)
{
    setQueueChecks(QueueChecks::Log);
    const NSManagedObjectID key = context_->insertObject("Book").objectID();
    ASSERT_TRUE(context_->save());
    const NSFetchRequest request(*model_->entityNamed("Book"));
    for (const std::function<void()>& use : std::vector<std::function<void()>>{
             [&] { context_->executeFetchRequest(request); }, [&] { context_->countForFetchRequest(request); },
             [&] { context_->objectWithID(key); }, [&] { context_->existingObjectWithID(key); },
             [&] { context_->objectRegisteredForID(key); }, [&] { context_->registeredObjects(); },
             [&] { context_->hasChanges(); }, [&] { context_->insertedObjects(); }, [&] { context_->updatedObjects(); },
             [&] { context_->deletedObjects(); }, [&] { context_->insertObject("Book"); }, [&] { context_->save(); },
             [&] { context_->processPendingChanges(); }, [&] { context_->rollback(); },
             [&] { context_->refreshAllObjects(); }, [&] { context_->reset(); }})
        EXPECT_THAT(linesOf(use),
            testing::Contains(ContainsRegex("A context of the queue \"main\" was used on the queue \"elsewhere\"")));
}

TEST_P(QueueChecksTest, SayNothingOnTheRightQueueOrWhenTheyAreOff)
{
    setQueueChecks(QueueChecks::Log);
    NSManagedObject& book = context_->insertObject("Book");
    book.setValueForKey("title", Value("One"));
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    child.setParentContext(*context_);
    child.performBlockAndWait([&] {
        child.insertObject("Shelf").setValueForKey("name", Value("left"));
        EXPECT_TRUE(child.save());
    });
    ASSERT_TRUE(context_->save());
    EXPECT_THAT(takeLines(), IsEmpty());
    setQueueChecks(QueueChecks::Off);
    EXPECT_THAT(linesOf([&] { book.valueForKey("title"); }), IsEmpty());
}

TEST_P(QueueChecksTest, AreSwitchedOnByTheEnvironment)
{
    for (const auto& [value, checks] :
        {std::pair{"off", QueueChecks::Off}, {"log", QueueChecks::Log}, {"abort", QueueChecks::Abort}}) {
        world_.setVariable("TARN_QUEUE_CHECKS", value);
        setQueueChecks(std::nullopt);
        EXPECT_EQ(queueChecks(), checks) << value;
    }
    setQueueChecks(QueueChecks::Off);
    EXPECT_EQ(queueChecks(), QueueChecks::Off) << "what the program says goes first";
    EXPECT_THAT(takeLines(), IsEmpty());
    world_.setVariable("TARN_QUEUE_CHECKS", "perhaps");
    setQueueChecks(std::nullopt);
    const QueueChecks usual = queueChecks();
    EXPECT_THAT(takeLines(), testing::ElementsAre("TARN_QUEUE_CHECKS is \"perhaps\"; it can be off, log or abort."));
    world_.setVariable("TARN_QUEUE_CHECKS", std::nullopt);
    setQueueChecks(std::nullopt);
    EXPECT_EQ(queueChecks(), usual);
}

INSTANTIATE_TEST_SUITE_P(Stores, QueueChecksTest, testing::Values(StoreType::InMemory), storeTypeName);

} // namespace tarn
