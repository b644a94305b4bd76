#include "tarnmodel/platform/foundation/time/DatePattern.h"

#include "tarnmodel/platform/foundation/text/Characters.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <fmt/format.h>

#include <algorithm>

namespace tarn {

namespace {

constexpr std::string_view kLetters = "yMd";
constexpr int kDigitsOfFullYear = 4;

bool isASCIILetter(char32_t codePoint)
{
    return (codePoint >= 'a' && codePoint <= 'z') || (codePoint >= 'A' && codePoint <= 'Z');
}

/// Reads the text from left to right.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) { }

    bool atEnd() const noexcept { return rest_.empty(); }
    bool take(char32_t codePoint)
    {
        const DecodedCodePoint next = decodeCodePoint(rest_, 0);
        if (atEnd() || next.codePoint != codePoint)
            return false;
        rest_.remove_prefix(next.length);
        return true;
    }
    /// At most `most` digits; none when there are fewer than `least`.
    std::optional<int> takeNumber(int least, int most, int& digits)
    {
        int number = 0;
        for (digits = 0; digits < most && !atEnd(); ++digits) {
            const DecodedCodePoint next = decodeCodePoint(rest_, 0);
            const auto digit = decimalDigitValue(next.codePoint);
            if (!digit)
                break;
            number = number * 10 + *digit;
            rest_.remove_prefix(next.length);
        }
        return digits >= least ? std::optional(number) : std::nullopt;
    }

private:
    std::string_view rest_;
};

int& numberOfLetter(DateNumbers& numbers, char letter)
{
    return letter == 'y' ? numbers.year : letter == 'M' ? numbers.month : numbers.day;
}

bool takeField(Reader& reader, char letter, int count, DatePattern::Reading reading, DateNumbers& numbers)
{
    const bool loose = reading == DatePattern::Reading::Loose;
    const int most = !loose ? count : letter == 'y' ? kDigitsOfFullYear : 2;
    const int least = !loose ? count : letter == 'y' ? 2 : 1;
    int digits = 0;
    const auto number = reader.takeNumber(least, most, digits);
    if (!number)
        return false;
    numberOfLetter(numbers, letter) = *number;
    if (letter == 'y') {
        numbers.shortYear = digits == 2;
        return digits == 2 || digits == kDigitsOfFullYear;
    }
    return true;
}

} // namespace

std::optional<DatePattern> DatePattern::parse(std::string_view pattern)
{
    DatePattern result;
    bool quoted = false;
    for (std::size_t offset = 0; offset < pattern.size();) {
        const DecodedCodePoint next = decodeCodePoint(pattern, offset);
        offset += next.length;
        const bool isLetter = !quoted && isASCIILetter(next.codePoint);
        if (next.codePoint == '\'') {
            quoted = !quoted;
        } else if (!isLetter) {
            result.pieces_.push_back({.text = next.codePoint});
        } else if (kLetters.find(static_cast<char>(next.codePoint)) == std::string_view::npos) {
            return std::nullopt;
        } else if (!result.pieces_.empty() && result.pieces_.back().letter == static_cast<char>(next.codePoint)) {
            ++result.pieces_.back().count;
        } else {
            result.pieces_.push_back({.letter = static_cast<char>(next.codePoint), .count = 1});
        }
    }
    return result;
}

std::optional<DateNumbers> DatePattern::read(std::string_view text, Reading reading) const
{
    DateNumbers numbers;
    Reader reader(text);
    const bool loose = reading == Reading::Loose;
    const auto isField = [](const Piece& piece) { return piece.letter != 0; };
    const auto afterLastField = std::find_if(pieces_.rbegin(), pieces_.rend(), isField).base();
    for (auto piece = pieces_.begin(); piece != pieces_.end(); ++piece) {
        if (loose && piece >= afterLastField && reader.atEnd())
            break;
        if (isField(*piece)) {
            if (!takeField(reader, piece->letter, piece->count, reading, numbers))
                return std::nullopt;
        } else if (!reader.take(piece->text)) {
            const bool optional = loose && (isWhiteSpace(piece->text) || isControlOrFormat(piece->text));
            if (!optional)
                return std::nullopt;
        }
    }
    return reader.atEnd() ? std::optional(numbers) : std::nullopt;
}

std::string DatePattern::write(const DateNumbers& numbers) const
{
    DateNumbers values = numbers;
    std::string text;
    for (const Piece& piece : pieces_) {
        if (piece.letter == 0) {
            appendCodePoint(text, piece.text);
            continue;
        }
        const int number = numberOfLetter(values, piece.letter);
        const bool isShortYear = piece.letter == 'y' && piece.count == 2;
        text += fmt::format("{:0{}}", isShortYear ? number % 100 : number, piece.count);
    }
    return text;
}

} // namespace tarn
