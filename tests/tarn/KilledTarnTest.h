#pragma once

#include "tests/tarn/TarnCommandTest.h"

#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::test {

/// The system calls at which a program dies.
struct Death {
    std::string_view call;
    int stride; ///< from one of these calls to the next at which it dies
    int deaths; ///< so many at least
};

std::ostream& operator<<(std::ostream& stream, const Death& death);
std::string nameOfDeath(const testing::TestParamInfo<Death>& death);

/// Commands that are killed at one of their system calls.
class KilledTarnTest : public TarnCommandTest, public testing::WithParamInterface<Death> {
protected:
    /// Whether the program came to its end, killed at that call or not.
    bool comesToItsEnd(int time, const std::filesystem::path& store, const std::string& command) const;
    /// Not where the system forbids it, and not with a leak checker, which wants to trace the program itself.
    static bool canBeTraced();
    /// Of another store than that of the fixture.
    TarnResult runIn(const std::filesystem::path& store, std::vector<std::string> command) const;
};

} // namespace tarn::test
