#pragma once

#include "tarnmodel/platform/coredata/description/ModelFile.h"

#include <nlohmann/json.hpp>

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace tarn {

/// A word of a model or mapping file, and what it stands for.
template <typename Meaning> using NamedMeaning = std::pair<std::string_view, Meaning>;

/// One JSON object of a model or mapping file, read key by key; remembers which keys were asked for, so that a misspelt
/// one is found.
class Declaration {
public:
    Declaration(const nlohmann::json& json, std::string place) : json_(json), place_(std::move(place))
    {
        if (!json.is_object())
            fail("must be an object");
    }

    [[noreturn]] void fail(std::string_view what) const { throw ModelError(fmt::format("{}: {}", place_, what)); }

    void setPlace(std::string place) { place_ = std::move(place); }
    const std::string& place() const { return place_; }

    /// Null when the key is not there.
    const nlohmann::json* find(std::string_view key)
    {
        known_.insert(std::string(key));
        auto found = json_.find(std::string(key));
        return found == json_.end() ? nullptr : &*found;
    }

    std::string string(std::string_view key)
    {
        const nlohmann::json* value = find(key);
        if (!value)
            return {};
        if (!value->is_string())
            fail(fmt::format("\"{}\" must be a string", key));
        return value->get<std::string>();
    }

    std::string requiredString(std::string_view key)
    {
        std::string value = string(key);
        if (value.empty())
            fail(fmt::format("\"{}\" is missing", key));
        return value;
    }

    /// A name fit for a class, a column and an accessor: ASCII letters and digits. The underscore belongs to the store.
    std::string requiredName(std::string_view key)
    {
        std::string value = requiredString(key);
        auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
        auto isLetterOrDigit = [&](char c) { return isLetter(c) || (c >= '0' && c <= '9'); };
        if (!isLetter(value.front()) || !std::all_of(value.begin(), value.end(), isLetterOrDigit))
            fail(fmt::format("\"{}\" is no name", value));
        return value;
    }

    bool boolean(std::string_view key, bool otherwise)
    {
        const nlohmann::json* value = find(key);
        if (!value)
            return otherwise;
        if (!value->is_boolean())
            fail(fmt::format("\"{}\" must be true or false", key));
        return value->get<bool>();
    }

    template <typename Meaning>
    Meaning word(std::string_view key, std::span<const NamedMeaning<Meaning>> words, Meaning otherwise)
    {
        std::string value = string(key);
        return value.empty() ? otherwise : meaning(key, value, words);
    }

    template <typename Meaning>
    Meaning meaning(std::string_view key, std::string_view value, std::span<const NamedMeaning<Meaning>> words) const
    {
        auto found = std::find_if(words.begin(), words.end(), [&](const auto& word) { return word.first == value; });
        if (found == words.end())
            fail(fmt::format("unknown {} \"{}\"", key, value));
        return found->second;
    }

    /// Empty when the key is not there.
    nlohmann::json array(std::string_view key)
    {
        const nlohmann::json* value = find(key);
        if (!value)
            return nlohmann::json::array();
        if (!value->is_array())
            fail(fmt::format("\"{}\" must be an array", key));
        return *value;
    }

    /// To be called once every key was asked for.
    void refuseOtherKeys() const
    {
        for (const auto& item : json_.items()) {
            if (!known_.contains(item.key()))
                fail(fmt::format("unknown key \"{}\"", item.key()));
        }
    }

private:
    const nlohmann::json& json_;
    std::string place_;
    std::set<std::string> known_;
};

/// The JSON of a model or mapping file; comments are allowed in it. Throws `ModelError`, also for a key that stands
/// twice in one object.
nlohmann::json parseDeclarations(std::string_view text);

} // namespace tarn
