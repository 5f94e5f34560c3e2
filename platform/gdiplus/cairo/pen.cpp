#include "cairo/pen.h"

namespace engine {
namespace {

bool IsCap(LineCap cap) {
    switch (cap) {
        case LineCapFlat:
        case LineCapSquare:
        case LineCapRound:
        case LineCapTriangle:
        case LineCapNoAnchor:
        case LineCapSquareAnchor:
        case LineCapRoundAnchor:
        case LineCapDiamondAnchor:
        case LineCapArrowAnchor:
            return true;
        default:
            return false;
    }
}

GpStatus SetCap(GpPen* pen, LineCap cap, LineCap Pen::*end,
                std::optional<ArrowCap> Pen::*arrow) {
    return Set(From(pen), IsCap(cap), [&](Pen& p) {
        p.*end = cap;
        (p.*arrow).reset();
    });
}

GpStatus SetArrow(GpPen* pen, GpCustomLineCap* cap, LineCap Pen::*end,
                  std::optional<ArrowCap> Pen::*arrow) {
    return Set(From(pen), cap != nullptr, [&](Pen& p) {
        p.*end = LineCapCustom;
        p.*arrow = *From(cap);
    });
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;
using engine::Set;
using engine::Tell;

GpStatus GdipCreatePen1(ARGB color, REAL width, GpUnit unit, GpPen** pen) {
    return engine::Make(pen, engine::IsUnit(unit), [&] {
        auto* made = new engine::Pen;
        made->color = color;
        made->width = width;
        made->unit = unit;
        return made;
    });
}

GpStatus GdipDeletePen(GpPen* pen) { return engine::Delete(From(pen)); }

GpStatus GdipSetPenColor(GpPen* pen, ARGB color) {
    return Set(From(pen), true, [&](auto& p) { p.color = color; });
}

GpStatus GdipGetPenColor(GpPen* pen, ARGB* color) {
    return Tell(From(pen), color, [](auto& p) { return p.color; });
}

GpStatus GdipSetPenWidth(GpPen* pen, REAL width) {
    return Set(From(pen), true, [&](auto& p) { p.width = width; });
}

GpStatus GdipGetPenWidth(GpPen* pen, REAL* width) {
    return Tell(From(pen), width, [](auto& p) { return p.width; });
}

GpStatus GdipSetPenDashStyle(GpPen* pen, GpDashStyle style) {
    return Set(From(pen), engine::IsUpTo(style, DashStyleDashDotDot),
               [&](auto& p) { p.dash = style; });
}

GpStatus GdipGetPenDashStyle(GpPen* pen, GpDashStyle* style) {
    return Tell(From(pen), style, [](auto& p) { return p.dash; });
}

GpStatus GdipSetPenLineJoin(GpPen* pen, GpLineJoin join) {
    return Set(From(pen), engine::IsUpTo(join, LineJoinMiterClipped),
               [&](auto& p) { p.join = join; });
}

GpStatus GdipGetPenLineJoin(GpPen* pen, GpLineJoin* join) {
    return Tell(From(pen), join, [](auto& p) { return p.join; });
}

GpStatus GdipSetPenStartCap(GpPen* pen, GpLineCap cap) {
    return engine::SetCap(pen, cap, &engine::Pen::startCap, &engine::Pen::startArrow);
}

GpStatus GdipGetPenStartCap(GpPen* pen, GpLineCap* cap) {
    return Tell(From(pen), cap, [](auto& p) { return p.startCap; });
}

GpStatus GdipSetPenEndCap(GpPen* pen, GpLineCap cap) {
    return engine::SetCap(pen, cap, &engine::Pen::endCap, &engine::Pen::endArrow);
}

GpStatus GdipGetPenEndCap(GpPen* pen, GpLineCap* cap) {
    return Tell(From(pen), cap, [](auto& p) { return p.endCap; });
}

GpStatus GdipSetPenCustomStartCap(GpPen* pen, GpCustomLineCap* cap) {
    return engine::SetArrow(pen, cap, &engine::Pen::startCap, &engine::Pen::startArrow);
}

GpStatus GdipSetPenCustomEndCap(GpPen* pen, GpCustomLineCap* cap) {
    return engine::SetArrow(pen, cap, &engine::Pen::endCap, &engine::Pen::endArrow);
}

GpStatus GdipCreateAdjustableArrowCap(REAL height, REAL width, BOOL filled,
                                      GpAdjustableArrowCap** cap) {
    return engine::Make(cap, true, [&] {
        auto* made = new engine::ArrowCap;
        made->height = height;
        made->width = width;
        made->filled = filled != 0;
        return made;
    });
}

GpStatus GdipSetAdjustableArrowCapHeight(GpAdjustableArrowCap* cap, REAL height) {
    return Set(From(cap), true, [&](auto& c) { c.height = height; });
}

GpStatus GdipGetAdjustableArrowCapHeight(GpAdjustableArrowCap* cap, REAL* height) {
    return Tell(From(cap), height, [](auto& c) { return c.height; });
}

GpStatus GdipSetAdjustableArrowCapWidth(GpAdjustableArrowCap* cap, REAL width) {
    return Set(From(cap), true, [&](auto& c) { c.width = width; });
}

GpStatus GdipGetAdjustableArrowCapWidth(GpAdjustableArrowCap* cap, REAL* width) {
    return Tell(From(cap), width, [](auto& c) { return c.width; });
}

GpStatus GdipSetAdjustableArrowCapFillState(GpAdjustableArrowCap* cap, BOOL filled) {
    return Set(From(cap), true, [&](auto& c) { c.filled = filled != 0; });
}

GpStatus GdipGetAdjustableArrowCapFillState(GpAdjustableArrowCap* cap, BOOL* filled) {
    return Tell(From(cap), filled, [](auto& c) { return c.filled ? 1 : 0; });
}

GpStatus GdipDeleteCustomLineCap(GpCustomLineCap* cap) {
    return engine::Delete(From(cap));
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
