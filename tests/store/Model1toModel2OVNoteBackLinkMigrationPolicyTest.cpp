#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/notes/LinkTargets.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectSet.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/store/VexMigrationManager.h"
#include "tests/support/StoreFixture.h"

#include <fmt/format.h>

#include <array>
#include <map>
#include <random>

namespace tarn {
namespace {

using testing::IsEmpty;

/// Notes of version 1, and the links that they come to have.
class LinksOfVersion1 : public testing::Test, protected StillWorld {
protected:
    LinksOfVersion1()
    {
        auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(model_);
        NSError error;
        EXPECT_TRUE(coordinator->addPersistentStoreWithType(StoreType::SQLite, store_.storeFile(), {}, &error))
            << error;
        notes_ = TestStore::contextOn(std::move(coordinator));
    }
    void TearDown() override
    {
        EXPECT_THAT(store_.problems(), IsEmpty());
        store_.close();
        EXPECT_THAT(takeLog(), IsEmpty());
    }

    NSManagedObject& add(const Value& title, std::string_view text)
    {
        NSManagedObject& note = notes_->insertObject("OVNote");
        note.setValueForKey("uniqueIdentifier", newUUIDString());
        note.setValueForKey("creationDate", mark());
        note.setValueForKey("title", title);
        note.setValueForKey("text", text);
        return note;
    }
    void migrate()
    {
        NSError error;
        ASSERT_TRUE(notes_->save(&error)) << error;
        notes_.reset();
        before_ = mark();
        VexMigrationManager manager;
        ASSERT_TRUE(manager.progressivelyMigrateURL(
            store_.storeFile(), StoreType::SQLite, OVManagedObjectModel::current(), &error))
            << error;
        store_.open();
    }
    OVNote& note(std::string_view title) { return *OVNote::noteWithTitle(title, store_.context()); }

    std::shared_ptr<const NSManagedObjectModel> model_
        = NSManagedObjectModel::modelWithContentsOfFile(*OVManagedObjectModel::modelURLForVersion("Model"));
    TestStore store_{StoreType::SQLite};
    std::unique_ptr<NSManagedObjectContext> notes_; ///< of version 1
    NSDate before_;
};

TEST_F(LinksOfVersion1, AreMadeOfTheTextsThatHaveSome)
{
    add("Groceries", "# Groceries");
    add("Trip", "# Trip\n\n🎉 [[groceries|the list]] and [[nobody]]");
    add(Value(), "[ [no link] ]");
    migrate();

    const auto links = store_.all<OVNoteBackLink>();
    ASSERT_EQ(links.size(), 2U);
    const OVNoteBackLink& link = links[0]->title() == "groceries" ? *links[0] : *links[1];
    const OVNoteBackLink& open = links[0]->title() == "groceries" ? *links[1] : *links[0];
    EXPECT_EQ(link.locationValue(), 11);
    EXPECT_EQ(link.linkedBy(), &note("Trip"));
    EXPECT_EQ(link.linkingTo(), &note("Groceries"));
    EXPECT_EQ(link.versionValue(), 3);
    EXPECT_GT(link.modificationDate(), before_);
    EXPECT_EQ(link.uniqueIdentifier().value().size(), 36U);
    EXPECT_NE(link.uniqueIdentifier(), open.uniqueIdentifier());
    EXPECT_EQ(open.title(), "nobody");
    EXPECT_EQ(open.linkingTo(), nullptr);
    EXPECT_EQ(open.linkedBy(), &note("Trip"));
}

TEST_F(LinksOfVersion1, WaitForTheirNotesAsOthersDo)
{
    add("Trip", "# Trip\n\n[[Groceries]]");
    migrate();
    OVNote& groceries = store_.note("# Groceries");
    EXPECT_EQ(groceries.linkedByNotes(), std::vector{&note("Trip")});
}

TEST_F(LinksOfVersion1, AreFoundAmongMoreTitlesThanAreKept)
{
    constexpr int kNotes = 5'000;
    std::string text = "# All\n";
    for (int i = 0; i < kNotes; ++i) {
        add(fmt::format("Note {}", i), "");
        text += fmt::format("[[note {}]] [[Note {}]]\n", i, kNotes - 1 - i);
    }
    add("All", text);
    migrate();
    std::size_t count = 0;
    for (const OVNoteBackLink* link : note("All").linkingToSet().allObjects()) {
        ASSERT_TRUE(link->linkingTo()) << link->title().value();
        ASSERT_EQ(link->linkingTo()->title().value().substr(5), link->title().value().substr(5));
        ++count;
    }
    EXPECT_EQ(count, 2U * kNotes);
}

/// Few titles for many notes, some in the trash, some without a date, some without a title.
class RandomLinks : public LinksOfVersion1, public testing::WithParamInterface<unsigned> {
protected:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    void addNote()
    {
        constexpr std::array kTitles{"Éclair", "eclair", "ÉCLAIR", "Straße", "STRASSE", "x|y", "a [b]", "ﬁ", "fi", "İ"};
        const std::size_t kind = below(kTitles.size() + 3);
        NSManagedObject& note = add(kind < kTitles.size() ? Value(kTitles[kind])
                : kind == kTitles.size()                  ? Value()
                                                          : Value(""),
            textWithLinks());
        if (below(3) == 0)
            note.setValueForKey("trashed", below(4) == 0 ? Value() : Value(true));
        if (below(3) == 0)
            note.setValueForKey("creationDate", below(2) == 0 ? Value() : Value(dateWithMicrosecondsSince1970(7)));
        identifiers_.push_back(note.valueForKey("uniqueIdentifier").asString());
    }
    std::string textWithLinks()
    {
        constexpr std::array kLinks{"[[eclair]] ", "[[e\u0301clair|alias]]\n", "[[strasse]] 🎉", "[[x\\|y]]",
            "[[a \\[b\\]]]", "[[FI]]", "`[[fi]]` ", "[[i]]", "\n\n    [[fi]]\n\n", "[[nobody]] "};
        std::string text;
        for (std::size_t count = below(5); count > 0; --count) {
            if (below(4) == 0 && !identifiers_.empty())
                text += "[[" + identifiers_[below(identifiers_.size())] + "]] ";
            else
                text += kLinks[below(kLinks.size())];
        }
        return text;
    }

    std::mt19937 random_{GetParam()};
    std::vector<std::string> identifiers_;
};

INSTANTIATE_TEST_SUITE_P(Notebooks, RandomLinks, testing::Range(1U, 7U));

TEST_P(RandomLinks, LeadWhereTheNextParseWouldLead)
{
    for (int i = 0; i < 150; ++i)
        addNote();
    migrate();
    std::size_t found = 0;
    for (const OVNote* note : OVNote::allNotesInManagedObjectContext(store_.context())) {
        const CVKAST document = CVKAST::fromMarkdown(note->text().value_or(""));
        const std::vector<CVKWikiLink>& links = document.textSummary().wikiLinks;
        LinkTargets targets(store_.context(), nullptr);
        ASSERT_TRUE(targets.lookUp(links));
        std::map<std::pair<std::int64_t, std::string>, const OVNote*> expected;
        for (const CVKWikiLink& link : links)
            expected[{static_cast<std::int64_t>(link.offset()), link.decodedTitle()}]
                = targets.targetOf(link.decodedTitle());
        std::map<std::pair<std::int64_t, std::string>, const OVNote*> actual;
        for (const OVNoteBackLink* link : note->linkingToSet().allObjects()) {
            actual[{link->locationValue(), link->title().value()}] = link->linkingTo();
            found += link->linkingTo() != nullptr;
        }
        EXPECT_EQ(actual, expected) << document.markdown();
    }
    EXPECT_GT(found, 100U);
}

} // namespace
} // namespace tarn
