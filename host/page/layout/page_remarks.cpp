#include "page/layout/page_remarks.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <optional>

#include "map_surround/scale_bar.h"
#include "page/element_of.h"
#include "page/ink.h"
#include "page/layout/bar_on_map.h"
#include "page/layout/text_size.h"
#include "page/placed_frame.h"
#include "page/units.h"

namespace host {
namespace {

// Page units: a quarter of a millimetre, which leaves room for rounding to pixels.
constexpr double kLittle = 1.0;

// Ticks closer than half a millimetre run together.
constexpr double kTicksApart = UnitsFromMillimetres(0.5);

/// An item as a reader sees it.
struct Seen {
    std::string name;
    Box frame;
    std::optional<Box> ink;  ///< of the element, or of a map
    std::optional<Box> all;  ///< the ink, and the frame where it is drawn
    bool holds = false;      ///< holds others: a map, or a frame without an element
    bool covers = false;     ///< covers what lies under its frame
};

Box Together(const Box& a, const Box& b) {
    return {std::min(a.left, b.left), std::min(a.bottom, b.bottom),
            std::max(a.right, b.right), std::max(a.top, b.top)};
}

/// How far a box stands out of another, page units.
double OutOf(const Box& box, const Box& room) {
    return std::max({0.0, room.left - box.left, room.bottom - box.bottom,
                     box.right - room.right, box.top - room.top});
}

bool LiesIn(const Box& box, const Box& room) { return OutOf(box, room) <= kLittle; }

bool Overlap(const Box& a, const Box& b) {
    return std::min(a.right, b.right) - std::max(a.left, b.left) > kLittle &&
           std::min(a.top, b.top) - std::max(a.bottom, b.bottom) > kLittle;
}

bool IsDrawn(const CFrameBase& frame) {
    return (frame.DrawBorder && frame.BorderColor.GetA() > 0) ||
           (frame.DrawFill && frame.FillColor.GetA() > 0) ||
           (frame.DrawShadow && frame.ShadowColor.GetA() > 0);
}

std::optional<Box> InkOf(const PageItem& item, const Box& frame) {
    if (const auto* const map = std::get_if<MapFrame>(&item)) {
        return map->picture == nullptr && map->rasterPaths.empty()
                   ? std::nullopt
                   : std::optional<Box>(frame);
    }
    const InkBox ink = MeasureInk(*std::get<std::unique_ptr<CSurroundFrame>>(item));
    if (ink.IsEmpty()) {
        return std::nullopt;
    }
    const double x = frame.MiddleX();
    const double y = frame.MiddleY();
    return Box{x - ink.left, y - ink.down, x + ink.right, y + ink.up};
}

Seen SeenOf(const PageItem& item) {
    const CFrameBase& frame = FrameOf(item);
    const bool isMap = std::holds_alternative<MapFrame>(item);
    Seen seen;
    seen.name = NameOf(item);
    seen.frame = BoxOf(frame.GetExtent());
    seen.ink = InkOf(item, seen.frame);
    seen.all = seen.ink;
    if (IsDrawn(frame)) {
        seen.all = seen.ink ? Together(*seen.ink, seen.frame) : seen.frame;
    }
    seen.holds = isMap || ElementOf<CMapSurround>(item) == nullptr;
    seen.covers =
        (isMap && seen.ink) || (frame.DrawFill && frame.FillColor.GetA() == 255);
    return seen;
}

/// "12.4 mm"
std::string Millimetres(double pageUnits) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f mm", pageUnits / UnitsFromMillimetres(1.0));
    return text;
}

class Remarks {
public:
    void Add(const Seen& seen, const std::string& what) {
        m_lines.push_back(seen.name + ": " + what);
    }
    std::vector<std::string> Lines() && { return std::move(m_lines); }

private:
    std::vector<std::string> m_lines;
};

void TellOfPlace(const Seen& seen, const Box& sheet, Remarks& remarks) {
    if (seen.all && !Overlap(*seen.all, sheet)) {
        remarks.Add(seen, "lies beside the sheet");
    } else if (seen.all && !LiesIn(*seen.all, sheet)) {
        remarks.Add(seen, "leaves the sheet by " + Millimetres(OutOf(*seen.all, sheet)));
    }
    const bool hasRoom = seen.frame.Width() > 0.0 && seen.frame.Height() > 0.0;
    if (seen.ink && hasRoom && !LiesIn(*seen.ink, seen.frame)) {
        remarks.Add(seen,
                    "leaves its frame by " + Millimetres(OutOf(*seen.ink, seen.frame)));
    }
}

/// The least distance between two ticks of a bar, page units.
double BetweenTicks(const ScaleBarFrame& frame, const CScaleBarBase& bar) {
    const bool hasSubdivisions = bar.GetScaleBarType() != ScaleBarEquAlternate;
    const int parts = hasSubdivisions ? std::max(0, bar.GetSubDivCount()) + 1 : 1;
    return frame.DivisionLength() / parts;
}

void TellOfLegibility(const PageItem& item, const Seen& seen, Remarks& remarks) {
    const std::optional<double> points = SmallestText(item);
    if (seen.ink && points && *points < kSmallestPoints) {
        remarks.Add(seen, "is written in " + PointsText(*points) + ", smaller than 5");
    }
    const auto* const frame = FrameAs<ScaleBarFrame>(item);
    const auto* const bar = ElementOf<CScaleBarBase>(item);
    if (frame == nullptr || bar == nullptr || !seen.ink) {
        return;
    }
    if (!NumbersAreApart(bar->GetSize() * kBarNumbers, frame->DivisionValue(),
                         frame->DivisionLength(), bar->GetMainDivCount())) {
        remarks.Add(seen, "its numbers run into one another");
    }
    if (bar->GetMainDivCount() > 0 && BetweenTicks(*frame, *bar) < kTicksApart) {
        remarks.Add(seen, "its ticks are less than 0.5 mm apart");
    }
}

/// @param above drawn after the other
void TellOfPair(const Seen& below, const Seen& above, Remarks& remarks) {
    if (!below.all || !above.all || !Overlap(*below.all, *above.all)) {
        return;
    }
    const bool isAround = LiesIn(*below.all, above.frame);
    if (below.holds && LiesIn(*above.all, below.frame)) {
        return;
    }
    if (above.covers && isAround) {
        remarks.Add(below, "is covered by " + above.name);
    } else if (above.holds && !above.covers) {
        if (!isAround) {
            remarks.Add(below, "lies over the edge of " + above.name);
        }
    } else {
        remarks.Add(above,
                    (below.holds ? "lies over the edge of " : "lies over ") + below.name);
    }
}

}  // namespace

std::vector<std::string> RemarksOf(const Page& page) {
    const Box sheet = {0.0, 0.0, page.Width(), page.Height()};
    std::vector<Seen> items;
    Remarks remarks;
    for (const PageItem& item : page.Items()) {
        items.push_back(SeenOf(item));
        TellOfPlace(items.back(), sheet, remarks);
        TellOfLegibility(item, items.back(), remarks);
        for (std::size_t i = 0; i + 1 < items.size(); ++i) {
            TellOfPair(items[i], items.back(), remarks);
        }
    }
    return std::move(remarks).Lines();
}

}  // namespace host
