#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace host {

/// A file that appears under its name only when it is complete.
///
/// It is written under a temporary name in the same folder, which goes when the object
/// does, and on the signals that end a program (see RemoveUnfinishedOutputOnSignals).
/// What stood under the name before stays until Commit, and stays for good when anything
/// fails. Its owner and its permissions become those of the new file, as far as this user
/// may give them. A forked process may do the writing. At most four at a time.
class OutputFile {
public:
    /// Begins the temporary file. Throws std::runtime_error with the reason, so that a
    /// folder that cannot be written to is found before the work. A link is followed;
    /// what is neither a file nor yet there (a folder, a device) is refused, and so is a
    /// file that nobody may write to.
    explicit OutputFile(const std::string& path);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile();

    /// Appends. Throws std::runtime_error with the reason.
    void Write(const std::vector<std::uint8_t>& bytes) const;

    /// Of the temporary file, for writing and reading; closed with this object.
    int Descriptor() const { return m_descriptor; }

    /// How many bytes were written so far. Throws likewise.
    std::size_t Size() const;

    /// What a person should know of the file that is replaced; empty for nothing: one
    /// with other names (hard links) goes on under those as it was.
    std::string Remark() const;

    /// Sees what was written onto the disk and gives it its name. Throws
    /// std::runtime_error with the reason.
    void Commit();

private:
    std::string m_path;
    int m_descriptor = -1;
    char* m_unfinished;  // the temporary name, empty once there is none
};

/// Has the unfinished output removed when the program is interrupted, terminated or hung
/// up on; it then ends as it would have.
void RemoveUnfinishedOutputOnSignals();

}  // namespace host
