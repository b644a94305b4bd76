#pragma once

#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gtest/gtest.h>

namespace tarn {

/// That the call raises what a guarded accessor of a locked record does.
template <typename Call> void expectInvalidAccessor(Call call)
{
    try {
        call();
        ADD_FAILURE() << "nothing was raised";
    } catch (const NSException& exception) {
        EXPECT_EQ(exception.name(), "Invalid accessor");
        EXPECT_EQ(exception.reason(),
            "Called an encrypted accessor with Encryption Manager available and the object locked. Unlock the object "
            "using the Encryption Manager first, or use the primitive accessor (primitive accessors should be used in "
            "very special cases, so be fully aware of what you are doing).");
    }
}

} // namespace tarn
