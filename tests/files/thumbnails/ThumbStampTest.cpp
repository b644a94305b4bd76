#include "tarnmodel/files/thumbnails/ThumbStamp.h"

#include "tarnmodel/files/thumbnails/SHA1.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sys/stat.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr SourceState kState = {5, {1000, 1}, {1001, 0}, 7};
const std::string kSumOfFive = sha1OfBytes("fiver");

NSDate atSecond(std::int64_t seconds)
{
    return dateWithMicrosecondsSince1970(seconds * 1'000'000);
}

class AThumbStamp : public testing::Test {
protected:
    AThumbStamp() { std::ofstream(file_) << "fiver"; }
    ~AThumbStamp() override { fs::remove(file_); }

    const fs::path file_ = fs::temp_directory_path() / ("tarn stämp " + newUUIDString());
};

// What is on disk in files of earlier versions.
TEST_F(AThumbStamp, IsALineOfText)
{
    EXPECT_EQ(ThumbStamp::stampOfSource(file_, kState, atSecond(2000))->text(),
        "size 5 modified 1000.000000001 changed 1001.000000000 inode 7");
    EXPECT_EQ(ThumbStamp::stampOfSource(file_, kState, atSecond(1002))->text(),
        "size 5 modified 1000.000000001 changed 1001.000000000 inode 7 sha1 " + kSumOfFive);
}

TEST_F(AThumbStamp, IsReadAgain)
{
    for (const std::int64_t second : {1002, 2000}) {
        auto stamp = ThumbStamp::stampOfSource(file_, kState, atSecond(second));
        stamp->look = second == 1002 ? "trim:4,background:010203ff" : "";
        const auto again = ThumbStamp::stampFromText(stamp->text());
        ASSERT_TRUE(again);
        EXPECT_EQ(again->state, stamp->state);
        EXPECT_EQ(again->sha1, stamp->sha1);
        EXPECT_EQ(again->look, stamp->look);
        EXPECT_TRUE(again->isOf(kState));
    }
    for (const std::string_view other : {"", "sizes", "size 5 sha1 ", "size 5 sha1 12345"})
        EXPECT_FALSE(ThumbStamp::stampFromText(other)) << other;
}

TEST_F(AThumbStamp, IsOfOneStateOnly)
{
    const auto stamp = ThumbStamp::stampOfSource(file_, kState, atSecond(2000));
    EXPECT_TRUE(stamp->isOf(kState));
    for (const SourceState& other : {SourceState{6, {1000, 1}, {1001, 0}, 7}, {5, {1000, 2}, {1001, 0}, 7},
             {5, {999, 1}, {1001, 0}, 7}, {5, {1000, 1}, {1002, 0}, 7}, {5, {1000, 1}, {1001, 0}, 8}})
        EXPECT_FALSE(stamp->isOf(other));
}

TEST_F(AThumbStamp, HoldsTheSumOfAPictureThatHasJustChanged)
{
    EXPECT_EQ(ThumbStamp::stampOfSource(file_, kState, atSecond(1001))->sha1, kSumOfFive);
    EXPECT_EQ(ThumbStamp::stampOfSource(file_, kState, atSecond(1004))->sha1, kSumOfFive);
    EXPECT_EQ(ThumbStamp::stampOfSource(file_, kState, atSecond(1005))->sha1, "");
    EXPECT_EQ(ThumbStamp::stampOfSource(file_, kState, atSecond(900))->sha1, kSumOfFive)
        << "its time is in the future: clocks differ";
    fs::remove(file_);
    EXPECT_FALSE(ThumbStamp::stampOfSource(file_, kState, atSecond(1001)));
}

TEST_F(AThumbStamp, TakesBothTimesForAChange)
{
    EXPECT_TRUE(isSettled({5, {1000, 0}, {1000, 0}, 7}, atSecond(1004)));
    EXPECT_FALSE(isSettled({5, {1001, 0}, {1000, 0}, 7}, atSecond(1004)));
    EXPECT_FALSE(isSettled({5, {1000, 0}, {1001, 0}, 7}, atSecond(1004))) << "an old file that has just come";
}

TEST_F(AThumbStamp, IsOfWhatTheFileSystemSays)
{
    struct stat status { };
    ASSERT_EQ(::stat(file_.c_str(), &status), 0);
    const auto state = stateOfSource(file_);
    ASSERT_TRUE(state);
    EXPECT_EQ(*state,
        (SourceState{5, {status.st_mtim.tv_sec, status.st_mtim.tv_nsec},
            {status.st_ctim.tv_sec, status.st_ctim.tv_nsec}, status.st_ino}));
    fs::remove(file_);
    EXPECT_FALSE(stateOfSource(file_));
    EXPECT_FALSE(stateOfSource(file_.parent_path())) << "a folder is no picture";
}

class AReading : public AThumbStamp { };

TEST_F(AReading, IsOfOneState)
{
    const auto state = stateOfSource(file_);
    const auto read = readInOneState(
        file_, [] { return true; }, nullptr);
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->stamp.isOf(*state));
}

TEST_F(AReading, IsRepeatedWhenTheFileChangesMeanwhile)
{
    int readings = 0;
    const auto read = readInOneState(
        file_,
        [&] {
            if (++readings == 1)
                std::ofstream(file_) << "another";
            return readings == 2;
        },
        nullptr);
    ASSERT_TRUE(read);
    EXPECT_EQ(readings, 2);
    EXPECT_TRUE(read->stamp.isOf(*stateOfSource(file_)));
    EXPECT_EQ(read->stamp.sha1, sha1OfBytes("another"));
}

TEST_F(AReading, IsGivenUpWhenTheFileKeepsChanging)
{
    int readings = 0;
    NSError error;
    EXPECT_FALSE(readInOneState(
        file_,
        [&] {
            std::ofstream(file_) << std::string(static_cast<std::size_t>(++readings), 'x');
            return true;
        },
        &error));
    EXPECT_EQ(readings, 3);
    EXPECT_EQ(error.localizedDescription(), "\"" + file_.string() + "\" changes while it is read.");
}

TEST_F(AReading, FailsWithWhatReads)
{
    int readings = 0;
    EXPECT_FALSE(readInOneState(
        file_,
        [&] {
            ++readings;
            return false;
        },
        nullptr));
    EXPECT_EQ(readings, 1);
    NSError error;
    EXPECT_FALSE(readInOneState(
        file_, [&] { return fs::remove(file_); }, &error))
        << "the file went meanwhile";
    EXPECT_EQ(error.localizedDescription(), "\"" + file_.string() + "\" cannot be read.");
}

} // namespace
} // namespace tarn
