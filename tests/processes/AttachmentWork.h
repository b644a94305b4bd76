#pragma once

#include <span>
#include <string_view>

namespace tarn {

/// What a worker may do with the attachments of the store that "make" makes, each in one save: "import", "rename",
/// "replace", "exchange", "remove".
std::span<const std::string_view> attachmentWorks();

/// attachments FOLDER WORK: opens the store as an application does and does that work; "show" tells what is there.
void workWithAttachments(std::span<const std::string_view> arguments);

} // namespace tarn
