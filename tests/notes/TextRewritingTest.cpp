// What a renaming did to one version of a text is done again to another.

#include "tarnmodel/notes/TextRewriting.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

/// What `rewriting` of the one text makes of the other; "(none)" where a person may have written it.
std::string doneAgain(std::string_view former, std::string_view rewritten, std::string other)
{
    const auto rewriting = TextRewriting::between(former, rewritten);
    return rewriting ? rewriting->appliedTo(std::move(other)) : "(none)";
}

TEST(TextRewriting, OfATitleIsDoneAgainInAnotherVersion)
{
    EXPECT_EQ(doneAgain("# T\n\n[[A]]", "# T\n\n[[B]]", "# T\n\nmore [[A]]"), "# T\n\nmore [[B]]");
}

TEST(TextRewriting, ThatLeftATitleLineLeavesIt)
{
    EXPECT_EQ(doneAgain("# [[A]]\n\n[[A]]", "# [[A]]\n\n[[B]]", "# [[A]]\n\nmore [[A]]"), "# [[A]]\n\nmore [[B]]");
}

TEST(TextRewriting, OfATagsSpellingIsDoneAgain)
{
    EXPECT_EQ(doneAgain("# T\n\n#rome", "# T\n\n#Rome", "# T\n\nmore #rome"), "# T\n\nmore #Rome");
}

TEST(TextRewriting, AddsNoTagThatTheOtherVersionHas)
{
    const std::string former = "# T\n\nlines";
    const std::string other = "# T\n\nlines #rome";
    EXPECT_EQ(doneAgain(former, CVKHashtag::addTagNameToTheBottomOfString("rome", former).markdown(), other), other);
    EXPECT_EQ(doneAgain(former, CVKHashtag::addTagNameToTheTopOfString("rome", former).markdown(), other), other);
}

TEST(TextRewriting, IsNoneWhereMoreWasWritten)
{
    EXPECT_EQ(doneAgain("# T\n\n[[A]]", "# T\n\n[[B]] and", "# T"), "(none)");
}

} // namespace
} // namespace tarn
