#pragma once

/// @file
/// Page geometry, and the data sources that a legend explains.

#include <cstdint>
#include <string>

class CClassifyDisplayTable;

/// A point of the page in page units; y grows upwards.
class CPoint2D {
public:
    /// Page units.
    double x = 0.0;
    double y = 0.0;

    CPoint2D() = default;
    /// From both.
    CPoint2D(double pointX, double pointY) : x(pointX), y(pointY) {}
};

/// A rectangle of the page with its sides along the axes, in page units; y grows upwards.
///
/// The corners may be given in any order. A default box is empty: it has no size and
/// contains nothing.
class CBoundingBox {
public:
    CBoundingBox() = default;

    /// The box spanned by two opposite corners.
    CBoundingBox(double x1, double y1, double x2, double y2)
        : m_left(x1 < x2 ? x1 : x2),
          m_bottom(y1 < y2 ? y1 : y2),
          m_right(x1 < x2 ? x2 : x1),
          m_top(y1 < y2 ? y2 : y1) {}

    /// True inside the box and on its boundary; never true for an empty box.
    bool IsContain(CPoint2D point) const {
        return m_left <= point.x && point.x <= m_right && m_bottom <= point.y &&
               point.y <= m_top;
    }

    /// The corner with the smallest x and the largest y.
    CPoint2D TopLeft() const {
        return CPoint2D(IsEmpty() ? 0.0 : m_left, IsEmpty() ? 0.0 : m_top);
    }

    /// Page units; 0 for an empty box.
    double GetWidth() const { return IsEmpty() ? 0.0 : m_right - m_left; }
    double GetHeight() const { return IsEmpty() ? 0.0 : m_top - m_bottom; }

    /// Moves the whole box; an empty one stays empty.
    void OffsetBoundingBox(double dx, double dy) {
        if (IsEmpty()) {
            return;
        }
        m_left += dx;
        m_right += dx;
        m_bottom += dy;
        m_top += dy;
    }

private:
    bool IsEmpty() const { return !(m_left <= m_right && m_bottom <= m_top); }

    // A default box is empty because its edges are in the wrong order.
    double m_left = 1.0;
    double m_bottom = 1.0;
    double m_right = 0.0;
    double m_top = 0.0;
};

/// The kinds of data source; the legend explains only the raster ones.
enum GISDataSourceType : std::int32_t { DataSourceUnknown = 0, DataSourceRaster = 1 };

/// How a raster source is shown on the map.
enum DataDisplayType : std::int32_t {
    DisplayRGB = 0,         ///< three bands as red, green and blue
    DisplayGray = 1,        ///< one band as a grey ramp
    DisplayClassified = 2,  ///< one colour per class
};

/// Something shown on the map: what the legend asks of any data source.
///
/// The host derives from it and owns every object; the library only keeps pointers.
class CGISDataSource {
public:
    virtual ~CGISDataSource() = default;

    /// Not called by the library. With the destructor they come before IsAvailable, which
    /// is the sixth operation of the interface.
    virtual void Reserved1() {}
    virtual void Reserved2() {}
    virtual void Reserved3() {}
    virtual void Reserved4() {}

    /// Whether the source can be shown; the legend leaves it out when it cannot.
    virtual bool IsAvailable() = 0;

    /// What kind of source it is, and so which derived class.
    virtual GISDataSourceType GetDataSourceType() = 0;

    /// The name that the legend shows for the source.
    virtual std::wstring GetFileName() = 0;

    /// How it is shown.
    virtual DataDisplayType GetDisplayType() = 0;
};

/// One band of a raster source, owned by the source.
class CRasterBand {
public:
    virtual ~CRasterBand() = default;

    /// Writes the smallest and the largest value of the band.
    /// @param approximate an estimate from an overview or a sample will do
    /// @return false when they cannot be determined; the two values are then unchanged
    virtual bool ComputeMinMax(double* min, double* max, bool approximate) = 0;
};

/// A raster data source.
class CRasterSource : public CGISDataSource {
public:
    /// The zero-based index of the band shown in each colour channel.
    virtual int GetRedBandNum() = 0;
    virtual int GetGreenBandNum() = 0;
    virtual int GetBlueBandNum() = 0;

    /// The band at a zero-based index, owned by the source; null where there is none.
    virtual CRasterBand* GetRasterBand(int index) = 0;

    /// The classes of a classified display, owned by the source.
    virtual CClassifyDisplayTable* GetClassifyDisplayTable() = 0;
};
