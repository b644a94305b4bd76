#include "tarnmodel/platform/foundation/events/NSProgress.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <thread>
#include <vector>

using namespace tarn;
using testing::ElementsAre;

namespace {

TEST(NSProgress, TellsHowMuchIsDone)
{
    const auto progress = NSProgress::progressWithTotalUnitCount(8);
    EXPECT_EQ(progress->totalUnitCount(), 8);
    EXPECT_EQ(progress->completedUnitCount(), 0);
    EXPECT_EQ(progress->fractionCompleted(), 0.0);
    progress->setCompletedUnitCount(2);
    EXPECT_EQ(progress->fractionCompleted(), 0.25);
    EXPECT_FALSE(progress->isFinished());
    progress->setCompletedUnitCount(8);
    EXPECT_EQ(progress->fractionCompleted(), 1.0);
    EXPECT_TRUE(progress->isFinished());
}

TEST(NSProgress, StaysBetweenNothingAndAll)
{
    const auto progress = NSProgress::progressWithTotalUnitCount(4);
    progress->setCompletedUnitCount(-1);
    EXPECT_EQ(progress->fractionCompleted(), 0.0);
    progress->setCompletedUnitCount(5);
    EXPECT_EQ(progress->fractionCompleted(), 1.0);
}

TEST(NSProgress, KnowsNoFractionOfAnUnknownTotal)
{
    const auto progress = NSProgress::progressWithTotalUnitCount(0);
    progress->setCompletedUnitCount(3);
    EXPECT_TRUE(progress->isIndeterminate());
    EXPECT_FALSE(progress->isFinished());
    EXPECT_EQ(progress->fractionCompleted(), 0.0);
    progress->setTotalUnitCount(6);
    EXPECT_FALSE(progress->isIndeterminate());
    EXPECT_EQ(progress->fractionCompleted(), 0.5);
}

TEST(NSProgress, IsCurrentOnOneThread)
{
    const auto progress = NSProgress::progressWithTotalUnitCount(1);
    EXPECT_EQ(NSProgress::currentProgress(), nullptr);
    progress->becomeCurrentWithPendingUnitCount(0);
    EXPECT_EQ(NSProgress::currentProgress(), progress);
    std::thread([] { EXPECT_EQ(NSProgress::currentProgress(), nullptr); }).join();
    progress->resignCurrent();
    EXPECT_EQ(NSProgress::currentProgress(), nullptr);
}

TEST(NSProgress, NestsTurns)
{
    const auto outer = NSProgress::discreteProgressWithTotalUnitCount(1);
    const auto inner = NSProgress::discreteProgressWithTotalUnitCount(1);
    outer->becomeCurrentWithPendingUnitCount(0);
    inner->becomeCurrentWithPendingUnitCount(0);
    EXPECT_THROW(outer->resignCurrent(), NSException) << "not its turn";
    EXPECT_EQ(NSProgress::currentProgress(), inner);
    inner->resignCurrent();
    EXPECT_EQ(NSProgress::currentProgress(), outer);
    outer->resignCurrent();
    EXPECT_THROW(outer->resignCurrent(), NSException);
}

TEST(NSProgress, CompletesPendingUnitsOfATurnWithoutAChild)
{
    const auto progress = NSProgress::progressWithTotalUnitCount(10);
    progress->becomeCurrentWithPendingUnitCount(4);
    EXPECT_EQ(progress->completedUnitCount(), 0);
    progress->resignCurrent();
    EXPECT_EQ(progress->completedUnitCount(), 4);
    progress->becomeCurrentWithPendingUnitCount(0);
    progress->resignCurrent();
    EXPECT_EQ(progress->completedUnitCount(), 4);
}

TEST(NSProgress, CountsAChildForItsPendingUnits)
{
    const auto parent = NSProgress::progressWithTotalUnitCount(10);
    parent->becomeCurrentWithPendingUnitCount(5);
    const auto child = NSProgress::progressWithTotalUnitCount(100);
    const auto stranger = NSProgress::progressWithTotalUnitCount(100);
    parent->resignCurrent();
    EXPECT_EQ(parent->completedUnitCount(), 0) << "the child completes them";

    stranger->setCompletedUnitCount(100);
    EXPECT_EQ(parent->fractionCompleted(), 0.0) << "only the first one of a turn belongs to it";
    child->setCompletedUnitCount(40);
    EXPECT_DOUBLE_EQ(parent->fractionCompleted(), 0.2);
    EXPECT_EQ(parent->completedUnitCount(), 0);
    child->setCompletedUnitCount(100);
    EXPECT_EQ(parent->completedUnitCount(), 5);
    EXPECT_DOUBLE_EQ(parent->fractionCompleted(), 0.5);
    child->setCompletedUnitCount(100);
    EXPECT_EQ(parent->completedUnitCount(), 5) << "once";
}

TEST(NSProgress, TellsItsObserversAndThoseOfItsParent)
{
    const auto parent = NSProgress::progressWithTotalUnitCount(2);
    parent->becomeCurrentWithPendingUnitCount(1);
    auto child = NSProgress::progressWithTotalUnitCount(2);
    parent->resignCurrent();
    std::vector<double> ofParent;
    std::vector<std::int64_t> ofChild;
    auto watchingParent
        = parent->observe([&](const NSProgress& progress) { ofParent.push_back(progress.fractionCompleted()); });
    auto watchingChild
        = child->observe([&](const NSProgress& progress) { ofChild.push_back(progress.completedUnitCount()); });

    child->setCompletedUnitCount(1);
    watchingChild.cancel();
    child->setCompletedUnitCount(2);
    child.reset();
    parent->setCompletedUnitCount(2);

    EXPECT_THAT(ofChild, ElementsAre(1));
    EXPECT_THAT(ofParent, ElementsAre(0.25, 0.5, 1.0));
}

/// A progress of so many units that stands for one of `parent`.
std::shared_ptr<NSProgress> partOf(const std::shared_ptr<NSProgress>& parent, std::int64_t units)
{
    parent->becomeCurrentWithPendingUnitCount(1);
    auto part = NSProgress::progressWithTotalUnitCount(units);
    parent->resignCurrent();
    return part;
}

TEST(NSProgress, ChildrenThatFinishNeverTakeAStepBack)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 300; ++round) {
        const auto parent = NSProgress::discreteProgressWithTotalUnitCount(7);
        std::vector<std::shared_ptr<NSProgress>> steps;
        for (int i = 0; i < 7; ++i) {
            steps.push_back(partOf(partOf(parent, 1), 500));
            steps.back()->setCompletedUnitCount(static_cast<std::int64_t>(random() % 500));
        }
        double last = parent->fractionCompleted();
        const auto look = [&] {
            EXPECT_GE(parent->fractionCompleted(), last);
            last = parent->fractionCompleted();
        };
        for (; !steps.empty(); steps.pop_back()) {
            // Told when the child of `parent` is done and has not left it yet.
            const auto watching = steps.back()->observe([&](const NSProgress&) { look(); });
            steps.back()->setCompletedUnitCount(500);
            look();
        }
        EXPECT_EQ(last, 1);
    }
}

TEST(NSProgress, MayBeMovedAndWatchedByManyThreads)
{
    const auto parent = NSProgress::discreteProgressWithTotalUnitCount(4);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&parent] {
            parent->becomeCurrentWithPendingUnitCount(1);
            const auto child = NSProgress::progressWithTotalUnitCount(500);
            parent->resignCurrent();
            for (int unit = 1; unit <= 500; ++unit)
                child->setCompletedUnitCount(unit);
        });
    double last = 0;
    while (!parent->isFinished()) {
        const double fraction = parent->fractionCompleted();
        EXPECT_GE(fraction, last);
        last = fraction;
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(parent->completedUnitCount(), 4);
}

TEST(NSProgress, IsCancelledOnce)
{
    const auto progress = NSProgress::progressWithTotalUnitCount(2);
    int calls = 0;
    progress->setCancellationHandler([&] { ++calls; });
    EXPECT_FALSE(progress->isCancelled());
    std::thread([&] { progress->cancel(); }).join();
    EXPECT_TRUE(progress->isCancelled());
    EXPECT_EQ(calls, 1);
    progress->cancel();
    EXPECT_EQ(calls, 1);
}

TEST(NSProgress, TellsOfACancellationThatCameBefore)
{
    const auto progress = NSProgress::progressWithTotalUnitCount(2);
    progress->cancel();
    int calls = 0;
    progress->setCancellationHandler([&] { ++calls; });
    EXPECT_EQ(calls, 1);
}

TEST(NSProgress, ForgetsAHandlerThatWasTakenBack)
{
    const auto progress = NSProgress::progressWithTotalUnitCount(2);
    int calls = 0;
    progress->setCancellationHandler([&] { ++calls; });
    progress->setCancellationHandler({});
    progress->cancel();
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(progress->isCancelled());
}

TEST(NSProgress, CancelsItsChildrenButNotItsParent)
{
    const auto parent = NSProgress::progressWithTotalUnitCount(3);
    const auto childOf = [&] {
        parent->becomeCurrentWithPendingUnitCount(1);
        auto child = NSProgress::progressWithTotalUnitCount(1);
        parent->resignCurrent();
        return child;
    };
    const auto first = childOf();
    const auto second = childOf();
    first->cancel();
    EXPECT_FALSE(parent->isCancelled());
    parent->cancel();
    EXPECT_TRUE(second->isCancelled());
}

} // namespace
