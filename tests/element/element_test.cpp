#include "map_surround/element.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <type_traits>

#include "map_surround/legend.h"
#include "map_surround/north_arrow.h"
#include "map_surround/picture.h"
#include "map_surround/title.h"
#include "recording/expect.h"

namespace {

/// An element that overrides nothing it need not.
class Plain : public CMapSurround {
public:
    void Draw(Gdiplus::Graphics*, CPoint, double) override {}
};

static_assert(std::is_abstract_v<CMapSurround>);
static_assert(std::has_virtual_destructor_v<CMapSurround>);
static_assert(sizeof(MapSurroundType) == 4);

TEST(Element, HasTheDefaultsOfItsKind) {
    const struct {
        const char* name;
        std::unique_ptr<CMapSurround> element;
        float aspectRatio;
        int type;
    } rows[] = {
        {"plain", std::make_unique<Plain>(), 5.8f, 0},
        {"title", std::make_unique<CMapTitle>(), 5.0f, 3},
        {"legend", std::make_unique<CMapLegend>(), 5.8f, 4},
        {"picture", std::make_unique<CDrawPicture>(), 5.8f, 5},
        {"one angle", std::make_unique<CNorthArrowOneAngle>(), 1.0f, 1},
        {"two angles", std::make_unique<CNorthArrowTwoAngle>(), 1.0f, 1},
        {"four angles", std::make_unique<CNorthArrowFourAngle>(), 0.8f, 1},
        {"eight angles", std::make_unique<CNorthArrowEightAngle>(), 1.0f, 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.element->GetFrontColor().GetValue(), 0xFF000000) << row.name;
        EXPECT_EQ(row.element->GetSize(), 0) << row.name;
        EXPECT_EQ(row.element->GetAspectRatio(), row.aspectRatio) << row.name;
        EXPECT_EQ(row.element->GetAngle(), 0.0f) << row.name;
        EXPECT_EQ(row.element->GetItemType(), row.type) << row.name;
    }
    const CMapTitle title;
    EXPECT_EQ(title.GetFontValue(), L"");
    EXPECT_EQ(title.GetFontStyle(), L"");
    EXPECT_EQ(title.GetFontProcess(), FontProcessRegular);
    EXPECT_EQ(title.GetFontSize(), 15.0);
    const CDrawPicture picture;
    EXPECT_EQ(picture.GetPath(), L"");
    EXPECT_EQ(picture.GetNewHeight(), 0);
}

TEST(Element, NumbersItsKindsAndFontStyles) {
    EXPECT_EQ(SurroundNone, 0);
    EXPECT_EQ(SurroundNorthArrow, 1);
    EXPECT_EQ(SurroundScaleBar, 2);
    EXPECT_EQ(SurroundMapTitle, 3);
    EXPECT_EQ(SurroundLegend, 4);
    EXPECT_EQ(SurroundPicture, 5);
    EXPECT_EQ(FontProcessRegular, Gdiplus::FontStyleRegular);
    EXPECT_EQ(FontProcessBold, Gdiplus::FontStyleBold);
    EXPECT_EQ(FontProcessItalic, Gdiplus::FontStyleItalic);
    EXPECT_EQ(FontProcessBoldItalic, Gdiplus::FontStyleBoldItalic);
    EXPECT_EQ(FontProcessUnderline, Gdiplus::FontStyleUnderline);
    EXPECT_EQ(FontProcessStrikeout, Gdiplus::FontStyleStrikeout);
}

template <typename Element>
void FillIn(Element& element) {
    element.SetFrontColor(Gdiplus::Color(0x12345678));
    element.SetSize(-3);
    element.SetAspectRatio(0.25f);
    element.SetAngle(-720.5f);
    element.SetItemType(SurroundLegend);
}

void ExpectFilledIn(const CMapSurround& element) {
    EXPECT_EQ(element.GetFrontColor().GetValue(), 0x12345678u);
    EXPECT_EQ(element.GetSize(), -3);
    EXPECT_EQ(element.GetAspectRatio(), 0.25f);
    EXPECT_EQ(element.GetAngle(), -720.5f);
    EXPECT_EQ(element.GetItemType(), SurroundLegend);
}

TEST(Element, StoresWhatItIsGiven) {
    Plain element;
    FillIn(element);
    ExpectFilledIn(element);

    for (const int size :
         {0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        element.SetSize(size);
        EXPECT_EQ(element.GetSize(), size);
    }
    const float infinity = std::numeric_limits<float>::infinity();
    element.SetAngle(-infinity);
    EXPECT_EQ(element.GetAngle(), -infinity);
    element.SetAspectRatio(std::numeric_limits<float>::quiet_NaN());
    EXPECT_NE(element.GetAspectRatio(), element.GetAspectRatio());
    element.SetItemType(static_cast<MapSurroundType>(77));
    EXPECT_EQ(element.GetItemType(), 77);
}

TEST(Element, CopiesItsFields) {
    Plain element;
    FillIn(element);
    const Plain copy(element);
    ExpectFilledIn(copy);
    Plain assigned;
    EXPECT_EQ(&(assigned = element), &assigned);
    ExpectFilledIn(assigned);
    assigned = static_cast<const Plain&>(assigned);
    ExpectFilledIn(assigned);

    const Plain fresh;
    assigned = fresh;
    EXPECT_EQ(assigned.GetSize(), fresh.GetSize()) << "a size that was never set too";
}

TEST(Element, KeepsItsProportionsWhereNothingIsMeasured) {
    Plain element;
    FillIn(element);
    recording::Recording recording;
    element.ResetAspectRatio();
    ExpectFilledIn(element);
    EXPECT_EQ(recording.Count(), 0);
}

TEST(Element, CopiesATitleWhole) {
    recording::Recording recording(recording::Mode::RecordOnly);
    recording.ScriptBounds({{1, 3, 60, 20}});
    CMapTitle title;
    title.SetFontValue(L"Olinda");
    title.SetFontStyle(L"Arial");
    title.SetFontProcess(FontProcessItalic);
    title.SetFontSize(33.5);
    title.ResetAspectRatio();
    FillIn(title);

    const CMapTitle copy(title);
    CMapTitle assigned;
    EXPECT_EQ(&(assigned = title), &assigned);
    for (const CMapTitle* other : {&copy, const_cast<const CMapTitle*>(&assigned)}) {
        ExpectFilledIn(*other);
        EXPECT_EQ(other->GetFontValue(), L"Olinda");
        EXPECT_EQ(other->GetFontStyle(), L"Arial");
        EXPECT_EQ(other->GetFontProcess(), FontProcessItalic);
        EXPECT_EQ(other->GetFontSize(), 33.5);
        CMapTitle drawn(*other);
        recording::Surface surface;
        recording.Clear();
        title.Draw(surface.Graphics(), CPoint(100, 50), 2.0);
        const std::vector<std::string> original = recording.Lines();
        recording.Clear();
        drawn.Draw(surface.Graphics(), CPoint(100, 50), 2.0);
        EXPECT_EQ(recording.Lines(), original) << "the measured bounds are copied too";
        EXPECT_FALSE(original.empty());
    }
}

}  // namespace
