#pragma once

#include "tests/tarn/TarnProcess.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::test {

/// A folder with a blank and a letter beyond ASCII in its name, a store in it, and the program run on both.
class TarnCommandTest : public testing::Test {
protected:
    TarnCommandTest();
    ~TarnCommandTest() override;

    std::filesystem::path folder() const { return folder_; }
    std::filesystem::path store() const { return folder_ / "störe"; }
    std::filesystem::path database() const { return store() / "Application Data" / "database.sqlite"; }

    /// Arguments behind "--store".
    std::vector<std::string> arguments(std::vector<std::string> arguments) const;
    TarnResult run(std::vector<std::string> arguments, std::string input = {}) const;
    /// Runs with --json; the document is null when the output is none.
    nlohmann::json json(std::vector<std::string> arguments, std::string input = {}) const;
    /// What must succeed.
    std::string output(std::vector<std::string> arguments, std::string input = {}) const;
    /// Writes a note; its identifier.
    std::string note(std::string text) const;

    std::filesystem::path file(const std::string& name, std::string_view contents) const;
    /// Runs SQL on the database, for damage that no program would do.
    void damage(const std::string& sql) const;
    /// The one value that a query of the database gives, as text.
    std::string stored(const std::string& sql) const;

private:
    std::filesystem::path folder_;
};

/// Keys of an object, in their order.
std::vector<std::string> keysOf(const nlohmann::ordered_json& object);
std::vector<std::string> titlesOf(const nlohmann::json& document);

} // namespace tarn::test
