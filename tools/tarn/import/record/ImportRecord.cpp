#include "tools/tarn/import/record/ImportRecord.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/files/DurableFile.h"
#include "tools/tarn/import/record/ImportRecordLines.h"

#include <algorithm>
#include <fstream>
#include <utility>

namespace tarn {

namespace fs = std::filesystem;

namespace {

/// What a record that is written anew says of an identifier that was announced and came to nothing. It belongs to no
/// batch: that a later one was saved, or was not, says nothing of it.
bool isReservation(const ImportedSource& announced)
{
    return announced.file.empty() && announced.stamp.empty() && !announced.text && announced.copy.empty();
}

} // namespace

fs::path ImportRecord::pathForDatabase(const fs::path& database)
{
    return fs::path(database).replace_extension(".imports.jsonl");
}

ImportRecord::ImportRecord(const fs::path& database) : ImportRecord(Place{pathForDatabase(database)}) { }

ImportRecord::ImportRecord(Place place) : file_(std::move(place.file))
{
    read();
}

void ImportRecord::read()
{
    std::error_code failure;
    if (!fs::exists(file_, failure))
        return;
    std::ifstream stream(file_, std::ios::binary);
    if (!stream)
        throw CommandFailure(ExitCode::InputOutput, "cannot read " + file_.string());
    for (std::string line; readRecordLine(stream, line); ++lines_) {
        const auto entry = recordEntryOfLine(line);
        if (entry && entry->isOfLaterFormat)
            throw CommandFailure(ExitCode::NeedsMigration, file_.string() + " was written by a later version of tarn");
        // A line that was cut off is that of a batch which was never saved.
        if (!entry || stream.eof()) {
            mustBeRewritten_ = true;
            isDamaged_ = true;
            break;
        }
        read(*entry);
    }
    if (stream.bad())
        throw CommandFailure(ExitCode::InputOutput, "cannot read " + file_.string());
}

void ImportRecord::read(const RecordEntry& entry)
{
    switch (entry.kind) {
    case RecordEntry::Kind::Source:
        take(entry.source);
        break;
    case RecordEntry::Kind::Announced:
        announced_.push_back(entry.source);
        break;
    case RecordEntry::Kind::Moved:
        movedAway_.push_back(entry.source.path);
        break;
    case RecordEntry::Kind::Confirmed:
        adoptAnnounced();
        break;
    case RecordEntry::Kind::Withdrawn:
        dropAnnounced();
        break;
    case RecordEntry::Kind::Format:
        break;
    }
}

void ImportRecord::take(ImportedSource source)
{
    drop(source.path);
    if (const auto reserved = reserved_.find(source.path); reserved != reserved_.end())
        reserved_.erase(reserved);
    auto taken = std::make_unique<ImportedSource>(std::move(source));
    // The key goes with the source that it is part of.
    byNote_.erase(taken->note);
    byNote_.emplace(taken->note, taken.get());
    if (!taken->file.empty())
        byBytes_.emplace(taken->file, taken.get());
    const std::string_view path = taken->path;
    sources_.emplace(path, std::move(taken));
}

void ImportRecord::drop(std::string_view path)
{
    const auto known = sources_.find(path);
    if (known == sources_.end())
        return;
    const ImportedSource& source = *known->second;
    if (const auto note = byNote_.find(source.note); note != byNote_.end() && note->second == &source)
        byNote_.erase(note);
    forgetBytes(source);
    sources_.erase(known);
}

void ImportRecord::forgetBytes(const ImportedSource& source)
{
    const auto [begin, end] = byBytes_.equal_range(source.file);
    const auto known = std::find_if(begin, end, [&source](const auto& entry) { return entry.second == &source; });
    if (known != end)
        byBytes_.erase(known);
}

void ImportRecord::adoptAnnounced()
{
    for (const std::string& path : std::exchange(movedAway_, {}))
        drop(path);
    for (ImportedSource& source : std::exchange(announced_, {})) {
        if (isReservation(source))
            announced_.push_back(std::move(source));
        else
            take(std::move(source));
    }
}

void ImportRecord::dropAnnounced()
{
    std::erase_if(announced_, [](const ImportedSource& source) { return !isReservation(source); });
    movedAway_.clear();
}

void ImportRecord::settle(const Judge& happened)
{
    if (announced_.empty() && movedAway_.empty())
        return;
    mustBeRewritten_ = true;
    // A batch is saved whole or not at all, but its notes may have been changed since.
    std::vector<ImportedSource> saved;
    for (ImportedSource& source : std::exchange(announced_, {})) {
        if (happened(source))
            saved.push_back(std::move(source));
        else if (!sources_.contains(source.path) && !byNote_.contains(source.note))
            reserved_.insert_or_assign(source.path, source.note);
    }
    const auto isSaved = [&saved](const std::string& note) {
        return std::ranges::find(saved, note, &ImportedSource::note) != saved.end();
    };
    for (const std::string& path : std::exchange(movedAway_, {})) {
        const ImportedSource* moved = sourceAtPath(path);
        if (moved && isSaved(moved->note))
            drop(path);
    }
    for (ImportedSource& source : saved)
        take(std::move(source));
}

const ImportedSource* ImportRecord::sourceAtPath(std::string_view path) const
{
    const auto known = sources_.find(path);
    return known == sources_.end() ? nullptr : known->second.get();
}

const ImportedSource* ImportRecord::sourceOfNote(const std::string& identifier) const
{
    const auto known = byNote_.find(identifier);
    return known == byNote_.end() ? nullptr : known->second;
}

std::string ImportRecord::reservedIdentifier(std::string_view path) const
{
    const auto known = reserved_.find(path);
    return known == reserved_.end() ? std::string() : known->second;
}

std::vector<const ImportedSource*> ImportRecord::sourcesOfBytes(const std::string& file) const
{
    std::vector<const ImportedSource*> sources;
    const auto [begin, end] = byBytes_.equal_range(file);
    for (auto known = begin; known != end; ++known)
        sources.push_back(known->second);
    return sources;
}

void ImportRecord::announce(std::vector<ImportedSource> batch, std::vector<std::string> moved)
{
    std::string lines;
    for (const ImportedSource& source : batch)
        lines += lineOfEntry({RecordEntry::Kind::Announced, source});
    for (const std::string& path : moved)
        lines += lineOfEntry({RecordEntry::Kind::Moved, {.path = path}});
    append(lines, batch.size() + moved.size());
    announced_ = std::move(batch);
    movedAway_ = std::move(moved);
}

void ImportRecord::confirm()
{
    append(lineOfEntry({RecordEntry::Kind::Confirmed, {}}), 1);
    adoptAnnounced();
}

void ImportRecord::withdraw()
{
    if (announced_.empty() && movedAway_.empty())
        return;
    append(lineOfEntry({RecordEntry::Kind::Withdrawn, {}}), 1);
    dropAnnounced();
}

bool ImportRecord::forgetTexts(const std::function<bool(const ImportedSource&)>& isProtected,
    const std::function<std::string(const fs::path&)>& stampOf)
{
    bool hasForgotten = false;
    const auto isToForget = [&](const ImportedSource& source) {
        return (!source.file.empty() || source.text || source.copyText) && isProtected(source);
    };
    const auto forget = [&](ImportedSource& source) {
        source.stamp = stampOf(fs::path(source.path));
        source.file.clear();
        source.text.reset();
        source.copyText.reset();
        hasForgotten = true;
    };
    for (const auto& [path, source] : sources_) {
        if (!isToForget(*source))
            continue;
        forgetBytes(*source);
        forget(*source);
    }
    for (ImportedSource& source : announced_) {
        if (isToForget(source))
            forget(source);
    }
    mustBeRewritten_ = mustBeRewritten_ || hasForgotten;
    return hasForgotten;
}

void ImportRecord::moveRoot(const fs::path& old, const fs::path& now)
{
    if (old == now)
        return;
    std::vector<ImportedSource> moved;
    for (const auto& [path, source] : sources_) {
        const fs::path relative = fs::path(path).lexically_relative(old);
        if (!relative.empty() && *relative.begin() != "..")
            moved.push_back(*source);
    }
    for (const ImportedSource& source : moved)
        drop(source.path);
    for (ImportedSource& source : moved) {
        const fs::path relative = fs::path(source.path).lexically_relative(old);
        source.path = relative == "." ? now : now / relative;
        take(std::move(source));
    }
    mustBeRewritten_ = mustBeRewritten_ || !moved.empty();
}

void ImportRecord::append(const std::string& lines, std::size_t count)
{
    if (mustBeRewritten_ || lines_ == 0)
        rewrite();
    mustBeRewritten_ = true; // where it fails, part of a line may stand there
    appendDurably(file_, lines);
    mustBeRewritten_ = false;
    lines_ += count;
}

/// Anew, beside the old one.
void ImportRecord::rewrite()
{
    std::string lines = lineOfEntry({RecordEntry::Kind::Format, {}});
    for (const auto& [path, source] : sources_)
        lines += lineOfEntry({RecordEntry::Kind::Source, *source});
    for (const auto& [path, note] : reserved_)
        lines += lineOfEntry({RecordEntry::Kind::Announced, {.path = path, .note = note}});
    for (const ImportedSource& source : announced_)
        lines += lineOfEntry({RecordEntry::Kind::Announced, source});
    for (const std::string& path : movedAway_)
        lines += lineOfEntry({RecordEntry::Kind::Moved, {.path = path}});
    writeDurably(file_, lines);
    lines_ = neededLines();
    mustBeRewritten_ = false;
}

std::size_t ImportRecord::neededLines() const noexcept
{
    return 1 + sources_.size() + reserved_.size() + announced_.size() + movedAway_.size();
}

void ImportRecord::finish()
{
    if (mustBeRewritten_ || lines_ > 2 * neededLines())
        rewrite();
}

} // namespace tarn
