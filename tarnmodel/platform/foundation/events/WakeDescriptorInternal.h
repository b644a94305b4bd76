#pragma once

namespace tarn {

/// A file descriptor that can be made readable and unreadable; closed in the end.
class WakeDescriptor {
public:
    WakeDescriptor() = default;
    ~WakeDescriptor();
    WakeDescriptor(const WakeDescriptor&) = delete;
    WakeDescriptor& operator=(const WakeDescriptor&) = delete;

    /// Makes it when it is not there yet; -1 where the system gives none.
    int open();
    // Both do nothing before `open`.
    void makeReadable() const noexcept;
    void makeUnreadable() const noexcept;

private:
    int descriptor_ = -1;
};

} // namespace tarn
