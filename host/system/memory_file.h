#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace host {

/// A file that lives only in memory, for libraries that can only write to a file.
class MemoryFile {
public:
    /// Throws std::runtime_error when the system cannot make one.
    MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile();

    /// A name by which this process can open it.
    std::string Name() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

    int Descriptor() const { return m_descriptor; }

    /// What has been written so far; empty when it cannot be read.
    std::vector<std::uint8_t> Bytes() const;

private:
    int m_descriptor;
};

}  // namespace host
