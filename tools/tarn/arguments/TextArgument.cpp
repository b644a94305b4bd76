#include "tools/tarn/arguments/TextArgument.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/files/PrivateTextFile.h"
#include "tools/tarn/files/TextFile.h"

#include <cstdio>
#include <unistd.h>

namespace tarn {

TextArgument::TextArgument(const std::optional<std::string>& argument) : isFromInput_(!argument || *argument == "-")
{
    if (isFromInput_ && ::isatty(STDIN_FILENO) == 1)
        std::fputs("tarn: type the text, then Control-D on a line of its own\n", stderr);
    text_ = isFromInput_ ? readDescriptor(STDIN_FILENO, "standard input") : *argument;
    if (const std::size_t invalid = firstInvalidByte(text_); invalid != std::string::npos)
        saveBy([&] {
            throw CommandFailure(ExitCode::InputOutput,
                std::string(isFromInput_ ? "standard input" : "the text") + ": not UTF-8 (byte "
                    + std::to_string(invalid + 1) + "); nothing was saved, convert it first");
        });
}

void TextArgument::saveBy(const std::function<void()>& work) const
{
    if (!isFromInput_ || text_.empty()) {
        work();
        return;
    }
    const Interruption interruption;
    try {
        work();
    } catch (const std::exception&) {
        throwKept();
    }
}

void TextArgument::throwKept() const
{
    const CommandFailure failure = failureOfCurrentException();
    std::string place;
    try {
        place = "the text is in " + PrivateTextFile("tarn-text-", "text.md", text_, content_).path().string();
    } catch (const CommandFailure& notKept) {
        place = std::string("and the text could not be kept: ") + notKept.what();
    }
    throw CommandFailure(failure.saying(place));
}

} // namespace tarn
