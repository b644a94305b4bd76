// The page about migration tells how a version is added. These tests take its pieces, a changed model, a mapping file
// and a policy, put them beside the installed ones, and migrate stores with them.

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/store/VexMigrationManager.h"
#include "tests/store/NextVersionPolicy.h"
#include "tests/store/StackFixture.h"
#include "tests/support/PlainStore.h"

#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view kHunkSign = "@@";

std::string contentsOfFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The first block of code in that language below a heading of the page.
std::string blockOfPage(const std::string& heading, const std::string& language)
{
    const std::string page = contentsOfFile(TARN_MIGRATION_PAGE);
    const std::string fence = "\n```" + language + "\n";
    const std::size_t section = page.find("\n" + heading + "\n");
    const std::size_t begin = page.find(fence, section);
    const std::size_t end = page.find("\n```\n", begin + fence.size());
    EXPECT_TRUE(section < begin && begin < end && end != std::string::npos) << heading;
    return page.substr(begin + fence.size(), end + 1 - begin - fence.size());
}

/// Puts what the lines with "+" say in the place of what those with "-" say; each stretch has to be there just once.
std::string changed(std::string text, const std::string& changes)
{
    std::string before;
    std::string after;
    const auto apply = [&] {
        const std::size_t place = text.find(before);
        EXPECT_NE(place, std::string::npos) << before;
        EXPECT_EQ(text.find(before, place + 1), std::string::npos) << before;
        text.replace(place, before.size(), after);
        before.clear();
        after.clear();
    };
    std::istringstream lines(changes);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(kHunkSign))
            apply();
        else
            (line.starts_with('-') ? before : after) += line.substr(1) + "\n";
    }
    apply();
    return text;
}

class NextVersion : public StackFixture {
protected:
    void SetUp() override
    {
        fs::create_directories(models().parent_path());
        fs::copy(OVManagedObjectModel::modelURL().value(), models());
        const std::string text = contentsOfFile(models() / "Model 3.json");
        write("Model 4.json", changed(text, blockOfPage("### 1. The model", "diff")));
        write("Model 3 to Model 4.mapping.json", blockOfPage("### 2. The mapping model", "json"));
        registerPolicyOfThePage();
        NSError error;
        model_ = NSManagedObjectModel::modelWithContentsOfFile(models() / "Model 4.json", &error);
        ASSERT_TRUE(model_) << error;
    }

    fs::path models() const { return folder() / "resources" / "Model.momd"; }
    void write(const std::string& name, const std::string& text) const
    {
        std::ofstream(models() / name, std::ios::binary) << text;
    }
    /// From here on this is the library that has version 4.
    void takeTheNextVersion()
    {
        write("VersionInfo.json", blockOfPage("### 4. The current version", "json"));
        world_.setVariable("TARN_RESOURCES", (folder() / "resources").string());
    }
    std::vector<std::string> migrate()
    {
        VexMigrationManager manager;
        NSError error;
        EXPECT_TRUE(manager.progressivelyMigrateURL(storeFile(), StoreType::SQLite, model_, &error)) << error;
        return manager.migratedVersions();
    }
    /// The note in the store that has the next version.
    NSManagedObject& noteOf(PlainStore& store, std::string_view title) const
    {
        for (NSManagedObject* note : store.records("OVNote"))
            if (note->valueForKey("title") == Value(title))
                return *note;
        throw std::runtime_error("no such note");
    }

    std::shared_ptr<const NSManagedObjectModel> model_;
};

} // namespace

TEST_F(NextVersion, TakesAStoreOfTheCurrentOne)
{
    std::map<std::string, std::string> subtitles;
    std::string uri;
    {
        PlainStore store(storeFile(), OVManagedObjectModel::current());
        OVPassword* password = OVPassword::insertInManagedObjectContext(store.context());
        OVNote* open = OVNote::noteWithText("# Open\n\nfive words in all\n\n#home/kitchen", store.context());
        OVNote::noteWithText("# Other\n\n[[Open]]", store.context());
        OVNote* locked = OVNote::noteWithText("# Locked\n\nsecret", store.context());
        locked->setText(std::nullopt);
        locked->setPassword(password);
        open->setPassword(password);
        store.save();
        for (const OVNote* note : {open, locked})
            subtitles[note->title().value()] = note->subtitle().value();
        uri = open->objectID().URIRepresentation();
    }
    takeTheNextVersion();

    EXPECT_THAT(migrate(), ElementsAre("Model 4"));

    PlainStore store(storeFile(), model_);
    NSManagedObject& open = noteOf(store, "Open");
    EXPECT_EQ(open.objectID().URIRepresentation(), uri);
    EXPECT_EQ(open.valueForKey("summary"), Value(subtitles.at("Open")));
    EXPECT_EQ(open.valueForKey("wordCount"), Value(7));
    const Value tags = open.valueForKey("tags");
    EXPECT_EQ(tags.asArray().size(), 2U);
    NSManagedObject& locked = noteOf(store, "Locked");
    EXPECT_EQ(locked.valueForKey("summary"), Value(subtitles.at("Locked")));
    EXPECT_EQ(locked.valueForKey("wordCount"), Value(0));
    ASSERT_EQ(store.records("OVPassword").size(), 1U);
    EXPECT_EQ(locked.valueForKey("passwords"), open.valueForKey("passwords"));
    EXPECT_EQ(open.valueForKey("passwords").asArray().size(), 1U);
    EXPECT_EQ(store.records("OVPassword").front()->valueForKey("notes").asArray().size(), 2U);
    EXPECT_EQ(noteOf(store, "Other").valueForKey("passwords").asArray().size(), 0U);
    EXPECT_THAT(store.problems(), IsEmpty());
}

TEST_F(NextVersion, HasTheTablesOfANewStore)
{
    const fs::path fresh = folder() / "fresh.sqlite";
    PlainStore(fresh, model_).save();
    makeStoreOfVersion("Model 3");
    takeTheNextVersion();
    migrate();
    EXPECT_EQ(statementsOfSchema(storeFile()), statementsOfSchema(fresh));
}

TEST_F(NextVersion, TakesStoresOfAllVersionsBefore)
{
    {
        const auto file = OVManagedObjectModel::modelURLForVersion("Model");
        PlainStore store(storeFile(), NSManagedObjectModel::modelWithContentsOfFile(*file));
        NSManagedObject& note = store.insert("OVNote");
        note.setValueForKey("title", "Old");
        note.setValueForKey("subtitle", "three more words");
        note.setValueForKey("text", "# Old\n\nthree more words");
        store.save();
    }
    takeTheNextVersion();

    EXPECT_THAT(migrate(), ElementsAre("Model 2", "Model 3", "Model 4"));

    PlainStore store(storeFile(), model_);
    const NSManagedObject& note = noteOf(store, "Old");
    EXPECT_EQ(note.valueForKey("summary"), Value("three more words"));
    EXPECT_EQ(note.valueForKey("wordCount"), Value(5));
}

TEST_F(NextVersion, IsRefusedWhenItsMappingForgetsSomething)
{
    NSError error;
    const auto source = NSManagedObjectModel::modelWithContentsOfFile(models() / "Model 3.json", &error);
    const std::string mapping = contentsOfFile(models() / "Model 3 to Model 4.mapping.json");
    const auto isRead = [&](const std::string& text) {
        return NSMappingModel::mappingModelWithText(text, *source, *model_, &error) != nullptr;
    };
    EXPECT_TRUE(isRead(mapping)) << error;
    struct Omission {
        std::string mention;
        std::string inItsPlace;
        std::string named; ///< in the error
    };
    const std::string other = R"({"name": "trashed", "value": "$source.trashed"})";
    for (const auto& [mention, inItsPlace, named] :
        {Omission{R"~({"name": "summary", "value": "$source.subtitle"})~", other, "summary"},
            Omission{R"~({"name": "wordCount", "value": "FUNCTION($entityPolicy, 'wordCount', $source.text)"})~", other,
                "wordCount"},
            Omission{R"~({"name": "passwords", "value": "$source.password"})~", "", "passwords"},
            Omission{R"({"name": "notes", "value": "$source.notes"})", "", "notes"},
            Omission{R"({"kind": "copy", "source": "OVChange", "destination": "OVChange"},)", "", "OVChange"}}) {
        SCOPED_TRACE(mention);
        std::string text = mapping;
        ASSERT_NE(text.find(mention), std::string::npos);
        text.replace(text.find(mention), mention.size(), inItsPlace);
        error = {};
        EXPECT_FALSE(isRead(text));
        EXPECT_EQ(error.code(), StoreErrorInvalidModel);
        EXPECT_THAT(error.localizedDescription(), HasSubstr(named));
    }
}

} // namespace tarn
