#include "tarnmodel/tags/TagOrder.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;

class TagOrder : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, TagOrder, everyStore(), storeName);

TEST_P(TagOrder, PutsATagBehindTheOneThatItBelongsTo)
{
    for (const char* name : {"work/b", "work 2", "Work", "work/a/x", "item 10", "ähre", "item 9", "work/a"})
        tag(name);
    EXPECT_THAT(titlesOf(tagsInTreeOrder(all<OVNoteTag>())),
        ElementsAre("ähre", "item 9", "item 10", "Work", "work/a", "work/a/x", "work/b", "work 2"));
}

} // namespace
} // namespace tarn
