#include "tarnmodel/platform/coredata/SaveParticipant.h"

namespace tarn {

SaveParticipant::~SaveParticipant() = default;

} // namespace tarn
