#include "tools/tarn/commandline/StandardStreams.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tarn {

void reserveStandardStreams() noexcept
{
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        // The lowest free number is the one that is missing.
        if (::fcntl(descriptor, F_GETFD) < 0 && errno == EBADF && ::open("/dev/null", O_RDONLY) < 0)
            return;
    }
}

} // namespace tarn
