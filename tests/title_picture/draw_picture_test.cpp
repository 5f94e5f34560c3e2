#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <type_traits>
#include <utility>

#include "map_surround/picture.h"
#include "recording/expect.h"
#include "recording/lines.h"
#include "title_picture/image_file.h"

namespace {

using namespace recording;

// It turns about the middle, of which both numbers are whole.
TEST(DrawPicture, MeasuresTheBoxAroundTheTurnedImage) {
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();
    const struct {
        const char* name;
        unsigned int imageWidth, imageHeight;
        int size;
        float angle;
        int width;
        Gdiplus::Rect turned;
    } rows[] = {
        {"unturned", 200, 100, 50, 0, 100, {0, 0, 100, 50}},
        {"a little", 200, 100, 50, 30, 100, {-6, -22, 111, 93}},
        {"upright", 200, 100, 50, 90, 100, {25, -25, 50, 100}},
        {"back", 200, 100, 50, -45, 100, {-3, -28, 106, 106}},
        {"odd: 51 * 1.5 is 76.5", 300, 200, 51, 0, 76, {0, 0, 76, 51}},
        // 10 * 0.7f is 7 as a float, a little less as a double
        {"rounded up", 7, 10, 10, 0, 7, {0, 0, 7, 10}},
        {"negative", 200, 100, -51, 0, -102, {0, 0, 4, 8}},
        {"huge", 200, 100, highest, 0, highest, {0, 0, 4, 8}},
        {"lowest", 200, 100, lowest, 0, lowest, {0, 0, 4, 8}},
        {"not loaded", 0, 0, 40, 0, 0, {0, 0, 4, 8}},
        {"without height", 9, 0, 40, 0, highest, {0, 0, 4, 8}},
    };
    for (const auto& row : rows) {
        Recording recording(Mode::RecordOnly);
        recording.ScriptImageSize(row.imageWidth, row.imageHeight);
        recording.ScriptBounds({row.turned});
        CDrawPicture picture;
        picture.Open(L"a.png");
        picture.SetSize(row.size);
        picture.SetAngle(row.angle);
        const std::string box =
            "rectangle 0 0 " + std::to_string(row.width) + " " + std::to_string(row.size);
        const auto centreX = static_cast<float>(row.width / 2);
        const auto centreY = static_cast<float>(row.size / 2);
        // Twice: it starts from the image's own proportions each time.
        for (int i = 0; i < 2; ++i) {
            recording.Clear();
            picture.ResetAspectRatio();
            EXPECT_TRUE(Equal(
                {{"path", "GdipCreatePath 0"},
                 {"box", "GdipAddPathRectangleI " + box},
                 {"matrix", "GdipCreateMatrix"},
                 {"to the centre",
                  "GdipTranslateMatrix " + Number(centreX) + " " + Number(centreY)},
                 {"turn", "GdipRotateMatrix " + Number(row.angle)},
                 {"back",
                  "GdipTranslateMatrix " + Number(-centreX) + " " + Number(-centreY)},
                 {"turned", "GdipTransformPath path[" + box + "]"},
                 {"bounds", "GdipGetPathWorldBoundsI path[" + box + "]"},
                 {"matrix", "GdipDeleteMatrix matrix"},
                 {"path", "GdipDeletePath path[" + box + "]"}},
                recording.Lines()))
                << row.name;
            EXPECT_EQ(picture.GetNewHeight(), row.turned.Height) << row.name;
            EXPECT_EQ(picture.GetAspectRatio(), static_cast<float>(row.turned.Width) /
                                                    static_cast<float>(row.turned.Height))
                << row.name;
            EXPECT_EQ(picture.GetSize(), row.size) << row.name;
        }
    }
}

TEST(DrawPicture, HasNoWidthBeforeItIsOpened) {
    Recording recording(Mode::RecordOnly);
    recording.ScriptBounds({{0, 0, 4, 8}});
    CDrawPicture picture;
    picture.SetSize(40);
    picture.ResetAspectRatio();
    const std::vector<std::string> lines = recording.Lines();
    ASSERT_GT(lines.size(), 1u);
    EXPECT_EQ(lines[1], "GdipAddPathRectangleI rectangle 0 0 0 40");
}

TEST(DrawPicture, MeasuresRealBoxes) {
    const ImageFolder folder;
    CDrawPicture picture;
    picture.Open(folder.WriteBmp("a.bmp", 40, 20, 0).c_str());
    picture.SetSize(50);
    picture.ResetAspectRatio();
    EXPECT_EQ(picture.GetNewHeight(), 50);
    EXPECT_EQ(picture.GetAspectRatio(), 2.0f);
    picture.SetAngle(90.0f);
    picture.ResetAspectRatio();
    EXPECT_NEAR(picture.GetNewHeight(), 100, 1);
    EXPECT_NEAR(picture.GetAspectRatio(), 0.5, 0.02);
    picture.SetAngle(30.0f);
    picture.ResetAspectRatio();
    // 100 sin 30 + 50 cos 30 is 93.3, 100 cos 30 + 50 sin 30 is 111.6
    EXPECT_NEAR(picture.GetNewHeight(), 93.3, 1);
    EXPECT_NEAR(picture.GetAspectRatio(), 111.6 / 93.3, 0.02);
}

TEST(DrawPicture, StretchesTheImageIntoItsRectangle) {
    const struct {
        const char* name;
        int size;
        float aspectRatio;
        double scale;
        int halfWidth;
        int halfHeight;
    } rows[] = {
        {"half scale", 50, 2.0f, 0.5, 25, 12},       // 25 high
        {"full scale", 50, 2.0f, 1.0, 50, 25},       // 50 high
        {"enlarged", 50, 2.0f, 3.125, 156, 78},      // 156.25 is 156 high
        {"odd", 7, 1.0f, 1.0, 3, 3},                 // 7 high, 3.5 each way
        {"below a pixel", 1, 2.0f, 0.999, 0, 0},     // not drawn larger than it is
        {"one pixel", 1, 2.0f, 1.0, 1, 0},           // 2 wide, 1 high
        {"in doubles", 20, 1.0f, 0.69999999, 6, 6},  // not 14 high
        {"rounded up", 20, 0.7f, 1.0, 7, 10},        // 13.9999998 is 14 as a float
        {"turned over", 50, 2.0f, -1.0, -50, -25},
        {"mirrored", 50, -2.0f, 1.0, -50, 25},
        {"no scale", 50, 2.0f, 0.0, 0, 0},
    };
    for (const auto& row : rows) {
        for (const float angle : {0.0f, 30.0f, 90.0f, -45.0f}) {
            Surface surface;
            Recording recording(Mode::RecordOnly);
            CDrawPicture picture;
            picture.Open(L"logo.png");
            picture.SetSize(row.size);
            picture.SetAspectRatio(row.aspectRatio);
            picture.SetAngle(angle);
            recording.Clear();
            picture.Draw(surface.Graphics(), CPoint(200, 150), row.scale);
            EXPECT_TRUE(Equal(
                {{"to the centre", TranslateWorld(200, 150)},
                 {"turn", RotateWorld(angle)},
                 {"back", TranslateWorld(-200, -150)},
                 {"image",
                  DrawImage("image[\"logo.png\"]", 200 - row.halfWidth,
                            150 - row.halfHeight, 2 * row.halfWidth, 2 * row.halfHeight)},
                 {"reset", ResetWorld()}},
                recording.Lines()))
                << row.name << " at " << angle;
        }
    }
}

TEST(DrawPicture, DrawsTheProportionsOfTheTurnedBox) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    recording.ScriptImageSize(200, 100);
    recording.ScriptBounds({{0, 0, 90, 120}});
    CDrawPicture picture;
    picture.Open(L"a");
    picture.SetSize(40);
    picture.ResetAspectRatio();
    picture.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
    // 90 / 120 of the height of 40
    EXPECT_EQ(recording.Drawing().at(3), DrawImage("image[\"a\"]", -15, -20, 30, 40));
}

TEST(DrawPicture, DrawsNothingBeforeItIsOpened) {
    Surface surface;
    CDrawPicture picture;
    picture.SetSize(40);
    Recording recording;
    picture.Draw(surface.Graphics(), CPoint(100, 100), 1.0);
    picture.Draw(nullptr, CPoint(100, 100), 1.0);
    EXPECT_EQ(recording.Count(), 0);
}

/// Opens a picture of 200 x 100 pixels and turns it, so that no field has its default.
void Turn(CDrawPicture& picture) {
    picture.Open(L"a");
    picture.SetAngle(90.0f);
    picture.ResetAspectRatio();
}

/// Expects the picture that Turn makes, with its image.
void ExpectTurned(CDrawPicture& picture, Recording& recording) {
    EXPECT_EQ(picture.GetPath(), L"a");
    EXPECT_EQ(picture.GetSize(), 33);
    EXPECT_EQ(picture.GetAspectRatio(), 0.5f);
    EXPECT_EQ(picture.GetAngle(), 90.0f);
    EXPECT_EQ(picture.GetNewHeight(), 20);
    EXPECT_EQ(picture.GetItemType(), SurroundPicture);
    recording.Clear();
    picture.ResetAspectRatio();
    // 33 * 2, the image's own proportions
    EXPECT_EQ(recording.Lines().at(1), "GdipAddPathRectangleI rectangle 0 0 66 33");
    Surface surface;
    recording.Clear();
    picture.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
    EXPECT_EQ(recording.Drawing().at(3), DrawImage("image[\"a\"]", -8, -16, 16, 32));
    recording.Clear();
}

TEST(DrawPicture, SharesTheImageWithCopies) {
    Recording recording(Mode::RecordOnly);
    recording.ScriptImageSize(200, 100);
    recording.ScriptBounds({{0, 0, 10, 20}});
    // Never destroyed, as the image is the other's to dispose of; so short a path needs
    // no memory of its own.
    alignas(CDrawPicture) unsigned char storage[2][sizeof(CDrawPicture)];
    {
        CDrawPicture picture;
        Turn(picture);
        CDrawPicture* const copy = new (storage[0]) CDrawPicture(picture);
        CDrawPicture* const assigned = new (storage[1]) CDrawPicture;
        EXPECT_EQ(&(*assigned = picture), assigned);
        ExpectTurned(*copy, recording);
        ExpectTurned(*assigned, recording);
        EXPECT_EQ(LiveObjects().size(), 1u);
    }
    EXPECT_TRUE(
        Equal({{"disposal", "GdipDisposeImage image[\"a\"]"}}, recording.Lines()));
}

static_assert(std::is_nothrow_move_constructible_v<CDrawPicture>);
static_assert(std::is_nothrow_move_assignable_v<CDrawPicture>);

TEST(DrawPicture, MovesTheImage) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    recording.ScriptImageSize(200, 100);
    recording.ScriptBounds({{0, 0, 10, 20}});
    {
        CDrawPicture picture;
        Turn(picture);
        CDrawPicture assigned;
        recording.ScriptImageSize(100, 100);
        assigned.Open(L"b");
        recording.Clear();

        CDrawPicture moved(std::move(picture));
        CDrawPicture& itself = moved;
        moved = std::move(itself);
        CDrawPicture empty;
        empty = std::move(moved);
        EXPECT_EQ(recording.Count(), 0);
        EXPECT_EQ(&(assigned = std::move(empty)), &assigned);
        EXPECT_TRUE(
            Equal({{"disposal", "GdipDisposeImage image[\"b\"]"}}, recording.Lines()));
        recording.Clear();

        picture.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
        moved.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
        EXPECT_EQ(recording.Count(), 0) << "nothing is left to draw";
        ExpectTurned(assigned, recording);
    }
    EXPECT_TRUE(
        Equal({{"disposal", "GdipDisposeImage image[\"a\"]"}}, recording.Lines()));
}

TEST(DrawPicture, PaintsTheImage) {
    const ImageFolder folder;
    Surface surface(100, 100);
    CDrawPicture picture;
    picture.Open(folder.WriteBmp("a.bmp", 60, 30, 0x20A040).c_str());
    EXPECT_EQ(picture.GetSize(), 10);
    picture.Draw(surface.Graphics(), CPoint(50, 50), 2.0);
    picture.SetAngle(90.0f);
    picture.Draw(surface.Graphics(), CPoint(50, 50), 2.0);
    struct Row {
        int x;
        int y;
        Gdiplus::ARGB color;
    };
    // 40 x 20 both ways about the centre
    for (const Row& row :
         {Row{50, 50, 0xFF20A040}, Row{33, 50, 0xFF20A040}, Row{66, 50, 0xFF20A040},
          Row{50, 33, 0xFF20A040}, Row{50, 66, 0xFF20A040}, Row{27, 50, 0xFFFFFFFF},
          Row{50, 27, 0xFFFFFFFF}, Row{35, 35, 0xFFFFFFFF}}) {
        Gdiplus::Color color;
        surface.Bitmap().GetPixel(row.x, row.y, &color);
        EXPECT_EQ(Hex(color.GetValue()), Hex(row.color)) << row.x << ", " << row.y;
    }
    EXPECT_EQ(surface.WorldTransform(), (std::vector<float>{1, 0, 0, 1, 0, 0}));
}

// 2^30 - 1 is half of the largest height; twice that is one less than it.
TEST(DrawPicture, IsCutToWhatGdiPlusTakes) {
    const int half = 1073741823;
    const int low = std::numeric_limits<int>::min();
    const int top = std::numeric_limits<int>::max();
    const float on = std::numeric_limits<float>::infinity();
    const float none = std::numeric_limits<float>::quiet_NaN();
    const struct {
        const char* name;
        int size;
        float aspectRatio;
        double scale;
        int centre;
        int x, y, width, height;
    } rows[] = {
        {"highest", top, 1, 1, 0, -half - 1, -half, top, 2 * half},
        {"highest, far out", top, 1, 1, low, low, low, top, 2 * half},
        {"lowest", low, 1, 1, 0, half + 1, half + 1, low, low},
        {"lowest, far out", low, 1, 1, top, top, top, low, low},
        {"past the highest", 1, 1, 1e300, 0, -half - 1, -half, top, 2 * half},
        {"endless", 1, 1, on, 0, -half - 1, -half, top, 2 * half},
        {"backwards without end", 1, 1, -on, 0, half + 1, half + 1, low, low},
        {"endlessly wide", 2, on, 1, 5, 5 - top, 4, top, 2},
        {"endless times nothing", 0, 1, on, 5, 5, 5, 0, 0},
        {"no number for a scale", 40, 1, none, 5, 5, 5, 0, 0},
        {"no number for a ratio", 40, none, 1, 5, 5, -15, 0, 40},
    };
    for (const auto& row : rows) {
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

}  // namespace
