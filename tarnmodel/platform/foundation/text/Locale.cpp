#include "tarnmodel/platform/foundation/text/LocaleInternal.h"

#include <new>

namespace tarn {

namespace {

/// A compiler may take it for granted that a reference leads somewhere, of a volatile pointer it may not.
const icu::Locale& existing(const icu::Locale& locale)
{
    const icu::Locale* volatile const place = &locale;
    if (!place)
        throw std::bad_alloc();
    return locale;
}

} // namespace

const icu::Locale& rootLocale()
{
    // The standard locale, too: every calendar looks at it.
    static const icu::Locale& root = (existing(icu::Locale::getDefault()), existing(icu::Locale::getRoot()));
    return root;
}

icu::Locale localeWithIdentifier(const std::string& identifier)
{
    rootLocale();
    return icu::Locale(identifier.c_str());
}

} // namespace tarn
