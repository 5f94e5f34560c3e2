// The keyboard on the canvas.

#include <QKeyEvent>
#include <optional>

#include "page_editor/canvas/page_canvas.h"
#include "page_editor/editing/element_scale.h"
#include "page_editor/editing/resize.h"

namespace page_editor {
namespace {

/// The direction of an arrow key, one page unit long.
std::optional<CPoint2D> ArrowOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return CPoint2D(-1.0, 0.0);
        case Qt::Key_Right:
            return CPoint2D(1.0, 0.0);
        case Qt::Key_Up:
            return CPoint2D(0.0, 1.0);
        case Qt::Key_Down:
            return CPoint2D(0.0, -1.0);
        default:
            return std::nullopt;
    }
}

}  // namespace

void PageCanvas::Nudge(double dx, double dy) {
    Attempt([&] {
        m_document.ChangeItems(
            m_document.Selection(), "Move",
            [&](host::PageItem& item) { FrameOf(item).SetOffset(dx, dy); }, "nudge");
    });
}

void PageCanvas::Grow(double dx, double dy) {
    constexpr int kRightEdge = 3;
    constexpr int kTopEdge = 1;
    const int handle = dx != 0.0 ? kRightEdge : kTopEdge;
    Attempt([&] {
        m_document.ChangeItems(
            m_document.Selection(), "Resize",
            [&](host::PageItem& item) {
                const ElementScale scale(item);
                const host::Box box = host::BoxOf(FrameOf(item).GetExtent());
                const CPoint2D from = HandleAt(box, handle);
                scale.Apply(item, Resized(box, handle, {from.x + dx, from.y + dy},
                                          scale.HasProportions()));
            },
            "grow");
    });
}

void PageCanvas::keyPressEvent(QKeyEvent* event) {
    const std::optional<CPoint2D> arrow = ArrowOf(event->key());
    if (arrow && !m_document.Selection().empty()) {
        const double step = event->modifiers().testFlag(Qt::ShiftModifier) ? 10.0 : 1.0;
        const bool grows = event->modifiers().testFlag(Qt::ControlModifier);
        return grows ? Grow(arrow->x * step, arrow->y * step)
                     : Nudge(arrow->x * step, arrow->y * step);
    }
    switch (event->key()) {
        case Qt::Key_Escape:
            return m_drag != nullptr ? CancelDrag() : m_document.Select({});
        case Qt::Key_Space:
            m_isSpaceDown = true;
            return viewport()->setCursor(Qt::OpenHandCursor);
        default:
            QAbstractScrollArea::keyPressEvent(event);  // arrow keys pan
    }
}

void PageCanvas::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        m_isSpaceDown = false;
        viewport()->setCursor(Qt::ArrowCursor);
    }
    QAbstractScrollArea::keyReleaseEvent(event);
}

/// Tab goes through the items; from the last, and on an empty page, to the next widget.
bool PageCanvas::focusNextPrevChild(bool next) {
    const std::size_t count = m_document.Count();
    const Indices& selection = m_document.Selection();
    const std::size_t beyond = next ? count - 1 : 0;
    if (count == 0 || (!selection.empty() && selection.back() == beyond)) {
        m_document.Select({});
        return QAbstractScrollArea::focusNextPrevChild(next);
    }
    const std::size_t first = next ? 0 : count - 1;
    const std::size_t step = next ? 1 : static_cast<std::size_t>(-1);
    m_document.Select({selection.empty() ? first : selection.back() + step});
    return true;
}

}  // namespace page_editor
