#pragma once

#include <gdiplus.h>

#include <array>

#include "element/numbers.h"
#include "host/device_geometry.h"

/// What all styles of north arrow share.
namespace map_surround {

/// A height in whole pixels, rounded half up: 2.5 is 3. Negative heights get the half
/// added too and are then truncated: -2.7 is -2.
Length PixelSize(double height);

/// A vertex from layout coordinates.
Gdiplus::Point Vertex(Length x, Length y);

/// A coordinate of a letter's layout box, from a layout coordinate in whole or fractional
/// pixels.
Gdiplus::REAL LetterEdge(Length coordinate);
Gdiplus::REAL LetterEdge(double coordinate);

/// Rotates what is drawn from here on about the arrow's centre; the arrow resets the
/// transform when it is done.
void TurnArrow(Gdiplus::Graphics* graphics, CPoint centre, Gdiplus::REAL angle);

/// The font of a compass letter.
struct LetterFont {
    /// @param emSize device pixels
    explicit LetterFont(Gdiplus::REAL emSize);

    Gdiplus::FontFamily family;
    Gdiplus::Font font;
};

/// Writes a compass letter with the top left corner of its layout box on a point.
void WriteLetter(Gdiplus::Graphics* graphics, const wchar_t* letter,
                 const LetterFont& font, Gdiplus::REAL left, Gdiplus::REAL top,
                 Gdiplus::Color color);

using Triangle = std::array<Gdiplus::Point, 3>;

void OutlineTriangle(Gdiplus::Graphics* graphics, const Triangle& triangle,
                     Gdiplus::Color color);

void FillTriangle(Gdiplus::Graphics* graphics, const Triangle& triangle,
                  const Gdiplus::Brush& brush);

}  // namespace map_surround
