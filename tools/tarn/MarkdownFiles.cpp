#include "tools/tarn/MarkdownFiles.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <string_view>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 3> kExtensions{".md", ".markdown", ".txt"};

bool hasNoteExtension(const fs::path& path)
{
    std::string extension = path.extension().string();
    std::ranges::transform(
        extension, extension.begin(), [](unsigned char byte) { return static_cast<char>(std::tolower(byte)); });
    return std::ranges::find(kExtensions, extension) != kExtensions.end();
}

bool isHidden(const fs::path& path)
{
    return path.filename().native().starts_with('.');
}

/// One walk over all paths; remembers what it has seen.
class Walk {
public:
    void visit(const fs::path& path, bool givenByName);
    MarkdownFiles takeResult() { return std::move(result_); }

private:
    void visitFolder(const fs::path& folder);
    void fail(const fs::path& path, const std::error_code& error)
    {
        result_.failures.push_back({path, error.message()});
    }
    /// Whether this is the first visit, by the path that all links lead to.
    bool isNew(const fs::path& path)
    {
        std::error_code error;
        const fs::path target = fs::canonical(path, error);
        return seen_.insert(error ? path.native() : target.native()).second;
    }

    MarkdownFiles result_;
    std::set<std::string> seen_;
};

void Walk::visit(const fs::path& path, bool givenByName)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::directory) {
        if (isNew(path))
            visitFolder(path);
        return;
    }
    if (!givenByName && !hasNoteExtension(path))
        return;
    if (status.type() == fs::file_type::not_found && !error)
        error = std::make_error_code(std::errc::no_such_file_or_directory);
    if (error)
        fail(path, error);
    else if (isNew(path))
        result_.files.push_back(path);
    else
        ++result_.skipped;
}

void Walk::visitFolder(const fs::path& folder)
{
    std::error_code error;
    std::vector<fs::path> entries;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        entries.push_back(entry->path());
    if (error)
        fail(folder, error);
    std::ranges::sort(entries, {}, [](const fs::path& path) { return path.native(); });
    for (const fs::path& entry : entries) {
        if (!isHidden(entry))
            visit(entry, false);
        else if (hasNoteExtension(entry))
            ++result_.skipped;
    }
}

} // namespace

MarkdownFiles markdownFilesAtPaths(const std::vector<std::string>& paths)
{
    Walk walk;
    for (const std::string& path : paths)
        walk.visit(fs::path(path), true);
    return walk.takeResult();
}

} // namespace tarn
