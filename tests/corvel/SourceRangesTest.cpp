#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/scanning/Unescape.h"
#include "tarnmodel/corvel/scanning/WikiLinkScanner.h"
#include "tests/corvel/CommonMarkExamples.h"
#include "tests/corvel/RandomMarkdown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr std::uint64_t kRangesSeed = 271828;

/// Every range lies in the text, in order, and its slice means what the summary says.
void expectRangesMeanWhatTheSummarySays(const CVKAST& document)
{
    const CVKAST::Document& parse = document.document();
    const CVKTextSummary& summary = document.textSummary();
    ASSERT_EQ(parse.links.size(), summary.links.size());
    for (std::size_t i = 0; i < parse.links.size(); ++i) {
        const corvel::Link& link = parse.links[i];
        ASSERT_LE(link.range.end, parse.text.size());
        const std::string slice(parse.slice(link.destination));
        switch (link.kind) {
        case corvel::LinkKind::EmailAutolink:
            EXPECT_EQ("mailto:" + slice, summary.links[i]);
            break;
        case corvel::LinkKind::Autolink:
            EXPECT_EQ(slice, summary.links[i]);
            break;
        default:
            EXPECT_EQ(corvel::unescaped(slice), summary.links[i]);
            EXPECT_EQ(parse.text[link.range.begin], link.image ? '!' : '[');
        }
        EXPECT_TRUE(i == 0 || parse.links[i - 1].range.begin < link.range.begin);
    }
    ASSERT_EQ(parse.wikiLinks.size(), summary.wikiLinks.size());
    for (std::size_t i = 0; i < parse.wikiLinks.size(); ++i) {
        const std::string_view slice = parse.slice(parse.wikiLinks[i].range);
        EXPECT_TRUE(slice.starts_with("[[") && slice.ends_with("]]")) << slice;
        EXPECT_EQ(corvel::decodedWikiText(parse.slice(parse.wikiLinks[i].title)), summary.wikiLinks[i].decodedTitle());
    }
    for (const corvel::Hashtag& hashtag : parse.hashtags) {
        const std::string_view slice = parse.slice(hashtag.range);
        EXPECT_EQ(slice.substr(1, hashtag.name.length()), parse.slice(hashtag.name));
        EXPECT_EQ(slice[0], '#');
    }
}

} // namespace

TEST(SourceRanges, HoldInEveryCommonMarkExample)
{
    std::size_t links = 0;
    for (const CommonMarkExample& example : commonMarkExamples()) {
        SCOPED_TRACE("example " + std::to_string(example.number));
        const CVKAST document = CVKAST::fromMarkdown(example.markdown);
        expectRangesMeanWhatTheSummarySays(document);
        links += document.document().links.size();
    }
    EXPECT_GT(links, 140U);
}

TEST(SourceRanges, HoldInRandomTexts)
{
    for (const auto pieces : {commonMarkPieces(), notePieces()}) {
        RandomMarkdown random(kRangesSeed, pieces);
        for (std::size_t i = 0; i < fuzzCount(5000) && !HasFailure(); ++i) {
            const std::string text = random.text(30);
            SCOPED_TRACE("seed " + std::to_string(kRangesSeed) + ", text " + std::to_string(i) + ":\n" + text);
            expectRangesMeanWhatTheSummarySays(CVKAST::fromMarkdown(text));
        }
    }
}

TEST(SourceRanges, HoldForDestinationsWithEscapesInEveryPlace)
{
    constexpr std::array<std::string_view, 6> kDestinations{
        "u", "a\\)b&amp;c", "<a b\\>>", "&ouml;%20x", "x(y)z", "<>"};
    constexpr std::array<std::string_view, 7> kFrames{"[a](@)", "> x\n> [a]( @\n> 'title' )", "- ![i](@ \"t\")\n",
        "[r]\n\n[r]: @", "> [r]:\n> @\n> 'two\n> lines'\n\n[r][]", "\xEF\xBB\xBF# [a](@) #\r\n",
        "1. [x [y](@)](z) `[`\n\n\t[a](@)"};
    for (const std::string_view frame : kFrames) {
        for (const std::string_view destination : kDestinations) {
            std::string text(frame);
            for (std::size_t at = text.find('@'); at != std::string::npos; at = text.find('@', at + destination.size()))
                text.replace(at, 1, destination);
            SCOPED_TRACE(text);
            const CVKAST document = CVKAST::fromMarkdown(text);
            EXPECT_FALSE(document.document().links.empty());
            expectRangesMeanWhatTheSummarySays(document);
        }
    }
}

TEST(SourceRanges, SurviveArbitraryBytes)
{
    RandomMarkdown random(kRangesSeed, commonMarkPieces());
    for (std::size_t i = 0; i < fuzzCount(5000) && !HasFailure(); ++i) {
        const std::string text = random.text(6) + random.bytes(40) + random.text(6) + random.bytes(4);
        SCOPED_TRACE("seed " + std::to_string(kRangesSeed) + ", text " + std::to_string(i));
        const CVKAST document = CVKAST::fromMarkdown(text);
        expectRangesMeanWhatTheSummarySays(document);
        EXPECT_EQ(document.markdown(), text);
        document.html();
    }
}

} // namespace tarn
