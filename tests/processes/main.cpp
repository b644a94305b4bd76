// The tests of several processes, and the processes that they start: with "worker" as its first argument this program
// plays one of them.

#include "tests/processes/Worker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const std::vector<std::string_view> arguments(argv, argv + argc);
    if (arguments.size() > 1 && arguments[1] == "worker")
        return tarn::runWorker(std::span(arguments).subspan(2));
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
