#include "recording/recording.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <stdexcept>

#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using namespace recording;

void DrawCorner(Gdiplus::Graphics* graphics) {
    const Gdiplus::Pen pen(Gdiplus::Color(0xFF102030), 2.5f);
    graphics->DrawLine(&pen, 1, 2, 3, 4);
    graphics->DrawRectangle(&pen, 5, 6, 7, 8);
}

const std::string kCornerPen = PenLook(0xFF102030, 2.5f);

const std::vector<Named> kCorner = {
    {"pen", "GdipCreatePen1 #FF102030 2.5 unit 0"},
    {"line", "GdipDrawLineI pen[#FF102030 width 2.5] (1, 2) (3, 4)"},
    {"rectangle", "GdipDrawRectangleI pen[#FF102030 width 2.5] (5, 6) 7 x 8"},
    {"pen", "GdipDeletePen pen[#FF102030 width 2.5]"},
};

TEST(Recording, WritesEachCallWithWhatItUses) {
    for (const Mode mode : {Mode::Forward, Mode::RecordOnly}) {
        Surface surface;
        Recording recording(mode);
        DrawCorner(surface.Graphics());
        EXPECT_TRUE(Equal(kCorner, recording.Lines()));
        EXPECT_TRUE(Equal({{"line", DrawLine(kCornerPen, 1, 2, 3, 4)},
                           {"rectangle", DrawRectangle(kCornerPen, 5, 6, 7, 8)}},
                          recording.Drawing()));
        EXPECT_EQ(recording.Count(), 4);
        recording.Clear();
        EXPECT_EQ(recording.Count(), 0);
        EXPECT_TRUE(recording.Lines().empty());
    }
}

TEST(Recording, ForwardsOnlyWhenAskedTo) {
    struct Row {
        Mode mode;
        Gdiplus::ARGB pixel;
        std::size_t lines;
    };
    const Row rows[] = {
        {Mode::Forward, 0xFF00FF00, 3},
        {Mode::RecordOnly, 0xFFFFFFFF, 3},
        {Mode::Silent, 0xFFFFFFFF, 0},
    };
    for (const Row& row : rows) {
        Surface surface(8, 8);
        {
            Recording recording(row.mode);
            const Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF00FF00));
            surface.Graphics()->FillRectangle(&brush, 0, 0, 8, 8);
            EXPECT_EQ(LiveObjects().size(), 1u);
            EXPECT_EQ(recording.Count(), 2);
            EXPECT_EQ(recording.Lines().size(), row.lines == 0 ? 0u : 2u);
        }
        Gdiplus::Color pixel;
        surface.Bitmap().GetPixel(4, 4, &pixel);
        EXPECT_EQ(pixel.GetValue(), row.pixel);
        EXPECT_TRUE(NothingAlive());
    }
}

TEST(Recording, LeavesOutWhatGdiPlusCallsWithinItself) {
    Surface surface;
    const Gdiplus::FontFamily family(L"Arial");
    Recording recording;
    Gdiplus::GraphicsPath path;
    path.AddString(L"Map", 3, &family, 0, 20.0f, Gdiplus::RectF(), nullptr);
    EXPECT_EQ(recording.Count(), 2);
    surface.WorldTransform();
    EXPECT_EQ(recording.Count(), 2);
    EXPECT_EQ(LiveObjects().size(), 2u);
}

Gdiplus::Rect BoundsOf(const Gdiplus::GraphicsPath& path) {
    Gdiplus::Rect bounds;
    path.GetBounds(&bounds, nullptr, nullptr);
    return bounds;
}

TEST(Recording, AnswersNoBoundsWhereTheCallFails) {
    Recording recording;
    Gdiplus::GraphicsPath path;
    recording.ScriptBounds({{5, 6, 7, 8}});
    recording.FailCall(1);
    EXPECT_TRUE(BoundsOf(path).Equals({0, 0, 0, 0}));
    EXPECT_EQ(path.GetLastStatus(), Gdiplus::GenericError);
    EXPECT_TRUE(BoundsOf(path).Equals({5, 6, 7, 8}));
}

TEST(Recording, FailsTheCallThatIsNamed) {
    for (const Mode mode : {Mode::Forward, Mode::RecordOnly, Mode::Silent}) {
        for (int n = 1; n <= 5; ++n) {
            Surface surface;
            Recording recording(mode);
            recording.FailCall(n, Gdiplus::OutOfMemory);
            DrawCorner(surface.Graphics());
            EXPECT_EQ(recording.Count(), 4) << "the rest goes on";
            const Gdiplus::Status expected = n == 1   ? Gdiplus::InvalidParameter
                                             : n <= 3 ? Gdiplus::OutOfMemory
                                                      : Gdiplus::Ok;
            EXPECT_EQ(surface.Graphics()->GetLastStatus(), expected)
                << "failing call " << n << " (1: the pen, so that none is drawn with)";
            EXPECT_TRUE(NothingAlive()) << "failing call " << n;
        }
    }
}

TEST(Recording, FailsCallsByTheirNames) {
    struct Row {
        const char* prefix;
        Gdiplus::Status ofLine;
        std::size_t alive;
    };
    const Row rows[] = {
        {"", Gdiplus::FileNotFound, 0},
        {"GdipCreate", Gdiplus::InvalidParameter, 0},
        {"GdipDrawLine", Gdiplus::FileNotFound, 1},
        {"GdipDelete", Gdiplus::Ok, 1},
        {"GdipDrawLineI ", Gdiplus::FileNotFound, 1},
        {"GdipDrawLine ", Gdiplus::Ok, 1},
        {"Gdip_", Gdiplus::Ok, 1},
    };
    for (const Row& row : rows) {
        Surface surface;
        Recording recording;
        recording.FailCallsOf(row.prefix, Gdiplus::FileNotFound);
        {
            const Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), 1.0f);
            EXPECT_EQ(LiveObjects().size(), row.alive) << row.prefix;
            EXPECT_EQ(surface.Graphics()->DrawLine(&pen, 0, 0, 9, 9), row.ofLine)
                << row.prefix;
        }
        EXPECT_TRUE(NothingAlive()) << row.prefix;
    }
}

TEST(Recording, RefusesWithoutGdiPlusWhatGdiPlusRefuses) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    const Gdiplus::FontFamily nameless(std::wstring().c_str());
    const Gdiplus::FontFamily family(L"Arial");
    EXPECT_EQ(nameless.IsAvailable(), 0);
    EXPECT_NE(family.IsAvailable(), 0);
    struct Row {
        const Gdiplus::FontFamily* family;
        float emSize;
        bool made;
    };
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const Row rows[] = {
        {&nameless, 10.0f, false}, {&family, 10.0f, true}, {&family, 0.0f, false},
        {&family, -1.0f, false},   {&family, nan, false},
    };
    for (const Row& row : rows) {
        const Gdiplus::Font font(row.family, row.emSize, 0, Gdiplus::UnitPixel);
        EXPECT_EQ(font.GetLastStatus() == Gdiplus::Ok, row.made) << row.emSize;
        EXPECT_EQ(font.GetSize(), row.made ? row.emSize : 0.0f);
    }
}

TEST(Recording, LetsObjectsOutliveIt) {
    auto real = std::make_unique<Gdiplus::Matrix>();
    std::unique_ptr<Gdiplus::Matrix> token;
    {
        Recording recording(Mode::RecordOnly);
        token = std::make_unique<Gdiplus::Matrix>();
        real.reset();
        EXPECT_EQ(LiveObjects().size(), 1u);
    }
    token.reset();
    EXPECT_TRUE(NothingAlive());
}

TEST(Recording, IsOneAtATime) {
    {
        const Recording recording;
        EXPECT_THROW(Recording(), std::logic_error);
    }
    Recording next;
    EXPECT_EQ(next.Count(), 0);
}

TEST(Recording, StartsAnewEachTime) {
    {
        Recording recording;
        recording.ScriptBounds({{5, 6, 7, 8}});
        recording.ScriptImageSize(1, 1);
        recording.FailCallsOf("");
        recording.FailCall(100);
    }
    Recording recording(Mode::RecordOnly);
    Gdiplus::GraphicsPath path;
    EXPECT_EQ(path.GetLastStatus(), Gdiplus::Ok);
    EXPECT_TRUE(BoundsOf(path).Equals({0, 0, 0, 0}));
}

TEST(Equal, TellsTheFirstDifference) {
    const std::vector<Named> expected = {{"tick 1", "a"}, {"tick 2", "b"}};
    EXPECT_TRUE(Equal(expected, {"a", "b"}));
    EXPECT_STREQ(Equal(expected, {"a", "c"}).message(),
                 "tick 2 (call 2):\n  expected b\n  drawn    c");
    EXPECT_STREQ(Equal(expected, {"a"}).message(),
                 "tick 2: expected b, but the drawing ends after 1 calls");
    EXPECT_STREQ(Equal(expected, {"a", "b", "c"}).message(), "call 3 is one too many: c");
}

}  // namespace
