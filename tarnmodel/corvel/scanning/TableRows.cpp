#include "tarnmodel/corvel/scanning/TableRows.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

namespace tarn::corvel {

namespace {

std::string_view withoutBlanksAround(std::string_view text) noexcept
{
    while (!text.empty() && isSpaceOrTab(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpaceOrTab(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The cells of a row, from left to right.
class RowCells {
public:
    explicit RowCells(std::string_view line) noexcept : rest_(withoutBlanksAround(line))
    {
        if (rest_.starts_with('|'))
            rest_.remove_prefix(1);
    }

    bool atEnd() const noexcept { return rest_.empty(); }
    std::string_view take() noexcept
    {
        std::size_t bar = 0;
        while (bar < rest_.size() && rest_[bar] != '|')
            bar += rest_[bar] == '\\' && bar + 1 < rest_.size() ? 2 : 1;
        const std::string_view cell = rest_.substr(0, bar);
        rest_.remove_prefix(bar < rest_.size() ? bar + 1 : rest_.size());
        return cell;
    }

private:
    std::string_view rest_;
};

bool isDelimiterCell(std::string_view cell) noexcept
{
    cell = withoutBlanksAround(cell);
    if (cell.starts_with(':'))
        cell.remove_prefix(1);
    if (cell.ends_with(':'))
        cell.remove_suffix(1);
    return !cell.empty() && cell.find_first_not_of('-') == std::string_view::npos;
}

} // namespace

std::size_t cellsInRow(std::string_view line) noexcept
{
    std::size_t count = 0;
    for (RowCells cells(line); !cells.atEnd(); cells.take())
        ++count;
    return count;
}

bool isDelimiterRow(std::string_view line) noexcept
{
    if (line.find_first_of("|:") == std::string_view::npos)
        return false;
    RowCells cells(line);
    bool any = false;
    for (; !cells.atEnd(); any = true) {
        if (!isDelimiterCell(cells.take()))
            return false;
    }
    return any;
}

} // namespace tarn::corvel
