#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <utility>

namespace tarn {

/// The wait for a store that another program has locked: told on standard error after a second, once, and ended by a
/// signal. Any thread.
///
///     StoreOptions{.whileWaiting = [&wait](std::chrono::milliseconds waited) { return wait.goesOn(waited); }}
class WaitForOthers {
public:
    explicit WaitForOthers(std::filesystem::path database) : database_(std::move(database)) { }

    /// For `StoreOptions::whileWaiting`: whether to wait on.
    bool goesOn(std::chrono::milliseconds waited);

private:
    const std::filesystem::path database_;
    std::atomic<bool> told_ = false;
};

} // namespace tarn
