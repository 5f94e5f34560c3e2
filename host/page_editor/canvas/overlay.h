#pragma once

#include <QPainter>

#include "page_editor/canvas/drag.h"
#include "page_editor/canvas/view.h"

namespace page_editor {

constexpr int kHandleSide = 8;  ///< pixels

/// Draws what is selected: an outline each, with handles.
void DrawSelection(QPainter& painter, const View& view, const PageDocument& document);

/// Draws the lines that a drag was drawn to, and its outline.
void DrawMarks(QPainter& painter, const View& view, const DragMarks& marks,
               const QRectF& visible);

}  // namespace page_editor
