#include <cmath>
#include <cstring>

#include "element/numbers.h"
#include "map_surround/frame.h"

using map_surround::Length;
using map_surround::ToDevice;
using map_surround::Truncate;

namespace {

/// Where a handle sits, as fractions of the extent right and down from its top left
/// corner.
struct Handle {
    double right;
    double down;
};

constexpr Handle kHandles[] = {
    {0.0, 0.0}, {0.5, 0.0}, {1.0, 0.0}, {1.0, 0.5},
    {1.0, 1.0}, {0.5, 1.0}, {0.0, 1.0}, {0.0, 0.5},
};

/// Whether a flag's byte is exactly 1. A host that is not written in C++ may have stored
/// any value.
bool IsOne(const bool& flag) {
    unsigned char byte = 0;
    std::memcpy(&byte, &flag, sizeof flag);
    return byte == 1;
}

Gdiplus::Rect Outset(CRect rect, Length gapX, Length gapY) {
    return {ToDevice(rect.left - gapX), ToDevice(rect.top - gapY),
            ToDevice(Length{rect.right} - rect.left + 2 * gapX),
            ToDevice(Length{rect.bottom} - rect.top + 2 * gapY)};
}

}  // namespace

CFrameBase::CFrameBase(const CFrameBase& other) { *this = other; }

CFrameBase& CFrameBase::operator=(const CFrameBase& other) {
    HitHandle = other.HitHandle;
    DrawBorder = other.DrawBorder;
    DrawFill = other.DrawFill;
    DrawShadow = other.DrawShadow;
    // Its byte may be no valid bool, see IsOne.
    std::memcpy(&DashedBorder, &other.DashedBorder, sizeof DashedBorder);
    BorderWidth = other.BorderWidth;
    BorderColor = other.BorderColor;
    FillColor = other.FillColor;
    ShadowColor = other.ShadowColor;
    Reserved1 = other.Reserved1;
    Reserved2 = other.Reserved2;
    Reserved3 = other.Reserved3;
    BorderGapX = other.BorderGapX;
    BorderGapY = other.BorderGapY;
    Reserved4 = other.Reserved4;
    Reserved5 = other.Reserved5;
    FillGapX = other.FillGapX;
    FillGapY = other.FillGapY;
    ShadowRatioX = other.ShadowRatioX;
    ShadowRatioY = other.ShadowRatioY;
    // A host's own box type may only allow assignment from a non-const one.
    CBoundingBox extent(other.m_extent);
    m_extent = extent;
    m_frameType = other.m_frameType;
    return *this;
}

CFrameBase::~CFrameBase() = default;

void CFrameBase::SetOffset(double dx, double dy) { m_extent.OffsetBoundingBox(dx, dy); }

SpatialTopoRelation CFrameBase::HitTest(CPoint2D point, double tolerance,
                                        bool insideOnly) {
    HitHandle = -1;
    if (!m_extent.IsContain(point)) {
        return TopoDisjoint;
    }
    if (insideOnly) {
        return TopoWithin;
    }

    const CPoint2D topLeft = m_extent.TopLeft();
    const double width = m_extent.GetWidth();
    const double height = m_extent.GetHeight();
    std::int32_t index = 0;
    for (const Handle& handle : kHandles) {
        const double x = topLeft.x + width * handle.right;
        const double y = topLeft.y - height * handle.down;
        if (tolerance >= std::fabs(x - point.x) && tolerance >= std::fabs(y - point.y)) {
            HitHandle = index;
            return TopoOnHandle;
        }
        ++index;
    }
    return TopoWithin;
}

void CFrameBase::DrawFrame(Gdiplus::Graphics* graphics, CRect rect) {
    if (graphics == nullptr) {
        return;
    }
    if (DrawBorder) {
        Gdiplus::Pen pen(BorderColor, BorderWidth);
        if (IsOne(DashedBorder)) {
            pen.SetDashStyle(Gdiplus::DashStyleDash);
        }
        if (BorderWidth == 0.0f) {
            pen.SetColor(Gdiplus::Color(0x00FFFFFF));  // GDI+ would draw a hairline
        }
        graphics->DrawRectangle(&pen, Outset(rect, BorderGapX, BorderGapY));
    }
    if (DrawShadow) {
        DrawShadowStrips(graphics, rect);
    }
    if (DrawFill) {
        const Gdiplus::SolidBrush brush(FillColor);
        graphics->FillRectangle(&brush, Outset(rect, FillGapX, FillGapY));
    }
}

void CFrameBase::DrawShadowStrips(Gdiplus::Graphics* graphics, CRect rect) {
    const Gdiplus::SolidBrush brush(ShadowColor);
    const auto width = static_cast<float>(Length{rect.right} - rect.left);
    const auto height = static_cast<float>(Length{rect.bottom} - rect.top);
    const auto gapX = static_cast<float>(BorderGapX);
    const auto gapY = static_cast<float>(BorderGapY);
    const float offsetX = width * ShadowRatioX;
    const float offsetY = height * ShadowRatioY;
    const auto stripTop = static_cast<float>(Length{rect.top} + Truncate(offsetY));
    const auto stripLeft = static_cast<float>(Length{rect.left} + Truncate(offsetX));

    // A strip with no offset starts at the border's line, not clear of it. Each strip
    // saves the width it finds, so with both ratios 0 the width stays 0; this is
    // intended.
    const float widthBeforeRight = BorderWidth;
    if (ShadowRatioX == 0.0f) {
        BorderWidth = 0.0f;
    }
    graphics->FillRectangle(&brush, static_cast<float>(rect.right) + BorderWidth + gapX,
                            stripTop + BorderWidth + gapY, offsetX + BorderWidth + gapX,
                            height + BorderWidth + gapY);

    const float widthBeforeBottom = BorderWidth;
    if (ShadowRatioY == 0.0f) {
        BorderWidth = 0.0f;
    }
    graphics->FillRectangle(&brush, stripLeft + BorderWidth + gapX,
                            static_cast<float>(rect.bottom) + BorderWidth + gapY,
                            width + BorderWidth + gapX, offsetY + BorderWidth + gapY);

    if (ShadowRatioX == 0.0f) {
        BorderWidth = widthBeforeRight;
    }
    if (ShadowRatioY == 0.0f) {
        BorderWidth = widthBeforeBottom;
    }
}
