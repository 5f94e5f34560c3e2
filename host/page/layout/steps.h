#pragma once

// The steps of LayOut(): one function for each element, in its own file.

#include <memory>
#include <string>

#include "map_surround/frame.h"
#include "page/box.h"
#include "page/ink.h"
#include "page/layout/layout.h"
#include "page/layout/title_lines.h"
#include "page/placed_frame.h"

namespace host {

/// The measures that a sheet's layout is made of, in page units.
struct Measures {
    explicit Measures(const PaperSize& paper);

    double module;       ///< all others are multiples of it: 5 mm on A4, 8 mm on A2
    double neatLine;     ///< from the sheet's edge to the neat line around everything
    double margin;       ///< from the sheet's edge to the elements
    double gap;          ///< between neighbours
    double column;       ///< of the grid in which elements stand beside the map
    double space;        ///< from a frame to the ink in it
    double shadow;       ///< how far shadows fall
    double borderWidth;  ///< of element frames
    double body;         ///< the usual size of type, points
    double title;        ///< the usual size of a title
};

/// The colour of the lines around the map and the sheet.
constexpr Gdiplus::ARGB kLineColor = 0xFF2D3B47;

/// The colour of furniture drawn in one colour.
constexpr Gdiplus::ARGB kInkColor = 0xFF1E2832;

/// Puts a frame in its place, with border, shadow and background in the page's style.
void Decorate(CFrameBase& frame, const Box& extent, const FrameStyle& style,
              const Measures& measures);

enum class Stands { AtTopLeft, InTheMiddle };

/// Decorates a frame that fills a cell and holds its element's ink somewhere. The element
/// keeps its size.
void FrameInk(PlacedFrame& frame, const InkBox& ink, const Box& cell, Stands stands,
              const FrameStyle& style, const Measures& measures);

/// Shrinks a decorated frame to the ink of its element, plus some space.
void ShrinkToInk(PlacedFrame& frame, const Measures& measures);

/// A title as it is set, with the size of its frame, page units.
struct TitleBlock {
    std::wstring text;  ///< with U+000A between lines
    double em;
    double width;
    double height;
};

/// Sets a title in the size that is asked for, or else suits the sheet, in as many lines
/// as the width requires, and smaller where it would not fit at all. Nothing when there
/// is nothing to show.
/// @param lines made from the same design, once for many rooms
/// @param width,height of the room for its frame
std::optional<TitleBlock> SetTitle(const PageDesign& design, const Measures& measures,
                                   const TitleLines& lines, double width, double height);

std::unique_ptr<CSurroundFrame> PlaceTitle(const PageDesign& design,
                                           const Measures& measures,
                                           const TitleBlock& block, const Box& extent,
                                           std::vector<std::string>& remarks);

/// The neat line around everything on the sheet.
std::unique_ptr<CSurroundFrame> PlaceNeatLine(const Box& extent,
                                              const Measures& measures);

/// How a map may lie in a room.
struct MapShape {
    double aspectRatio = 1.0;  ///< width divided by height
    /// At a fixed scale: the size of the whole map, which may be cut off.
    std::optional<PaperSize> atScale = std::nullopt;
};

/// The shape of a map on a page. Throws std::runtime_error where the requested scale
/// cannot be kept.
MapShape ShapeOf(const MapDesign& design, const MapOnPage& map);

/// The largest room for the map, in the middle of the given one.
Box FitMap(const Box& room, const MapShape& shape);

/// What the map shows in its frame.
ShownMap Shown(const MapDesign& design, const MapOnPage& map, const Box& frame);

/// The map in its own border.
MapFrame PlaceMap(const Box& extent, std::shared_ptr<MapPicture> picture,
                  const Measures& measures);

/// Gives a legend the words and looks of a design; its type sizes stay.
void DressLegend(CMapLegend& legend, const PageDesign& design);

// The elements below fill their cells. Each is null when it is not wanted, when what it
// would say is unknown, or when it does not fit its cell; the last two are remarked.

/// A scale bar that is true to the map.
std::unique_ptr<PlacedFrame> PlaceScaleBar(const PageDesign& design, const MapOnPage& map,
                                           const ShownMap& shown,
                                           const Measures& measures, const Box& cell,
                                           std::vector<std::string>& remarks);

/// The map's scale in figures.
/// @param barLength of the scale bar, page units, 0 for none
std::unique_ptr<PlacedFrame> PlaceNumericScale(const PageDesign& design,
                                               const ShownMap& shown, double barLength,
                                               const Measures& measures, const Box& cell,
                                               std::vector<std::string>& remarks);

/// A north arrow, no larger than a column of the grid.
std::unique_ptr<PlacedFrame> PlaceNorthArrow(const PageDesign& design,
                                             const MapOnPage& map, const ShownMap& shown,
                                             const Measures& measures, const Box& cell,
                                             std::vector<std::string>& remarks);

std::unique_ptr<PlacedFrame> PlacePicture(const PageDesign& design,
                                          const Measures& measures, const Box& cell);

/// The style of a page's scale bar, and of its north arrow; null for none.
const CatalogueEntry* ScaleBarStyleOn(const PageDesign& design, const MapOnPage& map);
const CatalogueEntry* NorthArrowStyleOn(const PageDesign& design, const MapOnPage& map);

/// The heights of their frames, page units; 0 for those that are left out.
double ScaleBarHeight(const PageDesign& design, const MapOnPage& map,
                      const Measures& measures);
double NumericScaleHeight(const PageDesign& design, const MapOnPage& map,
                          const Measures& measures);

/// Whether they will be there, unless their cell is too small.
bool HasNorthArrow(const PageDesign& design, const MapOnPage& map);
bool HasPicture(const PageDesign& design);

}  // namespace host
