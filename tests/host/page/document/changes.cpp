#include "page/document/changes.h"

#include <limits>
#include <type_traits>

#include "map_surround/map_surround.h"
#include "page/element_of.h"
#include "page/numeric_scale.h"
#include "page/placed_frame.h"

namespace host_tests {
namespace {

using Gdiplus::Color;
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

template <class Value>
bool IsSame(const Value& one, const Value& other) {
    if constexpr (std::is_same_v<Value, Color>) {
        return one.GetValue() == other.GetValue();
    } else {
        return one == other;
    }
}

template <class Class>
Change On(const char* property, void (*make)(Class&), bool (*isMade)(const Class&)) {
    return {property, [make](PageItem& item) { make(In<Class>(item)); },
            [isMade](const PageItem& item) {
                return isMade(In<Class>(const_cast<PageItem&>(item)));
            }};
}

/// A value that stands open in its class.
template <class Class, class Value>
Change Open(const char* property, Value Class::*member, Value value) {
    return {property, [=](PageItem& item) { In<Class>(item).*member = value; },
            [=](const PageItem& item) {
                return IsSame(In<Class>(const_cast<PageItem&>(item)).*member, value);
            }};
}

/// One that is set by one operation and told by another.
template <class Class, class Given, class Told, class Value>
Change Behind(const char* property, void (Class::*set)(Given), Told (Class::*get)() const,
              Value value) {
    return {property, [=](PageItem& item) { (In<Class>(item).*set)(value); },
            [=](const PageItem& item) {
                return IsSame<std::decay_t<Told>>(
                    (In<Class>(const_cast<PageItem&>(item)).*get)(), value);
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
        Open("name", &M::name, std::string("Karte \"ä\"\n")),
        Open("alternativeText", &M::alternativeText, std::string("Der Hafen")),
        Open("rasters", &M::rasterPaths, {"a.tif", "NETCDF:b.nc:x"}),
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
        Open("scale", &M::scale, 25000.0),
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
        Behind("name", &P::SetName, &P::Name, std::string("标题")),
        Behind("alternativeText", &P::SetAlternativeText, &P::AlternativeText,
               std::string("北在上方")),
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
        Behind("size", &E::SetSize, &E::GetSize, 77),
        Behind("aspectRatio", &E::SetAspectRatio, &E::GetAspectRatio, 0.1f),
        Behind("angle", &E::SetAngle, &E::GetAngle, -33.3f),
        Behind("color", &E::SetFrontColor, &E::GetFrontColor, Color(0x80123456)),
        Behind("itemType", &E::SetItemType, &E::GetItemType, SurroundNone),
    };
}

std::vector<Change> TitleChanges() {
    using T = CMapTitle;
    constexpr int kStyle = FontProcessBoldItalic | FontProcessStrikeout;
    return {
        Behind("text", &T::SetFontValue, &T::GetFontValue, L"Ünïted \U0001F5FA"),
        Behind("lineAlignment", &T::SetLineAlignment, &T::GetLineAlignment,
               Gdiplus::StringAlignmentFar),
        Behind("font", &T::SetFontStyle, &T::GetFontStyle, L"Times New Roman"),
        Behind("fontSize", &T::SetFontSize, &T::GetFontSize, 20.1),
        Behind("fontStyle", &T::SetFontProcess, &T::GetFontProcess,
               static_cast<FontProcess>(kStyle)),
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
    using F = LegendFrame;
    const std::vector<std::string> rasters = {folder + "/scene.tif"};
    return {
        Behind("rasters", &F::SetRasterPaths, &F::RasterPaths, rasters),
        Behind("title", &L::SetTitleValue, &L::GetTitleValue, L"图例"),
        Behind("sourceCaption", &L::SetSourceCaption, &L::GetSourceCaption, L"Layer "),
        Behind("bandCaption", &L::SetBandCaption, &L::GetBandCaption, L""),
        Behind("highCaption", &L::SetHighCaption, &L::GetHighCaption, L"\u0645 "),
        Behind("lowCaption", &L::SetLowCaption, &L::GetLowCaption, L"Low: "),
        Behind("names", &F::SetNames, &F::Names, L"Land cover\n\nRelief"),
        Behind("joinTiles", &F::SetJoinsTiles, &F::JoinsTiles, true),
        Behind("paletteRamps", &F::SetExplainsRamps, &F::ExplainsRamps, true),
        Behind("alignedLabels", &L::SetAlignedLabels, &L::GetAlignedLabels, true),
        Behind("gap", &L::SetGap, &L::GetGap, 0.7f),
        Behind("mostWidth", &L::SetMostWidth, &L::GetMostWidth, 123.4f),
        Behind("mostLines", &L::SetMostLines, &L::GetMostLines, 2),
        Behind("columns", &L::SetColumns, &L::GetColumns, 3),
        Behind("titleFont", &L::SetTitle, &L::GetTitle, L"Courier New"),
        Behind("titleSize", &L::SetTitleSize, &L::GetTitleSize, 33.3f),
        Behind("titleStyle", &L::SetTitleStyle, &L::GetTitleStyle,
               Gdiplus::FontStyleUnderline),
        Behind("titleColor", &L::SetTitleColor, &L::GetTitleColor, Color(0xFF0000FE)),
        Behind("fileNameFont", &L::SetFileName, &L::GetFileName, L"Courier New"),
        Behind("fileNameSize", &L::SetFileNameSize, &L::GetFileNameSize, 7.7f),
        Behind("fileNameStyle", &L::SetFileNameStyle, &L::GetFileNameStyle,
               Gdiplus::FontStyleItalic),
        Behind("fileNameColor", &L::SetFileColor, &L::GetFileColor, Color(0x01020304)),
        Behind("sizeFactor", &F::SetSizeFactor, &F::SizeFactor, 1.7f),
    };
}

std::vector<Change> NorthArrowChanges(NorthArrowType other) {
    using N = CNorthArrowBase;
    using F = NorthArrowFrame;
    return {
        Behind("trueNorth", &F::SetTrueNorth, &F::TrueNorth, true),
        Behind("exact", &F::SetExact, &F::IsExact, false),
        Behind("northArrowType", &N::SetNorthArrowType, &N::GetNorthArrowType, other)};
}

std::vector<Change> NumericScaleChanges() {
    using N = host::NumericScale;
    return {Behind("denominator", &N::SetDenominator, &N::Denominator, 12500.0)};
}

std::vector<Change> ScaleBarChanges(ScaleBarType other) {
    using B = CScaleBarBase;
    using P = host::ScaleBarFrame;
    return {
        Behind("unit", &P::SetUnit, &P::Unit, host::DistanceUnit::NauticalMile),
        Behind("fit", &P::SetFit, &P::Fit, host::BarFit::Value),
        Behind("longest", &P::SetLongest, &P::Longest, 123.5),
        Behind("exact", &P::SetExact, &P::IsExact, false),
        Behind("distances", &P::SetBarDistances, &P::GetBarDistances,
               host::BarDistances::Ground),
        Behind("divisionValue", &P::SetDivisionValue, &P::DivisionValue, 0.3),
        Behind("divisionLength", &P::SetDivisionLength, &P::DivisionLength, 12.3456789),
        Behind("divisions", &B::SetMainDivCount, &B::GetMainDivCount, 3),
        Behind("subdivisions", &B::SetSubDivCount, &B::GetSubDivCount, 7),
        Behind("unitPosition", &B::SetUnitPos, &B::GetUnitPos, UnitPosBefore),
        On<B>(
            "units", [](B& b) { b.SetUnitsNameVerbatim(L"metre"); },
            [](const B& b) { return b.GetUnitsName() == L"metre"; }),
        Behind("language", &P::SetLanguagePlace, &P::LanguagePlace, 2),
        Behind("unitType", &B::SetDestUnitType, &B::GetDestUnitType, MeasureDegree),
        Behind("scaleBarType", &B::SetScaleBarType, &B::GetScaleBarType, other),
    };
}

}  // namespace

std::vector<Change> FrameChanges() {
    using F = CFrameBase;
    return {
        On<F>(
            "left", [](F& f) { f.SetExtent(CBoundingBox(1.0 / 7.0, 0, 1.0 / 7.0, 0)); },
            [](const F& f) { return f.GetExtent().TopLeft().x == 1.0 / 7.0; }),
        On<F>(
            "top", [](F& f) { f.SetExtent(CBoundingBox(0, 1.0 / 7.0, 0, 1.0 / 7.0)); },
            [](const F& f) { return f.GetExtent().TopLeft().y == 1.0 / 7.0; }),
        On<F>(
            "width", [](F& f) { f.SetExtent(CBoundingBox(0, 0, 100.1, 0)); },
            [](const F& f) { return f.GetExtent().GetWidth() == 100.1; }),
        On<F>(
            "height", [](F& f) { f.SetExtent(CBoundingBox(0, -50.7, 0, 0)); },
            [](const F& f) { return f.GetExtent().GetHeight() == 50.7; }),
        Open("border", &F::DrawBorder, true),
        Open("borderWidth", &F::BorderWidth, 2.2f),
        Open("borderColor", &F::BorderColor, Color(0xFF00FF00)),
        Open("borderDashed", &F::DashedBorder, true),
        Open("borderGapX", &F::BorderGapX, -3),
        Open("borderGapY", &F::BorderGapY, 4),
        Open("fill", &F::DrawFill, true),
        Open("fillColor", &F::FillColor, Color(0x7F112233)),
        Open("fillGapX", &F::FillGapX, 6),
        Open("fillGapY", &F::FillGapY, -7),
        Open("shadow", &F::DrawShadow, true),
        Open("shadowColor", &F::ShadowColor, Color(0)),
        Open("shadowRatioX", &F::ShadowRatioX, 0.03f),
        Open("shadowRatioY", &F::ShadowRatioY, 1.5e-7f),
        Open("reserved1", &F::Reserved1, kMost),
        Open("reserved2", &F::Reserved2, kLeast),
        Open("reserved3", &F::Reserved3, 3),
        Open("reserved4", &F::Reserved4, -4),
        Open("reserved5", &F::Reserved5, 0),
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
        changes.erase(changes.begin(), changes.begin() + 2);  // its text is its own
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

std::vector<Change> AllChangesOf(const std::string& type, const std::string& folder) {
    return FrameChanges() + ChangesOf(type, folder);
}

}  // namespace host_tests
