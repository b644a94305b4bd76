#pragma once

namespace tarn {

/// Sees to it that descriptors 0 to 2 are taken. A program that was started without one of them would else open its
/// database there, and write its output into it. What is missing reads as empty and cannot be written.
void reserveStandardStreams() noexcept;

} // namespace tarn
