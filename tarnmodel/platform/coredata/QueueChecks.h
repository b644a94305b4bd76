#pragma once

#include <atomic>
#include <cstdint>
#include <optional>

namespace tarn {

class NSManagedObject;
class Queue;

/// What becomes of the use of a context, or of a record, on another queue than its own.
enum class QueueChecks : std::uint8_t {
    Off,   ///< nothing: it is a race that may show much later, or never
    Log,   ///< a message names the record, both queues and the thread; the use goes on
    Abort, ///< after the message the process ends, with the culprit on its stack
};

/// In force for all contexts of the process: what was set last, else what the variable TARN_QUEUE_CHECKS says ("off",
/// "log", "abort"), else `Abort` where the library was built for debugging and `Off` elsewhere. Any thread.
inline QueueChecks queueChecks();
/// None: the variable counts again, as it is now.
void setQueueChecks(std::optional<QueueChecks> checks);

/// What has been found out, or a negative number. Each use of a record looks here.
extern std::atomic<int> knownQueueChecks;
QueueChecks findOutQueueChecks();

inline QueueChecks queueChecks()
{
    const int known = knownQueueChecks.load(std::memory_order_relaxed);
    return known >= 0 ? static_cast<QueueChecks>(known) : findOutQueueChecks();
}

/// Does what the checks say about a use of this queue's context, and record, by a caller that is elsewhere.
void reportWrongQueue(const Queue& queue, const NSManagedObject* record);

} // namespace tarn
