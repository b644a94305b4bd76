#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/sync/OVDeviceUUID.h"
#include "tarnmodel/sync/TolVectorClock.h"

namespace tarn {

std::optional<TolVectorClock> OVNote::noteVectorClock() const
{
    return TolVectorClock::initWithData(vectorClock());
}

void OVNote::updateNoteVectorClock()
{
    TolVectorClock clock = noteVectorClock().value_or(TolVectorClock());
    const auto device = OVDeviceUUID::deviceUUID();
    if (!device)
        return;
    clock.updateClockValueForID(*device);
    setVectorClock(clock.data());
}

void OVNote::mergeVectorClockWithClock(const TolVectorClock& clock)
{
    const TolVectorClock mine = noteVectorClock().value_or(TolVectorClock());
    setVectorClock(mine.mergeClock(clock).data());
}

} // namespace tarn
