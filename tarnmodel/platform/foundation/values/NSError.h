#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace tarn {

/// Domain of errors of the operating system; the code is the system's own number.
inline constexpr std::string_view NSPOSIXErrorDomain = "NSPOSIXErrorDomain";

/// Why an operation failed: a domain, a code within it, and a sentence for people.
class NSError {
public:
    NSError() = default;
    /// An error with these parts, which it copies.
    NSError(std::string_view domain, long code, std::string_view localizedDescription);

    /// Who numbers the code.
    const std::string& domain() const noexcept { return domain_; }
    /// Which error of its domain it is.
    long code() const noexcept { return code_; }
    /// May be empty; callers that print it then say "Unknown Error".
    const std::string& localizedDescription() const noexcept { return localizedDescription_; }

    friend bool operator==(const NSError&, const NSError&) = default;

private:
    std::string domain_;
    long code_ = 0;
    std::string localizedDescription_;
};

/// "domain code: description".
std::ostream& operator<<(std::ostream& stream, const NSError& error);

/// Stores `error` in `destination` unless that is null.
void assignError(NSError* destination, NSError error);

} // namespace tarn
