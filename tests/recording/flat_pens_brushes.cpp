#include "recording/lines.h"
#include "recording/session.h"

using namespace recording;

namespace {

void Refresh(Object& pen) { pen.look = PenLook(pen.color, pen.size, pen.style, pen.cap); }

/// Changes what is known of an object after a call of the outermost level succeeded.
template <typename Change>
Gdiplus::GpStatus After(Gdiplus::GpStatus status, const void* native, Change change) {
    if (status == Gdiplus::Ok && ThisThread().depth == 0) {
        change(ThisThread().objects[native]);
    }
    return status;
}

}  // namespace

namespace Gdiplus {
namespace DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreatePen1(ARGB color, REAL width, GpUnit unit, GpPen** pen) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipCreatePen1)>("GdipCreatePen1");
    Object object;
    object.kind = "pen";
    object.color = color;
    object.size = width;
    Refresh(object);
    return RunCreation(
        "GdipCreatePen1",
        [&] {
            return "GdipCreatePen1 " + Hex(color) + " " + Number(width) + " unit " +
                   std::to_string(unit);
        },
        [&] { return real(color, width, unit, pen); }, pen, std::move(object));
}

GpStatus WINGDIPAPI GdipDeletePen(GpPen* pen) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDeletePen)>("GdipDeletePen");
    return RunDeletion("GdipDeletePen", pen, [&] { return real(pen); });
}

GpStatus WINGDIPAPI GdipSetPenColor(GpPen* pen, ARGB color) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipSetPenColor)>("GdipSetPenColor");
    const GpStatus status = Run(
        "GdipSetPenColor", CallKind::Internal,
        [&] { return "GdipSetPenColor " + Hex(color); }, [&] { return real(pen, color); },
        [&] { return NeedAll(pen); });
    return After(status, pen, [&](Object& object) {
        object.color = color;
        Refresh(object);
    });
}

GpStatus WINGDIPAPI GdipSetPenDashStyle(GpPen* pen, GpDashStyle style) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipSetPenDashStyle)>("GdipSetPenDashStyle");
    const GpStatus status = Run(
        "GdipSetPenDashStyle", CallKind::Internal,
        [&] { return "GdipSetPenDashStyle " + std::to_string(style); },
        [&] { return real(pen, style); }, [&] { return NeedAll(pen); });
    return After(status, pen, [&](Object& object) {
        object.style = style;
        Refresh(object);
    });
}

GpStatus WINGDIPAPI GdipSetPenCustomEndCap(GpPen* pen, GpCustomLineCap* cap) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipSetPenCustomEndCap)>("GdipSetPenCustomEndCap");
    const std::string look = ThisThread().LookOf(cap);
    const GpStatus status = Run(
        "GdipSetPenCustomEndCap", CallKind::Internal,
        [&] { return "GdipSetPenCustomEndCap " + look; }, [&] { return real(pen, cap); },
        [&] { return NeedAll(pen, cap); });
    return After(status, pen, [&](Object& object) {
        object.cap = look;
        Refresh(object);
    });
}

GpStatus WINGDIPAPI GdipCreateAdjustableArrowCap(REAL height, REAL width, BOOL filled,
                                                 GpAdjustableArrowCap** cap) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipCreateAdjustableArrowCap)>("GdipCreateAdjustableArrowCap");
    Object object;
    object.kind = "cap";
    object.look = ArrowCapLook(height, width, filled != 0);
    const std::string line = "GdipCreateAdjustableArrowCap " + object.look;
    return RunCreation(
        "GdipCreateAdjustableArrowCap", [&] { return line; },
        [&] { return real(height, width, filled, cap); }, cap, std::move(object));
}

GpStatus WINGDIPAPI GdipDeleteCustomLineCap(GpCustomLineCap* cap) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipDeleteCustomLineCap)>("GdipDeleteCustomLineCap");
    return RunDeletion("GdipDeleteCustomLineCap", cap, [&] { return real(cap); });
}

GpStatus WINGDIPAPI GdipCreateSolidFill(ARGB color, GpSolidFill** brush) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipCreateSolidFill)>("GdipCreateSolidFill");
    Object object;
    object.kind = "brush";
    object.look = BrushLook(color);
    return RunCreation(
        "GdipCreateSolidFill", [&] { return "GdipCreateSolidFill " + Hex(color); },
        [&] { return real(color, brush); }, brush, std::move(object));
}

GpStatus WINGDIPAPI GdipSetSolidFillColor(GpSolidFill* brush, ARGB color) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipSetSolidFillColor)>("GdipSetSolidFillColor");
    const GpStatus status = Run(
        "GdipSetSolidFillColor", CallKind::Internal,
        [&] { return "GdipSetSolidFillColor " + Hex(color); },
        [&] { return real(brush, color); }, [&] { return NeedAll(brush); });
    return After(status, brush, [&](Object& object) { object.look = BrushLook(color); });
}

GpStatus WINGDIPAPI GdipDeleteBrush(GpBrush* brush) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDeleteBrush)>("GdipDeleteBrush");
    return RunDeletion("GdipDeleteBrush", brush, [&] { return real(brush); });
}

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
