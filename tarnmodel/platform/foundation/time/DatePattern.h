#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Year, month and day as numbers of some calendar.
struct DateNumbers {
    int year = 1;
    int month = 1;
    int day = 1;
    bool shortYear = false; ///< the year had two digits
};

/// A date pattern of the letters y, M and d with text between them.
class DatePattern {
public:
    /// How strictly a text is read.
    enum class Reading {
        ExactShape, ///< as many digits as letters; every other character as it stands
        Loose, ///< one or two digits of days and months, two or four of years; blanks, marks and a last text optional
    };

    /// None for a pattern with letters that stand for anything else.
    static std::optional<DatePattern> parse(std::string_view pattern);

    /// The numbers that the whole text shows, whether or not there is such a day.
    std::optional<DateNumbers> read(std::string_view text, Reading reading) const;
    std::string write(const DateNumbers& numbers) const;

private:
    /// Letters of one kind, or one character of text.
    struct Piece {
        char letter = 0; ///< y, M, d; 0 for text
        int count = 0;
        char32_t text = 0;
    };

    std::vector<Piece> pieces_;
};

} // namespace tarn
