#include "page_editor/editing/hit.h"

#include <algorithm>

#include "page_editor/editing/arrange.h"

namespace page_editor {
namespace {

/// Frames catch their handles only from inside; users also aim from just outside.
CPoint2D Inside(const host::Box& box, CPoint2D point, double tolerance) {
    const auto within = [tolerance](double value, double low, double high) {
        const bool isNear = value >= low - tolerance && value <= high + tolerance;
        return isNear ? std::clamp(value, low, high) : value;
    };
    return {within(point.x, box.left, box.right), within(point.y, box.bottom, box.top)};
}

int HandleUnder(CFrameBase& frame, CPoint2D point, double tolerance) {
    const CPoint2D inside = Inside(host::BoxOf(frame.GetExtent()), point, tolerance);
    return frame.HitTest(inside, tolerance, false) == TopoOnHandle ? frame.HitHandle : -1;
}

bool IsSeenThrough(const host::PageItem& item) {
    const auto* const frame = std::get_if<std::unique_ptr<CSurroundFrame>>(&item);
    return frame != nullptr && (*frame)->GetMapSurround() == nullptr &&
           !(*frame)->DrawFill;
}

std::optional<std::size_t> TopmostUnder(PageDocument& document, CPoint2D point,
                                        bool seenThrough) {
    for (std::size_t i = document.Count(); i-- > 0;) {
        if (IsSeenThrough(document.Item(i)) == seenThrough &&
            document.Frame(i).HitTest(point, 0.0, true) == TopoWithin) {
            return i;
        }
    }
    return std::nullopt;
}

}  // namespace

Hit HitAt(PageDocument& document, CPoint2D point, double tolerance) {
    const Indices& selection = document.Selection();
    for (auto item = selection.rbegin(); item != selection.rend(); ++item) {
        const int handle = HandleUnder(document.Frame(*item), point, tolerance);
        if (handle >= 0) {
            return {*item, handle};
        }
    }
    const auto item = TopmostUnder(document, point, false);
    return {item ? item : TopmostUnder(document, point, true), -1};
}

}  // namespace page_editor
