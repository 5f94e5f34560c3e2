#include "page/output/pdf_file.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

#include "system/memory_file.h"

namespace host {
namespace {

constexpr const char* kGhostscript[] = {"gs",
                                        "-q",
                                        "-dSAFER",
                                        "-dBATCH",
                                        "-dNOPAUSE",
                                        "-sstdout=%stderr",
                                        "-sDEVICE=pdfwrite",
                                        "-dCompatibilityLevel=1.5",
                                        "-dEmbedAllFonts=true",
                                        "-dSubsetFonts=true",
                                        "-dAutoRotatePages=/None",
                                        "-dAutoFilterColorImages=false",
                                        "-dAutoFilterGrayImages=false",
                                        "-dColorImageFilter=/FlateEncode",
                                        "-dGrayImageFilter=/FlateEncode",
                                        "-dDownsampleColorImages=false",
                                        "-dDownsampleGrayImages=false",
                                        "-dDownsampleMonoImages=false",
                                        "-sOutputFile=-",
                                        "-",
                                        nullptr};

[[noreturn]] void NotInstalled() {
    throw std::runtime_error(
        "PDF files are made by Ghostscript, which is not installed (the program gs)");
}

void WriteTo(const MemoryFile& file, const std::vector<std::uint8_t>& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            write(file.Descriptor(), bytes.data() + done, bytes.size() - done);
        if (count < 0 && errno != EINTR) {
            throw std::runtime_error(std::generic_category().message(errno));
        }
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    lseek(file.Descriptor(), 0, SEEK_SET);
}

/// What it said first, for a line of ours.
std::string FirstLineOf(const MemoryFile& file) {
    const std::vector<std::uint8_t> said = file.Bytes();
    const std::string text(said.begin(), said.end());
    return text.substr(0, text.find('\n'));
}

/// The files as a program's input, output and errors.
class Redirections {
public:
    Redirections(const MemoryFile& in, const MemoryFile& out, const MemoryFile& err) {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_adddup2(&m_actions, in.Descriptor(), STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&m_actions, out.Descriptor(), STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&m_actions, err.Descriptor(), STDERR_FILENO);
    }
    Redirections(const Redirections&) = delete;
    Redirections& operator=(const Redirections&) = delete;
    ~Redirections() { posix_spawn_file_actions_destroy(&m_actions); }

    const posix_spawn_file_actions_t* Actions() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

}  // namespace

void CheckGhostscript() {
    const char* const path = std::getenv("PATH");
    std::string folders = path == nullptr ? "" : path;
    folders += ':';
    for (std::size_t from = 0; from < folders.size();) {
        const std::size_t to = folders.find(':', from);
        if (access((folders.substr(from, to - from) + "/gs").c_str(), X_OK) == 0) {
            return;
        }
        from = to + 1;
    }
    NotInstalled();
}

std::vector<std::uint8_t> PdfFromPostScript(const std::vector<std::uint8_t>& postScript) {
    const MemoryFile in;
    const MemoryFile out;
    const MemoryFile err;
    WriteTo(in, postScript);
    pid_t process = 0;
    const Redirections redirections(in, out, err);
    // posix_spawnp takes what it does not change as if it changed it.
    const int error = posix_spawnp(&process, kGhostscript[0], redirections.Actions(),
                                   nullptr, const_cast<char**>(kGhostscript), environ);
    if (error == ENOENT) {
        NotInstalled();
    }
    if (error != 0) {
        throw std::runtime_error("Ghostscript: " +
                                 std::generic_category().message(error));
    }
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    std::vector<std::uint8_t> pdf = out.Bytes();
    if (status != 0 || pdf.empty()) {
        throw std::runtime_error("Ghostscript failed: " + FirstLineOf(err));
    }
    return pdf;
}

}  // namespace host
