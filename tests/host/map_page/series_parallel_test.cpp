// A series split by GNU parallel, with the commands of docs/series.md.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "map_page/page_file_folder.h"

namespace {

namespace fs = std::filesystem;
using host_tests::ContentsOf;
using host_tests::Result;

/// The indented blocks of a document whose first line begins with a word.
std::vector<std::string> CommandsOf(const std::string& document,
                                    const std::string& word) {
    const std::string indent = "    ";
    std::vector<std::string> commands;
    std::ifstream lines(document);
    bool isWithin = false;
    for (std::string line; std::getline(lines, line);) {
        const bool isCode = line.rfind(indent, 0) == 0;
        if (isCode && !isWithin && line.rfind(indent + word + " ", 0) == 0) {
            commands.emplace_back();
            isWithin = true;
        }
        isWithin = isWithin && isCode;
        if (isWithin) {
            commands.back() += line + "\n";
        }
    }
    return commands;
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
    void WriteList(int rows) const {
        std::ofstream list(folder.Path("sheets.csv"));
        list << "name,title,rasters\n";
        for (int row = 0; row < rows; ++row) {
            list << "sheet_" << row << ",Sheet " << row << ",data/scene.tif\n";
        }
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

    /// Draws the series undivided and compares each page.
    void ExpectSheetsOfTheWholeSeries(std::size_t count) const {
        RunWell("page.json --series sheets.csv -o whole/{name}.png");
        std::size_t drawn = 0;
        for (const auto& entry : fs::directory_iterator(folder.Path("whole"))) {
            const std::string name = entry.path().filename().string();
            EXPECT_TRUE(ContentsOf(entry.path().string()) ==
                        ContentsOf(folder.Path("sheets/" + name)))
                << name;
            ++drawn;
        }
        EXPECT_EQ(drawn, count);
    }

    const std::vector<std::string> commands =
        CommandsOf(MAP_SURROUND_SERIES_GUIDE, "parallel");
};

TEST_F(SeriesOverParallel, DrawsTheSamePagesOnOneMachine) {
    ASSERT_EQ(commands.size(), 2u);
    WriteList(23);
    const Result result = RunInShell(commands[0]);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.err, "");
    ExpectSheetsOfTheWholeSeries(23);
}

TEST_F(SeriesOverParallel, DrawsTheSamePagesOnSeveralMachines) {
    ASSERT_EQ(commands.size(), 2u);
    WriteList(23);
    const Result result = RunInShell(commands[1]);
    EXPECT_EQ(result.status, 0) << result.err;
    ExpectSheetsOfTheWholeSeries(23);
    const std::string machines = Contents("home/machines");
    EXPECT_THAT(machines, ::testing::HasSubstr("north\n"));
    EXPECT_THAT(machines, ::testing::HasSubstr("south\n"));
}

TEST_F(SeriesOverParallel, TellsARowThatFailsAndDrawsTheRest) {
    ASSERT_EQ(commands.size(), 2u);
    WriteList(11);
    std::ofstream(folder.Path("sheets.csv"), std::ios::app)
        << "lost,Lost,data/none.tif\n";
    const Result result = RunInShell(commands[0]);
    EXPECT_EQ(result.status, 1);  // one part of two failed
    EXPECT_THAT(result.err, ::testing::HasSubstr(
                                "map_page: part2.csv: line 3: page.json: "
                                "elements[1].rasters: data/none.tif: no such file\n"));
    EXPECT_FALSE(fs::exists(folder.Path("sheets/lost.png")));
    EXPECT_TRUE(fs::exists(folder.Path("sheets/sheet_10.png")));
}

}  // namespace
