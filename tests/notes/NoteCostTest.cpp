#include "tests/support/SQLStatistics.h"
#include "tests/support/StoreFixture.h"

#include <algorithm>

namespace tarn {
namespace {

/// What an edit costs must not grow with the notebook: counted in statements and rows, never in time.
class NoteCost : public StoreFixture {
protected:
    void addNotes(int count)
    {
        for (; noteCount_ < count; ++noteCount_) {
            const std::string number = std::to_string(noteCount_);
            note("# Note " + number + "\n\n- [ ] task\n\n#popular #popular/" + std::to_string(noteCount_ % 20));
        }
        reopen();
    }

    /// One edit, which brings a new tag, of a note that was not read before, and its save.
    SQLStatistics::Counts costOfAnEdit(const std::string& number)
    {
        statistics_.take();
        OVNote* edited = OVNote::noteWithTitle("Note " + number, context());
        edited->updateNoteWithText("# Note " + number + "\n\n- [x] task\n\n#popular/" + number + " #new/" + number);
        save();
        return statistics_.take();
    }

    void addLinkedNotes(int count)
    {
        for (; noteCount_ < count; ++noteCount_)
            note("# Page " + std::to_string(noteCount_) + "\n\n[[Page " + std::to_string(noteCount_ + 1)
                + "]] [[Missing " + std::to_string(noteCount_) + "]] [[Popular]]");
        reopen();
    }

    /// An edit that moves, resolves and drops links and gives a new title to a note that one other note links to.
    SQLStatistics::Counts costOfANewTitle(const std::string& number)
    {
        statistics_.take();
        OVNote* edited = OVNote::noteWithTitle("Page " + number, context());
        edited->updateNoteWithText("# Sheet " + number + "\n\nmoved [[Page 3]] [[Absent " + number + "]]");
        save();
        return statistics_.take();
    }

    SQLStatistics::Counts costOfASearchForTags()
    {
        statistics_.take();
        OVNoteTag::getOrCreateTagWithNames(names_, context());
        return statistics_.take();
    }

    static std::int64_t tagFetches(const SQLStatistics::Counts& counts)
    {
        return std::count_if(counts.texts.begin(), counts.texts.end(), [](const std::string& text) {
            return text.starts_with("SELECT") && text.find("FROM \"OVNoteTag\"") != std::string::npos;
        });
    }

    /// How often a rename of the tag of so many notes, each with a link that the new name moves, asks for records by
    /// their titles.
    std::int64_t titleLookUpsOfARename(int noteCount)
    {
        const std::string name = "tag" + std::to_string(noteCount);
        for (int number = 0; number < noteCount; ++number)
            note("# Tagged " + std::to_string(number) + "\n\n#" + name + "/below #shared [[Hub]]");
        reopen();
        OVNoteTag& renamed = tag(name);
        statistics_.take();
        renamed.renameTagWithTagNamed("new-" + name);
        const SQLStatistics::Counts counts = statistics_.take();
        return std::count_if(counts.texts.begin(), counts.texts.end(), [](const std::string& text) {
            return text.starts_with("SELECT") && text.find("\"title_folded\"") != std::string::npos;
        });
    }

    SQLStatistics statistics_;
    std::vector<std::string> names_;
    int noteCount_ = 0;
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteCost, testing::Values(StoreType::SQLite), storeName);

TEST_P(NoteCost, OfAnEditIsTheSameInASmallAndALargeNotebook)
{
    // The first edit opens connections and reserves keys; what counts are those that follow.
    addNotes(100);
    costOfAnEdit("5");
    const SQLStatistics::Counts small = costOfAnEdit("6");
    addNotes(3000);
    costOfAnEdit("7");
    const SQLStatistics::Counts large = costOfAnEdit("8");

    EXPECT_GT(small.statements, 0);
    EXPECT_GT(small.rows, 0);
    EXPECT_EQ(large.texts, small.texts);
    EXPECT_EQ(large.statements, small.statements);
    EXPECT_EQ(large.rows, small.rows);
    EXPECT_EQ(small.scannedRows, 0);
    EXPECT_EQ(large.scannedRows, 0);
}

TEST_P(NoteCost, OfLinksAndTitlesIsTheSameInASmallAndALargeNotebook)
{
    addLinkedNotes(100);
    costOfANewTitle("20");
    const SQLStatistics::Counts small = costOfANewTitle("30");
    addLinkedNotes(3000);
    costOfANewTitle("2000");
    const SQLStatistics::Counts large = costOfANewTitle("2500");

    EXPECT_EQ(OVNote::noteWithTitle("Page 2499", context())->text(),
        "# Page 2499\n\n[[Sheet 2500]] [[Missing 2499]] [[Popular]]");
    EXPECT_EQ(large.texts, small.texts);
    EXPECT_EQ(large.rows, small.rows);
    EXPECT_EQ(small.scannedRows, 0);
    EXPECT_EQ(large.scannedRows, 0);
}

TEST_P(NoteCost, OfASearchThroughAllTextsIsSeen)
{
    addNotes(100);
    statistics_.take();

    OVNote::notesInManagedObjectContext(context(), NSPredicate::predicateWithFormat("subtitle CONTAINS 'x'"));

    EXPECT_GE(statistics_.take().scannedRows, 99);
}

TEST_P(NoteCost, OfFindingTagsIsOneFetchForAHundredNames)
{
    for (int number = 0; number < 250; ++number)
        names_.push_back("tag " + std::to_string(number));

    EXPECT_EQ(tagFetches(costOfASearchForTags()), 3);
    save();
    EXPECT_EQ(tagFetches(costOfASearchForTags()), 3);
    names_.resize(200);
    EXPECT_EQ(tagFetches(costOfASearchForTags()), 2);
}

TEST_P(NoteCost, OfARenameIsOneLookUpOfATitleForAllItsNotes)
{
    note("# Hub");
    titleLookUpsOfARename(1);
    const std::int64_t ofFew = titleLookUpsOfARename(3);
    EXPECT_GT(ofFew, 0);
    EXPECT_EQ(titleLookUpsOfARename(40), ofFew);
}

} // namespace
} // namespace tarn
