#include "tests/backup/ForgedBackup.h"

#include "tarnmodel/backup/archive/ArchiveReader.h"
#include "tarnmodel/backup/archive/ManifestText.h"

#include <archive.h>
#include <archive_entry.h>

#include <sys/resource.h>

namespace tarn {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// Archives that nobody makes by accident.
class DamagedBackup : public ForgedBackup {
protected:
    /// What the store holds after it refused the archive: nothing.
    NSError refusal(const BackupReadOptions& options = {})
    {
        const NSError error = errorOfRestore(otherStore(), options);
        EXPECT_TRUE(contentsOfStore(otherStore().context()).empty());
        EXPECT_TRUE(filesBelow(otherRoot()).empty());
        return error;
    }
};

TEST_F(DamagedBackup, IsRefusedWhicheverByteWasChanged)
{
    OVNote& only = note("# One\n\n#tag");
    attach(only, "a.txt", "bytes of the attachment");
    save();
    backUp();
    const std::string whole = bytesOf(archive());
    TestStore& other = otherStore();
    const auto empty = contentsOfStore(other.context());
    std::size_t named = 0;
    for (std::size_t index = 0; index < whole.size(); ++index) {
        std::string harmed = whole;
        harmed[index] = static_cast<char>(harmed[index] ^ (1 << (index % 8)));
        writeBytes(archive(), harmed);
        NSError error;
        ASSERT_FALSE(BackupRestore(archive()).restoreIntoContext(other.context(), {}, &error)) << index;
        ASSERT_EQ(error.domain(), TarnBackupErrorDomain) << index << " " << error;
        ASSERT_THAT(error.code(), testing::AnyOf(BackupErrorDamaged, BackupErrorNotABackup)) << index;
        // An examination names what is damaged, or says that not even the list of contents can be read.
        const auto examination = BackupRestore(archive()).examine({}, &error);
        if (examination) {
            ASSERT_THAT(examination->damaged, Not(IsEmpty())) << index;
            ++named;
        } else {
            ASSERT_THAT(error.localizedDescription(), HasSubstr("notes, alle.tarnbackup")) << index << " " << error;
        }
    }
    EXPECT_GT(named, std::size_t(ArchiveEnd::length));
    EXPECT_EQ(contentsOfStore(other.context()), empty);
}

TEST_F(DamagedBackup, IsRefusedCutAtAnyLength)
{
    note("# One\n\n#tag");
    save();
    backUp();
    const std::string whole = bytesOf(archive());
    TestStore& other = otherStore();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        writeBytes(archive(), whole.substr(0, length));
        NSError error;
        ASSERT_FALSE(BackupRestore(archive()).restoreIntoContext(other.context(), {}, &error)) << length;
        ASSERT_EQ(error.domain(), TarnBackupErrorDomain) << length;
        BackupReadOptions salvaging;
        salvaging.salvages = true;
        const auto examination = BackupRestore(archive()).examine({}, &error);
        ASSERT_TRUE(!examination || !examination->damaged.empty()) << length;
    }
    EXPECT_TRUE(contentsOfStore(other.context()).empty());
}

TEST_F(DamagedBackup, GivesWhatIsWholeAndNamesTheRest)
{
    OVNote& only = note("# One\n\n[](a.txt) [](b.txt)");
    const std::string first = *attach(only, "a.txt", "bytes of a").uniqueIdentifier();
    attach(only, "b.txt", "bytes of b");
    only.updateNoteWithText("# One\n\n[](a.txt) [](b.txt)");
    save();
    backUp();
    // The same archive, in which the bytes of one attachment are others than its list says.
    Members members = membersOfArchive();
    const std::string manifest = members.front().second;
    members.erase(members.begin());
    for (auto& [name, bytes] : members)
        if (name.ends_with("a.txt"))
            bytes.front() = '?';
    writeArchive(manifest, members);

    EXPECT_EQ(refusal().code(), BackupErrorDamaged);
    EXPECT_THAT(refusal().localizedDescription(), HasSubstr("files/" + first + "/a.txt is not what it was"));
    BackupReadOptions salvaging;
    salvaging.salvages = true;
    const BackupRestoration restoration = restore(otherStore(), salvaging);
    EXPECT_EQ(restoration.restored, 1U);
    EXPECT_EQ(restoration.files, 1U);
    ASSERT_EQ(restoration.skipped.size(), 2U);
    EXPECT_EQ(restoration.skipped.front().title, "files/" + first + "/a.txt");
    EXPECT_EQ(restoration.skipped.back().title, "a.txt");
}

TEST_F(DamagedBackup, OfSomeRecordsGivesThoseBehindThem)
{
    const auto recordOf = [](int number, const std::string& key) {
        return "{\"number\": " + std::to_string(number) + ", \"attributes\": {\"uniqueIdentifier\": \"" + key
            + "\", \"title\": \"" + key + "\"}, \"relationships\": {}}\n";
    };
    Members members{{"records/OVNoteTag.jsonl", recordOf(1, "tag")}, {"records/OVNote.jsonl", recordOf(1, "Note")}};
    const std::string manifest = textOfManifest(manifestOf(members));
    members.front().second.back() = ' ';
    writeArchive(manifest, members);
    BackupReadOptions salvaging;
    salvaging.salvages = true;
    const BackupRestoration restoration = restore(otherStore(), salvaging);
    EXPECT_EQ(restoration.restored, 1U);
    EXPECT_EQ(restoration.damaged, 1U);
    EXPECT_EQ(restoration.skipped.front().title, "records/OVNoteTag.jsonl");
    EXPECT_EQ(noteOf(otherStore().context(), "Note").uniqueIdentifier(), "Note");
}

TEST_F(DamagedBackup, LosesOnlyWhatLiesBehindACut)
{
    OVNote& only = note("# One");
    attach(only, "a.bin", std::string(3'000'000, 'a'));
    std::string noise(3'000'000, '\0');
    for (std::size_t index = 0; index < noise.size(); ++index)
        noise[index] = static_cast<char>((index * 2'654'435'761U) >> 13);
    attach(only, "b.bin", noise);
    save();
    backUp();
    const std::string whole = bytesOf(archive());
    writeBytes(archive(), whole.substr(0, whole.size() - 1'000));
    BackupReadOptions salvaging;
    salvaging.salvages = true;
    const BackupRestoration restoration = restore(otherStore(), salvaging);
    EXPECT_EQ(restoration.restored, 1U);
    EXPECT_LE(restoration.files, 1U);
    EXPECT_THAT(restoration.skipped, Not(IsEmpty()));
}

TEST_F(DamagedBackup, OfNamesThatLeadOutIsRefused)
{
    for (const char* name : {"../evil", "/etc/evil", "files/../../evil", "files/A/../../evil", "files/A/..",
             "files/./a", "files//a", "files/A/", "records/../OVNote.jsonl", "records/OVNote.jsonl/more", "evil",
             "records/OVNote.txt", "manifest.json"}) {
        writeArchive({{name, "bytes"}});
        const NSError error = refusal();
        EXPECT_EQ(error.domain(), TarnBackupErrorDomain) << name;
        EXPECT_EQ(error.code(), BackupErrorDamaged) << name << error;
    }
    EXPECT_FALSE(std::filesystem::exists(filesRoot() / "evil"));
}

TEST_F(DamagedBackup, WithAMemberTwiceIsRefused)
{
    writeArchive({{"files/A/a", "bytes"}, {"files/A/a", "bytes"}});
    EXPECT_THAT(refusal().localizedDescription(), HasSubstr("names a member twice"));
    writeArchive(
        textOfManifest(manifestOf({{"files/A/a", "bytes"}})), {{"files/A/a", "bytes"}, {"files/A/a", "bytes"}});
    EXPECT_THAT(refusal().localizedDescription(), HasSubstr("is not in its list of contents"));
    writeArchive({{"files/A/a", "bytes"}, {"files/A/b", "bytes"}});
    EXPECT_THAT(refusal().localizedDescription(), HasSubstr("wrong name"));
}

TEST_F(DamagedBackup, WithAMemberMissingIsRefused)
{
    writeArchive(textOfManifest(manifestOf({{"files/A/a", "bytes"}})), {});
    EXPECT_THAT(refusal().localizedDescription(), HasSubstr("files/A/a cannot be reached"));
}

TEST_F(DamagedBackup, WithAMemberOfAnotherSizeIsRefused)
{
    for (const char* bytes : {"byte", "bytes and more", ""}) {
        writeArchive(textOfManifest(manifestOf({{"files/A/a", "bytes"}})), {{"files/A/a", bytes}});
        EXPECT_THAT(refusal().localizedDescription(), HasSubstr("files/A/a is not what it was")) << bytes;
    }
}

TEST_F(DamagedBackup, OfALaterFormatOrModelIsRefusedAsSuch)
{
    BackupManifest manifest = manifestOf({});
    manifest.format = 2;
    writeArchive(textOfManifest(manifest), {});
    EXPECT_EQ(refusal().code(), BackupErrorNewer);
    writeArchive("{\"format\": 7, \"else\": {\"all\": \"is different\"}}", {});
    EXPECT_EQ(refusal().code(), BackupErrorNewer);
    manifest.format = 1;
    manifest.modelVersion = "Model 99";
    writeArchive(textOfManifest(manifest), {});
    EXPECT_EQ(refusal().code(), BackupErrorNewer);
    manifest.modelVersion = "../Model 3";
    writeArchive(textOfManifest(manifest), {});
    EXPECT_EQ(refusal().code(), BackupErrorNewer);
}

TEST_F(DamagedBackup, WithAListOfContentsThatIsNoneIsRefused)
{
    for (const std::string& manifest :
        {std::string(), std::string("{}"), std::string("[]"), std::string("{\"format\": 1}"),
            std::string("{\"format\": 1, \"members\": [5]}"), std::string("\xFF"), std::string(1'000'000, '['),
            std::string("{\"format\": \"one\"}"), std::string("{\"format\": 1, \"members\": [{\"name\": 1}]}")}) {
        writeArchive(manifest, {});
        EXPECT_EQ(refusal().code(), BackupErrorDamaged) << manifest.substr(0, 40);
    }
}

TEST_F(DamagedBackup, WithRecordsThatAreNoneIsRefused)
{
    for (const char* line : {"{}", "[]", "{", "{\"number\": 1, \"attributes\": {\"title\": 5}, \"relationships\": {}}",
             "{\"number\": \"one\", \"attributes\": {}, \"relationships\": {}}",
             "{\"number\": 1, \"attributes\": {\"vectorClock\": \"no base64\"}, \"relationships\": {}}",
             "{\"number\": 1, \"attributes\": [], \"relationships\": {}}",
             "{\"number\": 1, \"attributes\": {}, \"relationships\": {\"tags\": \"one\"}}",
             "{\"number\": 1, \"attributes\": {}, \"relationships\": {}}\n"
             "{\"number\": 1, \"attributes\": {}, \"relationships\": {}}"}) {
        writeArchive({{"records/OVNote.jsonl", line}});
        const NSError error = refusal();
        EXPECT_EQ(error.domain(), TarnBackupErrorDomain) << line << error;
        EXPECT_EQ(error.code(), BackupErrorDamaged) << line << error;
    }
}

TEST_F(DamagedBackup, PassesOverRelationshipsToRecordsThatAreNotInIt)
{
    writeArchive({{"records/OVNote.jsonl",
        "{\"number\": 1, \"attributes\": {\"uniqueIdentifier\": \"N\", \"text\": \"# One\", \"title\": \"One\"}, "
        "\"relationships\": {\"tags\": [1, 2], \"password\": 99}}"}});
    const BackupRestoration restoration = restore(otherStore());
    EXPECT_EQ(restoration.restored, 1U);
    EXPECT_EQ(noteOf(otherStore().context(), "One").tagsSet().allObjects().size(), 0U);
}

TEST_F(DamagedBackup, IsRefusedAboveTheLimits)
{
    writeArchive({{"files/A/a", std::string(100'000, 'a')}, {"files/B/b", "b"}});
    const auto refused = [&](const BackupLimits& limits) {
        BackupReadOptions options;
        options.limits = limits;
        return refusal(options).code();
    };
    EXPECT_EQ(refused({.members = 1}), BackupErrorTooLarge);
    EXPECT_EQ(refused({.bytes = 100'000}), BackupErrorTooLarge);
    EXPECT_EQ(refused({.manifestBytes = 100}), BackupErrorTooLarge);
    EXPECT_EQ(refused({.ratio = 1, .ratioFreeBytes = 100}), BackupErrorTooLarge);
    BackupManifest manifest = manifestOf({{"files/A/a", "a"}, {"files/B/b", "b"}});
    manifest.members[0].size = UINT64_MAX;
    manifest.members[1].size = UINT64_MAX;
    writeArchive(textOfManifest(manifest), {});
    EXPECT_EQ(refused({}), BackupErrorTooLarge);
}

/// A tar file as others write it.
class ForeignTar {
public:
    explicit ForeignTar(const std::filesystem::path& file) : tar_(archive_write_new())
    {
        archive_write_set_format_pax_restricted(tar_);
        archive_write_add_filter_zstd(tar_);
        archive_write_open_filename(tar_, file.c_str());
    }
    ~ForeignTar() { archive_write_free(tar_); }
    void add(const char* name, int type, std::string_view bytes = {}, const char* target = nullptr)
    {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, name);
        archive_entry_set_filetype(entry, static_cast<unsigned>(type));
        archive_entry_set_perm(entry, 0600);
        archive_entry_set_size(entry, static_cast<la_int64_t>(bytes.size()));
        if (target && type == AE_IFLNK)
            archive_entry_set_symlink(entry, target);
        else if (target)
            archive_entry_set_hardlink(entry, target);
        archive_write_header(tar_, entry);
        archive_write_data(tar_, bytes.data(), bytes.size());
        archive_entry_free(entry);
    }

private:
    archive* tar_;
};

TEST_F(DamagedBackup, WithALinkInPlaceOfAFileIsRefused)
{
    for (const int type : {AE_IFLNK, AE_IFREG, AE_IFIFO}) {
        {
            ForeignTar tar(archive());
            tar.add("manifest.json", AE_IFREG, textOfManifest(manifestOf({{"files/A/a", ""}})));
            tar.add("files/A/a", type, {}, type == AE_IFIFO ? nullptr : "/etc/passwd");
        }
        BackupReadOptions salvaging;
        salvaging.salvages = true;
        const BackupRestoration restoration = restore(otherStore(), salvaging);
        EXPECT_EQ(restoration.files, 0U);
        ASSERT_EQ(restoration.skipped.size(), 1U);
        EXPECT_EQ(restoration.skipped.front().title, "files/A/a");
        EXPECT_EQ(errorOfRestore(otherStore()).code(), BackupErrorDamaged);
    }
}

TEST_F(DamagedBackup, OfMillionsOfMembersTakesNoMemory)
{
    {
        ForeignTar tar(archive());
        tar.add("manifest.json", AE_IFREG, textOfManifest(manifestOf({})));
        for (int index = 0; index < 300'000; ++index)
            tar.add("files/A/a", AE_IFREG);
    }
    rusage before{};
    getrusage(RUSAGE_SELF, &before);
    BackupReadOptions salvaging;
    salvaging.salvages = true;
    restore(otherStore(), salvaging);
    rusage after{};
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 32 << 10);
}

TEST_F(DamagedBackup, ThatSwellsIsCutOffAtWhatItsListSays)
{
    {
        ForeignTar tar(archive());
        tar.add("manifest.json", AE_IFREG, textOfManifest(manifestOf({{"files/A/a", "bytes"}})));
        tar.add("files/A/a", AE_IFREG, std::string(300'000'000, '\0'));
    }
    ASSERT_LT(std::filesystem::file_size(archive()), 100'000U);
    BackupReadOptions salvaging;
    salvaging.salvages = true;
    const auto start = std::chrono::steady_clock::now();
    const BackupRestoration restoration = restore(otherStore(), salvaging);
    EXPECT_EQ(restoration.files, 0U);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_FALSE(restoration.skipped.empty());
}

TEST_F(DamagedBackup, ThatIsSomethingElseIsNoBackup)
{
    for (const char* text : {"", "x", "SQLite format 3", "PK\3\4 and more"}) {
        writeBytes(archive(), text);
        EXPECT_EQ(refusal().code(), BackupErrorNotABackup) << text;
    }
    std::filesystem::remove(archive());
    EXPECT_EQ(refusal().domain(), NSPOSIXErrorDomain);
    std::filesystem::create_directory(archive());
    EXPECT_EQ(refusal().code(), BackupErrorNotABackup);
}

} // namespace
} // namespace tarn
