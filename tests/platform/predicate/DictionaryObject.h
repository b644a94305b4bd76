#pragma once

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace tarn {

/// A record for tests: a dictionary of values, equal to another one with the same identifier.
class DictionaryObject : public NSKeyValueCoding {
public:
    explicit DictionaryObject(std::map<std::string, Value, std::less<>> values, int identifier = 0)
        : values_(std::move(values)), identifier_(identifier)
    { }

    Value storedValueForKey(std::string_view key) const override
    {
        const auto found = values_.find(key);
        if (found == values_.end())
            throw NSException(NSUndefinedKeyException, "no key \"" + std::string(key) + "\"");
        return found->second;
    }
    bool isEqualToObject(const NSKeyValueCoding& other) const override
    {
        const auto* record = dynamic_cast<const DictionaryObject*>(&other);
        return this == &other || (record && identifier_ != 0 && record->identifier_ == identifier_);
    }
    void setValue(const std::string& key, Value value) { values_.insert_or_assign(key, std::move(value)); }

private:
    std::map<std::string, Value, std::less<>> values_;
    int identifier_;
};

} // namespace tarn
