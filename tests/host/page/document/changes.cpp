#include "page/document/changes.h"

#include <limits>
#include <type_traits>

#include "map_surround/map_surround.h"
#include "page/element_of.h"
#include "page/numeric_scale.h"
#include "page/placed_frame.h"

namespace host_tests {
namespace {

using host::LegendFrame;
using host::MapFrame;
using host::NorthArrowFrame;
using host::PageItem;
using host::PlacedFrame;

template <class Class>
Class& In(PageItem& item) {
    if constexpr (std::is_same_v<Class, MapFrame>) {
        return std::get<MapFrame>(item);
    } else if constexpr (std::is_same_v<Class, CFrameBase>) {
        return host::FrameOf(item);
    } else if constexpr (std::is_base_of_v<PlacedFrame, Class>) {
        return *host::FrameAs<Class>(item);
    } else {
        return *host::ElementOf<Class>(item);
    }
}

template <class Class>
Change On(const char* property, void (*make)(Class&), bool (*isMade)(const Class&)) {
    return {property, [make](PageItem& item) { make(In<Class>(item)); },
            [isMade](const PageItem& item) {
                return isMade(In<Class>(const_cast<PageItem&>(item)));
            }};
}

std::vector<Change> operator+(std::vector<Change> first, std::vector<Change> second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

std::vector<Change> MapChanges() {
    using M = MapFrame;
    return {
        On<M>(
            "name", [](M& m) { m.name = "Karte \"ä\"\n"; },
            [](const M& m) { return m.name == "Karte \"ä\"\n"; }),
        On<M>(
            "rasters",
            [](M& m) {
                m.rasterPaths = {"a.tif", "NETCDF:b.nc:x"};
            },
            [](const M& m) {
                return m.rasterPaths ==
                       std::vector<std::string>{"a.tif", "NETCDF:b.nc:x"};
            }),
        On<M>(
            "extent",
            [](M& m) {
                m.extent = {0.1, -1.0 / 3.0, 1e17, 5e-324};
            },
            [](const M& m) {
                return m.extent && m.extent->left == 0.1 &&
                       m.extent->bottom == -1.0 / 3.0 && m.extent->right == 1e17 &&
                       m.extent->top == 5e-324;
            }),
        On<M>(
            "scale", [](M& m) { m.scale = 25000.0; },
            [](const M& m) { return m.scale == 25000.0; }),
        On<M>(
            "stretch",
            [](M& m) { m.style.stretch = *host::ParseStretch("percent 5 90"); },
            [](const M& m) { return m.style.stretch.Text() == "percent 5 90"; }),
        On<M>(
            "bands",
            [](M& m) {
                m.style.bands = {3, 1, 2};
            },
            [](const M& m) {
                return m.style.bands == std::vector<int>{3, 1, 2};
            }),
        On<M>(
            "noData", [](M& m) { m.style.noData = -0.1; },
            [](const M& m) { return m.style.noData == -0.1; }),
    };
}

std::vector<Change> PlacedFrameChanges() {
    using P = PlacedFrame;
    return {
        On<P>(
            "name", [](P& p) { p.SetName("标题"); },
            [](const P& p) { return p.Name() == "标题"; }),
        On<P>(
            "offsetX", [](P& p) { p.SetElementOffset(1.0 / 3.0, 0.0); },
            [](const P& p) {
                return p.ElementOffset().x == 1.0 / 3.0 && p.ElementOffset().y == 0.0;
            }),
        On<P>(
            "offsetY", [](P& p) { p.SetElementOffset(0.0, -1e-7); },
            [](const P& p) {
                return p.ElementOffset().x == 0.0 && p.ElementOffset().y == -1e-7;
            }),
    };
}

std::vector<Change> ElementChanges() {
    using E = CMapSurround;
    return {
        On<E>(
            "size", [](E& e) { e.SetSize(77); },
            [](const E& e) { return e.GetSize() == 77; }),
        On<E>(
            "aspectRatio", [](E& e) { e.SetAspectRatio(0.1f); },
            [](const E& e) { return e.GetAspectRatio() == 0.1f; }),
        On<E>(
            "angle", [](E& e) { e.SetAngle(-33.3f); },
            [](const E& e) { return e.GetAngle() == -33.3f; }),
        On<E>(
            "color", [](E& e) { e.SetFrontColor(Gdiplus::Color(0x80123456)); },
            [](const E& e) { return e.GetFrontColor().GetValue() == 0x80123456; }),
        On<E>(
            "itemType", [](E& e) { e.SetItemType(SurroundNone); },
            [](const E& e) { return e.GetItemType() == SurroundNone; }),
    };
}

std::vector<Change> TitleChanges() {
    using T = CMapTitle;
    return {
        On<T>(
            "text", [](T& t) { t.SetFontValue(L"Ünïted \U0001F5FA"); },
            [](const T& t) { return t.GetFontValue() == L"Ünïted \U0001F5FA"; }),
        On<T>(
            "font", [](T& t) { t.SetFontStyle(L"Times New Roman"); },
            [](const T& t) { return t.GetFontStyle() == L"Times New Roman"; }),
        On<T>(
            "fontSize", [](T& t) { t.SetFontSize(20.1); },
            [](const T& t) { return t.GetFontSize() == 20.1; }),
        On<T>(
            "fontStyle",
            [](T& t) {
                t.SetFontProcess(static_cast<FontProcess>(FontProcessBoldItalic |
                                                          FontProcessStrikeout));
            },
            [](const T& t) { return t.GetFontProcess() == 11; }),
    };
}

std::vector<Change> PictureChanges(const std::string& folder) {
    const std::string path = folder + "/logo.png";
    const std::wstring wide(path.begin(), path.end());
    return {{"path",
             [wide](PageItem& item) { In<CDrawPicture>(item).Open(wide.c_str()); },
             [wide](const PageItem& item) {
                 return In<CDrawPicture>(const_cast<PageItem&>(item)).GetPath() == wide;
             }}};
}

std::vector<Change> LegendChanges(const std::string& folder) {
    using L = CMapLegend;
    const std::vector<std::string> rasters = {folder + "/scene.tif"};
    return {
        {"rasters",
         [rasters](PageItem& item) { In<LegendFrame>(item).SetRasterPaths(rasters); },
         [rasters](const PageItem& item) {
             return In<LegendFrame>(const_cast<PageItem&>(item)).RasterPaths() == rasters;
         }},
        On<L>(
            "title", [](L& l) { l.SetTitleValue(L"图例"); },
            [](const L& l) { return l.GetTitleValue() == L"图例"; }),
        On<L>(
            "titleFont", [](L& l) { l.SetTitle(L"Courier New"); },
            [](const L& l) { return l.GetTitle() == L"Courier New"; }),
        On<L>(
            "titleSize", [](L& l) { l.SetTitleSize(33.3f); },
            [](const L& l) { return l.GetTitleSize() == 33.3f; }),
        On<L>(
            "titleStyle", [](L& l) { l.SetTitleStyle(Gdiplus::FontStyleUnderline); },
            [](const L& l) { return l.GetTitleStyle() == Gdiplus::FontStyleUnderline; }),
        On<L>(
            "titleColor", [](L& l) { l.SetTitleColor(Gdiplus::Color(0xFF0000FE)); },
            [](const L& l) { return l.GetTitleColor().GetValue() == 0xFF0000FE; }),
        On<L>(
            "fileNameFont", [](L& l) { l.SetFileName(L"Courier New"); },
            [](const L& l) { return l.GetFileName() == L"Courier New"; }),
        On<L>(
            "fileNameSize", [](L& l) { l.SetFileNameSize(7.7f); },
            [](const L& l) { return l.GetFileNameSize() == 7.7f; }),
        On<L>(
            "fileNameStyle", [](L& l) { l.SetFileNameStyle(Gdiplus::FontStyleItalic); },
            [](const L& l) { return l.GetFileNameStyle() == Gdiplus::FontStyleItalic; }),
        On<L>(
            "fileNameColor", [](L& l) { l.SetFileColor(Gdiplus::Color(0x01020304)); },
            [](const L& l) { return l.GetFileColor().GetValue() == 0x01020304; }),
        On<LegendFrame>(
            "sizeFactor", [](LegendFrame& f) { f.SetSizeFactor(1.7f); },
            [](const LegendFrame& f) { return f.SizeFactor() == 1.7f; }),
    };
}

std::vector<Change> NorthArrowChanges(NorthArrowType other) {
    using N = CNorthArrowBase;
    return {On<NorthArrowFrame>(
                "trueNorth", [](NorthArrowFrame& f) { f.SetTrueNorth(true); },
                [](const NorthArrowFrame& f) { return f.TrueNorth(); }),
            {"northArrowType",
             [other](PageItem& item) { In<N>(item).SetNorthArrowType(other); },
             [other](const PageItem& item) {
                 return In<N>(const_cast<PageItem&>(item)).GetNorthArrowType() == other;
             }}};
}

std::vector<Change> NumericScaleChanges() {
    using N = host::NumericScale;
    return {
        On<N>(
            "denominator", [](N& n) { n.SetDenominator(12500.0); },
            [](const N& n) { return n.Denominator() == 12500.0; }),
    };
}

std::vector<Change> ScaleBarChanges(ScaleBarType other) {
    using B = CScaleBarBase;
    using P = host::ScaleBarFrame;
    return {
        On<P>(
            "unit", [](P& p) { p.SetUnit(host::DistanceUnit::NauticalMile); },
            [](const P& p) { return p.Unit() == host::DistanceUnit::NauticalMile; }),
        On<P>(
            "fit", [](P& p) { p.SetFit(host::BarFit::Value); },
            [](const P& p) { return p.Fit() == host::BarFit::Value; }),
        On<P>(
            "longest", [](P& p) { p.SetLongest(123.5); },
            [](const P& p) { return p.Longest() == 123.5; }),
        On<P>(
            "exact", [](P& p) { p.SetExact(false); },
            [](const P& p) { return !p.IsExact(); }),
        On<P>(
            "distances", [](P& p) { p.SetBarDistances(host::BarDistances::Ground); },
            [](const P& p) { return p.GetBarDistances() == host::BarDistances::Ground; }),
        On<P>(
            "divisionValue", [](P& p) { p.SetDivisionValue(0.3); },
            [](const P& p) { return p.DivisionValue() == 0.3; }),
        On<P>(
            "divisionLength", [](P& p) { p.SetDivisionLength(12.3456789); },
            [](const P& p) { return p.DivisionLength() == 12.3456789; }),
        On<B>(
            "divisions", [](B& b) { b.SetMainDivCount(3); },
            [](const B& b) { return b.GetMainDivCount() == 3; }),
        On<B>(
            "subdivisions", [](B& b) { b.SetSubDivCount(7); },
            [](const B& b) { return b.GetSubDivCount() == 7; }),
        On<B>(
            "unitPosition", [](B& b) { b.SetUnitPos(UnitPosBefore); },
            [](const B& b) { return b.GetUnitPos() == UnitPosBefore; }),
        On<B>(
            "units", [](B& b) { b.SetUnitsName(L"metre"); },
            [](const B& b) { return b.GetUnitsName() == L"米"; }),
        On<B>(
            "unitType", [](B& b) { b.SetDestUnitType(MeasureDegree); },
            [](const B& b) { return b.GetDestUnitType() == MeasureDegree; }),
        {"scaleBarType", [other](PageItem& item) { In<B>(item).SetScaleBarType(other); },
         [other](const PageItem& item) {
             return In<B>(const_cast<PageItem&>(item)).GetScaleBarType() == other;
         }},
    };
}

}  // namespace

std::vector<Change> FrameChanges() {
    using F = CFrameBase;
    return {
        On<F>(
            "left",
            [](F& f) {
                f.SetExtent({1.0 / 7.0, 0.0, 1.0 / 7.0, 0.0});
            },
            [](const F& f) { return f.GetExtent().TopLeft().x == 1.0 / 7.0; }),
        On<F>(
            "top",
            [](F& f) {
                f.SetExtent({0.0, 1.0 / 7.0, 0.0, 1.0 / 7.0});
            },
            [](const F& f) { return f.GetExtent().TopLeft().y == 1.0 / 7.0; }),
        On<F>(
            "width",
            [](F& f) {
                f.SetExtent({0.0, 0.0, 100.1, 0.0});
            },
            [](const F& f) { return f.GetExtent().GetWidth() == 100.1; }),
        On<F>(
            "height",
            [](F& f) {
                f.SetExtent({0.0, -50.7, 0.0, 0.0});
            },
            [](const F& f) { return f.GetExtent().GetHeight() == 50.7; }),
        On<F>(
            "border", [](F& f) { f.DrawBorder = true; },
            [](const F& f) { return f.DrawBorder; }),
        On<F>(
            "borderWidth", [](F& f) { f.BorderWidth = 2.2f; },
            [](const F& f) { return f.BorderWidth == 2.2f; }),
        On<F>(
            "borderColor", [](F& f) { f.BorderColor = Gdiplus::Color(0xFF00FF00); },
            [](const F& f) { return f.BorderColor.GetValue() == 0xFF00FF00; }),
        On<F>(
            "borderDashed", [](F& f) { f.DashedBorder = true; },
            [](const F& f) { return f.DashedBorder; }),
        On<F>(
            "borderGapX", [](F& f) { f.BorderGapX = -3; },
            [](const F& f) { return f.BorderGapX == -3; }),
        On<F>(
            "borderGapY", [](F& f) { f.BorderGapY = 4; },
            [](const F& f) { return f.BorderGapY == 4; }),
        On<F>(
            "fill", [](F& f) { f.DrawFill = true; },
            [](const F& f) { return f.DrawFill; }),
        On<F>(
            "fillColor", [](F& f) { f.FillColor = Gdiplus::Color(0x7F112233); },
            [](const F& f) { return f.FillColor.GetValue() == 0x7F112233; }),
        On<F>(
            "fillGapX", [](F& f) { f.FillGapX = 6; },
            [](const F& f) { return f.FillGapX == 6; }),
        On<F>(
            "fillGapY", [](F& f) { f.FillGapY = -7; },
            [](const F& f) { return f.FillGapY == -7; }),
        On<F>(
            "shadow", [](F& f) { f.DrawShadow = true; },
            [](const F& f) { return f.DrawShadow; }),
        On<F>(
            "shadowColor", [](F& f) { f.ShadowColor = Gdiplus::Color(0); },
            [](const F& f) { return f.ShadowColor.GetValue() == 0; }),
        On<F>(
            "shadowRatioX", [](F& f) { f.ShadowRatioX = 0.03f; },
            [](const F& f) { return f.ShadowRatioX == 0.03f; }),
        On<F>(
            "shadowRatioY", [](F& f) { f.ShadowRatioY = 1.5e-7f; },
            [](const F& f) { return f.ShadowRatioY == 1.5e-7f; }),
        On<F>(
            "reserved1", [](F& f) { f.Reserved1 = kMost; },
            [](const F& f) { return f.Reserved1 == kMost; }),
        On<F>(
            "reserved2", [](F& f) { f.Reserved2 = kLeast; },
            [](const F& f) { return f.Reserved2 == kLeast; }),
        On<F>(
            "reserved3", [](F& f) { f.Reserved3 = 3; },
            [](const F& f) { return f.Reserved3 == 3; }),
        On<F>(
            "reserved4", [](F& f) { f.Reserved4 = -4; },
            [](const F& f) { return f.Reserved4 == -4; }),
        On<F>(
            "reserved5", [](F& f) { f.Reserved5 = 0; },
            [](const F& f) { return f.Reserved5 == 0; }),
    };
}

std::vector<Change> ChangesOf(const std::string& type, const std::string& folder) {
    if (type == "map") {
        return MapChanges();
    }
    if (type == "frame") {
        return PlacedFrameChanges();
    }
    const std::vector<Change> all = PlacedFrameChanges() + ElementChanges();
    if (type == "title") {
        return all + TitleChanges();
    }
    if (type == "numeric-scale") {
        std::vector<Change> changes = TitleChanges();
        changes.erase(changes.begin());  // its text is its own
        return all + std::move(changes) + NumericScaleChanges();
    }
    if (type == "picture") {
        return PictureChanges(folder) + all;
    }
    if (type == "legend") {
        return all + LegendChanges(folder);
    }
    if (type.rfind("north-arrow", 0) == 0) {
        return all + NorthArrowChanges(type == "north-arrow-two" ? NorthArrowFour
                                                                 : NorthArrowTwo);
    }
    if (type.rfind("scale-bar", 0) == 0) {
        return all +
               ScaleBarChanges(type == "scale-bar-line2" ? ScaleBarLine3 : ScaleBarLine2);
    }
    return {};
}

}  // namespace host_tests
