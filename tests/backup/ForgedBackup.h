#pragma once

#include "tests/backup/BackupFixture.h"

#include <string>
#include <utility>
#include <vector>

namespace tarn {

/// Archives with members of any name and content.
class ForgedBackup : public BackupFixture {
protected:
    using Members = std::vector<std::pair<std::string, std::string>>;

    static BackupManifest manifestOf(const Members& members);
    /// With this list of contents, be it true or not.
    void writeArchive(const std::string& manifest, const Members& members) const;
    void writeArchive(const Members& members) const;
    /// All that the archive holds, its list of contents first.
    Members membersOfArchive() const;
};

} // namespace tarn
