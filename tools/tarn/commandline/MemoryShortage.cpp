#include "tools/tarn/commandline/MemoryShortage.h"

#include "tools/tarn/commandline/ExitCode.h"

#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <new>
#include <string_view>

namespace tarn {

namespace {

/// A program that cannot have so much more has ended for want of memory, whatever it ended with.
constexpr std::size_t kWorthAThought = 1'024 * 1'024;

std::terminate_handler previousHandler = nullptr;

bool isMemoryShort() noexcept
{
    // Where a library allows no exception, the one that was thrown is not always to be had.
    void* const piece = std::malloc(kWorthAThought);
    std::free(piece);
    if (!piece)
        return true;
    try {
        if (const auto exception = std::current_exception())
            std::rethrow_exception(exception);
    } catch (const std::bad_alloc&) {
        return true;
    } catch (...) { // something else, for which there is the handler before
    }
    return false;
}

[[noreturn]] void endInWords() noexcept
{
    if (!isMemoryShort() && previousHandler)
        previousHandler();
    tellOfMemoryShortage();
    std::_Exit(static_cast<int>(ExitCode::Failed));
}

} // namespace

void tellOfMemoryShortage() noexcept
{
    constexpr std::string_view kLine = "tarn: out of memory\n";
    // There is nobody else to tell.
    if (::write(STDERR_FILENO, kLine.data(), kLine.size()) < 0)
        return;
}

void endInWordsWhenMemoryIsShort() noexcept
{
    previousHandler = std::set_terminate(endInWords);
}

} // namespace tarn
