#include "system/output_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "scratch_folder.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::uint8_t> BytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

/// How a child process ended that did this: as waitpid tells it.
int EndOf(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

class OutputFile : public ::testing::Test {
protected:
    /// Writes a file through host::OutputFile.
    void Replace(const std::string& name, const std::string& text = "after") const {
        host::OutputFile output(folder.Path(name));
        output.Write(BytesOf(text));
        output.Commit();
    }

    struct stat Status(const std::string& name) const {
        struct stat status = {};
        EXPECT_EQ(stat(folder.Path(name).c_str(), &status), 0);
        return status;
    }

    ScratchFolder folder;
};

TEST_F(OutputFile, AppearsWhenItIsComplete) {
    {
        host::OutputFile output(folder.Path("page.png"));
        EXPECT_FALSE(fs::exists(folder.Path("page.png")));
        output.Write(BytesOf("whole"));
        output.Commit();
        EXPECT_EQ(folder.Contents("page.png"), "whole");
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"page.png"});
}

TEST_F(OutputFile, LeavesEverythingAsItWasWhenItIsGivenUp) {
    { const host::OutputFile output(folder.Path("page.png")); }
    EXPECT_TRUE(folder.Names().empty());
    folder.Write("page.png", "before");
    { const host::OutputFile output(folder.Path("page.png")); }
    EXPECT_EQ(folder.Contents("page.png"), "before");
    EXPECT_EQ(folder.Names().size(), 1u);
}

TEST_F(OutputFile, TakesThePermissionsOfWhatItReplacesButForItsOwnersRights) {
    for (const auto& [mode, taken] : {std::pair(0640u, 0640u), {06755u, 0755u}}) {
        folder.Write("page.png", "before");
        chmod(folder.Path("page.png").c_str(), mode);
        Replace("page.png");
        EXPECT_EQ(Status("page.png").st_mode & 07777, taken);
    }
}

TEST_F(OutputFile, KeepsTheOwnerWhereItMay) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root gives files away";
    }
    folder.Write("page.png", "before");
    ASSERT_EQ(chown(folder.Path("page.png").c_str(), 1234, 2345), 0);
    Replace("page.png");
    EXPECT_EQ(Status("page.png").st_uid, 1234u);
    EXPECT_EQ(Status("page.png").st_gid, 2345u);
    // Another, who may write to it and to the folder but not give files away, owns it
    // then; their group is not the one that could read it.
    chmod(folder.Path("page.png").c_str(), 0666);
    chmod(folder.Path().c_str(), 0777);
    EXPECT_EQ(EndOf([&] {
                  if (setgid(3456) != 0 || setuid(3456) != 0) {
                      _exit(1);
                  }
                  Replace("page.png");
              }),
              0);
    EXPECT_EQ(Status("page.png").st_uid, 3456u);
    EXPECT_EQ(Status("page.png").st_mode & 07777, 0606u);
}

TEST_F(OutputFile, SaysThatAHardLinkParts) {
    folder.Write("page.png", "before");
    {
        const host::OutputFile output(folder.Path("page.png"));
        EXPECT_EQ(output.Remark(), "");
    }
    fs::create_hard_link(folder.Path("page.png"), folder.Path("other.png"));
    host::OutputFile output(folder.Path("page.png"));
    EXPECT_EQ(output.Remark(),
              folder.Path("page.png") +
                  " has other names (hard links), under which it stays as it was");
    output.Write(BytesOf("after"));
    output.Commit();
    EXPECT_EQ(folder.Contents("page.png"), "after");
    EXPECT_EQ(folder.Contents("other.png"), "before");
}

TEST_F(OutputFile, IsWrittenInParts) {
    host::OutputFile output(folder.Path("page.pdf"));
    output.Write(BytesOf("post"));
    output.Write(BytesOf("script"));
    EXPECT_EQ(output.Size(), 10u);
    output.Commit();
    EXPECT_EQ(folder.Contents("page.pdf"), "postscript");
}

TEST_F(OutputFile, HasThePermissionsOfAnyNewFile) {
    const mode_t mask = umask(027);
    Replace("page.png");
    umask(mask);
    EXPECT_EQ(Status("page.png").st_mode & 0777, 0640u);
}

TEST_F(OutputFile, FollowsALink) {
    fs::create_directory(folder.Path("real"));
    folder.Write("real/page.png", "before");
    fs::create_symlink("real/page.png", folder.Path("link.png"));
    Replace("link.png");
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.png")));
    EXPECT_EQ(folder.Contents("real/page.png"), "after");
}

TEST_F(OutputFile, RefusesWhatCannotBeReplaced) {
    folder.Write("file", "");
    folder.Write("protected.png", "before");
    chmod(folder.Path("protected.png").c_str(), 0444);
    fs::create_directory(folder.Path("folder.png"));
    fs::create_symlink("nowhere", folder.Path("broken.png"));
    const std::pair<std::string, std::string> rows[] = {
        {folder.Path("missing/page.png"), "No such file or directory"},
        {folder.Path("file/page.png"), "Not a directory"},
        {folder.Path("protected.png"), "is write-protected"},
        {folder.Path("folder.png"), "Is a directory"},
        {folder.Path("broken.png"), "No such file or directory"},
        {"/dev/null", "is not a file"},
        {folder.Path(std::string(5000, 'x')) + "/page.png", "File name too long"},
    };
    for (const auto& [path, why] : rows) {
        EXPECT_THAT([&path = path] { host::OutputFile output(path); },
                    ::testing::ThrowsMessage<std::runtime_error>(why))
            << path;
    }
    EXPECT_EQ(folder.Names().size(), 4u);
    EXPECT_EQ(folder.Contents("protected.png"), "before");
}

TEST_F(OutputFile, GoesWhenTheProgramIsEnded) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const int status = EndOf([&] {
            std::signal(signal, SIG_DFL);
            host::RemoveUnfinishedOutputOnSignals();
            const host::OutputFile output(folder.Path("page.png"));
            const host::OutputFile saved(folder.Path("page.json"));
            if (folder.Names().size() == 2) {
                std::raise(signal);
            }
        });
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(WTERMSIG(status), signal);
        EXPECT_TRUE(folder.Names().empty());
    }
}

TEST_F(OutputFile, LeavesAnIgnoredSignalIgnored) {
    const int status = EndOf([] {
        std::signal(SIGHUP, SIG_IGN);
        host::RemoveUnfinishedOutputOnSignals();
        std::raise(SIGHUP);
        _exit(7);
    });
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 7);
}

}  // namespace
