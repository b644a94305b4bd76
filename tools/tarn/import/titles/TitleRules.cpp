#include "tools/tarn/import/titles/TitleRules.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/files/TitledText.h"
#include "tools/tarn/import/reading/SourceText.h"
#include "tools/tarn/import/titles/TitleHeading.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarn {

namespace {

constexpr std::array kRuleNames{
    std::pair<TitleRule, std::string_view>{TitleRule::Text, "text"},
    std::pair<TitleRule, std::string_view>{TitleRule::TopHeading, "topHeading"},
    std::pair<TitleRule, std::string_view>{TitleRule::FrontMatter, "frontMatter"},
    std::pair<TitleRule, std::string_view>{TitleRule::LowerHeading, "lowerHeading"},
    std::pair<TitleRule, std::string_view>{TitleRule::FirstLine, "firstLine"},
    std::pair<TitleRule, std::string_view>{TitleRule::FileName, "fileName"},
};

/// The order in which rules are tried.
constexpr std::array kAutomaticRules{
    TitleRule::TopHeading, TitleRule::FrontMatter, TitleRule::LowerHeading, TitleRule::FirstLine, TitleRule::FileName};

bool isSameTitle(std::string_view one, std::string_view other)
{
    return canonicallyComposed(fold(one)) == canonicallyComposed(fold(other));
}

bool applies(const TitleFacts& facts, TitleRule rule, bool headingIsCommon)
{
    switch (rule) {
    case TitleRule::TopHeading:
        return facts.headingLevel == 1 && !headingIsCommon;
    case TitleRule::FrontMatter:
        return !facts.frontMatter.empty();
    case TitleRule::LowerHeading:
        return facts.headingLevel > 1 && !headingIsCommon;
    case TitleRule::FirstLine:
        return !facts.firstLine.empty() && isSameTitle(facts.firstLine, facts.fileName);
    case TitleRule::FileName:
        return !facts.fileName.empty();
    case TitleRule::Text:
        break;
    }
    return true;
}

/// "" for a title that no heading can say.
std::string titleForHeading(std::string title)
{
    return headingForTitle(title) ? title : std::string();
}

} // namespace

std::string_view nameOfTitleRule(TitleRule rule) noexcept
{
    return std::ranges::find(kRuleNames, rule, &std::pair<TitleRule, std::string_view>::first)->second;
}

std::optional<TitleRule> titleRuleNamed(std::string_view name) noexcept
{
    const auto found = std::ranges::find(kRuleNames, name, &std::pair<TitleRule, std::string_view>::second);
    return found == kRuleNames.end() ? std::nullopt : std::optional(found->first);
}

std::string titleOfFileName(const std::filesystem::path& path)
{
    std::string name = canonicallyComposed(validUTF8(path.stem().native()));
    const std::string folded = fold(name);
    if (folded == "readme" || folded == "index") {
        const std::filesystem::path folder = path.parent_path().filename();
        if (!folder.empty() && folder != "." && folder != "..")
            name = canonicallyComposed(validUTF8(folder.native()));
    }
    for (const char lineEnd : {'\n', '\r'})
        std::ranges::replace(name, lineEnd, ' ');
    return std::string(trimmed(std::string_view(name)));
}

TitleFacts titleFactsOf(const SourceText& source, const std::filesystem::path& path, TitleMode mode)
{
    TitleFacts facts;
    facts.isPlainText = fold(path.extension().native()) == ".txt";
    std::string body = source.body;
    const bool mayMove = mode != TitleMode::Text && !facts.isPlainText;
    if (const auto heading = openingHeadingOf(body); heading && (mayMove || heading->asides == heading->begin)) {
        facts.headingLevel = heading->level;
        facts.headingTitle = heading->title;
        facts.movesHeading = heading->asides != heading->begin;
        if (facts.movesHeading)
            body = textWithHeadingOnTop(std::move(body), *heading);
    }
    facts.firstLine = CVKAST::fromMarkdown(std::move(body)).textSummary().title;
    if (source.title)
        facts.frontMatter = *source.title == facts.firstLine ? facts.firstLine : titleForHeading(*source.title);
    facts.fileName = titleForHeading(titleOfFileName(path));
    return facts;
}

TitleRule titleRuleFor(const TitleFacts& facts, TitleMode mode, std::optional<TitleRule> known, bool headingIsCommon)
{
    // What named a note goes on to name it, also when the folder filled with files of the same heading.
    if (known && *known != TitleRule::Text && applies(facts, *known, false))
        return *known;
    if (facts.isPlainText || mode == TitleMode::Text || known == TitleRule::Text)
        return facts.headingLevel == 0 && !facts.frontMatter.empty() ? TitleRule::FrontMatter : TitleRule::Text;
    if (mode == TitleMode::File)
        return facts.fileName.empty() ? TitleRule::Text : TitleRule::FileName;
    const auto rule = std::ranges::find_if(
        kAutomaticRules, [&](TitleRule candidate) { return applies(facts, candidate, headingIsCommon); });
    return rule == kAutomaticRules.end() ? TitleRule::Text : *rule;
}

const std::string& titleByRule(const TitleFacts& facts, TitleRule rule)
{
    switch (rule) {
    case TitleRule::TopHeading:
    case TitleRule::LowerHeading:
        return facts.headingTitle;
    case TitleRule::FrontMatter:
        return facts.frontMatter;
    case TitleRule::FileName:
        return facts.fileName;
    case TitleRule::FirstLine:
    case TitleRule::Text:
        break;
    }
    return facts.firstLine;
}

bool ruleAddsHeading(const TitleFacts& facts, TitleRule rule)
{
    return titleByRule(facts, rule) != facts.firstLine;
}

std::string textOfNote(
    const SourceText& source, const TitleFacts& facts, TitleRule rule, const std::string& titleSuffix)
{
    std::string body = source.body;
    if (source.exported)
        return textOfSource(source, std::move(body), false);
    if (facts.movesHeading) {
        if (const auto heading = openingHeadingOf(body))
            body = textWithHeadingOnTop(std::move(body), *heading);
    }
    const std::string& title = titleByRule(facts, rule);
    bool lacksTitle = ruleAddsHeading(facts, rule);
    std::string wanted = title;
    if (!titleSuffix.empty()) {
        const std::string suffix = "(" + titleSuffix + ")";
        wanted += " " + suffix;
        const auto heading = lacksTitle ? std::nullopt : openingHeadingOf(body);
        auto longer = heading ? textWithHeadingSuffix(body, *heading, suffix, wanted) : std::nullopt;
        lacksTitle = !longer;
        if (longer)
            body = std::move(*longer);
    }
    const auto heading = lacksTitle ? headingForTitle(wanted) : std::nullopt;
    if (heading)
        body = *heading + source.lineEnd + (body.empty() ? std::string() : source.lineEnd) + body;
    return textOfSource(source, std::move(body), source.title == title);
}

} // namespace tarn
