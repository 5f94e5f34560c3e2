// A series split by GNU parallel, with the commands of docs/series.md.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "map_page/page_file_folder.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Result;

/// The indented blocks of a document that begin with a word.
std::vector<std::string> CommandsOf(const std::string& document,
                                    const std::string& word) {
    const std::string text = host_tests::ContentsOf(document);
    const std::regex block("    " + word + " .*\n(?:    .*\n)*");
    return {std::sregex_token_iterator(text.begin(), text.end(), block), {}};
}

/// Stands for ssh: writes down the machine, and is that machine itself. The home folder
/// is another than the one that the command is given in, as it is elsewhere. The user's
/// shell is set, as sshd does: without one GNU parallel runs nothing there, and says so
/// nowhere.
constexpr const char* kLoopbackSsh =
    "#!/bin/sh\n"
    "echo \"$1\" >> \"$HOME/machines\"\n"
    "shift\n"
    "[ \"$1\" = -- ] && shift\n"
    "cd \"$HOME\" && SHELL=/bin/sh exec sh -c \"$*\"\n";

class SeriesOverParallel : public host_tests::PageFileTest {
protected:
    SeriesOverParallel() {
        RunWell("data/scene.tif --size A6 --title Sheet --save page.json");
        for (const char* name : {"sheets", "whole", "home"}) {
            fs::create_directory(folder.Path(name));
        }
        Write("home/ssh", kLoopbackSsh);
        fs::permissions(folder.Path("home/ssh"), fs::perms::owner_all);
    }

    /// Enough for more than one part of ten rows.
    void WriteList(int rows, const std::string& more = "") const {
        std::string list = "name,title,rasters\n";
        for (int row = 0; row < rows; ++row) {
            const std::string number = std::to_string(row);
            list.append("sheet_" + number + ",Sheet " + number + ",data/scene.tif\n");
        }
        Write("sheets.csv", list + more);
    }

    Result RunInShell(const std::string& command) const {
        Write("command.sh", "cd '" + folder.Path() + "' || exit 99\nexport HOME='" +
                                folder.Path("home") + "' PARALLEL_SSH='" +
                                folder.Path("home/ssh") + "'\nPATH='" +
                                fs::path(MAP_PAGE_PROGRAM).parent_path().string() +
                                "':\"$PATH\"\n" + command);
        const int status =
            std::system(("sh '" + folder.Path("command.sh") + "' >'" +
                         folder.Path("out") + "' 2>'" + folder.Path("err") + "'")
                            .c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Contents("out"),
                Contents("err")};
    }

    const std::vector<std::string> commands =
        CommandsOf(MAP_SURROUND_SERIES_GUIDE, "parallel");
};

TEST_F(SeriesOverParallel, DrawsTheSamePagesOnOneMachineAndOnSeveral) {
    ASSERT_EQ(commands.size(), 2u);
    WriteList(23);
    RunWell("page.json --series sheets.csv -o whole/{name}.png");
    for (const std::string& command : commands) {
        const Result result = RunInShell(command);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(folder.Names("sheets").size(), 23U);
        for (const std::string& name : folder.Names("whole")) {
            EXPECT_TRUE(Contents("whole/" + name) == Contents("sheets/" + name)) << name;
            fs::remove(folder.Path("sheets/" + name));
        }
    }
    const std::string machines = Contents("home/machines");
    EXPECT_THAT(machines, ::testing::HasSubstr("north\n"));
    EXPECT_THAT(machines, ::testing::HasSubstr("south\n"));
}

TEST_F(SeriesOverParallel, TellsARowThatFailsAndDrawsTheRest) {
    ASSERT_EQ(commands.size(), 2u);
    WriteList(11, "lost,Lost,data/none.tif\n");
    const Result result = RunInShell(commands[0]);
    EXPECT_EQ(result.status, 1);  // one part of two failed
    EXPECT_THAT(result.err, ::testing::HasSubstr(
                                "map_page: part2.csv: line 3: page.json: "
                                "elements[1].rasters: data/none.tif: no such file\n"));
    EXPECT_FALSE(fs::exists(folder.Path("sheets/lost.png")));
    EXPECT_TRUE(fs::exists(folder.Path("sheets/sheet_10.png")));
}

}  // namespace
