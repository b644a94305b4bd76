#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/EnvironmentInternal.h"
#include "tests/platform/foundation/filesystem/ScratchFolder.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <utility>
#include <vector>

using namespace tarn;

namespace {

using NameCase = std::pair<std::string_view, std::string_view>;

TEST(Environment, ReadsLocaleNamesOfTheSystem)
{
    for (const auto& [name, expected] :
        std::vector<NameCase>{{"de_DE.UTF-8", "de_DE"}, {"de_DE@euro", "de_DE"}, {"sr_RS@latin", "sr_Latn_RS"},
            {"sr_RS.UTF-8@latin", "sr_Latn_RS"}, {"uz_UZ@cyrillic", "uz_Cyrl_UZ"}, {"en", "en"}, {"pt-BR", "pt_BR"},
            {"C", "en_US_POSIX"}, {"C.UTF-8", "en_US_POSIX"}, {"POSIX", "en_US_POSIX"}, {"", "en_US_POSIX"}})
        EXPECT_EQ(localeIdentifierFromSystemName(name), expected) << name;
}

TEST(Environment, KnowsTheFormsOfTimeZoneRules)
{
    for (const std::string_view value : {"UTC0", "CET-1CEST", "EST5EDT4", "EST5EDT,M3.2.0,M11.1.0", "<+0530>-5:30",
             "<-03>3<-02>,M3.5.0/-2,M10.5.0/-1", "IST-2IDT,M3.4.4/26,M10.5.0", "XYZ+1:02:03ABC,J60,300/1:30"})
        EXPECT_TRUE(isTimeZoneRule(value)) << value;
    for (const std::string_view value : {"", "UTC", "X5", "No/Such_Place", "EST5EDT,garbage", "EST5EDT,M3.2.0",
             "europe/berlin", "<+05>", "EST5 EDT", "EST5EDT,M3.2.0,M11.1.0,", "5"})
        EXPECT_FALSE(isTimeZoneRule(value)) << value;
}

TEST(Environment, TakesAFolderOfThisUserForWhatEndsWithTheSession)
{
    const ScratchFolder scratch;
    EnvironmentOverride world;
    const auto runtimeFolder = [&](const std::optional<std::string>& variable) {
        world.setVariable("XDG_RUNTIME_DIR", variable);
        return Environment::current().runtimeDirectory();
    };
    EXPECT_EQ(runtimeFolder(scratch.folder().string()), scratch.folder());
    EXPECT_EQ(runtimeFolder(std::nullopt), std::nullopt);
    EXPECT_EQ(runtimeFolder(""), std::nullopt);
    EXPECT_EQ(runtimeFolder("."), std::nullopt) << "not absolute";
    EXPECT_EQ(runtimeFolder((scratch.folder() / "none").string()), std::nullopt);
    EXPECT_EQ(runtimeFolder(scratch.write("file", "").string()), std::nullopt);
    // Who may give a folder away does so; for all others the root is somebody else's.
    const bool isGiven = ::chown(scratch.folder().c_str(), 12345, static_cast<gid_t>(-1)) == 0;
    EXPECT_EQ(runtimeFolder(isGiven ? scratch.folder().string() : "/"), std::nullopt) << "of another user";
    world.setRuntimeDirectory("/r");
    EXPECT_EQ(Environment::current().runtimeDirectory(), "/r");
}

TEST(Environment, ReadsMachineIdentifiers)
{
    const auto identifier = machineIdentifierFromText("000102030405060708090a0b0c0d0e0f\n");
    ASSERT_TRUE(identifier);
    for (std::size_t index = 0; index < identifier->size(); ++index)
        EXPECT_EQ((*identifier)[index], std::byte(index));
    for (const char* text : {"", "\n", "uninitialized\n", "00010203-0405-0607-0809-0a0b0c0d0e0f",
             "000102030405060708090a0b0c0d0e0", "000102030405060708090a0b0c0d0e0g", "00000000000000000000000000000000",
             "000102030405060708090a0b0c0d0e0f0"})
        EXPECT_EQ(machineIdentifierFromText(text), std::nullopt) << text;
}

TEST(Environment, ReadsValuesOfShellAssignments)
{
    constexpr std::string_view kFile
        = "# comment\nICON_NAME=computer\nPRETTY_HOSTNAME=\"Anna\\\"s \"Box\n OTHER='a b'\nEMPTY=\n";
    EXPECT_EQ(valueInAssignments(kFile, "PRETTY_HOSTNAME"), "Anna\"s Box");
    EXPECT_EQ(valueInAssignments(kFile, "OTHER"), "a b");
    EXPECT_EQ(valueInAssignments(kFile, "EMPTY"), std::nullopt);
    EXPECT_EQ(valueInAssignments(kFile, "HOSTNAME"), std::nullopt);
    EXPECT_EQ(valueInAssignments("X=1\nX=2", "X"), "2");
}

TEST(Environment, TakesTheLocaleFromTheFirstVariableThatIsNotEmpty)
{
    EnvironmentOverride world;
    world.setVariable("LC_ALL", "");
    world.setVariable("LC_TIME", "sv_SE.UTF-8");
    world.setVariable("LANG", "de_DE.UTF-8");
    EXPECT_EQ(Environment::current().localeIdentifier(), "sv_SE");
    world.setVariable("LC_TIME", std::nullopt);
    EXPECT_EQ(Environment::current().localeIdentifier(), "de_DE");
    world.setVariable("LC_ALL", "ja_JP");
    EXPECT_EQ(Environment::current().localeIdentifier(), "ja_JP");
}

TEST(Environment, TakesFoldersAndZoneFromVariables)
{
    EnvironmentOverride world;
    world.setVariable("HOME", "/home/anna");
    world.setVariable("TMPDIR", "/var/tmp");
    world.setVariable("TZ", ":Europe/Berlin");
    const NSDate date = dateFromISO8601String("2021-03-15").value();
    EXPECT_EQ(Environment::current().homeDirectory(), "/home/anna");
    EXPECT_EQ(Environment::current().temporaryDirectory(), "/var/tmp");
    EXPECT_EQ(Environment::current().localTimeOffset(date), std::chrono::hours(1));
    world.setVariable("TMPDIR", std::nullopt);
    EXPECT_EQ(Environment::current().temporaryDirectory(), "/tmp");
    world.setVariable("TZ", "");
    EXPECT_EQ(Environment::current().localTimeOffset(date), std::chrono::hours(0));
}

TEST(Environment, AnswersWithoutAnyOverride)
{
    const Environment& environment = Environment::current();
    EXPECT_LT(std::chrono::abs(environment.localTimeOffset(environment.now())), std::chrono::hours(25));
    EXPECT_FALSE(environment.hostName().empty());
    EXPECT_GT(environment.now(), *dateFromISO8601String("2020-01-01"));
    std::array<std::byte, 300> bytes{};
    environment.fillWithRandomBytes(bytes);
    EXPECT_NE(bytes, (std::array<std::byte, 300>{}));
}

TEST(EnvironmentOverride, EndsWithItsScope)
{
    const std::string before = Environment::current().hostName();
    {
        EnvironmentOverride outer;
        outer.setHostName("outer");
        {
            EnvironmentOverride inner;
            inner.setHostName("inner");
            inner.setNow(dateWithMicrosecondsSince1970(5));
            EXPECT_EQ(Environment::current().hostName(), "inner");
            EXPECT_EQ(now(), dateWithMicrosecondsSince1970(5));
        }
        EXPECT_EQ(Environment::current().hostName(), "outer");
        EXPECT_NE(now(), dateWithMicrosecondsSince1970(5));
    }
    EXPECT_EQ(Environment::current().hostName(), before);
}

TEST(EnvironmentOverride, SetsWhatItIsTold)
{
    EnvironmentOverride world;
    world.setTimeZoneIdentifier("Asia/Tokyo");
    world.setLocaleIdentifier("ko_KR");
    world.setHomeDirectory("/h");
    world.setTemporaryDirectory("/t");
    world.setMachineIdentifier(std::nullopt);
    world.setHostName("bad\xFFname");
    const Environment& environment = Environment::current();
    EXPECT_EQ(environment.localTimeOffset(environment.now()), std::chrono::hours(9));
    EXPECT_EQ(environment.variable("TZ"), "Asia/Tokyo");
    EXPECT_EQ(environment.localeIdentifier(), "ko_KR");
    EXPECT_EQ(environment.homeDirectory(), "/h");
    EXPECT_EQ(environment.temporaryDirectory(), "/t");
    EXPECT_EQ(environment.machineIdentifier(), std::nullopt);
    EXPECT_EQ(environment.hostName(), "bad\uFFFDname");
}

TEST(Environment, KnowsHowMuchCanBeWritten)
{
    const auto space = Environment::current().availableSpace(std::filesystem::temp_directory_path());
    ASSERT_TRUE(space);
    EXPECT_GT(*space, 0U);
    EXPECT_EQ(Environment::current().availableSpace("/no such folder"), std::nullopt);
    EnvironmentOverride world;
    world.setAvailableSpace(7);
    EXPECT_EQ(Environment::current().availableSpace("/no such folder"), 7U);
}

} // namespace
