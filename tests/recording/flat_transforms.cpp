#include "recording/lines.h"
#include "recording/session.h"

using namespace recording;

namespace {

std::string Order(Gdiplus::GpMatrixOrder order) {
    return order == Gdiplus::MatrixOrderPrepend ? "" : " append";
}

}  // namespace

namespace Gdiplus {
namespace DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipTranslateWorldTransform(GpGraphics* graphics, REAL dx, REAL dy,
                                                GpMatrixOrder order) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipTranslateWorldTransform)>("GdipTranslateWorldTransform");
    return Run(
        "GdipTranslateWorldTransform", CallKind::Visible,
        [&] { return TranslateWorld(dx, dy) + Order(order); },
        [&] { return real(graphics, dx, dy, order); }, [&] { return NeedAll(graphics); });
}

GpStatus WINGDIPAPI GdipRotateWorldTransform(GpGraphics* graphics, REAL angle,
                                             GpMatrixOrder order) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipRotateWorldTransform)>("GdipRotateWorldTransform");
    return Run(
        "GdipRotateWorldTransform", CallKind::Visible,
        [&] { return RotateWorld(angle) + Order(order); },
        [&] { return real(graphics, angle, order); }, [&] { return NeedAll(graphics); });
}

GpStatus WINGDIPAPI GdipResetWorldTransform(GpGraphics* graphics) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipResetWorldTransform)>("GdipResetWorldTransform");
    return Run(
        "GdipResetWorldTransform", CallKind::Visible, [&] { return ResetWorld(); },
        [&] { return real(graphics); }, [&] { return NeedAll(graphics); });
}

GpStatus WINGDIPAPI GdipCreateMatrix(GpMatrix** matrix) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipCreateMatrix)>("GdipCreateMatrix");
    Object object;
    object.kind = "matrix";
    object.look = "matrix";
    return RunCreation(
        "GdipCreateMatrix", [] { return "GdipCreateMatrix"; },
        [&] { return real(matrix); }, matrix, std::move(object));
}

GpStatus WINGDIPAPI GdipDeleteMatrix(GpMatrix* matrix) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDeleteMatrix)>("GdipDeleteMatrix");
    return RunDeletion("GdipDeleteMatrix", matrix, [&] { return real(matrix); });
}

GpStatus WINGDIPAPI GdipTranslateMatrix(GpMatrix* matrix, REAL dx, REAL dy,
                                        GpMatrixOrder order) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipTranslateMatrix)>("GdipTranslateMatrix");
    return Run(
        "GdipTranslateMatrix", CallKind::Internal,
        [&] {
            return "GdipTranslateMatrix " + Number(dx) + " " + Number(dy) + Order(order);
        },
        [&] { return real(matrix, dx, dy, order); }, [&] { return NeedAll(matrix); });
}

GpStatus WINGDIPAPI GdipRotateMatrix(GpMatrix* matrix, REAL angle, GpMatrixOrder order) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipRotateMatrix)>("GdipRotateMatrix");
    return Run(
        "GdipRotateMatrix", CallKind::Internal,
        [&] { return "GdipRotateMatrix " + Number(angle) + Order(order); },
        [&] { return real(matrix, angle, order); }, [&] { return NeedAll(matrix); });
}

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
