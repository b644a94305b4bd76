#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <fmt/ranges.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tarn {
namespace {

/// The key paths, each joined by dots, with blanks between them.
std::string pathsOf(std::string_view format)
{
    std::string result;
    for (const std::vector<std::string>& path : keyPathsReadByPredicate(NSPredicate::predicateWithFormat(format)))
        result += fmt::format("{}{}", result.empty() ? "" : " ", fmt::join(path, "."));
    return result;
}

TEST(KeyPaths, AreGivenOnceInOrderOfAppearance)
{
    EXPECT_EQ(pathsOf("b == 1 AND (a == 2 OR NOT b == c.d)"), "b a c.d");
    EXPECT_EQ(pathsOf("TRUEPREDICATE"), "");
    EXPECT_EQ(pathsOf("1 == 1"), "");
    EXPECT_EQ(pathsOf("SELF == nil"), "");
}

TEST(KeyPaths, AreFoundOnBothSidesInCountsAndInCollections)
{
    EXPECT_EQ(pathsOf("'x' IN tags.title"), "tags.title");
    EXPECT_EQ(pathsOf("tags.@count == files.@count"), "tags files");
    EXPECT_EQ(pathsOf("a IN {b, 1, c.d}"), "a b c.d");
    EXPECT_EQ(pathsOf("ANY tags.title == 'x'"), "tags.title");
    EXPECT_EQ(pathsOf("SELF.a == 1"), "a");
}

TEST(KeyPaths, InSubqueriesBeginWithTheirCollection)
{
    EXPECT_EQ(pathsOf("SUBQUERY(files, $f, $f.unused == NO).@count > 0"), "files files.unused");
    EXPECT_EQ(pathsOf("SUBQUERY(a.b, $f, $f.c.d == title).@count > 0"), "a.b a.b.c.d title");
    EXPECT_EQ(pathsOf("SUBQUERY(linkedBy, $note, $note.linkedBy.trashed == NO).@count == 0"),
        "linkedBy linkedBy.linkedBy.trashed");
    EXPECT_EQ(pathsOf("SUBQUERY(files, $f, SUBQUERY($f.tags, $t, $t.title == $f.name).@count > 0).@count > 0"),
        "files files.tags files.tags.title files.name");
    EXPECT_EQ(pathsOf("SUBQUERY(SUBQUERY(a, $x, $x.b == 1), $y, $y.c == 2).@count > 0"), "a a.b a.c");
}

TEST(KeyPaths, FollowTheInnermostVariableOfAName)
{
    EXPECT_EQ(
        pathsOf("SUBQUERY(a, $x, SUBQUERY(b, $x, $x.c == 1).@count > 0 AND $x.d == 1).@count > 0"), "a b b.c a.d");
}

TEST(KeyPaths, DoNotBeginInConstants)
{
    EXPECT_EQ(pathsOf("SUBQUERY({1, 2}, $x, $x == a).@count > 0"), "a");
    EXPECT_EQ(pathsOf("SUBQUERY({b}, $x, $x.c == a).@count > 0"), "b a");
}

} // namespace
} // namespace tarn
