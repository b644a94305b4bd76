#pragma once

#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace tarn {

/// A new folder, with a blank and a letter outside ASCII in its name, which goes with its owner.
class ScratchFolder {
public:
    ScratchFolder() : folder_(std::filesystem::temp_directory_path() / ("tarn datën " + newUUIDString()))
    {
        std::filesystem::create_directories(folder_);
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& folder() const { return folder_; }
    std::filesystem::path write(std::string_view name, std::string_view bytes) const
    {
        std::ofstream(folder_ / name, std::ios::binary | std::ios::trunc) << bytes;
        return folder_ / name;
    }
    /// "-" when there is none.
    std::string read(std::string_view name) const
    {
        std::ifstream stream(folder_ / name, std::ios::binary);
        return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "-";
    }
    /// Of what lies in it, sorted.
    std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

private:
    std::filesystem::path folder_;
};

} // namespace tarn
