#include "tests/tarn/TarnCommandTest.h"

#include <array>
#include <cstring>
#include <gmock/gmock.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace tarn::test {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

namespace {

/// Counts how often a file is opened. What is done to it in between is watched as well, since the system makes one
/// event of equal ones that follow each other.
class WatchedFile {
public:
    explicit WatchedFile(const std::filesystem::path& file) : descriptor_(inotify_init1(IN_NONBLOCK))
    {
        EXPECT_GE(inotify_add_watch(descriptor_, file.c_str(), IN_OPEN | IN_ACCESS | IN_CLOSE), 0);
    }
    ~WatchedFile() { ::close(descriptor_); }
    WatchedFile(const WatchedFile&) = delete;
    WatchedFile& operator=(const WatchedFile&) = delete;

    /// Since the last time.
    int takeOpenings() const
    {
        int openings = 0;
        alignas(inotify_event) std::array<char, 1 << 16> events;
        for (ssize_t length = 0; (length = ::read(descriptor_, events.data(), events.size())) > 0;)
            for (ssize_t at = 0; at < length;) {
                inotify_event event{};
                std::memcpy(&event, events.data() + at, sizeof(event));
                openings += (event.mask & IN_OPEN) != 0 ? 1 : 0;
                at += static_cast<ssize_t>(sizeof(event) + event.len);
            }
        return openings;
    }

private:
    int descriptor_;
};

} // namespace

class OwedCompactions : public TarnCommandTest {
protected:
    void owe() const { damage("INSERT OR REPLACE INTO store_metadata (key, value) VALUES ('compaction', 'owed')"); }
    std::string compaction() const { return stored("SELECT value FROM store_metadata WHERE key = 'compaction'"); }
    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(database().parent_path()))
            names.push_back(entry.path().filename().string());
        return names;
    }
};

TEST_F(OwedCompactions, AreDoneByTheNextCommandThatWrites)
{
    const std::string identifier = note("# A");
    owe();
    output({"show", identifier});
    EXPECT_EQ(compaction(), "owed");
    const TarnResult result = run({"append", identifier, "more"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(compaction(), "done");
    EXPECT_EQ(output({"show", identifier}), "# A\nmore");
}

TEST_F(OwedCompactions, AreBegunAnewWhenTheyWereKilled)
{
    const std::string identifier = note("# A");
    owe();
    const std::filesystem::path left = database().parent_path() / "database.compacted.sqlite";
    std::filesystem::copy_file(database(), left);
    output({"append", identifier, "more"});
    EXPECT_EQ(compaction(), "done");
    EXPECT_THAT(files(), Not(Contains(left.filename().string())));
    EXPECT_EQ(output({"show", identifier}), "# A\nmore");
}

TEST_F(OwedCompactions, AreNotLookedForInAnOpeningOfTheirOwn)
{
    const std::string identifier = note("# A");
    const WatchedFile watched(database());
    output({"show", identifier});
    const int openingsToRead = watched.takeOpenings();
    ASSERT_GT(openingsToRead, 0);
    output({"append", identifier, "more"});
    EXPECT_EQ(watched.takeOpenings(), openingsToRead + 1) << "and one to look at its version, before it is locked";
}

} // namespace tarn::test
