#define GDIPLUS_NO_WINDOWS_TYPES
#include <gdiplus.h>
//
#include <gtest/gtest.h>

#include "binding/other_windows_types.h"

namespace {

TEST(OtherWindowsTypes, MayComeAfterOurs) {
    const Gdiplus::AdjustableArrowCap cap(4.0f, 2.0f, TRUE);
    const BOOL filled = cap.IsFilled();
    EXPECT_EQ(filled, TRUE);
    EXPECT_EQ(sizeof(ULONG), sizeof(long));
    EXPECT_EQ(sizeof(Gdiplus::ULONG), 4u);
}

}  // namespace
