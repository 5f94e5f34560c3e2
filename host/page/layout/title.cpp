#include <algorithm>
#include <cmath>

#include "page/layout/steps.h"
#include "page/layout/text_size.h"

namespace host {
namespace {

constexpr double kSmallestTitlePoints = 4.0;

// Space around the ink, in em: more beside it than above it, as type wants.
constexpr double kSpaceBeside = 0.85;
constexpr double kSpaceAbove = 0.5;

double EmOf(const TitleDesign& design, const Measures& measures) {
    return design.points ? UnitsFromPoints(*design.points) : 1.5 * measures.module;
}

/// The title's ink at an em size, in page units: one of them is one pixel at scale 1.
struct Ink {
    double width;
    double height;
};

Ink Measure(CMapTitle& title, double em) {
    title.SetFontSize(em);
    title.ResetAspectRatio();
    const double height = title.GetSize();
    return {height * double{title.GetAspectRatio()}, height};
}

}  // namespace

std::unique_ptr<CSurroundFrame> PlaceTitle(const PageDesign& design,
                                           const Measures& measures, Box& room,
                                           std::vector<std::string>& remarks) {
    auto title = std::make_unique<CMapTitle>();
    title->SetFontValue(design.title.text);
    title->SetFontStyle(design.title.family);
    title->SetFontProcess(design.title.style);

    const double wanted = EmOf(design.title, measures);
    double em = wanted;
    Ink ink = Measure(*title, em);
    if (!(ink.width > 0.0) || !(ink.height > 0.0)) {
        return nullptr;
    }
    // Ink and space grow with the em, but for the rounding of the ink to whole units.
    const double most =
        std::min(room.Width() / (ink.width / em + 2.0 * kSpaceBeside),
                 room.Height() / 4.0 / (ink.height / em + 2.0 * kSpaceAbove));
    if (em > most) {
        em =
            std::max(std::floor(most * 4.0) / 4.0, UnitsFromPoints(kSmallestTitlePoints));
        ink = Measure(*title, em);
        // What suits the sheet is as large as it fits, down to half of that.
        if (design.title.points || em < wanted / 2.0) {
            remarks.push_back("the title is set in " + PointsText(PointsFromUnits(em)) +
                              " to fit the page, instead of " +
                              PointsText(PointsFromUnits(wanted)));
        }
    }

    const double width = ink.width + 2.0 * kSpaceBeside * em;
    const double height = ink.height + 2.0 * kSpaceAbove * em;
    const double centre = (room.left + room.right) / 2.0;
    const Box extent = {centre - width / 2.0, room.top - height, centre + width / 2.0,
                        room.top};
    room.top = extent.bottom - measures.gap;
    title->SetFrontColor(Gdiplus::Color(kInkColor));
    auto frame = std::make_unique<PlacedFrame>(std::move(title));
    Decorate(*frame, extent, design.frames, measures);
    frame->SetName("title");
    return frame;
}

}  // namespace host
