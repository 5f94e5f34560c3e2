#pragma once

/// @file
/// The box of the ink: how far an element's drawing really reaches.

#include <gdiplus.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>

#include "map_surround/element.h"

namespace map_surround::kit {

/// How far an element's drawing reaches from its centre, in page units, each way counted
/// positive. Empty, with all four 0, when it draws nothing.
struct InkBox {
    double left = 0.0;   ///< Page units, as the others.
    double right = 0.0;  ///< Likewise.
    double up = 0.0;     ///< Likewise.
    double down = 0.0;   ///< Likewise.

    /// From left to right.
    double Width() const { return left + right; }
    /// From bottom to top.
    double Height() const { return up + down; }
    /// Whether there is none.
    bool IsEmpty() const { return Width() <= 0.0 || Height() <= 0.0; }
};

/// Text is hinted differently at each size: at a scale other than the measured one it may
/// reach further by this factor.
constexpr double kHinting = 1.05;

/// @cond The measuring is internal to this file.
namespace ink {

constexpr int kLargestSide =
    3000;  // pixels; a longer element is measured at a smaller scale

/// The first look is drawn at this scale, to find where to measure. Anything wider than
/// one of its pixels leaves a trace.
constexpr double kGlance = 0.25;
constexpr double kLeastGlance = 300.0;  // pixels; a smaller one would save no time
/// Lengths in whole pixels add up differently at a small scale.
constexpr double kGlancePixels = 4.0;

/// Only the alpha is read. With straight alpha, every drawing would have to read the
/// pixels beneath it.
constexpr Gdiplus::PixelFormat kFormat = PixelFormat32bppPARGB;

/// The part of a bitmap that is not transparent.
struct PixelBox {
    int left;
    int top;
    int right;
    int bottom;
};

/// Most rows are blank, and need not be examined pixel by pixel: without alpha there is
/// no colour either, so every byte is 0 like the one before it.
inline bool IsBlank(const std::uint8_t* row, int width) {
    const auto bytes = static_cast<std::size_t>(width) * 4;
    return row[0] == 0 && std::memcmp(row, row + 1, bytes - 1) == 0;
}

inline PixelBox InkedPixels(Gdiplus::Bitmap& bitmap, int width, int height) {
    PixelBox box = {width, height, -1, -1};
    Gdiplus::BitmapData data;
    if (bitmap.LockBits(nullptr, Gdiplus::ImageLockModeRead, kFormat, &data) !=
        Gdiplus::Ok) {
        return box;
    }
    for (int y = 0; y < height; ++y) {
        const auto* row = static_cast<const std::uint8_t*>(data.Scan0) +
                          static_cast<std::ptrdiff_t>(y) * data.Stride;
        if (IsBlank(row, width)) {
            continue;
        }
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

/// The side of a square around an element's centre that its drawing stays within: half as
/// much again as its size all around, and room for a text that starts at an edge.
inline double RoomFor(const CMapSurround& element) {
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

inline Reach AllAround(int side) {
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

/// A bitmap large enough for a drawing, given how far its small version reached.
inline Reach Around(const InkBox& glanced, double leeway, double scale,
                    const Reach& all) {
    const auto side = [=](double length, int most) {
        const double pixels = (std::max(0.0, length) * kHinting + leeway) * scale;
        return std::min(most, static_cast<int>(std::ceil(pixels)));
    };
    return {side(glanced.left, all.left), side(glanced.right, all.right),
            side(glanced.up, all.up), side(glanced.down, all.down)};
}

/// Whether the ink keeps clear of every edge that may have cut it off.
inline bool IsWithin(const InkBox& ink, double leeway, double scale, const Reach& reach,
                     const Reach& all) {
    const auto isClear = [=](double length, int side, int most) {
        return side == most || (length + leeway) * scale <= side;
    };
    return isClear(ink.left, reach.left, all.left) &&
           isClear(ink.right, reach.right, all.right) &&
           isClear(ink.up, reach.up, all.up) && isClear(ink.down, reach.down, all.down);
}

/// Most of a square with room for anything is empty: the drawing is found at a small
/// scale, then measured there.
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

}  // namespace ink
/// @endcond

/// Draws an element off-screen and measures how far it reaches, for text may reach beyond
/// the rectangle given by an element's size and aspect ratio. For a title of 40 units,
/// "Land cover of Olinda", the rectangle is 30 high, and its ink 8 lower than that.
///
/// Measures at scale 1, or at the scale at which the element fits in 3000 pixels. Throws
/// std::bad_alloc when memory for that runs out.
inline InkBox MeasureInk(CMapSurround& element) {
    return ink::Measure(ink::RoomFor(element), [&element](Gdiplus::Graphics* graphics,
                                                          CPoint centre, double scale) {
        element.Draw(graphics, centre, scale);
    });
}

}  // namespace map_surround::kit
