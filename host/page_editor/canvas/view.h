#pragma once

#include <QPointF>
#include <QRectF>

#include "host/raster_data.h"
#include "page_editor/editing/arrange.h"

namespace page_editor {

/// The place of the sheet in a widget: from page units, y growing upwards, to the
/// widget's pixels, y growing downwards.
struct View {
    QPointF corner;           ///< of the sheet, top left
    double zoom = 1.0;        ///< pixels per page unit
    double pageHeight = 0.0;  ///< page units

    QPointF ToWidget(CPoint2D point) const {
        return corner + QPointF(point.x, pageHeight - point.y) * zoom;
    }
    QRectF ToWidget(const host::Box& box) const {
        return {ToWidget(CPoint2D(box.left, box.top)),
                ToWidget(CPoint2D(box.right, box.bottom))};
    }
    CPoint2D ToPage(QPointF point) const {
        const QPointF onSheet = (point - corner) / zoom;
        return {onSheet.x(), pageHeight - onSheet.y()};
    }
};

}  // namespace page_editor
