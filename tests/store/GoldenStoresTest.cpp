#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/diagnosis/StoreDoctor.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/notes/LinkTargets.h"
#include "tarnmodel/platform/coredata/NSManagedObjectSet.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/store/VexMigrationManager.h"
#include "tests/store/ExpectedRows.h"
#include "tests/store/StoreRows.h"
#include "tests/support/GoldenStore.h"
#include "tests/support/SQLStatistics.h"
#include "tests/support/StoreFixture.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

std::shared_ptr<const NSManagedObjectModel> modelOfVersion(std::string_view version)
{
    return NSManagedObjectModel::modelWithContentsOfFile(*OVManagedObjectModel::modelURLForVersion(version));
}

/// Of "CREATE INDEX IF NOT EXISTS "name" ...", as `StoreRows::schemaOfFile` has it: "index name".
std::string keyOfStatement(std::string_view statement)
{
    std::string type(statement.substr(7, statement.find(' ', 7) - 7));
    for (char& letter : type)
        letter = static_cast<char>(letter - 'A' + 'a');
    const std::size_t name = statement.find('"') + 1;
    return type + " " + std::string(statement.substr(name, statement.find('"', name) - name));
}

/// The progress of each step by itself.
class StepListener : public VexMigrationManagerDelegate {
public:
    void migrationManagerMigrationProgress(VexMigrationManager&, float progress) override
    {
        if (steps.empty() || (progress == 0 && steps.back().back() != 0))
            steps.emplace_back();
        steps.back().push_back(progress);
    }

    std::vector<std::vector<float>> steps;
};

/// A store of an older version, migrated and then opened.
class GoldenStores : public testing::Test, protected StillWorld {
protected:
    GoldenStores() { world_.setTemporaryDirectory(store_.storeFile().parent_path() / "temporary"); }
    void SetUp() override { fs::create_directories(store_.storeFile().parent_path() / "temporary"); }
    void TearDown() override
    {
        if (isOpen_) {
            EXPECT_THAT(store_.problems(), IsEmpty());
        }
        store_.close();
        EXPECT_THAT(takeLog(), IsEmpty());
    }

    const fs::path& makeStore(std::string_view version)
    {
        makeGoldenStore(file_, version);
        return file_;
    }
    void migrateTo(std::string_view version, std::vector<std::string> versions)
    {
        VexMigrationManager manager;
        StepListener listener;
        manager.setDelegate(&listener);
        NSError error;
        ASSERT_TRUE(manager.progressivelyMigrateURL(file_, StoreType::SQLite, modelOfVersion(version), &error))
            << error;
        EXPECT_EQ(manager.migratedVersions(), versions);
        ASSERT_EQ(listener.steps.size(), versions.size());
        for (const std::vector<float>& step : listener.steps) {
            EXPECT_EQ(step.front(), 0);
            EXPECT_EQ(step.back(), 1);
            EXPECT_TRUE(std::ranges::is_sorted(step));
            EXPECT_GT(step.size(), 3U) << "it is told on the way too";
        }
    }
    void migrate(std::string_view version)
    {
        makeStore(version);
        version == "Model" ? migrateTo("Model 3", {"Model 2", "Model 3"}) : migrateTo("Model 3", {"Model 3"});
    }
    void openMigrated(std::string_view version)
    {
        ASSERT_NO_FATAL_FAILURE(migrate(version));
        store_.open();
        isOpen_ = true;
    }
    StoreRows rows() const { return StoreRows::ofFile(file_); }
    OVNote& noteCalled(std::string_view title)
    {
        OVNote* note = OVNote::noteWithTitle(title, store_.context());
        EXPECT_TRUE(note) << title;
        return *note;
    }
    /// Subtitles of the notes that the links of a note lead to, by the titles that they name.
    std::map<std::string, std::string> subtitlesOfTargets(std::string_view title)
    {
        std::map<std::string, std::string> subtitles;
        for (const OVNoteBackLink* link : noteCalled(title).linkingToSet().allObjects())
            subtitles[link->title().value()] = link->linkingTo() ? link->linkingTo()->subtitle().value_or("-") : "none";
        return subtitles;
    }

    TestStore store_{StoreType::SQLite};
    const fs::path file_ = store_.storeFile();
    bool isOpen_ = false;
};

/// The same for a store of either older version.
class EachGoldenStore : public GoldenStores, public testing::WithParamInterface<const char*> { };

INSTANTIATE_TEST_SUITE_P(Versions, EachGoldenStore, testing::Values("Model", "Model 2"),
    [](const auto& info) { return info.param == std::string("Model") ? "One" : "Two"; });

// As they are kept ----------------------------------------------------------------------------------------------------

TEST_P(EachGoldenStore, IsAStoreOfItsModel)
{
    makeStore(GetParam());
    const auto model = modelOfVersion(GetParam());
    const auto metadata = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, file_);
    ASSERT_TRUE(metadata);
    EXPECT_TRUE(NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*model, *metadata));

    const fs::path fresh = file_.parent_path() / "fresh.sqlite";
    NSPersistentStoreCoordinator coordinator(model);
    ASSERT_TRUE(coordinator.addPersistentStoreWithType(StoreType::SQLite, fresh, {}));
    auto schema = StoreRows::schemaOfFile(fresh);
    if (std::string_view(GetParam()) == "Model") { // which is older than these
        for (const std::string& statement : StoreSchema(*model).laterStatements())
            EXPECT_EQ(schema.erase(keyOfStatement(statement)), 1U) << statement;
    }
    EXPECT_THAT(differences(schema, StoreRows::schemaOfFile(file_)), IsEmpty());
}

// Rows ----------------------------------------------------------------------------------------------------------------

TEST_F(GoldenStores, OfVersion1ComeToVersion2RowByRow)
{
    const StoreRows expected = rowsAfterStepToVersion2(StoreRows::ofFile(makeStore("Model")));
    ASSERT_NO_FATAL_FAILURE(migrateTo("Model 2", {"Model 2"}));
    StoreRows actual = rows();
    actual.makeNewLinksComparable();
    EXPECT_THAT(differences(expected, actual), IsEmpty());
}

TEST_F(GoldenStores, OfVersion1ComeToVersion3RowByRow)
{
    const StoreRows expected = rowsAfterStepToVersion3(rowsAfterStepToVersion2(StoreRows::ofFile(makeStore("Model"))));
    ASSERT_NO_FATAL_FAILURE(migrateTo("Model 3", {"Model 2", "Model 3"}));
    StoreRows actual = rows();
    actual.makeNewLinksComparable();
    EXPECT_THAT(differences(expected, actual), IsEmpty());
}

TEST_F(GoldenStores, OfVersion2ComeToVersion3RowByRow)
{
    const StoreRows expected = rowsAfterStepToVersion3(StoreRows::ofFile(makeStore("Model 2")));
    ASSERT_NO_FATAL_FAILURE(migrateTo("Model 3", {"Model 3"}));
    EXPECT_THAT(differences(expected, rows()), IsEmpty());
}

TEST_F(GoldenStores, ComeToTheSameRowsByARestOnTheWay)
{
    makeStore("Model");
    ASSERT_NO_FATAL_FAILURE(migrateTo("Model 2", {"Model 2"}));
    {
        NSPersistentStoreCoordinator coordinator(modelOfVersion("Model 2"));
        NSError error;
        ASSERT_TRUE(coordinator.addPersistentStoreWithType(StoreType::SQLite, file_, {}, &error)) << error;
    }
    ASSERT_NO_FATAL_FAILURE(migrateTo("Model 3", {"Model 3"}));
    StoreRows afterRest = rows();
    fs::remove(file_);
    ASSERT_NO_FATAL_FAILURE(migrate("Model"));
    StoreRows atOnce = rows();
    afterRest.makeNewLinksComparable();
    atOnce.makeNewLinksComparable();
    EXPECT_THAT(differences(atOnce, afterRest), IsEmpty());
}

TEST_P(EachGoldenStore, KeepsWhatNamesItsRecords)
{
    makeStore(GetParam());
    const StoreRows before = rows();
    fs::remove(file_);
    ASSERT_NO_FATAL_FAILURE(openMigrated(GetParam()));
    const std::map<std::string, std::string> after = store_.store().metadata(nullptr);
    for (const char* key : {"storeUUID", "host.lastBackup", "host.empty"})
        EXPECT_EQ(after.at(key), before.metadata.at(key)) << key;
    EXPECT_EQ(store_.store().identifier(), before.metadata.at("storeUUID"));
    for (const auto& [key, row] : before.tables.at("OVInternalChanges")) {
        if (!StoreRows::isText(row.at("itemObjectID"))
            || row.at("itemObjectID").find("tarn-store") == std::string::npos)
            continue;
        const std::string uri = StoreRows::textOf(row.at("itemObjectID"));
        const auto objectID = store_.context().persistentStoreCoordinator().managedObjectIDForURIRepresentation(uri);
        ASSERT_TRUE(objectID) << uri;
        EXPECT_EQ(objectID->URIRepresentation(), uri);
        EXPECT_TRUE(store_.context().existingObjectWithID(*objectID)) << uri;
    }
    // A key that was given once is not given again.
    OVNote& note = store_.note("a new note");
    store_.save();
    EXPECT_EQ(note.objectID().key(), before.keys.at("OVNote"));
}

// Structure -----------------------------------------------------------------------------------------------------------

TEST_P(EachGoldenStore, GetsTheSchemaOfAFreshStore)
{
    ASSERT_NO_FATAL_FAILURE(migrate(GetParam()));
    const auto migrated = StoreRows::schemaOfFile(file_);
    TestStore fresh(StoreType::SQLite);
    fresh.open();
    EXPECT_THAT(differences(StoreRows::schemaOfFile(fresh.storeFile()), migrated), IsEmpty());
}

TEST_F(GoldenStores, HaveTheSchemaOfVersion2OnTheWay)
{
    makeStore("Model");
    ASSERT_NO_FATAL_FAILURE(migrateTo("Model 2", {"Model 2"}));
    const fs::path fresh = file_.parent_path() / "fresh.sqlite";
    NSPersistentStoreCoordinator coordinator(modelOfVersion("Model 2"));
    ASSERT_TRUE(coordinator.addPersistentStoreWithType(StoreType::SQLite, fresh, {}));
    EXPECT_THAT(differences(StoreRows::schemaOfFile(fresh), StoreRows::schemaOfFile(file_)), IsEmpty());
}

TEST_P(EachGoldenStore, IsSound)
{
    ASSERT_NO_FATAL_FAILURE(openMigrated(GetParam()));
    std::vector<std::string> problems;
    NSError error;
    EXPECT_TRUE(store_.store().checkIntegrity(problems, &error)) << error;
    EXPECT_TRUE(store_.store().checkSearchIndex(problems, &error)) << error;
    EXPECT_THAT(problems, IsEmpty());

    const auto examination = StoreDoctor(store_.context()).examine(&error);
    ASSERT_TRUE(examination) << error;
    for (const StoreCheckResult& result : examination->results)
        for (const StoreFinding& finding : result.findings)
            ADD_FAILURE() << "kind " << static_cast<int>(finding.kind) << ": " << finding.title.value_or("-") << ' '
                          << finding.description;
    EXPECT_TRUE(examination->isSound());
}

TEST_P(EachGoldenStore, IsSearchedByItsIndexes)
{
    ASSERT_NO_FATAL_FAILURE(migrate(GetParam()));
    std::int64_t expected = 0;
    const StoreRows migrated = rows();
    for (const auto& [key, row] : migrated.tables.at("OVNote"))
        expected += StoreRows::isText(row.at("text")) && foldedContains(StoreRows::textOf(row.at("text")), "quince");
    ASSERT_GT(expected, 0);

    SQLStatistics statistics;
    store_.open();
    isOpen_ = true;
    const auto count = [&](std::string_view format, std::string_view word) {
        NSFetchRequest request(OVNote::entityInManagedObjectContext(store_.context()));
        request.predicate = NSPredicate::predicateWithFormat(format, word);
        return static_cast<std::int64_t>(store_.context().executeFetchRequest(request).size());
    };
    EXPECT_EQ(count("text CONTAINS[cd] %@", "QUINCE"), expected);
    statistics.take();
    EXPECT_EQ(count("text CONTAINS[cd] %@", "QUINCE"), expected);
    EXPECT_EQ(count("text CONTAINS[cd] %@", "there is no such text"), 0);
    EXPECT_EQ(count("title ==[cd] %@", "ECLAIR"), 1);
    EXPECT_EQ(statistics.take().scannedRows, 0);
}

// What people see -----------------------------------------------------------------------------------------------------

TEST_P(EachGoldenStore, IsEditedAsAnyOther)
{
    ASSERT_NO_FATAL_FAILURE(openMigrated(GetParam()));
    OVNote& groceries = noteCalled("Groceries");
    const std::size_t linking = groceries.linkedByNotes().size();
    ASSERT_GT(linking, 3U);
    groceries.updateNoteWithText("# Errands\n\n#home/kitchen\n\n- [ ] milk\n\n```\ncode\n```\n");
    store_.reopen();

    OVNote& errands = noteCalled("Errands");
    EXPECT_EQ(errands.linkedByNotes().size(), linking - 1) << "but for the note's own link, all followed its title";
    EXPECT_THAT(errands.tagsStrings(), testing::UnorderedElementsAre("home", "home/kitchen"));
    EXPECT_EQ(errands.todoIncompletedValue(), 1);
    EXPECT_TRUE(errands.hasSourceCodeValue());
    EXPECT_EQ(noteCalled("To Errands").text(), "# To [[Errands]]\n\na link in a title");
    NSError error;
    EXPECT_TRUE(StoreDoctor(store_.context()).examine(&error)->isSound()) << error;
}

TEST_F(GoldenStores, HaveLinksThatLeadWhereTheNextParseWouldLead)
{
    ASSERT_NO_FATAL_FAILURE(openMigrated("Model"));
    std::size_t count = 0;
    for (OVNote* note : OVNote::allNotesInManagedObjectContext(store_.context())) {
        const CVKAST document = CVKAST::fromMarkdown(note->text().value_or(""));
        const std::vector<CVKWikiLink>& links = document.textSummary().wikiLinks;
        LinkTargets targets(store_.context(), nullptr);
        ASSERT_TRUE(targets.lookUp(links));
        std::map<std::int64_t, const OVNote*> expected;
        for (const CVKWikiLink& link : links)
            if (!link.decodedTitle().empty())
                expected[static_cast<std::int64_t>(link.offset())] = targets.targetOf(link.decodedTitle());
        std::map<std::int64_t, const OVNote*> actual;
        for (const OVNoteBackLink* link : note->linkingToSet().allObjects())
            actual[link->locationValue()] = link->linkingTo();
        EXPECT_EQ(actual, expected) << note->title().value_or("-");
        count += actual.size();
    }
    EXPECT_GT(count, 150U);
}

TEST_F(GoldenStores, HaveLinksToTheRightOneOfSeveralNotes)
{
    ASSERT_NO_FATAL_FAILURE(openMigrated("Model"));
    EXPECT_THAT(subtitlesOfTargets("To twins"),
        ElementsAre(std::pair("Dateless", "what has no date was made first"),
            std::pair("Same moment", "of two the one with the lower key"),
            std::pair("Twin", "the second: links lead here"), std::pair("thrown away", "and nothing took its place")));
    OVNote& identifiers = noteCalled("By identifier");
    EXPECT_EQ(identifiers.linkedNotes().size(), 2U);
    for (const OVNote* untitled : identifiers.linkedNotes())
        EXPECT_EQ(untitled->title().value_or(""), "");
    const auto links = subtitlesOfTargets("Links");
    EXPECT_EQ(links.at("GROCERIES"), "milk and Groceries again");
    EXPECT_EQ(links.at("x|y [z]"), "is one to escape");
    EXPECT_EQ(links.at("eclair"), "of other letters");
    EXPECT_EQ(links.at("nobody has this title"), "none");
    EXPECT_EQ(noteCalled("🎉 A long feast").linkedNotes(), std::vector{&noteCalled("Groceries")});
}

TEST_F(GoldenStores, KeepPinsInTagsAndIcons)
{
    ASSERT_NO_FATAL_FAILURE(openMigrated("Model 2"));
    std::size_t pinned = 0;
    for (OVNoteTag* tag : store_.all<OVNoteTag>()) {
        for (OVNote* note : tag->pinnedNotesSet().allObjects()) {
            EXPECT_TRUE(note->isPinnedInTag(tag));
            ++pinned;
        }
    }
    EXPECT_GT(pinned, 50U);
    EXPECT_EQ(OVNoteTag::tagWithName("lonely tag", store_.context())->tagcon(), "");
}

TEST_F(GoldenStores, KeepProtectedNotesAsTheyAre)
{
    ASSERT_NO_FATAL_FAILURE(openMigrated("Model 2"));
    const auto notes = OVNote::allEncryptedNotesInManagedObjectContext(store_.context());
    EXPECT_GT(notes.size(), 15U);
    for (const OVNote* note : notes) {
        EXPECT_EQ(note->storedText(), std::nullopt);
        EXPECT_TRUE(note->encryptedData());
        EXPECT_FALSE(note->hasSourceCodeValue());
        EXPECT_TRUE(note->password() || note->uniqueIdentifier() == "NO PASSWORD");
    }
}

} // namespace
} // namespace tarn
