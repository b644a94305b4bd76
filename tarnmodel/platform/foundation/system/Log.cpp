#include "tarnmodel/platform/foundation/system/Log.h"

#include <iostream>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace tarn {

namespace {

/// One write of the whole line, so that lines of several threads do not mix.
void writeLineToStandardError(std::string_view message)
{
    std::string line(message);
    line += '\n';
    std::cerr << line << std::flush;
}

struct SinkHolder {
    std::mutex mutex;
    std::shared_ptr<const LogSink> sink;
};

/// Never destroyed: static objects of the host may log while the process ends.
SinkHolder& sinkHolder()
{
    static auto* const holder = new SinkHolder;
    return *holder;
}

} // namespace

void logMessage(std::string_view message)
{
    std::shared_ptr<const LogSink> sink;
    {
        SinkHolder& holder = sinkHolder();
        const std::lock_guard lock(holder.mutex);
        sink = holder.sink;
    }
    try {
        if (sink)
            (*sink)(message);
        else
            writeLineToStandardError(message);
    } catch (...) { // a log that fails must not fail what it reports
    }
}

LogSink setLogSink(LogSink sink)
{
    auto next = sink ? std::make_shared<const LogSink>(std::move(sink)) : nullptr;
    SinkHolder& holder = sinkHolder();
    const std::lock_guard lock(holder.mutex);
    const auto previous = std::exchange(holder.sink, std::move(next));
    return previous ? *previous : LogSink();
}

} // namespace tarn
