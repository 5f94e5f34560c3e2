#include "system/descriptor.h"

#include <sys/stat.h>
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

bool ReadAll(int descriptor, std::vector<std::uint8_t>& bytes) {
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) {
        return false;
    }
    bytes.resize(static_cast<std::size_t>(status.st_size));
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = pread(descriptor, bytes.data() + done, bytes.size() - done,
                                    static_cast<off_t>(done));
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return false;
        }
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

}  // namespace host
