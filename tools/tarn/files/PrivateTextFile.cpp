#include "tools/tarn/files/PrivateTextFile.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tools/tarn/commandline/CommandFailure.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tarn {

namespace fs = std::filesystem;

namespace {

bool isFileWithText(const fs::directory_entry& entry, std::string_view text)
{
    std::error_code error;
    if (!entry.is_regular_file(error) || entry.is_symlink(error) || entry.file_size(error) != text.size() || error)
        return false;
    std::ifstream stream(entry.path(), std::ios::binary);
    const std::string contents{std::istreambuf_iterator<char>(stream), {}};
    return !stream.bad() && contents == text;
}

fs::path placeFor(PrivateTextFile::Content content)
{
    const Environment& environment = Environment::current();
    const auto inMemory
        = content == PrivateTextFile::Content::OfProtectedNote ? environment.runtimeDirectory() : std::nullopt;
    return inMemory.value_or(environment.temporaryDirectory());
}

} // namespace

PrivateTextFile::PrivateTextFile(
    std::string_view folderPrefix, std::string_view name, std::string_view text, Content content)
{
    std::string pattern = (placeFor(content) / (std::string(folderPrefix) + "XXXXXX")).string();
    if (!::mkdtemp(pattern.data()))
        throw failureForSystemError("cannot make the folder " + pattern, errno);
    path_ = fs::path(pattern) / name;
    std::ofstream stream(path_, std::ios::binary);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    stream.close();
    if (stream)
        return;
    const int number = errno;
    const CommandFailure failure = failureForSystemError("cannot write " + path_.string(), number);
    remove();
    throw CommandFailure(failure);
}

bool PrivateTextFile::holdsNothingBut(std::string_view text) const
{
    std::error_code error;
    for (fs::directory_iterator entry(path_.parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        if (!isFileWithText(*entry, text))
            return false;
    }
    return !error;
}

void PrivateTextFile::remove() noexcept
{
    std::error_code error;
    fs::remove_all(path_.parent_path(), error);
}

} // namespace tarn
