#include "tarnmodel/corvel/blocks/BlockParser.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

#include <algorithm>

// The place in the current line. Tabs stop at every fourth column; a tab may be taken in part.

namespace tarn::corvel {

namespace {

constexpr std::uint32_t kTabStop = 4;

Offset findByte(std::string_view text, char byte, Offset from) noexcept
{
    return static_cast<Offset>(std::min(text.find(byte, from), text.size()));
}

} // namespace

bool BlockParser::takeLine()
{
    if (nextLine_ >= text_.size())
        return false;
    lineBegin_ = nextLine_;
    if (nextLineFeed_ < lineBegin_)
        nextLineFeed_ = findByte(text_, '\n', lineBegin_);
    if (nextReturn_ < lineBegin_)
        nextReturn_ = findByte(text_, '\r', lineBegin_);
    lineEnd_ = std::min(nextLineFeed_, nextReturn_);
    const bool pair = nextReturn_ + 1 == nextLineFeed_ && lineEnd_ == nextReturn_;
    nextLine_ = lineEnd_ + (pair ? 2 : 1);

    ++lineNumber_;
    offset_ = lineBegin_;
    column_ = 0;
    tabIsSplit_ = false;
    return true;
}

void BlockParser::findInk() noexcept
{
    Offset at = offset_;
    std::uint32_t column = column_;
    for (; at < lineEnd_; ++at) {
        if (text_[at] == ' ')
            ++column;
        else if (text_[at] == '\t')
            column += kTabStop - column % kTabStop;
        else
            break;
    }
    ink_ = at;
    inkColumn_ = column;
    indent_ = column - column_;
    blank_ = at == lineEnd_;
}

void BlockParser::advance(Offset bytes) noexcept
{
    offset_ += bytes;
    column_ += bytes;
    tabIsSplit_ = false;
}

void BlockParser::advanceColumns(std::uint32_t columns) noexcept
{
    while (columns > 0 && offset_ < lineEnd_) {
        const std::uint32_t width = text_[offset_] == '\t' ? kTabStop - column_ % kTabStop : 1;
        if (width > columns) {
            column_ += columns;
            tabIsSplit_ = true;
            return;
        }
        column_ += width;
        columns -= width;
        ++offset_;
        tabIsSplit_ = false;
    }
}

void BlockParser::advanceToInk() noexcept
{
    offset_ = ink_;
    column_ = inkColumn_;
    tabIsSplit_ = false;
    indent_ = 0;
}

} // namespace tarn::corvel
