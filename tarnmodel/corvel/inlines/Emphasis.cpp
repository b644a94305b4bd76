#include "tarnmodel/corvel/inlines/Emphasis.h"

#include <string_view>

namespace tarn::corvel {

namespace {

constexpr std::string_view kMarks = "*_~=";

std::size_t floorIndex(const DelimiterRun& closer) noexcept
{
    return (kMarks.find(closer.mark) * 3 + closer.length % 3) * 2 + (closer.canOpen ? 1 : 0);
}

bool isDouble(char mark) noexcept
{
    return mark == '~' || mark == '=';
}

bool mayPair(const DelimiterRun& opener, const DelimiterRun& closer) noexcept
{
    if (opener.mark != closer.mark || !opener.canOpen)
        return false;
    if (isDouble(opener.mark) || !(opener.canClose || closer.canOpen))
        return true;
    return (opener.length + closer.length) % 3 != 0 || (opener.length % 3 == 0 && closer.length % 3 == 0);
}

EmphasisKind kindOf(char mark, bool strong) noexcept
{
    if (mark == '~')
        return EmphasisKind::Strikethrough;
    if (mark == '=')
        return EmphasisKind::Highlight;
    return strong ? EmphasisKind::Strong : EmphasisKind::Emphasis;
}

} // namespace

void DelimiterStack::clear() noexcept
{
    runs_.clear();
    pairs_.clear();
    top_ = kNone;
}

RunIndex DelimiterStack::push(char mark, std::uint32_t length, bool canOpen, bool canClose)
{
    const auto index = static_cast<RunIndex>(runs_.size());
    DelimiterRun& added = runs_.emplace_back();
    added.mark = mark;
    added.length = added.remaining = length;
    added.canOpen = canOpen;
    added.canClose = canClose;
    if (!canOpen && !canClose)
        return index;
    added.below = top_;
    if (top_ != kNone)
        runs_[top_].above = index;
    top_ = index;
    return index;
}

RunIndex DelimiterStack::firstAbove(RunIndex bottom) const noexcept
{
    if (top_ == bottom)
        return kNone;
    RunIndex first = top_;
    while (runs_[first].below != bottom)
        first = runs_[first].below;
    return first;
}

RunIndex DelimiterStack::findOpener(RunIndex closer, RunIndex floor) const noexcept
{
    RunIndex opener = runs_[closer].below;
    while (opener != kNone && opener >= floor) {
        if (mayPair(runs_[opener], runs_[closer]))
            return opener;
        opener = runs_[opener].below;
    }
    return kNone;
}

void DelimiterStack::resolve(RunIndex bottom)
{
    RunIndex closer = firstAbove(bottom);
    if (closer == kNone)
        return;
    Floors floors;
    floors.fill(closer);
    while (closer != kNone) {
        const RunIndex above = runs_[closer].above;
        if (!runs_[closer].canClose) {
            closer = above;
            continue;
        }
        RunIndex& floor = floors[floorIndex(runs_[closer])];
        const RunIndex opener = findOpener(closer, floor);
        if (opener == kNone) {
            floor = closer;
            if (!runs_[closer].canOpen)
                remove(closer);
            closer = above;
            continue;
        }
        join(opener, closer);
        if (runs_[opener].remaining == 0)
            remove(opener);
        if (runs_[closer].remaining == 0) {
            remove(closer);
            closer = above;
        }
    }
    while (top_ != bottom)
        remove(top_);
}

void DelimiterStack::join(RunIndex opener, RunIndex closer)
{
    while (runs_[closer].below != opener)
        remove(runs_[closer].below);
    DelimiterRun& opening = runs_[opener];
    DelimiterRun& closing = runs_[closer];
    const bool strong = opening.remaining >= 2 && closing.remaining >= 2;
    opening.remaining -= strong ? 2 : 1;
    closing.remaining -= strong ? 2 : 1;

    const auto index = static_cast<PairIndex>(pairs_.size());
    EmphasisPair& added = pairs_.emplace_back();
    added.kind = kindOf(opening.mark, strong);
    added.nextOpened = opening.firstOpened;
    opening.firstOpened = index;
    if (closing.lastClosed == kNone)
        closing.firstClosed = index;
    else
        pairs_[closing.lastClosed].nextClosed = index;
    closing.lastClosed = index;
}

void DelimiterStack::remove(RunIndex index) noexcept
{
    const DelimiterRun& removed = runs_[index];
    if (removed.below != kNone)
        runs_[removed.below].above = removed.above;
    if (removed.above != kNone)
        runs_[removed.above].below = removed.below;
    else
        top_ = removed.below;
}

} // namespace tarn::corvel
