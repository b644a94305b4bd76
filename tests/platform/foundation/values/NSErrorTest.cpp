#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace tarn;

namespace {

TEST(NSError, IsWrittenWithDomainCodeAndDescription)
{
    std::ostringstream stream;
    stream << NSError("TarnStore", 13, "The disk is full.");
    EXPECT_EQ(stream.str(), "TarnStore 13: The disk is full.");
}

TEST(NSError, IsAssignedOnlyWhereSomebodyWantsIt)
{
    assignError(nullptr, NSError("a", 1, "b"));
    NSError error;
    assignError(&error, NSError("a", 1, "b"));
    EXPECT_EQ(error, NSError("a", 1, "b"));
    EXPECT_NE(error, NSError("a", 2, "b"));
}

TEST(NSException, SaysItsNameAndReason)
{
    const NSException exception(NSInvalidArgumentException, "Unexpected end.");
    EXPECT_EQ(exception.name(), "NSInvalidArgumentException");
    EXPECT_EQ(exception.reason(), "Unexpected end.");
    EXPECT_STREQ(exception.what(), "NSInvalidArgumentException: Unexpected end.");
}

} // namespace
