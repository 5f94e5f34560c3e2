#include "memory/allocations.h"

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <vector>

#include "recording/recording.h"

namespace {

using allocations::Alive;
using allocations::Watch;

TEST(Allocations, AreCountedAndFreed) {
    {
        std::unique_ptr<std::vector<int>> list;
        {
            const Watch watch;
            list = std::make_unique<std::vector<int>>(10);
            EXPECT_EQ(watch.Count(), 2);
        }
        EXPECT_EQ(Alive(), 2);
    }
    EXPECT_EQ(Alive(), 0);
}

TEST(Allocations, FailOnOrderInBothForms) {
    void* volatile first = nullptr;
    void* volatile second = nullptr;
    {
        const Watch watch(2);
        first = ::operator new[](10);
        second = ::operator new(10, std::nothrow);
    }
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(second, nullptr);
    ::operator delete[](first);
    {
        const Watch watch(1);
        EXPECT_THROW(first = ::operator new(10), std::bad_alloc);
        second = ::operator new[](10, std::nothrow);
    }
    EXPECT_EQ(Alive(), 1);
    ::operator delete[](second);
    EXPECT_EQ(Alive(), 0);
}

TEST(Allocations, LeaveOutTheRecorders) {
    const recording::Recording recording(recording::Mode::RecordOnly);
    {
        const Watch watch(1);
        const Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), 1.0f);
        EXPECT_EQ(watch.Count(), 0);
    }
    EXPECT_EQ(recording.Count(), 2);
    EXPECT_EQ(Alive(), 0);
}

}  // namespace
