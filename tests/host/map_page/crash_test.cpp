#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "map_page/run_map_page.h"
#include "page/made_raster.h"
#include "scratch_folder.h"

namespace {

using host_tests::Result;
using host_tests::RunningMapPage;

/// Has the program's input be a pipe that nobody writes to.
void GiveEndlessInput() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) == 0) {
        dup2(ends[0], STDIN_FILENO);  // and the other end stays open
    }
}

/// A page whose raster is an input that never ends: map_page reads it until it is ended
/// from outside, as a decoder that crashes would end it.
class MapPageThatEndsEarly : public ::testing::Test {
protected:
    MapPageThatEndsEarly() {
        WriteScene(folder.Path("scene.tif"), 120, 120);
        std::ofstream(folder.Path("page.png")) << "what was here before";
        names = folder.Names();
    }
    ~MapPageThatEndsEarly() override {
        EXPECT_EQ(host_tests::ContentsOf(folder.Path("page.png")),
                  "what was here before");
        EXPECT_EQ(folder.Names(), names);
    }

    ScratchFolder folder;
    const host_tests::Arguments endless = "/vsistdin/ -o page.png";
    std::vector<std::string> names;
};

TEST_F(MapPageThatEndsEarly, SaysWhatTheDrawingDiedOf) {
    const std::pair<int, std::string> rows[] = {
        {SIGSEGV, "Segmentation fault (signal 11)"},
        {SIGABRT, "Aborted (signal 6)"},
        {SIGFPE, "Floating point exception (signal 8)"},
        {SIGKILL, "Killed (signal 9)"},
    };
    for (const auto& [signal, why] : rows) {
        // AddressSanitizer would otherwise take the signal and exit.
        const RunningMapPage running(folder, endless, [] {
            setenv("ASAN_OPTIONS", "handle_segv=0:handle_sigfpe=0", 1);
            GiveEndlessInput();
        });
        const pid_t drawing = running.DrawingProcess();
        ASSERT_GT(drawing, 0);
        kill(drawing, signal);
        const Result result = running.Wait();
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "map_page: page.png: drawing failed: " + why + "\n");
    }
}

TEST_F(MapPageThatEndsEarly, TakesTheDrawingWithIt) {
    // So that the orphan is told to this process.
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGKILL}) {
        const RunningMapPage running(folder, endless, GiveEndlessInput);
        const pid_t drawing = running.DrawingProcess();
        ASSERT_GT(drawing, 0);
        kill(running.Process(), signal);
        const Result result = running.Wait();
        EXPECT_EQ(result.status, 128 + signal);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "");
        int status = 0;
        ASSERT_EQ(waitpid(drawing, &status, 0), drawing);
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(folder.Names(), names) << signal;
    }
    prctl(PR_SET_CHILD_SUBREAPER, 0);
}

TEST_F(MapPageThatEndsEarly, LeavesNothingOfAPageThatIsHalfWritten) {
    const RunningMapPage running(folder, "scene.tif -o page.png", [] {
        const rlimit limit = {1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
    });
    const Result result = running.Wait();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "map_page: page.png: drawing failed: File size limit exceeded (signal "
              "25)\n");
}

}  // namespace
