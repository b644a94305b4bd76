#include "tarnmodel/platform/foundation/events/NSProgress.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace tarn {

namespace {

constexpr std::string_view kDidChange = "NSProgressDidChange";

/// One `becomeCurrent` that was not resigned yet.
struct Turn {
    std::shared_ptr<NSProgress> progress;
    std::int64_t pendingUnits = 0;
    bool hasChild = false;
};

std::vector<Turn>& turnsOfThisThread()
{
    thread_local std::vector<Turn> turns;
    return turns;
}

} // namespace

struct NSProgress::State {
    struct Child {
        std::shared_ptr<NSProgress> progress;
        std::int64_t pendingUnits = 0;
    };

    mutable std::mutex mutex; ///< never held while that of another progress is taken
    std::int64_t total = 0;
    std::int64_t completed = 0;
    std::vector<Child> children; ///< unfinished ones
    std::weak_ptr<NSProgress> parent;
    NSNotificationCenter observers;
    bool isCancelled = false;
    std::function<void()> cancellationHandler;
};

NSProgress::NSProgress(std::int64_t total) : state_(std::make_unique<State>())
{
    state_->total = total;
}

NSProgress::~NSProgress() = default;

std::shared_ptr<NSProgress> NSProgress::discreteProgressWithTotalUnitCount(std::int64_t total)
{
    return std::shared_ptr<NSProgress>(new NSProgress(total));
}

std::shared_ptr<NSProgress> NSProgress::progressWithTotalUnitCount(std::int64_t total)
{
    auto progress = discreteProgressWithTotalUnitCount(total);
    std::vector<Turn>& turns = turnsOfThisThread();
    if (turns.empty() || turns.back().hasChild)
        return progress;
    turns.back().hasChild = true;
    turns.back().progress->addChild(progress, turns.back().pendingUnits);
    return progress;
}

std::shared_ptr<NSProgress> NSProgress::currentProgress()
{
    const std::vector<Turn>& turns = turnsOfThisThread();
    return turns.empty() ? nullptr : turns.back().progress;
}

// Counts --------------------------------------------------------------------------------------------------------------

std::int64_t NSProgress::totalUnitCount() const
{
    const std::lock_guard lock(state_->mutex);
    return state_->total;
}

std::int64_t NSProgress::completedUnitCount() const
{
    const std::lock_guard lock(state_->mutex);
    return state_->completed;
}

void NSProgress::setTotalUnitCount(std::int64_t total)
{
    {
        const std::lock_guard lock(state_->mutex);
        state_->total = total;
    }
    changed();
}

void NSProgress::setCompletedUnitCount(std::int64_t completed)
{
    {
        const std::lock_guard lock(state_->mutex);
        state_->completed = completed;
    }
    changed();
}

double NSProgress::fractionCompleted() const
{
    std::vector<State::Child> children;
    std::int64_t total = 0;
    std::int64_t completed = 0;
    {
        const std::lock_guard lock(state_->mutex);
        total = state_->total;
        completed = state_->completed;
        children = state_->children;
    }
    if (total <= 0)
        return 0;
    // A child that is done counts in whole units whether or not it left the list yet: as one more term of the sum it
    // would be rounded otherwise before than after, and the fraction could step back by a last digit.
    double parts = 0;
    for (const State::Child& child : children) {
        const double fraction = child.progress->fractionCompleted();
        if (fraction == 1)
            completed += child.pendingUnits;
        else
            parts += fraction * static_cast<double>(child.pendingUnits);
    }
    return std::clamp((static_cast<double>(completed) + parts) / static_cast<double>(total), 0.0, 1.0);
}

bool NSProgress::isIndeterminate() const
{
    return totalUnitCount() <= 0;
}

bool NSProgress::isFinished() const
{
    const std::lock_guard lock(state_->mutex);
    return state_->total > 0 && state_->completed >= state_->total;
}

// Parts ---------------------------------------------------------------------------------------------------------------

void NSProgress::becomeCurrentWithPendingUnitCount(std::int64_t pending)
{
    turnsOfThisThread().push_back({shared_from_this(), pending, false});
}

void NSProgress::resignCurrent()
{
    std::vector<Turn>& turns = turnsOfThisThread();
    if (turns.empty() || turns.back().progress.get() != this)
        throw NSException(
            NSInternalInconsistencyException, "A progress was resigned that is not the current one of this thread.");
    const Turn turn = std::move(turns.back());
    turns.pop_back();
    if (turn.hasChild || turn.pendingUnits == 0)
        return;
    {
        const std::lock_guard lock(state_->mutex);
        state_->completed += turn.pendingUnits;
    }
    changed();
}

void NSProgress::addChild(const std::shared_ptr<NSProgress>& child, std::int64_t pending)
{
    child->state_->parent = weak_from_this();
    const std::lock_guard lock(state_->mutex);
    state_->children.push_back({child, pending});
}

void NSProgress::childFinished(const NSProgress& child)
{
    const std::lock_guard lock(state_->mutex);
    const auto found = std::ranges::find_if(
        state_->children, [&child](const State::Child& known) { return known.progress.get() == &child; });
    if (found == state_->children.end())
        return;
    state_->completed += found->pendingUnits;
    state_->children.erase(found);
}

// Giving up -----------------------------------------------------------------------------------------------------------

void NSProgress::cancel()
{
    std::function<void()> handler;
    std::vector<State::Child> children;
    {
        const std::lock_guard lock(state_->mutex);
        if (std::exchange(state_->isCancelled, true))
            return;
        handler = std::exchange(state_->cancellationHandler, {});
        children = state_->children;
    }
    if (handler)
        handler();
    for (const State::Child& child : children)
        child.progress->cancel();
}

bool NSProgress::isCancelled() const
{
    const std::lock_guard lock(state_->mutex);
    return state_->isCancelled;
}

void NSProgress::setCancellationHandler(std::function<void()> handler)
{
    {
        const std::lock_guard lock(state_->mutex);
        if (!state_->isCancelled) {
            state_->cancellationHandler.swap(handler);
            return; // the former one ends outside of the lock
        }
    }
    if (handler)
        handler();
}

// Observers -----------------------------------------------------------------------------------------------------------

NSNotificationSubscription NSProgress::observe(std::function<void(const NSProgress&)> block)
{
    return state_->observers.addObserver(
        kDidChange, this, [this, block = std::move(block)](const NSNotification&) { block(*this); });
}

void NSProgress::changed()
{
    const auto keepAlive = shared_from_this(); // the parent may hold the last reference to its child
    const auto parent = state_->parent.lock();
    if (parent && isFinished())
        parent->childFinished(*this);
    state_->observers.postNotification(kDidChange, this);
    if (parent)
        parent->changed();
}

} // namespace tarn
