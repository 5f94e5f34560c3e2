#include "page/ink.h"

#include <gdiplus.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <new>

#include "page/element_drawing.h"
#include "page/placed_frame.h"

namespace host {
namespace {

constexpr int kLargestSide =
    3000;  // pixels; a longer element is measured at a smaller scale

/// The first look is drawn this much smaller, to find where to measure. Anything wider
/// than one of its pixels leaves a trace.
constexpr double kGlance = 0.25;
constexpr double kLeastGlance = 300.0;  // pixels; saving more than that saves nothing
/// Lengths in whole pixels add up to something else at a small scale.
constexpr double kGlancePixels = 4.0;

/// Only the alpha is read. On straight pixels every drawing would have to look at those
/// beneath it.
constexpr Gdiplus::PixelFormat kFormat = PixelFormat32bppPARGB;

/// The part of a bitmap that is not transparent.
struct PixelBox {
    int left;
    int top;
    int right;
    int bottom;
};

PixelBox InkedPixels(Gdiplus::Bitmap& bitmap, int width, int height) {
    PixelBox box = {width, height, -1, -1};
    Gdiplus::BitmapData data;
    if (bitmap.LockBits(nullptr, Gdiplus::ImageLockModeRead, kFormat, &data) !=
        Gdiplus::Ok) {
        return box;
    }
    for (int y = 0; y < height; ++y) {
        const auto* row = static_cast<const std::uint8_t*>(data.Scan0) +
                          static_cast<std::ptrdiff_t>(y) * data.Stride;
        for (int x = 0; x < width; ++x) {
            if (row[4 * x + 3] != 0) {
                box.left = std::min(box.left, x);
                box.right = std::max(box.right, x);
                box.top = std::min(box.top, y);
                box.bottom = std::max(box.bottom, y);
            }
        }
    }
    bitmap.UnlockBits(&data);
    return box;
}

/// The side of a square around an element's centre that its drawing does not leave: half
/// as much again as its size all around, and room for a text that starts at an edge.
double RoomFor(const CMapSurround& element) {
    const double height = std::max(1.0, static_cast<double>(element.GetSize()));
    const double ratio = std::isfinite(element.GetAspectRatio())
                             ? std::max(0.0, double{element.GetAspectRatio()})
                             : 0.0;
    return std::max(2.0 * height, 2.0 * height * ratio) + 400.0;
}

/// How far a bitmap reaches from the element's centre, in pixels.
struct Reach {
    int left;
    int right;
    int up;
    int down;
};

Reach AllAround(int side) {
    return {side / 2, side - side / 2, side / 2, side - side / 2};
}

template <typename Drawing>
InkBox Look(const Reach& reach, double scale, Drawing draw) {
    const int width = reach.left + reach.right;
    const int height = reach.up + reach.down;
    Gdiplus::Bitmap bitmap(width, height, kFormat);
    const Gdiplus::Status made = bitmap.GetLastStatus();
    if (made == Gdiplus::OutOfMemory) {
        throw std::bad_alloc();
    }
    if (made != Gdiplus::Ok) {
        return {};
    }
    {
        Gdiplus::Graphics graphics(&bitmap);
        graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
        draw(&graphics, CPoint(reach.left, reach.up), scale);
    }
    const PixelBox box = InkedPixels(bitmap, width, height);
    if (box.right < box.left) {
        return {};
    }
    return {(reach.left - box.left) / scale, (box.right + 1 - reach.left) / scale,
            (reach.up - box.top) / scale, (box.bottom + 1 - reach.up) / scale};
}

/// A bitmap that surely holds a drawing, from how far its small version reached.
Reach Around(const InkBox& glanced, double leeway, double scale, const Reach& all) {
    const auto side = [=](double length, int most) {
        const double pixels = (std::max(0.0, length) * kHinting + leeway) * scale;
        return std::min(most, static_cast<int>(std::ceil(pixels)));
    };
    return {side(glanced.left, all.left), side(glanced.right, all.right),
            side(glanced.up, all.up), side(glanced.down, all.down)};
}

/// Whether the ink keeps clear of every edge that may have cut it off.
bool IsWithin(const InkBox& ink, double leeway, double scale, const Reach& reach,
              const Reach& all) {
    const auto isClear = [=](double length, int side, int most) {
        return side == most || (length + leeway) * scale <= side;
    };
    return isClear(ink.left, reach.left, all.left) &&
           isClear(ink.right, reach.right, all.right) &&
           isClear(ink.up, reach.up, all.up) && isClear(ink.down, reach.down, all.down);
}

/// Most of a square with room for anything is empty: the drawing is found at a small
/// scale, then measured where it is.
template <typename Drawing>
InkBox Measure(double room, Drawing draw) {
    const double scale = std::min(1.0, kLargestSide / room);
    const Reach all = AllAround(static_cast<int>(std::ceil(room * scale)));
    const double glanceScale = std::max(scale * kGlance, kLeastGlance / room);
    if (glanceScale < scale / 2.0) {
        const Reach glance = AllAround(static_cast<int>(std::ceil(room * glanceScale)));
        const InkBox glanced = Look(glance, glanceScale, draw);
        const double leeway = kGlancePixels / glanceScale;
        const Reach reach = Around(glanced, leeway, scale, all);
        const InkBox ink = glanced.IsEmpty() ? InkBox() : Look(reach, scale, draw);
        if (!ink.IsEmpty() && IsWithin(ink, leeway / 2.0, scale, reach, all)) {
            return ink;
        }
    }
    return Look(all, scale, draw);
}

}  // namespace

InkBox MeasureInk(CMapSurround& element) {
    return Measure(RoomFor(element),
                   [&element](Gdiplus::Graphics* graphics, CPoint centre, double scale) {
                       element.Draw(graphics, centre, scale);
                   });
}

InkBox MeasureInk(CSurroundFrame& frame) {
    const CMapSurround* const element = frame.GetMapSurround();
    if (element == nullptr) {
        return {};
    }
    const auto* const placed = dynamic_cast<const PlacedFrame*>(&frame);
    const CPoint2D offset = placed == nullptr ? CPoint2D() : placed->ElementOffset();
    const double away = std::max(std::fabs(offset.x), std::fabs(offset.y));
    return Measure(RoomFor(*element) + 2.0 * away,
                   [&frame](Gdiplus::Graphics* graphics, CPoint centre, double scale) {
                       DrawElement(*graphics, frame, centre, scale);
                   });
}

}  // namespace host
