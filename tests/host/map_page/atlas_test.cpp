// map_page --series with one PDF file for all pages.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "map_page/page_file_folder.h"
#include "pdf/pdf_check.h"

namespace {

using host_tests::Arguments;
using host_tests::Result;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Atlas : public host_tests::PageFileTest {
protected:
    Atlas() { RunWell("data/scene.tif --title Scene --save page.json"); }

    Arguments Call(const std::string& list, const Arguments& more) const {
        Write("list.csv", list);
        return "page.json --series list.csv -o atlas.pdf --dpi 50" + more;
    }
    Result Draw(const std::string& list, const Arguments& more = {}) const {
        return Run(Call(list, more));
    }

    std::vector<std::string> Bookmarks() const {
        return host_tests::BookmarksOf(folder.Path("atlas.pdf"));
    }
    std::vector<std::string> Wrong() const {
        return host_tests::AgainstPdfUa(folder.Path("atlas.pdf"));
    }
};

TEST_F(Atlas, HasAllPagesInOneFile) {
    const Result result = Draw(
        "name,title,size,extent\n"
        "N1,North,,500300 8998200 500900 8998800\n"
        ",South,A3,\n"
        "N3,,,\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "list.csv: 3 drawn, 0 already there, 0 failed\n");
    EXPECT_THAT(Wrong(), IsEmpty());
    EXPECT_THAT(Bookmarks(), ElementsAre("1: N1", "2: South", "3: N3"));
    const std::vector<std::string> read = host_tests::ReadAloud(folder.Path("atlas.pdf"));
    EXPECT_THAT(read, ::testing::IsSupersetOf({"H1: North", "H1: South", "H1: Scene"}));
    const std::string file = folder.Path("atlas.pdf");
    host_tests::Said("qpdf --check " + file);
    const std::string fonts = host_tests::Said("pdffonts " + file);
    EXPECT_EQ(fonts.find("LiberationSans-Bold"), fonts.rfind("LiberationSans-Bold"))
        << "one copy of a font:\n"
        << fonts;
    EXPECT_THAT(folder.Names(),
                ElementsAre("atlas.pdf", "data", "list.csv", "logo.png", "page.json"));

    const std::string atlas = Contents("atlas.pdf");
    EXPECT_EQ(Draw("name\nanother\n").out,
              "list.csv: 0 drawn, 1 already there, 0 failed\n");
    EXPECT_TRUE(Contents("atlas.pdf") == atlas);
}

TEST_F(Atlas, HasAnImageOfManyPagesOnce) {
    ASSERT_EQ(Draw("name,extent\nN1,\nN2,500300 8998200 500900 8998800\nN3,\n").status,
              0);
    const std::string images =
        host_tests::Said("pdfimages -list " + folder.Path("atlas.pdf") +
                         " | awk '$3 == \"image\" { print $1, $11 }'");
    std::smatch objects;
    EXPECT_TRUE(
        std::regex_match(images, objects, std::regex("1 (\\d+)\n2 (\\d+)\n3 \\1\n")))
        << "the first map is the third:\n"
        << images;
    EXPECT_NE(objects[1], objects[2]);
}

TEST_F(Atlas, GoesOnAfterPagesThatFail) {
    const std::string scene = Contents("data/scene.tif");
    Write("data/half.tif", scene.substr(0, scene.size() / 2));
    const Result result = Draw(
        "name,rasters,scale\n"
        "first,,\n"
        "missing,data/none.tif,\n"
        "half,data/half.tif,\n"
        "wrong,,none\n"
        "last,data/classes.tif,\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("map_page: list.csv: line 3: page.json: "));
    EXPECT_THAT(result.err, HasSubstr("map_page: list.csv: line 4: "));
    EXPECT_THAT(result.err, HasSubstr("map_page: list.csv: line 5: --scale: none is"));
    EXPECT_THAT(result.err,
                HasSubstr("map_page: list.csv: 2 drawn, 0 already there, 3 failed\n"));
    EXPECT_THAT(Bookmarks(), ElementsAre("1: first", "2: last"));
    EXPECT_THAT(Wrong(), IsEmpty());
}

TEST_F(Atlas, IsNotWrittenWithoutAnyPage) {
    const Result result = Draw("rasters\ndata/none.tif\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("0 drawn, 0 already there, 1 failed\n"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("atlas.pdf")));
}

TEST_F(Atlas, TakesAWarningForAFailureWhereThatIsAsked) {
    const std::string longTitle(300, 'W');
    const Result result =
        Draw("name,title\nshort,\nlong," + longTitle + "\nend,\n", "--strict");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("list.csv: line 3: is not drawn: --strict"));
    EXPECT_THAT(Bookmarks(), ElementsAre("1: short", "2: end"));
}

TEST_F(Atlas, IsDrawnWithoutAPageThatEndsTheDrawing) {
    // A raster whose input never ends, until the drawing is ended as by a decoder that
    // crashes, or for taking too long.
    const std::string list = "name,rasters\nendless,/vsistdin/\nother,\n";
    const auto endless = [] {
        setenv("ASAN_OPTIONS", "handle_segv=0", 1);
        host_tests::GiveEndlessInput();
    };
    for (const bool crashes : {true, false}) {
        const char* const more = crashes ? "--allow-all" : "--allow-all --limit-time 3";
        const host_tests::RunningMapPage running(folder, Call(list, more), endless);
        if (crashes) {
            // Once the file is begun: the columns are checked in another process before.
            constexpr int kTries = 2000;
            for (int i = 0; i < kTries && folder.Names().front()[0] != '.'; ++i) {
                usleep(10'000);
            }
            kill(running.DrawingProcess(), SIGSEGV);
        }
        const Result result = running.Wait();
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.err,
                    HasSubstr(crashes ? "line 2: drawing failed: Segmentation fault"
                                      : "line 2: drawing took longer than its limit"));
        EXPECT_THAT(Bookmarks(), ElementsAre("1: other"));
        std::filesystem::remove(folder.Path("atlas.pdf"));
    }
}

TEST_F(Atlas, IsNotWrittenOnAFullDisk) {
    // A file of more than 8 kB is too large here, as on a disk without room for it.
    ExpectError(1, "atlas.pdf: File too large", Call("name\na\nb\n", {}), [] {
        signal(SIGXFSZ, SIG_IGN);
        host_tests::LimitFilesTo(8192);
    });
}

}  // namespace
