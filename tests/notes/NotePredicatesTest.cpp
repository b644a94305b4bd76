#include "tarnmodel/notes/NotePredicates.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class NotePredicates : public StoreFixture {
protected:
    /// What a beginning of an identifier finds; "?" for a text that is none.
    std::vector<std::string> found(std::string_view text)
    {
        const auto predicate = predicateForBeginningOfUUID(text);
        if (!predicate)
            return {"?"};
        return titlesOf(OVNote::notesInManagedObjectContext(context(), predicate));
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, NotePredicates, everyStore(), storeName);

TEST_P(NotePredicates, FindNotesByTheBeginningOfTheirIdentifiers)
{
    noteTitled("A").setUniqueIdentifier("3F2504E0-4F89-11D3-9A0C-0305E82C3301");
    noteTitled("B").setUniqueIdentifier("3F2504E0-4F89-22D3-9A0C-0305E82C3301");
    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        EXPECT_THAT(found("3f2504e0"), UnorderedElementsAre("A", "B"));
        EXPECT_THAT(found("3F2504E0-4f89-2"), ElementsAre("B"));
        EXPECT_THAT(found("3f2504e0-4f89-11d3-9a0c-0305e82c3301"), ElementsAre("A"));
        EXPECT_THAT(found("F2504E0-"), IsEmpty()) << "from its first character on";
    }
    EXPECT_THAT(found("3F2504E"), ElementsAre("?")) << "too short";
    EXPECT_THAT(found("3F2504E0-4F89-11D3-9A0C-0305E82C33011"), ElementsAre("?")) << "too long";
    EXPECT_THAT(found("Groceries"), ElementsAre("?"));
}

} // namespace
} // namespace tarn
