#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace tarn {

/// A name that every file system in use takes, Windows' included: what is not legal there becomes "_", so does a point
/// at the beginning, which would hide the file. At most `longest` bytes, cut between characters so that the extension
/// stays. "Untitled" for nothing.
std::string portableFileName(std::string_view name, std::size_t longest);

/// Gives out names of one folder, each once: a name that is taken, compared composed and without case, gets a counter.
class ExportNames {
public:
    /// Of files: the counter goes before the extension. `longest`: bytes of the longest name.
    std::string fileName(std::string_view name, std::size_t longest = kLongestFileName);
    /// Of notes, to which extensions are added.
    std::string noteName(std::string_view title);

private:
    static constexpr std::size_t kLongestFileName = 255;
    std::string unique(std::string_view stem, std::string_view extension, std::size_t longest);

    std::map<std::string, std::size_t> counters_; ///< by what is compared; the last counter that was given out
};

} // namespace tarn
