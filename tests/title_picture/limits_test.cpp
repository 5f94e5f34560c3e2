#include <gtest/gtest.h>

#include <limits>

#include "map_surround/picture.h"
#include "map_surround/title.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using namespace recording;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(Limits, AnAngleThatIsNotFiniteTurnsNothing) {
    for (const float angle : {kNaN, kInfinity, -kInfinity}) {
        Surface surface;
        CMapTitle title;
        title.SetFontValue(L"Map");
        title.SetFontStyle(L"Arial");
        title.ResetAspectRatio();
        const int size = title.GetSize();
        title.SetAngle(angle);
        title.ResetAspectRatio();
        EXPECT_EQ(title.GetSize(), size);
        Recording recording;
        title.Draw(surface.Graphics(), CPoint(30, 20), 1.0);
        EXPECT_EQ(recording.Drawing().at(1), RotateWorld(0));
    }
}

struct PictureRow {
    const char* name;
    int size;
    float aspectRatio;
    double scale;
    int centre;
    int x, y, width, height;
};

// 2^30 - 1 is half of the largest height; twice that is one less than it.
TEST(Limits, APictureIsCutToWhatGdiPlusTakes) {
    const int half = 1073741823;
    const int low = kLowest;
    const int top = kHighest;
    const double on = kInfinity;
    const PictureRow rows[] = {
        {"highest", top, 1, 1, 0, -half - 1, -half, top, 2 * half},
        {"highest, far out", top, 1, 1, low, low, low, top, 2 * half},
        {"lowest", low, 1, 1, 0, half + 1, half + 1, low, low},
        {"lowest, far out", low, 1, 1, top, top, top, low, low},
        {"past the highest", 1, 1, 1e300, 0, -half - 1, -half, top, 2 * half},
        {"endless", 1, 1, on, 0, -half - 1, -half, top, 2 * half},
        {"backwards without end", 1, 1, -on, 0, half + 1, half + 1, low, low},
        {"endlessly wide", 2, kInfinity, 1, 5, 5 - top, 4, top, 2},
        {"endless times nothing", 0, 1, on, 5, 5, 5, 0, 0},
        {"no number for a scale", 40, 1, kNaN, 5, 5, 5, 0, 0},
        {"no number for a ratio", 40, kNaN, 1, 5, 5, -15, 0, 40},
    };
    for (const PictureRow& row : rows) {
        Surface surface;
        Recording recording(Mode::RecordOnly);
        CDrawPicture picture;
        picture.Open(L"a");
        picture.SetSize(row.size);
        picture.SetAspectRatio(row.aspectRatio);
        picture.Draw(surface.Graphics(), CPoint(row.centre, row.centre), row.scale);
        EXPECT_EQ(recording.Drawing().at(3),
                  DrawImage("image[\"a\"]", row.x, row.y, row.width, row.height))
            << row.name;
    }
}

struct TitleRow {
    const char* name;
    double fontSize;
    double scale;
    int centre;
    std::string emSize;
    std::string at;
};

// The outline is 60 x 20.
TEST(Limits, ATitleIsPlacedInDoubles) {
    const TitleRow rows[] = {
        {"endless", 15.0, kInfinity, 0, "inf", "(-inf, -inf)"},
        {"no number", 15.0, kNaN, 0, "nan", "(nan, nan)"},
        {"past a float", 15.0, 1e300, 0, "inf", "(-inf, -inf)"},
        {"a font size past a float", 1e300, 1.0, 100, "inf", "(70, 90)"},
        {"no font size", kNaN, 1.0, 100, "nan", "(70, 90)"},
        {"a far centre", 15.0, 0.0, kHighest, "0", "(2147483648, 2147483648)"},
        // 2^31 - 1 - 30 * 4 is 2147483527, exact only as a double; floats are 128 apart
        {"a far centre, back", 15.0, 4.0, kHighest, "60", "(2147483520, 2147483648)"},
    };
    for (const TitleRow& row : rows) {
        Surface surface;
        CMapTitle title;
        title.SetFontValue(L"Map");
        title.SetFontStyle(L"Arial");
        Recording recording(Mode::RecordOnly);
        recording.ScriptBounds({{1, 3, 60, 20}});
        title.ResetAspectRatio();
        title.SetFontSize(row.fontSize);
        recording.Clear();
        title.Draw(surface.Graphics(), CPoint(row.centre, row.centre), row.scale);
        EXPECT_EQ(recording.Lines().at(1),
                  "GdipCreateFont font[\"Arial\" " + row.emSize + " style 0 unit 2]")
            << row.name;
        EXPECT_EQ(recording.Drawing().at(3).rfind(
                      "GdipDrawString \"Map\" " + row.at + " 0 x 0 ", 0),
                  0u)
            << row.name << ": " << recording.Drawing().at(3);
    }
}

}  // namespace
