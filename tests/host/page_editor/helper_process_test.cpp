#include "system/helper_process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include <QtTest>
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <mutex>
#include <stdexcept>
#include <string>
#include <vector>

#include "page_editor/editor_fixture.h"

namespace {

std::mutex g_lock;
std::atomic<int> g_forks = 0;

std::string Echo(const std::string& input, const host::Progress&) { return input; }
std::string Throw(const std::string& input, const host::Progress&) {
    throw std::runtime_error(input);
}
std::string Abort(const std::string&, const host::Progress&) { std::abort(); }
std::string Exit(const std::string&, const host::Progress&) { std::exit(0); }
std::string Lock(const std::string&, const host::Progress&) {
    const std::lock_guard<std::mutex> locked(g_lock);
    return "locked";
}
std::string Tell(const std::string&, const host::Progress& tell) {
    for (const double part : {0.25, 0.75, 0.5}) {
        tell(part);
        usleep(250'000);
    }
    return "%";  // as the messages of progress begin
}
/// Writes which process it is into a file, and hangs.
std::string Hang(const std::string& input, const host::Progress&) {
    std::ofstream(input) << getpid();
    for (;;) {
        pause();
    }
}

std::string OutcomeOf(const char* job, const std::string& input) {
    try {
        return host::InHelper("trying", job, input);
    } catch (const host::WorkFailed& error) {
        return std::string("work: ") + error.what();
    } catch (const std::runtime_error& error) {
        return std::string("process: ") + error.what();
    }
}

TEST(HelperProcess, ReportsHoweverAJobEnds) {
    const std::string much(1'000'000, '%');
    const struct {
        const char* job;
        std::string input;
        std::string outcome;
    } rows[] = {
        {"echo", "a page", "a page"},
        {"echo", "", ""},
        {"echo", std::string("a\0b", 3), std::string("a\0b", 3)},
        {"echo", much, much},
        {"throw", "a.tif: is empty", "work: a.tif: is empty"},
        {"abort", "", "process: trying failed: Aborted (signal 6)"},
        {"exit", "", "process: trying failed: ended with status 0"},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(OutcomeOf(row.job, row.input) == row.outcome) << row.job;
    }
}

TEST(HelperProcess, HoldsNoLockOfThisOne) {
    const std::lock_guard<std::mutex> locked(g_lock);
    EXPECT_EQ(OutcomeOf("lock", ""), "locked");
}

TEST(HelperProcess, TellsHowFarAJobHasCome) {
    std::vector<double> told;
    const auto tell = [&told](double part) {
        if (part != 0.0 && (told.empty() || told.back() != part)) {
            told.push_back(part);
        }
        return true;
    };
    EXPECT_EQ(host::InHelper("drawing", "tell", "", tell), "%");
    EXPECT_EQ(told, (std::vector<double>{0.25, 0.75, 0.5}));
}

TEST(HelperProcess, LeavesNoProcessOfAJobThatIsGivenUp) {
    const ScratchFolder folder;
    const std::string file = folder.Path("process");
    pid_t process = 0;
    const auto untilItRuns = [&](double) { return !(std::ifstream(file) >> process); };
    EXPECT_THAT([&] { host::InHelper("drawing", "hang", file, untilItRuns); },
                ::testing::ThrowsMessage<std::runtime_error>("drawing was stopped"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return kill(process, 0) != 0; }));
}

class EditorsProcess : public editor_tests::EditorTest {};

/// One with windows has threads, whose locks a copy of it may wait for.
TEST_F(EditorsProcess, IsNeverCopied) {
    pthread_atfork([] { ++g_forks; }, nullptr, nullptr);
    Add("map", {100.0, 100.0, 400.0, 300.0}, {Scene()});
    Add("picture", {500.0, 100.0, 600.0, 200.0}, {Logo()});
    Command("selectAll");
    Command("copy");
    Command("paste");
    const QString page = Path("page.json");
    ASSERT_TRUE(files.SaveTo(page));
    ASSERT_TRUE(files.OpenFiles({page}));
    EXPECT_TRUE(files.ExportTo(Path("page.png"), 50.0));
    EXPECT_TRUE(files.ExportTo(Path("page.pdf"), 50.0));
    EXPECT_EQ(g_forks, 0);
}

}  // namespace

host::Jobs editor_tests::TestJobs() {
    return {{"echo", Echo}, {"throw", Throw}, {"abort", Abort}, {"exit", Exit},
            {"lock", Lock}, {"tell", Tell},   {"hang", Hang}};
}
