#include "map_page/separate_process.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <stdexcept>
#include <string>

namespace {

struct Row {
    std::string name;
    std::function<std::string()> work;
    std::string outcome;
};

TEST(SeparateProcess, ReportsHoweverItEnds) {
    const std::string longLine(100'000, 'x');
    const Row rows[] = {
        {"returns", [] { return "a page"; }, "a page"},
        {"returns nothing", [] { return ""; }, ""},
        {"returns much", [&] { return longLine; }, longLine},
        {"throws", []() -> std::string { throw std::runtime_error("a.tif: is empty"); },
         "thrown: a.tif: is empty"},
        {"has no memory", []() -> std::string { throw std::bad_alloc(); },
         "thrown: memory: the page needs more than there is"},
        {"exits", []() -> std::string { std::exit(3); },
         "thrown: drawing failed: ended with status 3"},
        {"exits as if all was well", []() -> std::string { std::exit(0); },
         "thrown: drawing failed: ended with status 0"},
        {"crashes", []() -> std::string { std::abort(); },
         "thrown: drawing failed: Aborted (signal 6)"},
    };
    for (const Row& row : rows) {
        std::string outcome;
        try {
            outcome = map_page::InSeparateProcess(row.work);
        } catch (const std::exception& error) {
            outcome = std::string("thrown: ") + error.what();
        }
        EXPECT_EQ(outcome, row.outcome) << row.name;
    }
}

TEST(SeparateProcess, KeepsItsChangesToItself) {
    int value = 1;
    EXPECT_EQ(map_page::InSeparateProcess([&] { return std::to_string(++value); }), "2");
    EXPECT_EQ(value, 1);
}

}  // namespace
