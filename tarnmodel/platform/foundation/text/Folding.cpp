#include "tarnmodel/platform/foundation/text/Folding.h"

#include "tarnmodel/platform/foundation/text/ByteSearch.h"
#include "tarnmodel/platform/foundation/text/FoldingInternal.h"
#include "tarnmodel/platform/foundation/text/FoldingPassInternal.h"

#include <array>

namespace tarn {

namespace {

/// To be raised with every change of the rules.
constexpr int kRules = 1;

/// A buffer beyond this size is not kept for the next text.
constexpr std::size_t kLargestKeptBuffer = 1024 * 1024;

/// The folded text, in a buffer that the thread keeps.
class FoldedText {
public:
    explicit FoldedText(std::string_view text) : buffer_(bufferOfThisThread())
    {
        buffer_.clear();
        folding::Pass(text, buffer_).run();
    }
    ~FoldedText()
    {
        if (buffer_.capacity() > kLargestKeptBuffer)
            buffer_.release();
    }
    FoldedText(const FoldedText&) = delete;
    FoldedText& operator=(const FoldedText&) = delete;

    /// Valid until the thread folds again.
    std::string_view view() const noexcept { return buffer_.text(); }

private:
    static folding::Buffer& bufferOfThisThread()
    {
        thread_local folding::Buffer buffer;
        return buffer;
    }

    folding::Buffer& buffer_;
};

bool isAscii(std::string_view text)
{
    for (const char byte : text) {
        if (static_cast<signed char>(byte) < 0)
            return false;
    }
    return true;
}

} // namespace

int foldingVersion() noexcept
{
    std::array<std::uint8_t, U_MAX_VERSION_LENGTH> unicode{};
    u_getUnicodeVersion(unicode.data());
    return kRules * 0x10000 + unicode[0] * 0x100 + unicode[1];
}

std::string fold(std::string_view text)
{
    const FoldedText folded(text);
    return std::string(folded.view());
}

void appendFolded(std::string& result, std::string_view text)
{
    const FoldedText folded(text);
    result += folded.view();
}

std::string foldCase(std::string_view text)
{
    if (isAscii(text))
        return fold(text); // it has no marks
    return folding::foldByICU(text, {.caseInsensitive = true, .diacriticInsensitive = false});
}

std::string foldDiacritics(std::string_view text)
{
    if (isAscii(text))
        return std::string(text);
    return folding::foldByICU(text, {.caseInsensitive = false, .diacriticInsensitive = true});
}

std::string folded(std::string_view text, ComparisonOptions options)
{
    if (options.caseInsensitive)
        return options.diacriticInsensitive ? fold(text) : foldCase(text);
    return options.diacriticInsensitive ? foldDiacritics(text) : std::string(text);
}

bool foldedContains(std::string_view text, std::string_view foldedNeedle)
{
    if (foldedNeedle.empty())
        return false;
    const FoldedText folded(text);
    return containsBytes(folded.view(), foldedNeedle);
}

} // namespace tarn
