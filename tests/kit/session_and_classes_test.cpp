#include <gtest/gtest.h>

#include "map_surround/kit/classification_table.h"
#include "map_surround/kit/gdiplus_session.h"

namespace {

using map_surround::kit::ClassificationTable;

TEST(ClassificationTable, IsEmptyAtFirst) {
    ClassificationTable table;
    EXPECT_EQ(table.GetClassesCount(), 0);
    EXPECT_EQ(table.GetClassifyItem(0), nullptr);
    EXPECT_EQ(table.GetClassifyItem(-1), nullptr);
}

TEST(ClassificationTable, KeepsLabelsAndColoursInOrder) {
    ClassificationTable table;
    table.Add(L"Water", {1, 2, 3, 4});
    CClassifyDisplayItem* const first = table.GetClassifyItem(0);
    for (int i = 1; i < 1000; ++i) {
        table.Add(L"水", {250, 251, 252});
    }
    ASSERT_EQ(table.GetClassesCount(), 1000);
    EXPECT_EQ(table.GetClassifyItem(0), first);
    EXPECT_EQ(table.GetClassifyItem(1000), nullptr);
    EXPECT_EQ(first->GetLable(), L"Water");
    EXPECT_EQ(table.GetClassifyItem(999)->GetLable(), L"水");

    unsigned char red = 0, green = 0, blue = 0, fourth = 0;
    first->GetColor(red, green, blue, fourth);
    EXPECT_EQ(red, 1);
    EXPECT_EQ(green, 2);
    EXPECT_EQ(blue, 3);
    EXPECT_EQ(fourth, 4);
    table.GetClassifyItem(999)->GetColor(red, green, blue, fourth);
    EXPECT_EQ(red, 250);
    EXPECT_EQ(green, 251);
    EXPECT_EQ(blue, 252);
    EXPECT_EQ(fourth, 255);  // opaque unless told otherwise
}

TEST(GdiplusSession, LetsElementsBeDrawnAsLongAsItLives) {
    const map_surround::kit::GdiplusSession second;  // beside the tests' own
    EXPECT_EQ(second.GetStatus(), Gdiplus::Ok);
    Gdiplus::Bitmap bitmap(4, 4);
    EXPECT_EQ(bitmap.GetLastStatus(), Gdiplus::Ok);

    Gdiplus::GdiplusStartupInput input;
    input.GdiplusVersion = 77;
    EXPECT_NE(map_surround::kit::GdiplusSession(input).GetStatus(), Gdiplus::Ok);
}

}  // namespace
