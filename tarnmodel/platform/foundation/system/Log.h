#pragma once

#include <functional>
#include <string_view>

namespace tarn {

/// Where messages go; called on the thread that logs, possibly on several at once.
using LogSink = std::function<void(std::string_view)>;

/// Hands one free text, without a line end, to the sink. Any thread; a sink that throws is ignored.
void logMessage(std::string_view message);

/// Replaces the sink and returns the one before, so that it can be put back. An empty one restores the default, which
/// writes one line to standard error. A message that is under way on another thread may still reach the old sink.
LogSink setLogSink(LogSink sink);

} // namespace tarn
