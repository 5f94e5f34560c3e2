#include <gtest/gtest.h>

#include "map_surround/title.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using namespace recording;

TEST(MapTitle, DrawsNothingWithoutText) {
    Surface surface;
    CMapTitle title;
    title.SetFontStyle(L"Arial");
    Recording recording;
    title.Draw(surface.Graphics(), CPoint(100, 100), 1.0);
    EXPECT_EQ(recording.Count(), 0);
}

}  // namespace
