#pragma once

#include "tarnmodel/files/thumbnails/ThumbStamp.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace tarn {

/// A thumbnail's file while it is made: hidden, in the folder where it will lie, readable by its owner alone. It goes
/// when it was not published. Confined to one thread.
///
/// Whoever deletes it before it is published keeps it from being published.
class ThumbDraft {
public:
    /// An empty draft of a thumbnail of this name; `isThere` tells whether it could be made.
    ThumbDraft(const std::filesystem::path& folder, std::string_view name);
    ~ThumbDraft();
    ThumbDraft(const ThumbDraft&) = delete;
    ThumbDraft& operator=(const ThumbDraft&) = delete;

    /// What its name begins with, given what the name of the thumbnail begins with.
    static std::string nameBeginning(std::string_view thumbNameBeginning);

    bool isThere() const noexcept { return descriptor_ >= 0; }
    /// Where an encoder writes the image, in place.
    const std::filesystem::path& path() const noexcept { return path_; }

    /// Puts the stamp into the image, brings all of it to the disk and gives it its final name, over what is there.
    /// The error of the first step that failed; then nothing has changed at the destination.
    std::error_code publish(const SeenStamp& source, const std::filesystem::path& destination);

private:
    std::error_code writeWithStamp(std::size_t size, const SeenStamp& source) const;

    std::filesystem::path path_;
    int descriptor_ = -1;
};

/// What a published thumbnail says of its picture. None when there is no such file, or no stamp in it.
std::optional<SeenStamp> publishedStamp(const std::filesystem::path& thumb);
/// Notes that the picture was in that state at this later moment; a failure only costs a look at the picture again.
void noteSourceSeen(const std::filesystem::path& thumb, NSDate seen);

} // namespace tarn
