#pragma once

#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/system/Log.h"

namespace tarn {

/// Two writers of one store; the log is silent, for what gives way is told there.
class ConflictTest : public ContextTest {
protected:
    void SetUp() override
    {
        ContextTest::SetUp();
        former_ = setLogSink([](std::string_view) {});
    }
    void TearDown() override
    {
        setLogSink(former_);
        ContextTest::TearDown();
    }

    /// Another writer changes what is stored, and saves.
    template <typename Change> void elsewhere(const NSManagedObject& record, Change&& change)
    {
        const auto other = contextOn(coordinator_);
        change(*other, *other->existingObjectWithID(record.objectID()));
        NSError error;
        ASSERT_TRUE(other->save(&error)) << error;
    }
    void deleteElsewhere(const NSManagedObject& record)
    {
        elsewhere(record, [](NSManagedObjectContext& other, NSManagedObject& there) { other.deleteObject(there); });
    }
    void mergeUpdate(const NSManagedObject& record)
    {
        NSManagedObjectContext* const contexts[] = {context_.get()};
        NSManagedObjectContext::mergeChangesFromRemoteContextSave({{}, {record.objectID()}, {}}, contexts);
    }
    void mergeDeletion(const NSManagedObjectID& objectID)
    {
        NSManagedObjectContext* const contexts[] = {context_.get()};
        NSManagedObjectContext::mergeChangesFromRemoteContextSave({{}, {}, {objectID}}, contexts);
    }

private:
    LogSink former_;
};

} // namespace tarn
