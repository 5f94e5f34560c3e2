#pragma once

#include <QAbstractScrollArea>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <memory>

#include "page_editor/canvas/drag.h"
#include "page_editor/canvas/page_surface.h"
#include "page_editor/canvas/view.h"
#include "page_editor/editing/hit.h"
#include "page_editor/editing/page_document.h"

namespace page_editor {

/// The page on the screen: drawn by the library, changed with mouse and keyboard.
///
/// A click selects, and with Shift or Ctrl adds to the selection; dragging moves, or
/// resizes by a handle. Alt suspends snapping; Shift keeps proportions, or frees those
/// that are kept. The middle button, or Space, pans; Ctrl and the wheel zoom about the
/// pointer. Arrow keys move the selection by 1, with Shift by 10, and with Ctrl they
/// resize it; with nothing selected they pan. Tab goes through the items, Escape cancels
/// a drag.
class PageCanvas : public QAbstractScrollArea {
    Q_OBJECT
public:
    /// @param document outlives this
    explicit PageCanvas(PageDocument& document, QWidget* parent = nullptr);

    /// Pixels per page unit: 1 at 100 %.
    double Zoom() const { return m_view.zoom; }
    void SetZoom(double zoom);
    /// Zooms so that a point of the viewport stays where it is.
    void ZoomAbout(double zoom, QPointF point);
    /// Shows the whole sheet.
    void ZoomToFit();

    const View& CurrentView() const { return m_view; }
    const QImage& Image() const { return m_surface.Image(); }
    bool IsDragging() const { return m_drag != nullptr; }

    /// Cancels a drag and undoes its changes.
    void CancelDrag();
    /// Moves the selection, as the arrow keys do.
    void Nudge(double dx, double dy);
    /// Moves the right edge, or else the top edge, of the selection, as a drag does.
    void Grow(double dx, double dy);

Q_SIGNALS:
    void ZoomChanged(double zoom);
    /// Something could not be done; one line says what and why.
    void Failed(const QString& why);
    /// Why elements are not shown completely, one line each; empty when all are.
    void Undrawn(const QStringList& why);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void PlaceAtZoom(double zoom, QPointF point);
    void PlaceToFit();
    void Redraw();
    void RedrawSoon();
    void ShowPixels();
    void OnItemsChanged(const Indices& items);
    void OnPageReplaced();
    void PlaceSheet();
    QRect OnViewport(const QRect& pixels) const;
    double HandleTolerance() const;

    void PressAt(QPointF point, Qt::KeyboardModifiers modifiers);
    void DragTo(QPointF point, Qt::KeyboardModifiers modifiers);
    void EndDrag();
    void ShowCursorAt(QPointF point);
    void Attempt(const std::function<void()>& step);

    PageDocument& m_document;
    PageSurface m_surface;
    View m_view;
    bool m_fits = true;  // follows the size of the window
    double m_drawnZoom = 1.0;
    bool m_isSlow = false;  // drawing the page takes longer than a wheel step
    QTimer m_pause;         // until it is redrawn at the zoom

    std::unique_ptr<Drag> m_drag;
    QPointF m_pressed;
    bool m_isPastSlack = false;  // the pointer left where it was pressed
    bool m_isPanning = false;
    bool m_isSpaceDown = false;
    QPointF m_panned;
};

}  // namespace page_editor
