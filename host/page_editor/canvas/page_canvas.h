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

/// The page on the desktop: drawn by the library, changed with pointer and keys.
///
/// A click selects, with Shift or Ctrl besides what is selected; dragging moves, or pulls
/// a handle. Alt lets go of lines and whole units; Shift keeps proportions, or lets go of
/// those that are kept. The middle button, or Space, moves the sheet; Ctrl and the wheel
/// zoom about the pointer. Arrow keys move what is selected by 1, with Shift by 10, and
/// with Ctrl they resize it; the sheet is moved where nothing is selected. Tab goes
/// through the items, Escape gives a drag up.
class PageCanvas : public QAbstractScrollArea {
    Q_OBJECT
public:
    /// @param document outlives this
    explicit PageCanvas(PageDocument& document, QWidget* parent = nullptr);

    /// Pixels in a page unit: 1 at 100 %.
    double Zoom() const { return m_view.zoom; }
    void SetZoom(double zoom);
    /// Zooms so that a point of the viewport stays where it is.
    void ZoomAbout(double zoom, QPointF point);
    /// Shows the whole sheet.
    void ZoomToFit();

    const View& CurrentView() const { return m_view; }
    const QImage& Image() const { return m_surface.Image(); }
    bool IsDragging() const { return m_drag != nullptr; }

    /// Gives up a drag that is going on; what it changed is as before.
    void CancelDrag();
    /// Moves what is selected, as the arrow keys do.
    void Nudge(double dx, double dy);
    /// Pulls the right edge, or else the top edge, of what is selected, as a drag does.
    void Grow(double dx, double dy);

Q_SIGNALS:
    void ZoomChanged(double zoom);
    /// Something could not be done; one line says what and why.
    void Failed(const QString& why);
    /// Why elements are not shown whole, one line each; none when all are.
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
    bool m_isSlow = false;  // drawing the page takes longer than a turn of the wheel
    QTimer m_pause;         // until it is drawn at the zoom

    std::unique_ptr<Drag> m_drag;
    QPointF m_pressed;
    bool m_isPastSlack = false;  // the pointer left where it was pressed
    bool m_isPanning = false;
    bool m_isSpaceDown = false;
    QPointF m_panned;
};

}  // namespace page_editor
