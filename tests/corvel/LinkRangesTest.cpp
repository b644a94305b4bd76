#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/scanning/Unescape.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"
#include "tests/corvel/CommonMarkExamples.h"
#include "tests/corvel/RandomMarkdown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

namespace {

constexpr std::uint64_t kLinkRangesSeed = 161803;

/// Checks what `CVKAST` says of the links of one text.
class LinkRanges {
public:
    explicit LinkRanges(const CVKAST& document)
        : text_(document.markdown()), links_(document.links()), definitions_(document.linkDefinitions())
    {
        for (const CVKLink& link : links_)
            expectSound(link);
        expectNested();
        expectWhatTheSummarySays(document.textSummary());
        for (const CVKLinkDefinition& definition : definitions_)
            expectSound(definition);
        expectInOrder(document.topLevelBlocks(text_.size()));
    }

    std::size_t count() const { return links_.size() + definitions_.size(); }

private:
    std::string slice(CVKRange range) const { return text_.substr(range.location, range.length); }
    static bool holds(CVKRange outer, CVKRange inner)
    {
        return outer.location <= inner.location && inner.end() <= outer.end();
    }

    std::string decoded(const CVKLink& link) const
    {
        const std::string written = slice(link.destination);
        if (link.form == CVKLinkForm::Wiki)
            return corvel::decodedWikiText(written);
        if (link.form == CVKLinkForm::Autolink)
            return link.decodedDestination.starts_with("mailto:") && !written.starts_with("mailto:")
                ? "mailto:" + written
                : written;
        return corvel::unescaped(written);
    }

    void expectSound(const CVKLink& link) const
    {
        ASSERT_LE(link.range.end(), text_.size());
        ASSERT_TRUE(holds(link.range, link.text));
        EXPECT_EQ(decoded(link), link.decodedDestination);
        const bool isReference = link.form == CVKLinkForm::Reference || link.form == CVKLinkForm::ImageReference;
        EXPECT_EQ(isReference, link.definition.has_value());
        EXPECT_EQ(isReference, link.shape != CVKReferenceShape::None);
        if (isReference)
            return expectReference(link);
        ASSERT_TRUE(holds(link.range, link.destination));
        if (link.title != CVKRange()) {
            ASSERT_TRUE(holds(link.range, link.title));
            EXPECT_GT(link.title.location, link.destination.end());
        }
        if (link.form == CVKLinkForm::Wiki)
            expectWikiLink(link);
        else if (link.form == CVKLinkForm::Autolink)
            EXPECT_EQ(slice(link.range), '<' + slice(link.destination) + '>');
        else
            EXPECT_TRUE(slice(link.range).starts_with(opening(link) + slice(link.text) + "]("));
    }

    static std::string opening(const CVKLink& link)
    {
        const bool isPicture = link.form == CVKLinkForm::Image || link.form == CVKLinkForm::ImageReference;
        return isPicture ? "![" : "[";
    }

    void expectReference(const CVKLink& link) const
    {
        ASSERT_LT(*link.definition, definitions_.size());
        EXPECT_EQ(link.destination, definitions_[*link.definition].destination);
        EXPECT_EQ(link.title, CVKRange());
        const std::string written = slice(link.range);
        const std::string first = opening(link) + slice(link.text) + ']';
        if (link.shape == CVKReferenceShape::Shortcut)
            EXPECT_EQ(written, first);
        else if (link.shape == CVKReferenceShape::Collapsed)
            EXPECT_EQ(written, first + "[]");
        else
            EXPECT_TRUE(written.starts_with(first + '[') && written.size() > first.size() + 2) << written;
    }

    void expectWikiLink(const CVKLink& link) const
    {
        const std::string written = slice(link.range);
        EXPECT_TRUE(written.starts_with(link.isEmbed ? "![[" : "[[") && written.ends_with("]]")) << written;
        EXPECT_GE(link.text.location, link.destination.end());
        EXPECT_FALSE(link.destination.length == 0);
        EXPECT_TRUE(link.hasText || link.text.length == 0);
    }

    /// Ranges begin one after the other, and what begins within another one ends within its text.
    void expectNested() const
    {
        std::vector<const CVKLink*> open;
        for (const CVKLink& link : links_) {
            while (!open.empty() && open.back()->range.end() <= link.range.location)
                open.pop_back();
            if (!open.empty()) {
                EXPECT_LT(open.back()->range.location, link.range.location);
                EXPECT_TRUE(holds(open.back()->text, link.range)) << slice(link.range);
                EXPECT_NE(open.back()->form, CVKLinkForm::Wiki);
            }
            open.push_back(&link);
        }
    }

    void expectWhatTheSummarySays(const CVKTextSummary& summary) const
    {
        std::vector<std::string> destinations;
        std::vector<std::string> titles;
        for (const CVKLink& link : links_)
            (link.form == CVKLinkForm::Wiki ? titles : destinations).push_back(link.decodedDestination);
        std::vector<std::string> linkedTitles;
        for (const CVKWikiLink& link : summary.wikiLinks)
            linkedTitles.push_back(link.decodedTitle());
        EXPECT_EQ(destinations, summary.links);
        EXPECT_EQ(titles, linkedTitles);
    }

    void expectSound(const CVKLinkDefinition& definition) const
    {
        ASSERT_LE(definition.range.end(), text_.size());
        EXPECT_TRUE(slice(definition.range).starts_with('[' + slice(definition.label) + "]:"));
        EXPECT_TRUE(definition.range.end() == text_.size() || slice({definition.range.end(), 1}) == "\n"
            || slice({definition.range.end(), 1}) == "\r");
        EXPECT_GT(definition.destination.location, definition.label.end());
        EXPECT_TRUE(holds(definition.range, definition.destination));
        if (definition.title != CVKRange()) {
            EXPECT_GT(definition.title.location, definition.destination.end());
            EXPECT_LT(definition.title.end(), definition.range.end());
        }
        const auto place = static_cast<std::size_t>(&definition - definitions_.data());
        EXPECT_TRUE(place == 0 || definitions_[place - 1].range.end() < definition.range.location);
        EXPECT_EQ(definition.uses,
            static_cast<std::size_t>(std::count_if(
                links_.begin(), links_.end(), [&](const CVKLink& link) { return link.definition == place; })));
    }

    void expectInOrder(const std::vector<CVKBlock>& blocks) const
    {
        std::size_t end = 0;
        for (const CVKBlock& block : blocks) {
            EXPECT_GE(block.range.location, end);
            EXPECT_GT(block.range.length, 0U);
            end = block.range.end();
            EXPECT_TRUE(end == text_.size() || text_[end] == '\n' || text_[end] == '\r');
            EXPECT_EQ(block.level > 0, block.kind == CVKBlock::Kind::Heading);
        }
        ASSERT_LE(end, text_.size());
        const auto isInABlock = [&](CVKRange range) {
            return std::any_of(
                blocks.begin(), blocks.end(), [&](const CVKBlock& block) { return holds(block.range, range); });
        };
        for (const CVKLink& link : links_)
            EXPECT_TRUE(isInABlock(link.range)) << slice(link.range);
        for (const CVKLinkDefinition& definition : definitions_)
            EXPECT_TRUE(isInABlock(definition.range)) << slice(definition.range);
    }

    const std::string text_;
    const std::vector<CVKLink> links_;
    const std::vector<CVKLinkDefinition> definitions_;
};

/// The text with other ends of lines.
std::string withLineEnds(const std::string& text, std::string_view lineEnd)
{
    std::string result;
    for (const char c : text) {
        if (c == '\n')
            result += lineEnd;
        else
            result += c;
    }
    return result;
}

std::string quoted(const std::string& text)
{
    return "> " + withLineEnds(text, "\n> ");
}

} // namespace

TEST(LinkRanges, HoldInEveryCommonMarkExample)
{
    std::size_t count = 0;
    for (const CommonMarkExample& example : commonMarkExamples()) {
        for (const std::string_view lineEnd : {"\n", "\r\n", "\r"}) {
            SCOPED_TRACE("example " + std::to_string(example.number));
            count += LinkRanges(CVKAST::fromMarkdown(withLineEnds(example.markdown, lineEnd))).count();
            LinkRanges(CVKAST::fromMarkdown(withLineEnds(quoted(example.markdown), lineEnd)));
        }
    }
    EXPECT_GT(count, 3 * 200U);
}

TEST(LinkRanges, HoldInRandomTexts)
{
    std::size_t count = 0;
    for (const auto pieces : {commonMarkPieces(), notePieces()}) {
        RandomMarkdown random(kLinkRangesSeed, pieces);
        for (std::size_t i = 0; i < fuzzCount(5000) && !testing::Test::HasFailure(); ++i) {
            const std::string text = random.text(40);
            SCOPED_TRACE("seed " + std::to_string(kLinkRangesSeed) + ", text " + std::to_string(i) + ":\n" + text);
            count += LinkRanges(CVKAST::fromMarkdown(text)).count();
        }
    }
    EXPECT_GT(count, 5000U);
}

TEST(LinkRanges, HoldInArbitraryBytes)
{
    RandomMarkdown random(kLinkRangesSeed, notePieces());
    for (std::size_t i = 0; i < fuzzCount(3000) && !testing::Test::HasFailure(); ++i) {
        const std::string text = random.text(8) + random.bytes(20) + random.text(8) + random.bytes(4);
        SCOPED_TRACE("seed " + std::to_string(kLinkRangesSeed) + ", text " + std::to_string(i));
        LinkRanges{CVKAST::fromMarkdown(text)};
    }
}

} // namespace tarn
