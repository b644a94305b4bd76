#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

class NoteURL : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, NoteURL, everyStore(), storeName);

TEST_P(NoteURL, OpensANoteByItsIdentifier)
{
    OVNote& linked = note("# T");
    linked.setUniqueIdentifier("3F2504E0-4F89-41D3-9A0C-0305E82C3301");
    EXPECT_EQ(
        linked.openNoteXCallbackURLString(), "tarn://x-callback-url/open-note?id=3F2504E0-4F89-41D3-9A0C-0305E82C3301");
    EXPECT_EQ(linked.openNoteInNewWindowXCallbackURLString(),
        "tarn://x-callback-url/open-note?new_window=yes&id=3F2504E0-4F89-41D3-9A0C-0305E82C3301");
}

TEST_P(NoteURL, OpensANoteByItsTitle)
{
    EXPECT_EQ(note("# Café au lait / 2").openNoteWithTitleXCallbackURLString(),
        "tarn://x-callback-url/open-note?title=Café%20au%20lait%20%2F%202");
    EXPECT_EQ(note("# \U0001D49C\U00020BB7 \U0001F44D").openNoteWithTitleXCallbackURLString(),
        "tarn://x-callback-url/open-note?title=\U0001D49C\U00020BB7%20%F0%9F%91%8D")
        << "letters outside the first plane stay too";
    EXPECT_EQ(note("").openNoteWithTitleXCallbackURLString(), "tarn://x-callback-url/open-note?title=");
}

TEST_P(NoteURL, OpensANoteAtAHeading)
{
    OVNote& linked = note("# T");
    linked.setUniqueIdentifier("ID");
    EXPECT_EQ(linked.openNoteXCallbackURLStringWithHeader("  Plan (b) & notes? "),
        "tarn://x-callback-url/open-note?id=ID&header=Plan%20%28b%29%20%26%20notes%3F");
    EXPECT_EQ(OVNote::appendHeader("\n it's: a/b@c é ", "link"), "link&header=it%27s:%20a/b@c%20%C3%A9");
    EXPECT_EQ(OVNote::appendHeader(" \n", "link"), "link&header=");
}

} // namespace
} // namespace tarn
