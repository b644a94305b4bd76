#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"

#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <ios>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

bool isNameOfOneFile(const std::string& name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos
        && name.find('\0') == std::string::npos;
}

bool fileHasContents(const fs::path& file, const NSData& contents)
{
    std::error_code failure;
    if (!fs::is_regular_file(file, failure) || fs::file_size(file, failure) != contents.length() || failure)
        return false;
    std::ifstream stream(file, std::ios::binary);
    std::vector<char> piece(std::size_t{1} << 16);
    std::string_view rest = contents.text();
    while (!rest.empty() && stream) {
        stream.read(piece.data(), static_cast<std::streamsize>(std::min(piece.size(), rest.size())));
        const std::string_view read(piece.data(), static_cast<std::size_t>(stream.gcount()));
        if (read.empty() || !rest.starts_with(read))
            return false;
        rest.remove_prefix(read.size());
    }
    return rest.empty();
}

} // namespace

NSFileWrapper NSFileWrapper::withContents(NSData contents)
{
    return NSFileWrapper(std::move(contents));
}

NSFileWrapper NSFileWrapper::withFileWrappers(std::vector<NSFileWrapper> fileWrappers)
{
    return NSFileWrapper(std::move(fileWrappers));
}

NSFileWrapper NSFileWrapper::withURL(fs::path url)
{
    std::string name = url.filename().string();
    NSFileWrapper wrapper(std::move(url));
    wrapper.setFilename(std::move(name));
    return wrapper;
}

bool NSFileWrapper::isDirectory() const
{
    std::error_code ignored;
    if (const auto* url = std::get_if<fs::path>(&content_))
        return fs::is_directory(*url, ignored);
    return std::holds_alternative<std::vector<NSFileWrapper>>(content_);
}

bool NSFileWrapper::hasContentsOfFileAtURL(const fs::path& url) const
{
    if (const auto* own = std::get_if<fs::path>(&content_))
        return NSFileManager::contentsEqualAtURLs(*own, url);
    const auto* contents = std::get_if<NSData>(&content_);
    return contents && fileHasContents(url, *contents);
}

bool NSFileWrapper::writeToURL(const fs::path& url, NSError* error) const
{
    if (const auto* own = std::get_if<fs::path>(&content_))
        return NSFileManager::copyItemAtURL(*own, url, error);
    if (const auto* contents = std::get_if<NSData>(&content_))
        return NSFileManager::createFileAtURL(url, *contents, error);
    const fs::path hidden = url.parent_path() / (std::string(NSFileManager::unfinishedPrefix) + newUUIDString());
    if (writeFolder(std::get<std::vector<NSFileWrapper>>(content_), hidden, error)
        && NSFileManager::moveItemAtURL(hidden, url, error))
        return true;
    NSFileManager::removeItemAtURL(hidden);
    return false;
}

bool NSFileWrapper::writeFolder(
    const std::vector<NSFileWrapper>& fileWrappers, const fs::path& url, NSError* error) const
{
    if (!NSFileManager::createDirectoryAtURL(url, error))
        return false;
    return std::ranges::all_of(fileWrappers, [&](const NSFileWrapper& wrapper) {
        const std::string name = wrapper.filename_.value_or(wrapper.preferredFilename_.value_or(""));
        if (isNameOfOneFile(name))
            return wrapper.writeToURL(url / name, error);
        assignError(error, NSError(NSPOSIXErrorDomain, EINVAL, "\"" + name + "\" cannot be the name of a file"));
        return false;
    });
}

} // namespace tarn
