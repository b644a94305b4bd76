#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

struct SourceText;

/// From where an import takes titles.
enum class TitleMode : std::uint8_t {
    Auto,   ///< the first that applies of `TitleRule`
    Text,   ///< the text as it is; front matter where it begins with no heading
    File,   ///< names of files
    Unique, ///< as `Auto`, and where notes share a title the end of their paths behind it
};

/// What gave a note its title.
enum class TitleRule : std::uint8_t {
    Text,         ///< the text as it is
    TopHeading,   ///< a heading of level 1 at its beginning
    FrontMatter,  ///< `title`
    LowerHeading, ///< another heading at its beginning
    FirstLine,    ///< a first line that says the name of the file
    FileName,     ///< that name, or of a README or index that of its folder
};

/// "topHeading" and so on, for the record of imports.
std::string_view nameOfTitleRule(TitleRule rule) noexcept;
std::optional<TitleRule> titleRuleNamed(std::string_view name) noexcept;

/// What titles are made of, of one file.
struct TitleFacts {
    unsigned headingLevel = 0; ///< of the heading that the text begins with; 0 for none
    std::string headingTitle;
    std::string firstLine;     ///< the title that the text gives as it is
    std::string frontMatter;   ///< "" for none
    std::string fileName;      ///< the name for a title
    bool isPlainText = false;  ///< a .txt, which gets no heading
    bool movesHeading = false; ///< the heading goes above the comments before it
};

TitleFacts titleFactsOf(const SourceText& source, const std::filesystem::path& path, TitleMode mode);
/// The file's name without its ending; of a README or index that of its folder.
std::string titleOfFileName(const std::filesystem::path& path);

/// The rule for a file. `known`: the one that gave its note a title before, which stays while it applies.
/// `headingIsCommon`: whether many files of its folder begin with that heading.
TitleRule titleRuleFor(const TitleFacts& facts, TitleMode mode, std::optional<TitleRule> known, bool headingIsCommon);
/// The title that the rule gives.
const std::string& titleByRule(const TitleFacts& facts, TitleRule rule);
/// Whether the text gets a heading, since it does not give this title by itself.
bool ruleAddsHeading(const TitleFacts& facts, TitleRule rule);

/// The text of a note with the title that the rule gives, and `titleSuffix` in parentheses behind that where it is not
/// empty. What was exported is the text as it is.
std::string textOfNote(
    const SourceText& source, const TitleFacts& facts, TitleRule rule, const std::string& titleSuffix);

} // namespace tarn
