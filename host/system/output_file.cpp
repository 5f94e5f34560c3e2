#include "system/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <system_error>

#include "system/descriptor.h"

namespace host {
namespace {

constexpr int kEndingSignals[] = {SIGINT, SIGTERM, SIGHUP};

// The names of the temporary files, empty for none, where a signal handler can read them.
char g_unfinished[4][PATH_MAX];

void RemoveAndEnd(int signal) {
    for (const auto& name : g_unfinished) {
        if (name[0] != '\0') {
            unlink(name);
        }
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

/// Holds back the ending signals while the temporary file and its recorded name differ.
class SignalsHeldBack {
public:
    SignalsHeldBack() {
        sigset_t ending;
        sigemptyset(&ending);
        for (const int signal : kEndingSignals) {
            sigaddset(&ending, signal);
        }
        sigprocmask(SIG_BLOCK, &ending, &m_before);
    }
    SignalsHeldBack(const SignalsHeldBack&) = delete;
    SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;
    ~SignalsHeldBack() { sigprocmask(SIG_SETMASK, &m_before, nullptr); }

private:
    sigset_t m_before{};
};

char* FreeName() {
    return *std::find_if(std::begin(g_unfinished), std::prev(std::end(g_unfinished)),
                         [](const auto& name) { return name[0] == '\0'; });
}

[[noreturn]] void Fail(int error) {
    throw std::runtime_error(std::generic_category().message(error));
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

/// The file behind a name that may be a link.
std::string Resolved(const std::string& path) {
    struct stat status = {};
    if (lstat(path.c_str(), &status) != 0) {
        return path;
    }
    const std::unique_ptr<char, decltype(&std::free)> target(
        realpath(path.c_str(), nullptr), &std::free);
    if (target == nullptr) {
        Fail(errno);
    }
    if (stat(target.get(), &status) != 0) {
        Fail(errno);
    }
    if (S_ISDIR(status.st_mode)) {
        Fail(EISDIR);
    }
    if (!S_ISREG(status.st_mode)) {
        throw std::runtime_error("is not a file");
    }
    return target.get();
}

/// A write-protected file is not replaced, even by those whom the folder's permissions
/// let do it.
void CheckMayBeReplaced(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        return;
    }
    if ((status.st_mode & 0222) == 0) {
        throw std::runtime_error("is write-protected");
    }
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) {
        Fail(errno);
    }
}

/// Gives a file the owner and permissions of the one it replaces, else those of any new
/// file. Set-user-ID and set-group-ID are dropped: the contents are new.
void TakeAfter(const std::string& path, int descriptor) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        const mode_t mask = umask(0);
        umask(mask);
        status.st_mode = 0666 & ~mask;
    } else if (fchown(descriptor, status.st_uid, status.st_gid) != 0 &&
               fchown(descriptor, static_cast<uid_t>(-1), status.st_gid) != 0) {
        // This user may not give the file away, so it is the user's own: nobody more may
        // read it than before.
        status.st_mode &= ~static_cast<mode_t>(S_IRWXG);
    }
    if (fchmod(descriptor, status.st_mode & 0777) != 0) {
        Fail(errno);
    }
}

/// Puts the new name on the disk too; a folder that cannot be read is left alone.
void SyncFolder(const std::string& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

}  // namespace

OutputFile::OutputFile(const std::string& path)
    : m_path(Resolved(path)), m_unfinished(FreeName()) {
    CheckMayBeReplaced(m_path);
    std::string name = FolderOf(m_path);
    name += name.back() == '/' ? ".page-XXXXXX" : "/.page-XXXXXX";
    if (name.size() >= sizeof g_unfinished[0]) {
        Fail(ENAMETOOLONG);
    }
    const SignalsHeldBack held;
    m_descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (m_descriptor < 0) {
        Fail(errno);
    }
    std::memcpy(m_unfinished, name.c_str(), name.size() + 1);
}

OutputFile::~OutputFile() {
    if (m_descriptor >= 0) {
        close(m_descriptor);
    }
    if (m_unfinished[0] != '\0') {
        const SignalsHeldBack held;
        unlink(m_unfinished);
        m_unfinished[0] = '\0';
    }
}

void OutputFile::Write(const std::vector<std::uint8_t>& bytes) const {
    const int error = WriteAll(m_descriptor, bytes.data(), bytes.size());
    if (error != 0) {
        Fail(error);
    }
}

std::size_t OutputFile::Size() const {
    struct stat status = {};
    if (fstat(m_descriptor, &status) != 0) {
        Fail(errno);
    }
    return static_cast<std::size_t>(status.st_size);
}

std::string OutputFile::Remark() const {
    struct stat status = {};
    const bool isShared = stat(m_path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
                          status.st_nlink > 1;
    return isShared
               ? m_path + " has other names (hard links), under which it stays as it was"
               : "";
}

void OutputFile::Commit() {
    TakeAfter(m_path, m_descriptor);
    if (fsync(m_descriptor) != 0) {
        Fail(errno);
    }
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    if (close(descriptor) != 0) {
        Fail(errno);
    }
    {
        const SignalsHeldBack held;
        if (std::rename(m_unfinished, m_path.c_str()) != 0) {
            Fail(errno);
        }
        m_unfinished[0] = '\0';
    }
    SyncFolder(FolderOf(m_path));
}

void RemoveUnfinishedOutputOnSignals() {
    for (const int signal : kEndingSignals) {
        // A signal that is ignored, as under nohup, stays ignored.
        if (std::signal(signal, RemoveAndEnd) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

}  // namespace host
