#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "north_arrow/arrow_models.h"
#include "page/catalogue.h"
#include "recording/lines.h"

namespace {

using namespace recording;
using namespace north_arrow_test;

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr float kIdentity[] = {1, 0, 0, 1, 0, 0};

/// What no style overrides: the base as it stands.
class BareArrow : public CNorthArrowBase {
    void Draw(Gdiplus::Graphics*, CPoint, double) override {}
};

class EachArrow : public ::testing::TestWithParam<Style> {
protected:
    /// Draws every setting without GDI+ and compares.
    void ExpectDrawn(const std::vector<Setting>& settings) {
        Surface surface;
        const auto arrow = GetParam().make();
        Recording recording(Mode::RecordOnly);
        for (const Setting& setting : settings) {
            recording.Clear();
            Draw(*arrow, setting, surface.Graphics());
            ASSERT_TRUE(
                Equal(Turned(setting, GetParam().shapes(setting)), recording.Drawing()))
                << setting;
        }
    }
};

INSTANTIATE_TEST_SUITE_P(NorthArrows, EachArrow, ::testing::ValuesIn(Styles()),
                         [](const auto& test) { return test.param.name; });

TEST(NorthArrows, OfTheCatalogueAllHaveAModel) {
    const auto styles = host::StylesOf(SurroundNorthArrow);
    ASSERT_EQ(Styles().size(), styles.size());
    for (std::size_t i = 0; i < styles.size(); ++i) {
        EXPECT_EQ(Styles()[i].name, styles[i]->className + 1);
    }
}

/// Every value of one list with every value of the others; the colours take turns.
std::vector<Setting> Combine(const std::vector<int>& sizes,
                             const std::vector<double>& scales,
                             const std::vector<float>& angles,
                             const std::vector<CPoint>& centres) {
    const Gdiplus::ARGB colors[] = {0xFF000000, 0xFFCC0000, 0x80336699, 0x00FFFFFF};
    std::vector<Setting> settings;
    for (const int size : sizes) {
        for (const double scale : scales) {
            for (const float angle : angles) {
                for (const CPoint centre : centres) {
                    settings.push_back(
                        {size, scale, angle, colors[settings.size() % 4], centre});
                }
            }
        }
    }
    return settings;
}

TEST(NorthArrowBase, IsANorthArrowOfNoStyle) {
    const BareArrow arrow;
    EXPECT_EQ(arrow.GetFrontColor().GetValue(), 0xFF000000u);
    EXPECT_EQ(arrow.GetSize(), 0);
    EXPECT_EQ(arrow.GetAspectRatio(), 5.8f);
    EXPECT_EQ(arrow.GetAngle(), 0.0f);
    EXPECT_EQ(arrow.GetItemType(), SurroundNorthArrow);
    EXPECT_EQ(arrow.GetNorthArrowType(), 0);
}

TEST(NorthArrowBase, NumbersTheStyles) {
    EXPECT_EQ(NorthArrowOne, 1);
    EXPECT_EQ(NorthArrowTwo, 2);
    EXPECT_EQ(NorthArrowFour, 3);
    EXPECT_EQ(NorthArrowEight, 4);
}

TEST_P(EachArrow, HasItsTypeAndKeepsItsAspectRatio) {
    const auto arrow = GetParam().make();
    EXPECT_EQ(arrow->GetNorthArrowType(), GetParam().type);
    arrow->SetSize(50);
    arrow->ResetAspectRatio();
    EXPECT_EQ(arrow->GetAspectRatio(), GetParam().aspectRatio);
    arrow->SetAspectRatio(2.5f);
    arrow->ResetAspectRatio();
    EXPECT_EQ(arrow->GetAspectRatio(), 2.5f);
}

TEST_P(EachArrow, CopiesEveryField) {
    const auto arrow = GetParam().make();
    arrow->SetFrontColor(Gdiplus::Color(0x80112233));
    arrow->SetSize(77);
    arrow->SetAspectRatio(3.25f);
    arrow->SetAngle(-12.5f);
    arrow->SetItemType(SurroundLegend);
    arrow->SetNorthArrowType(NorthArrowType(99));
    for (const auto& copy : {GetParam().copy(*arrow), GetParam().assign(*arrow)}) {
        EXPECT_EQ(copy->GetFrontColor().GetValue(), 0x80112233u);
        EXPECT_EQ(copy->GetSize(), 77);
        EXPECT_EQ(copy->GetAspectRatio(), 3.25f);
        EXPECT_EQ(copy->GetAngle(), -12.5f);
        EXPECT_EQ(copy->GetItemType(), SurroundLegend);
        EXPECT_EQ(copy->GetNorthArrowType(), 99);

        Surface surface;
        const Setting setting{77, 1.5, -12.5f, 0x80112233, {90, 80}};
        Recording recording;
        copy->Draw(surface.Graphics(), setting.centre, setting.scale);
        EXPECT_TRUE(
            Equal(Turned(setting, GetParam().shapes(setting)), recording.Drawing()));
    }
}

TEST_P(EachArrow, DrawsItsStyleWhateverItsTagAndAspectRatio) {
    const Setting setting{60, 1.0, 0.0f, 0xFF000000, {100, 100}};
    for (const int tag : {0, 1, 2, 3, 4, 5, kLeast}) {
        Surface surface;
        const auto arrow = GetParam().make();
        arrow->SetNorthArrowType(NorthArrowType(tag));
        arrow->SetAspectRatio(std::numeric_limits<float>::quiet_NaN());
        EXPECT_EQ(arrow->GetNorthArrowType(), tag);
        EXPECT_EQ(arrow->GetItemType(), SurroundNorthArrow);
        Recording recording;
        Draw(*arrow, setting, surface.Graphics());
        EXPECT_TRUE(
            Equal(Turned(setting, GetParam().shapes(setting)), recording.Drawing()));
    }
}

TEST_P(EachArrow, DrawsNothingThatWasNotSet) {
    Surface surface;
    const auto arrow = GetParam().make();
    Recording recording(Mode::RecordOnly);
    arrow->Draw(surface.Graphics(), CPoint(50, 60), 2.0);
    const Setting unset{0, 2.0, 0.0f, 0xFF000000, {50, 60}};
    EXPECT_TRUE(Equal(Turned(unset, GetParam().shapes(unset)), recording.Drawing()));
}

TEST_P(EachArrow, DrawsEverySizeScaleAngleAndCentre) {
    ExpectDrawn(Combine({0, 1, 2, 5, 7, 8, 37, 40, 100, 101, 333, 1000, 1000000,
                         536870911, 1000000001, 1000000002, kMost},
                        {0.5, 0.33, 1.0, 1.5, 3.125},
                        {0.0f, 30.0f, 90.0f, 180.0f, -45.0f, 720.5f},
                        {{0, 0},
                         {200, 150},
                         {-37, -1001},
                         {16777217, -16777219},
                         {520000001, 500000001}}));
}

TEST_P(EachArrow, DrawsEverySizeUpToAThousand) {
    std::vector<int> sizes;
    for (int size = 0; size <= 1000; ++size) {
        sizes.push_back(size);
    }
    ExpectDrawn(Combine(sizes, {1.0, 0.5}, {0.0f}, {{0, 0}}));
}

TEST_P(EachArrow, DrawsAtTheLimitsOfEverything) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    ExpectDrawn(Combine(
        {kLeast, kLeast + 1, -1000000, -100, -7, -1, 0, 1, 100, kMost - 1, kMost},
        {0.0, -0.5, 1.0, -1.0, -3.125, 1e-300, 1e300, -1e300, infinity, -infinity, nan},
        {0.0f, static_cast<float>(infinity), static_cast<float>(nan), -1e38f},
        {{0, 0},
         {kLeast, kLeast},
         {kMost, kMost},
         {kLeast, kMost},
         {-5, 7},
         {0, 1073741823}}));  // where what is left tells how exactly it is divided
}

TEST_P(EachArrow, DrawsTheSameThroughGdiPlus) {
    Surface surface;
    const auto arrow = GetParam().make();
    for (const Setting& setting :
         Combine({2, 5, 37, 100, 333}, {0.5, 1.0, 3.125}, {0.0f, 30.0f, -45.0f},
                 {{0, 0}, {200, 150}, {-37, 1001}})) {
        Recording recording;
        Draw(*arrow, setting, surface.Graphics());
        ASSERT_TRUE(
            Equal(Turned(setting, GetParam().shapes(setting)), recording.Drawing()))
            << setting;
    }
}

TEST_P(EachArrow, LeavesTheIdentityWhateverTransformItFinds) {
    Surface surface;
    const auto arrow = GetParam().make();
    surface.Graphics()->TranslateTransform(40.0f, -25.0f);
    surface.Graphics()->RotateTransform(33.0f);
    surface.Graphics()->ScaleTransform(2.0f, 0.5f);
    Draw(*arrow, {100, 1.0, 45.0f, 0xFF000000, {200, 150}}, surface.Graphics());
    EXPECT_THAT(surface.WorldTransform(), ::testing::ElementsAreArray(kIdentity));
    EXPECT_EQ(surface.Graphics()->GetLastStatus(), Gdiplus::Ok);
}

/// Red pixels in a box around the centre of a surface, given by its edges.
int RedPixels(Surface& surface, CRect box) {
    int count = 0;
    for (int y = box.top; y < box.bottom; ++y) {
        for (int x = box.left; x < box.right; ++x) {
            Gdiplus::Color color;
            surface.Bitmap().GetPixel(x, y, &color);
            count += color.GetR() > 128 && color.GetG() < 128 ? 1 : 0;
        }
    }
    return count;
}

// The one-angle arrow's letter is all that is red in it, below the centre at angle 0.
TEST(OneAngleArrow, TurnsItsLetterClockwise) {
    struct Row {
        float angle;
        CRect box;
    };
    for (const Row& row :
         {Row{0.0f, {60, 100, 140, 180}}, Row{90.0f, {20, 60, 100, 140}},
          Row{180.0f, {60, 20, 140, 100}}, Row{270.0f, {100, 60, 180, 140}}}) {
        Surface surface(200, 200);
        CNorthArrowOneAngle arrow;
        Draw(arrow, {150, 1.0, row.angle, 0xFFFF0000, {100, 100}}, surface.Graphics());
        const int all = RedPixels(surface, CRect(0, 0, 200, 200));
        EXPECT_GT(all, 20) << row.angle;
        EXPECT_EQ(RedPixels(surface, row.box), all) << row.angle;
    }
}

}  // namespace
