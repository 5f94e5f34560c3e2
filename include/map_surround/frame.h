#pragma once

/// @file
/// Frames on the page, and hit testing.

#include <gdiplus.h>

#include <cstdint>

#include "host/device_geometry.h"
#include "host/raster_data.h"
#include "map_surround/element.h"
#include "map_surround/export.h"

/// The kind of a frame. 1 and 2 are free for the host's own kinds.
enum FrameType : std::int32_t {
    FrameBasic = 0,
    FrameSurround = 3,
};

/// Where a page point lies relative to a frame.
enum SpatialTopoRelation : std::int32_t {
    TopoDisjoint = 0,  ///< outside the extent
    TopoOnHandle = 2,  ///< on one of the eight handles
    TopoWithin = 3,    ///< inside, but on no handle, or handles were not tested
};

/// A rectangle on the page with a border, a drop shadow and a background, which can be
/// hit tested and moved.
///
/// The extent is in page units, y growing upwards. The decoration fields are public and
/// set by the host; their gaps and the border width are in device pixels.
/// @see [Frames](docs/elements/frames.md)
class MAP_SURROUND_API CFrameBase {
public:
    CFrameBase() = default;

    /// Copies every field.
    CFrameBase(const CFrameBase& other);
    CFrameBase& operator=(const CFrameBase& other);

    virtual ~CFrameBase();

    /// Hit tests a page point, and sets HitHandle to the handle it is on or to -1.
    ///
    /// The handles sit at the corners and the midpoints of the edges, numbered clockwise
    /// from the top left: 0 top-left, 1 top-middle, 2 top-right, 3 right-middle,
    /// 4 bottom-right, 5 bottom-middle, 6 bottom-left, 7 left-middle. A point is on a
    /// handle when it is within the tolerance of it in x and in y; the lowest number
    /// wins. With an extent from (0, 0) to (100, 50) and tolerance 3, the point (47, 50)
    /// is on handle 1.
    ///
    /// Handles are hit from inside only: a point outside the extent is disjoint, however
    /// near a corner it is. Drawing the handles is the host's part.
    /// @param point page units
    /// @param tolerance page units; a negative or NaN tolerance hits no handle
    /// @param insideOnly skip the handles
    virtual SpatialTopoRelation HitTest(CPoint2D point, double tolerance,
                                        bool insideOnly);

    /// Moves the extent, in page units.
    virtual void SetOffset(double dx, double dy);

    /// Draws the border, then the shadow, then the fill, each if it is switched on. The
    /// fill comes last and covers whatever lies inside it.
    ///
    /// The shadow is a strip along the right edge and one along the bottom edge, offset
    /// by the shadow ratios. They overlap in the corner, which shows when the shadow's
    /// colour is not opaque. A border of width 0 is drawn in a transparent colour, since
    /// GDI+ would draw a hairline. When the shadow is on and both its ratios are 0,
    /// BorderWidth is 0 afterwards; this is intended.
    /// @param graphics the surface; failures become its last status. On null nothing is
    /// drawn
    /// @param rect device pixels, y growing downwards. With a gap of 3 in x and y, the
    /// rect (10, 20, 110, 70) gets its border at (7, 17), 106 wide and 56 high
    void DrawFrame(Gdiplus::Graphics* graphics, CRect rect);

    /// The rectangle on the page, in page units.
    CBoundingBox GetExtent() const { return m_extent; }
    void SetExtent(CBoundingBox extent) { m_extent = extent; }

    /// The kind of frame, set by its constructor.
    FrameType GetFrameType() const { return m_frameType; }

    /// The handle that the last HitTest hit, -1 when it hit none.
    std::int32_t HitHandle = 0;

    /// Which decorations DrawFrame draws.
    bool DrawBorder = false;
    bool DrawFill = false;
    bool DrawShadow = false;
    bool DashedBorder = false;  ///< dashed only if the byte is exactly 1

    float BorderWidth = 1.0f;  ///< device pixels
    /// Colours, alpha included.
    Gdiplus::Color BorderColor{0xFF000000};
    Gdiplus::Color FillColor{0x00FFFFFF};
    Gdiplus::Color ShadowColor{0x00FFFFFF};

    /// Copied with the frame, never read by the library.
    std::int32_t Reserved1 = 0;
    std::int32_t Reserved2 = 0;
    std::int32_t Reserved3 = 0;

    /// How far the border and the shadow are set outside the rectangle, in device
    /// pixels: left and right, top and bottom.
    std::int32_t BorderGapX = 0;
    std::int32_t BorderGapY = 0;

    /// Copied with the frame, never read by the library.
    std::int32_t Reserved4 = 5;
    std::int32_t Reserved5 = 5;

    /// How far the fill extends outside the rectangle, in device pixels.
    std::int32_t FillGapX = 0;
    std::int32_t FillGapY = 0;

    /// How far the shadow falls, as a fraction of the rectangle's width and height. Set
    /// them before switching DrawShadow on.
    float ShadowRatioX = 0.0f;
    float ShadowRatioY = 0.0f;

protected:
    /// For a frame of another kind.
    explicit CFrameBase(FrameType type) : m_frameType(type) {}

private:
    void DrawShadowStrips(Gdiplus::Graphics* graphics, CRect rect);

    CBoundingBox m_extent;
    FrameType m_frameType = FrameBasic;
};

/// The frame that holds one map surround element and owns it.
///
/// A copy of a frame points to the same element: the host takes it out of one of the two
/// with SetMapSurround(nullptr) before both are destroyed.
/// @see [Moving and resizing](docs/editing.md)
class MAP_SURROUND_API CSurroundFrame : public CFrameBase {
public:
    CSurroundFrame() : CFrameBase(FrameSurround) {}
    /// Copies every field and the pointer to the element, which both frames then share.
    CSurroundFrame(const CSurroundFrame&) = default;

    /// Copies the pointer to the element; the element held before is not deleted.
    CSurroundFrame& operator=(const CSurroundFrame&) = default;

    /// Moves the element along; the other frame then has none. An element held before an
    /// assignment is deleted. So frames may be kept in a vector.
    CSurroundFrame(CSurroundFrame&& other) noexcept;
    CSurroundFrame& operator=(CSurroundFrame&& other) noexcept;

    /// Deletes the element.
    ~CSurroundFrame() override;

    /// Draws the element, if there is one, passing the arguments through. The border, the
    /// shadow and the fill are not drawn here: the host calls DrawFrame for those.
    virtual void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale);

    /// Takes ownership of the element. A previous element is neither deleted nor
    /// returned: a host that replaces an element deletes the old one first.
    void SetMapSurround(CMapSurround* mapSurround) { m_mapSurround = mapSurround; }

    /// The element, still owned by the frame; null when there is none.
    CMapSurround* GetMapSurround() const { return m_mapSurround; }

private:
    CMapSurround* m_mapSurround = nullptr;
};
