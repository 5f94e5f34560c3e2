#include "page/document/fitted_texts.h"

#include <algorithm>

#include "page/element_of.h"
#include "page/ink.h"
#include "page/layout/steps.h"
#include "page/layout/text_size.h"
#include "page/units.h"

namespace host {
namespace {

double WidthOf(const CMapSurround& element) {
    return element.GetSize() * double{element.GetAspectRatio()};
}

/// Half the width that a frame may have about its middle without leaving the page's
/// margins or reaching its neighbours; 0 where there is no room.
double HalfRoomAbout(const Box& frame, const Page& page) {
    const Measures measures({page.Width(), page.Height()});
    const double middle = frame.MiddleX();
    double half = std::min(middle, page.Width() - middle) - measures.margin;
    for (const PageItem& item : page.Items()) {
        const Box other = BoxOf(FrameOf(item).GetExtent());
        const bool isBeside = other.bottom < frame.top && other.top > frame.bottom &&
                              (other.left >= frame.right || other.right <= frame.left);
        if (isBeside) {
            const double away = std::max(other.left - middle, middle - other.right);
            half = std::min(half, away - measures.gap);
        }
    }
    return half;
}

/// Widens a frame to both sides, as far as there is room.
void WidenFrame(CFrameBase& frame, double width, const Page& page) {
    Box box = BoxOf(frame.GetExtent());
    const double half = std::min(width / 2.0, HalfRoomAbout(box, page));
    const double before = box.Width();
    if (2.0 * half <= before) {
        return;
    }
    const double middle = box.MiddleX();
    box.left = middle - half;
    box.right = middle + half;
    frame.SetExtent(BoundingBoxOf(box));
    // The shadow falls as far as before.
    frame.ShadowRatioX = static_cast<float>(frame.ShadowRatioX * before / box.Width());
}

/// Fits a frame around a title with half an em to each side and a tenth above and below:
/// the frame is widened, and a title that is still too large is set smaller.
/// @return whether the title is set smaller
bool FitTitle(CSurroundFrame& frame, CMapTitle& title, const Page& page) {
    const double em = title.GetFontSize();
    const double width = WidthOf(title) + em;
    if (!(frame.GetExtent().GetWidth() > 0.0)) {
        return false;
    }
    WidenFrame(frame, width, page);
    const CBoundingBox room = frame.GetExtent();
    const double fits = std::min(room.GetWidth() / width,
                                 room.GetHeight() / (title.GetSize() + 0.2 * em));
    if (!(fits > 0.0 && fits < 1.0)) {
        return false;
    }
    title.SetFontSize(em * fits);
    title.ResetAspectRatio();
    return true;
}

}  // namespace

void FittedTitles::Fit(PageItem& item) {
    auto* const title = ElementOf<CMapTitle>(item);
    auto* const frame = FrameAs<CSurroundFrame>(item);
    if (title == nullptr || frame == nullptr) {
        return;
    }
    title->ResetAspectRatio();
    const double em = title->GetFontSize();
    if (FitTitle(*frame, *title, m_page)) {
        m_asked.emplace(title, em);
    }
}

void FittedTitles::Forget(const PageItem& item) {
    m_asked.erase(ElementOf<CMapTitle>(item));
}

std::vector<std::string> FittedTitles::Remarks() const {
    std::vector<std::string> remarks;
    for (const PageItem& item : m_page.Items()) {
        const auto* const title = ElementOf<CMapTitle>(item);
        const auto asked = m_asked.find(title);
        if (asked != m_asked.end()) {
            remarks.push_back(NameOf(item) + ": is set in " +
                              PointsText(PointsFromUnits(title->GetFontSize())) +
                              " to fit its frame, instead of " +
                              PointsText(PointsFromUnits(asked->second)));
        }
    }
    return remarks;
}

std::vector<LegendPlace> ForgetLegendSizes(Page& page) {
    std::vector<LegendPlace> places;
    for (PageItem& item : page.Items()) {
        auto* const frame = FrameAs<LegendFrame>(item);
        auto* const legend = ElementOf<CMapLegend>(item);
        if (frame != nullptr && legend != nullptr) {
            const CPoint2D offset = frame->ElementOffset();
            places.push_back({legend, frame, offset.x - WidthOf(*legend) / 2.0,
                              offset.y + legend->GetSize() / 2.0});
            legend->SetSize(0);
        }
    }
    return places;
}

void FitLegend(const LegendPlace& place) {
    constexpr int kTries = 4;  // text does not shrink quite in proportion
    const CBoundingBox box = place.frame->GetExtent();
    CMapLegend& legend = *place.legend;
    const auto put = [&] {
        place.frame->SetElementOffset(place.left + WidthOf(legend) / 2.0,
                                      place.top - legend.GetSize() / 2.0);
        return MeasureInk(*place.frame);
    };
    InkBox ink = put();
    for (int i = 0; i < kTries && box.GetWidth() > 0.0; ++i) {
        const double factor =
            std::min((box.GetWidth() / 2.0 - place.left) / (ink.right - place.left),
                     (box.GetHeight() / 2.0 + place.top) / (ink.down + place.top));
        if (!(factor > 0.0 && factor < 1.0) || legend.GetSize() <= 1) {
            return;
        }
        legend.SetSize(
            std::min(legend.GetSize() - 1, static_cast<int>(legend.GetSize() * factor)));
        ink = put();
    }
}

}  // namespace host
