#include "tests/platform/coredata/StoreFixture.h"

#include <gmock/gmock.h>

#include <random>

namespace tarn {
namespace {

/// A store in memory, and what it does for a fetch.
class InMemoryLookUp : public testing::Test {
protected:
    std::string explained(std::string_view entity, const NSPredicate& predicate) const
    {
        StoreFetch fetch;
        fetch.entity = &store_.entity(entity);
        fetch.predicate = &predicate;
        return store_->explain(fetch);
    }

    template <typename... Arguments>
    void expectSameAsAWalk(
        std::string_view entity, const std::string& format, std::string_view what, const Arguments&... arguments) const
    {
        const auto lookUp = NSPredicate::predicateWithFormat(format, arguments...);
        const auto walk = NSPredicate::predicateWithFormat("NOT (NOT (" + format + "))", arguments...);
        EXPECT_THAT(explained(entity, lookUp), testing::StartsWith("looks up")) << what;
        EXPECT_THAT(explained(entity, walk), testing::StartsWith("walks all")) << what;
        EXPECT_EQ(store_.keys(entity, lookUp), store_.keys(entity, walk)) << what;
    }

    TestFolder folder_;
    OpenStore store_{StoreType::InMemory, folder_.file()};
};

TEST_F(InMemoryLookUp, OfATitleOrATargetJudgesFewRowsOfMany)
{
    const std::int64_t person = store_.insert("Person", {{"name", Value("Ada")}});
    for (int number = 0; number < 500; ++number)
        store_.insert("Document", {{"title", Value("Page " + std::to_string(number))}, {"owner", Value(person)}});
    const RecordReference ada(*store_, store_.entity("Person"), person);

    EXPECT_EQ(explained("Document", NSPredicate::predicateWithFormat("title ==[cd] %@", "PAGE 77")),
        "looks up 1 rows of Document\n");
    EXPECT_EQ(explained("Document", NSPredicate::predicateWithFormat("flag == NO && title ==[cd] 'page 78'")),
        "looks up 1 rows of Document\n");
    EXPECT_EQ(explained("Document", NSPredicate::predicateWithFormat("title ==[cd] 'page 1' OR code == 'x'")),
        "looks up 1 rows of Document\n");
    EXPECT_EQ(explained("Document", NSPredicate::predicateWithFormat("owner == %@", Value(&ada))),
        "looks up 500 rows of Document\n");
    EXPECT_EQ(explained("Document", NSPredicate::predicateWithFormat("title == 'Page 77'")),
        "walks all 500 rows of Document\n");
    EXPECT_EQ(store_.keysWhere("Document", "title ==[cd] %@", "PAGE 77").size(), 1U);
}

TEST_F(InMemoryLookUp, FindsWhatAWalkFindsHoweverRowsComeChangeAndGo)
{
    constexpr unsigned seed = 77;
    std::mt19937 random(seed);
    const auto oneOf = [&](const std::vector<Value>& values) { return values[random() % values.size()]; };
    const std::vector<Value> titles{Value(), Value(""), Value("Éclair"), Value("eclair"), Value("ECLAIR"), Value("b")};
    const std::vector<Value> codes{Value(), Value(""), Value("x"), Value("X"), Value("é")};
    std::vector<Value> people{Value()};
    for (int number = 0; number < 3; ++number)
        people.emplace_back(store_.insert("Person", {{"name", oneOf(codes)}}));
    std::vector<std::int64_t> documents;
    for (int step = 0; step < 400; ++step) {
        const std::string what = "seed " + std::to_string(seed) + ", step " + std::to_string(step);
        const std::size_t place = documents.empty() ? 0 : random() % documents.size();
        switch (random() % 6) {
        case 0:
        case 1:
            documents.push_back(store_.insert(
                "Document", {{"title", oneOf(titles)}, {"code", oneOf(codes)}, {"owner", oneOf(people)}}));
            break;
        case 2:
            if (!documents.empty())
                store_.update("Document", documents[place], "title", oneOf(titles));
            break;
        case 3:
            if (!documents.empty())
                store_.update("Document", documents[place], "owner", oneOf(people));
            break;
        case 4:
            if (!documents.empty()) {
                store_.remove("Document", documents[place]);
                documents.erase(documents.begin() + static_cast<std::ptrdiff_t>(place));
            }
            break;
        default:
            if (people.size() > 2 && random() % 10 == 0) {
                store_.remove("Person", people.back().asInteger());
                people.pop_back();
            }
        }
        const RecordReference owner(*store_, store_.entity("Person"), 1 + static_cast<std::int64_t>(random() % 3));
        expectSameAsAWalk("Document", "title ==[cd] %@", what, random() % 2 ? "éclair" : "");
        expectSameAsAWalk("Document", "code == %@", what, random() % 2 ? "x" : "é");
        expectSameAsAWalk("Document", "owner == %@ && code IN {'x', 'é', ''}", what, Value(&owner));
        expectSameAsAWalk("Document", "code IN {'x', ''} OR title ==[cd] 'B'", what);
    }
}

} // namespace
} // namespace tarn
