#pragma once

#include <unicode/locid.h>

#include <string>

namespace tarn {

/// Locales of ICU. Where memory ran out while ICU made its own ones, it hands out references to nothing, and its
/// calendars and formats follow them; so both functions look first.
/// @throws std::bad_alloc where ICU has none.
const icu::Locale& rootLocale();
icu::Locale localeWithIdentifier(const std::string& identifier);

} // namespace tarn
