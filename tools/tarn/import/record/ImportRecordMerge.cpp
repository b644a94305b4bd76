#include "tools/tarn/import/record/ImportRecord.h"

#include <utility>

namespace tarn {

void ImportRecord::takeFrom(const ImportRecord& other, const NotesThere& notesThere)
{
    const auto isNews = [this](std::string_view path, const std::string& note) {
        return path.starts_with('/') && !note.empty() && !sources_.contains(path) && !byNote_.contains(note);
    };
    std::vector<ImportedSource> news;
    std::vector<std::string> notes;
    for (const auto& [path, source] : other.sources_) {
        if (!isNews(path, source->note))
            continue;
        news.push_back(*source);
        notes.push_back(source->note);
    }
    // An identifier that was given to a file counts where nothing else is known of the file.
    std::map<std::string, std::string> reserved;
    for (const auto& [path, note] : other.reserved_) {
        if (!isNews(path, note) || reserved_.contains(path))
            continue;
        reserved.emplace(path, note);
        notes.push_back(note);
    }
    const std::set<std::string> there = notes.empty() ? std::set<std::string>() : notesThere(notes);
    for (ImportedSource& source : news) {
        if (!there.contains(source.note))
            continue;
        take(std::move(source));
        mustBeRewritten_ = true;
    }
    for (const auto& [path, note] : reserved) {
        if (there.contains(note) && !sources_.contains(path))
            mustBeRewritten_ = reserved_.emplace(path, note).second || mustBeRewritten_;
    }
}

} // namespace tarn
