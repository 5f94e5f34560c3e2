#pragma once

/// @file
/// What all elements are: CMapSurround and their kinds.

#include <gdiplus.h>

#include <cstdint>

// In angle brackets: our own declarations stand beside a source of ours, and must not
// be found there where a host has replaced them.
#include <host/device_geometry.h>

#include "map_surround/export.h"

/// The kind of a map surround element, as each class's constructor sets it.
enum MapSurroundType : std::int32_t {
    SurroundNone = 0,  ///< of no concrete element
    SurroundNorthArrow = 1,
    SurroundScaleBar = 2,
    SurroundMapTitle = 3,
    SurroundLegend = 4,
    SurroundPicture = 5,
};

/// A piece that stands around the map on a layout page: a title, a legend, a picture, a
/// north arrow or a scale bar.
///
/// Conventions of every element:
/// - The size is the element's height in page units (the host's unit; y grows upwards on
///   the page). Size times the drawing scale is the height in device pixels (y grows
///   downwards). A size of 40 drawn at scale 2.5 is 100 pixels high.
/// - Setters store and nothing else: they neither check nor measure. After a change of
///   what an element shows, the host calls ResetAspectRatio() and sizes the frame from
///   GetSize() and GetAspectRatio().
/// - Any value may be stored and drawn; lengths beyond 32 bits are drawn at the limit.
/// - Elements are used by one thread at a time, and start and stop nothing.
/// - Nothing throws of itself. Where memory runs out, std::bad_alloc leaves the
/// operation,
///   and the element is as it was before it; what was drawn until then stays drawn.
class MAP_SURROUND_API CMapSurround {
public:
    CMapSurround() = default;
    /// Copies every property.
    CMapSurround(const CMapSurround&) = default;
    CMapSurround& operator=(const CMapSurround&) = default;

    /// A frame disposes of its element through this.
    virtual ~CMapSurround();

    /// Draws the element with its centre on a device point.
    ///
    /// The title, the picture and the north arrows turn themselves by the angle about
    /// `centre`, on top of the world transform they find, and leave the identity: a
    /// caller with a transform of its own sets it again after each element. The legend
    /// and the scale bars ignore the angle and never touch the transform.
    ///
    /// A failed drawing operation does not stop the drawing; its status is the surface's
    /// last status afterwards.
    /// @param graphics the surface, not null; not owned
    /// @param centre device pixels
    /// @param scale device pixels in one page unit
    virtual void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) = 0;

    /// Works the natural proportions out anew from the content. Leaves the aspect ratio
    /// as it is here; the title, the legend, the picture and the scale bars have their
    /// own.
    virtual void ResetAspectRatio();

    /// The main drawing colour.
    Gdiplus::Color GetFrontColor() const { return m_frontColor; }
    void SetFrontColor(Gdiplus::Color color) { m_frontColor = color; }

    /// The height in page units; 0 until set, and 40 for scale bars.
    int GetSize() const { return m_size; }
    void SetSize(int size) { m_size = size; }

    /// Width divided by height.
    float GetAspectRatio() const { return m_aspectRatio; }
    void SetAspectRatio(float aspectRatio) { m_aspectRatio = aspectRatio; }

    /// Degrees, clockwise on the device surface; one that is not finite turns nothing.
    float GetAngle() const { return m_angle; }
    void SetAngle(float angle) { m_angle = angle; }

    /// The kind of element, set by each class. Storing another changes nothing but the
    /// answer.
    MapSurroundType GetItemType() const { return m_itemType; }
    void SetItemType(MapSurroundType type) { m_itemType = type; }

private:
    Gdiplus::Color m_frontColor{0xFF000000};
    std::int32_t m_size = 0;
    float m_aspectRatio = 5.8f;
    float m_angle = 0.0f;
    MapSurroundType m_itemType = SurroundNone;
};
