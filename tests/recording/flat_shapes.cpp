#include "recording/lines.h"
#include "recording/session.h"

using namespace recording;

namespace {

std::vector<Gdiplus::Point> All(const Gdiplus::GpPoint* points, int count) {
    return {points, points + (count > 0 ? count : 0)};
}

}  // namespace

namespace Gdiplus {
namespace DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipDrawLineI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1,
                                  INT x2, INT y2) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDrawLineI)>("GdipDrawLineI");
    return Run(
        "GdipDrawLineI", CallKind::Visible,
        [&] { return DrawLine(ThisThread().LookOf(pen), x1, y1, x2, y2); },
        [&] { return real(graphics, pen, x1, y1, x2, y2); },
        [&] { return NeedAll(graphics, pen); });
}

GpStatus WINGDIPAPI GdipDrawRectangleI(GpGraphics* graphics, GpPen* pen, INT x, INT y,
                                       INT width, INT height) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDrawRectangleI)>("GdipDrawRectangleI");
    return Run(
        "GdipDrawRectangleI", CallKind::Visible,
        [&] { return DrawRectangle(ThisThread().LookOf(pen), x, y, width, height); },
        [&] { return real(graphics, pen, x, y, width, height); },
        [&] { return NeedAll(graphics, pen); });
}

GpStatus WINGDIPAPI GdipDrawPolygonI(GpGraphics* graphics, GpPen* pen,
                                     const GpPoint* points, INT count) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDrawPolygonI)>("GdipDrawPolygonI");
    return Run(
        "GdipDrawPolygonI", CallKind::Visible,
        [&] { return DrawPolygon(ThisThread().LookOf(pen), All(points, count)); },
        [&] { return real(graphics, pen, points, count); },
        [&] { return NeedAll(graphics, pen, points); });
}

GpStatus WINGDIPAPI GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x,
                                      REAL y, REAL width, REAL height) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipFillRectangle)>("GdipFillRectangle");
    return Run(
        "GdipFillRectangle", CallKind::Visible,
        [&] { return FillRectangle(ThisThread().LookOf(brush), x, y, width, height); },
        [&] { return real(graphics, brush, x, y, width, height); },
        [&] { return NeedAll(graphics, brush); });
}

GpStatus WINGDIPAPI GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y,
                                       INT width, INT height) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipFillRectangleI)>("GdipFillRectangleI");
    return Run(
        "GdipFillRectangleI", CallKind::Visible,
        [&] { return FillRectangleI(ThisThread().LookOf(brush), x, y, width, height); },
        [&] { return real(graphics, brush, x, y, width, height); },
        [&] { return NeedAll(graphics, brush); });
}

GpStatus WINGDIPAPI GdipFillPolygonI(GpGraphics* graphics, GpBrush* brush,
                                     const GpPoint* points, INT count, GpFillMode mode) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipFillPolygonI)>("GdipFillPolygonI");
    return Run(
        "GdipFillPolygonI", CallKind::Visible,
        [&] { return FillPolygon(ThisThread().LookOf(brush), All(points, count), mode); },
        [&] { return real(graphics, brush, points, count, mode); },
        [&] { return NeedAll(graphics, brush, points); });
}

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
