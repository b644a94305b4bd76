// A program that opens a store, writes, searches and saves in the library hears and sees nothing of that: no output, no
// thread, no end of the process.

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tests/store/StackFixture.h"

#include <cstdlib>
#include <filesystem>
#include <iterator>

using namespace tarn;

namespace {

class Guest : public StackFixture {
protected:
    Guest() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

    /// An hour at the desk, in short.
    static void work(OVCoreDataStack& stack)
    {
        stack.setupStack();
        NSManagedObjectContext& context = *stack.managedObjectContext();
        for (int number = 0; number < 20; ++number)
            OVNote::noteWithText(
                "# Note " + std::to_string(number) + "\n\nPears for [[Note 0]] #home/kitchen", context);
        stack.saveUsingCoalescence(true);
        MainQueue::main().drain();
        MainQueue::main().drain();
        const auto wanted = OVNoteSearchManager::predicateForSearchString("pears #home");
        if (context.hasChanges() || OVNote::notesInManagedObjectContext(context, wanted).size() != 20)
            std::_Exit(2);
    }

    static std::ptrdiff_t threads()
    {
        const std::filesystem::directory_iterator tasks("/proc/self/task");
        return std::distance(begin(tasks), end(tasks));
    }
};

TEST_F(Guest, StartsNoThreadForWhatRunsOnTheMainQueue)
{
#ifdef TARN_SANITIZED
    GTEST_SKIP() << "a sanitizer has threads of its own";
#endif
    const auto run = [] {
        OVCoreDataStack stack;
        const std::ptrdiff_t before = threads();
        work(stack);
        std::_Exit(before == 1 && threads() == 1 ? 0 : 1);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(Guest, PrintsNothing)
{
    const auto run = [] {
        setLogSink({});
        ::testing::internal::CaptureStdout();
        OVCoreDataStack stack;
        work(stack);
        std::_Exit(::testing::internal::GetCapturedStdout().empty() ? 0 : 1);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), testing::Eq(""));
}

} // namespace
