#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {

NSException::NSException(std::string_view name, std::string_view reason)
    : name_(name), reason_(reason), what_(name_ + ": " + reason_)
{ }

} // namespace tarn
