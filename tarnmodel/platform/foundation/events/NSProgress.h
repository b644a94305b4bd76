#pragma once

#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace tarn {

/// How far a piece of work has come, for whoever watches it. Pieces of it may be progresses of their own.
///
/// Any thread. Whoever does the work holds it and sets `completedUnitCount`; whoever shows it observes.
///
///     auto progress = NSProgress::progressWithTotalUnitCount(100);
///     auto watching = progress->observe([](const NSProgress& seen) { show(seen.fractionCompleted()); });
class NSProgress : public std::enable_shared_from_this<NSProgress> {
public:
    /// A new progress. When this thread has a current progress that has no child of this turn yet, it becomes that
    /// one's child and stands for its pending units.
    static std::shared_ptr<NSProgress> progressWithTotalUnitCount(std::int64_t total);
    /// A new progress that belongs to no other.
    static std::shared_ptr<NSProgress> discreteProgressWithTotalUnitCount(std::int64_t total);
    /// The one that was made current on this thread last; null when there is none.
    static std::shared_ptr<NSProgress> currentProgress();

    ~NSProgress();
    NSProgress(const NSProgress&) = delete;
    NSProgress& operator=(const NSProgress&) = delete;

    /// How many units the whole work has; not positive while that is unknown.
    std::int64_t totalUnitCount() const;
    void setTotalUnitCount(std::int64_t total);
    /// Those of finished children included.
    std::int64_t completedUnitCount() const;
    /// Sets how many units are done.
    void setCompletedUnitCount(std::int64_t completed);
    /// From 0 to 1, with the parts that unfinished children have done; 0 while the total is not positive.
    double fractionCompleted() const;
    /// The total is not known: it is not positive.
    bool isIndeterminate() const;
    /// All units of a known total are completed.
    bool isFinished() const;

    // Giving up -----------------------------------------------------------------------------------------------------
    /// Asks whoever does the work to give it up, which is theirs to heed: calls the handler and cancels the unfinished
    /// children. A second call does nothing.
    void cancel();
    /// Whether `cancel` was called. It stays so.
    bool isCancelled() const;
    /// Who does the work hears of `cancel` here, once, on the thread that cancels; at once when it was called before.
    /// An empty handler ends it, but one that is being called may go on.
    void setCancellationHandler(std::function<void()> handler);

    // Parts ---------------------------------------------------------------------------------------------------------
    /// Makes this the current progress of the calling thread: the next progress that it makes becomes a child that
    /// stands for so many units. Turns nest; each is ended by `resignCurrent` on the same thread.
    void becomeCurrentWithPendingUnitCount(std::int64_t pending);
    /// Ends the turn. Without a child its pending units count as completed. Raises `NSInternalInconsistencyException`
    /// when this is not the current progress of the thread.
    void resignCurrent();

    /// Calls `block` after each change of a count or of the fraction, on the thread that made the change, as long as
    /// the subscription lives.
    [[nodiscard]] NSNotificationSubscription observe(std::function<void(const NSProgress&)> block);

private:
    struct State;
    explicit NSProgress(std::int64_t total);
    void addChild(const std::shared_ptr<NSProgress>& child, std::int64_t pending);
    void childFinished(const NSProgress& child);
    void changed();

    std::unique_ptr<State> state_;
};

} // namespace tarn
