#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// A block of a case file: its fields in order, escapes resolved.
struct SearchCase {
    int line = 0;
    std::vector<std::pair<std::string, std::string>> fields;

    std::optional<std::string> value(std::string_view key) const;
    friend std::ostream& operator<<(std::ostream& stream, const SearchCase& searchCase)
    {
        return stream << "line " << searchCase.line << ": " << searchCase.value("query").value_or("");
    }
};

/// The blocks of tests/cases/<file>, which blank lines separate. Values of `rawKeys` are taken as written.
std::vector<SearchCase> readSearchCases(const std::string& file, const std::vector<std::string>& rawKeys = {});

/// What stands between separators, none for an empty text.
std::vector<std::string> listOf(std::string_view text, std::string_view separator = ", ");

/// A block of tests/cases/search.cases that has a query, in the world that the blocks above it set.
struct SearchStringCase {
    const SearchCase* block = nullptr;
    std::string zone;
    std::string locale;
    std::string now;
    bool ocr = false;

    std::string name() const { return block->value("case").value_or(""); }
    std::string query() const { return block->value("query").value_or(""); }
};
inline void PrintTo(const SearchStringCase* one, std::ostream* stream)
{
    *stream << *one->block;
}
/// Read once for the program.
const std::vector<SearchStringCase>& searchStringCases();

/// Abbreviations of predicate texts: "free{apple}" for a whole clause. What they stand for is written in the case file.
class Abbreviations {
public:
    /// Those that the fields "let" of tests/cases/search.cases define.
    static Abbreviations ofSearchStrings();
    /// Reads "name{X}: text" or "name{X, Y}: text".
    void add(std::string_view definition);
    void set(std::string name, std::string text);
    /// The text with every abbreviation written out; arguments go into it as parts of string literals.
    /// `at{2021-03-15T00:00:00+01:00}` is a date as the predicate language writes it.
    std::string expanded(std::string_view text) const;

private:
    struct Definition {
        std::string name;
        std::vector<std::string> parameters;
        std::string text;
    };

    std::string call(std::string_view name, std::string_view arguments) const;

    std::vector<Definition> definitions_;
    std::vector<std::pair<std::string, std::string>> constants_;
};

} // namespace tarn
