#include "page/layout/layout.h"

#include <algorithm>
#include <utility>

#include "page/element_of.h"
#include "page/layout/arrangement.h"

namespace host {
namespace {

void AddUnlessEmpty(Page& page, std::unique_ptr<CSurroundFrame> frame) {
    if (frame != nullptr) {
        page.Add(std::move(frame));
    }
}

/// A map at a fixed scale may be larger than its room.
void TellWhatIsCutOff(const MapDesign& design, const MapOnPage& map,
                      const ShownMap& shown, std::vector<std::string>& remarks) {
    constexpr double kNothing = 1e-6;  // of the map
    if (design.scale && map.extent &&
        (shown.extent.Width() < map.extent->Width() * (1.0 - kNothing) ||
         shown.extent.Height() < map.extent->Height() * (1.0 - kNothing))) {
        remarks.emplace_back(
            "the map is larger than the sheet at this scale: only its middle is shown");
    }
}

/// Furniture that is usual, but means nothing without coordinates.
void TellWhatHasNoCoordinates(const PageDesign& design, const MapOnPage& map,
                              std::vector<std::string>& remarks) {
    if (map.extent) {
        return;
    }
    if (design.scaleBar.style.value_or(UsualStyle(SurroundScaleBar)) != nullptr) {
        remarks.emplace_back("the scale bar is left out: the map has no georeference");
    }
    if (!design.northArrow.style) {
        remarks.emplace_back("the north arrow is left out: the map has no georeference");
    }
}

/// Around everything, as far from it as the margin is from the neat line.
Box NeatLineAround(const Cells& cells, const Measures& measures) {
    Box all = cells.map;
    for (const auto part : kCells) {
        const Box& cell = cells.*part;
        if (cell.Width() > 0.0) {
            all = {std::min(all.left, cell.left), std::min(all.bottom, cell.bottom),
                   std::max(all.right, cell.right), std::max(all.top, cell.top)};
        }
    }
    return Inset(all, measures.neatLine - measures.margin);
}

std::unique_ptr<LegendFrame> PlaceLegend(LegendDraft& draft, const PageDesign& design,
                                         const Measures& measures, const Cells& cells) {
    if (!(cells.legend.Width() > 0.0)) {
        return nullptr;
    }
    const InkBox ink =
        draft.Set(cells.setting, cells.names == Names::AreWhole
                                     ? 0.0
                                     : cells.legend.Width() - 2.0 * measures.space);
    if (ink.IsEmpty()) {
        return nullptr;
    }
    auto frame = draft.Take();
    FrameInk(*frame, ink, cells.legend, Stands::AtTopLeft, design.frames, measures);
    return frame;
}

double BarLengthOf(const PlacedFrame* frame) {
    const auto* const bar = dynamic_cast<const ScaleBarFrame*>(frame);
    return bar == nullptr ? 0.0
                          : bar->DivisionLength() *
                                ElementOf<CScaleBarBase>(*bar)->GetMainDivCount();
}

/// Whether an element is to be placed: in its cell, or, if what it says is unknown, to
/// have that remarked. An element left without a cell for lack of room has its remark
/// already.
bool IsToBePlaced(const Box& cell, bool isKnown) {
    return cell.Width() > 0.0 || !isKnown;
}

/// Everything but the map and the title, in reading order.
void AddFurniture(Page& page, const Sheet& sheet, const Furniture& known,
                  const Cells& cells, const ShownMap& shown,
                  std::vector<std::string>& remarks) {
    const PageDesign& design = sheet.design;
    const Measures& measures = sheet.measures;
    AddUnlessEmpty(page, PlaceLegend(sheet.legend, design, measures, cells));
    double barLength = 0.0;
    if (IsToBePlaced(cells.bar, known.bar > 0.0)) {
        auto bar = PlaceScaleBar(design, sheet.map, shown, measures, cells.bar, remarks);
        barLength = BarLengthOf(bar.get());
        AddUnlessEmpty(page, std::move(bar));
    }
    if (IsToBePlaced(cells.scale, known.scale > 0.0)) {
        AddUnlessEmpty(page, PlaceNumericScale(design, shown, barLength, measures,
                                               cells.scale, remarks));
    }
    if (IsToBePlaced(cells.arrow, known.arrow)) {
        AddUnlessEmpty(page, PlaceNorthArrow(design, sheet.map, shown, measures,
                                             cells.arrow, remarks));
    }
    if (cells.picture.Width() > 0.0) {
        AddUnlessEmpty(page, PlacePicture(design, measures, cells.picture));
    }
}

}  // namespace

LaidOutPage LayOut(const PageDesign& design, const MapOnPage& map) {
    LaidOutPage result{Page(design.paper.width, design.paper.height), {}};
    LegendDraft legend(design, map);
    const Measures measures(design.paper);
    const TitleLines title(design.title);
    Sheet sheet{
        design,
        map,
        measures,
        ShapeOf(design.map, map),
        title,
        legend,
        {ScaleBarHeight(design, map, measures), NumericScaleHeight(design, map, measures),
         HasNorthArrow(design, map), HasPicture(design), legend.IsWanted()}};
    const Furniture known = sheet.furniture;
    const Cells cells = Arrange(sheet, result.remarks);

    result.page.Add(PlaceNeatLine(NeatLineAround(cells, measures), measures));
    result.page.Add(PlaceMap(cells.map, map.picture, measures));
    if (cells.words) {
        result.page.Add(
            PlaceTitle(design, measures, *cells.words, cells.title, result.remarks));
    }
    const ShownMap shown = Shown(design.map, map, cells.map);
    TellWhatHasNoCoordinates(design, map, result.remarks);
    TellWhatIsCutOff(design.map, map, shown, result.remarks);
    AddFurniture(result.page, sheet, known, cells, shown, result.remarks);
    return result;
}

}  // namespace host
