#include "tarnmodel/platform/predicate/FoldedPattern.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <vector>

namespace tarn {

namespace {

constexpr std::string_view kMetacharacters = "\\*?+[(){}^$|.";
// They have a meaning in patterns with comments only; whether they were escaped is kept.
constexpr std::string_view kCommentCharacters = "# \t\n\v\f\r";

bool isOneOf(std::string_view characters, char byte)
{
    return characters.find(byte) != std::string_view::npos;
}

bool isASCIILetterOrDigit(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
}

bool isMark(char32_t codePoint)
{
    return codePoint >= 0x300 && (U_GET_GC_MASK(static_cast<UChar32>(codePoint)) & U_GC_M_MASK) != 0;
}

std::string composed(std::string_view text)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* normalizer = icu::Normalizer2::getNFCInstance(status);
    std::string result;
    icu::StringByteSink<std::string> sink(&result);
    if (U_SUCCESS(status))
        normalizer->normalizeUTF8(0, {text.data(), static_cast<int32_t>(text.size())}, sink, nullptr, status);
    return U_SUCCESS(status) ? result : std::string(text);
}

/// Where the last character, with the marks upon it, begins.
std::size_t startOfLastCharacter(std::string_view text)
{
    std::size_t start = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        if (!isMark(decoded.codePoint))
            start = offset;
        offset += decoded.length;
    }
    return start;
}

/// Walks the pattern once; literal characters gather in a run, which is folded as one text.
class PatternFolder {
public:
    PatternFolder(std::string_view pattern, ComparisonOptions options) : pattern_(pattern), options_(options) { }

    std::string fold()
    {
        while (offset_ < pattern_.size())
            step();
        endRun();
        return std::move(result_);
    }

private:
    void step()
    {
        switch (pattern_[offset_]) {
        case '\\':
            readEscape();
            break;
        case '[':
            endRun();
            copyClass();
            break;
        case '(':
            endRun();
            copyGroupStart();
            break;
        case ')':
        case '|':
        case '.':
        case '^':
        case '$':
            endRun();
            copy(1);
            break;
        case '*':
        case '+':
        case '?':
            endQuantifiedRun();
            copy(1);
            break;
        case '{':
            endQuantifiedRun();
            copyThrough("}");
            break;
        default:
            readLiteral(false);
        }
    }

    void readEscape()
    {
        const char next = offset_ + 1 < pattern_.size() ? pattern_[offset_ + 1] : '\0';
        if (next == 'Q') {
            readQuotation();
        } else if (isASCIILetterOrDigit(next) || offset_ + 1 == pattern_.size()) {
            endRun();
            copyEscape(next);
        } else {
            ++offset_;
            readLiteral(true);
        }
    }

    void readQuotation()
    {
        offset_ += 2;
        const std::size_t end = std::min(pattern_.find("\\E", offset_), pattern_.size());
        while (offset_ < end)
            readLiteral(true);
        offset_ = std::min(end + 2, pattern_.size());
    }

    void readLiteral(bool escaped)
    {
        const std::size_t length = decodeCodePoint(pattern_, offset_).length;
        if (isOneOf(kCommentCharacters, pattern_[offset_]))
            escapedCommentCharacters_.push_back(escaped);
        run_ += pattern_.substr(offset_, length);
        offset_ += length;
    }

    // `\d`, `\p{L}`, `\x{e9}`, `\u00e9`, `\k<name>`: with what belongs to it.
    void copyEscape(char letter)
    {
        copy(2);
        const char next = offset_ < pattern_.size() ? pattern_[offset_] : '\0';
        if (isOneOf("pPNx", letter) && next == '{')
            copyThrough("}");
        else if (letter == 'k' && next == '<')
            copyThrough(">");
        else if (isOneOf("uUx", letter))
            copyHexDigits(letter == 'u' ? 4 : letter == 'U' ? 8 : 2);
        else if (letter == 'c' && static_cast<unsigned char>(next) < 0x80)
            copy(1);
    }

    void copyHexDigits(std::size_t most)
    {
        const std::size_t end
            = std::min(pattern_.find_first_not_of("0123456789abcdefABCDEF", offset_), pattern_.size());
        copy(std::min(end - offset_, most));
    }

    void copyClass()
    {
        int depth = 0;
        do {
            const char byte = pattern_[offset_];
            depth += byte == '[' ? 1 : byte == ']' ? -1 : 0;
            copy(byte == '\\' ? 2 : 1);
        } while (depth > 0 && offset_ < pattern_.size());
    }

    void copyGroupStart()
    {
        copy(1);
        if (offset_ == pattern_.size() || pattern_[offset_] != '?')
            return;
        copy(1);
        const bool isComment = offset_ < pattern_.size() && pattern_[offset_] == '#';
        copyThrough(isComment ? ")" : ":)=!>");
    }

    void copy(std::size_t length)
    {
        result_ += pattern_.substr(offset_, length);
        offset_ = std::min(offset_ + length, pattern_.size());
    }

    void copyThrough(std::string_view ends)
    {
        const std::size_t end = pattern_.find_first_of(ends, offset_);
        copy(end == std::string_view::npos ? pattern_.size() - offset_ : end + 1 - offset_);
    }

    void endRun()
    {
        appendLiteral(folded(run_, options_));
        run_.clear();
        escapedCommentCharacters_.clear();
        commentCharactersWritten_ = 0;
    }

    // A quantifier follows, which counts the last character only, however many it folds to.
    void endQuantifiedRun()
    {
        if (run_.empty())
            return;
        const std::size_t start = startOfLastCharacter(run_);
        appendLiteral(folded(std::string_view(run_).substr(0, start), options_));
        const std::string last = folded(std::string_view(run_).substr(start), options_);
        const bool isOneCodePoint = !last.empty() && decodeCodePoint(last, 0).length == last.size();
        if (!isOneCodePoint)
            result_ += "(?:";
        appendLiteral(last);
        if (!isOneCodePoint)
            result_ += ')';
        run_.clear();
        endRun();
    }

    void appendLiteral(std::string_view text)
    {
        for (const char byte : text) {
            const bool wasEscaped = isOneOf(kCommentCharacters, byte)
                && commentCharactersWritten_ < escapedCommentCharacters_.size()
                && escapedCommentCharacters_[commentCharactersWritten_++];
            if (wasEscaped || isOneOf(kMetacharacters, byte))
                result_ += '\\';
            result_ += byte;
        }
    }

    std::string_view pattern_;
    ComparisonOptions options_;
    std::size_t offset_ = 0;
    std::string result_;
    std::string run_;
    std::vector<bool> escapedCommentCharacters_; // for each of `run_`, in order
    std::size_t commentCharactersWritten_ = 0;
};

} // namespace

std::string foldedPattern(std::string_view pattern, ComparisonOptions options)
{
    if (options == ComparisonOptions())
        return std::string(pattern);
    const std::string text = composed(pattern);
    return PatternFolder(text, options).fold();
}

} // namespace tarn
