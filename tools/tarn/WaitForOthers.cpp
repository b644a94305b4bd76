#include "tools/tarn/WaitForOthers.h"

#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Interruption.h"
#include "tools/tarn/StoreLock.h"

namespace tarn {

bool WaitForOthers::goesOn(std::chrono::milliseconds waited)
{
    if (waited >= kSilentWait && !told_.exchange(true))
        tellOnStandardError("waiting for another program, which is using " + database_.string());
    return !Interruption::requested();
}

} // namespace tarn
