#pragma once

#include "map_surround/element.h"
#include "map_surround/frame.h"

namespace host {

/// How far an element's drawing reaches from its centre, in page units, each way counted
/// positive. Empty, with all four 0, when it draws nothing.
struct InkBox {
    double left = 0.0;
    double right = 0.0;
    double up = 0.0;
    double down = 0.0;

    double Width() const { return left + right; }
    double Height() const { return up + down; }
    bool IsEmpty() const { return Width() <= 0.0 || Height() <= 0.0; }
};

/// Texts are hinted differently from size to size: at another scale than the measured one
/// they may reach further by this factor.
constexpr double kHinting = 1.05;

/// Draws an element out of sight and looks how far it reaches, for texts may stand out
/// from the rectangle that an element's size and aspect ratio describe.
InkBox MeasureInk(CMapSurround& element);

/// The same of a frame's element as DrawElement draws it, from the middle of the frame.
InkBox MeasureInk(CSurroundFrame& frame);

}  // namespace host
