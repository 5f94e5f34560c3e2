#include <gtest/gtest.h>

#include "map_surround/frame.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using namespace recording;

TEST(DrawFrame, DrawsNothingWithAllSwitchesOff) {
    Surface surface;
    CFrameBase frame;
    Recording recording;
    frame.DrawFrame(surface.Graphics(), CRect(10, 20, 110, 70));
    EXPECT_EQ(recording.Count(), 0);
}

TEST(DrawFrame, BorderStandsOutByItsGaps) {
    Surface surface;
    CFrameBase frame;
    frame.DrawBorder = true;
    frame.BorderGapX = 3;
    frame.BorderGapY = 3;
    Recording recording;
    frame.DrawFrame(surface.Graphics(), CRect(10, 20, 110, 70));
    EXPECT_TRUE(Equal({{"pen", "GdipCreatePen1 #FF000000 1 unit 0"},
                       {"border", DrawRectangle(PenLook(0xFF000000, 1), 7, 17, 106, 56)},
                       {"pen", "GdipDeletePen " + PenLook(0xFF000000, 1)}},
                      recording.Lines()));
}

}  // namespace
