#pragma once

#include <QPainter>

#include "page_editor/canvas/drag.h"
#include "page_editor/canvas/view.h"

namespace page_editor {

constexpr int kHandleSide = 8;  ///< pixels

/// Draws the selection: an outline for each item, with handles.
void DrawSelection(QPainter& painter, const View& view, const PageDocument& document);

/// Draws the lines that a drag snapped to, and its outline.
void DrawMarks(QPainter& painter, const View& view, const DragMarks& marks,
               const QRectF& visible);

}  // namespace page_editor
