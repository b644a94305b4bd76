#pragma once

#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tarn::test {

namespace fs = std::filesystem;

/// The record of imports goes along with its store: what is restored is known to the next import.
class BackedUpRecord : public TarnCommandTest {
protected:
    fs::path other() const { return folder() / "other store"; }
    static fs::path recordOf(const fs::path& store) { return store / "Application Data" / "database.imports.jsonl"; }
    fs::path backup() const { return folder() / "all.tarnbackup"; }

    TarnResult runIn(const fs::path& store, std::vector<std::string> command) const
    {
        command.insert(command.begin(), {"--store", store.string()});
        return TarnProcess(command).finish();
    }
    nlohmann::json jsonIn(const fs::path& store, std::vector<std::string> command) const
    {
        command.insert(command.begin(), "--json");
        const TarnResult result = runIn(store, command);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        return nlohmann::json::parse(result.output, nullptr, false);
    }
    void backUp() const { output({"backup", "--yes", backup().string()}); }
    nlohmann::json restoreTo(const fs::path& store) const { return jsonIn(store, {"restore-backup", backup()}); }
    /// What an import of the folder comes to: "1 imported, 2 unchanged".
    std::string import(const fs::path& store, const std::string& name = "in") const
    {
        const nlohmann::json document = jsonIn(store, {"import", folder() / name});
        std::string counts;
        for (const char* key : {"imported", "updated", "unchanged", "conflicted", "moved", "gone", "skipped"})
            if (const int count = document.value(key, -1); count != 0)
                counts += (counts.empty() ? "" : ", ") + std::to_string(count) + " " + key;
        return counts;
    }
    int count(const fs::path& store, const std::string& filter = "all") const
    {
        return jsonIn(store, {"list", "--filter", filter}).at("count");
    }
    std::string identifier(const fs::path& store, const std::string& title) const
    {
        return jsonIn(store, {"show", title}).at("uniqueIdentifier");
    }
    static std::string contentsOf(const fs::path& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static void write(const fs::path& path, const std::string& bytes)
    {
        std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    }
    /// A record as an import leaves it that dies before it confirms its last batch.
    static std::string unconfirmed(const std::string& record)
    {
        const std::string last = "{\"confirmed\":true}\n";
        EXPECT_TRUE(record.ends_with(last)) << record;
        return record.substr(0, record.size() - std::min(record.size(), last.size()));
    }
    void makeFiles() const
    {
        file("in/a.md", "# A\n\n[b](b.md)");
        file("in/b.md", "# B\n\n[[Nobody]]");
    }
};

} // namespace tarn::test
