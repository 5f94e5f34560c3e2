#pragma once

#include <gdiplus.h>

#include <cstdint>
#include <optional>
#include <string>

#include "map_surround/scale_bar.h"
#include "map_surround/title.h"
#include "page/box.h"
#include "page/catalogue.h"
#include "page/language.h"
#include "page/map/shown_map.h"
#include "page/paper.h"
#include "page/placed_frame.h"
#include "raster_data/raster_style.h"

namespace host {

/// How the frames around elements look; what has no colour is not drawn.
struct FrameStyle {
    std::optional<Gdiplus::Color> border = Gdiplus::Color(0xFF3C4650);
    std::optional<Gdiplus::Color> shadow = Gdiplus::Color(0xFFD2D6DA);
    std::optional<Gdiplus::Color> background = Gdiplus::Color(0xFFFFFFFF);
};

struct TitleDesign {
    std::wstring text;  ///< empty for no title
    std::wstring family = L"Arial";
    FontProcess style = FontProcessBold;
    std::optional<double> points;  ///< else a size that suits the sheet
};

struct PictureDesign {
    std::wstring path;  ///< empty for no picture
};

/// A style from the catalogue, or null for none. When not set, the usual style of its
/// family where the map has coordinates, and otherwise none.
using StyleChoice = std::optional<const CatalogueEntry*>;

struct ScaleBarDesign {
    StyleChoice style;
    std::optional<int> divisions;  ///< else four, or as many as fit
    int subdivisions = 2;          ///< ticks between two main ones
    ScaleBarPostion unitPosition = UnitPosAfter;
    BarDistances distances = BarDistances::Ground;  ///< or Map
    std::optional<DistanceUnit> unit;               ///< else UsualUnit
    std::optional<std::wstring> unitName;           ///< else that of its language
    BarFit fit = BarFit::Count;  ///< when another map is put on the page
    bool numeric = false;        ///< the scale in figures, under the bar
};

struct NorthArrowDesign {
    StyleChoice style;
    std::optional<double> angle;  ///< degrees clockwise; else towards true north
};

struct MapDesign {
    std::optional<Box> extent;    ///< the part shown; else all of it
    std::optional<double> scale;  ///< its denominator; else as large as fits
    RasterStyle style;            ///< in which its rasters are shown
};

struct LegendDesign {
    bool shown = true;
    std::optional<std::wstring> title;  ///< else that of the language
    std::wstring family = L"Arial";
};

/// How an automatic page is divided.
enum class LayoutDesign : std::int32_t {
    Classic,  ///< the title on top, the rest beside or below the map
    Side,     ///< the map alone at the left, everything else in a panel at the right
    Bottom,   ///< the map on top, everything else below it
};

/// What an automatic page shows.
struct PageDesign {
    PaperSize paper;
    LayoutDesign layout = LayoutDesign::Classic;
    const Language* language = &English();  ///< for the words that are not given
    FrameStyle frames;
    TitleDesign title;
    PictureDesign picture;
    MapDesign map;
    ScaleBarDesign scaleBar;
    NorthArrowDesign northArrow;
    LegendDesign legend;
};

}  // namespace host
