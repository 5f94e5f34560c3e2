#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace host {

/// A file that only lives in memory, for what can only be written to a file.
class MemoryFile {
public:
    /// Throws std::runtime_error when the system has none to give.
    MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile();

    /// A name to open it by, in this process.
    std::string Name() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

    int Descriptor() const { return m_descriptor; }

    /// What was written so far; none when it cannot be read.
    std::vector<std::uint8_t> Bytes() const;

private:
    int m_descriptor;
};

}  // namespace host
