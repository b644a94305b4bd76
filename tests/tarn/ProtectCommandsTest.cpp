#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

namespace tarn::test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

/// Everything that lies in a folder, names of files included.
std::string allBytesIn(const std::filesystem::path& folder)
{
    std::ostringstream bytes;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        bytes << entry.path().filename().string() << '\n';
        if (entry.is_regular_file())
            bytes << std::ifstream(entry.path()).rdbuf();
    }
    return bytes.str();
}

} // namespace

/// A store with a password that costs little time, in a file beside it.
class ProtectCommands : public TarnCommandTest {
protected:
    ProtectCommands() : passwordFile_(file("secret.txt", "correct horse\nnot of it\n").string()) { }

    std::vector<std::string> withPassword(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.end(), {"--password-file", passwordFile_});
        return arguments;
    }
    void addPassword() const { output(withPassword({"password", "add", "--memory", "1", "--hint", "the usual"})); }
    /// By the password of the store, or a first one, which is told of.
    void protect(const std::string& identifier) const
    {
        const TarnResult result = run(withPassword({"protect", identifier, "--memory", "1"}));
        EXPECT_EQ(result.exitCode, 0) << result.errors;
    }
    std::string protectedNote(const std::string& text) const
    {
        const std::string identifier = note(text);
        protect(identifier);
        return identifier;
    }
    std::string identifierOfPassword() const
    {
        return json({"passwords"}).at("passwords").at(0).at("uniqueIdentifier").get<std::string>();
    }

    std::string passwordFile_;
};

TEST_F(ProtectCommands, MakeTheFirstPasswordAndEncryptTheText)
{
    const std::string identifier = note("# Diary\n\nMARKER-OF-THE-TEXT");
    const TarnResult result = run(withPassword({"protect", "Diary", "--memory", "1"}));
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("first password"));
    EXPECT_EQ(stored("SELECT encrypted FROM OVNote"), "1");
    EXPECT_EQ(stored("SELECT text IS NULL FROM OVNote_large"), "1");
    EXPECT_THAT(json({"passwords"}).at("passwords"), SizeIs(1));
    EXPECT_THAT(allBytesIn(store()), Not(HasSubstr("MARKER-OF-THE-TEXT")));
    EXPECT_EQ(output(withPassword({"show", identifier})), "# Diary\n\nMARKER-OF-THE-TEXT");
}

TEST_F(ProtectCommands, LeaveNoHashOfAnImportedText)
{
    output({"import", file("in/a.md", "# A\n\nsecret"), file("in/b.md", "# B")});
    const auto record = database().parent_path() / "database.imports.jsonl";
    const auto hashes = [&] {
        std::ifstream stream(record);
        const std::string text(std::istreambuf_iterator<char>(stream), {});
        std::size_t count = 0;
        for (std::size_t at = 0; (at = text.find("\"whole\"", at)) != std::string::npos; ++at)
            ++count;
        return count;
    };
    EXPECT_EQ(hashes(), 2U);
    protect(json({"show", "A"}).at("uniqueIdentifier"));
    EXPECT_EQ(hashes(), 1U);
    EXPECT_EQ(json({"import", folder() / "in"}).at("unchanged"), 2);
    file("in/a.md", "# A\n\nanother");
    const auto document = json({"import", folder() / "in"});
    EXPECT_EQ(document.at("skippedFiles").at(0).at("reason"), "its note is protected by a password");
}

TEST_F(ProtectCommands, LeaveALockedNoteAloneAndEndWith3)
{
    const std::string identifier = protectedNote("# Diary\n\n#home text");
    const std::string before = stored("SELECT hex(encryptedData) FROM OVNote_large");
    for (const std::vector<std::string>& command : std::vector<std::vector<std::string>>{{"show", "Diary"},
             {"append", "Diary", "more"}, {"prepend", "Diary", "more"}, {"replace", "Diary", "more"},
             {"merge", "Diary", note("# Other")}, {"tag", "add", "work", "Diary"}, {"tag", "remove", "home", "Diary"},
             {"tag", "rename", "home", "house"}, {"tag", "delete", "home", "--yes"}, {"unprotect", "Diary"},
             {"export", (folder() / "out").string(), "Diary"}}) {
        const TarnResult result = run(command);
        EXPECT_EQ(result.exitCode, 3) << command.front() << ": " << result.errors;
        EXPECT_THAT(result.errors, HasSubstr("protected by a password")) << command.front();
    }
    EXPECT_EQ(stored("SELECT hex(encryptedData) FROM OVNote_large WHERE length(encryptedData) > 0"), before);
    EXPECT_EQ(output(withPassword({"show", identifier})), "# Diary\n\n#home text");
}

TEST_F(ProtectCommands, EditAProtectedNoteWithItsPassword)
{
    protectedNote("# Diary\n\nfirst #home");
    output(withPassword({"append", "Diary", "second"}));
    output(withPassword({"tag", "rename", "home", "house"}));
    EXPECT_EQ(output(withPassword({"show", "Diary"})), "# Diary\n\nfirst #house\nsecond");
    EXPECT_EQ(stored("SELECT count(*) FROM OVNote_large WHERE text IS NOT NULL"), "0");
    EXPECT_EQ(stored("SELECT subtitle IS NULL FROM OVNote"), "1");
}

TEST_F(ProtectCommands, TellAWrongPasswordFromDamage)
{
    protectedNote("# Diary\n\ntext");
    const std::string wrong = file("wrong.txt", "incorrect horse\n").string();
    const TarnResult refused = run({"show", "Diary", "--password-file", wrong});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_THAT(refused.errors, HasSubstr("is not the password"));
    EXPECT_EQ(refused.output, "");
    damage("UPDATE OVNote_large SET encryptedData = substr(encryptedData, 1, length(encryptedData) - 1) || x'00'");
    const TarnResult damaged = run(withPassword({"show", "Diary"}));
    EXPECT_EQ(damaged.exitCode, 5) << damaged.errors;
    EXPECT_EQ(damaged.output, "");
}

TEST_F(ProtectCommands, TakeThePasswordFromAVariableAndFromAPipe)
{
    protectedNote("# Diary\n\ntext");
    TarnProcess process(arguments({"show", "Diary"}));
    process.setVariable("TARN_PASSWORD_FILE", passwordFile_);
    EXPECT_EQ(process.finish().output, "# Diary\n\ntext");
    EXPECT_EQ(run({"show", "Diary", "--password-file", "/dev/stdin"}, "correct horse\n").output, "# Diary\n\ntext");
    EXPECT_EQ(run({"show", "Diary", "--password-file", "/dev/stdin"}, "correct horse\r\n").output, "# Diary\n\ntext");
}

TEST_F(ProtectCommands, RefuseAFileWithoutAPassword)
{
    protectedNote("# Diary\n\ntext");
    const std::string empty = file("empty.txt", "\nsecond line\n").string();
    EXPECT_EQ(run({"show", "Diary", "--password-file", empty}).exitCode, 2);
    EXPECT_EQ(run({"show", "Diary", "--password-file", (folder() / "none").string()}).exitCode, 6);
    EXPECT_EQ(run({"show", "Diary", "--password-file", ""}).exitCode, 2);
    const std::string tooLong = file("long.txt", std::string(5000, 'x') + "\n").string();
    EXPECT_EQ(run({"show", "Diary", "--password-file", tooLong}).exitCode, 2);
}

TEST_F(ProtectCommands, AskOnTheTerminalWithoutShowingWhatIsTyped)
{
    protectedNote("# Diary\n\nthe text");
    TarnProcess process(arguments({"show", "Diary"}));
    process.useTerminalAnsweringQuestions();
    process.setInput("wrong\ncorrect horse\n");
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_THAT(result.output, HasSubstr("Password of \"Diary\""));
    EXPECT_THAT(result.output, HasSubstr("This is not the password."));
    EXPECT_THAT(result.output, HasSubstr("the text"));
    EXPECT_THAT(result.output, Not(HasSubstr("correct horse")));
}

TEST_F(ProtectCommands, AskTwiceForAFirstPassword)
{
    note("# Diary\n\nthe text");
    TarnProcess process(arguments({"protect", "Diary", "--memory", "1"}));
    process.useTerminalAnsweringQuestions();
    process.setInput("one\nanother\ncorrect horse\ncorrect horse\n");
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_THAT(result.output, HasSubstr("These are not the same."));
    EXPECT_EQ(output(withPassword({"show", "Diary"})), "# Diary\n\nthe text");
}

TEST_F(ProtectCommands, TakeTheProtectionOff)
{
    const std::string identifier = protectedNote("# Diary\n\nthe text");
    output(withPassword({"unprotect", "Diary"}));
    EXPECT_EQ(output({"show", identifier}), "# Diary\n\nthe text");
    const nlohmann::json document = json({"show", identifier});
    EXPECT_EQ(document.at("encrypted"), false);
    EXPECT_EQ(document.at("subtitle"), "the text");
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(ProtectCommands, ProtectAttachmentsAndGiveThemBack)
{
    const std::string identifier = note("# Diary");
    const std::string attached = file("picture of me.txt", "MARKER-OF-THE-BYTES").string();
    output({"attach", identifier, attached});
    protect(identifier);
    const std::string bytes = allBytesIn(store());
    EXPECT_THAT(bytes, Not(HasSubstr("MARKER-OF-THE-BYTES")));
    EXPECT_THAT(bytes, Not(HasSubstr("picture of me")));
    EXPECT_TRUE(json({"files"}).at("files").at(0).at("filename").is_null());
    EXPECT_EQ(json(withPassword({"files"})).at("files").at(0).at("filename"), "picture of me.txt");
    const std::filesystem::path out = folder() / "out";
    output(withPassword({"export", out.string(), identifier}));
    EXPECT_THAT(allBytesIn(out), HasSubstr("MARKER-OF-THE-BYTES"));
    std::filesystem::remove_all(out);
    output(withPassword({"unprotect", identifier}));
    EXPECT_EQ(json({"files"}).at("files").at(0).at("filename"), "picture of me.txt");
    EXPECT_THAT(allBytesIn(store()), HasSubstr("MARKER-OF-THE-BYTES"));
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(ProtectCommands, ExportWhatIsOpenAndNameWhatIsNot)
{
    protectedNote("# Diary\n\nhidden");
    note("# Open");
    const TarnResult result = run({"export", (folder() / "out").string()});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("Diary.md: the note is protected by a password"));
    EXPECT_TRUE(std::filesystem::exists(folder() / "out" / "Open.md"));
    EXPECT_FALSE(std::filesystem::exists(folder() / "out" / "Diary.md"));
}

TEST_F(ProtectCommands, ListPasswordsWithWhatTheyProtect)
{
    EXPECT_EQ(run({"passwords"}).exitCode, 1);
    addPassword();
    protectedNote("# Diary\n\nhidden");
    const nlohmann::json password = json({"passwords"}).at("passwords").at(0);
    EXPECT_EQ(password.at("hint"), "the usual");
    EXPECT_EQ(password.at("notes"), 1);
    EXPECT_EQ(password.at("files"), 0);
    EXPECT_EQ(password.at("uniqueIdentifier").get<std::string>().size(), 36U);
    EXPECT_FALSE(password.at("creationDate").is_null());
    EXPECT_FALSE(password.at("creationDevice").is_null());
    EXPECT_THAT(output({"passwords"}), HasSubstr("1 note, 0 files"));
}

TEST_F(ProtectCommands, ChangeAPassword)
{
    protectedNote("# Diary\n\nhidden");
    const std::string before = stored("SELECT hex(encryptedData) FROM OVNote_large");
    const std::string newFile = file("new.txt", "battery staple\n").string();
    EXPECT_EQ(run(withPassword({"password", "change"})).exitCode, 2) << "there is no new one";
    output(withPassword({"password", "change", "--new-password-file", newFile, "--memory", "1"}));
    EXPECT_EQ(run(withPassword({"show", "Diary"})).exitCode, 3);
    EXPECT_EQ(output({"show", "Diary", "--password-file", newFile}), "# Diary\n\nhidden");
    EXPECT_EQ(stored("SELECT hex(encryptedData) FROM OVNote_large"), before) << "no note was encrypted anew";
}

TEST_F(ProtectCommands, RotateTheKeysOfAPassword)
{
    protectedNote("# Diary\n\nhidden");
    const std::string before = stored("SELECT hex(encryptedData) FROM OVNote_large");
    EXPECT_THAT(output(withPassword({"password", "rotate", identifierOfPassword().substr(0, 8)})),
        HasSubstr("encrypted 1 record anew"));
    EXPECT_NE(stored("SELECT hex(encryptedData) FROM OVNote_large"), before);
    EXPECT_EQ(output(withPassword({"show", "Diary"})), "# Diary\n\nhidden");
}

TEST_F(ProtectCommands, DeleteAPasswordThatProtectsNothing)
{
    protectedNote("# Diary\n\nhidden");
    const TarnResult refused = run({"password", "delete", "--yes"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_THAT(refused.errors, HasSubstr("protects 1 note"));
    EXPECT_EQ(run({"password", "delete"}).exitCode, 2) << "there is nobody to ask";
    output(withPassword({"unprotect", "Diary"}));
    output({"password", "delete", "--yes"});
    EXPECT_EQ(run({"passwords"}).exitCode, 1);
}

TEST_F(ProtectCommands, WantOneOfSeveralPasswordsNamed)
{
    addPassword();
    addPassword();
    note("# Diary");
    const TarnResult refused = run(withPassword({"protect", "Diary"}));
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_THAT(refused.errors, HasSubstr("--password"));
    output(withPassword({"protect", "Diary", "--password", identifierOfPassword()}));
    EXPECT_EQ(json({"passwords"}).at("passwords").at(0).at("notes"), 1);
    EXPECT_EQ(run(withPassword({"protect", "Diary", "--password", "FFFFFFFF-0000"})).exitCode, 1);
}

TEST_F(ProtectCommands, ChangeNothingWhereOneNoteCannotBeProtected)
{
    const std::string one = note("# One\n\nfirst");
    EXPECT_EQ(run(withPassword({"protect", one, "No such note", "--memory", "1"})).exitCode, 1);
    EXPECT_EQ(stored("SELECT encrypted FROM OVNote"), "0");
    EXPECT_EQ(run({"passwords"}).exitCode, 1) << "no password was made for nothing";
    EXPECT_EQ(run({"protect", one}).exitCode, 3) << "there is no password and nobody to ask";
    EXPECT_EQ(run(withPassword({"protect", one, "--memory", "2000"})).exitCode, 2);
}

TEST_F(ProtectCommands, MergeProtectedNotesIntoAProtectedOne)
{
    const std::string one = protectedNote("# One\n\nMARKER-ONE");
    const std::string two = note("# Two\n\nsecond");
    const nlohmann::json merged = json(withPassword({"merge", one, two}));
    EXPECT_EQ(merged.at("encrypted"), true);
    EXPECT_THAT(allBytesIn(store()), Not(HasSubstr("MARKER-ONE")));
    EXPECT_EQ(output(withPassword({"show", merged.at("uniqueIdentifier").get<std::string>()})),
        "# One\n\nMARKER-ONE\n\n# Two\n\nsecond");
}

TEST_F(ProtectCommands, EditAProtectedNoteInTheEditorWithoutLeavingItsText)
{
    protectedNote("# Diary\n\nMARKER-OF-THE-TEXT");
    const std::filesystem::path temporary = folder() / "tmp";
    std::filesystem::create_directory(temporary);
    TarnProcess process(arguments(withPassword({"edit", "Diary"})));
    process.setVariable("EDITOR", "sed -i s/MARKER/NEW-MARKER/");
    process.setVariable("TMPDIR", temporary.string());
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(output(withPassword({"show", "Diary"})), "# Diary\n\nNEW-MARKER-OF-THE-TEXT");
    EXPECT_THAT(allBytesIn(store()), Not(HasSubstr("MARKER-OF-THE-TEXT")));
    EXPECT_THAT(allBytesIn(temporary), Not(HasSubstr("MARKER-OF-THE-TEXT")));
}

TEST_F(ProtectCommands, WriteTheFileAnewWhereClearTextLiesInFreePages)
{
    const std::string identifier = note("# Diary\n\nfirst");
    // As an older program left it, which wiped nothing.
    damage("PRAGMA secure_delete = 0; CREATE TABLE left_over (text); INSERT INTO left_over VALUES "
           "('MARKER-OF-FREE-PAGES' || hex(zeroblob(40000))); DROP TABLE left_over");
    ASSERT_THAT(allBytesIn(store()), HasSubstr("MARKER-OF-FREE-PAGES"));
    protect(identifier);
    EXPECT_THAT(allBytesIn(store()), Not(HasSubstr("MARKER-OF-FREE-PAGES")));
    EXPECT_EQ(output(withPassword({"show", identifier})), "# Diary\n\nfirst");
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(ProtectCommands, NameAStoreThatWasSetAside)
{
    const std::string identifier = note("# Diary\n\nfirst");
    const std::filesystem::path aside = database().parent_path() / "database_backup 2024-01-31T101500Z.sqlite";
    std::filesystem::copy_file(database(), aside);
    const TarnResult result = run(withPassword({"protect", identifier, "--memory", "1"}));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.errors, HasSubstr(aside.filename().string()));
    EXPECT_TRUE(std::filesystem::exists(aside));
}

TEST_F(ProtectCommands, LeaveTheStoreToOthersWhileSomebodyThinks)
{
    protectedNote("# Diary\n\nthe text");
    note("# Plain");
    using Command = std::vector<std::string>;
    for (const auto& [command, answers] : {std::pair(Command{"append", "Diary", "more"}, "correct horse\n"),
             std::pair(
                 Command{"password", "change", "--memory", "1"}, "correct horse\ncorrect horse\ncorrect horse\n")}) {
        TarnProcess asking(arguments(command));
        asking.useTerminalAnsweringQuestions();
        asking.setInput(answers);
        asking.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(500)); // it asks by then
        ASSERT_TRUE(asking.isRunning());
        TarnProcess other(arguments({"append", "Plain", "meanwhile"}));
        other.setVariable("TARN_LOCK_WAIT", "1");
        EXPECT_EQ(other.finish().exitCode, 0) << command.front();
        const TarnResult result = asking.finish();
        EXPECT_EQ(result.exitCode, 0) << result.output;
    }
    EXPECT_EQ(output(withPassword({"show", "Diary"})), "# Diary\n\nthe text\nmore");
}

} // namespace tarn::test
