#include "page_editor/canvas/page_canvas.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <exception>

#include "page/units.h"
#include "page_editor/canvas/overlay.h"
#include "system/errors.h"
#include "system/one_line.h"

namespace page_editor {
namespace {

constexpr int kRim = 32;  // pixels around the sheet
constexpr double kHandleReach = 6.0;
constexpr double kSnapReach = 6.0;
constexpr double kWheelStep = 1.2;
constexpr QRgb kDesk = 0xFF9AA0A6;

// Milliseconds. A page that is slow to draw waits for a pause while the wheel is turned.
constexpr int kSlowRedraw = 50;
constexpr int kPause = 150;

}  // namespace

PageCanvas::PageCanvas(PageDocument& document, QWidget* parent)
    : QAbstractScrollArea(parent),
      m_document(document),
      m_surface(document.Page(), document.Reading()) {
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    m_view.pageHeight = document.Page().Height();
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &PageCanvas::Redraw);
    connect(&document, &PageDocument::ItemsChanged, this, &PageCanvas::OnItemsChanged);
    connect(&document, &PageDocument::PageReplaced, this, &PageCanvas::OnPageReplaced);
    connect(&document, &PageDocument::PageRearranged, this, [this] {
        if (!m_surface.IsOfTheSheet()) {
            OnPageReplaced();
        } else {
            m_surface.DrawAll();
            ShowPixels();
        }
    });
    connect(&document, &PageDocument::SelectionChanged, viewport(),
            qOverload<>(&QWidget::update));
}

void PageCanvas::SetZoom(double zoom) {
    ZoomAbout(zoom, QRectF(viewport()->rect()).center());
}

void PageCanvas::ZoomAbout(double zoom, QPointF point) {
    PlaceAtZoom(zoom, point);
    Redraw();
}

void PageCanvas::PlaceAtZoom(double zoom, QPointF point) {
    const double ratio = devicePixelRatioF() * host::kUnitsPerInch;
    const host::Page& page = m_document.Page();
    const CPoint2D held = m_view.ToPage(point);
    m_fits = false;
    m_view.zoom = std::clamp(zoom, LowestDpi(page) / ratio, HighestDpi(page) / ratio);
    PlaceSheet();
    const QPointF off = m_view.ToWidget(held) - point;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                    static_cast<int>(std::lround(off.x())));
    verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                  static_cast<int>(std::lround(off.y())));
    Q_EMIT ZoomChanged(m_view.zoom);
}

void PageCanvas::ZoomToFit() {
    PlaceToFit();
    Redraw();
}

void PageCanvas::PlaceToFit() {
    const QSize room = maximumViewportSize();
    const host::Page& page = m_document.Page();
    PlaceAtZoom(std::min((room.width() - 2 * kRim) / page.Width(),
                         (room.height() - 2 * kRim) / page.Height()),
                QRectF(viewport()->rect()).center());
    m_fits = true;
}

/// Redraws everything, at the resolution of the zoom. The window stays alive while a map
/// is read and may be resized: the new size is drawn later.
void PageCanvas::Redraw() {
    if (m_surface.IsDrawing()) {
        m_pause.start();
        return;
    }
    m_pause.stop();
    QElapsedTimer clock;
    clock.start();
    m_surface.Begin(host::kUnitsPerInch * m_view.zoom * devicePixelRatioF());
    m_drawnZoom = m_view.zoom;
    m_isSlow = clock.elapsed() >= kSlowRedraw;
    PlaceSheet();
    ShowPixels();
}

void PageCanvas::RedrawSoon() {
    if (m_isSlow) {
        m_pause.start();
        viewport()->update();
    } else {
        Redraw();
    }
}

void PageCanvas::ShowPixels() {
    const std::string failure = m_surface.TakeMapFailure();
    if (!failure.empty()) {
        Q_EMIT Failed(QString::fromStdString(failure));
    }
    QStringList lines;
    for (const std::string& why : m_surface.Undrawn()) {
        lines.append(QString::fromStdString(host::OneLine(why)));
    }
    Q_EMIT Undrawn(lines);
    viewport()->update();
}

void PageCanvas::OnItemsChanged(const Indices& items) {
    for (const std::size_t item : items) {
        m_surface.DrawChanged(item);
    }
    ShowPixels();
}

void PageCanvas::OnPageReplaced() {
    m_drag.reset();
    m_surface.Forget();
    m_view.pageHeight = m_document.Page().Height();
    if (m_fits) {
        ZoomToFit();
    } else {
        SetZoom(m_view.zoom);
    }
}

/// In the middle where it fits, else where the scroll bars say.
void PageCanvas::PlaceSheet() {
    const host::Page& page = m_document.Page();
    const QSize sheet(static_cast<int>(std::ceil(page.Width() * m_view.zoom)),
                      static_cast<int>(std::ceil(page.Height() * m_view.zoom)));
    const QSize room = viewport()->size();
    const auto place = [](QScrollBar* bar, int length, int visible) {
        const int hidden = std::max(0, length + 2 * kRim - visible);
        bar->setPageStep(visible);
        bar->setSingleStep(std::max(1, visible / 20));
        bar->setRange(0, hidden);
        return hidden > 0 ? kRim - bar->value() : (visible - length) / 2;
    };
    m_view.corner = QPointF(place(horizontalScrollBar(), sheet.width(), room.width()),
                            place(verticalScrollBar(), sheet.height(), room.height()));
}

QRect PageCanvas::OnViewport(const QRect& pixels) const {
    const double ratio = devicePixelRatioF();
    const QRectF logical(QPointF(pixels.topLeft()) / ratio,
                         QSizeF(pixels.size()) / ratio);
    return logical.translated(m_view.corner)
        .toAlignedRect()
        .adjusted(-kHandleSide, -kHandleSide, kHandleSide, kHandleSide);
}

double PageCanvas::HandleTolerance() const { return kHandleReach / m_view.zoom; }

void PageCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.setClipRect(event->rect());
    painter.fillRect(event->rect(), QColor::fromRgba(kDesk));
    QImage image = m_surface.Image();
    if (image.isNull()) {
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         QString::fromStdString(m_surface.Failure()));
        return;
    }
    // Until it is drawn at this zoom, the previous drawing is stretched.
    const double ratio = devicePixelRatioF() * m_drawnZoom / m_view.zoom;
    const QRectF shown = QRectF(event->rect()).translated(-m_view.corner);
    const QRectF source(shown.topLeft() * ratio, shown.size() * ratio);
    const QRect part = source.toAlignedRect().intersected(image.rect());
    painter.drawImage(QRectF(m_view.corner + QPointF(part.topLeft()) / ratio,
                             QSizeF(part.size()) / ratio),
                      image, part);
    DrawSelection(painter, m_view, m_document);
    if (m_drag != nullptr) {
        DrawMarks(painter, m_view, m_drag->Marks(), viewport()->rect());
    }
}

void PageCanvas::resizeEvent(QResizeEvent*) {
    if (m_fits) {
        PlaceToFit();
        RedrawSoon();
    } else {
        PlaceSheet();
    }
}

void PageCanvas::scrollContentsBy(int, int) {
    PlaceSheet();
    viewport()->update();
}

void PageCanvas::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    const double steps = event->angleDelta().y() / 120.0;
    if (steps != 0.0) {  // horizontal scrolling does not zoom
        PlaceAtZoom(m_view.zoom * std::pow(kWheelStep, steps), event->position());
        RedrawSoon();
    }
}

void PageCanvas::mousePressEvent(QMouseEvent* event) {
    if (m_pause.isActive()) {
        Redraw();
    }
    if (event->button() == Qt::MiddleButton ||
        (event->button() == Qt::LeftButton && m_isSpaceDown)) {
        m_isPanning = true;
        m_panned = event->position();
        viewport()->setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::LeftButton) {
        PressAt(event->position(), event->modifiers());
    }
}

void PageCanvas::PressAt(QPointF point, Qt::KeyboardModifiers modifiers) {
    const bool besides =
        modifiers.testFlag(Qt::ShiftModifier) || modifiers.testFlag(Qt::ControlModifier);
    const CPoint2D onPage = m_view.ToPage(point);
    const Hit hit = HitAt(m_document, onPage, HandleTolerance());
    m_pressed = point;
    m_isPastSlack = false;
    if (hit.item && hit.handle >= 0) {
        m_document.Select({*hit.item});
        m_drag = PullHandle(m_document, *hit.item, hit.handle, onPage);
        return;
    }
    Indices selection = m_document.Selection();
    const bool isSelected =
        hit.item && std::binary_search(selection.begin(), selection.end(), *hit.item);
    if (!hit.item) {
        m_document.Select(besides ? selection : Indices());
        m_drag = SelectWithin(m_document, onPage);
    } else if (besides && isSelected) {
        selection.erase(std::find(selection.begin(), selection.end(), *hit.item));
        m_document.Select(selection);
    } else {
        if (!isSelected) {
            selection = besides ? selection : Indices();
            selection.push_back(*hit.item);
            m_document.Select(selection);
        }
        m_drag = MoveSelected(m_document, onPage);
    }
}

void PageCanvas::mouseMoveEvent(QMouseEvent* event) {
    const QPointF point = event->position();
    if (m_drag != nullptr && !event->buttons().testFlag(Qt::LeftButton)) {
        EndDrag();  // the button was released before a dialog
    }
    if (m_isPanning) {
        const QPointF by = point - m_panned;
        m_panned = point;
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() -
                                        static_cast<int>(by.x()));
        verticalScrollBar()->setValue(verticalScrollBar()->value() -
                                      static_cast<int>(by.y()));
    } else if (m_drag != nullptr) {
        m_isPastSlack = m_isPastSlack || (point - m_pressed).manhattanLength() >=
                                             QApplication::startDragDistance() / 2.0;
        if (m_isPastSlack) {
            DragTo(point, event->modifiers());
        }
    } else {
        ShowCursorAt(point);
    }
}

void PageCanvas::DragTo(QPointF point, Qt::KeyboardModifiers modifiers) {
    const DragMarks before = m_drag->Marks();
    DragRules rules;
    rules.isFree = modifiers.testFlag(Qt::AltModifier);
    rules.isProportioned = modifiers.testFlag(Qt::ShiftModifier);
    rules.tolerance = kSnapReach / m_view.zoom;
    m_drag->To(m_view.ToPage(point), rules);
    QRect changed;
    for (const std::size_t item : m_drag->Items()) {
        changed |= m_drag->ChangesShape() ? m_surface.DrawChanged(item)
                                          : m_surface.DrawMoved(item);
    }
    const DragMarks& now = m_drag->Marks();
    const bool hasMarks = now.outline || before.outline || !now.x.empty() ||
                          !now.y.empty() || !before.x.empty() || !before.y.empty();
    viewport()->update(hasMarks ? viewport()->rect() : OnViewport(changed));
}

void PageCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (m_isPanning) {
        m_isPanning = false;
        ShowCursorAt(event->position());
    } else if (event->button() == Qt::LeftButton && m_drag != nullptr) {
        EndDrag();
        ShowCursorAt(event->position());
    }
}

void PageCanvas::EndDrag() {
    const std::unique_ptr<Drag> drag = std::move(m_drag);
    if (m_isPastSlack) {
        Attempt([&] { drag->End(); });
    }
    viewport()->update();
}

void PageCanvas::CancelDrag() {
    const std::unique_ptr<Drag> drag = std::move(m_drag);
    if (drag != nullptr) {
        Attempt([&] { drag->Cancel(); });
    }
    viewport()->update();
}

void PageCanvas::ShowCursorAt(QPointF point) {
    constexpr Qt::CursorShape kByHandle[] = {
        Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor,
        Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor,
    };
    const Hit hit = HitAt(m_document, m_view.ToPage(point), HandleTolerance());
    const Indices& selection = m_document.Selection();
    const bool isSelected =
        hit.item && std::binary_search(selection.begin(), selection.end(), *hit.item);
    viewport()->setCursor(m_isSpaceDown     ? Qt::OpenHandCursor
                          : hit.handle >= 0 ? kByHandle[hit.handle]
                          : isSelected      ? Qt::SizeAllCursor
                                            : Qt::ArrowCursor);
}

void PageCanvas::Attempt(const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& error) {
        Q_EMIT Failed(QString::fromStdString(host::LineFor(error)));
    }
}

}  // namespace page_editor
