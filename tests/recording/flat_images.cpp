#include "recording/lines.h"
#include "recording/session.h"

using namespace recording;

namespace Gdiplus {
namespace DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipLoadImageFromFile(const FlatChar* file, GpImage** image) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipLoadImageFromFile)>("GdipLoadImageFromFile");
    Object object;
    object.kind = "image";
    object.look = "image[" + Quoted(Utf8(file, -1)) + "]";
    const std::string line = "GdipLoadImageFromFile " + Quoted(Utf8(file, -1));
    return RunCreation(
        "GdipLoadImageFromFile", [&] { return line; }, [&] { return real(file, image); },
        image, std::move(object));
}

GpStatus WINGDIPAPI GdipDisposeImage(GpImage* image) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDisposeImage)>("GdipDisposeImage");
    return RunDeletion("GdipDisposeImage", image, [&] { return real(image); });
}

GpStatus WINGDIPAPI GdipGetImageWidth(GpImage* image, UINT* width) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipGetImageWidth)>("GdipGetImageWidth");
    const GpStatus status = Run(
        "GdipGetImageWidth", CallKind::Internal, [] { return "GdipGetImageWidth"; },
        [&] { return real(image, width); }, [&] { return NeedAll(image); });
    if (status == Ok && ThisThread().active && ThisThread().imageSize) {
        *width = ThisThread().imageSize->first;
    }
    return status;
}

GpStatus WINGDIPAPI GdipGetImageHeight(GpImage* image, UINT* height) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipGetImageHeight)>("GdipGetImageHeight");
    const GpStatus status = Run(
        "GdipGetImageHeight", CallKind::Internal, [] { return "GdipGetImageHeight"; },
        [&] { return real(image, height); }, [&] { return NeedAll(image); });
    if (status == Ok && ThisThread().active && ThisThread().imageSize) {
        *height = ThisThread().imageSize->second;
    }
    return status;
}

// Asked by the binding outside Windows of an image that it has loaded, not by the
// library: it leaves no trace. A token has no format.
GpStatus WINGDIPAPI GdipGetImagePixelFormat(GpImage* image, PixelFormat* format) {
    static const auto real =
        Real<decltype(&GdipGetImagePixelFormat)>("GdipGetImagePixelFormat");
    return ThisThread().Of(image).token != nullptr ? NotImplemented : real(image, format);
}

GpStatus WINGDIPAPI GdipDrawImageRectI(GpGraphics* graphics, GpImage* image, INT x, INT y,
                                       INT width, INT height) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDrawImageRectI)>("GdipDrawImageRectI");
    return Run(
        "GdipDrawImageRectI", CallKind::Visible,
        [&] { return DrawImage(ThisThread().LookOf(image), x, y, width, height); },
        [&] { return real(graphics, image, x, y, width, height); },
        [&] { return NeedAll(graphics, image); });
}

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
