#pragma once

#include <span>
#include <string_view>

namespace tarn {

/// What people write into a note that is protected: each of them is in its text, in the name of its attachment or in
/// the bytes of that, before or after a work.
std::span<const std::string_view> protectedMarkers();
/// What a worker may do with a note that is protected, each in one save: "edit", "rename", "bytes" and so on.
std::span<const std::string_view> protectedWorks();

/// protection FOLDER WORK: opens the store as an application does and does that work. "make" makes a store with a
/// protected note, "owe" one whose file is to be written anew, "open" only opens it and tells what notes it has.
void workWithProtection(std::span<const std::string_view> arguments);

} // namespace tarn
