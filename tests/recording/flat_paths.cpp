#include "recording/lines.h"
#include "recording/session.h"

using namespace recording;

namespace {

/// Adds to the content of a path, and with it to its look.
void Add(const Gdiplus::GpPath* path, Gdiplus::GpStatus status,
         const std::string& content) {
    if (status == Gdiplus::Ok && ThisThread().depth == 0) {
        Object& object = ThisThread().objects[path];
        object.content += (object.content.empty() ? "" : ", ") + content;
        object.look = "path[" + object.content + "]";
    }
}

/// The bounds that the test wants, if it wants any.
bool Scripted(const Gdiplus::GpPath* path, Gdiplus::GpRect* bounds) {
    Session& session = ThisThread();
    if (!session.active || session.depth > 0) {
        return false;
    }
    if (session.boundsOf) {
        *bounds = session.boundsOf(session.Of(path).content);
        return true;
    }
    if (session.bounds.empty()) {
        return false;
    }
    *bounds = session.bounds[session.nextBounds];
    if (session.nextBounds + 1 < session.bounds.size()) {
        ++session.nextBounds;
    }
    return true;
}

}  // namespace

namespace Gdiplus {
namespace DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreatePath(GpFillMode mode, GpPath** path) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipCreatePath)>("GdipCreatePath");
    Object object;
    object.kind = "path";
    object.look = "path[]";
    return RunCreation(
        "GdipCreatePath", [&] { return "GdipCreatePath " + std::to_string(mode); },
        [&] { return real(mode, path); }, path, std::move(object));
}

GpStatus WINGDIPAPI GdipDeletePath(GpPath* path) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDeletePath)>("GdipDeletePath");
    return RunDeletion("GdipDeletePath", path, [&] { return real(path); });
}

GpStatus WINGDIPAPI GdipResetPath(GpPath* path) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipResetPath)>("GdipResetPath");
    const GpStatus status = Run(
        "GdipResetPath", CallKind::Internal, [] { return "GdipResetPath"; },
        [&] { return real(path); }, [&] { return NeedAll(path); });
    if (status == Ok && ThisThread().depth == 0) {
        ThisThread().objects[path].content.clear();
        ThisThread().objects[path].look = "path[]";
    }
    return status;
}

GpStatus WINGDIPAPI GdipAddPathString(GpPath* path, const FlatChar* text, INT length,
                                      const GpFontFamily* family, INT style, REAL emSize,
                                      const GpRectF* layout,
                                      const GpStringFormat* format) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipAddPathString)>("GdipAddPathString");
    const std::string content = Quoted(Utf8(text, length)) + " " +
                                Quoted(ThisThread().Of(family).content) + " " +
                                Number(emSize);
    const GpStatus status = Run(
        "GdipAddPathString", CallKind::Internal,
        [&] {
            return "GdipAddPathString " + content + " style " + std::to_string(style) +
                   " at " + Number(layout->X) + " " + Number(layout->Y) + " " +
                   Number(layout->Width) + " " + Number(layout->Height) + " " +
                   ThisThread().LookOf(format);
        },
        [&] { return real(path, text, length, family, style, emSize, layout, format); },
        [&] { return NeedAll(path, family); });
    Add(path, status, content);
    return status;
}

GpStatus WINGDIPAPI GdipAddPathRectangleI(GpPath* path, INT x, INT y, INT width,
                                          INT height) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipAddPathRectangleI)>("GdipAddPathRectangleI");
    const std::string content = "rectangle " + std::to_string(x) + " " +
                                std::to_string(y) + " " + std::to_string(width) + " " +
                                std::to_string(height);
    const GpStatus status = Run(
        "GdipAddPathRectangleI", CallKind::Internal,
        [&] { return "GdipAddPathRectangleI " + content; },
        [&] { return real(path, x, y, width, height); }, [&] { return NeedAll(path); });
    Add(path, status, content);
    return status;
}

GpStatus WINGDIPAPI GdipAddPathLine2I(GpPath* path, const GpPoint* points, INT count) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipAddPathLine2I)>("GdipAddPathLine2I");
    const std::string look =
        LinesPath(std::vector<GpPoint>(points, points + (count > 0 ? count : 0)));
    const GpStatus status = Run(
        "GdipAddPathLine2I", CallKind::Internal,
        [&] { return "GdipAddPathLine2I " + look; },
        [&] { return real(path, points, count); }, [&] { return NeedAll(path); });
    Add(path, status, look.substr(5, look.size() - 6));
    return status;
}

GpStatus WINGDIPAPI GdipTransformPath(GpPath* path, GpMatrix* matrix) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipTransformPath)>("GdipTransformPath");
    return Run(
        "GdipTransformPath", CallKind::Internal,
        [&] { return "GdipTransformPath " + ThisThread().LookOf(path); },
        [&] { return real(path, matrix); }, [&] { return NeedAll(path, matrix); });
}

GpStatus WINGDIPAPI GdipGetPathWorldBoundsI(GpPath* path, GpRect* bounds,
                                            const GpMatrix* matrix, const GpPen* pen) {
    const AtWork atWork;
    static const auto real =
        Real<decltype(&GdipGetPathWorldBoundsI)>("GdipGetPathWorldBoundsI");
    const GpStatus status = Run(
        "GdipGetPathWorldBoundsI", CallKind::Internal,
        [&] {
            return "GdipGetPathWorldBoundsI " + ThisThread().LookOf(path) +
                   (matrix == nullptr ? "" : " matrix") + (pen == nullptr ? "" : " pen");
        },
        [&] { return real(path, bounds, matrix, pen); }, [&] { return NeedAll(path); });
    if (status == Ok) {
        Scripted(path, bounds);
    }
    return status;
}

GpStatus WINGDIPAPI GdipDrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path) {
    const AtWork atWork;
    static const auto real = Real<decltype(&GdipDrawPath)>("GdipDrawPath");
    return Run(
        "GdipDrawPath", CallKind::Visible,
        [&] { return DrawPath(ThisThread().LookOf(pen), ThisThread().LookOf(path)); },
        [&] { return real(graphics, pen, path); },
        [&] { return NeedAll(graphics, pen, path); });
}

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
