#pragma once

// The steps of LayOut(): one function an element, in a file of its own.

#include <memory>
#include <string>

#include "map_surround/frame.h"
#include "page/layout.h"
#include "page/room.h"

namespace host {

/// The measures that a sheet's layout is made of, in page units.
struct Measures {
    explicit Measures(const PaperSize& paper);

    double module;       ///< what all others are multiples of: 1/40 of the shorter side
    double neatLine;     ///< from the sheet's edge to the neat line around everything
    double margin;       ///< from the sheet's edge to the elements
    double gap;          ///< between neighbours
    double panel;        ///< width or height of the panel next to the map, at least
    double shadow;       ///< how far shadows fall
    double borderWidth;  ///< of element frames
};

/// The colour of the lines around the map and the sheet.
constexpr Gdiplus::ARGB kLineColor = 0xFF2D3B47;

/// A frame around an element, decorated as the page's style says. Takes the element.
std::unique_ptr<CSurroundFrame> MakeFrame(std::unique_ptr<CMapSurround> element,
                                          const Room& extent, const FrameStyle& style,
                                          const Measures& measures);

/// Places the title in the middle on top and takes its strip off the room. Draws the
/// title smaller when it would be wider than the room.
/// @return the title's frame, null when there is nothing to show
std::unique_ptr<CSurroundFrame> PlaceTitle(const PageDesign& design,
                                           const Measures& measures, Room& room,
                                           std::vector<std::string>& remarks);

/// The neat line around everything on the sheet.
std::unique_ptr<CSurroundFrame> PlaceNeatLine(const PaperSize& paper,
                                              const Measures& measures);

/// The largest room of the map's proportions, in the middle of the one given.
Room FitMap(const Room& room, double aspectRatio);

/// The map in its own border.
MapFrame PlaceMap(const Room& extent, std::shared_ptr<MapPicture> picture,
                  const Measures& measures);

/// Places the picture in the bottom right corner of a panel.
std::unique_ptr<CSurroundFrame> PlacePicture(const PageDesign& design,
                                             const Measures& measures, const Room& panel);

}  // namespace host
