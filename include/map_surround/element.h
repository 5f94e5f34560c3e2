#pragma once

/// @file
/// CMapSurround, the base of every element, and the kinds of element.

#include <gdiplus.h>

#include <cstdint>

#include "host/device_geometry.h"
#include "map_surround/export.h"

/// The kind of a map surround element; each class's constructor sets its own.
enum MapSurroundType : std::int32_t {
    SurroundNone = 0,  ///< no concrete element
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
/// - Any value may be stored and drawn; lengths beyond 32 bits are clamped to the limit.
/// - An element is used by one thread at a time. Starting and stopping GDI+ is the
///   host's business.
/// - The library throws nothing of its own. When memory runs out, std::bad_alloc leaves
///   the operation and the element is as it was before; what was already drawn stays.
/// - The box that size and aspect ratio span is the layout's, not the ink's: a title's
///   glyphs, a legend's labels and a scale bar's unit name may reach past it.
/// @see [Hosting the library](docs/hosting.md)
class MAP_SURROUND_API CMapSurround {
public:
    CMapSurround() = default;
    /// Copies every property.
    CMapSurround(const CMapSurround&) = default;
    CMapSurround& operator=(const CMapSurround&) = default;

    /// A frame deletes its element through this.
    virtual ~CMapSurround();

    /// Draws the element with its centre on a device point.
    ///
    /// The title, the picture and the north arrows rotate themselves by the angle about
    /// `centre`, on top of the current world transform, and then reset the transform to
    /// the identity: a caller with a transform of its own sets it again after each
    /// element. The legend and the scale bars ignore the angle and never touch the
    /// transform.
    ///
    /// A drawing call that fails does not stop the drawing; its status stays behind as
    /// the surface's last status.
    /// @param graphics the surface, not owned; on null nothing is drawn
    /// @param centre device pixels
    /// @param scale device pixels per page unit
    virtual void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) = 0;

    /// Recomputes the natural proportions from the content. Does nothing here; the title,
    /// the legend, the picture and the scale bars override it.
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

    /// Degrees, clockwise on the device surface; an angle that is not finite counts as 0.
    float GetAngle() const { return m_angle; }
    void SetAngle(float angle) { m_angle = angle; }

    /// The kind of element, set by each class. Storing another kind changes only what
    /// the getter returns.
    MapSurroundType GetItemType() const { return m_itemType; }
    void SetItemType(MapSurroundType type) { m_itemType = type; }

private:
    Gdiplus::Color m_frontColor{0xFF000000};
    std::int32_t m_size = 0;
    float m_aspectRatio = 5.8f;
    float m_angle = 0.0f;
    MapSurroundType m_itemType = SurroundNone;
};
