#include "tarnmodel/notes/NoteFilter.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::UnorderedElementsAreArray;
using Titles = std::vector<std::string>;

class NoteFilters : public StoreFixture {
protected:
    std::vector<std::string> titlesOfFilter(NoteFilter filter)
    {
        return titlesOf(OVNote::notesInManagedObjectContext(context(), predicateForNoteFilter(filter)));
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteFilters, everyStore(), storeName);

TEST_P(NoteFilters, ChooseByStateAndContent)
{
    note("# Plain");
    note("# Linked");
    note("# Linking\n\n[[Linked]]\n\n- [ ] a\n\n#tag").pin();
    note("# Archived\n\n    code\n").archive();
    OVNote& trashed = note("# Trashed");
    trashed.archive();
    trashed.trash();
    trashed.pin();
    note("# Guarded").setEncryptedValue(true);
    OVNote& version = note("# Version");
    version.makeReadOnly();
    version.markAsConflictedFromNote(noteTitled("Original"));

    const std::vector<std::pair<NoteFilter, Titles>> expected{
        {NoteFilter::All, {"Plain", "Linked", "Linking", "Archived", "Trashed", "Guarded", "Version", "Original"}},
        {NoteFilter::Active, {"Plain", "Linked", "Linking", "Guarded", "Version", "Original"}},
        {NoteFilter::Untrashed, {"Plain", "Linked", "Linking", "Archived", "Guarded", "Version", "Original"}},
        {NoteFilter::Trashed, {"Trashed"}},
        {NoteFilter::Archived, {"Archived"}},
        {NoteFilter::Pinned, {"Linking", "Trashed"}},
        {NoteFilter::ReadOnly, {"Version"}},
        {NoteFilter::Encrypted, {"Guarded"}},
        {NoteFilter::Conflicted, {"Version", "Original"}},
        {NoteFilter::Untagged, {"Plain", "Linked", "Archived", "Trashed", "Guarded", "Version", "Original"}},
        {NoteFilter::WithOpenToDos, {"Linking"}},
        {NoteFilter::WithSourceCode, {"Archived"}},
        {NoteFilter::ActivePinned, {"Linking"}},
        {NoteFilter::ActiveUnlinked, {"Plain", "Guarded", "Version", "Original"}},
    };
    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        for (const auto& [filter, titles] : expected)
            EXPECT_THAT(titlesOfFilter(filter), UnorderedElementsAreArray(titles)) << static_cast<int>(filter);
    }
}

} // namespace
} // namespace tarn
