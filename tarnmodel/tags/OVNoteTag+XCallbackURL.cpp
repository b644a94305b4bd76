#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"

namespace tarn {

std::string OVNoteTag::openTagXCallbackURLString() const
{
    return "tarn://x-callback-url/open-tag?name="
        + stringByAddingPercentEncoding(title().value_or(""), UnescapedCharacters::Alphanumeric);
}

} // namespace tarn
