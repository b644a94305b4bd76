// The three kinds of stack with too few threads and too little memory: an error or success, no hang, nothing lost.

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/foundation/events/GlobalPoolInternal.h"
#include "tarnmodel/store/OVCoreDataStackForExtensions.h"
#include "tarnmodel/store/OVCoreDataStackForWidgets.h"
#include "tests/store/StackFixture.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <limits>
#include <system_error>
#include <thread>
#include <utility>

namespace tarn {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSubsetOf;
using testing::UnorderedElementsAre;

constexpr int kDone = 0;
constexpr int kWrong = 1;
constexpr int kRefused = 3; ///< an error, and the store as it was

/// Each case runs in a process of its own.
class StackShortage : public StackFixture, public testing::WithParamInterface<int> {
protected:
    StackShortage() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    static void giveThreads(int most)
    {
        ::alarm(60); // a hang is a failure too
        GlobalPool::shared().setThreadStarter([left = std::make_shared<int>(most)](Task work) {
            if (--*left < 0)
                throw std::system_error(EAGAIN, std::generic_category());
            return std::thread(std::move(work));
        });
    }
    [[noreturn]] void end(int code) const
    {
        std::error_code failure;
        std::filesystem::remove_all(folder(), failure);
        // The parent shows what is on standard error.
        const testing::TestResult& result = *testing::UnitTest::GetInstance()->current_test_info()->result();
        for (int part = 0; part < result.total_part_count(); ++part)
            std::cerr << result.GetTestPartResult(part).message() << "\n";
        std::_Exit(HasFailure() ? kWrong : code);
    }
    void saveFirstNote()
    {
        OVCoreDataStack stack;
        stack.setupStack();
        noteTitled("first", *stack.managedObjectContext());
        stack.saveUsingCoalescence(false);
    }

    // What a process does with its stack; an error where that is refused.
    std::optional<NSError> workAsApplication();
    static std::optional<NSError> workAsExtension();
    static std::optional<NSError> workAsWidget();

    template <typename Work> [[noreturn]] void runWithMemory(std::size_t bytes, const Work& work);
};

std::optional<NSError> StackShortage::workAsApplication()
{
    OVCoreDataStack stack;
    stack.setupStackWithDelegate(&listener_);
    runUntil([&] { return stack.managedObjectContext() || listener_.error; });
    if (!stack.managedObjectContext())
        return listener_.error;
    noteTitled("second", *stack.managedObjectContext());
    stack.saveUsingCoalescence(true);
    bool ended = false;
    stack.performBackgroundTask([&](NSManagedObjectContext& child) {
        noteTitled("third", child);
        NSError error;
        if (!child.save(&error))
            MainQueue::main().async([this, error] { listener_.error = error; });
        MainQueue::main().async([&] { ended = true; });
    });
    runUntil([&] { return listener_.error || (ended && !stack.managedObjectContext()->hasChanges()); });
    return listener_.error;
}

std::optional<NSError> StackShortage::workAsExtension()
{
    NSError error;
    const auto stack = OVCoreDataStackForExtensions::initStackOutputError(&error);
    if (!stack)
        return error;
    noteTitled("second", *stack->managedObjectContext());
    const auto child = stack->backgroundPrivateManagedObjectContext();
    bool saved = false;
    child->performBlockAndWait([&] {
        noteTitled("third", *child);
        saved = child->save(&error);
    });
    if (!saved || !stack->managedObjectContext()->save(&error))
        return error;
    return std::nullopt;
}

std::optional<NSError> StackShortage::workAsWidget()
{
    NSError error;
    const auto stack = OVCoreDataStackForWidgets::initStack(&error);
    if (!stack)
        return error;
    std::optional<std::vector<NSManagedObject*>> found;
    NSManagedObjectContext& context = *stack->managedObjectContext();
    context.performBlockAndWait(
        [&] { found = context.fetch(NSFetchRequest(OVNote::entityInManagedObjectContext(context)), &error); });
    if (!found)
        return error;
    EXPECT_EQ(found->size(), 1U);
    return std::nullopt;
}

TEST_P(StackShortage, OfThreadsLetsAMigrationEnd)
{
    EXPECT_EXIT(
        {
            giveThreads(GetParam());
            makeStoreOfVersion("Model 2");
            OVCoreDataStack stack;
            stack.setupStackWithDelegate(&listener_);
            runUntil([&] { return stack.managedObjectContext() || listener_.error; });
            EXPECT_THAT(listener_.events, ElementsAre("migration of 100", "migrated: Model 3", "initialized"));
            end(kDone);
        },
        testing::ExitedWithCode(kDone), "");
}

TEST_P(StackShortage, OfThreadsIsNoMatterToAnApplication)
{
    EXPECT_EXIT(
        {
            giveThreads(GetParam());
            EXPECT_EQ(workAsApplication(), std::nullopt);
            EXPECT_THAT(listener_.events, Contains("initialized"));
            EXPECT_THAT(titlesInStore(), UnorderedElementsAre("second", "third"));
            end(kDone);
        },
        testing::ExitedWithCode(kDone), "");
}

TEST_P(StackShortage, OfThreadsIsNoMatterToAnExtension)
{
    EXPECT_EXIT(
        {
            giveThreads(GetParam());
            EXPECT_EQ(workAsExtension(), std::nullopt);
            EXPECT_THAT(titlesInStore(), UnorderedElementsAre("second", "third"));
            end(kDone);
        },
        testing::ExitedWithCode(kDone), "");
}

TEST_P(StackShortage, OfThreadsIsNoMatterToAWidget)
{
    EXPECT_EXIT(
        {
            giveThreads(GetParam());
            saveFirstNote();
            EXPECT_EQ(workAsWidget(), std::nullopt);
            end(kDone);
        },
        testing::ExitedWithCode(kDone), "");
}

INSTANTIATE_TEST_SUITE_P(
    Threads, StackShortage, testing::Values(0, 1, 2), [](const auto& info) { return std::to_string(info.param); });

constexpr std::size_t kKilobyte = 1'024;
constexpr std::size_t kEnough = 64 * kKilobyte * kKilobyte;

#ifndef TARN_SANITIZED // sanitizers map more memory than any limit allows

/// Nothing more can be had while it lives, but what it gives back.
class MemoryEater {
public:
    MemoryEater()
    {
        ::getrlimit(RLIMIT_AS, &usual_);
        std::size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        const rlimit limit{pages * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)), usual_.rlim_max};
        ::setrlimit(RLIMIT_AS, &limit);
        // What the process has mapped and does not use. Pieces are chained through their first bytes.
        while (Piece* const piece = static_cast<Piece*>(std::malloc(sizeof(Piece)))) {
            piece->next = pieces_;
            pieces_ = piece;
        }
    }
    ~MemoryEater()
    {
        giveBack(std::numeric_limits<std::size_t>::max());
        ::setrlimit(RLIMIT_AS, &usual_);
    }
    MemoryEater(const MemoryEater&) = delete;
    MemoryEater& operator=(const MemoryEater&) = delete;

    void giveBack(std::size_t bytes)
    {
        rlimit limit{};
        ::getrlimit(RLIMIT_AS, &limit);
        for (; pieces_ && bytes >= sizeof(Piece); bytes -= sizeof(Piece))
            std::free(std::exchange(pieces_, pieces_->next));
        limit.rlim_cur += pieces_ ? 0 : std::min(bytes, kEnough);
        ::setrlimit(RLIMIT_AS, &limit);
    }

private:
    struct Piece {
        Piece* next;
        char rest[4'000];
    };

    rlimit usual_{};
    Piece* pieces_ = nullptr;
};

/// With so much and no more. The model has been read by then: its reader, a library, ends the process when it has no
/// memory for its end.
template <typename Work> void StackShortage::runWithMemory(std::size_t bytes, const Work& work)
{
    ::alarm(60);
    saveFirstNote();
    std::optional<NSError> error;
    bool threw = false;
    {
        MemoryEater eater;
        eater.giveBack(bytes);
        try {
            error = work();
        } catch (const std::exception&) {
            threw = true;
        }
    }
    EXPECT_THAT(titlesInStore(), Contains("first"));
    EXPECT_THAT(titlesInStore(), IsSubsetOf({"first", "second", "third"}));
    end(error || threw ? kRefused : kDone);
}

bool endedInOneOfTheWays(int status)
{
    return WIFEXITED(status) && (WEXITSTATUS(status) == kDone || WEXITSTATUS(status) == kRefused);
}

TEST_F(StackShortage, OfMemoryEndsInAnErrorAndLosesNothing)
{
    const bool isLong = std::getenv("TARN_EVERY_LIMIT");
    for (std::size_t bytes = 16 * kKilobyte; bytes <= 4'096 * kKilobyte; bytes += isLong ? 16 * kKilobyte : bytes) {
        SCOPED_TRACE(bytes / kKilobyte);
        EXPECT_EXIT(runWithMemory(bytes, [&] { return workAsApplication(); }), endedInOneOfTheWays, "");
        EXPECT_EXIT(runWithMemory(bytes, [] { return workAsExtension(); }), endedInOneOfTheWays, "");
        EXPECT_EXIT(runWithMemory(bytes, [] { return workAsWidget(); }), endedInOneOfTheWays, "");
    }
}

TEST_F(StackShortage, OfMemoryIsNoneWithEnoughAndSomeWithNone)
{
    EXPECT_EXIT(runWithMemory(0, [&] { return workAsApplication(); }), testing::ExitedWithCode(kRefused), "");
    EXPECT_EXIT(runWithMemory(kEnough, [&] { return workAsApplication(); }), testing::ExitedWithCode(kDone), "");
    EXPECT_EXIT(runWithMemory(kEnough, [] { return workAsExtension(); }), testing::ExitedWithCode(kDone), "");
    EXPECT_EXIT(runWithMemory(kEnough, [] { return workAsWidget(); }), testing::ExitedWithCode(kDone), "");
}

#endif

} // namespace
} // namespace tarn
