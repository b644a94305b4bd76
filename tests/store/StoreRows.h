#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// All that stands in a store's file, read with plain SQL: tables with their large values, join tables, metadata and
/// keys. Signatures of texts, which follow from these, are left out.
struct StoreRows {
    /// A value as text that tells its type: "NULL", "12", "0x1.8p+1", "'text", "Xbytes".
    using Cell = std::string;
    using Row = std::map<std::string, Cell>;
    using Table = std::map<std::int64_t, Row>;

    std::map<std::string, Table> tables;
    std::map<std::string, std::set<std::pair<std::int64_t, std::int64_t>>> joins; ///< owner and member
    std::map<std::string, std::string> metadata;
    std::map<std::string, std::int64_t> keys;

    static StoreRows ofFile(const std::filesystem::path& file);
    /// Statements of the schema by type and name, and the settings that a file keeps.
    static std::map<std::string, std::string> schemaOfFile(const std::filesystem::path& file);

    /// Gives links the keys 1, 2, ... in the order of the texts, and takes out what is new on each run: their
    /// identifiers, which must be ones and differ, and the time at which they were made.
    void makeNewLinksComparable();

    static constexpr std::string_view nil = "NULL";
    static bool isText(const Cell& cell) { return cell.starts_with('\''); }
    /// Of a cell that holds a text.
    static std::string textOf(const Cell& cell) { return cell.substr(1); }
    static Cell cellOfText(std::string_view text) { return "'" + std::string(text); }
};

/// What differs between two stores, the first few in words; empty when nothing does.
std::vector<std::string> differences(const StoreRows& expected, const StoreRows& actual);
/// The same of two schemas.
std::vector<std::string> differences(
    const std::map<std::string, std::string>& expected, const std::map<std::string, std::string>& actual);

} // namespace tarn
