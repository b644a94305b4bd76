#include "tarnmodel/backup/archive/StoredText.h"
#include "tarnmodel/backup/Base64Internal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <nlohmann/json.hpp>

namespace tarn {

JSON jsonOfStoredText(std::string_view text)
{
    if (isValidUTF8(text))
        return std::string(text);
    return {{"base64", base64String(std::as_bytes(std::span(text)))}};
}

std::string storedTextOfJSON(const JSON& json)
{
    if (!json.is_object())
        return json.get<std::string>();
    const auto bytes = dataFromBase64String(json.at("base64").get_ref<const std::string&>());
    if (!bytes)
        throw JSON::other_error::create(501, "no base64", nullptr);
    return std::string(bytes->text());
}

} // namespace tarn
