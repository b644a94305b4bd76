#include "tarnmodel/platform/foundation/text/Normalization.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(Normalization, ComposesLettersAndTheirMarks)
{
    EXPECT_EQ(canonicallyComposed("e\u0301"), "é");
    EXPECT_EQ(canonicallyComposed("é"), "é");
    EXPECT_EQ(canonicallyComposed("\u1112\u1161\u11ab"), "한");
    EXPECT_EQ(canonicallyComposed("plain.png"), "plain.png");
    EXPECT_EQ(canonicallyComposed(""), "");
    EXPECT_EQ(canonicallyComposed("ﬁ"), "ﬁ") << "a compatibility letter stays";
}

} // namespace
} // namespace tarn
