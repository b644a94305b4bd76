#include "tarnmodel/platform/foundation/time/Collation.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/text/LocaleInternal.h"

#include <unicode/coll.h>

#include <memory>
#include <mutex>
#include <string_view>

namespace tarn {

namespace {

/// A null pointer where ICU has no collation data at all; bytes decide then.
std::shared_ptr<const icu::Collator> makeCollator(const std::string& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale wanted = localeWithIdentifier(locale);
    // Where no language is set ("C", "POSIX"), ICU would order by code points, capitals before small letters.
    if (std::string_view(wanted.getVariant()) == "POSIX")
        wanted = rootLocale();
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(wanted, status));
    if (U_FAILURE(status) || !collator)
        return nullptr;
    collator->setStrength(icu::Collator::SECONDARY);
    collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, status);
    return collator;
}

/// The collator of the environment's locale, made when first asked for and again when the locale is another.
std::shared_ptr<const icu::Collator> currentCollator()
{
    struct Cache {
        std::mutex mutex;
        std::string locale;
        std::shared_ptr<const icu::Collator> collator;
        bool made = false;
    };
    static auto* const cache = new Cache;

    const std::string locale = Environment::current().localeIdentifier();
    const std::lock_guard lock(cache->mutex);
    if (!cache->made || cache->locale != locale) {
        cache->collator = makeCollator(locale);
        cache->locale = locale;
        cache->made = true;
    }
    return cache->collator;
}

icu::StringPiece piece(std::string_view text)
{
    return {text.data(), static_cast<int32_t>(text.size())};
}

} // namespace

std::strong_ordering localizedStandardCompare(std::string_view left, std::string_view right)
{
    if (const auto collator = currentCollator()) {
        UErrorCode status = U_ZERO_ERROR;
        const UCollationResult result = collator->compareUTF8(piece(left), piece(right), status);
        if (U_SUCCESS(status) && result != UCOL_EQUAL)
            return result == UCOL_LESS ? std::strong_ordering::less : std::strong_ordering::greater;
    }
    return left.compare(right) <=> 0;
}

std::string localizedStandardSortKey(std::string_view text)
{
    std::string key;
    if (const auto collator = currentCollator()) {
        const icu::UnicodeString source = icu::UnicodeString::fromUTF8(piece(text));
        key.resize(text.size() * 3 + 16);
        const auto fill = [&] {
            return collator->getSortKey(
                source, reinterpret_cast<std::uint8_t*>(key.data()), static_cast<int32_t>(key.size()));
        };
        int32_t needed = fill();
        if (needed > static_cast<int32_t>(key.size())) {
            key.resize(static_cast<std::size_t>(needed));
            needed = fill();
        }
        key.resize(static_cast<std::size_t>(needed)); // ends with a zero byte, which occurs nowhere else in it
    }
    key += text; // the tie
    return key;
}

} // namespace tarn
