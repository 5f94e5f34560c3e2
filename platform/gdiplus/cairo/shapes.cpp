#include <algorithm>
#include <cmath>

#include "cairo/brush.h"
#include "cairo/graphics.h"
#include "cairo/pencil.h"
#include "cairo/strokes.h"

namespace engine {
namespace {

template <typename AnyPoint>
void TracePoints(Pencil& pencil, const AnyPoint* points, INT count, bool closed) {
    for (INT i = 0; i < count; ++i) {
        if (i == 0) {
            pencil.MoveTo(points[i].X, points[i].Y);
        } else {
            pencil.LineTo(points[i].X, points[i].Y);
        }
    }
    if (closed) {
        pencil.Close();
    }
}

template <typename Trace>
GpStatus Fill(GpGraphics* graphics, GpBrush* brush, FillMode mode, Trace trace) {
    if (graphics == nullptr || brush == nullptr) {
        return InvalidParameter;
    }
    return Guarded([&] {
        Graphics& g = *From(graphics);
        Pencil pencil(g, 0.0);
        trace(pencil);
        return FillTraced(pencil, From(brush)->color, mode);
    });
}

template <typename Trace>
GpStatus Outline(GpGraphics* graphics, GpPen* pen, Trace trace) {
    if (graphics == nullptr || pen == nullptr) {
        return InvalidParameter;
    }
    return Guarded([&] {
        Graphics& g = *From(graphics);
        Pencil pencil(g, StrokeOffset(g));
        trace(pencil);
        return StrokeTraced(pencil, *From(pen));
    });
}

template <typename AnyPoint>
GpStatus OutlinePoints(GpGraphics* graphics, GpPen* pen, const AnyPoint* points,
                       INT count, bool closed) {
    if (points == nullptr || count < 2) {
        return InvalidParameter;
    }
    const GpStatus status = Outline(graphics, pen, [&](Pencil& pencil) {
        TracePoints(pencil, points, count, closed);
    });
    const auto at = [&](INT i) {
        return PointF(static_cast<REAL>(points[i].X), static_cast<REAL>(points[i].Y));
    };
    if (closed || status != Ok) {
        return status;
    }
    return Guarded([&] {
        return DrawArrows(*From(graphics), *From(pen), at(0), at(1), at(count - 2),
                          at(count - 1));
    });
}

template <typename AnyPoint>
GpStatus FillPoints(GpGraphics* graphics, GpBrush* brush, const AnyPoint* points,
                    INT count, FillMode mode) {
    if (points == nullptr || count < 1) {
        return InvalidParameter;
    }
    return Fill(graphics, brush, mode,
                [&](Pencil& pencil) { TracePoints(pencil, points, count, true); });
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;
using engine::Pencil;

GpStatus GdipGraphicsClear(GpGraphics* graphics, ARGB color) {
    if (graphics == nullptr) {
        return InvalidParameter;
    }
    return engine::Guarded([&] { return engine::Clear(*From(graphics), color); });
}

GpStatus GdipDrawLine(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2,
                      REAL y2) {
    const PointF points[] = {{x1, y1}, {x2, y2}};
    return engine::OutlinePoints(graphics, pen, points, 2, false);
}

GpStatus GdipDrawLineI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2, INT y2) {
    const Point points[] = {{x1, y1}, {x2, y2}};
    return engine::OutlinePoints(graphics, pen, points, 2, false);
}

GpStatus GdipDrawLines(GpGraphics* graphics, GpPen* pen, const GpPointF* points,
                       INT count) {
    return engine::OutlinePoints(graphics, pen, points, count, false);
}

GpStatus GdipDrawLinesI(GpGraphics* graphics, GpPen* pen, const GpPoint* points,
                        INT count) {
    return engine::OutlinePoints(graphics, pen, points, count, false);
}

GpStatus GdipDrawPolygon(GpGraphics* graphics, GpPen* pen, const GpPointF* points,
                         INT count) {
    return engine::OutlinePoints(graphics, pen, points, count, true);
}

GpStatus GdipDrawPolygonI(GpGraphics* graphics, GpPen* pen, const GpPoint* points,
                          INT count) {
    return engine::OutlinePoints(graphics, pen, points, count, true);
}

GpStatus GdipDrawRectangle(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                           REAL height) {
    return engine::Outline(graphics, pen, [&](Pencil& pencil) {
        engine::TraceRectangle(pencil, x, y, width, height);
    });
}

GpStatus GdipDrawRectangleI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width,
                            INT height) {
    return engine::Outline(graphics, pen, [&](Pencil& pencil) {
        engine::TraceRectangle(pencil, x, y, width, height);
    });
}

GpStatus GdipDrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path) {
    if (path == nullptr) {
        return InvalidParameter;
    }
    return engine::Outline(
        graphics, pen, [&](Pencil& pencil) { engine::TracePath(pencil, *From(path)); });
}

GpStatus GdipFillPath(GpGraphics* graphics, GpBrush* brush, GpPath* path) {
    if (path == nullptr) {
        return InvalidParameter;
    }
    return engine::Fill(graphics, brush, From(path)->mode,
                        [&](Pencil& pencil) { engine::TracePath(pencil, *From(path)); });
}

GpStatus GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y,
                           REAL width, REAL height) {
    return engine::Fill(graphics, brush, FillModeWinding, [&](Pencil& pencil) {
        engine::TraceRectangle(pencil, x, y, width, height);
    });
}

GpStatus GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                            INT height) {
    return engine::Fill(graphics, brush, FillModeWinding, [&](Pencil& pencil) {
        engine::TraceRectangle(pencil, x, y, width, height);
    });
}

GpStatus GdipFillPolygon(GpGraphics* graphics, GpBrush* brush, const GpPointF* points,
                         INT count, GpFillMode mode) {
    return engine::FillPoints(graphics, brush, points, count, mode);
}

GpStatus GdipFillPolygonI(GpGraphics* graphics, GpBrush* brush, const GpPoint* points,
                          INT count, GpFillMode mode) {
    return engine::FillPoints(graphics, brush, points, count, mode);
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
