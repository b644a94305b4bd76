#pragma once

#include "tarnmodel/platform/foundation/values/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Where the value of a migrated property comes from, as a mapping file writes it:
///
///     $source.title                                            what the source record has there
///     $default                                                 what a new record has
///     'text', 12, 1.5, YES, NO, nil                            this value
///     FUNCTION($entityPolicy, 'lineCount', $source.text, 3)    what the policy of the entity mapping answers
///
/// A plain value type.
class MappingExpression {
public:
    /// What it is.
    enum class Kind : std::uint8_t { Default, SourceKey, Constant, PolicyFunction };

    /// What a new record has.
    MappingExpression() = default;
    /// Reads one. Raises `NSInvalidArgumentException` that names what is wrong.
    static MappingExpression parse(std::string_view text);
    /// `$source.key`.
    static MappingExpression sourceKey(std::string_view key);

    /// Which of these it is.
    Kind kind() const noexcept { return kind_; }
    /// The key of the source, or the name of the policy's function; empty for the others.
    const std::string& name() const noexcept { return name_; }
    /// Of a constant.
    const Value& constant() const noexcept { return constant_; }
    /// Of a function: keys of the source and constants.
    const std::vector<MappingExpression>& arguments() const noexcept { return arguments_; }

private:
    friend class MappingExpressionParser;
    Kind kind_ = Kind::Default;
    std::string name_;
    Value constant_;
    std::vector<MappingExpression> arguments_;
};

/// How one property of a destination entity gets its value. A plain value type.
///
/// A relationship's expression is a key of the source: the records that those at the other end became.
struct NSPropertyMapping {
    std::string name;                  ///< of the destination's property
    MappingExpression valueExpression; ///< where its value comes from
};

} // namespace tarn
