#include "system/separate_process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

/// What the work comes to, and how it is told where it does not.
std::string OutcomeOf(const host::SeparateWork& work,
                      const host::WorkLimits& limits = {}) {
    try {
        return host::InSeparateProcess("drawing", work, {}, limits);
    } catch (const host::WorkFailed& error) {
        return std::string("thrown: ") + error.what();
    } catch (const std::exception& error) {
        return error.what();
    }
}

std::string Die(const host::Progress&) { std::abort(); }

TEST(SeparateProcess, ReportsHoweverItEnds) {
    const std::string longLine(100'000, 'x');
    const struct {
        std::string name;
        std::function<std::string()> work;
        std::string outcome;
    } rows[] = {
        {"returns", [] { return "a page"; }, "a page"},
        {"returns nothing", [] { return ""; }, ""},
        {"returns much", [&] { return longLine; }, longLine},
        {"throws", []() -> std::string { throw std::runtime_error("a.tif: is empty"); },
         "thrown: a.tif: is empty"},
        {"has no memory", []() -> std::string { throw std::bad_alloc(); },
         "thrown: memory: the page needs more than there is"},
        {"exits", []() -> std::string { std::exit(3); },
         "drawing failed: ended with status 3"},
        {"exits as if all was well", []() -> std::string { std::exit(0); },
         "drawing failed: ended with status 0"},
        {"crashes", [] { return Die({}); }, "drawing failed: Aborted (signal 6)"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(OutcomeOf([&](const host::Progress&) { return row.work(); }),
                  row.outcome)
            << row.name;
    }
}

TEST(SeparateProcess, TellsHowFarTheWorkHasCome) {
    std::vector<double> told;
    const std::string bytes(300'000, '%');  // as the messages of progress begin
    const std::string result = host::InSeparateProcess(
        "drawing",
        [&](const host::Progress& progress) {
            for (const double part : {0.25, 0.5, 0.5001, 0.75, 0.125}) {
                EXPECT_TRUE(progress(part));
                usleep(250'000);
            }
            return bytes;
        },
        [&told](double part) {
            if (told.empty() || told.back() != part) {
                told.push_back(part);
            }
            return true;
        });
    EXPECT_TRUE(result == bytes);
    // What comes in the first moment may be told before anything is.
    if (!told.empty() && told.front() == 0.0) {
        told.erase(told.begin());
    }
    EXPECT_EQ(told, (std::vector<double>{0.25, 0.5, 0.75, 0.125}));
}

TEST(SeparateProcess, IsStoppedEvenWhenItHangs) {
    int asked = 0;
    const auto stop = [&asked](double part) {
        EXPECT_EQ(part, 0.0);
        return ++asked < 3;
    };
    const auto hang = [](const host::Progress&) -> std::string {
        for (;;) {
            pause();
        }
    };
    EXPECT_THAT([&] { host::InSeparateProcess("drawing", hang, stop); },
                ::testing::ThrowsMessage<std::runtime_error>("drawing was stopped"));
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a process is left";
}

TEST(SeparateProcess, EndsWhatTakesLongerThanItMay) {
    const auto sleep = [](const host::Progress&) -> std::string {
        usleep(1'200'000);
        return "awake";
    };
    const auto talk = [](const host::Progress& tell) -> std::string {
        for (int i = 0;; ++i) {
            tell(i % 2);
        }
    };
    EXPECT_EQ(OutcomeOf(sleep, {1, 0}), "drawing took longer than its limit of 1 s");
    EXPECT_EQ(OutcomeOf(talk, {1, 0}), "drawing took longer than its limit of 1 s");
    EXPECT_EQ(OutcomeOf(sleep, {3, 0}), "awake");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a process is left";
}

// AddressSanitizer has taken more than any limit before the work begins.
#ifndef __SANITIZE_ADDRESS__
TEST(SeparateProcess, RefusesMoreMemoryThanItMayTake) {
    const auto take = [](const host::Progress&) {
        return std::to_string(std::vector<char>(std::size_t{300} << 20, 'x').size());
    };
    EXPECT_EQ(OutcomeOf(take, {0, 200}),
              "thrown: the page needs more than its limit of 200 MB of memory");
    EXPECT_EQ(OutcomeOf(Die, {0, 200}),
              "drawing failed: Aborted (signal 6) within its limit of 200 MB of memory");
    EXPECT_EQ(OutcomeOf(take, {0, 400}), "314572800");
    EXPECT_EQ(OutcomeOf(take, {}), "314572800");
}
#endif

}  // namespace
