#include "map_surround/frame.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

#include "recording/expect.h"

namespace {

using namespace recording;

static_assert(std::has_virtual_destructor_v<CFrameBase>);
static_assert(std::is_base_of_v<CFrameBase, CSurroundFrame>);

TEST(Frame, HasItsDefaults) {
    CFrameBase base;
    CSurroundFrame surround;
    for (const CFrameBase* frame : {&base, static_cast<CFrameBase*>(&surround)}) {
        EXPECT_EQ(frame->HitHandle, 0);
        EXPECT_EQ(frame->DrawBorder, false);
        EXPECT_EQ(frame->DrawFill, false);
        EXPECT_EQ(frame->DrawShadow, false);
        EXPECT_EQ(frame->DashedBorder, false);
        EXPECT_EQ(frame->BorderWidth, 1.0f);
        EXPECT_EQ(frame->BorderColor.GetValue(), 0xFF000000);
        EXPECT_EQ(frame->FillColor.GetValue(), 0x00FFFFFFu);
        EXPECT_EQ(frame->ShadowColor.GetValue(), 0x00FFFFFFu);
        EXPECT_EQ(frame->Reserved1, 0);
        EXPECT_EQ(frame->Reserved2, 0);
        EXPECT_EQ(frame->Reserved3, 0);
        EXPECT_EQ(frame->BorderGapX, 0);
        EXPECT_EQ(frame->BorderGapY, 0);
        EXPECT_EQ(frame->Reserved4, 5);
        EXPECT_EQ(frame->Reserved5, 5);
        EXPECT_EQ(frame->FillGapX, 0);
        EXPECT_EQ(frame->FillGapY, 0);
        EXPECT_EQ(frame->ShadowRatioX, 0.0f);
        EXPECT_EQ(frame->ShadowRatioY, 0.0f);
        EXPECT_EQ(frame->GetExtent().GetWidth(), 0.0);
        EXPECT_EQ(frame->GetExtent().GetHeight(), 0.0);
    }
    EXPECT_EQ(base.GetFrameType(), FrameBasic);
    EXPECT_EQ(surround.GetFrameType(), FrameSurround);
    EXPECT_EQ(surround.GetMapSurround(), nullptr);
}

TEST(Frame, NamesItsValuesAsTheHostKnowsThem) {
    EXPECT_EQ(FrameBasic, 0);
    EXPECT_EQ(FrameSurround, 3);
    EXPECT_EQ(TopoDisjoint, 0);
    EXPECT_EQ(TopoOnHandle, 2);
    EXPECT_EQ(TopoWithin, 3);
}

using F = CFrameBase;
constexpr bool F::*kFlags[] = {&F::DrawBorder, &F::DrawFill, &F::DrawShadow,
                               &F::DashedBorder};
constexpr int F::*kInts[] = {&F::HitHandle,  &F::Reserved1,  &F::Reserved2, &F::Reserved3,
                             &F::BorderGapX, &F::BorderGapY, &F::Reserved4, &F::Reserved5,
                             &F::FillGapX,   &F::FillGapY};
constexpr float F::*kFloats[] = {&F::BorderWidth, &F::ShadowRatioX, &F::ShadowRatioY};
constexpr Gdiplus::Color F::*kColours[] = {&F::BorderColor, &F::FillColor,
                                           &F::ShadowColor};

/// A value of its own in every field.
void FillIn(CFrameBase& frame) {
    int value = 0;
    for (bool F::*const flag : kFlags) {
        frame.*flag = true;
    }
    for (int F::*const field : kInts) {
        frame.*field = ++value;
    }
    for (float F::*const field : kFloats) {
        frame.*field = static_cast<float>(++value) + 0.5f;
    }
    for (Gdiplus::Color F::*const field : kColours) {
        frame.*field = Gdiplus::Color(static_cast<Gdiplus::ARGB>(++value));
    }
    frame.SetExtent(CBoundingBox(17, 18, 117, 68));
}

void ExpectFilledIn(const CFrameBase& frame) {
    int value = 0;
    for (bool F::*const flag : kFlags) {
        EXPECT_TRUE(frame.*flag);
    }
    for (int F::*const field : kInts) {
        EXPECT_EQ(frame.*field, ++value);
    }
    for (float F::*const field : kFloats) {
        EXPECT_EQ(frame.*field, static_cast<float>(++value) + 0.5f);
    }
    for (Gdiplus::Color F::*const field : kColours) {
        EXPECT_EQ((frame.*field).GetValue(), static_cast<Gdiplus::ARGB>(++value));
    }
    const CBoundingBox extent = frame.GetExtent();
    EXPECT_EQ(extent.TopLeft().x, 17.0);
    EXPECT_EQ(extent.TopLeft().y, 68.0);
    EXPECT_EQ(extent.GetWidth(), 100.0);
    EXPECT_EQ(extent.GetHeight(), 50.0);
}

TEST(Frame, CopiesEveryField) {
    CFrameBase frame;
    FillIn(frame);
    ExpectFilledIn(frame);
    const CFrameBase copy(frame);
    ExpectFilledIn(copy);
    CFrameBase assigned;
    EXPECT_EQ(&(assigned = frame), &assigned);
    ExpectFilledIn(assigned);
    assigned = static_cast<const CFrameBase&>(assigned);
    ExpectFilledIn(assigned);
    EXPECT_EQ(copy.GetFrameType(), FrameBasic);

    CSurroundFrame surround;
    CFrameBase base(surround);
    EXPECT_EQ(base.GetFrameType(), FrameSurround);
    base = frame;
    EXPECT_EQ(base.GetFrameType(), FrameBasic);
}

TEST(Frame, CopiesEachSwitchByItself) {
    for (bool F::*const on : kFlags) {
        CFrameBase frame;
        frame.*on = true;
        const CFrameBase copy(frame);
        for (bool F::*const flag : kFlags) {
            EXPECT_EQ(copy.*flag, flag == on);
        }
    }
}

/// What happened to an element, kept where it outlives the element.
struct Fate {
    int deleted = 0;
    int drawn = 0;
    Gdiplus::Graphics* graphics = nullptr;
    CPoint centre;
    double scale = 0.0;
};

class Probe : public CMapSurround {
public:
    explicit Probe(Fate& fate) : m_fate(fate) {}
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;
    ~Probe() override { ++m_fate.deleted; }

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override {
        ++m_fate.drawn;
        m_fate.graphics = graphics;
        m_fate.centre = centre;
        m_fate.scale = scale;
    }

private:
    Fate& m_fate;
};

TEST(SurroundFrame, DeletesItsElementOnceAndNoneThatWasReplaced) {
    Fate first;
    Fate second;
    const auto replaced = std::make_unique<Probe>(first);
    std::unique_ptr<CFrameBase> base = std::make_unique<CSurroundFrame>();
    auto& frame = static_cast<CSurroundFrame&>(*base);
    frame.SetMapSurround(replaced.get());
    auto* element = new Probe(second);
    frame.SetMapSurround(element);
    EXPECT_EQ(frame.GetMapSurround(), element);
    EXPECT_EQ(second.deleted, 0);
    base.reset();
    EXPECT_EQ(first.deleted, 0);
    EXPECT_EQ(second.deleted, 1) << "through the base";
}

TEST(SurroundFrame, SharesItsElementWithCopies) {
    Fate fate;
    Fate other;
    {
        CSurroundFrame frame;
        FillIn(frame);
        frame.SetMapSurround(new Probe(fate));
        CSurroundFrame copy(frame);
        ExpectFilledIn(copy);
        EXPECT_EQ(copy.GetMapSurround(), frame.GetMapSurround());
        EXPECT_EQ(copy.GetFrameType(), FrameSurround);

        const auto held = std::make_unique<Probe>(other);
        CSurroundFrame assigned;
        assigned.SetMapSurround(held.get());
        EXPECT_EQ(&(assigned = frame), &assigned);
        ExpectFilledIn(assigned);
        EXPECT_EQ(assigned.GetMapSurround(), frame.GetMapSurround());
        EXPECT_EQ(other.deleted, 0) << "an assignment deletes nothing";

        frame.SetMapSurround(nullptr);
        assigned.SetMapSurround(nullptr);
        EXPECT_EQ(fate.deleted, 0);
    }
    EXPECT_EQ(fate.deleted, 1);
}

static_assert(std::is_nothrow_move_constructible_v<CSurroundFrame>);
static_assert(std::is_nothrow_move_assignable_v<CSurroundFrame>);

TEST(SurroundFrame, MovesItsElement) {
    Fate fate;
    {
        CSurroundFrame frame;
        FillIn(frame);
        frame.SetMapSurround(new Probe(fate));
        const CMapSurround* const element = frame.GetMapSurround();

        CSurroundFrame moved(std::move(frame));
        ExpectFilledIn(moved);
        EXPECT_EQ(moved.GetFrameType(), FrameSurround);
        EXPECT_EQ(moved.GetMapSurround(), element);
        EXPECT_EQ(frame.GetMapSurround(), nullptr);

        CSurroundFrame& itself = moved;
        moved = std::move(itself);
        EXPECT_EQ(moved.GetMapSurround(), element);
        CSurroundFrame empty;
        empty = std::move(moved);
        EXPECT_EQ(empty.GetMapSurround(), element);
        EXPECT_EQ(fate.deleted, 0);
    }
    EXPECT_EQ(fate.deleted, 1);
}

TEST(SurroundFrame, DeletesItsElementForOneThatIsMovedIn) {
    Fate first;
    Fate second;
    {
        CSurroundFrame frame;
        frame.SetMapSurround(new Probe(first));
        CSurroundFrame other;
        FillIn(other);
        other.SetMapSurround(new Probe(second));
        EXPECT_EQ(&(frame = std::move(other)), &frame);
        EXPECT_EQ(first.deleted, 1);
        ExpectFilledIn(frame);
        EXPECT_EQ(other.GetMapSurround(), nullptr);
        EXPECT_EQ(second.deleted, 0);
    }
    EXPECT_EQ(second.deleted, 1);
}

TEST(SurroundFrame, HandsDrawingOnAsItIs) {
    Surface surface;
    Fate fate;
    CSurroundFrame frame;
    frame.DrawBorder = frame.DrawFill = frame.DrawShadow = true;
    frame.SetMapSurround(new Probe(fate));
    Recording recording;
    frame.Draw(surface.Graphics(), CPoint(-7, 2147483647), -0.1);
    EXPECT_EQ(fate.drawn, 1);
    EXPECT_EQ(fate.graphics, surface.Graphics());
    EXPECT_EQ(fate.centre.x, -7);
    EXPECT_EQ(fate.centre.y, 2147483647);
    EXPECT_EQ(fate.scale, -0.1);
    EXPECT_EQ(recording.Count(), 0) << "the decoration is drawn by DrawFrame alone";

    frame.DrawFrame(surface.Graphics(), CRect(0, 0, 9, 9));
    EXPECT_EQ(fate.drawn, 1) << "and the element by Draw alone";
}

TEST(SurroundFrame, DrawsNothingWithoutElement) {
    Surface surface;
    CSurroundFrame frame;
    frame.DrawBorder = frame.DrawFill = frame.DrawShadow = true;
    Recording recording;
    frame.Draw(surface.Graphics(), CPoint(10, 10), 1.0);
    frame.Draw(nullptr, CPoint(10, 10), 1.0);
    EXPECT_EQ(recording.Count(), 0);
}

}  // namespace
