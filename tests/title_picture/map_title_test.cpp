#include "map_surround/title.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <limits>

#include "element/no_numbers.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using namespace recording;

constexpr int kMost = std::numeric_limits<int>::max();

CMapTitle Title(const std::wstring& text = L"Olinda") {
    CMapTitle title;
    title.SetFontValue(text);
    title.SetFontStyle(L"Arial");
    title.SetFontProcess(FontProcessBold);
    return title;
}

std::vector<Named> Measuring(const std::string& text, const Gdiplus::Rect& bounds,
                             float angle) {
    const auto centreX = static_cast<float>(bounds.X + bounds.Width / 2.0);
    const auto centreY = static_cast<float>(bounds.Y + bounds.Height / 2.0);
    const std::string family = "family[\"Arial\"]";
    const std::string font = FontLook("Arial", 15, 1);
    const std::string format = FormatLook(0, 0);
    const std::string outline = "\"" + text + "\" \"Arial\" 15";
    const std::string box =
        "rectangle " + std::to_string(bounds.X) + " " + std::to_string(bounds.Y) + " " +
        std::to_string(bounds.Width) + " " + std::to_string(bounds.Height);
    return {
        {"family", "GdipCreateFontFamilyFromName \"Arial\""},
        {"font", "GdipCreateFont " + font},
        {"format", "GdipCreateStringFormat 0 0"},
        {"alignment", "GdipSetStringFormatAlign 0"},
        {"outline", "GdipCreatePath 0"},
        {"em size", "GdipGetFontSize " + font},
        {"style", "GdipGetFontStyle " + font},
        {"text", "GdipAddPathString " + outline + " style 1 at 0 0 0 0 " + format},
        {"text bounds", "GdipGetPathWorldBoundsI path[" + outline + "]"},
        {"matrix", "GdipCreateMatrix"},
        {"to the centre",
         "GdipTranslateMatrix " + Number(centreX) + " " + Number(centreY)},
        {"turn", "GdipRotateMatrix " + Number(angle)},
        {"back", "GdipTranslateMatrix " + Number(-centreX) + " " + Number(-centreY)},
        {"box", "GdipCreatePath 0"},
        {"box", "GdipAddPathRectangleI " + box},
        {"turned box", "GdipTransformPath path[" + box + "]"},
        {"turned bounds", "GdipGetPathWorldBoundsI path[" + box + "]"},
        {"box", "GdipDeletePath path[" + box + "]"},
        {"matrix", "GdipDeleteMatrix matrix"},
        {"outline", "GdipDeletePath path[" + outline + "]"},
        {"format", "GdipDeleteStringFormat " + format},
        {"font", "GdipDeleteFont " + font},
        {"family", "GdipDeleteFontFamily " + family},
    };
}

// It turns about the middle of its outline, halves included.
TEST(MapTitle, MeasuresTheBoxAroundItsTurnedOutline) {
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();
    const struct {
        const char* name;
        Gdiplus::Rect bounds;
        float angle;
        Gdiplus::Rect turned;
    } rows[] = {
        {"unturned", {1, 3, 60, 20}, 0, {1, 3, 60, 20}},
        {"a little", {1, 3, 60, 20}, 30, {0, -10, 62, 47}},
        {"upright", {1, 3, 60, 20}, 90, {21, -17, 20, 60}},
        {"back", {1, 3, 60, 20}, -45, {3, -15, 57, 57}},
        {"odd sides", {2, -4, 61, 15}, 0, {2, -4, 61, 15}},
        {"left of its origin", {-3, 0, 5, 9}, 0, {-3, 0, 5, 9}},
        {"huge", {highest, highest, highest, highest}, 0, {0, 0, highest, 1}},
        {"huge and negative", {lowest, lowest, lowest, lowest}, 0, {0, 0, 1, lowest}},
        {"no height", {1, 3, 60, 0}, 0, {1, 3, 60, 0}},
    };
    for (const auto& row : rows) {
        CMapTitle title = Title();
        title.SetAngle(row.angle);
        Recording recording(Mode::RecordOnly);
        recording.ScriptBounds({row.bounds, row.turned});
        title.ResetAspectRatio();
        EXPECT_TRUE(Equal(Measuring("Olinda", row.bounds, row.angle), recording.Lines()))
            << row.name;
        EXPECT_EQ(title.GetSize(), row.turned.Height) << row.name;
        EXPECT_EQ(title.GetAspectRatio(), static_cast<float>(row.turned.Width) /
                                              static_cast<float>(row.turned.Height))
            << row.name;
    }
}

struct Text {
    std::wstring text;
    std::string utf8;
};

const Text kTexts[] = {
    {L"Olinda, Brasil", "Olinda, Brasil"},
    {L"\u56FE\u4F8B", "\xE5\x9B\xBE\xE4\xBE\x8B"},
    {L"\U0001F5FA \U00020000", "\xF0\x9F\x97\xBA \xF0\xA0\x80\x80"},
};

TEST(MapTitle, MeasuresEveryText) {
    std::vector<Text> texts(std::begin(kTexts), std::end(kTexts));
    texts.push_back({L"", ""});
    for (const Text& row : texts) {
        CMapTitle title = Title(row.text);
        Recording recording(Mode::RecordOnly);
        recording.ScriptBounds({{0, 0, 8, 4}});
        title.ResetAspectRatio();
        EXPECT_TRUE(Equal(Measuring(row.utf8, {0, 0, 8, 4}, 0), recording.Lines()));
    }
}

TEST(MapTitle, MeasuresAtScaleOneInItsOwnSize) {
    CMapTitle title = Title();
    title.SetFontSize(1.0 / 3.0);
    title.SetFontProcess(static_cast<FontProcess>(13));
    Recording recording(Mode::RecordOnly);
    title.ResetAspectRatio();
    EXPECT_EQ(recording.Lines().at(1),
              "GdipCreateFont " + FontLook("Arial", 1.0f / 3.0f, 13));
}

// Whatever fonts there are: each family is made to fail here.
TEST(MapTitle, MeasuresAndDrawsNothingWithoutAFamily) {
    for (const Mode mode : {Mode::Forward, Mode::RecordOnly}) {
        Surface surface;
        CMapTitle title = Title();
        title.SetSize(12);
        Recording recording(mode);
        recording.FailCallsOf("GdipCreateFontFamily", Gdiplus::FontFamilyNotFound);
        title.ResetAspectRatio();
        EXPECT_EQ(title.GetSize(), 0);
        EXPECT_TRUE(std::isnan(title.GetAspectRatio())) << "0 / 0";
        EXPECT_TRUE(NothingAlive());

        recording.Clear();
        title.Draw(surface.Graphics(), CPoint(100, 50), 1.0);
        EXPECT_EQ(recording.Drawing().at(3),
                  DrawString("Olinda", "null", 100, 50, BrushLook(0xFF000000)));
        EXPECT_EQ(surface.Graphics()->GetLastStatus(), Gdiplus::InvalidParameter);
    }
}

// The outline is 60 x 20 from (1, 3), the centre (200, 150), the em size 15. Where the
// outline starts does not matter.
TEST(MapTitle, DrawsItsTextAboutTheCentre) {
    const struct {
        double scale;
        float x;
        float y;
        float emSize;
    } rows[] = {
        {0.5, 200 - 15, 150 - 5, 7.5f},
        {1.0, 200 - 30, 150 - 10, 15.0f},
        {2.0, 200 - 60, 150 - 20, 30.0f},
        {3.125, 200 - 93.75f, 150 - 31.25f, 46.875f},
        {-1.0, 200 + 30, 150 + 10, -15.0f},
        // 60 / 6 and 20 / 6 are subtracted as doubles
        {1.0 / 3.0, 190.0f, static_cast<float>(150 - 20 * (1.0 / 3.0) * 0.5), 5.0f},
    };
    for (const Text& text : kTexts) {
        for (const auto& row : rows) {
            for (const float angle : {0.0f, 30.0f, 90.0f, -45.0f}) {
                CMapTitle title = Title(text.text);
                title.SetFrontColor(Gdiplus::Color(0xFF103050));
                title.SetAngle(angle);
                Surface surface;
                Recording recording(Mode::RecordOnly);
                recording.ScriptBounds({{1, 3, 60, 20}});
                title.ResetAspectRatio();
                recording.Clear();
                title.Draw(surface.Graphics(), CPoint(200, 150), row.scale);

                const std::string brush = BrushLook(0xFF103050);
                const bool made = row.emSize > 0.0f;
                const std::string font = FontLook("Arial", row.emSize, 1);
                const std::string used = made ? font : "null";
                EXPECT_TRUE(
                    Equal({{"family", "GdipCreateFontFamilyFromName \"Arial\""},
                           {"font", "GdipCreateFont " + font},
                           {"to the centre", TranslateWorld(200, 150)},
                           {"turn", RotateWorld(angle)},
                           {"back", TranslateWorld(-200, -150)},
                           {"brush", "GdipCreateSolidFill #FF103050"},
                           {"text", DrawString(text.utf8, used, row.x, row.y, brush)},
                           {"reset", ResetWorld()},
                           {"brush", "GdipDeleteBrush " + brush},
                           {"font", "GdipDeleteFont " + used},
                           {"family", "GdipDeleteFontFamily family[\"Arial\"]"}},
                          recording.Lines()))
                    << "scale " << row.scale << " angle " << angle;
            }
        }
    }
}

// In the middle they stand about the centre, not about the middle of the outline, which
// is 60 wide.
TEST(MapTitle, SetsLinesWhereTheyAreWanted) {
    struct Row {
        Gdiplus::StringAlignment alignment;
        float x;
    };
    for (const Row& row : {Row{Gdiplus::StringAlignmentCenter, 200.0f},
                           Row{Gdiplus::StringAlignmentFar, 200.0f + 60.0f}}) {
        CMapTitle title = Title(L"Land cover\nOlinda");
        title.SetLineAlignment(row.alignment);
        EXPECT_EQ(title.GetLineAlignment(), row.alignment);
        Surface surface;
        Recording recording(Mode::RecordOnly);
        recording.ScriptBounds({{1, 3, 60, 20}});
        title.ResetAspectRatio();
        EXPECT_EQ(recording.Lines().at(3),
                  "GdipSetStringFormatAlign " + std::to_string(row.alignment));
        recording.Clear();
        CMapTitle(title).Draw(surface.Graphics(), CPoint(200, 150), 2.0);
        const std::vector<std::string> lines = recording.Lines();
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "GdipCreateStringFormat 0 0"),
                  1);
        EXPECT_EQ(recording.Drawing().at(3),
                  DrawString("Land cover\nOlinda", FontLook("Arial", 30, 1), row.x, 130,
                             BrushLook(0xFF000000), 0, 0, FormatLook(0, row.alignment)));
    }
}

// The font size becomes a float before it is scaled as a double, and a float again.
TEST(MapTitle, ScalesTheFontSizeThatItMeasuredWith) {
    struct Row {
        double fontSize;
        double scale;
        float emSize;
    };
    const Row rows[] = {
        // 0.3 as a float is 5033165 / 2^24, three times that a float as it is; 0.3 as a
        // double would give the float below.
        {0.3, 3.0, 15099495.0f / 16777216.0f},
        // 31.5 as a double; 2.1 as a float is a little less and would give less.
        {15.0, 2.1, 31.5f},
    };
    for (const Row& row : rows) {
        CMapTitle title = Title();
        title.SetFontSize(row.fontSize);
        Surface surface;
        Recording recording(Mode::RecordOnly);
        title.Draw(surface.Graphics(), CPoint(0, 0), row.scale);
        EXPECT_EQ(recording.Lines().at(1),
                  "GdipCreateFont " + FontLook("Arial", row.emSize, 1));
    }
}

TEST(MapTitle, DrawsNothingWithoutText) {
    Surface surface;
    CMapTitle title = Title(L"");
    title.SetAngle(30.0f);
    Recording recording;
    title.Draw(surface.Graphics(), CPoint(100, 100), 1.0);
    EXPECT_EQ(recording.Count(), 0);
}

TEST(MapTitle, DrawsAtTheCentreBeforeItIsMeasured) {
    Surface surface;
    CMapTitle title = Title();
    Recording recording(Mode::RecordOnly);
    title.Draw(surface.Graphics(), CPoint(100, 50), 3.0);
    EXPECT_EQ(recording.Drawing().at(3), DrawString("Olinda", FontLook("Arial", 45, 1),
                                                    100, 50, BrushLook(0xFF000000)));
}

TEST(MapTitle, LeavesTheIdentityBehind) {
    Surface surface;
    CMapTitle title = Title();
    title.SetAngle(30.0f);
    surface.Graphics()->TranslateTransform(5.0f, 7.0f);
    title.Draw(surface.Graphics(), CPoint(100, 50), 1.0);
    EXPECT_EQ(surface.WorldTransform(), (std::vector<float>{1, 0, 0, 1, 0, 0}));
}

/// The bounds of the outline of a title's text, as GDI+ measures it.
Gdiplus::Rect OutlineOf(const CMapTitle& title) {
    const Gdiplus::FontFamily family(title.GetFontStyle().c_str());
    const Gdiplus::StringFormat format(0, 0);
    Gdiplus::GraphicsPath path;
    path.AddString(title.GetFontValue().c_str(), -1, &family, title.GetFontProcess(),
                   static_cast<float>(title.GetFontSize()), Gdiplus::RectF(), &format);
    Gdiplus::Rect bounds;
    path.GetBounds(&bounds, nullptr, nullptr);
    return bounds;
}

TEST(MapTitle, TakesTheSizeOfRealOutlines) {
    for (const double fontSize : {15.0, 48.0, 120.5}) {
        for (const wchar_t* text : {L"Olinda", L"\u5730\u56FE"}) {
            CMapTitle title = Title(text);
            title.SetFontSize(fontSize);
            const Gdiplus::Rect outline = OutlineOf(title);
            ASSERT_GT(outline.Height, 0);

            title.ResetAspectRatio();
            EXPECT_EQ(title.GetSize(), outline.Height);
            EXPECT_EQ(title.GetAspectRatio(), static_cast<float>(outline.Width) /
                                                  static_cast<float>(outline.Height));

            title.SetAngle(90.0f);
            title.ResetAspectRatio();
            const float width =
                static_cast<float>(title.GetSize()) * title.GetAspectRatio();
            EXPECT_NEAR(title.GetSize(), outline.Width, 1);
            EXPECT_NEAR(width, outline.Height, 1.01);
        }
    }
}

TEST(MapTitle, IsNotTurnedByAnAngleThatIsNotFinite) {
    for (const float angle : {kFloatNan, kFloatInfinity, -kFloatInfinity}) {
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

// The outline is 60 x 20.
TEST(MapTitle, IsPlacedInDoubles) {
    const struct {
        const char* name;
        double fontSize;
        double scale;
        int centre;
        std::string emSize;
        std::string at;
    } rows[] = {
        {"endless", 15.0, kFloatInfinity, 0, "inf", "(-inf, -inf)"},
        {"no number", 15.0, kFloatNan, 0, "nan", "(nan, nan)"},
        {"past a float", 15.0, 1e300, 0, "inf", "(-inf, -inf)"},
        {"a font size past a float", 1e300, 1.0, 100, "inf", "(70, 90)"},
        {"no font size", kFloatNan, 1.0, 100, "nan", "(70, 90)"},
        {"a far centre", 15.0, 0.0, kMost, "0", "(2147483648, 2147483648)"},
        // 2^31 - 1 - 30 * 4 is 2147483527, exact only as a double; floats are 128 apart
        {"a far centre, back", 15.0, 4.0, kMost, "60", "(2147483520, 2147483648)"},
    };
    for (const auto& row : rows) {
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
