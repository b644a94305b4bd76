#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/files/thumbnails/SHA1.h"
#include "tarnmodel/files/thumbnails/ScaledDrawing.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <fmt/format.h>

#include <cstddef>
#include <system_error>

namespace tarn {

namespace {

/// The home folder's path without slashes at its end; empty for the root folder, which would be part of every path.
std::string homePath()
{
    std::string home = Environment::current().homeDirectory().string();
    while (home.ends_with('/'))
        home.pop_back();
    return home;
}

std::string withoutOccurrences(std::string_view text, std::string_view part)
{
    std::string rest;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part)) {
        rest += text.substr(0, at);
        text.remove_prefix(at + part.size());
    }
    return rest += text;
}

std::string pathExtension(const std::filesystem::path& file)
{
    const std::string extension = file.extension().string();
    return extension.empty() ? extension : extension.substr(1);
}

} // namespace

std::string OVThumbFileManager::baseThumbNameImageURL(const std::filesystem::path& imageURL)
{
    std::error_code failure;
    const std::string path = imageURL.empty() ? "" : std::filesystem::absolute(imageURL, failure).string();
    const std::string home = homePath();
    const bool isAtHome = !home.empty() && path.starts_with(home);
    return sha1ForString(isAtHome ? withoutOccurrences(path, home) : path);
}

std::string OVThumbFileManager::sha1ForString(std::string_view string)
{
    return sha1OfBytes(string);
}

std::string OVThumbFileManager::thumbNameForImageURL(
    const std::filesystem::path& imageURL, OVThumbSize thumbSize, const OVThumbOptions& options) const
{
    return fmt::format("{}{}_{}x{}.{}", baseThumbNameImageURL(imageURL), stringFromOptions(options),
        wholePixels(thumbSize.width), wholePixels(thumbSize.height),
        thumbExtensionForImageExtension(pathExtension(imageURL)));
}

OVThumbOptions OVThumbFileManager::defaultThumbOptions()
{
    return {.preserveRatio = true, .contain = false, .cover = false, .antialias = true, .xAlign = 0, .yAlign = 0};
}

// The names of files on disk: not to be changed.
std::string OVThumbFileManager::stringFromOptions(const OVThumbOptions& options)
{
    std::string string;
    if (options.preserveRatio.value_or(false))
        string += "_pr_1";
    if (options.contain.value_or(false))
        string += "_cn";
    if (options.cover.value_or(false))
        string += "_cv";
    if (options.antialias)
        string += *options.antialias ? "_aa_1" : "_aa_0";
    if (options.xAlign)
        string += fmt::format("_x_{:g}", *options.xAlign);
    if (options.yAlign)
        string += fmt::format("_y_{:g}", *options.yAlign);
    return string;
}

std::optional<UTType> OVThumbFileManager::UTIFromExtension(std::string_view extension) const
{
    const std::lock_guard lock(mutex_);
    if (const auto cached = utiCache_.find(extension); cached != utiCache_.end())
        return cached->second;
    const auto type = UTType::typeWithFilenameExtension(extension);
    if (type)
        utiCache_.emplace(extension, *type);
    return type;
}

std::map<std::string, UTType, std::less<>> OVThumbFileManager::utiCache() const
{
    const std::lock_guard lock(mutex_);
    return utiCache_;
}

std::string OVThumbFileManager::thumbExtensionForImageExtension(std::string_view extension) const
{
    const auto type = UTIFromExtension(extension);
    return type && type->conformsToJPEG() ? "jpg" : "png";
}

} // namespace tarn
