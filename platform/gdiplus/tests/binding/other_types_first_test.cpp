#define GDIPLUS_NO_WINDOWS_TYPES
#include "binding/other_windows_types.h"
//
#include <gdiplus.h>
#include <gtest/gtest.h>

namespace {

TEST(OtherWindowsTypes, MayComeBeforeOurs) {
    const Gdiplus::AdjustableArrowCap cap(4.0f, 2.0f, TRUE);
    const BOOL filled = cap.IsFilled();
    EXPECT_EQ(filled, TRUE);
    EXPECT_EQ(sizeof(ULONG), sizeof(long));
    EXPECT_EQ(sizeof(Gdiplus::ULONG), 4u);
}

}  // namespace
