#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace host {

/// A file that appears under its name only when it is complete.
///
/// It is written under a temporary name in the same folder, which is removed with the
/// object, and on the signals that end a program (see RemoveUnfinishedOutputOnSignals). A
/// file that already has the name stays until Commit, and for good when anything fails.
/// The new file takes over its owner and permissions, as far as this user may set them. A
/// forked process may do the writing. At most four exist at a time.
class OutputFile {
public:
    /// Creates the temporary file. Throws std::runtime_error with the reason, so that a
    /// folder that cannot be written to is noticed before the work is done. A link is
    /// followed; anything there but a file (a folder, a device) is refused, and so is a
    /// file that nobody may write to.
    explicit OutputFile(const std::string& path);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile();

    /// Appends. Throws std::runtime_error with the reason.
    void Write(const std::vector<std::uint8_t>& bytes) const;

    /// The temporary file, for writing and reading; closed with this object.
    int Descriptor() const { return m_descriptor; }

    /// How many bytes have been written. Throws as Write does.
    std::size_t Size() const;

    /// What the user should know about the file that is replaced, or empty: under its
    /// other names (hard links) it stays as it was.
    std::string Remark() const;

    /// Waits until the data are on the disk and gives the file its name. Throws
    /// std::runtime_error with the reason.
    void Commit();

private:
    std::string m_path;
    int m_descriptor = -1;
    char* m_unfinished;  // the temporary name, empty once it is gone
};

/// Has unfinished output removed when the program is interrupted, terminated or hung up
/// on; the signal then ends it as usual.
void RemoveUnfinishedOutputOnSignals();

}  // namespace host
