#pragma once

#include "tests/tarn/TarnCommandTest.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tarn::test {

/// A store, and the folder that its notes are exported to.
class ExportFixture : public TarnCommandTest {
protected:
    std::filesystem::path out() const { return folder() / "out"; }
    /// What the export tells, with these further arguments.
    nlohmann::json exported(std::vector<std::string> more = {}) const;
    /// Of a file of the export; "-" where there is none.
    std::string contents(const std::string& name) const;
    /// The same without the front matter.
    std::string text(const std::string& name) const;
    void write(const std::string& name, const std::string& bytes) const;
    /// The files of the export that are not hidden, by their paths.
    std::vector<std::string> names() const { return namesIn(out()); }
    static std::vector<std::string> namesIn(const std::filesystem::path& folder);
    /// All bytes of a folder but for hidden files.
    static std::map<std::string, std::string> bytesIn(const std::filesystem::path& folder);
    /// When each file and folder was modified.
    std::map<std::string, std::filesystem::file_time_type> dates() const;
    /// Runs on another store.
    TarnResult runOn(const std::filesystem::path& store, std::vector<std::string> command) const;
    nlohmann::json jsonOn(const std::filesystem::path& store, std::vector<std::string> command) const;
    /// A note with two attachments, and the folders of these in the export.
    struct Trip {
        std::string identifier;
        std::string picture;
        std::string document;
    };
    Trip tripWithFiles() const;
    /// The folder of an attachment, from that of its note's file.
    std::string place(const std::string& filename) const;
};

} // namespace tarn::test
