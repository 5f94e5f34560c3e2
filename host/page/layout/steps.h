#pragma once

// The steps of LayOut(): one function an element, in a file of its own.

#include <memory>
#include <string>

#include "map_surround/frame.h"
#include "page/box.h"
#include "page/ink.h"
#include "page/layout/layout.h"
#include "page/placed_frame.h"

namespace host {

/// The measures that a sheet's layout is made of, in page units.
struct Measures {
    explicit Measures(const PaperSize& paper);

    double module;       ///< what all others are multiples of: 1/40 of the shorter side
    double neatLine;     ///< from the sheet's edge to the neat line around everything
    double margin;       ///< from the sheet's edge to the elements
    double gap;          ///< between neighbours
    double panel;        ///< width or height of the panel next to the map, at least
    double textPanel;    ///< the same where a legend or a scale bar stands in it
    double picture;      ///< longest side of the picture's frame
    double shadow;       ///< how far shadows fall
    double borderWidth;  ///< of element frames
};

/// The colour of the lines around the map and the sheet.
constexpr Gdiplus::ARGB kLineColor = 0xFF2D3B47;

/// Puts a frame where it belongs, with border, shadow and background in the page's style.
void Decorate(CFrameBase& frame, const Box& extent, const FrameStyle& style,
              const Measures& measures);

/// Places the title in the middle on top and takes its strip off the room. Draws the
/// title smaller when it would be wider than the room.
/// @return the title's frame, null when there is nothing to show
std::unique_ptr<CSurroundFrame> PlaceTitle(const PageDesign& design,
                                           const Measures& measures, Box& room,
                                           std::vector<std::string>& remarks);

/// The neat line around everything on the sheet.
std::unique_ptr<CSurroundFrame> PlaceNeatLine(const PaperSize& paper,
                                              const Measures& measures);

/// How a map may lie in a room.
struct MapShape {
    double aspectRatio = 1.0;  ///< width divided by height
    /// At a scale that is asked for: the size of all of the map, which may be cut off.
    std::optional<PaperSize> atScale = std::nullopt;
};

/// The shape of a map on a page. Throws std::runtime_error where the scale that is asked
/// for cannot be kept.
MapShape ShapeOf(const MapDesign& design, const MapOnPage& map);

/// The largest room for the map, in the middle of the one given.
Box FitMap(const Box& room, const MapShape& shape);

/// What the map shows in its frame.
ShownMap Shown(const MapDesign& design, const MapOnPage& map, const Box& frame);

/// The map in its own border.
MapFrame PlaceMap(const Box& extent, std::shared_ptr<MapPicture> picture,
                  const Measures& measures);

enum class At { Top, Bottom };

/// Decorates a frame and fits it around the ink of its element, with some space, at the
/// left of a room; as wide as the room when it is nearly that. The element keeps its
/// size.
void FrameInk(PlacedFrame& frame, const InkBox& ink, const Box& room, At at,
              const FrameStyle& style, const Measures& measures);

/// Gives a legend the words and the looks of a design; its type sizes stay.
void DressLegend(CMapLegend& legend, const PageDesign& design);

/// A legend of all sources, made smaller where it would leave the room. Null when none is
/// wanted or there is nothing to explain.
std::unique_ptr<LegendFrame> PlaceLegend(const PageDesign& design, const MapOnPage& map,
                                         const Measures& measures, const Box& room);

/// A scale bar that is true to the map, at most as wide as the room, at its bottom left.
/// Null when none is wanted or the map has no extent.
std::unique_ptr<PlacedFrame> PlaceScaleBar(const PageDesign& design, const MapOnPage& map,
                                           const ShownMap& shown,
                                           const Measures& measures, const Box& room,
                                           std::vector<std::string>& remarks);

/// The map's scale in figures, at the bottom left of the room. Null when it is not
/// wanted, or not known.
/// @param barLength of the scale bar, page units, 0 for none
std::unique_ptr<PlacedFrame> PlaceNumericScale(const PageDesign& design,
                                               const ShownMap& shown, double barLength,
                                               const Measures& measures, const Box& room,
                                               std::vector<std::string>& remarks);

/// A north arrow in a square frame at the bottom left of the room, at most as large as
/// it. Null when none is wanted, or nothing is known of where north is.
std::unique_ptr<PlacedFrame> PlaceNorthArrow(const PageDesign& design,
                                             const MapOnPage& map, const ShownMap& shown,
                                             const Measures& measures, const Box& room,
                                             std::vector<std::string>& remarks);

/// The colour of furniture that is drawn in one colour.
constexpr Gdiplus::ARGB kInkColor = 0xFF1E2832;

/// The style of a page's scale bar, and of its north arrow; null for none.
const CatalogueEntry* ScaleBarStyleOn(const PageDesign& design, const MapOnPage& map);
const CatalogueEntry* NorthArrowStyleOn(const PageDesign& design, const MapOnPage& map);

/// Whether a page of this design has a legend, a scale bar or a north arrow.
bool HasPanelTexts(const PageDesign& design, const MapOnPage& map);

/// Whether it has anything but a title and a map.
bool HasPanel(const PageDesign& design, const MapOnPage& map);

/// Fills the panel: a high one from the top with the legend, at its bottom scale bar,
/// north arrow and picture; a wide one from left to right.
void FillPanel(Page& page, const PageDesign& design, const MapOnPage& map,
               const ShownMap& shown, const Measures& measures, const Box& panel,
               std::vector<std::string>& remarks);

/// Places the picture in the bottom right corner of a panel.
std::unique_ptr<PlacedFrame> PlacePicture(const PageDesign& design,
                                          const Measures& measures, const Box& panel);

}  // namespace host
