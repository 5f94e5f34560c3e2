#pragma once

#include <gdiplus.h>

#include "map_surround/frame.h"

namespace host {

/// Sets the surface up for frame decorations and maps: sharp edges, no transform.
void PrepareDecoration(Gdiplus::Graphics& graphics);

/// Draws a frame's element as its kind looks best: each kind has its own smoothing, and
/// a title is moved so that its ink, not its layout box, stands on the centre.
/// @param centre device pixels
/// @param scale device pixels in one page unit
void DrawElement(Gdiplus::Graphics& graphics, CSurroundFrame& frame, CPoint centre,
                 double scale);

}  // namespace host
