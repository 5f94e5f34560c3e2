#include "page/document/resized_page.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "map_surround/map_surround.h"
#include "page/document/item_type.h"
#include "page/element_of.h"
#include "page/placed_frame.h"

namespace host {
namespace {

void Resize(CFrameBase& frame, double factor, double right, double up) {
    const Box box = BoxOf(frame.GetExtent());
    frame.SetExtent({box.left * factor + right, box.bottom * factor + up,
                     box.right * factor + right, box.top * factor + up});
    frame.BorderWidth = static_cast<float>(frame.BorderWidth * factor);
    for (int* const gap :
         {&frame.BorderGapX, &frame.BorderGapY, &frame.FillGapX, &frame.FillGapY}) {
        *gap = static_cast<int>(std::lround(*gap * factor));
    }
}

void ResizeElement(PageItem& item, double factor) {
    auto* const element = ElementOf<CMapSurround>(item);
    if (auto* const placed = FrameAs<PlacedFrame>(item)) {
        const CPoint2D offset = placed->ElementOffset();
        placed->SetElementOffset(offset.x * factor, offset.y * factor);
    }
    if (auto* const bar = FrameAs<ScaleBarFrame>(item)) {
        bar->SetDivisionLength(bar->DivisionLength() * factor);
        bar->SetLongest(bar->Longest() * factor);
    }
    if (auto* const title = ElementOf<CMapTitle>(item)) {
        title->SetFontSize(title->GetFontSize() * factor);
    } else if (element != nullptr && element->GetSize() > 0) {
        element->SetSize(std::max(1, static_cast<int>(element->GetSize() * factor)));
    }
    if (ElementOf<CMapTitle>(item) != nullptr ||
        ElementOf<CScaleBarBase>(item) != nullptr) {
        MeasureItem(item);
    }
}

}  // namespace

Page Resized(Page page, const PaperSize& paper) {
    const double factor =
        std::min(paper.width / page.Width(), paper.height / page.Height());
    const double right = (paper.width - page.Width() * factor) / 2.0;
    const double up = (paper.height - page.Height() * factor) / 2.0;
    Page resized(paper.width, paper.height);
    resized.About() = page.About();
    for (PageItem& item : page.Items()) {
        Resize(FrameOf(item), factor, right, up);
        if (!std::holds_alternative<MapFrame>(item)) {
            ResizeElement(item, factor);
        }
        resized.Items().push_back(std::move(item));
    }
    return resized;
}

}  // namespace host
