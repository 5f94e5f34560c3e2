#pragma once

#include <string>
#include <vector>

class CClassifyDisplayTable;

/// y before x, and a destructor that does something.
class CPoint2D {
public:
    CPoint2D() : CPoint2D(0.0, 0.0) {}
    CPoint2D(double pointX, double pointY) : y(pointY), x(pointX) { ++s_alive; }
    CPoint2D(const CPoint2D& other) : y(other.y), x(other.x) { ++s_alive; }
    CPoint2D& operator=(const CPoint2D& other) = default;
    ~CPoint2D() { --s_alive; }

    static int Alive() { return s_alive; }

    double y;
    double x;

private:
    static inline int s_alive = 0;
};

/// An origin and a size, behind operations that are not const, assigned from boxes that
/// are not const.
class CBoundingBox {
public:
    CBoundingBox() {}
    CBoundingBox(const CBoundingBox& other)
        : m_name(other.m_name),
          m_width(other.m_width),
          m_height(other.m_height),
          m_bottom(other.m_bottom),
          m_left(other.m_left) {}
    CBoundingBox& operator=(CBoundingBox& other) {
        m_width = other.m_width;
        m_height = other.m_height;
        m_bottom = other.m_bottom;
        m_left = other.m_left;
        return *this;
    }
    virtual ~CBoundingBox() {}

    static CBoundingBox OfSize(double left, double bottom, double width, double height) {
        CBoundingBox box;
        box.m_left = left;
        box.m_bottom = bottom;
        box.m_width = width;
        box.m_height = height;
        return box;
    }

    /// The boundary is outside.
    bool IsContain(CPoint2D point) {
        return point.x > m_left && point.x < m_left + m_width && point.y > m_bottom &&
               point.y < m_bottom + m_height;
    }
    CPoint2D TopLeft() { return CPoint2D(m_left, m_bottom + m_height); }
    double GetWidth() { return m_width; }
    double GetHeight() { return m_height; }
    void OffsetBoundingBox(double dx, double dy) {
        m_left += dx;
        m_bottom += dy;
    }

private:
    std::string m_name;
    double m_width = 0.0;
    double m_height = 0.0;
    double m_bottom = 0.0;
    double m_left = 0.0;
};

enum GISDataSourceType {
    GisSourceVector = 0,
    DataSourceRaster = 1,
    GisSourceService = 2
};
enum DataDisplayType { DisplayRGB, DisplayGray, DisplayClassified, ShowNothing };

/// A class of its own right: nothing is abstract.
class CGISDataSource {
public:
    explicit CGISDataSource(std::wstring name = L"") : m_name(name) {}
    virtual ~CGISDataSource() {}
    virtual bool Connect() { return true; }
    virtual void Refresh() {}
    virtual int Layers() { return 1; }
    virtual void Close() {}
    virtual bool IsAvailable() { return !m_name.empty(); }
    virtual bool IsEditable() { return false; }

    GISDataSourceType GetDataSourceType() { return m_type; }
    std::wstring GetFileName() { return m_name; }
    DataDisplayType GetDisplayType() { return m_display; }

    GISDataSourceType m_type = DataSourceRaster;
    DataDisplayType m_display = DisplayRGB;

private:
    std::wstring m_name;
};

class CRasterBand {
public:
    bool ComputeMinMax(double* min, double* max, bool) {
        *min = 0.0;
        *max = 255.0;
        return true;
    }
};

class CRasterSource : public CGISDataSource {
public:
    explicit CRasterSource(std::wstring name) : CGISDataSource(name), m_bands(3) {}

    int GetRedBandNum() { return 2; }
    int GetGreenBandNum() { return 1; }
    int GetBlueBandNum() { return 0; }
    CRasterBand* GetRasterBand(int index) { return &m_bands.at(index); }
    CClassifyDisplayTable* GetClassifyDisplayTable() { return m_classes; }

private:
    std::vector<CRasterBand> m_bands;
    CClassifyDisplayTable* m_classes = nullptr;
};
