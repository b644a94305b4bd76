#include "tools/tarn/commandline/Confirmation.h"

#include "tools/tarn/commandline/CommandFailure.h"

#include <array>
#include <cstdio>
#include <unistd.h>

namespace tarn {

bool confirmedOnTerminal(const std::string& question, const std::string& refusal)
{
    if (::isatty(STDIN_FILENO) != 1)
        throw CommandFailure(ExitCode::Usage, refusal + ", and there is no terminal to ask on; use --yes");
    std::fprintf(stderr, "%s [y/N] ", question.c_str());
    std::fflush(stderr);
    std::array<char, 16> answer{};
    if (!std::fgets(answer.data(), static_cast<int>(answer.size()), stdin))
        return false;
    return answer[0] == 'y' || answer[0] == 'Y';
}

} // namespace tarn
