#include "tarnmodel/platform/coredata/SaveParticipant.h"

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down what it is told; what was unsaved goes to the parent.
class Diary final : public SaveParticipant {
public:
    explicit Diary(std::vector<std::string>& lines) : lines_(lines) { }
    bool mayBeSaved = true;

    bool prepareForSave(NSError* error) override
    {
        lines_.emplace_back("prepare");
        assignError(error, NSError("diary", 1, "not yet"));
        return mayBeSaved;
    }
    void didSave(NSManagedObjectContext& context) override
    {
        lines_.emplace_back(context.hasChanges() ? "saved?" : "saved");
    }
    void didSaveIntoParent(NSManagedObjectContext& parent) override
    {
        lines_.emplace_back(parent.hasChanges() ? "into parent" : "into parent?");
    }
    void didDropChanges() override { lines_.emplace_back("dropped"); }

private:
    std::vector<std::string>& lines_;
};

class Participant : public testing::TestWithParam<StoreType> {
protected:
    Participant()
    {
        context_->setPersistentStoreCoordinator(coordinator());
        diary_ = &join(*context_, lines_);
    }

    std::shared_ptr<NSPersistentStoreCoordinator> coordinator()
    {
        auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(storeTestModel());
        NSError error;
        EXPECT_TRUE(coordinator->addPersistentStoreWithType(GetParam(), folder_.file(), {}, &error)) << error;
        return coordinator;
    }
    static Diary& join(NSManagedObjectContext& context, std::vector<std::string>& lines)
    {
        auto diary = std::make_unique<Diary>(lines);
        Diary& joined = *diary;
        context.addSaveParticipant(std::move(diary));
        return joined;
    }
    NSManagedObject& insertInto(NSManagedObjectContext& context) const
    {
        return context.insertObject(*context.managedObjectModel().entities().front());
    }
    std::vector<std::string> take() { return std::exchange(lines_, {}); }

    TestFolder folder_;
    std::vector<std::string> lines_;
    std::unique_ptr<NSManagedObjectContext> context_
        = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
    Diary* diary_ = nullptr;
};
INSTANTIATE_TEST_SUITE_P(Stores, Participant, testing::Values(StoreType::SQLite, StoreType::InMemory),
    [](const auto& type) { return type.param == StoreType::SQLite ? "SQLite" : "InMemory"; });

TEST_P(Participant, IsReadyBeforeTheLockAndBeforeTheCommit)
{
    insertInto(*context_);
    ASSERT_TRUE(context_->save());
    EXPECT_THAT(take(), ElementsAre("prepare", "prepare", "saved"));
    EXPECT_THAT(context_->saveParticipants(), ElementsAre(diary_));
}

TEST_P(Participant, CanRefuseTheSave)
{
    insertInto(*context_);
    diary_->mayBeSaved = false;
    NSError error;
    EXPECT_FALSE(context_->save(&error));
    EXPECT_EQ(error, NSError("diary", 1, "not yet"));
    EXPECT_THAT(take(), ElementsAre("prepare"));
    EXPECT_TRUE(context_->hasChanges());
    diary_->mayBeSaved = true;
    EXPECT_TRUE(context_->save());
}

TEST_P(Participant, HearsOfASaveWithNothingLeftToBeWritten)
{
    context_->deleteObject(insertInto(*context_));
    ASSERT_TRUE(context_->save());
    EXPECT_THAT(take(), ElementsAre("saved"));
}

TEST_P(Participant, HearsOfWhateverDropsChanges)
{
    insertInto(*context_);
    context_->rollback();
    EXPECT_THAT(take(), ElementsAre("dropped"));
    context_->reset();
    EXPECT_THAT(take(), ElementsAre("dropped"));
    EXPECT_THROW(context_->performExclusive([] { throw std::runtime_error("no"); }), std::runtime_error);
    EXPECT_THAT(take(), ElementsAre("dropped"));
    context_.reset();
    EXPECT_THAT(take(), ElementsAre("dropped"));
}

TEST_P(Participant, OfAChildHearsOfItOnTheParentsQueueAndIsNotAskedBefore)
{
    std::vector<std::string> ofChild;
    {
        NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
        child.setParentContext(*context_);
        child.performBlockAndWait([&] {
            join(child, ofChild).mayBeSaved = false;
            insertInto(child);
            NSError error;
            EXPECT_TRUE(child.save(&error)) << error;
        });
        EXPECT_THAT(std::exchange(ofChild, {}), ElementsAre("into parent"));
    }
    EXPECT_THAT(ofChild, ElementsAre("dropped")) << "what it has left, which is nothing";
    EXPECT_THAT(take(), IsEmpty());
    ASSERT_TRUE(context_->save());
    EXPECT_THAT(take(), ElementsAre("prepare", "prepare", "saved"));
}

} // namespace
} // namespace tarn
