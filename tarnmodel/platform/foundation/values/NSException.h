#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace tarn {

/// A mistake of the caller or a state that forbids the call: a name to test for and a reason for people.
class NSException : public std::exception {
public:
    /// An exception with these parts, which it copies.
    NSException(std::string_view name, std::string_view reason);

    /// Which mistake it is: one of the names below, or one of a room above.
    const std::string& name() const noexcept { return name_; }
    /// What happened, for people.
    const std::string& reason() const noexcept { return reason_; }
    /// "name: reason".
    const char* what() const noexcept override { return what_.c_str(); }

private:
    std::string name_;
    std::string reason_;
    std::string what_;
};

/// Names that the platform layer raises.
inline constexpr std::string_view NSInvalidArgumentException = "NSInvalidArgumentException";
inline constexpr std::string_view NSInternalInconsistencyException = "NSInternalInconsistencyException";
inline constexpr std::string_view NSUndefinedKeyException = "NSUnknownKeyException";
inline constexpr std::string_view NSRangeException = "NSRangeException";

} // namespace tarn
