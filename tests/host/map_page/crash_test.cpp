#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>
#include <string>

#include "map_page/page_file_folder.h"

namespace {

using host_tests::Result;
using host_tests::RunningMapPage;

/// A page whose raster is an input that never ends: map_page reads it until it is ended
/// from outside, as a decoder that crashes would end it.
class MapPageThatEndsEarly : public host_tests::PageFileTest {
protected:
    MapPageThatEndsEarly() { Write("page.png", "what was here before"); }
    ~MapPageThatEndsEarly() override {
        EXPECT_EQ(Contents("page.png"), "what was here before");
        EXPECT_THAT(folder.Names(),
                    ::testing::ElementsAre("data", "logo.png", "page.png"));
    }

    static void ExpectEnd(const Result& result, int status, const std::string& said) {
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, said);
    }

    const host_tests::Arguments endless = "/vsistdin/ -o page.png";
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
            host_tests::GiveEndlessInput();
        });
        const pid_t drawing = running.DrawingProcess();
        ASSERT_GT(drawing, 0);
        kill(drawing, signal);
        ExpectEnd(running.Wait(), 1, "map_page: page.png: drawing failed: " + why + "\n");
    }
}

TEST_F(MapPageThatEndsEarly, TakesTheDrawingWithIt) {
    // So that the orphan is told to this process.
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGKILL}) {
        const RunningMapPage running(folder, endless, host_tests::GiveEndlessInput);
        const pid_t drawing = running.DrawingProcess();
        ASSERT_GT(drawing, 0);
        kill(running.Process(), signal);
        ExpectEnd(running.Wait(), 128 + signal, "");
        int status = 0;
        ASSERT_EQ(waitpid(drawing, &status, 0), drawing);
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(folder.Names().size(), 3U) << signal;
    }
    prctl(PR_SET_CHILD_SUBREAPER, 0);
}

TEST_F(MapPageThatEndsEarly, LeavesNothingOfAPageThatIsHalfWritten) {
    ExpectError(1, "page.png: drawing failed: File size limit exceeded (signal 25)",
                "data/scene.tif -o page.png", [] { host_tests::LimitFilesTo(1000); });
}

}  // namespace
