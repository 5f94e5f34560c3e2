#include "page_editor/canvas/overlay.h"

#include <QPen>

#include "page_editor/editing/resize.h"

namespace page_editor {
namespace {

constexpr QRgb kSelection = 0xFF1A73E8;
constexpr QRgb kGuide = 0xFFE8308A;

QPen Line(QRgb colour, Qt::PenStyle style = Qt::SolidLine) {
    QPen pen(QColor::fromRgba(colour), 1.0, style);
    pen.setCosmetic(true);
    return pen;
}

void DrawHandles(QPainter& painter, const View& view, const host::Box& box) {
    painter.setPen(Line(kSelection));
    painter.setBrush(Qt::white);
    for (int handle = 0; handle < kHandles; ++handle) {
        const QPointF at = view.ToWidget(HandleAt(box, handle));
        const double half = kHandleSide / 2.0;
        painter.drawRect(QRectF(at.x() - half, at.y() - half, kHandleSide, kHandleSide));
    }
}

}  // namespace

void DrawSelection(QPainter& painter, const View& view, const PageDocument& document) {
    for (const std::size_t item : document.Selection()) {
        const host::Box box = host::BoxOf(document.Extent(item));
        painter.setPen(Line(kSelection));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(view.ToWidget(box));
        DrawHandles(painter, view, box);
    }
}

void DrawMarks(QPainter& painter, const View& view, const DragMarks& marks,
               const QRectF& visible) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Line(kGuide));
    for (const double line : marks.x) {
        const double x = view.ToWidget(CPoint2D(line, 0.0)).x();
        painter.drawLine(QPointF(x, visible.top()), QPointF(x, visible.bottom()));
    }
    for (const double line : marks.y) {
        const double y = view.ToWidget(CPoint2D(0.0, line)).y();
        painter.drawLine(QPointF(visible.left(), y), QPointF(visible.right(), y));
    }
    if (marks.outline) {
        painter.setPen(Line(kSelection, Qt::DashLine));
        painter.drawRect(view.ToWidget(*marks.outline));
    }
}

}  // namespace page_editor
