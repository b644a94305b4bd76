#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVNoteServerData.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/StoreFixture.h"

#include <limits>
#include <ranges>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

using Accessors = StoreFixture;

// Attributes --------------------------------------------------------------------------------------------------------

TEST_P(Accessors, KeepEveryKindOfValue)
{
    const NSDate date = *dateFromISO8601String("1969-12-31T23:59:59.999999Z");
    const NSData data = NSData::fromText(std::string_view("\0\xFF", 2));
    auto& note = insert<OVNote>();
    note.setText("ünï");
    note.setPinnedDate(date);
    note.setVectorClock(data);
    note.setPinned(true);
    note.setTodoCompletedValue(-7);
    note.setOrderValue(std::numeric_limits<std::int64_t>::min());
    reopen();
    const OVNote& found = *all<OVNote>().front();
    EXPECT_EQ(found.text(), "ünï");
    EXPECT_EQ(found.pinnedDate(), date);
    EXPECT_EQ(found.vectorClock(), data);
    EXPECT_EQ(found.pinned(), true);
    EXPECT_EQ(found.todoCompleted(), -7);
    EXPECT_EQ(found.order(), std::numeric_limits<std::int64_t>::min());
}

TEST_P(Accessors, GiveATextWithoutACopy)
{
    auto& note = insert<OVNote>();
    EXPECT_EQ(note.stringViewAt(OVNote::Index::text), std::nullopt);
    note.setText("ünï");
    const auto view = note.stringViewAt(OVNote::Index::text);
    EXPECT_EQ(view, "ünï");
    EXPECT_EQ(view->data(), note.stringViewAt(OVNote::Index::text)->data()) << "it was copied";
}

TEST_P(Accessors, KeepNothingApartFromZero)
{
    auto& note = insert<OVNote>();
    note.setPinned(std::nullopt);
    note.setOrder(std::nullopt);
    note.setTitle("");
    note.setVectorClock(NSData());
    reopen();
    const OVNote& found = *all<OVNote>().front();
    EXPECT_EQ(found.pinned(), std::nullopt);
    EXPECT_FALSE(found.pinnedValue());
    EXPECT_EQ(found.order(), std::nullopt);
    EXPECT_EQ(found.orderValue(), 0);
    EXPECT_EQ(found.title(), "");
    EXPECT_EQ(found.subtitle(), std::nullopt);
    EXPECT_EQ(found.vectorClock(), NSData());
    EXPECT_EQ(found.encryptedData(), std::nullopt);
}

TEST_P(Accessors, AreKnownByKeyAndGoThroughTheClass)
{
    auto& note = insert<OVNote>();
    note.setValueForKey("title", Value("Pears"));
    note.setValueForKey("order", Value(12));
    note.setValueForKey("todoCompleted", Value(2.9));
    note.setValueForKey("pinned", Value(1));
    note.setValueForKey("pinnedDate", Value(lastTime()));
    note.setValueForKey("vectorClock", Value(NSData::fromText("x")));
    EXPECT_EQ(note.title(), "Pears");
    EXPECT_EQ(note.order(), 12);
    EXPECT_EQ(note.todoCompleted(), 2);
    EXPECT_EQ(note.pinned(), true);
    EXPECT_EQ(note.valueForKey("title"), Value("Pears"));
    EXPECT_EQ(note.valueForKey("pinned"), Value(true));
    EXPECT_EQ(note.valueForKey("pinnedDate"), Value(lastTime()));
    EXPECT_EQ(note.valueForKey("vectorClock"), Value(NSData::fromText("x")));
    note.setValueForKey("title", Value());
    EXPECT_TRUE(note.valueForKey("title").isNil());
}

TEST_P(Accessors, KnowInheritedKeys)
{
    auto& image = insert<OVNoteImage>();
    image.setValueForKey("width", Value(640));
    image.setValueForKey("filename", Value("a.png"));
    EXPECT_EQ(image.width(), 640);
    EXPECT_EQ(image.filename(), "a.png");
    EXPECT_EQ(image.valueForKey("filename"), Value("a.png"));
}

TEST_P(Accessors, RefuseAKeyOrAValueThatIsNotTheirs)
{
    auto& note = insert<OVNote>();
    EXPECT_THROW((void)note.valueForKey("colour"), NSException);
    EXPECT_THROW(note.setValueForKey("colour", Value(1)), NSException);
    EXPECT_THROW(note.setValueForKey("title", Value(1)), NSException);
    EXPECT_THROW(note.setValueForKey("order", Value("1")), NSException);
    EXPECT_THROW(note.setValueForKey("pinnedDate", Value(1)), NSException);
    EXPECT_EQ(note.title(), std::nullopt);
}

TEST_P(Accessors, TakeCareOfNumbersThatDoNotFit)
{
    auto& note = insert<OVNote>();
    note.setValueForKey("version", Value(65537));
    EXPECT_EQ(note.version(), 1);
    note.setValueForKey("order", Value(1e300));
    EXPECT_EQ(note.order(), std::numeric_limits<std::int64_t>::max());
    note.setValueForKey("order", Value(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(note.order(), 0);
}

// Observation -------------------------------------------------------------------------------------------------------

TEST_P(Accessors, TellObserversOfTheBoxedAndTheScalarKey)
{
    auto& note = insert<OVNote>();
    std::vector<std::string> heard;
    auto remember = [&](NSManagedObject&, std::string_view key) { heard.emplace_back(key); };
    auto boxed = note.addObserver("trashed", remember);
    auto scalar = note.addObserver("trashedValue", remember);
    note.setTrashedValue(true);
    EXPECT_THAT(heard, UnorderedElementsAre("trashed", "trashedValue"));
    heard.clear();
    note.setArchivedValue(true);
    EXPECT_TRUE(heard.empty());
}

TEST_P(Accessors, SayWhichKeysScalarKeysRestOn)
{
    EXPECT_THAT(OVNote::keyPathsForValuesAffectingValueForKey("orderValue"), ElementsAre("order"));
    EXPECT_THAT(OVNote::keyPathsForValuesAffectingValueForKey("order"), ElementsAre());
    EXPECT_THAT(OVNote::keyPathsForValuesAffectingValueForKey("titleValue"), ElementsAre());
    EXPECT_THAT(OVNoteImage::keyPathsForValuesAffectingValueForKey("widthValue"), ElementsAre("width"));
    EXPECT_THAT(OVNoteImage::keyPathsForValuesAffectingValueForKey("unusedValue"), ElementsAre("unused"));
    EXPECT_THAT(insert<OVNoteImage>().keysAffectingValueForKey("unusedValue"), ElementsAre("unused"));
}

TEST_P(Accessors, StorePrimitiveValuesInSilence)
{
    auto& note = insert<OVNote>();
    int heard = 0;
    auto observation = note.addObserver("pinned", [&](NSManagedObject&, std::string_view) { ++heard; });
    note.setPrimitivePinnedValue(true);
    EXPECT_EQ(heard, 0);
    EXPECT_TRUE(note.pinnedValue());
    EXPECT_TRUE(note.primitivePinnedValue());
    note.setPrimitivePinned(std::nullopt);
    EXPECT_EQ(note.primitivePinned(), std::nullopt);
    EXPECT_FALSE(note.primitivePinnedValue());
}

// Relationships -----------------------------------------------------------------------------------------------------

TEST_P(Accessors, KeepToManySetsAndTheirInversesInStep)
{
    auto& note = insert<OVNote>();
    auto& tag = insert<OVNoteTag>();
    note.tagsSet().addObject(tag);
    EXPECT_THAT(tag.notesSet().allObjects(), ElementsAre(&note));
    std::vector<OVNote*> walked;
    for (OVNote* member : tag.notesSet())
        walked.push_back(member);
    EXPECT_THAT(walked, ElementsAre(&note));
    EXPECT_EQ(std::ranges::distance(note.pinnedInTagsSet()), 0);
    static_assert(std::ranges::forward_range<NSManagedObjectSet<OVNote>>);
    tag.pinnedNotesSet().addObject(note);
    EXPECT_THAT(note.pinnedInTagsSet().allObjects(), ElementsAre(&tag));
    tag.notesSet().removeObject(note);
    EXPECT_TRUE(note.tagsSet().empty());
}

TEST_P(Accessors, KeepToOnesAndTheirInversesInStep)
{
    auto& note = insert<OVNote>();
    auto& image = insert<OVNoteImage>();
    auto& file = insert<OVNoteGenericFile>();
    auto& password = insert<OVPassword>();
    auto& archive = insert<OVNoteServerData>();
    image.setNote(&note);
    note.filesSet().addObject(file);
    note.setPassword(&password);
    archive.setNote(&note);
    EXPECT_EQ(file.note(), &note);
    EXPECT_THAT(note.filesSet().allObjects(), UnorderedElementsAre(&image, &file));
    EXPECT_THAT(password.notesSet().allObjects(), ElementsAre(&note));
    EXPECT_EQ(note.serverData(), &archive);
    note.setPassword(nullptr);
    EXPECT_TRUE(password.notesSet().empty());
}

TEST_P(Accessors, KeepTheTwoEndsOfALinkApart)
{
    auto& from = insert<OVNote>();
    auto& to = insert<OVNote>();
    auto& link = insert<OVNoteBackLink>();
    link.setLinkedBy(&from);
    link.setLinkingTo(&to);
    EXPECT_THAT(from.linkingToSet().allObjects(), ElementsAre(&link));
    EXPECT_THAT(to.linkedBySet().allObjects(), ElementsAre(&link));
    EXPECT_TRUE(from.linkedBySet().empty());
}

TEST_P(Accessors, KeepItemsOfAChange)
{
    auto& change = insert<OVChange>();
    auto& item = insert<OVChangeItem>();
    change.itemsSet().addObject(item);
    EXPECT_EQ(item.change(), &change);
    reopen();
    ASSERT_EQ(all<OVChange>().size(), 1u);
    EXPECT_EQ(all<OVChange>().front()->itemsSet().count(), 1u);
}

// Identity and fetches ----------------------------------------------------------------------------------------------

TEST_P(Accessors, GiveIdentifiersOfTheirOwnType)
{
    auto& note = insert<OVNote>();
    save();
    const OVNoteID identifier = note.objectID();
    EXPECT_FALSE(identifier.isTemporaryID());
    EXPECT_EQ(&identifier.entity(), &OVNote::entityInManagedObjectContext(context()));
    EXPECT_EQ(context().objectWithID(identifier), &note);
}

TEST_P(Accessors, FetchImagesAndOtherFilesAsAttachments)
{
    auto& image = insert<OVNoteImage>();
    auto& file = insert<OVNoteGenericFile>();
    auto fetchFiles = [&] {
        NSFetchRequest request(OVNoteFile::entityInManagedObjectContext(context()));
        request.includesSubentities = true;
        return request;
    };
    EXPECT_THAT(all<OVNoteFile>(), UnorderedElementsAre(&image, &file));
    EXPECT_EQ(context().countForFetchRequest(fetchFiles()), 2u);
    save();
    EXPECT_THAT(all<OVNoteFile>(), UnorderedElementsAre(&image, &file));
    EXPECT_EQ(
        context().countForFetchRequest(fetchFiles()), all<OVNoteImage>().size() + all<OVNoteGenericFile>().size());
    NSFetchRequest withoutKinds = fetchFiles();
    withoutKinds.includesSubentities = false;
    EXPECT_EQ(context().countForFetchRequest(withoutKinds), 0u);
}

TEST_P(Accessors, ComeBackAsTheirClasses)
{
    insert<OVNoteImage>().setWidthValue(3);
    insert<OVNoteGenericFile>();
    reopen();
    auto files = all<OVNoteFile>();
    ASSERT_EQ(files.size(), 2u);
    auto* image = dynamic_cast<OVNoteImage*>(files[0]);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->widthValue(), 3);
    EXPECT_TRUE(dynamic_cast<OVNoteGenericFile*>(files[1]));
}

// Deletion ----------------------------------------------------------------------------------------------------------

TEST_P(Accessors, TakePartsAlongAndLeaveTheRest)
{
    auto& note = insert<OVNote>();
    auto& other = insert<OVNote>();
    auto& tag = insert<OVNoteTag>();
    auto& out = insert<OVNoteBackLink>();
    auto& in = insert<OVNoteBackLink>();
    note.tagsSet().addObject(tag);
    out.setLinkedBy(&note);
    in.setLinkedBy(&other);
    in.setLinkingTo(&note);
    insert<OVNoteImage>().setNote(&note);
    insert<OVNoteServerData>().setNote(&note);
    save();
    context().deleteObject(note);
    reopen();
    EXPECT_EQ(all<OVNote>().size(), 1u);
    EXPECT_EQ(all<OVNoteTag>().size(), 1u);
    EXPECT_TRUE(all<OVNoteTag>().front()->notesSet().empty());
    EXPECT_TRUE(all<OVNoteFile>().empty());
    EXPECT_TRUE(all<OVNoteServerData>().empty());
    ASSERT_EQ(all<OVNoteBackLink>().size(), 1u);
    EXPECT_EQ(all<OVNoteBackLink>().front()->linkingTo(), nullptr);
}

TEST_P(Accessors, NeverLoseAPasswordThatANoteNeeds)
{
    auto& note = insert<OVNote>();
    auto& password = insert<OVPassword>();
    note.setPassword(&password);
    save();
    context().deleteObject(password);
    NSError error;
    EXPECT_FALSE(context().save(&error));
    EXPECT_FALSE(error.localizedDescription().empty());
    context().rollback();
    note.setPassword(nullptr);
    context().deleteObject(password);
    EXPECT_TRUE(context().save(&error)) << error;
}

INSTANTIATE_TEST_SUITE_P(Stores, Accessors, everyStore(), storeName);

} // namespace
} // namespace tarn
