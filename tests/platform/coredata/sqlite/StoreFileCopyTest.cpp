#include "tarnmodel/platform/coredata/StoreFileCopy.h"

#include "tests/platform/coredata/OtherProgram.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <fstream>
#include <gmock/gmock.h>

namespace tarn {
namespace {

using testing::ElementsAre;

namespace fs = std::filesystem;

class StoreFileCopy : public testing::Test {
protected:
    void SetUp() override
    {
        const OpenStore store(StoreType::SQLite, folder_.file());
        key_ = store.insert("Label", {{"name", Value("kept")}});
    }
    bool copy(const std::function<bool()>& underLock = {})
    {
        error_ = NSError();
        return copyStoreFile(folder_.file(), copy_, underLock, {}, &error_);
    }

    TestFolder folder_;
    fs::path copy_ = folder_.path() / "copy.sqlite";
    std::int64_t key_ = 0;
    NSError error_;
};

TEST_F(StoreFileCopy, IsAWholeStore)
{
    ASSERT_TRUE(copy()) << error_;
    const OpenStore store(StoreType::SQLite, copy_);
    EXPECT_EQ(store.value("Label", key_, "name"), Value("kept"));
    EXPECT_EQ(OpenStore(StoreType::SQLite, folder_.file()).value("Label", key_, "name"), Value("kept"));
}

TEST_F(StoreFileCopy, LetsNobodyWriteWhileItIsMade)
{
    const OtherProgram other(folder_.file());
    other.run("CREATE TABLE notes (text)");
    std::string answer;
    ASSERT_TRUE(copy([&] {
        answer = other.refusalOf("INSERT INTO notes VALUES ('too late')");
        EXPECT_THAT(other.run("SELECT COUNT(*) FROM notes"), ElementsAre("0"));
        return true;
    })) << error_;
    EXPECT_EQ(answer, "database is locked");
    other.run("INSERT INTO notes VALUES ('afterwards')");
    EXPECT_THAT(OtherProgram(copy_).run("SELECT text FROM notes"), ElementsAre());
}

TEST_F(StoreFileCopy, IsNotThereWhenItWasGivenUp)
{
    EXPECT_FALSE(copy([] { return false; }));
    EXPECT_EQ(error_, NSError());
    EXPECT_FALSE(fs::exists(copy_));
}

TEST_F(StoreFileCopy, NeverTakesThePlaceOfAnotherFile)
{
    std::ofstream(copy_) << "here first";
    EXPECT_FALSE(copy());
    EXPECT_EQ(error_.code(), StoreErrorIO);
    EXPECT_EQ(fs::file_size(copy_), 10U);
}

TEST_F(StoreFileCopy, MakesNoFileOfNone)
{
    fs::remove(folder_.file());
    EXPECT_FALSE(copy());
    EXPECT_EQ(error_.code(), StoreErrorCannotOpen);
    EXPECT_TRUE(fs::is_empty(folder_.path()));
}

} // namespace
} // namespace tarn
