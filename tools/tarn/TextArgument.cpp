#include "tools/tarn/TextArgument.h"

#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/TextFile.h"

#include <cstdio>
#include <unistd.h>

namespace tarn {

std::string textOfArgument(const std::optional<std::string>& argument)
{
    const bool fromInput = !argument || *argument == "-";
    if (fromInput && ::isatty(STDIN_FILENO) == 1)
        std::fputs("tarn: type the text, then Control-D on a line of its own\n", stderr);
    std::string text = fromInput ? readDescriptor(STDIN_FILENO, "standard input") : *argument;
    const std::size_t invalid = firstInvalidByte(text);
    if (invalid != std::string::npos)
        throw CommandFailure(ExitCode::InputOutput,
            std::string(fromInput ? "standard input" : "the text") + ": not UTF-8 (byte " + std::to_string(invalid + 1)
                + "); nothing was saved, convert it first");
    return text;
}

} // namespace tarn
