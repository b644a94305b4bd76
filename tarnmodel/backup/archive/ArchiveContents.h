#pragma once

#include "tarnmodel/backup/BackupLimits.h"
#include "tarnmodel/backup/BackupManifest.h"
#include "tarnmodel/backup/archive/ArchiveReader.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarn {

/// A member that cannot be had whole.
struct DamagedMember {
    std::string name;
    std::string reason;
};

/// An archive whose members are checked against its list of contents while they are read. What fails throws a
/// `BackupFailure`.
class ArchiveContents {
public:
    enum class Damage : std::uint8_t {
        Refused, ///< anything amiss ends the reading
        Listed,  ///< only a list of contents that cannot be read does
    };
    /// Called with so many bytes read and how many there are to read in all; false gives up.
    using Progress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

    /// Checks the hash of the whole and reads the list of contents, which comes first.
    ArchiveContents(const std::filesystem::path& file, const BackupLimits& limits, Damage damage, Progress progress);

    const BackupManifest& manifest() const noexcept { return manifest_; }

    /// What takes the bytes of a member.
    class Taker {
    public:
        virtual ~Taker() = default;
        /// The member begins. False: its bytes are only checked.
        virtual bool begin(const BackupManifest::Member& member) = 0;
        virtual void take(std::span<const std::byte> bytes) = 0;
        /// The member ends, as it is in the list or not.
        virtual void end(bool isWhole) = 0;
    };
    /// Reads all members; those that are not whole are listed or refused.
    std::vector<DamagedMember> readMembers(Taker& taker);

private:
    void checkWhole();
    void readManifest();
    std::string textOfManifestMember();
    void readMember(const BackupManifest::Member& expected, Taker& taker);
    void advance(std::uint64_t bytes);
    void damaged(const std::string& name, const std::string& reason);

    BackupLimits limits_;
    Damage damage_;
    Progress progress_;
    std::filesystem::path file_;
    ArchiveReader reader_;
    BackupManifest manifest_;
    std::unordered_map<std::string, std::size_t> indexes_; ///< of the members by name
    std::vector<bool> seen_;
    std::vector<DamagedMember> damagedMembers_;
    std::uint64_t done_ = 0;
    std::uint64_t total_ = 0;
};

} // namespace tarn
