#pragma once

#include <gdiplus.h>

#include "map_surround/frame.h"

namespace host {

/// Prepares the surface for frame decorations and maps: sharp edges, no transform.
void PrepareDecoration(Gdiplus::Graphics& graphics);

/// Draws a frame's element in the way that suits its kind: each kind has its own
/// smoothing, and a title is moved so that its ink, not its layout box, is centred.
/// @param centre device pixels
/// @param scale device pixels per page unit
void DrawElement(Gdiplus::Graphics& graphics, CSurroundFrame& frame, CPoint centre,
                 double scale);

}  // namespace host
