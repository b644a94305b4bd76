#include "tarnmodel/platform/foundation/system/Log.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using namespace tarn;

namespace {

TEST(Log, GoesToTheSinkThatIsSet)
{
    std::vector<std::string> lines;
    const LogSink previous = setLogSink([&lines](std::string_view line) { lines.emplace_back(line); });
    logMessage("one");
    logMessage("two\nlines");
    setLogSink(previous);
    EXPECT_EQ(lines, (std::vector<std::string>{"one", "two\nlines"}));
}

TEST(Log, GivesTheSinkBackThatItReplaces)
{
    int first = 0;
    const LogSink previous = setLogSink([&first](std::string_view) { ++first; });
    const LogSink taken = setLogSink([](std::string_view) {});
    setLogSink(taken);
    logMessage("counts again");
    setLogSink(previous);
    EXPECT_EQ(first, 1);
}

TEST(Log, WritesOneLineToStandardErrorByDefault)
{
    const LogSink previous = setLogSink({});
    testing::internal::CaptureStderr();
    logMessage("a line");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a line\n");
    setLogSink(previous);
}

TEST(Log, SurvivesASinkThatThrows)
{
    const LogSink previous = setLogSink([](std::string_view) { throw std::runtime_error("full"); });
    EXPECT_NO_THROW(logMessage("lost"));
    setLogSink(previous);
}

} // namespace
