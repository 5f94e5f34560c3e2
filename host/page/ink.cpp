#include "page/ink.h"

#include <gdiplus.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "page/element_drawing.h"
#include "page/placed_frame.h"

namespace host {
namespace {

constexpr int kLargestSide =
    3000;  // pixels; a longer element is measured at a smaller scale

/// The part of a bitmap that is not transparent, as counted from its middle.
struct PixelBox {
    int left;
    int top;
    int right;
    int bottom;
};

PixelBox InkOf(Gdiplus::Bitmap& bitmap, int width, int height) {
    PixelBox box = {width, height, -1, -1};
    Gdiplus::BitmapData data;
    if (bitmap.LockBits(nullptr, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB,
                        &data) != Gdiplus::Ok) {
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

template <typename Drawing>
InkBox Measure(double room, Drawing draw) {
    const double scale = std::min(1.0, kLargestSide / room);
    const int side = static_cast<int>(std::ceil(room * scale));

    Gdiplus::Bitmap bitmap(side, side, PixelFormat32bppARGB);
    if (bitmap.GetLastStatus() != Gdiplus::Ok) {
        return {};
    }
    {
        Gdiplus::Graphics graphics(&bitmap);
        graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
        draw(&graphics, CPoint(side / 2, side / 2), scale);
    }
    const PixelBox box = InkOf(bitmap, side, side);
    if (box.right < box.left) {
        return {};
    }
    const int middle = side / 2;
    return {(middle - box.left) / scale, (box.right + 1 - middle) / scale,
            (middle - box.top) / scale, (box.bottom + 1 - middle) / scale};
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
