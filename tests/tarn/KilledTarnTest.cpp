#include "tests/tarn/KilledTarnTest.h"

#include <cstdlib>

#include <sys/wait.h>

namespace tarn::test {

std::ostream& operator<<(std::ostream& stream, const Death& death)
{
    return stream << death.call;
}

std::string nameOfDeath(const testing::TestParamInfo<Death>& death)
{
    return std::string(death.param.call.substr(0, death.param.call.find(',')));
}

bool KilledTarnTest::comesToItsEnd(int time, const std::filesystem::path& store, const std::string& command) const
{
    const std::string line = "XDG_CACHE_HOME='" + (folder() / "cache").string()
        + "' strace -f -qq -o /dev/null -e inject=" + std::string(GetParam().call)
        + ":signal=KILL:when=" + std::to_string(time) + " " + TARN_PROGRAM + " --store '" + store.string() + "' "
        + command + " >/dev/null 2>&1";
    const int status = std::system(line.c_str());
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool KilledTarnTest::canBeTraced()
{
    static const std::string line
        = std::string("strace -f -qq -o /dev/null ") + TARN_PROGRAM + " --version >/dev/null 2>&1";
    return std::system(line.c_str()) == 0;
}

TarnResult KilledTarnTest::runIn(const std::filesystem::path& store, std::vector<std::string> command) const
{
    command.insert(command.begin(), {"--store", store.string()});
    TarnProcess process(command);
    process.setVariable("XDG_CACHE_HOME", (folder() / "cache").string());
    return process.finish();
}

} // namespace tarn::test
