#pragma once

#include <gdiplus.h>

#include <memory>
#include <vector>

#include "elements.h"
#include "map_surround/map_surround.h"
#include "surface.h"

namespace bench {

/// A page of framed elements on a surface of its own, drawn as a host draws it.
class FramedPage {
public:
    /// @param width page units; pixels at a scale of 1
    FramedPage(int width, int height, double scale);

    /// A page with everything on it, on A4.
    static std::unique_ptr<FramedPage> OfEverything(double scale);

    /// @param centre page units, y growing downwards
    void Place(std::unique_ptr<CMapSurround> element, CPoint centre);

    void Draw();

    std::shared_ptr<Surface> DrawnOn() { return m_surface; }

private:
    struct Placed {
        std::unique_ptr<CSurroundFrame> frame;
        CRect rect;
        CPoint centre;
    };

    double m_scale;
    std::shared_ptr<Surface> m_surface;
    std::vector<Placed> m_frames;
};

}  // namespace bench
