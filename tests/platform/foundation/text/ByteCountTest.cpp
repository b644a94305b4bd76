#include "tarnmodel/platform/foundation/text/ByteCount.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(ByteCounts, AreShortAndRounded)
{
    EXPECT_EQ(stringFromByteCount(0), "0 bytes");
    EXPECT_EQ(stringFromByteCount(1), "1 byte");
    EXPECT_EQ(stringFromByteCount(999), "999 bytes");
    EXPECT_EQ(stringFromByteCount(1'000), "1.0 kB");
    EXPECT_EQ(stringFromByteCount(3'449'999), "3.4 MB");
    EXPECT_EQ(stringFromByteCount(999'949'999), "999.9 MB");
    EXPECT_EQ(stringFromByteCount(999'950'000), "1.0 GB");
    EXPECT_EQ(stringFromByteCount(18'446'744'073'709'551'615U), "18.4 EB");
}

} // namespace
} // namespace tarn
