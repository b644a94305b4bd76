#include "tarnmodel/platform/coredata/description/Declaration.h"

#include <functional>
#include <vector>

namespace tarn {

using Json = nlohmann::json;

namespace {

/// The parser would silently keep the last of two equal keys.
class DuplicateKeys {
public:
    bool operator()(int, Json::parse_event_t event, Json& parsed)
    {
        if (event == Json::parse_event_t::object_start)
            open_.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            open_.pop_back();
        else if (event == Json::parse_event_t::key && !open_.back().insert(parsed.get<std::string>()).second)
            throw ModelError(fmt::format("key \"{}\" stands twice in one object", parsed.get<std::string>()));
        return true;
    }

private:
    std::vector<std::set<std::string>> open_;
};

} // namespace

Json parseDeclarations(std::string_view text)
{
    constexpr bool kExceptions = true;
    constexpr bool kIgnoreComments = true;
    try {
        // The callback is copied by the parser, hence the reference.
        DuplicateKeys duplicates;
        return Json::parse(text, std::ref(duplicates), kExceptions, kIgnoreComments);
    } catch (const Json::exception& error) {
        throw ModelError(fmt::format("not JSON: {}", error.what()));
    }
}

} // namespace tarn
