#include "tarnmodel/sync/OVDeviceUUID.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/sync/HostUUID.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view zeroUUID = "00000000-0000-0000-0000-000000000000";

MachineIdentifier machineIdentifier(unsigned char first)
{
    MachineIdentifier identifier{};
    for (std::size_t index = 0; index < identifier.size(); ++index)
        identifier[index] = std::byte(first + index);
    return identifier;
}

/// Collects log messages for a scope.
class LogCapture {
public:
    LogCapture() : previous_(setLogSink([this](std::string_view message) { messages.emplace_back(message); })) { }
    ~LogCapture() { setLogSink(previous_); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    std::vector<std::string> messages;

private:
    LogSink previous_;
};

/// What the host answers, for a scope.
class HostAnswer {
public:
    explicit HostAnswer(HostUUID answer)
        : previous_(setHostUUIDProvider([this, answer](std::chrono::seconds limit) {
              limits.push_back(limit);
              return answer;
          }))
    { }
    ~HostAnswer() { setHostUUIDProvider(previous_); }
    HostAnswer(const HostAnswer&) = delete;
    HostAnswer& operator=(const HostAnswer&) = delete;

    std::vector<std::chrono::seconds> limits;

private:
    HostUUIDProvider previous_;
};

TEST(DeviceUUID, IsTheHostsBytesAsAnUpperCaseUUID)
{
    const HostAnswer host({HostUUIDStatus::Known, machineIdentifier(0xA0)});

    EXPECT_EQ(OVDeviceUUID::deviceUUID(), "A0A1A2A3-A4A5-A6A7-A8A9-AAABACADAEAF");
}

TEST(DeviceUUID, AsksTheHostOnEveryCallForAtMostFiveSeconds)
{
    const HostAnswer host({HostUUIDStatus::Known, machineIdentifier(1)});

    OVDeviceUUID::deviceUUID();
    OVDeviceUUID::deviceUUID();

    EXPECT_EQ(host.limits, std::vector<std::chrono::seconds>(2, std::chrono::seconds(5)));
}

TEST(DeviceUUID, IsNoneAndLoggedWhenTheHostFails)
{
    struct Case {
        HostUUIDStatus status;
        std::string message;
    };
    const std::vector<Case> cases{
        {HostUUIDStatus::TimedOut, "Failed to get system UUID: timeout expired"},
        {HostUUIDStatus::BadAddress, "Failed to get system UUID: unknown error"},
    };
    for (const Case& expected : cases) {
        const HostAnswer host({expected.status, {}});
        const LogCapture log;

        EXPECT_EQ(OVDeviceUUID::deviceUUID(), std::nullopt);
        EXPECT_EQ(log.messages, std::vector<std::string>{expected.message});
    }
}

TEST(DeviceUUID, IsAllZerosAfterAnyOtherFailure)
{
    const HostAnswer host({HostUUIDStatus::Failed, {}});
    const LogCapture log;

    EXPECT_EQ(OVDeviceUUID::deviceUUID(), zeroUUID);
    EXPECT_TRUE(log.messages.empty());
}

TEST(DeviceName, IsTheNameOfTheHost)
{
    EnvironmentOverride world;
    world.setHostName("Zoë’s laptop");

    EXPECT_EQ(OVDeviceUUID::deviceName(), "Zoë’s laptop");
}

/// A machine with a home folder of its own and nothing in it.
class HostIdentity : public testing::Test {
protected:
    HostIdentity()
    {
        fs::create_directories(home_);
        world_.setHomeDirectory(home_);
        world_.setVariable("XDG_STATE_HOME", std::nullopt);
        world_.setMachineIdentifier(std::nullopt);
    }
    ~HostIdentity() override
    {
        std::error_code error;
        fs::permissions(home_, fs::perms::owner_all, error);
        fs::remove_all(home_, error);
    }

    fs::path identifierFile() const { return home_ / ".local/state/tarnmodel/device-identifier"; }

    static std::string contents(const fs::path& file)
    {
        std::ifstream stream(file);
        std::string line;
        std::getline(stream, line);
        return line;
    }

    static void write(const fs::path& file, std::string_view text)
    {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    const fs::path home_ = fs::temp_directory_path() / ("tarn höme " + newUUIDString());
    EnvironmentOverride world_;
};

TEST_F(HostIdentity, IsDerivedFromTheMachineIdentifierByAFixedRule)
{
    world_.setMachineIdentifier(machineIdentifier(0));

    EXPECT_EQ(OVDeviceUUID::deviceUUID(), "5E535D54-A93B-40BA-9709-1E17349A427F");
    EXPECT_TRUE(fs::is_empty(home_));
}

TEST_F(HostIdentity, DiffersBetweenMachinesAndNeverShowsTheirIdentifier)
{
    std::set<std::string> seen;
    for (unsigned char first = 0; first < 100; ++first) {
        const MachineIdentifier machine = machineIdentifier(first);
        world_.setMachineIdentifier(machine);
        const std::string identifier = OVDeviceUUID::deviceUUID().value();
        EXPECT_NE(identifier, uuidString(machine));
        EXPECT_EQ(identifier[14], '4');
        seen.insert(identifier);
    }
    EXPECT_EQ(seen.size(), 100U);
}

TEST_F(HostIdentity, IsMadeOnceAndKeptWithoutAMachineIdentifier)
{
    const auto identifier = OVDeviceUUID::deviceUUID();

    ASSERT_TRUE(identifier);
    EXPECT_TRUE(isUUIDString(*identifier));
    EXPECT_NE(*identifier, zeroUUID);
    EXPECT_EQ((*identifier)[14], '4');
    EXPECT_EQ(contents(identifierFile()), *identifier);
    EXPECT_EQ(OVDeviceUUID::deviceUUID(), identifier);
    EXPECT_EQ(std::distance(fs::directory_iterator(identifierFile().parent_path()), {}), 1);
}

TEST_F(HostIdentity, LiesInTheStateFolderThatTheUserSet)
{
    world_.setVariable("XDG_STATE_HOME", (home_ / "state").string());

    const auto identifier = OVDeviceUUID::deviceUUID();

    EXPECT_EQ(contents(home_ / "state/tarnmodel/device-identifier"), identifier);
    EXPECT_FALSE(fs::exists(identifierFile()));
}

TEST_F(HostIdentity, IgnoresAnEmptyOrRelativeStateFolder)
{
    for (const std::string_view folder : {"", "state/here"}) {
        world_.setVariable("XDG_STATE_HOME", std::string(folder));

        const auto identifier = OVDeviceUUID::deviceUUID();

        EXPECT_EQ(contents(identifierFile()), identifier);
    }
}

TEST_F(HostIdentity, IsReadFromTheFileThatIsThere)
{
    write(identifierFile(), "01234567-89AB-4DEF-8123-456789ABCDEF\n");

    EXPECT_EQ(OVDeviceUUID::deviceUUID(), "01234567-89AB-4DEF-8123-456789ABCDEF");
}

TEST_F(HostIdentity, ReplacesAFileThatHoldsNoIdentifier)
{
    for (const std::string_view text : {"", "not an identifier\n", "01234567-89AB"}) {
        write(identifierFile(), text);

        const auto identifier = OVDeviceUUID::deviceUUID();

        ASSERT_TRUE(identifier);
        EXPECT_NE(*identifier, zeroUUID);
        EXPECT_EQ(contents(identifierFile()), *identifier);
        EXPECT_EQ(OVDeviceUUID::deviceUUID(), identifier);
    }
}

TEST_F(HostIdentity, IsAllZerosWhereNothingCanBeKept)
{
    // A file stands where the folder should be; that stops root as well.
    write(home_ / ".local", "");

    EXPECT_EQ(OVDeviceUUID::deviceUUID(), zeroUUID);
}

TEST_F(HostIdentity, IsOneForAllWhoAskAtOnceOnANewMachine)
{
    constexpr std::size_t askers = 16;
    std::vector<std::optional<std::string>> answers(askers);
    std::vector<std::thread> threads;
    for (std::size_t asker = 0; asker < askers; ++asker)
        threads.emplace_back([&answers, asker] { answers[asker] = OVDeviceUUID::deviceUUID(); });
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(answers, std::vector<std::optional<std::string>>(askers, contents(identifierFile())));
}

} // namespace
} // namespace tarn
