#include "system/memory_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <stdexcept>

#include "system/descriptor.h"

namespace host {

MemoryFile::MemoryFile() : m_descriptor(memfd_create("page", MFD_CLOEXEC)) {
    if (m_descriptor < 0) {
        throw std::runtime_error("cannot make a file in memory");
    }
}

MemoryFile::~MemoryFile() { close(m_descriptor); }

std::vector<std::uint8_t> MemoryFile::Bytes() const {
    std::vector<std::uint8_t> bytes;
    return ReadAll(m_descriptor, bytes) ? bytes : std::vector<std::uint8_t>();
}

}  // namespace host
