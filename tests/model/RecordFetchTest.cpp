#include "tarnmodel/model/RecordFetch.h"

#include "tarnmodel/model/OVNote.h"
#include "tests/support/LogCapture.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;

TEST(RecordFetch, LogsWhatAFailureSaysOfItself)
{
    LogCapture log;
    logFetchFailure(NSError("TarnStore", 1, "The store is damaged."));
    logFetchFailure(NSError("TarnStore", 1, ""));
    EXPECT_THAT(
        log.take(), ElementsAre("Error while fetching\nThe store is damaged.", "Error while fetching\nUnknown Error"));
}

using FetchedRecords = StoreFixture;
INSTANTIATE_TEST_SUITE_P(Stores, FetchedRecords, everyStore(), storeName);

TEST_P(FetchedRecords, TellAFailureFromAnEmptyAnswer)
{
    LogCapture log;
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context()));
    EXPECT_EQ(fetchRecords<OVNote>(request, context()), std::vector<OVNote*>());
    EXPECT_THAT(log.take(), testing::IsEmpty());

    request.predicate = NSPredicate::predicateWithFormat("flavour == 1");
    EXPECT_EQ(fetchRecords<OVNote>(request, context()), std::nullopt);
    EXPECT_THAT(log.take(), ElementsAre(testing::StartsWith("Error while fetching\n")));
}

} // namespace
} // namespace tarn
