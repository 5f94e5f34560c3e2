#include "system/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <system_error>

#include "system/descriptor.h"
#include "system/errors.h"

namespace host {

void OpenClosedStandardStreams() {
    // A file that is opened gets the lowest free number.
    int opened = STDIN_FILENO;
    while (opened >= STDIN_FILENO && opened <= STDERR_FILENO) {
        opened = open("/dev/null", O_RDWR);
    }
    if (opened > STDERR_FILENO) {
        close(opened);
    }
}

void WriteToStandardOutput(const std::string& text) {
    const int error = WriteAll(STDOUT_FILENO, text.data(), text.size());
    if (error != 0) {
        throw NamedError("standard output", std::generic_category().message(error));
    }
}

}  // namespace host
