#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "given.h"
#include "map_page/run_map_page.h"
#include "page/made_raster.h"
#include "scratch_folder.h"

namespace {

using host_tests::Result;
using host_tests::RunningMapPage;

const host_tests::Arguments kDraw = "scene.tif -o page.png --title Scene";

class Interrupted : public host_tests::MapPageTest {
protected:
    Interrupted() { WriteScene(folder.Path("scene.tif"), 400, 300); }
};

TEST_F(Interrupted, LeavesTheOlderPageOrTheWholeNewOne) {
    RunWell(kDraw);  // every drawing of it is the same
    const std::string whole = Contents("page.png");
    const std::string older = "an older page";
    std::mt19937 random(1);
    std::uniform_int_distribution<unsigned> delay(0, 500'000);
    int killed = 0;
    int drawn = 0;
    const std::size_t often = host_tests::Given("INTERRUPTIONS", 12);
    for (std::size_t i = 0; i < often; ++i) {
        const bool hasOlder = i % 4 != 0;
        std::filesystem::remove(folder.Path("page.png"));
        if (hasOlder) {
            Write("page.png", older);
        }
        const int signal = std::array{SIGKILL, SIGTERM, SIGINT, SIGHUP}[i / 4 % 4];
        const RunningMapPage running(folder, kDraw);
        usleep(delay(random));
        kill(running.Process(), signal);
        const Result result = running.Wait();

        const std::string page = Contents("page.png");
        if (result.status == 0) {
            ++drawn;
            EXPECT_EQ(page, whole) << "time " << i;
        } else {
            ++killed;
            EXPECT_EQ(result.status, 128 + signal) << result.err;
            // It may have been killed after the page had its name.
            EXPECT_TRUE(page == whole || page == (hasOlder ? older : "")) << "time " << i;
        }
        // Nothing tidies up after SIGKILL; what it leaves is under another name.
        for (const std::string& name : folder.Names()) {
            if (name != "scene.tif" && name != "page.png") {
                EXPECT_EQ(signal, SIGKILL) << name;
                std::filesystem::remove(folder.Path(name));
            }
        }
    }
    std::printf("%zu interruptions: %d killed, %d had drawn the page\n", often, killed,
                drawn);
}

/// A small file system of its own while it lives, where the system allows that.
class SmallDisk {
public:
    SmallDisk(const std::string& folder, const std::string& size) : m_folder(folder) {
        const bool own =
            unshare(CLONE_NEWNS) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0;
        m_mounted = own && mount("tmpfs", m_folder.c_str(), "tmpfs", 0,
                                 ("size=" + size).c_str()) == 0;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() {
        if (m_mounted) {
            umount(m_folder.c_str());
        }
    }
    bool IsThere() const { return m_mounted; }

private:
    std::string m_folder;
    bool m_mounted;
};

TEST_F(Interrupted, ByAFullDiskLeavesTheOlderPage) {
    const ScratchFolder out;
    const SmallDisk disk(out.Path(), "16k");
    if (!disk.IsThere()) {
        ASSERT_EQ(std::getenv("INTERRUPTIONS"), nullptr) << "no file system to fill";
        GTEST_SKIP() << "this system lets nobody mount a file system";
    }
    for (const std::string name : {"page.png", "page.jpg", "page.bmp", "page.tif"}) {
        out.Write(name, "an older page");
        const Result result =
            host_tests::RunMapPage(out, {folder.Path("scene.tif"), "-o", name});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "map_page: " + name + ": No space left on device\n");
        EXPECT_EQ(out.Contents(name), "an older page");
        std::filesystem::remove(out.Path(name));
        EXPECT_TRUE(out.Names().empty());
    }
}

}  // namespace
