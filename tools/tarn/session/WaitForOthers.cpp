#include "tools/tarn/session/WaitForOthers.h"

#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/session/StoreLock.h"

namespace tarn {

bool WaitForOthers::goesOn(std::chrono::milliseconds waited)
{
    if (waited >= kSilentWait && !told_.exchange(true))
        tellOnStandardError("waiting for another program, which is using " + database_.string());
    return !Interruption::requested();
}

} // namespace tarn
