#include "tools/tarn/import/reading/MarkdownFiles.h"

#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/import/reading/ExportedFiles.h"
#include "tools/tarn/import/reading/NoteExtensions.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <set>
#include <span>
#include <string_view>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 13> kPictureExtensions{
    ".avif", ".bmp", ".gif", ".heic", ".heif", ".ico", ".jpeg", ".jpg", ".png", ".svg", ".tif", ".tiff", ".webp"};
// In the order of `SkipReason`.
constexpr std::array<std::string_view, 5> kReasons{
    "hidden", "a hidden folder", "seen before", "a picture", "in a folder of attachments"};
constexpr std::string_view kAssets = ".assets";

bool hasExtension(const fs::path& path, std::span<const std::string_view> extensions)
{
    std::string extension = path.extension().string();
    std::ranges::transform(
        extension, extension.begin(), [](unsigned char byte) { return static_cast<char>(std::tolower(byte)); });
    return std::ranges::find(extensions, extension) != extensions.end();
}

bool isHidden(const fs::path& path)
{
    return path.filename().native().starts_with('.');
}

/// Whether it is "X.assets", and "X.md" or its like stands beside it.
bool isFolderOfAttachments(const fs::path& folder)
{
    if (folder.extension() != kAssets)
        return false;
    std::error_code failure;
    return std::ranges::any_of(kNoteExtensions,
        [&](std::string_view extension) { return fs::exists(fs::path(folder).replace_extension(extension), failure); });
}

/// One walk over all paths; remembers what it has seen.
class Walk {
public:
    /// A path that was given.
    void begin(const fs::path& path);
    MarkdownFiles takeResult() { return std::move(result_); }

private:
    /// A path that was given, or found and wanted.
    void visit(const fs::path& path);
    void visitFolder(const fs::path& folder);
    void visitEntry(const fs::path& entry);
    void skip(const fs::path& path, SkipReason reason) { result_.skipped.push_back({path, reason}); }
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

    /// Whether an export put an attachment into it.
    bool isOfExport(const fs::path& folder)
    {
        const fs::path attachments = folder.parent_path();
        if (attachments.filename() != kAttachmentsFolder)
            return false;
        const auto [known, isNew] = exports_.try_emplace(attachments);
        if (isNew)
            known->second = holdsExportedNotes(attachments.parent_path());
        return known->second;
    }

    MarkdownFiles result_;
    std::map<fs::path, bool> exports_;       ///< folders of attachments; whether an export wrote them
    std::shared_ptr<const ImportRoot> root_; ///< of the path that was given
    std::set<std::string> seen_;
    bool isInAssets_ = false;
};

void Walk::begin(const fs::path& path)
{
    std::error_code error;
    const bool isFolder = fs::is_directory(path, error);
    fs::path folder = isFolder ? path : path.parent_path();
    if (!root_ || root_->path != folder || root_->isWalked != isFolder) {
        fs::path target = pathWithoutSymbolicLinks(folder.empty() ? fs::path(".") : folder);
        root_ = std::make_shared<const ImportRoot>(ImportRoot{std::move(folder), std::move(target), isFolder});
    }
    if (fs::exists(path, error))
        result_.roots.insert(root_->target);
    visit(path);
}

void Walk::visit(const fs::path& path)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    const bool isFolder = status.type() == fs::file_type::directory;
    if (status.type() == fs::file_type::not_found && !error)
        error = std::make_error_code(std::errc::no_such_file_or_directory);
    if (error)
        fail(path, error);
    else if (!isNew(path))
        skip(path, SkipReason::SeenBefore);
    else if (isFolder)
        visitFolder(path);
    else if (isInAssets_) {
        skip(path, SkipReason::InAssets);
        result_.others.push_back({path.native(), root_});
    } else
        result_.files.push_back({path.native(), root_});
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
        if (Interruption::requested())
            return;
        visitEntry(entry);
    }
}

void Walk::visitEntry(const fs::path& entry)
{
    std::error_code error;
    const bool isFolder = fs::is_directory(entry, error);
    const bool isNote = lengthOfNoteExtension(entry.native()) > 0;
    if (isHidden(entry)) {
        if (isFolder || isNote)
            skip(entry, isFolder ? SkipReason::HiddenFolder : SkipReason::Hidden);
    } else if (isFolder || isNote) {
        const bool wasInAssets = isInAssets_;
        isInAssets_ = isInAssets_ || (isFolder && (isFolderOfAttachments(entry) || isOfExport(entry)));
        visit(entry);
        isInAssets_ = wasInAssets;
    } else {
        result_.others.push_back({entry.native(), root_});
        if (hasExtension(entry, kPictureExtensions))
            skip(entry, SkipReason::Picture);
    }
}

} // namespace

fs::path pathWithoutSymbolicLinks(const fs::path& path)
{
    std::error_code failure;
    fs::path target = fs::canonical(path, failure);
    return failure ? fs::absolute(path, failure).lexically_normal() : target;
}

std::string_view textOfReason(SkipReason reason) noexcept
{
    return kReasons[static_cast<std::size_t>(reason)];
}

MarkdownFiles markdownFilesAtPaths(const std::vector<std::string>& paths)
{
    Walk walk;
    for (const std::string& path : paths)
        walk.begin(fs::path(path));
    return walk.takeResult();
}

} // namespace tarn
