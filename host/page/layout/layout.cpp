#include "page/layout/layout.h"

#include <algorithm>
#include <utility>

#include "page/layout/steps.h"

namespace host {
namespace {

/// The map and the panel next to it.
struct Body {
    Box map;
    Box panel;
};

/// The panel to the right of the map and as high, both together in the middle.
Body PanelBeside(const Box& room, const MapShape& shape, const Measures& measures) {
    Box left = room;
    left.right -= measures.gap + measures.panel;
    Body body;
    body.map = FitMap(left, shape);
    body.panel = {body.map.right + measures.gap, body.map.bottom,
                  body.map.right + measures.gap + measures.panel, body.map.top};
    if (shape.atScale) {  // however small the map is
        body.panel.bottom = room.bottom;
        body.panel.top = room.top;
    }
    return body;
}

/// The map on top, the panel as wide below it, down to the end of the room.
Body PanelBelow(const Box& room, const MapShape& shape, const Measures& measures) {
    Box above = room;
    above.bottom += measures.gap + measures.panel;
    Body body;
    body.map = FitMap(above, shape);
    const double rise = room.top - body.map.top;
    body.map.bottom += rise;
    body.map.top += rise;
    body.panel = {body.map.left, room.bottom, body.map.right,
                  body.map.bottom - measures.gap};
    if (shape.atScale) {
        body.panel.left = room.left;
        body.panel.right = room.right;
    }
    return body;
}

/// The panel goes where it leaves the larger map.
Body Divide(const PageDesign& design, const MapOnPage& map, const Box& room,
            const Measures& measures) {
    const MapShape shape = ShapeOf(design.map, map);
    if (!HasPanel(design, map)) {
        return {FitMap(room, shape), {}};
    }
    const Body beside = PanelBeside(room, shape, measures);
    const Body below = PanelBelow(room, shape, measures);
    const auto size = [](const Box& box) { return box.Width() * box.Height(); };
    return size(beside.map) >= size(below.map) ? beside : below;
}

/// A panel with a picture only may be narrower than one with texts.
Measures MeasuresFor(const PageDesign& design, const MapOnPage& map) {
    Measures measures(design.paper);
    if (HasPanelTexts(design, map)) {
        measures.panel = measures.textPanel;
    }
    return measures;
}

void AddUnlessEmpty(Page& page, std::unique_ptr<CSurroundFrame> frame) {
    if (frame != nullptr) {
        page.Add(std::move(frame));
    }
}

/// A map at a scale may be larger than there is room for.
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

/// Furniture that is usual, and means nothing without coordinates.
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

}  // namespace

LaidOutPage LayOut(const PageDesign& design, const MapOnPage& map) {
    LaidOutPage result{Page(design.paper.width, design.paper.height), {}};
    const Measures measures = MeasuresFor(design, map);
    Box room =
        Inset({0.0, 0.0, design.paper.width, design.paper.height}, measures.margin);

    std::unique_ptr<CSurroundFrame> title =
        PlaceTitle(design, measures, room, result.remarks);
    const Body body = Divide(design, map, room, measures);

    result.page.Add(PlaceNeatLine(design.paper, measures));
    result.page.Add(PlaceMap(body.map, map.picture, measures));
    AddUnlessEmpty(result.page, std::move(title));
    const ShownMap shown = Shown(design.map, map, body.map);
    TellWhatHasNoCoordinates(design, map, result.remarks);
    TellWhatIsCutOff(design.map, map, shown, result.remarks);
    FillPanel(result.page, design, map, shown, measures, body.panel, result.remarks);
    return result;
}

}  // namespace host
