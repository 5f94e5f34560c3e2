#include "system/memory_file.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <stdexcept>
#include <system_error>

#include "system/descriptor.h"

namespace host {

MemoryFile::MemoryFile() : m_descriptor(memfd_create("page", MFD_CLOEXEC)) {
    if (m_descriptor < 0) {
        throw std::runtime_error("no file in memory");
    }
}

MemoryFile::MemoryFile(const std::vector<std::uint8_t>& bytes) : MemoryFile() {
    const int error = WriteAll(m_descriptor, bytes.data(), bytes.size());
    if (error != 0) {
        throw std::runtime_error(std::generic_category().message(error));
    }
    lseek(m_descriptor, 0, SEEK_SET);
}

MemoryFile::~MemoryFile() { close(m_descriptor); }

std::vector<std::uint8_t> MemoryFile::Bytes() const {
    struct stat status = {};
    if (fstat(m_descriptor, &status) != 0) {
        return {};
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(status.st_size));
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = pread(m_descriptor, bytes.data() + done,
                                    bytes.size() - done, static_cast<off_t>(done));
        if (count <= 0) {
            return {};
        }
        done += static_cast<std::size_t>(count);
    }
    return bytes;
}

}  // namespace host
