#include "faults/disturbance.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace faults;

/// A drawing by its lines; all but what makes, changes and deletes is visible.
Trace Lines(const std::vector<std::string>& lines) {
    Trace trace;
    for (const std::string& line : lines) {
        const bool visible =
            line.rfind("GdipDraw", 0) == 0 || line.rfind("GdipFill", 0) == 0;
        trace.push_back({line, visible});
    }
    return trace;
}

const std::string kPen = "GdipCreatePen1 #FF000000 1 unit 0";
const std::string kColour = "GdipSetPenColor #FF00FF00";
const std::string kLine = "GdipDrawLineI pen[#FF00FF00 width 1] (1, 2) (3, 4)";
const std::string kText =
    "GdipDrawString \"a null [\" (1, 2) 0 x 0 font[\"A B\" 9 style 0 unit 2] "
    "brush[#FF000000] format null";

struct Row {
    const char* name;
    int failingCall;
    std::string failingFunction;
    std::vector<std::string> disturbed;
    bool goesOn;
    Gdiplus::Status last;
};

TEST(Disturbance, IsToldFromADrawingThatStops) {
    const Gdiplus::Status ok = Gdiplus::Ok;
    const Gdiplus::Status null = Gdiplus::InvalidParameter;
    const Gdiplus::Status ordered = Gdiplus::GenericError;
    const std::string noPen = "GdipDrawLineI null (1, 2) (3, 4)";
    const std::string black = "GdipDrawLineI pen[#FF000000 width 1] (1, 2) (3, 4)";
    const std::string moved = "GdipDrawLineI pen[#FF00FF00 width 1] (1, 2) (3, 5)";
    const std::string noFont =
        "GdipDrawString \"a null [\" (1, 2) 0 x 0 null brush[#FF000000] format null";
    const Row rows[] = {
        {"no pen", 1, "", {kPen, kColour, noPen, kText}, true, null},
        {"no pen, but one is drawn with", 1, "", {kPen, kColour, kLine, kText}, true, ok},
        {"no pen ever, but one is drawn with",
         0,
         "GdipCreatePen1",
         {kPen, kColour, kLine, kText},
         false,
         ok},
        {"no colour", 2, "", {kPen, kColour, black, kText}, true, ok},
        {"no colour, and no pen", 2, "", {kPen, kColour, noPen, kText}, false, null},
        {"no line", 3, "", {kPen, kColour, kLine, kText}, true, ordered},
        {"no line, and no more", 3, "", {kPen, kColour, kLine}, false, ordered},
        {"no line, and one more",
         3,
         "",
         {kPen, kColour, kLine, kText, kText},
         false,
         ordered},
        {"no line, and no font", 3, "", {kPen, kColour, kLine, noFont}, false, null},
        {"a line elsewhere", 1, "", {kPen, kColour, moved, kText}, false, ok},
        {"a colour less", 1, "", {kPen, noPen, kText}, false, null},
        {"no text, for want of a pen before",
         4,
         "",
         {kPen, kColour, noPen, kText},
         false,
         ordered},
        {"nothing", 0, "", {kPen, kColour, noPen, kText}, true, ordered},
        {"nothing, but a pen is drawn with",
         0,
         "",
         {kPen, kColour, kLine, kText},
         false,
         ordered},
    };
    const Trace undisturbed = Lines({kPen, kColour, kLine, kText});
    for (const Row& row : rows) {
        const Fault fault{row.failingCall, row.failingFunction, ordered};
        const Trace disturbed = Lines(row.disturbed);
        EXPECT_EQ(static_cast<bool>(GoesOn(undisturbed, disturbed, fault)), row.goesOn)
            << row.name;
        EXPECT_EQ(LastStatusOf(disturbed, &fault), row.last) << row.name;
    }
    EXPECT_EQ(LastStatusOf(undisturbed), ok);
}

TEST(Disturbance, LeavesOutWhatNeedsAnObject) {
    const std::string font = "GdipCreateFont font[\"A\" 9 style 0 unit 2]";
    const std::string add =
        "GdipAddPathString \"a\" \"A\" 9 style 0 at 0 0 0 0 format[0]";
    const std::string bounds = "GdipGetPathWorldBoundsI path[]";
    const Trace undisturbed = Lines({font, add, bounds});
    const Trace without = Lines({font, bounds});
    EXPECT_TRUE(GoesOn(undisturbed, without, {1, "", Gdiplus::OutOfMemory}));
    EXPECT_FALSE(GoesOn(undisturbed, without, {3, "", Gdiplus::OutOfMemory}));
}

TEST(Disturbance, LeavesNoTraceLater) {
    const std::string dispose = "GdipDisposeImage image[\"a.png\"]";
    const std::string disposeNull = "GdipDisposeImage null";
    const Trace undisturbed = Lines({dispose, kLine});
    EXPECT_TRUE(IsItselfAgain(undisturbed, undisturbed));
    EXPECT_TRUE(IsItselfAgain(undisturbed, Lines({disposeNull, kLine})));
    EXPECT_FALSE(IsItselfAgain(undisturbed, Lines({kLine, kLine})));
    EXPECT_FALSE(IsItselfAgain(undisturbed, Lines({dispose})));
    EXPECT_FALSE(IsItselfAgain(undisturbed, Lines({dispose, kLine, kLine})));

    EXPECT_TRUE(DrawsTheSameKinds(undisturbed, Lines({kLine + " elsewhere", kPen})));
    EXPECT_FALSE(DrawsTheSameKinds(undisturbed, Lines({kPen})));
    EXPECT_FALSE(DrawsTheSameKinds(undisturbed, Lines({kText})));
}

}  // namespace
