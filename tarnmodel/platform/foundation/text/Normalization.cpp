#include "tarnmodel/platform/foundation/text/Normalization.h"

#include "tarnmodel/platform/foundation/text/FoldingInternal.h"

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>

#include <new>

namespace tarn {

std::string canonicallyComposed(std::string_view text)
{
    std::string composed;
    icu::StringByteSink<std::string> sink(&composed);
    UErrorCode status = U_ZERO_ERROR;
    folding::canonicalComposition().normalizeUTF8(
        0, icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())), sink, nullptr, status);
    if (U_FAILURE(status))
        throw std::bad_alloc();
    return composed;
}

} // namespace tarn
