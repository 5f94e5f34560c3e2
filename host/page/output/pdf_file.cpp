#include "page/output/pdf_file.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

#include "system/child_process.h"
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

constexpr int kNotFound = 127;  // the status, as shells have it

[[noreturn]] void NotInstalled() {
    throw std::runtime_error(
        "PDF files are made by Ghostscript, which is not installed (the program gs)");
}

/// What it said first, for a line of ours.
std::string FirstLineOf(const MemoryFile& file) {
    const std::vector<std::uint8_t> said = file.Bytes();
    const std::string text(said.begin(), said.end());
    return text.substr(0, text.find('\n'));
}

/// Becomes Ghostscript, with the files as its input, output and errors.
int RunGhostscript(const MemoryFile& in, const MemoryFile& out, const MemoryFile& err) {
    dup2(in.Descriptor(), STDIN_FILENO);
    dup2(out.Descriptor(), STDOUT_FILENO);
    dup2(err.Descriptor(), STDERR_FILENO);
    // execvp takes what it does not change as if it changed it.
    execvp(kGhostscript[0], const_cast<char**>(kGhostscript));
    return kNotFound;
}

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
    const MemoryFile in(postScript);
    const MemoryFile out;
    const MemoryFile err;
    const pid_t process = StartChild([&] { return RunGhostscript(in, out, err); });
    if (process < 0) {
        throw std::runtime_error("Ghostscript: " +
                                 std::generic_category().message(errno));
    }
    const int status = WaitFor(process);
    if (WIFEXITED(status) && WEXITSTATUS(status) == kNotFound) {
        NotInstalled();
    }
    std::vector<std::uint8_t> pdf = out.Bytes();
    if (status != 0 || pdf.empty()) {
        throw std::runtime_error("Ghostscript failed: " + FirstLineOf(err));
    }
    return pdf;
}

}  // namespace host
