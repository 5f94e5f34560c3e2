#include "map_page/run_map_page.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace host_tests {

Arguments::Arguments(const char* call) {
    std::istringstream words(call);
    assign(std::istream_iterator<std::string>(words), {});
}

Arguments operator+(Arguments first, const Arguments& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

void GiveEndlessInput() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) == 0) {
        dup2(ends[0], STDIN_FILENO);  // and the other end stays open
    }
}

void LimitFilesTo(unsigned long bytes) {
    const rlimit most = {bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &most);
}

RunningMapPage::RunningMapPage(const ScratchFolder& folder, const Arguments& arguments,
                               const Preparation& prepare)
    : m_out(::testing::TempDir() + "map_page_out." + std::to_string(getpid())),
      m_err(::testing::TempDir() + "map_page_err." + std::to_string(getpid())),
      m_process(fork()) {
    if (m_process != 0) {
        return;
    }
    std::vector<char*> argv;
    std::string program = MAP_PAGE_PROGRAM;
    argv.push_back(program.data());
    Arguments kept = arguments;
    for (std::string& argument : kept) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    if (chdir(folder.Path().c_str()) == 0 &&
        std::freopen(m_out.c_str(), "w", stdout) != nullptr &&
        std::freopen(m_err.c_str(), "w", stderr) != nullptr) {
        setenv("LC_ALL", "C", 1);  // whatever language the machine speaks
        if (prepare) {
            prepare();
        }
        execv(program.c_str(), argv.data());
    }
    _exit(127);
}

pid_t RunningMapPage::DrawingProcess() const {
    const std::string process = std::to_string(m_process);
    for (int tries = 0; tries < 1000; ++tries) {
        std::ifstream children("/proc/" + process + "/task/" + process + "/children");
        pid_t child = 0;
        if (children >> child) {
            return child;
        }
        usleep(10'000);
    }
    ADD_FAILURE() << "nothing draws";
    return -1;
}

Result RunningMapPage::Wait() const {
    int status = 0;
    waitpid(m_process, &status, 0);
    Result result;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    result.out = ContentsOf(m_out);
    result.err = ContentsOf(m_err);
    std::filesystem::remove(m_out);
    std::filesystem::remove(m_err);
    return result;
}

std::string Said(const std::string& command) {
    std::string text;
    FILE* const pipe = popen(command.c_str(), "r");
    std::array<char, 4096> part{};
    while (std::size_t count = std::fread(part.data(), 1, part.size(), pipe)) {
        text.append(part.data(), count);
    }
    EXPECT_EQ(pclose(pipe), 0) << command;
    return text;
}

Result MapPageTest::RunWell(const Arguments& arguments) const {
    Result result = Run(arguments);
    EXPECT_EQ(result.status, 0) << ::testing::PrintToString(arguments) << result.err;
    return result;
}

void MapPageTest::ExpectError(int status, const std::string& line,
                              const Arguments& arguments,
                              const Preparation& prepare) const {
    SCOPED_TRACE(::testing::PrintToString(arguments));
    const std::vector<std::string> names = folder.Names();
    const std::string page = Contents("page.png");
    const Result result = Run(arguments, prepare);
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(result.out, "");
    const bool isWhole = line.back() != '*';
    const std::string expected =
        "map_page: " + (isWhole ? line + "\n" : line.substr(0, line.size() - 1));
    EXPECT_EQ(isWhole ? result.err : result.err.substr(0, expected.size()), expected);
    EXPECT_GT(result.err.size(), isWhole ? 0 : expected.size() + 1) << "and why";
    EXPECT_EQ(result.err.find('\n'), result.err.size() - 1) << result.err;
    EXPECT_TRUE(Contents("page.png") == page);
    EXPECT_EQ(folder.Names(), names);
}

}  // namespace host_tests
