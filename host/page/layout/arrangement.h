#pragma once

#include <optional>

#include "page/layout/legend_draft.h"
#include "page/layout/steps.h"

namespace host {

/// The greatest share of the room that a title may take in height.
constexpr double kMostOfTitle = 0.25;

/// What happens to a legend's names and labels that are wider than their column.
enum class Names { AreWhole, AreBroken, AreCut };

/// Where everything stands, in page units; an absent element has no width.
struct Cells {
    Box map;
    Box title;
    Box legend;
    Box bar;
    Box scale;
    Box arrow;
    Box picture;
    std::optional<TitleBlock> words;  ///< of the title
    LegendSetting setting;            ///< of the legend
    Names names = Names::AreWhole;    ///< likewise
    bool isLean = false;              ///< arrow and picture stand in high, narrow frames
};

/// The cells one by one.
constexpr Box Cells::*kCells[] = {&Cells::map,    &Cells::title, &Cells::legend,
                                  &Cells::bar,    &Cells::scale, &Cells::arrow,
                                  &Cells::picture};

/// What stands around a map, and its height; 0 for what is absent.
struct Furniture {
    double bar = 0.0;
    double scale = 0.0;
    bool arrow = false;
    bool picture = false;
    bool legend = false;

    /// The bar with the scale in figures above it.
    double Bar(double gap) const {
        return bar + scale + (bar > 0.0 && scale > 0.0 ? gap : 0.0);
    }

    bool IsEmpty() const {
        return bar <= 0.0 && scale <= 0.0 && !arrow && !picture && !legend;
    }
};

/// A sheet to be laid out.
struct Sheet {
    const PageDesign& design;
    const MapOnPage& map;
    Measures measures;
    MapShape shape;
    const TitleLines& title;
    LegendDraft& legend;
    Furniture furniture;

    /// The approximate size of the legend's ink in one column.
    PaperSize OneColumn(const LegendSetting& setting) const;

    /// The ink of the legend in a room; nothing where it does not fit, or its names would
    /// be treated otherwise.
    std::optional<InkBox> LegendIn(const LegendSetting& setting, const PaperSize& room,
                                   Names names) const;
};

/// Where everything stands with the furniture beside the map, in a panel of some columns
/// of the grid; nothing where it does not fit.
/// @param titleWithin whether the title is on top of the panel
std::optional<Cells> Beside(const Sheet& sheet, const Box& room, int columns,
                            const LegendSetting& setting, bool titleWithin, Names names);

/// The same below the map, as wide as the room.
/// @param isStacked whether the scale bar stands over north arrow and picture
/// @param titleWithin whether the title is between the map and the panel
std::optional<Cells> Below(const Sheet& sheet, const Box& room, bool isStacked,
                           const LegendSetting& setting, bool titleWithin, Names names);

/// The arrangement with the largest map, and type that reads well, of all that fit; the
/// map alone where nothing else does. Remarks say what is left out for lack of room.
Cells Arrange(Sheet& sheet, std::vector<std::string>& remarks);

}  // namespace host
