#include "system/confinement.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/shm.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "scratch_folder.h"
#include "system/memory_file.h"
#include "system/separate_process.h"

namespace {

namespace fs = std::filesystem;

struct Attempt {
    std::string name;
    std::function<bool()> succeeds;
    bool isLeft;  // to a process that was confined
};

/// A folder with `in/a` and `out/b`, a file each, and a link from `in` to `b`.
class Confinement : public ::testing::Test {
protected:
    Confinement() {
        fs::create_directory(folder.Path("out"));
        folder.Write("out/b", "b");
        MakeIn();
    }
    void SetUp() override {
        if (host::ConfinementHere() != "no new files, no programs, no network") {
            GTEST_SKIP() << host::ConfinementHere();
        }
    }
    std::string In(const std::string& name) const { return folder.Path("in/" + name); }
    std::string Out(const std::string& name) const { return folder.Path("out/" + name); }

    void MakeIn() const {
        fs::remove_all(folder.Path("in"));
        fs::create_directory(folder.Path("in"));
        folder.Write("in/a", "a");
        fs::create_symlink("../out/b", In("link"));
    }

    /// Tries each in a process that keeps only that, and then in one that keeps all: they
    /// fail for what was taken, not by themselves.
    void Try(const std::vector<Attempt>& attempts, const host::Kept& kept) const {
        for (const Attempt& attempt : attempts) {
            EXPECT_EQ(Succeeds(attempt, [&] { EXPECT_TRUE(host::Confine(kept)); }),
                      attempt.isLeft)
                << attempt.name;
        }
        for (const Attempt& attempt : attempts) {
            EXPECT_TRUE(Succeeds(attempt, [&] { MakeIn(); })) << attempt.name;
        }
    }

    ScratchFolder folder;

private:
    /// Whether it succeeds in a process that was prepared so.
    static bool Succeeds(const Attempt& attempt, const std::function<void()>& prepare) {
        return host::InSeparateProcess("trying",
                                       [&](const host::Progress&) -> std::string {
                                           prepare();
                                           return attempt.succeeds() ? "yes" : "no";
                                       }) == "yes";
    }
};

bool Opens(const std::string& path, int flags) {
    const int descriptor = open(path.c_str(), flags | O_CLOEXEC, 0600);
    if (descriptor >= 0) {
        close(descriptor);
    }
    return descriptor >= 0;
}

/// Whether a command for a terminal is told that there is none.
bool ReachesTheKernel(unsigned long command) {
    return syscall(SYS_ioctl, -1, command, "x") < 0 && errno == EBADF;
}

TEST_F(Confinement, LeavesWhatReadingAndDrawingNeed) {
    const int open = ::open(Out("open").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const std::string in = In("a");
    const std::string out = Out("b");
    const std::vector<Attempt> attempts = {
        {"read", [&] { return Opens(in, O_RDONLY); }, true},
        {"read elsewhere", [&] { return Opens(out, O_RDONLY); }, true},
        {"write on to an open file", [&] { return write(open, "x", 1) == 1; }, true},
        {"write nowhere", [] { return Opens("/dev/null", O_WRONLY); }, true},
        {"a file in memory by name",
         [] {
             const host::MemoryFile file;
             std::FILE* const named = std::fopen(file.Name().c_str(), "wb");
             return named != nullptr && std::fputs("x", named) >= 0 &&
                    std::fclose(named) == 0 && file.Bytes().size() == 1;
         },
         true},
        {"start a process", [] { return fork() != 0 || (_exit(0), true); }, true},
        {"end itself", [] { return std::raise(0) == 0; }, true},
        {"write", [&] { return Opens(in, O_WRONLY); }, false},
        {"empty", [&] { return Opens(in, O_RDWR | O_TRUNC); }, false},
        {"empty by name", [&] { return truncate(in.c_str(), 0) == 0; }, false},
        {"make a file", [&] { return Opens(In("new"), O_WRONLY | O_CREAT); }, false},
        {"make an empty file", [&] { return Opens(In("none"), O_RDONLY | O_CREAT); },
         false},
        {"make a folder", [&] { return mkdir(In("new").c_str(), 0700) == 0; }, false},
        {"rename", [&] { return std::rename(in.c_str(), In("c").c_str()) == 0; }, false},
        {"link", [&] { return symlink("a", In("new").c_str()) == 0; }, false},
        {"change the mode", [&] { return chmod(in.c_str(), 04777) == 0; }, false},
        {"change the mode by the younger call",
         [&] {
             constexpr long kFchmodat2 = 452;
             const long changed = syscall(kFchmodat2, AT_FDCWD, in.c_str(), 04777, 0);
             return changed == 0 || errno == ENOSYS;
         },
         false},
        {"remove", [&] { return unlink(in.c_str()) == 0; }, false},
        {"a socket", [] { return socket(AF_INET, SOCK_STREAM, 0) >= 0; }, false},
        {"a local socket", [] { return socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }, false},
        {"another program", [] { return std::system("exit 0") == 0; }, false},
        {"signal another", [] { return kill(getppid(), 0) == 0; }, false},
        {"signal another's thread",
         [] { return syscall(SYS_tgkill, getppid(), getppid(), 0) == 0; }, false},
        {"another's limits",
         [] { return prlimit(getppid(), RLIMIT_CPU, nullptr, nullptr) == 0; }, false},
        {"its own limits", [] { return prlimit(0, RLIMIT_CPU, nullptr, nullptr) == 0; },
         true},
        {"share memory",
         [] {
             const int memory = shmget(IPC_PRIVATE, 1, 0600);
             return memory >= 0 && shmctl(memory, IPC_RMID, nullptr) == 0;
         },
         false},
        {"type at the terminal", [] { return ReachesTheKernel(TIOCSTI); }, false},
        {"type with more bits", [] { return ReachesTheKernel(TIOCSTI | 1UL << 32U); },
         false},
        {"ask the terminal", [] { return ReachesTheKernel(TCGETS); }, true},
    };
    Try(attempts, {});
    close(open);
}

TEST_F(Confinement, LeavesToReadWhatIsNamed) {
    host::Kept kept;
    kept.readable = {folder.Path("in"), "/etc/hostname", "/nowhere"};
    Try({{"below", [&] { return Opens(In("a"), O_RDONLY); }, true},
         {"the folder", [&] { return Opens(folder.Path("in"), O_RDONLY); }, true},
         {"through a link", [&] { return Opens(In("link"), O_RDONLY); }, false},
         {"elsewhere", [&] { return Opens(Out("b"), O_RDONLY); }, false},
         {"from there", [&] { return Opens(In("../out/b"), O_RDONLY); }, false},
         {"the file itself", [] { return Opens("/etc/hostname", O_RDONLY); }, true},
         {"the machine's", [] { return Opens("/etc/passwd", O_RDONLY); }, false}},
        kept);
}

TEST_F(Confinement, LeavesTheNetworkWhereItIsKept) {
    host::Kept kept;
    kept.network = true;
    Try({{"a socket", [] { return socket(AF_INET, SOCK_STREAM, 0) >= 0; }, true}}, kept);
}

}  // namespace
