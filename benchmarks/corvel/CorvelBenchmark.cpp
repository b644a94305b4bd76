// How fast notes are parsed, beside cmark on the same texts.
//
// The texts: all .md and .markdown files under the folder that TARN_CORPUS names; without it, notes made up here.

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"

#include <benchmark/benchmark.h>
#include <cmark.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t kMadeUpBytes = 8 << 20;

std::string readFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

Texts readTexts(const std::filesystem::path& folder)
{
    Texts texts;
    const auto options = std::filesystem::directory_options::skip_permission_denied;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder, options)) {
        const auto extension = entry.path().extension();
        if (entry.is_regular_file() && (extension == ".md" || extension == ".markdown"))
            texts.push_back(readFile(entry.path()));
    }
    return texts;
}

/// Notes of some kilobytes: headings, prose with emphasis and links, lists of to-dos, code, quotes, tags.
Texts madeUpTexts()
{
    const std::string prose
        = "The quick brown fox jumps over the lazy dog, and *nobody* in the village had seen such a leap "
          "before; the baker said so twice. It is told in [[Old stories|the stories]] of the valley, and "
          "again at [the archive](https://example.org/stories/fox?id=42 \"Fox\"), with `notes` beside.\n";
    const std::string list
        = "- [ ] pears from the market\n- [x] **bread**, still warm\n  - rye\n  - wheat\n1. call Anna\n";
    const std::string code = "```c\nint main(void) {\n    return 0; /* no #tag here */\n}\n```\n";
    const std::string quote = "> What is written here was said by others,\n> long before us.\n";
    Texts texts;
    std::size_t bytes = 0;
    for (std::size_t i = 0; bytes < kMadeUpBytes; ++i) {
        std::string text = "# Note number " + std::to_string(i) + "\n\n";
        for (std::size_t part = 0; part < 4 + i % 9; ++part) {
            text += prose + prose + prose + "\n## Part " + std::to_string(part) + "\n\n" + prose + "\n" + list + "\n";
            if (part % 3 == 0)
                text += code + "\n" + quote + "\n";
        }
        text += "#home/kitchen #note\n";
        bytes += text.size();
        texts.push_back(std::move(text));
    }
    return texts;
}

const Texts& corpus()
{
    static const Texts texts = [] {
        const char* const folder = std::getenv("TARN_CORPUS");
        return folder ? readTexts(folder) : madeUpTexts();
    }();
    return texts;
}

std::int64_t corpusBytes()
{
    std::int64_t bytes = 0;
    for (const std::string& text : corpus())
        bytes += static_cast<std::int64_t>(text.size());
    return bytes;
}

void parse(const std::string& text)
{
    benchmark::DoNotOptimize(tarn::CVKAST::fromMarkdown(std::string_view(text)));
}

void parseWithSummary(const std::string& text)
{
    benchmark::DoNotOptimize(tarn::CVKAST::fromMarkdown(std::string_view(text)).textSummary().tags.size());
}

void parseToHtml(const std::string& text)
{
    benchmark::DoNotOptimize(tarn::CVKAST::fromMarkdown(std::string_view(text)).html());
}

void renameATag(const std::string& text)
{
    benchmark::DoNotOptimize(tarn::CVKHashtag::renameTagName("home", "house", text));
}

void parseByCmark(const std::string& text)
{
    cmark_node_free(cmark_parse_document(text.data(), text.size(), CMARK_OPT_UNSAFE));
}

void parseToHtmlByCmark(const std::string& text)
{
    std::free(cmark_markdown_to_html(text.data(), text.size(), CMARK_OPT_UNSAFE));
}

using Work = void (*)(const std::string&);

void overCorpus(benchmark::State& state, Work work)
{
    for ([[maybe_unused]] auto round : state) {
        for (const std::string& text : corpus())
            work(text);
    }
    state.SetBytesProcessed(state.iterations() * corpusBytes());
    state.counters["texts"] = static_cast<double>(corpus().size());
}

/// Both in turns within one run, so that the ratio holds on a busy machine.
void besideCmark(benchmark::State& state, Work work, Work cmarkWork)
{
    const auto seconds = [](Work one) {
        const std::clock_t begin = std::clock();
        for (const std::string& text : corpus())
            one(text);
        return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    };
    double ours = 0;
    double theirs = 0;
    for ([[maybe_unused]] auto round : state) {
        ours += seconds(work);
        theirs += seconds(cmarkWork);
    }
    const double megabytes = static_cast<double>(state.iterations()) * static_cast<double>(corpusBytes()) / 1e6;
    state.counters["MB/s"] = megabytes / ours;
    state.counters["cmark MB/s"] = megabytes / theirs;
    state.counters["ratio"] = theirs / ours;
}

} // namespace

BENCHMARK_CAPTURE(overCorpus, Parse, parse)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(overCorpus, ParseWithSummary, parseWithSummary)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(overCorpus, ParseToHtml, parseToHtml)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(overCorpus, RenameATag, renameATag)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(besideCmark, ParseWithSummary, parseWithSummary, parseByCmark)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(besideCmark, ParseToHtml, parseToHtml, parseToHtmlByCmark)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
