#include "faults/disturbance.h"

#include <gtest/gtest.h>

#include <map>
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

/// A drawing, one letter for each call.
Trace Calls(const std::string& letters) {
    const std::map<char, std::string> lines = {
        {'p', kPen},
        {'c', kColour},
        {'l', kLine},
        {'t', kText},
        {'n', "GdipDrawLineI null (1, 2) (3, 4)"},
        {'b', "GdipDrawLineI pen[#FF000000 width 1] (1, 2) (3, 4)"},
        {'m', "GdipDrawLineI pen[#FF00FF00 width 1] (1, 2) (3, 5)"},
        {'f',
         "GdipDrawString \"a null [\" (1, 2) 0 x 0 null brush[#FF000000] format null"},
    };
    std::vector<std::string> drawing;
    for (const char letter : letters) {
        drawing.push_back(lines.at(letter));
    }
    return Lines(drawing);
}

TEST(Disturbance, IsToldFromADrawingThatStops) {
    const Gdiplus::Status ok = Gdiplus::Ok;
    const Gdiplus::Status null = Gdiplus::InvalidParameter;
    const Gdiplus::Status ordered = Gdiplus::GenericError;
    const struct {
        const char* name;
        int failingCall;
        const char* failingFunction;
        const char* disturbed;
        bool goesOn;
        Gdiplus::Status last;
    } rows[] = {
        {"no pen", 1, "", "pcnt", true, null},
        {"no pen, but one is drawn with", 1, "", "pclt", true, ok},
        {"no pen ever, but one is drawn with", 0, "GdipCreatePen1", "pclt", false, ok},
        {"no colour", 2, "", "pcbt", true, ok},
        {"no colour, and no pen", 2, "", "pcnt", false, null},
        {"no line", 3, "", "pclt", true, ordered},
        {"no line, and no more", 3, "", "pcl", false, ordered},
        {"no line, and one more", 3, "", "pcltt", false, ordered},
        {"no line, and no font", 3, "", "pclf", false, null},
        {"a line elsewhere", 1, "", "pcmt", false, ok},
        {"a colour less", 1, "", "pnt", false, null},
        {"no text, for want of a pen before", 4, "", "pcnt", false, ordered},
        {"nothing", 0, "", "pcnt", true, ordered},
        {"nothing, but a pen is drawn with", 0, "", "pclt", false, ordered},
    };
    const Trace undisturbed = Calls("pclt");
    for (const auto& row : rows) {
        const Fault fault{row.failingCall, row.failingFunction, ordered};
        const Trace disturbed = Calls(row.disturbed);
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
