#include "tarnmodel/platform/coredata/NSMigrationManager.h"

#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/platform/coredata/migration/MigrationFixture.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace tarn {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Ge;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Le;
using testing::SizeIs;

namespace fs = std::filesystem;

constexpr std::string_view kThreeBooks = R"(
    INSERT INTO Shelf (pk, rowVersion, title, room, above) VALUES (1, 3, x'C39C626572', 'Attic', NULL), (4, 1, NULL, NULL, 1);
    INSERT INTO Topic (pk, rowVersion, title) VALUES (7, 2, 'Ünder'), (9, 1, NULL);
    INSERT INTO Card (pk, rowVersion, number) VALUES (2, 1, 'A-1'), (3, 1, 'A-2');
    INSERT INTO Book (pk, rowVersion, name, stars, size, bought, lent, label, counter, mark, opened, shelf, card, sequel)
      VALUES (1, 5, 'Élan', 4, 2.5, 1000, 1, 'ä', 70000, 12, 5, 1, 3, 2), (2, 1, NULL, NULL, NULL, NULL, NULL, NULL, NULL,
              NULL, NULL, 4, NULL, NULL), (40, 1, 'Last', -3, -0.5, -1, 0, '', -70000, 0, NULL, NULL, 2, 1);
    INSERT INTO Book_large (pk, text, memo) VALUES (1, 'a text of more than ten', x'00FF'), (40, 'short', NULL);
    INSERT INTO Book_topics (owner, member) VALUES (1, 7), (1, 9), (40, 7);
    INSERT INTO Medium (pk, rowVersion, entity, title, width, length, book)
      VALUES (1, 1, 'Picture', 'p', 10, NULL, 1), (2, 1, 'Sound', 's', NULL, 1.5, 1), (3, 1, 'Picture', NULL, NULL, NULL, 40);
    INSERT INTO Medium_large (pk, words) VALUES (2, 'what it says');
    INSERT INTO Setting (pk, rowVersion, value) VALUES (1, 1, 'gone');
    INSERT INTO store_keys VALUES ('Book', 90), ('Card', 8);
    INSERT INTO store_metadata VALUES ('host', 'its own'))";

class StoreMigrationManager : public MigrationFixture { };

TEST_F(StoreMigrationManager, CarriesEveryRecordOver)
{
    fill(std::string(kThreeBooks));
    migrate();
    EXPECT_THAT(
        rows("SELECT pk, rowVersion, title, title_folded, stars, size, bought, lent, counter, quote(memo), mark, "
             "isLong, state, state_folded, origin, weight, sequel FROM Book ORDER BY pk"),
        ElementsAre("1|5|Élan|elan|4.0|3|1000|1|32767|X'00FF'|1|1|bo'x|bo'x|it's old|-1.5|2",
            "2|1|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|bo'x|bo'x|it's old|-1.5|NULL",
            "40|1|Last|last|-3.0|-1|-1|0|-32768|NULL|0|0|bo'x|bo'x|it's old|-1.5|1"));
    EXPECT_THAT(rows("SELECT pk, text, quote(label) FROM Book_large ORDER BY pk"),
        ElementsAre("1|a text of more than ten|X'C3A4'", "40|short|X''"));
    EXPECT_THAT(rows("SELECT pk, title, title_folded, room, above FROM Shelf ORDER BY pk"),
        ElementsAre("1|Über|uber|Attic|NULL", "4|NULL|NULL|NULL|1"));
    EXPECT_THAT(rows("SELECT owner, member FROM Book_shelves ORDER BY 1, 2"), ElementsAre("1|1", "2|4"));
    EXPECT_THAT(rows("SELECT owner, member FROM Topic_books ORDER BY 1, 2"), ElementsAre("7|1", "7|40", "9|1"));
    EXPECT_THAT(rows("SELECT pk, number, book FROM Card ORDER BY pk"), ElementsAre("2|A-1|40", "3|A-2|1"));
    EXPECT_THAT(rows("SELECT pk, entity, title, width, length, book FROM Medium ORDER BY pk"),
        ElementsAre("1|Picture|p|10|NULL|1", "2|Sound|s|NULL|1.5|1", "3|Picture|NULL|NULL|NULL|40"));
    EXPECT_THAT(rows("SELECT * FROM Medium_large"), ElementsAre("2|what it says"));
    EXPECT_THAT(problemsOfNewStore(), IsEmpty());
}

TEST_F(StoreMigrationManager, KeepsWhatNamesTheStoreAndItsRecords)
{
    fill(std::string(kThreeBooks));
    const auto before = OtherProgram(oldFile()).run("SELECT value FROM store_metadata WHERE key = 'storeUUID'");
    migrate();
    EXPECT_EQ(rows("SELECT value FROM store_metadata WHERE key = 'storeUUID'"), before);
    EXPECT_THAT(rows("SELECT key, value FROM store_metadata WHERE key IN ('host', 'modelVersion') ORDER BY key"),
        ElementsAre("host|its own", "modelVersion|Library 2"));
    EXPECT_THAT(rows("SELECT nextKey FROM store_keys WHERE entity = 'Book'"), ElementsAre("90"));
    EXPECT_THAT(rows("SELECT nextKey FROM store_keys WHERE entity = 'Topic'"), ElementsAre("10"));
    EXPECT_THAT(rows("SELECT count(*) FROM store_metadata WHERE key LIKE 'entityHash.Setting'"), ElementsAre("0"));
}

TEST_F(StoreMigrationManager, MakesTheStoreThatAFreshOneIs)
{
    fill(std::string(kThreeBooks));
    migrate();
    const fs::path fresh = folder_.path() / "fresh.sqlite";
    {
        NSPersistentStoreCoordinator coordinator(newLibraryModel());
        ASSERT_TRUE(coordinator.addPersistentStoreWithType(StoreType::SQLite, fresh, {}, &error_)) << error_;
    }
    const std::string statements = "SELECT type, name, tbl_name, sql FROM sqlite_schema ORDER BY type, name";
    const auto made = rows(statements);
    const auto wanted = OtherProgram(fresh).run(statements);
    std::vector<std::string> others;
    std::ranges::set_symmetric_difference(made, wanted, std::back_inserter(others));
    EXPECT_THAT(others, IsEmpty());
    for (const std::string pragma : {"page_size", "journal_mode", "encoding", "user_version"})
        EXPECT_EQ(rows("PRAGMA " + pragma), OtherProgram(fresh).run("PRAGMA " + pragma)) << pragma;
    EXPECT_EQ(fs::status(newFile()).permissions(), fs::status(oldFile()).permissions());
}

TEST_F(StoreMigrationManager, LeavesTheSourceAsItWas)
{
    fill(std::string(kThreeBooks));
    const auto before = contentsOf(oldFile());
    migrate();
    EXPECT_EQ(contentsOf(oldFile()), before);
    fill("UPDATE Topic SET title = 'x'"); // and nobody has a lock on it
}

TEST_F(StoreMigrationManager, LetsGoOfReferencesThatLeadNowhere)
{
    fill(
        R"(INSERT INTO Book (pk, rowVersion, name, shelf, card, sequel) VALUES (1, 1, 'a', 77, 78, 79), (2, 1, 'b', 77, 1, 2);
        INSERT INTO Card (pk, rowVersion, number) VALUES (1, 1, 'n');
        INSERT INTO Shelf (pk, rowVersion, above) VALUES (1, 1, 55);
        INSERT INTO Topic (pk, rowVersion) VALUES (1, 1);
        INSERT INTO Book_topics (owner, member) VALUES (1, 66), (66, 1), (2, 1);
        INSERT INTO Topic_related (owner, member) VALUES (1, 66), (66, 1), (1, 1), (66, 67);
        INSERT INTO Medium (pk, rowVersion, entity, book) VALUES (1, 1, 'Sound', 99))");
    for (const std::string_view policy : {"", R"("policy": "Plain",)"}) {
        NSEntityMigrationPolicy::registerClass<LibraryFunctions>("Plain");
        migrate(libraryMappingText(R"("policy": "LibraryFunctions",)", policy, policy));
        EXPECT_THAT(rows("SELECT pk, sequel FROM Book ORDER BY 1"), ElementsAre("1|NULL", "2|2"));
        EXPECT_THAT(rows("SELECT book FROM Card"), ElementsAre("2"));
        EXPECT_THAT(rows("SELECT above FROM Shelf"), ElementsAre("NULL"));
        EXPECT_THAT(rows("SELECT book FROM Medium"), ElementsAre("NULL"));
        EXPECT_THAT(rows("SELECT * FROM Topic_books"), ElementsAre("1|2"));
        EXPECT_THAT(rows("SELECT * FROM Topic_related"), ElementsAre("1|1"));
        EXPECT_THAT(rows("SELECT * FROM Book_shelves"), IsEmpty());
        EXPECT_THAT(problemsOfNewStore(), IsEmpty());
        fs::remove(newFile());
    }
}

TEST_F(StoreMigrationManager, KeepsTextsAsTheyAre)
{
    // What is no UTF-8, holds NUL, or is of a type that the column does not ask for.
    fill("INSERT INTO Topic (pk, rowVersion, title) VALUES (1, 1, CAST(x'61C3' AS TEXT)), (2, 1, CAST(x'610062' AS "
         "TEXT)), "
         "(3, 1, '')");
    migrate();
    EXPECT_THAT(rows("SELECT pk, hex(title) FROM Topic ORDER BY pk"), ElementsAre("1|61C3", "2|610062", "3|"));
    EXPECT_THAT(problemsOfNewStore(), IsEmpty());
}

TEST_F(StoreMigrationManager, MakesDerivedValuesThatTheOldStoreLacks)
{
    fill(std::string(kThreeBooks));
    OtherProgram(oldFile()).run("DROP TABLE Book_text_signature; DROP TABLE Book_text_changes;"
                                "DROP TABLE Medium_words_signature; UPDATE Topic SET title_folded = NULL;"
                                "UPDATE store_metadata SET value = '0' WHERE key = 'foldingVersion'");
    migrate();
    EXPECT_THAT(rows("SELECT title_folded FROM Topic ORDER BY pk"), ElementsAre("under", "NULL"));
    EXPECT_THAT(rows("SELECT count(*) FROM Book_text_signature WHERE signature IS NOT NULL"), ElementsAre("2"));
    EXPECT_THAT(problemsOfNewStore(), IsEmpty());
}

// Progress ------------------------------------------------------------------------------------------------------------

TEST_F(StoreMigrationManager, TellsHowFarItIs)
{
    fill("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000) INSERT INTO Topic (pk, "
         "rowVersion, "
         "title) SELECT i, 1, 'topic ' || i FROM n");
    std::vector<float> seen;
    manager_.observeMigrationProgress([&](float progress) {
        EXPECT_EQ(progress, manager_.migrationProgress());
        seen.push_back(progress);
    });
    migrate();
    ASSERT_THAT(seen, SizeIs(Ge(5U)));
    EXPECT_EQ(seen.front(), 0);
    EXPECT_EQ(seen.back(), 1);
    EXPECT_TRUE(std::ranges::is_sorted(seen));
    EXPECT_EQ(std::ranges::count(seen, 1.0F), 1);
    EXPECT_THAT(seen, Each(AllOf(Ge(0.0F), Le(1.0F))));
}

TEST_F(StoreMigrationManager, TellsTheEndOfAnEmptyStoreToo)
{
    std::vector<float> seen;
    manager_.observeMigrationProgress([&](float progress) { seen.push_back(progress); });
    migrate();
    EXPECT_THAT(seen, ElementsAre(0, 1));
}

TEST_F(StoreMigrationManager, EndsWhenItIsCancelled)
{
    fill("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9000) INSERT INTO Topic (pk, "
         "rowVersion, "
         "title) SELECT i, 1, 'topic ' || i FROM n");
    const NSError stop("Test", 7, "enough");
    for (const float at : {0.0F, 0.3F, 0.6F, 0.99F}) {
        NSMigrationManager manager(oldLibraryModel(), newLibraryModel());
        manager.observeMigrationProgress([&](float progress) {
            if (progress >= at)
                manager.cancelMigrationWithError(stop);
        });
        const auto read = mapping(libraryMappingText());
        const bool isCancellable = at < 0.9F;
        EXPECT_EQ(
            manager.migrateStoreFromURL(oldFile(), StoreType::SQLite, *read, newFile(), StoreType::SQLite, &error_),
            !isCancellable)
            << at;
        EXPECT_EQ(fs::exists(newFile()), !isCancellable);
        if (isCancellable) {
            EXPECT_EQ(error_, stop);
            EXPECT_FALSE(
                manager.migrateStoreFromURL(oldFile(), StoreType::SQLite, *read, newFile(), StoreType::SQLite, &error_))
                << "it stays cancelled";
        }
        fs::remove(newFile());
    }
}

// Destinations --------------------------------------------------------------------------------------------------------

TEST_F(StoreMigrationManager, AddsToADestinationThatIsThere)
{
    fill(std::string(kThreeBooks));
    const auto part = [&](const std::string& entities) {
        return mapping(
            R"({"source": "Library", "destination": "Library 2", "partial": true, "entities": [)" + entities + "]}");
    };
    const auto pictures = part(R"({"kind": "transform", "source": "Picture", "destination": "Picture",
        "relationships": [{"name": "book", "value": "$default"}], "dropped": ["book"]})");
    const auto sounds = part(R"({"kind": "transform", "source": "Sound", "destination": "Sound",
        "relationships": [{"name": "book", "value": "$default"}], "dropped": ["book"]})");
    ASSERT_TRUE(migrate(*pictures)) << error_;
    const auto before = contentsOf(newFile());
    EXPECT_FALSE(migrate(*pictures)) << "the same records again";
    EXPECT_EQ(contentsOf(newFile()), before);
    ASSERT_TRUE(migrate(*sounds)) << error_;
    EXPECT_THAT(rows("SELECT pk, entity FROM Medium ORDER BY pk"), ElementsAre("1|Picture", "2|Sound", "3|Picture"));
    EXPECT_THAT(problemsOfNewStore(), IsEmpty());
    EXPECT_THAT(
        OtherProgram(newFile()).run("SELECT value FROM store_metadata WHERE key = 'host'"), ElementsAre("its own"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 2) << "nothing is left beside them";
}

TEST_F(StoreMigrationManager, RefusesADestinationOfAnotherKind)
{
    fs::copy_file(oldFile(), newFile());
    const auto read = mapping(libraryMappingText());
    EXPECT_FALSE(migrate(*read));
    EXPECT_EQ(error_.code(), StoreErrorIncompatible);
    EXPECT_TRUE(fs::exists(newFile()));
    EXPECT_FALSE(migrate(*read, folder_.path() / "nowhere" / "new.sqlite"));
    EXPECT_EQ(error_.code(), StoreErrorCannotOpen);
}

TEST_F(StoreMigrationManager, RefusesASourceOfAnotherModel)
{
    OtherProgram(oldFile()).run("UPDATE store_metadata SET value = '0' WHERE key = 'entityHash.Book'");
    EXPECT_FALSE(migrate(*mapping(libraryMappingText())));
    EXPECT_EQ(error_.code(), StoreErrorIncompatible);
    EXPECT_FALSE(fs::exists(newFile()));
}

TEST_F(StoreMigrationManager, RefusesRowsThatNobodyKnows)
{
    fill("INSERT INTO Medium (pk, rowVersion, entity) VALUES (1, 1, 'Film')");
    EXPECT_FALSE(migrate(*mapping(libraryMappingText())));
    EXPECT_EQ(error_.code(), StoreErrorCorrupt);
    fill("UPDATE Medium SET entity = 'Medium'");
    EXPECT_FALSE(migrate(*mapping(libraryMappingText())));
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("records of \"Medium\""));
    EXPECT_FALSE(fs::exists(newFile()));
}

// Policies ------------------------------------------------------------------------------------------------------------

/// Writes down what it is asked for; a subclass does something as well.
class ListeningPolicy : public LibraryFunctions {
public:
    static std::vector<std::string>& calls()
    {
        static std::vector<std::string> all;
        return all;
    }

    bool beginEntityMapping(const NSEntityMapping& mapping, NSMigrationManager&, NSError*) override
    {
        return note("begin", mapping);
    }
    bool createDestinationInstancesForSourceInstance(const MigrationRecord& source, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        note("create " + std::to_string(source.objectID().key()), mapping);
        return LibraryFunctions::createDestinationInstancesForSourceInstance(source, mapping, manager, error);
    }
    bool endInstanceCreationForEntityMapping(const NSEntityMapping& mapping, NSMigrationManager&, NSError*) override
    {
        return note("created", mapping);
    }
    bool createRelationshipsForDestinationInstance(MigrationRecord& destination, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        note("relate " + std::to_string(destination.objectID().key()), mapping);
        return LibraryFunctions::createRelationshipsForDestinationInstance(destination, mapping, manager, error);
    }
    bool endRelationshipCreationForEntityMapping(const NSEntityMapping& mapping, NSMigrationManager&, NSError*) override
    {
        return note("related", mapping);
    }
    bool performCustomValidationForEntityMapping(const NSEntityMapping& mapping, NSMigrationManager&, NSError*) override
    {
        return note("validate", mapping);
    }
    bool endEntityMapping(const NSEntityMapping& mapping, NSMigrationManager&, NSError*) override
    {
        return note("end", mapping);
    }

protected:
    static bool note(const std::string& what, const NSEntityMapping& mapping)
    {
        calls().push_back(what + " " + mapping.name());
        return true;
    }
};

TEST_F(StoreMigrationManager, CallsPoliciesInOrder)
{
    fill(std::string(kThreeBooks));
    NSEntityMigrationPolicy::registerClass<ListeningPolicy>("Listening");
    ListeningPolicy::calls().clear();
    migrate(libraryMappingText(R"("policy": "Listening",)", {}, R"("policy": "Listening",)"));
    EXPECT_THAT(ListeningPolicy::calls(),
        ElementsAre("begin BookToBook", "create 1 BookToBook", "create 2 BookToBook", "create 40 BookToBook",
            "created BookToBook", "begin ShelfToShelf", "create 1 ShelfToShelf", "create 4 ShelfToShelf",
            "created ShelfToShelf", "relate 1 BookToBook", "relate 2 BookToBook", "relate 40 BookToBook",
            "related BookToBook", "relate 1 ShelfToShelf", "relate 4 ShelfToShelf", "related ShelfToShelf",
            "validate BookToBook", "validate ShelfToShelf", "end BookToBook", "end ShelfToShelf"));
}

/// Ends the migration at one of its calls.
class EndingPolicy : public ListeningPolicy {
public:
    static inline std::size_t endsAt = 0;
    static inline bool throws = false;

    Value valueOfFunction(std::string_view, std::span<const Value>, const NSEntityMapping&) override
    {
        return Value(true);
    }
    bool beginEntityMapping(const NSEntityMapping&, NSMigrationManager&, NSError* error) override
    {
        return next(error);
    }
    bool createDestinationInstancesForSourceInstance(const MigrationRecord& source, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        return LibraryFunctions::createDestinationInstancesForSourceInstance(source, mapping, manager, error)
            && next(error);
    }
    bool endInstanceCreationForEntityMapping(const NSEntityMapping&, NSMigrationManager&, NSError* error) override
    {
        return next(error);
    }
    bool createRelationshipsForDestinationInstance(
        MigrationRecord&, const NSEntityMapping&, NSMigrationManager&, NSError* error) override
    {
        return next(error);
    }
    bool endRelationshipCreationForEntityMapping(const NSEntityMapping&, NSMigrationManager&, NSError* error) override
    {
        return next(error);
    }
    bool performCustomValidationForEntityMapping(const NSEntityMapping&, NSMigrationManager&, NSError* error) override
    {
        return next(error);
    }
    bool endEntityMapping(const NSEntityMapping&, NSMigrationManager&, NSError* error) override { return next(error); }

private:
    static bool next(NSError* error)
    {
        if (endsAt-- != 0)
            return true;
        if (throws)
            throw NSException("Test", "thrown");
        assignError(error, NSError("Test", 3, "ended"));
        return false;
    }
};

TEST_F(StoreMigrationManager, EndsWhereAPolicySaysSo)
{
    fill(std::string(kThreeBooks));
    NSEntityMigrationPolicy::registerClass<EndingPolicy>("Ending");
    const auto read = mapping(libraryMappingText(R"("policy": "Ending",)"));
    const auto before = contentsOf(oldFile());
    for (const bool throws : {false, true}) {
        for (std::size_t call = 0; call < 11; ++call) {
            EndingPolicy::endsAt = call;
            EndingPolicy::throws = throws;
            ASSERT_FALSE(migrate(*read)) << call;
            EXPECT_EQ(error_.localizedDescription(), throws ? "thrown" : "ended");
            EXPECT_FALSE(fs::exists(newFile()));
        }
        EndingPolicy::endsAt = 11;
        EXPECT_TRUE(migrate(*read)) << error_;
        fs::remove(newFile());
    }
    EXPECT_EQ(contentsOf(oldFile()), before);
}

/// Answers a text where a truth value is wanted.
class WrongFunctions : public NSEntityMigrationPolicy {
public:
    Value valueOfFunction(std::string_view, std::span<const Value>, const NSEntityMapping&) override
    {
        return Value("yes");
    }
};

TEST_F(StoreMigrationManager, EndsWhenAFunctionAnswersWrongly)
{
    fill(std::string(kThreeBooks));
    NSEntityMigrationPolicy::registerClass<WrongFunctions>("Wrong");
    NSEntityMigrationPolicy::registerClass<NSEntityMigrationPolicy>("Without");
    EXPECT_FALSE(migrate(*mapping(libraryMappingText(R"("policy": "Wrong",)"))));
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("cannot hold"));
    EXPECT_FALSE(migrate(*mapping(libraryMappingText(R"("policy": "Without",)"))));
    EXPECT_THAT(error_.localizedDescription(), HasSubstr("has no function \"isLong\""));
    EXPECT_FALSE(migrate(*mapping(libraryMappingText(R"("policy": "Nobody",)"))));
    EXPECT_EQ(error_.localizedDescription(), "The policy \"Nobody\" is not registered.");
    EXPECT_FALSE(fs::exists(newFile()));
}

/// Makes a reader of each book, of none without a name, and puts them all on one shelf.
class ReaderPolicy : public LibraryFunctions {
public:
    bool createDestinationInstancesForSourceInstance(const MigrationRecord& source, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        const Value name = source.valueForKey("name");
        if (name.isNil())
            return true;
        if (!LibraryFunctions::createDestinationInstancesForSourceInstance(source, mapping, manager, error))
            return false;
        MigrationRecord& reader = manager.insertDestinationInstance(mapping, "Reader", source);
        reader.setValueForKey("name", Value("reader of " + name.asString()));
        const auto made = manager.destinationInstancesForEntityMappingNamed(mapping.name(), source.objectID());
        EXPECT_THAT(made, SizeIs(2));
        EXPECT_EQ(made.back(), reader.objectID());
        EXPECT_EQ(manager.destinationInstanceWithID(made.front())->valueForKey("title"), name);
        EXPECT_EQ(manager.sourceInstanceWithID(source.objectID())->valueForKey("name"), name);
        EXPECT_THAT(source.relatedObjectIDs("topics"), SizeIs(name.asString() == "Last" ? 1 : 2));
        EXPECT_THROW(reader.setRelatedObjectIDs("x", {}), NSException);
        EXPECT_THROW(reader.setValueForKey("nothing", Value()), NSException);
        EXPECT_THROW(reader.setValueForKey("name", Value(1)), NSException);
        return true;
    }
    bool createRelationshipsForDestinationInstance(MigrationRecord& destination, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        if (destination.entity().name() == "Reader")
            return true;
        if (!LibraryFunctions::createRelationshipsForDestinationInstance(destination, mapping, manager, error))
            return false;
        const NSManagedObjectID source
            = manager.sourceInstanceForEntityMappingNamed(mapping.name(), destination.objectID());
        EXPECT_EQ(source.key(), destination.objectID().key());
        EXPECT_EQ(destination.valueForKey("text"), manager.sourceInstanceWithID(source)->valueForKey("text"));
        destination.setRelatedObjectIDs(
            "shelves", manager.destinationInstancesWithFoldedValue("Shelf", "title", "ÜBER"));
        EXPECT_THAT(destination.relatedObjectIDs("shelves"), SizeIs(1));
        destination.setValueForKey("title", Value("New " + destination.valueForKey("title").asString()));
        destination.setValueForKey("text", Value("new text"));
        last_ = destination.objectID();
        return true;
    }
    bool endEntityMapping(const NSEntityMapping&, NSMigrationManager& manager, NSError*) override
    {
        manager.destinationInstanceWithID(last_)->setValueForKey("origin", Value("the last one"));
        return true;
    }

private:
    NSManagedObjectID last_;
};

TEST_F(StoreMigrationManager, LetsPoliciesMakeWhatTheyLike)
{
    fill(std::string(kThreeBooks));
    NSEntityMigrationPolicy::registerClass<ReaderPolicy>("Reader");
    migrate(libraryMappingText(R"("policy": "Reader",)"));
    EXPECT_THAT(
        rows("SELECT pk, rowVersion, title, title_folded, text FROM Book JOIN Book_large USING (pk) ORDER BY pk"),
        ElementsAre("1|6|New Élan|new elan|new text", "40|3|New Last|new last|new text"));
    EXPECT_THAT(rows("SELECT origin FROM Book ORDER BY pk"), ElementsAre("it's old", "the last one"));
    EXPECT_THAT(rows("SELECT pk, name FROM Reader ORDER BY pk"), ElementsAre("1|reader of Élan", "2|reader of Last"));
    EXPECT_THAT(rows("SELECT * FROM Book_shelves ORDER BY 1"), ElementsAre("1|1", "40|1"));
    EXPECT_THAT(rows("SELECT pk, sequel FROM Book ORDER BY 1"), ElementsAre("1|NULL", "40|1"))
        << "a book that was left out is nobody's sequel";
    EXPECT_THAT(rows("SELECT nextKey FROM store_keys WHERE entity = 'Reader'"), ElementsAre("3"));
    EXPECT_THAT(problemsOfNewStore(), IsEmpty());
}

TEST_F(StoreMigrationManager, MovesTheKeysOfASecondTableBehindThoseOfTheFirst)
{
    fill(std::string(kThreeBooks));
    std::string text = libraryMappingText();
    const std::string remove = R"({"kind": "remove", "source": "Setting"})";
    text.replace(text.find(remove), remove.size(),
        R"({"kind": "transform", "source": "Setting", "destination": "Card", "name": "cards of settings",
            "attributes": [{"name": "number", "value": "$source.value"}],
            "relationships": [{"name": "book", "value": "$default"}]})");
    migrate(text);
    EXPECT_THAT(
        rows("SELECT pk, number, book FROM Card ORDER BY pk"), ElementsAre("2|A-1|40", "3|A-2|1", "8|gone|NULL"));
    EXPECT_THAT(rows("SELECT nextKey FROM store_keys WHERE entity = 'Card'"), ElementsAre("9"));
    EXPECT_THAT(problemsOfNewStore(), IsEmpty());
}

TEST_F(StoreMigrationManager, LeadsToAllThatARecordHasBecome)
{
    fill(std::string(kThreeBooks));
    std::string text = libraryMappingText();
    const std::string add = R"({"kind": "add", "destination": "Reader"})";
    text.replace(text.find(add), add.size(),
        add + R"(, {"kind": "transform", "source": "Shelf", "destination": "Shelf", "name": "again",
            "attributes": [{"name": "title", "value": "'again'"}],
            "relationships": [{"name": "books", "value": "$default"}, {"name": "above", "value": "$default"},
                {"name": "below", "value": "$default"}], "dropped": ["title", "books", "above", "below"]})");
    for (const std::string_view policy : {R"("policy": "LibraryFunctions",)", R"("policy": "Listening",)"}) {
        NSEntityMigrationPolicy::registerClass<ListeningPolicy>("Listening");
        std::string mappings = text;
        mappings.replace(mappings.find(R"("policy": "LibraryFunctions",)"), 29, policy);
        migrate(mappings);
        EXPECT_THAT(rows("SELECT pk, title, above FROM Shelf ORDER BY pk"),
            ElementsAre("1|Über|NULL", "4|NULL|1", "5|again|NULL", "8|again|NULL"))
            << "of several a to-one names the first";
        EXPECT_THAT(
            rows("SELECT owner, member FROM Book_shelves ORDER BY 1, 2"), ElementsAre("1|1", "1|5", "2|4", "2|8"));
        EXPECT_THAT(problemsOfNewStore(), IsEmpty());
        fs::remove(newFile());
    }
}

/// Says of which entity of the source a medium was made.
class MediumPolicy : public ListeningPolicy {
public:
    bool createRelationshipsForDestinationInstance(MigrationRecord& destination, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        const NSManagedObjectID source
            = manager.sourceInstanceForEntityMappingNamed(mapping.name(), destination.objectID());
        EXPECT_TRUE(source) << mapping.name();
        if (source && destination.entity().name() == "Picture")
            destination.setValueForKey("title", Value("was a " + source.entity().name()));
        return ListeningPolicy::createRelationshipsForDestinationInstance(destination, mapping, manager, error);
    }
};

TEST_F(StoreMigrationManager, MakesRecordsOfOneEntityOfSeveral)
{
    fill(std::string(kThreeBooks));
    NSEntityMigrationPolicy::registerClass<MediumPolicy>("Medium");
    ListeningPolicy::calls().clear();
    std::string text = libraryMappingText({R"("policy": "LibraryFunctions",)"}, R"("policy": "Medium",)");
    const std::string sound = R"("source": "Sound", "destination": "Sound", "policy": "Medium", "attributes": [])";
    text.replace(text.find(sound), sound.size(), R"("source": "Sound", "destination": "Picture", "policy": "Medium",
        "attributes": [{"name": "width", "value": "$source.length"}]}, {"kind": "add", "destination": "Sound")");
    migrate(text);
    EXPECT_THAT(rows("SELECT pk, entity, title, width, book FROM Medium ORDER BY pk"),
        ElementsAre("1|Picture|was a Picture|10|1", "2|Picture|was a Sound|2|1", "3|Picture|was a Picture|NULL|40"));
    EXPECT_EQ(std::ranges::count(ListeningPolicy::calls(), "relate 2 SoundToPicture"), 1);
    EXPECT_EQ(std::ranges::count(ListeningPolicy::calls(), "relate 2 PictureToPicture"), 0);
    EXPECT_THAT(problemsOfNewStore(), IsEmpty());
}

} // namespace
} // namespace tarn
