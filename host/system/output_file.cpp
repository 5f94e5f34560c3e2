#include "system/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <system_error>

#include "system/descriptor.h"

namespace host {
namespace {

constexpr int kEndingSignals[] = {SIGINT, SIGTERM, SIGHUP};

// The name of the temporary file, empty when there is none: where a signal handler can
// read it.
char g_unfinished[PATH_MAX];

void RemoveAndEnd(int signal) {
    if (g_unfinished[0] != '\0') {
        unlink(g_unfinished);
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

/// Holds the ending signals back while the temporary file and its noted name differ.
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

[[noreturn]] void Fail(int error) {
    throw std::runtime_error(std::generic_category().message(error));
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

/// The file behind a name, which may be a link to it.
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

/// The permissions of the file replaced, else those of any new file.
mode_t ModeFor(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0) {
        return status.st_mode & 07777;
    }
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// So that the new name is on the disk too; a folder that cannot be read does without.
void SyncFolder(const std::string& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : m_path(Resolved(path)) {
    std::string name = FolderOf(m_path);
    name += name.back() == '/' ? ".page-XXXXXX" : "/.page-XXXXXX";
    if (name.size() >= sizeof g_unfinished) {
        Fail(ENAMETOOLONG);
    }
    const SignalsHeldBack held;
    m_descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (m_descriptor < 0) {
        Fail(errno);
    }
    std::memcpy(g_unfinished, name.c_str(), name.size() + 1);
}

OutputFile::~OutputFile() {
    if (m_descriptor >= 0) {
        close(m_descriptor);
    }
    if (g_unfinished[0] != '\0') {
        const SignalsHeldBack held;
        unlink(g_unfinished);
        g_unfinished[0] = '\0';
    }
}

void OutputFile::Write(const std::vector<std::uint8_t>& bytes) const {
    const int error = WriteAll(m_descriptor, bytes.data(), bytes.size());
    if (error != 0) {
        Fail(error);
    }
}

void OutputFile::Commit() {
    if (fchmod(m_descriptor, ModeFor(m_path)) != 0 || fsync(m_descriptor) != 0) {
        Fail(errno);
    }
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    if (close(descriptor) != 0) {
        Fail(errno);
    }
    {
        const SignalsHeldBack held;
        if (std::rename(g_unfinished, m_path.c_str()) != 0) {
            Fail(errno);
        }
        g_unfinished[0] = '\0';
    }
    SyncFolder(FolderOf(m_path));
}

void RemoveUnfinishedOutputOnSignals() {
    for (const int signal : kEndingSignals) {
        // One that is ignored, as under nohup, stays ignored.
        if (std::signal(signal, RemoveAndEnd) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

}  // namespace host
