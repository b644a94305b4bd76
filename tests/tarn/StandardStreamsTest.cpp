#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>
#include <csignal>

namespace tarn::test {

using Streams = TarnCommandTest;

TEST_F(Streams, AReaderThatGoesAwayEndsTheProgramQuietly)
{
    note("# Large\n\n" + std::string(2'000'000, 'x'));
    TarnProcess process(arguments({"show", "Large"}));
    const TarnResult result = process.finishAfterReading(10);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(result.signal == SIGPIPE || result.exitCode == 0) << result.signal << " " << result.exitCode;
}

TEST_F(Streams, AFullDiskBehindStandardOutputIsTold)
{
    note("# A");
    TarnProcess process(arguments({"list"}));
    process.setOutputFile("/dev/full");
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 6);
    EXPECT_NE(result.errors.find("standard output"), std::string::npos) << result.errors;
}

TEST_F(Streams, AProgramStartedWithoutStreamsWritesNothingIntoItsStore)
{
    note("# A");
    for (const char* command : {"list", "new", "stats"}) {
        TarnProcess process(arguments({command}));
        process.closeStandardStreams();
        EXPECT_EQ(process.finish().exitCode, 6) << command;
    }
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
    EXPECT_EQ(json({"list"}).at("count"), 2);
}

TEST_F(Streams, ALongInputIsReadToItsEnd)
{
    const std::string text = "# Long\n\n" + std::string(5'000'000, 'y') + " end";
    EXPECT_EQ(output({"show", note(text)}).size(), text.size());
}

TEST_F(Streams, NothingIsColouredWhereThereIsNoTerminal)
{
    note("# A\n\nneedle");
    for (const char* query : {"list", "tags", "stats"})
        EXPECT_EQ(run({query}).output.find('\x1b'), std::string::npos);
    EXPECT_EQ(output({"search", "needle"}).find('\x1b'), std::string::npos);
    EXPECT_EQ(run({"--help"}).output.find('\x1b'), std::string::npos);
}

} // namespace tarn::test
