#include "tests/tarn/TarnCommandTest.h"

#include <fstream>
#include <gmock/gmock.h>

namespace tarn::test {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// A store with a protected note and its attachment.
class DoctorOfProtection : public TarnCommandTest {
protected:
    DoctorOfProtection() : passwordFile_(file("secret.txt", "correct horse\n").string())
    {
        note("# Diary\n\nMARKER");
        output({"attach", "Diary", file("MARKER.txt", "MARKER")});
        const TarnResult result = run({"protect", "Diary", "--memory", "1", "--password-file", passwordFile_});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
    }
    /// What the check says, and that no other finds anything.
    std::vector<std::string> problems() const
    {
        const nlohmann::json document = json({"doctor"});
        std::vector<std::string> problems;
        for (const auto& check : document.at("checks")) {
            EXPECT_TRUE(check.at("ok") || check.at("name") == "protection") << check;
            if (check.at("name") == "protection")
                problems = check.at("problems");
        }
        return problems;
    }

    std::string passwordFile_;
};

TEST_F(DoctorOfProtection, FindsNothingWhereNothingIsClear)
{
    EXPECT_THAT(problems(), testing::IsEmpty());
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(DoctorOfProtection, TakesAwayAClearTextThatThePasswordVouchesFor)
{
    const std::string text = output({"show", "Diary", "--password-file", passwordFile_});
    damage("UPDATE OVNote_large SET text = '" + text + "'");
    damage("UPDATE OVNote SET subtitle = 'MARKER'");
    const TarnResult found = run({"doctor"});
    EXPECT_EQ(found.exitCode, 1);
    EXPECT_THAT(found.output, HasSubstr("its text is stored in clear beside the encrypted one"));
    EXPECT_THAT(found.output, HasSubstr("its subtitle is stored in clear"));
    EXPECT_THAT(found.output + found.errors, Not(HasSubstr("MARKER")));
    EXPECT_THAT(found.errors, HasSubstr("doctor --repair"));
    const TarnResult locked = run({"doctor", "--repair"});
    EXPECT_EQ(locked.exitCode, 1);
    EXPECT_THAT(locked.errors, HasSubstr("--password-file"));
    EXPECT_EQ(stored("SELECT subtitle IS NULL FROM OVNote"), "1");
    const TarnResult repaired = run({"doctor", "--repair", "--password-file", passwordFile_});
    EXPECT_EQ(repaired.exitCode, 0) << repaired.output << repaired.errors;
    EXPECT_THAT(repaired.output, HasSubstr("took clear text from 1 protected item"));
    EXPECT_EQ(stored("SELECT text IS NULL FROM OVNote_large"), "1");
    EXPECT_EQ(output({"show", "Diary", "--password-file", passwordFile_}), text);
}

TEST_F(DoctorOfProtection, FindsAClearFileWithoutTellingItsName)
{
    const std::filesystem::path files = store() / "Application Data" / "Local Files" / "Note Files";
    const std::filesystem::path folder = files / stored("SELECT uniqueIdentifier FROM OVNoteFile");
    std::ofstream(folder / "MARKER.txt") << "MARKER";
    EXPECT_THAT(problems(), ElementsAre(EndsWith("something lies beside the encrypted file, maybe in clear")));
    EXPECT_THAT(problems().front(), Not(HasSubstr("MARKER")));
    EXPECT_EQ(run({"doctor", "--repair"}).exitCode, 0);
    EXPECT_FALSE(std::filesystem::exists(folder / "MARKER.txt"));
}

} // namespace tarn::test
