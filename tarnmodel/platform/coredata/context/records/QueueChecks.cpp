#include "tarnmodel/platform/coredata/QueueChecks.h"

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <fmt/format.h>

#include <array>
#include <cstdlib>
#include <sstream>
#include <string_view>
#include <thread>
#include <utility>

namespace tarn {

namespace {

#ifdef NDEBUG
constexpr QueueChecks kUsual = QueueChecks::Off;
#else
constexpr QueueChecks kUsual = QueueChecks::Abort;
#endif

constexpr std::string_view kVariable = "TARN_QUEUE_CHECKS";
constexpr std::array<std::pair<std::string_view, QueueChecks>, 3> kNames{
    {{"off", QueueChecks::Off}, {"log", QueueChecks::Log}, {"abort", QueueChecks::Abort}}};

constexpr int kUnknown = -1;

QueueChecks checksOfVariable()
{
    const auto value = Environment::current().variable(kVariable);
    if (!value || value->empty())
        return kUsual;
    for (const auto& [name, checks] : kNames) {
        if (*value == name)
            return checks;
    }
    logMessage(fmt::format("{} is \"{}\"; it can be off, log or abort.", kVariable, *value));
    return kUsual;
}

std::string messageFor(const Queue& queue, const NSManagedObject* record)
{
    const Queue* const caller = Queue::current();
    std::ostringstream message;
    if (record)
        message << "The record " << record->objectID().URIRepresentation();
    else
        message << "A context";
    message << " of the queue \"" << queue.label() << "\" was used on ";
    if (caller)
        message << "the queue \"" << caller->label() << "\"";
    else
        message << "a thread without a queue";
    message << " (thread " << std::hex << std::showbase << std::this_thread::get_id() << ")";
    return message.str();
}

} // namespace

std::atomic<int> knownQueueChecks = kUnknown;

QueueChecks findOutQueueChecks()
{
    const QueueChecks checks = checksOfVariable();
    knownQueueChecks = static_cast<int>(checks);
    return checks;
}

void setQueueChecks(std::optional<QueueChecks> checks)
{
    knownQueueChecks = checks ? static_cast<int>(*checks) : kUnknown;
}

void reportWrongQueue(const Queue& queue, const NSManagedObject* record)
{
    logMessage(messageFor(queue, record));
    if (queueChecks() == QueueChecks::Abort)
        std::abort();
}

} // namespace tarn
