#include "tarnmodel/platform/foundation/values/NSError.h"

#include <ostream>
#include <utility>

namespace tarn {

NSError::NSError(std::string_view domain, long code, std::string_view localizedDescription)
    : domain_(domain), code_(code), localizedDescription_(localizedDescription)
{ }

std::ostream& operator<<(std::ostream& stream, const NSError& error)
{
    return stream << error.domain() << ' ' << error.code() << ": " << error.localizedDescription();
}

void assignError(NSError* destination, NSError error)
{
    if (destination)
        *destination = std::move(error);
}

} // namespace tarn
