// What map_page says, where nobody listens, and names that would say something else.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <string>

#include "map_page/page_file_folder.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::Result;
using ::testing::HasSubstr;
using ::testing::IsSubsetOf;

using StandardStreams = host_tests::PageFileTest;

TEST_F(StandardStreams, MayBeClosed) {
    for (const char* name : {"page.png", "page.jpg", "page.tif", "page.ps"}) {
        const Arguments draw = {"data/scene.tif", "-o", name, "--dpi", "50"};
        RunWell(draw);
        const std::string page = Contents(name);
        for (const int closed : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            fs::remove(folder.Path(name));
            EXPECT_EQ(Run(draw, [closed] { close(closed); }).status, 0);
            EXPECT_TRUE(Contents(name) == page) << name << closed;
        }
    }
}

TEST_F(StandardStreams, AreNotLostInSilence) {
    const Arguments calls[] = {"--schema", "--help", "--version",
                               "data/scene.tif -o page.png",
                               "data/scene.tif --save page.json"};
    for (const Arguments& call : calls) {
        const Result result =
            Run(call, [] { dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO); });
        EXPECT_EQ(result.status, 1) << call.front();
        EXPECT_EQ(result.err, "map_page: standard output: No space left on device\n");
    }
}

/// Has a stream of the program end in a pipe that nobody reads.
void BreakPipe(int stream) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) == 0) {
        close(ends[0]);
        dup2(ends[1], stream);
        close(ends[1]);
    }
    std::signal(SIGPIPE, SIG_DFL);
}

TEST_F(StandardStreams, LeaveNoTemporaryFileWhenAPipeBreaks) {
    const Arguments plain = "data/scene.tif data/plain.tif -o page.png";
    WriteRaster(folder.Path("data/plain.tif"), MadeRaster());
    RunWell(plain);
    const std::string page = Contents("page.png");
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
        fs::remove(folder.Path("page.png"));
        EXPECT_EQ(Run(plain, [stream] { BreakPipe(stream); }).status, 128 + SIGPIPE);
        EXPECT_THAT(folder.Names(), IsSubsetOf({"data", "logo.png", "page.png"}));
        const std::string left = Contents("page.png");
        EXPECT_TRUE(left.empty() || left == page);
    }
}

TEST_F(StandardStreams, ShowNamesOnOneLine) {
    const std::string name = "a\nmap_page: all is well\x1B[2J";
    const std::string shown = "a\\nmap_page: all is well\\x1B[2J";
    EXPECT_EQ(Run({name + ".tif", "-o", "page.png"}).err,
              "map_page: " + shown + ".tif: no such file\n");
    EXPECT_EQ(Run({"data/scene.tif", "-o", name}).err,
              "map_page: " + shown +
                  ": ends in none of .png .jpg .jpeg .bmp .tif .tiff .pdf .svg .ps\n");
    EXPECT_EQ(Run({"data/scene.tif", "-o", "page.png", "--border", name}).err,
              "map_page: --border: \"" + shown +
                  "\" is neither on, off, #RRGGBB, #RRGGBBAA nor the name of a colour\n");
    WriteRaster(folder.Path(name + ".tif"), MadeRaster());
    const Result drawn =
        RunWell({"data/scene.tif", name + ".tif", "-o", name + ".png", "--dpi", "50"});
    EXPECT_EQ(drawn.err, "map_page: warning: " + shown +
                             ".tif: left off the map: it has no georeference\n");
    EXPECT_THAT(drawn.out, ::testing::StartsWith(shown + ".png: 585 x 413 pixels, "));
    const std::string tooLong(4000, 'x');
    const Result lost = Run({"data/scene.tif", "-o", tooLong + ".png"});
    EXPECT_EQ(lost.status, 1);
    EXPECT_LT(lost.err.size(), 1100u);
    EXPECT_THAT(lost.err, HasSubstr("x.png: File name too long\n"));

    RunWell("data/scene.tif --save page.json");
    Write("list.csv", "name,rasters\nb,\"no\nne\x1B.tif\"\n");
    EXPECT_THAT(Run("page.json --series list.csv -o {name}.png").err,
                HasSubstr("no\\nne\\x1B.tif: no such file\n"));
}

}  // namespace
