#include "tarnmodel/platform/coredata/migration/MappingModelReader.h"

#include "tests/platform/coredata/migration/MigrationFixture.h"
#include "tests/support/LogCapture.h"

#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

std::shared_ptr<const NSMappingModel> readMapping(const std::string& text, NSError* error = nullptr)
{
    return NSMappingModel::mappingModelWithText(text, *oldLibraryModel(), *newLibraryModel(), error);
}

/// Why the library's mapping is refused once this has been changed in it.
std::string refusalWith(std::string_view what, std::string_view with)
{
    std::string text = libraryMappingText();
    const std::size_t place = text.find(what);
    EXPECT_NE(place, std::string::npos) << what;
    text.replace(place, what.size(), with);
    NSError error;
    EXPECT_FALSE(readMapping(text, &error)) << what << " -> " << with;
    EXPECT_EQ(error.code(), StoreErrorInvalidModel);
    return error.localizedDescription();
}

const NSPropertyMapping& propertyNamed(const std::vector<NSPropertyMapping>& all, std::string_view name)
{
    return *std::ranges::find(all, name, &NSPropertyMapping::name);
}

TEST(MappingModels, SayWhatBecomesOfEachEntity)
{
    NSError error;
    const auto mapping = readMapping(libraryMappingText(), &error);
    ASSERT_TRUE(mapping) << error;
    EXPECT_EQ(mapping->sourceVersion(), "Library");
    EXPECT_EQ(mapping->destinationVersion(), "Library 2");
    EXPECT_FALSE(mapping->isPartial());
    std::vector<std::string> names;
    for (const auto& entity : mapping->entityMappings())
        names.push_back(entity->name());
    EXPECT_THAT(names,
        ElementsAre("BookToBook", "ShelfToShelf", "TopicToTopic", "PictureToPicture", "SoundToSound", "CardToCard",
            "SettingTo", "ToReader"));
    EXPECT_EQ(mapping->entityMappingNamed("SettingTo")->mappingType(), NSEntityMappingType::Remove);
    EXPECT_EQ(mapping->entityMappingNamed("ToReader")->mappingType(), NSEntityMappingType::Add);
    EXPECT_EQ(mapping->entityMappingNamed("nothing"), nullptr);
}

TEST(MappingModels, CompleteWhatStays)
{
    const auto mapping = readMapping(libraryMappingText());
    ASSERT_TRUE(mapping);
    const NSEntityMapping& book = *mapping->entityMappingNamed("BookToBook");
    EXPECT_EQ(book.mappingType(), NSEntityMappingType::Transform);
    EXPECT_EQ(book.entityMigrationPolicyClassName(), "LibraryFunctions");
    EXPECT_EQ(book.attributeMappings().size(), newLibraryModel()->entityNamed("Book")->attributes().size());
    EXPECT_EQ(propertyNamed(book.attributeMappings(), "text").valueExpression.name(), "text");
    EXPECT_EQ(propertyNamed(book.attributeMappings(), "title").valueExpression.name(), "name");
    EXPECT_EQ(propertyNamed(book.relationshipMappings(), "sequel").valueExpression.name(), "sequel");
    EXPECT_EQ(propertyNamed(book.relationshipMappings(), "shelves").valueExpression.name(), "shelf");
}

TEST(MappingModels, AreRefusedForWhatTheyForget)
{
    EXPECT_THAT(refusalWith(R"(,
     "dropped": ["opened"])",
                    ""),
        HasSubstr("entity mapping \"BookToBook\": \"opened\" is forgotten: use or drop it"));
    EXPECT_THAT(refusalWith(R"({"name": "weight", "value": "-1.5"})", R"({"name": "origin2", "value": "1"})"),
        HasSubstr("\"Book\" has no attribute \"origin2\""));
    EXPECT_THAT(refusalWith(R"(,
       {"name": "weight", "value": "-1.5"})",
                    ""),
        HasSubstr("attribute \"weight\" is new: what is its value?"));
    EXPECT_THAT(refusalWith(R"({"name": "size", "value": "$source.size"},)", ""),
        HasSubstr("attribute \"size\" is of another type: what is its value?"));
    EXPECT_THAT(refusalWith(R"({"name": "shelves", "value": "$source.shelf"})", ""),
        HasSubstr("relationship \"shelves\" is new: what is its value?"));
    EXPECT_THAT(
        refusalWith(R"("relationships": [{"name": "books", "value": "$source.books"}])", R"("dropped": ["books"])"),
        HasSubstr("relationship \"books\" is another one: what is its value?"));
    EXPECT_THAT(refusalWith(R"({"kind": "remove", "source": "Setting"},)", ""),
        HasSubstr("entity \"Setting\" of \"Library\" is forgotten: say what becomes of it"));
    EXPECT_THAT(refusalWith(R"(,
    {"kind": "add", "destination": "Reader"})",
                    ""),
        HasSubstr("entity \"Reader\" of \"Library 2\" is forgotten: say what it is made of"));
    EXPECT_THAT(
        refusalWith("\"value\": \"$source.shelf\"", "\"value\": \"$default\""), HasSubstr("\"shelf\" is forgotten"));
}

TEST(MappingModels, AreRefusedForWhatTheModelsDoNotHave)
{
    EXPECT_THAT(refusalWith("\"Library\", \"destination\"", "\"Library 0\", \"destination\""),
        HasSubstr("leads from \"Library 0\" to \"Library 2\", not from \"Library\" to \"Library 2\""));
    EXPECT_THAT(refusalWith("\"source\": \"Setting\"", "\"source\": \"Settings\""),
        HasSubstr("\"Library\" has no entity \"Settings\""));
    EXPECT_THAT(refusalWith("$source.name", "$source.naem"), HasSubstr("\"Book\" has no attribute \"naem\""));
    EXPECT_THAT(refusalWith("$source.text, 10", "$source.txet"), HasSubstr("\"Book\" has no attribute \"txet\""));
    EXPECT_THAT(refusalWith("$source.shelf", "$source.shelves"), HasSubstr("\"Book\" has no relationship \"shelves\""));
    EXPECT_THAT(refusalWith("\"name\": \"shelves\"", "\"name\": \"racks\""),
        HasSubstr("\"Book\" has no relationship \"racks\""));
    EXPECT_THAT(refusalWith("[\"opened\"]", "[\"opened\", \"closed\"]"), HasSubstr("\"dropped\" names \"closed\""));
    EXPECT_THAT(refusalWith("[\"opened\"]", "[\"opened\", 3]"), HasSubstr("\"dropped\" names 3"));
    EXPECT_THAT(refusalWith("[\"opened\"]", "[\"opened\", \"name\"]"), HasSubstr("\"name\" is used and dropped"));
}

TEST(MappingModels, AreRefusedForValuesThatDoNotFit)
{
    EXPECT_THAT(refusalWith("$source.stars", "$source.name"), HasSubstr("a string does not become a double by itself"));
    EXPECT_THAT(refusalWith("-1.5", "'heavy'"), HasSubstr("attribute \"weight\": a double cannot be this value"));
    EXPECT_THAT(refusalWith("'it''s old'", "it's old"), HasSubstr("\"it's old\""));
    EXPECT_THAT(refusalWith(R"("policy": "LibraryFunctions",)", ""), HasSubstr("\"isLong\" is a function of a policy"));
    EXPECT_THAT(refusalWith("$source.shelf", "'a shelf'"), HasSubstr("only \"$source.key\" or \"$default\""));
    EXPECT_THAT(
        refusalWith(R"({"name": "shelves", "value": "$source.shelf"})",
            R"({"name": "shelves", "value": "$source.shelf"}, {"name": "sequel", "value": "$source.prequels"})"),
        HasSubstr("many records do not become one by themselves"));
    EXPECT_THAT(refusalWith(R"("$source.shelf"}],
     "dropped": ["opened"])",
                    R"("$source.topics"}],
     "dropped": ["opened", "shelf"])"),
        HasSubstr("no \"Topic\" becomes a \"Shelf\""));
}

TEST(MappingModels, AreRefusedForWhatHasNoEffect)
{
    // The join table is kept by the books.
    EXPECT_THAT(refusalWith(R"({"name": "shelves", "value": "$source.shelf"}],
     "dropped": ["opened"])",
                    R"({"name": "shelves", "value": "$default"}],
     "dropped": ["opened", "shelf"])"),
        HasSubstr("relationship \"books\": its inverse \"shelves\" has to say it too"));
}

TEST(MappingModels, AreRefusedForTheirForm)
{
    EXPECT_THAT(refusalWith("\"transform\"", "\"change\""), HasSubstr("unknown kind \"change\""));
    EXPECT_THAT(refusalWith("\"kind\": \"remove\"", "\"kind\": \"remove\", \"policy\": \"x\""),
        HasSubstr("entity mapping \"SettingTo\": unknown key \"policy\""));
    EXPECT_THAT(refusalWith("\"kind\": \"add\"", "\"kind\": \"custom\""), HasSubstr("\"source\" is missing"));
    EXPECT_THAT(refusalWith(R"("kind": "transform", "source": "Topic", "destination": "Topic",)",
                    R"("kind": "custom", "source": "Topic", "destination": "Topic",)"),
        HasSubstr("entity mapping \"TopicToTopic\": needs a policy"));
    EXPECT_THAT(
        refusalWith("\"kind\": \"transform\", \"source\": \"Book\"", "\"kind\": \"copy\", \"source\": \"Book\""),
        HasSubstr("unknown key \"attributes\""));
    EXPECT_THAT(refusalWith(R"({"kind": "remove", "source": "Setting"})",
                    R"({"kind": "remove", "source": "Setting"}, {"kind": "remove", "source": "Setting"})"),
        HasSubstr("there are two of this name"));
    EXPECT_THAT(refusalWith(R"({"name": "stars", "value": "$source.stars"})",
                    R"({"name": "stars", "value": "$source.stars"}, {"name": "stars", "value": "1.0"})"),
        HasSubstr("\"stars\": stands twice"));
    EXPECT_THAT(refusalWith("\"value\": \"$source.stars\"", "\"values\": \"$source.stars\""),
        HasSubstr("\"value\" is missing"));
    EXPECT_THAT(refusalWith("{", "["), HasSubstr("not JSON"));
}

TEST(MappingModels, CanLeaveEntitiesOutOnPurpose)
{
    NSError error;
    const auto mapping = readMapping(R"({"source": "Library", "destination": "Library 2", "partial": true, "entities": [
        {"kind": "add", "destination": "Reader"}]})",
        &error);
    ASSERT_TRUE(mapping) << error;
    EXPECT_TRUE(mapping->isPartial());
}

// Files ---------------------------------------------------------------------------------------------------------------

class MappingModelFiles : public testing::Test {
protected:
    void write(const fs::path& name, const std::string& text) const
    {
        fs::create_directories((folder_.path() / name).parent_path());
        std::ofstream(folder_.path() / name) << text;
    }
    std::shared_ptr<const NSMappingModel> find() const
    {
        const fs::path folders[]{folder_.path()};
        return NSMappingModel::mappingModelFromBundles(folders, *oldLibraryModel(), *newLibraryModel());
    }

    TestFolder folder_;
    LogCapture log_;
};

TEST_F(MappingModelFiles, AreFoundByWhatTheyLeadBetween)
{
    EXPECT_FALSE(find());
    write("Other.mapping.json", R"({"source": "Library 2", "destination": "Library 3", "entities": []})");
    write("Library to Library 2.json", libraryMappingText());
    EXPECT_FALSE(find()) << "that is no name of a mapping file";
    write("b.mapping.json", libraryMappingText());
    ASSERT_TRUE(find());
    EXPECT_EQ(find()->entityMappings().front()->entityMigrationPolicyClassName(), "LibraryFunctions");
    write("a.mapping.json", libraryMappingText(R"("policy": "First",)"));
    EXPECT_EQ(find()->entityMappings().front()->entityMigrationPolicyClassName(), "First");
    write("Any.momd/z.mapping.json", libraryMappingText(R"("policy": "Inner",)"));
    EXPECT_EQ(find()->entityMappings().front()->entityMigrationPolicyClassName(), "Inner");
    EXPECT_THAT(log_.take(), IsEmpty());
}

TEST_F(MappingModelFiles, ThatCannotBeReadArePassedOver)
{
    write("a.mapping.json", "nonsense");
    std::string forgetful = libraryMappingText();
    const std::string dropped = R"("dropped": ["opened"])";
    forgetful.replace(forgetful.find(dropped), dropped.size(), R"("dropped": [])");
    write("b.mapping.json", forgetful);
    fs::create_directories(folder_.path() / "c.mapping.json");
    write("d.mapping.json", libraryMappingText());
    EXPECT_TRUE(find());
    const auto messages = log_.take();
    ASSERT_EQ(messages.size(), 3U);
    EXPECT_THAT(messages[0], HasSubstr("a.mapping.json: not JSON"));
    EXPECT_THAT(messages[1], HasSubstr("b.mapping.json: entity mapping \"BookToBook\": \"opened\" is forgotten"));
    EXPECT_THAT(messages[2], HasSubstr("c.mapping.json: cannot be read"));
    NSError error;
    EXPECT_FALSE(NSMappingModel::mappingModelWithContentsOfFile(
        folder_.path() / "none", *oldLibraryModel(), *newLibraryModel(), &error));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("none: cannot be read"));
}

} // namespace
} // namespace tarn
