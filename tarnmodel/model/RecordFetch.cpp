#include "tarnmodel/model/RecordFetch.h"

#include "tarnmodel/platform/foundation/system/Log.h"

#include <string>

namespace tarn {

void logFetchFailure(const NSError& error)
{
    const std::string& description = error.localizedDescription();
    logMessage("Error while fetching\n" + (description.empty() ? "Unknown Error" : description));
}

} // namespace tarn
