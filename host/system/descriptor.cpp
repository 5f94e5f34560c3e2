#include "system/descriptor.h"

#include <unistd.h>

#include <cerrno>

namespace host {

int WriteAll(int descriptor, const void* bytes, std::size_t count) {
    const auto* const first = static_cast<const char*>(bytes);
    std::size_t done = 0;
    while (done < count) {
        const ssize_t written = write(descriptor, first + done, count - done);
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    return 0;
}

}  // namespace host
