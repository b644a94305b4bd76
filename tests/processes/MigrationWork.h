#pragma once

#include <span>
#include <string_view>

namespace tarn {

/// migration FOLDER WORK: one of these, with the store in that folder and its temporary files in "Cache" in there.
///
///     make       a store of version 1 with a dozen notes
///     step       brings it to version 2
///     migrate    starts the application, which brings it to the current version; "migrated: Model 2 Model 3"
///     pause N    the same; in the middle of step N it makes the file "paused" and waits until "go on" is there
///     exchange F puts "next.sqlite" in the place of the store, which stays as F
///     extension  opens it as an extension does; "12 notes"
///     widget     as a widget does
void workOnMigration(std::span<const std::string_view> arguments);

} // namespace tarn
