#include "tarnmodel/backup/archive/ArchiveContents.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/ManifestText.h"

#include <algorithm>

namespace tarn {

ArchiveContents::ArchiveContents(
    const std::filesystem::path& file, const BackupLimits& limits, Damage damage, Progress progress)
    : limits_(limits), damage_(damage), progress_(std::move(progress)), file_(file), reader_(file)
{
    total_ = reader_.size();
    checkWhole();
    readManifest();
}

void ArchiveContents::advance(std::uint64_t bytes)
{
    done_ += bytes;
    if (progress_ && !progress_(done_, total_))
        throw BackupFailure(BackupErrorCancelled, "cancelled");
}

void ArchiveContents::checkWhole()
{
    if (damage_ == Damage::Listed)
        return;
    if (!reader_.end())
        throw BackupFailure(BackupErrorDamaged, file_.string() + " is damaged: its end is missing");
    if (reader_.hashOfContents([this](std::size_t bytes) { advance(bytes); }) != reader_.end()->archiveHash)
        throw BackupFailure(
            BackupErrorDamaged, file_.string() + " is damaged: its bytes have changed since it was made");
}

std::string ArchiveContents::textOfManifestMember()
{
    const auto first = reader_.next();
    if (!first || first->name != kManifestName || !first->isFile)
        throw BackupFailure(BackupErrorDamaged, file_.string() + " is damaged: it does not begin with manifest.json");
    std::string text;
    for (auto piece = reader_.read(); !piece.empty(); piece = reader_.read()) {
        if (text.size() + piece.size() > limits_.manifestBytes)
            throw BackupFailure(BackupErrorTooLarge, "the list of contents of the backup is too long");
        text.append(reinterpret_cast<const char*>(piece.data()), piece.size());
    }
    return text;
}

void ArchiveContents::readManifest()
{
    const std::string text = textOfManifestMember();
    BackupHash hash;
    hash.add(std::as_bytes(std::span(text)));
    // With a damaged end there is nothing to compare it with but the members themselves.
    if (reader_.end() && damage_ == Damage::Refused
        && (reader_.end()->manifestSize != text.size() || reader_.end()->manifestHash != hash.digest()))
        throw BackupFailure(BackupErrorDamaged, file_.string() + " is damaged: manifest.json");
    try {
        manifest_ = manifestFromText(text, limits_.members);
    } catch (const BackupFailure& failure) {
        if (failure.error().code() != BackupErrorDamaged)
            throw;
        throw BackupFailure(BackupErrorDamaged, file_.string() + " is damaged: manifest.json cannot be read");
    }
    std::uint64_t bytes = 0;
    for (std::size_t index = 0; index < manifest_.members.size(); ++index) {
        const BackupManifest::Member& member = manifest_.members[index];
        if (!indexes_.emplace(member.name, index).second)
            throw BackupFailure(BackupErrorDamaged, file_.string() + " names a member twice: " + member.name);
        bytes = member.size > limits_.bytes - std::min(limits_.bytes, bytes) ? limits_.bytes + 1 : bytes + member.size;
        if (bytes > limits_.bytes)
            throw BackupFailure(
                BackupErrorTooLarge, "the backup holds more than " + std::to_string(limits_.bytes) + " bytes");
    }
    if (bytes > limits_.ratioFreeBytes && bytes / std::max<std::uint64_t>(reader_.size(), 1) > limits_.ratio)
        throw BackupFailure(BackupErrorTooLarge,
            "the backup holds " + std::to_string(bytes) + " bytes, more than an archive of its size should");
    seen_.assign(manifest_.members.size(), false);
    total_ += bytes;
}

void ArchiveContents::damaged(const std::string& name, const std::string& reason)
{
    if (damage_ == Damage::Refused)
        throw BackupFailure(BackupErrorDamaged, file_.string() + " is damaged: " + name + " " + reason);
    damagedMembers_.push_back({name, reason});
}

std::vector<DamagedMember> ArchiveContents::readMembers(Taker& taker)
{
    try {
        while (const auto member = reader_.next()) {
            const auto found = indexes_.find(member->name);
            const bool isListed = found != indexes_.end() && !seen_[found->second];
            const bool isFolder = member->name.ends_with('/');
            // What is not in the list is not even looked at, so that no number of them costs anything.
            if (!isListed || !(isFolder ? member->isFolder : member->isFile))
                throw BackupFailure(BackupErrorDamaged,
                    file_.string() + " is damaged: " + member->name + " is not in its list of contents");
            seen_[found->second] = true;
            readMember(manifest_.members[found->second], taker);
        }
    } catch (const BackupFailure& failure) {
        if (damage_ == Damage::Refused || failure.error().domain() != TarnBackupErrorDomain
            || failure.error().code() != BackupErrorDamaged)
            throw;
    }
    for (std::size_t index = 0; index < seen_.size(); ++index)
        if (!seen_[index])
            damaged(manifest_.members[index].name, "cannot be reached");
    return std::move(damagedMembers_);
}

void ArchiveContents::readMember(const BackupManifest::Member& expected, Taker& taker)
{
    const bool isTaken = taker.begin(expected);
    BackupHash hash;
    std::uint64_t size = 0;
    const auto readAll = [&] {
        for (auto piece = reader_.read(); !piece.empty(); piece = reader_.read()) {
            size += piece.size();
            if (size > expected.size)
                return;
            hash.add(piece);
            if (isTaken)
                taker.take(piece);
            advance(piece.size());
        }
    };
    try {
        readAll();
    } catch (const BackupFailure& failure) {
        taker.end(false);
        if (failure.error().code() == BackupErrorDamaged && failure.error().domain() == TarnBackupErrorDomain)
            damaged(expected.name, "cannot be decoded");
        throw;
    }
    const bool isWhole = size == expected.size && hash.hexadecimal() == expected.hash;
    taker.end(isWhole);
    if (!isWhole)
        damaged(expected.name, "is not what it was");
}

} // namespace tarn
