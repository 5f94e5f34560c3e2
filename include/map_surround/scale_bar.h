#pragma once

/// @file
/// Scale bars, their styles and where the unit name goes.

#include <gdiplus.h>

#include <cstdint>
#include <string>

#include "host/common_functions.h"
#include "host/device_geometry.h"
#include "map_surround/element.h"
#include "map_surround/export.h"

namespace map_surround {
class BarDrawing;
}  // namespace map_surround

/// The style of a scale bar; each class's constructor sets its own. 0, 4 and 5 are not
/// used.
enum ScaleBarType : std::int32_t {
    ScaleBarLine = 1,
    ScaleBarLine2 = 2,
    ScaleBarLine3 = 3,
    ScaleBarEquAlternate = 6,
    ScaleBarAlternate = 7,
};

/// Where the unit name goes. Any other value puts it at the device point (0, 0).
enum ScaleBarPostion : std::int32_t {
    UnitPosAfter = 0,   ///< to the right of the last division
    UnitPosBefore = 1,  ///< at the left edge; the divisions move right to make room
};

/// A bar that shows how long a ground distance is on the page.
///
/// The bar has a number of main divisions, and some styles cut them into sub-divisions.
/// One division stands for the *division value*: the paper-to-data scale rounded down to
/// one significant digit, so that the labels read 0, 2000, 4000 and not 0, 2500, 5000.
/// The drawn division is shortened with it: a paper-to-data scale of 2500 and a
/// paper-to-screen scale of 100 give divisions of 2000 map units that are 80 pixels long,
/// by the factor 2000 / 2500 = 0.8. The factor is over 0.1 and at most 1.
///
/// Conventions of every style:
/// - A division is drawn in whole pixels: its length is truncated, and every division
///   carries the same error. Ten divisions of 9.99 pixels are 90 pixels long, not 99.9.
/// - Labels of division values below 1 have as many decimals as the one digit needs:
///   0.037 gives the division value 0.03 and the labels 0.00, 0.03, 0.06. From 1 up they
///   have none. The alternating style alone writes a division value of 1 with one
///   decimal, 1.0.
/// - With a paper-to-data scale below 1e-8, negative, infinite or NaN, the bar draws
///   nothing and keeps its aspect ratio.
/// - The height follows the size and the drawing scale; the length of a division does
///   not. A host that prints at another resolution changes the paper-to-screen scale.
/// - Labels are "Times New Roman" at a quarter of the bar's height, the unit name at a
///   third of it.
/// - The angle is ignored and the world transform is never touched.
/// - Counts are not limited. A count of a thousand million is drawn, slowly.
///
/// A bar holds a GDI+ font family and brush from construction on, so start GDI+ before
/// making one. A copy has its own. An assignment that runs out of memory changes nothing.
/// @see [Scale bars](docs/elements/scale_bars.md)
class MAP_SURROUND_API CScaleBarBase : public CMapSurround {
public:
    /// Item type SurroundScaleBar, size 40, aspect ratio 5.8.
    CScaleBarBase();
    /// Copies every property.
    CScaleBarBase(const CScaleBarBase& other);
    CScaleBarBase& operator=(const CScaleBarBase& other);

    ~CScaleBarBase() override;

    /// Sets the aspect ratio so that the width holds the divisions and the margins: main
    /// division count x screen-to-paper scale x factor, plus 1/5, 1/40, 2/3 and 1/40 of
    /// the size. Size 40, 5 divisions of 10 and a paper-to-data scale of 1 are
    /// 50 + 8 + 1 + 26.67 + 1 = 86.67 wide: an aspect ratio of 2.167. The styles' own
    /// margins differ a little and texts are not measured, so the width is approximate.
    /// Call SetScreen2PaperByOneScale first. With size 0 the aspect ratio is infinite or
    /// NaN.
    void ResetAspectRatio() override;

    /// The map distance of one division before rounding, in the host's map units.
    void SetPaper2DataScale(double scale) { m_paper2DataScale = scale; }

    /// The length of that distance in device pixels.
    void SetPaper2ScreenScale(double scale) { m_paper2ScreenScale = scale; }

    /// The same length in page units; only ResetAspectRatio() reads it.
    void SetScreen2PaperByOneScale(double scale) { m_screen2PaperByOneScale = scale; }

    /// How many main divisions there are. A negative count draws none: in the line styles
    /// the base line then runs to the device point (0, 0), which the unit name follows.
    /// The box styles put the unit name a third of the height above y 0 for a count of 0
    /// or less, write the one label of that count, and in the alternating style the two
    /// lines of a negative count run left from the first division.
    int GetMainDivCount() const { return m_mainDivCount; }
    void SetMainDivCount(int count) { m_mainDivCount = count; }

    /// How many sub-division ticks there are between two main ticks: a count of 4 divides
    /// a main division into 5 equal parts.
    int GetSubDivCount() const { return m_subDivCount; }
    void SetSubDivCount(int count) { m_subDivCount = count; }

    /// Where the unit name goes.
    ScaleBarPostion GetUnitPos() const { return m_unitPos; }
    void SetUnitPos(ScaleBarPostion position) { m_unitPos = position; }

    /// Stored only: the class decides what is drawn, whatever the type says.
    ScaleBarType GetScaleBarType() const { return m_scaleBarType; }
    void SetScaleBarType(ScaleBarType type) { m_scaleBarType = type; }

    /// A unit for the host's own use, MeasureUnknown by default. Stored only: a scale bar
    /// never converts, its labels are in the unit of the paper-to-data scale.
    CommonMeasureUnits GetDestUnitType() const { return m_destUnitType; }
    void SetDestUnitType(CommonMeasureUnits unit) { m_destUnitType = unit; }

    /// The unit name as drawn; the Chinese word for "unit" (U+5355 U+4F4D) by default.
    std::wstring GetUnitsName() const { return m_unitsName; }

    /// Stores the unit name. These words are translated into Chinese: degree, Degree,
    /// meter, Meter, metre, Metre, Kilometer, Kilometre, unknown, Unknown.
    /// `SetUnitsName(L"Metre")` stores L"\u7C73". Any other name, such as "km", "METER"
    /// or "kilometer", is stored as it is.
    void SetUnitsName(std::wstring name);

    /// Stores the unit name as it is: `SetUnitsNameVerbatim(L"Metre")` stores L"Metre".
    void SetUnitsNameVerbatim(std::wstring name) { m_unitsName = std::move(name); }

protected:
    /// For a style that can be drawn.
    explicit CScaleBarBase(ScaleBarType type);

private:
    friend class map_surround::BarDrawing;

    /// @cond
    /// The bar's GDI+ objects. GDI+ cannot copy them, so a copied bar makes its own,
    /// which are the same in every bar.
    struct Resources {
        Resources() = default;
        Resources(const Resources&) {}
        Resources& operator=(const Resources&) = delete;

        Gdiplus::FontFamily fontFamily{L"Times New Roman"};
        Gdiplus::SolidBrush brush{Gdiplus::Color(0xFF000000)};  // no style draws with it
    };
    /// @endcond

    /// Draws the unit name with the top left corner of its layout box on a point.
    void DrawUintsName(Gdiplus::Graphics* graphics, Gdiplus::PointF topLeft,
                       double scale) const;

    ScaleBarPostion m_unitPos = UnitPosAfter;
    std::wstring m_unitsName = L"\u5355\u4F4D";
    double m_paper2DataScale = 1.0;
    double m_paper2ScreenScale = 25.0;
    ScaleBarType m_scaleBarType = ScaleBarLine;
    bool m_styleFlag = false;  // this one and the next are read by nothing
    std::int32_t m_styleValue = 0;
    std::int32_t m_subDivCount = 4;
    std::int32_t m_mainDivCount = 5;
    Resources m_resources;
    double m_screen2PaperByOneScale = 0.0;
    CommonMeasureUnits m_destUnitType{};
};

/// A base line with a tall tick at every main division and shorter ones, on the same
/// foot, at the sub-divisions.
///
/// A bar of size 40 at scale 1 is 40 pixels high: the labels stand at the top, the main
/// ticks run from 26 to 40 below it, the sub ticks from 32 to 40, and the unit name
/// starts 27 below it.
/// @see [Scale bars](docs/elements/scale_bars.md)
class MAP_SURROUND_API CScaleLine : public CScaleBarBase {
public:
    CScaleLine();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    void DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect,
                      double scale) const;
};

/// Draws as CScaleLine does.
/// @see [Scale bars](docs/elements/scale_bars.md)
class MAP_SURROUND_API CSteppedScaleLine : public CScaleLine {
public:
    CSteppedScaleLine();
};

/// The line style with the base line a sixth of the height above the feet of the main
/// ticks, and the sub ticks centred on it.
/// @see [Scale bars](docs/elements/scale_bars.md)
class MAP_SURROUND_API CScaleLine2 : public CScaleBarBase {
public:
    CScaleLine2();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    void DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect,
                      double scale) const;
};

/// The line style with the base line along the tops of the main ticks and the sub ticks
/// hanging from it.
/// @see [Scale bars](docs/elements/scale_bars.md)
class MAP_SURROUND_API CScaleLine3 : public CScaleBarBase {
public:
    CScaleLine3();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    void DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect,
                      double scale) const;
};

/// A strip of boxes, one for each main division, alternately empty and filled. Only the
/// first division is cut into boxes for the sub-divisions, alternately filled and empty,
/// and its last part is left open between the strip's two lines.
///
/// With 5 divisions and 4 sub-divisions the first and the third of the small boxes and
/// the third and the fifth division are filled.
/// @see [Scale bars](docs/elements/scale_bars.md)
class MAP_SURROUND_API CScaleAlternate : public CScaleBarBase {
public:
    CScaleAlternate();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    void DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect, double scale);

    std::int32_t m_divisionCounter = 0;  // boxes drawn so far
};

/// A row of boxes, one for each main division, alternately filled and empty, starting
/// with a filled one. There are no sub-divisions.
///
/// A box is as wide as the division before rounding, so boxes overlap where the division
/// value was rounded down: at a paper-to-data scale of 2500 and a paper-to-screen scale
/// of 25 they are 25 pixels wide and 20 apart.
/// @see [Scale bars](docs/elements/scale_bars.md)
class MAP_SURROUND_API CScaleEquAltenate : public CScaleBarBase {
public:
    CScaleEquAltenate();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    void DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect, double scale);

    std::int32_t m_divisionCounter = 0;  // boxes drawn so far
};

/// A placeholder for a style with a single division. It has no Draw, so it cannot be
/// instantiated.
class MAP_SURROUND_API CSingleDivisionScaleBar : public CScaleBarBase {
public:
    CSingleDivisionScaleBar();
};
