#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"

#include <unistd.h>

int main(int count, char** values)
{
    using namespace tarn;
    Output output(STDOUT_FILENO);
    CommandLine commandLine(output);
    addCommands(commandLine);
    return static_cast<int>(commandLine.run(std::vector<std::string>(values + (count > 0), values + count)));
}
