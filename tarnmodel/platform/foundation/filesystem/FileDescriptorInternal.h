#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>
#include <string_view>

#include <unistd.h>

namespace tarn {

/// An open file of the operating system, closed at the end of the scope.
class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor = -1) noexcept : descriptor_(descriptor) { }
    ~FileDescriptor() { reset(); }
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(other.release()) { }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        reset(other.release());
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int get() const noexcept { return descriptor_; }
    explicit operator bool() const noexcept { return descriptor_ >= 0; }
    int release() noexcept
    {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return descriptor;
    }
    void reset(int descriptor = -1) noexcept
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
        descriptor_ = descriptor;
    }

private:
    int descriptor_;
};

/// "“name” cannot be copied: No space left on device", of the number that the system gave; `action` is "copied".
NSError errorOfSystem(int number, const std::filesystem::path& file, std::string_view action);
/// The same, assigned; false.
bool failWithSystemError(NSError* error, int number, const std::filesystem::path& file, std::string_view action);

} // namespace tarn
