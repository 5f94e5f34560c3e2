// The flat functions that are recorded: what a trace shows of each, and what each
// changes.

#include "recording/lines.h"
#include "recording/recorder.h"

using namespace Gdiplus;
using namespace Gdiplus::DllExports;

namespace recording {
namespace {

Object& Known(const void* native) { return ThisThread().objects[native]; }
const std::string& LookOf(const void* native) { return ThisThread().Of(native).look; }

template <typename... Numbers>
std::string Words(const char* name, Numbers... numbers) {
    return name + (... + (" " + std::to_string(numbers)));
}

/// The deletions, which show what is deleted.
template <auto function>
void Delete() {
    Recorder<function>::Install([](auto native) {
        return flat_calls::kNameOf<function> + (" " + LookOf(native));
    });
}

// Transforms

std::string Order(GpMatrixOrder order) {
    return order == MatrixOrderPrepend ? "" : " append";
}

void RecordTransforms() {
    Recorder<GdipTranslateWorldTransform>::Install(
        [](GpGraphics*, REAL dx, REAL dy, GpMatrixOrder order) {
            return TranslateWorld(dx, dy) + Order(order);
        });
    Recorder<GdipRotateWorldTransform>::Install(
        [](GpGraphics*, REAL angle, GpMatrixOrder order) {
            return RotateWorld(angle) + Order(order);
        });
    Recorder<GdipResetWorldTransform>::Install();
    Recorder<GdipCreateMatrix>::Install();
    Delete<GdipDeleteMatrix>();
    Recorder<GdipTranslateMatrix>::Install(
        [](GpMatrix*, REAL dx, REAL dy, GpMatrixOrder order) {
            return "GdipTranslateMatrix " + Number(dx) + " " + Number(dy) + Order(order);
        });
    Recorder<GdipRotateMatrix>::Install([](GpMatrix*, REAL angle, GpMatrixOrder order) {
        return "GdipRotateMatrix " + Number(angle) + Order(order);
    });
}

// Texts

std::string LookOfFont(const GpFontFamily* family, REAL emSize, INT style, Unit unit) {
    return FontLook(ThisThread().Of(family).content, emSize, style, unit);
}

void RecordTexts() {
    Recorder<GdipCreateFontFamilyFromName>::Install(
        [](const FlatChar* name, GpFontCollection*, GpFontFamily**) {
            return "GdipCreateFontFamilyFromName " + Quoted(Utf8(name, -1));
        },
        [](const FlatChar* name, GpFontCollection*, GpFontFamily** family) {
            Known(*family).content = Utf8(name, -1);
            Known(*family).look = "family[" + Quoted(Utf8(name, -1)) + "]";
        },
        [](const FlatChar* name, GpFontCollection*, GpFontFamily**) {
            return name[0] == 0 ? FontFamilyNotFound : Ok;
        });
    Delete<GdipDeleteFontFamily>();
    Recorder<GdipCreateFont>::Install(
        [](const GpFontFamily* family, REAL emSize, INT style, Unit unit, GpFont**) {
            return "GdipCreateFont " + LookOfFont(family, emSize, style, unit);
        },
        [](const GpFontFamily* family, REAL emSize, INT style, Unit unit, GpFont** font) {
            Known(*font).size = emSize;
            Known(*font).style = style;
            Known(*font).look = LookOfFont(family, emSize, style, unit);
        },
        [](const GpFontFamily* family, REAL emSize, INT, Unit, GpFont**) {
            return family != nullptr && emSize > 0.0f ? Ok : InvalidParameter;
        });
    Delete<GdipDeleteFont>();
    Recorder<GdipGetFontSize>::Install(
        [](GpFont* font, REAL*) { return "GdipGetFontSize " + LookOf(font); }, nullptr,
        [](GpFont* font, REAL* size) {
            *size = font == nullptr ? *size : ThisThread().Of(font).size;
            return flat_calls::NeedAll(font);
        });
    Recorder<GdipGetFontStyle>::Install(
        [](GpFont* font, INT*) { return "GdipGetFontStyle " + LookOf(font); }, nullptr,
        [](GpFont* font, INT* style) {
            *style = font == nullptr ? *style : ThisThread().Of(font).style;
            return flat_calls::NeedAll(font);
        });
    Recorder<GdipCreateStringFormat>::Install(
        [](INT flags, LANGID language, GpStringFormat**) {
            return Words("GdipCreateStringFormat", flags, language);
        },
        [](INT flags, LANGID, GpStringFormat** format) {
            Known(*format).style = flags;
            Known(*format).look = FormatLook(flags, 0);
        });
    Recorder<GdipSetStringFormatAlign>::Install(
        [](GpStringFormat*, StringAlignment alignment) {
            return Words("GdipSetStringFormatAlign", alignment);
        },
        [](GpStringFormat* format, StringAlignment alignment) {
            Known(format).look = FormatLook(Known(format).style, alignment);
        });
    Delete<GdipDeleteStringFormat>();
    Recorder<GdipDrawString>::Install(
        [](GpGraphics*, const FlatChar* text, INT length, const GpFont* font,
           const GpRectF* layout, const GpStringFormat* format, const GpBrush* brush) {
            return DrawString(Utf8(text, length), LookOf(font), layout->X, layout->Y,
                              LookOf(brush), layout->Width, layout->Height,
                              LookOf(format));
        });
}

// Paths

std::string TextContent(const FlatChar* text, INT length, const GpFontFamily* family,
                        REAL emSize) {
    return Quoted(Utf8(text, length)) + " " + Quoted(ThisThread().Of(family).content) +
           " " + Number(emSize);
}

std::vector<Point> All(const GpPoint* points, INT count) {
    return {points, points + (count > 0 ? count : 0)};
}

/// Adds to the content of a path, and with it to its look.
void Add(const GpPath* path, const std::string& content) {
    Object& object = Known(path);
    object.content += (object.content.empty() ? "" : ", ") + content;
    object.look = "path[" + object.content + "]";
}

/// Answers the bounds that the test wants, if it wants any.
void Script(const GpPath* path, GpRect* bounds) {
    Session& session = ThisThread();
    if (!session.active) {
        return;
    }
    if (session.boundsOf) {
        *bounds = session.boundsOf(session.Of(path).content);
    } else if (!session.bounds.empty()) {
        *bounds = session.bounds[session.nextBounds];
        session.nextBounds += session.nextBounds + 1 < session.bounds.size() ? 1 : 0;
    }
}

void RecordPaths() {
    Recorder<GdipCreatePath>::Install(
        [](GpFillMode mode, GpPath**) { return Words("GdipCreatePath", mode); },
        [](GpFillMode, GpPath** path) { Known(*path).look = "path[]"; });
    Delete<GdipDeletePath>();
    Recorder<GdipResetPath>::Install(nullptr, [](GpPath* path) {
        Known(path).content.clear();
        Known(path).look = "path[]";
    });
    Recorder<GdipAddPathString>::Install(
        [](GpPath*, const FlatChar* text, INT length, const GpFontFamily* family,
           INT style, REAL emSize, const GpRectF* layout, const GpStringFormat* format) {
            return "GdipAddPathString " + TextContent(text, length, family, emSize) +
                   Words(" style", style) + " at " + Number(layout->X) + " " +
                   Number(layout->Y) + " " + Number(layout->Width) + " " +
                   Number(layout->Height) + " " + LookOf(format);
        },
        [](GpPath* path, const FlatChar* text, INT length, const GpFontFamily* family,
           INT, REAL emSize, const GpRectF*, const GpStringFormat*) {
            Add(path, TextContent(text, length, family, emSize));
        });
    Recorder<GdipAddPathRectangleI>::Install(
        [](GpPath*, INT x, INT y, INT width, INT height) {
            return Words("GdipAddPathRectangleI rectangle", x, y, width, height);
        },
        [](GpPath* path, INT x, INT y, INT width, INT height) {
            Add(path, Words("rectangle", x, y, width, height));
        });
    Recorder<GdipAddPathLine2I>::Install(
        [](GpPath*, const GpPoint* points, INT count) {
            return "GdipAddPathLine2I " + LinesPath(All(points, count));
        },
        [](GpPath* path, const GpPoint* points, INT count) {
            const std::string look = LinesPath(All(points, count));
            Add(path, look.substr(5, look.size() - 6));
        });
    Recorder<GdipTransformPath>::Install(
        [](GpPath* path, GpMatrix*) { return "GdipTransformPath " + LookOf(path); });
    Recorder<GdipGetPathWorldBoundsI>::Install(
        [](GpPath* path, GpRect*, const GpMatrix* matrix, const GpPen* pen) {
            return "GdipGetPathWorldBoundsI " + LookOf(path) +
                   (matrix == nullptr ? "" : " matrix") + (pen == nullptr ? "" : " pen");
        },
        [](GpPath* path, GpRect* bounds, const GpMatrix*, const GpPen*) {
            Script(path, bounds);
        });
    Recorder<GdipDrawPath>::Install([](GpGraphics*, GpPen* pen, GpPath* path) {
        return DrawPath(LookOf(pen), LookOf(path));
    });
}

// Pens, caps and brushes

void Refresh(Object& pen) { pen.look = PenLook(pen.color, pen.size, pen.style, pen.cap); }

void RecordPensAndBrushes() {
    Recorder<GdipCreatePen1>::Install(
        [](ARGB color, REAL width, GpUnit unit, GpPen**) {
            return "GdipCreatePen1 " + Hex(color) + " " + Number(width) +
                   Words(" unit", unit);
        },
        [](ARGB color, REAL width, GpUnit, GpPen** pen) {
            Known(*pen).color = color;
            Known(*pen).size = width;
            Refresh(Known(*pen));
        });
    Delete<GdipDeletePen>();
    Recorder<GdipSetPenColor>::Install(
        [](GpPen*, ARGB color) { return "GdipSetPenColor " + Hex(color); },
        [](GpPen* pen, ARGB color) {
            Known(pen).color = color;
            Refresh(Known(pen));
        });
    Recorder<GdipSetPenDashStyle>::Install(
        [](GpPen*, GpDashStyle style) { return Words("GdipSetPenDashStyle", style); },
        [](GpPen* pen, GpDashStyle style) {
            Known(pen).style = style;
            Refresh(Known(pen));
        });
    Recorder<GdipSetPenCustomEndCap>::Install(
        [](GpPen*, GpCustomLineCap* cap) {
            return "GdipSetPenCustomEndCap " + LookOf(cap);
        },
        [](GpPen* pen, GpCustomLineCap* cap) {
            Known(pen).cap = LookOf(cap);
            Refresh(Known(pen));
        });
    Recorder<GdipCreateAdjustableArrowCap>::Install(
        [](REAL height, REAL width, BOOL filled, GpAdjustableArrowCap**) {
            return "GdipCreateAdjustableArrowCap " +
                   ArrowCapLook(height, width, filled != 0);
        },
        [](REAL height, REAL width, BOOL filled, GpAdjustableArrowCap** cap) {
            Known(*cap).look = ArrowCapLook(height, width, filled != 0);
        });
    Delete<GdipDeleteCustomLineCap>();
    Recorder<GdipCreateSolidFill>::Install(
        [](ARGB color, GpSolidFill**) { return "GdipCreateSolidFill " + Hex(color); },
        [](ARGB color, GpSolidFill** brush) { Known(*brush).look = BrushLook(color); });
    Recorder<GdipSetSolidFillColor>::Install(
        [](GpSolidFill*, ARGB color) { return "GdipSetSolidFillColor " + Hex(color); },
        [](GpSolidFill* brush, ARGB color) { Known(brush).look = BrushLook(color); });
    Delete<GdipDeleteBrush>();
}

// Shapes

void RecordShapes() {
    Recorder<GdipDrawLineI>::Install(
        [](GpGraphics*, GpPen* pen, INT x1, INT y1, INT x2, INT y2) {
            return DrawLine(LookOf(pen), x1, y1, x2, y2);
        });
    Recorder<GdipDrawRectangleI>::Install(
        [](GpGraphics*, GpPen* pen, INT x, INT y, INT width, INT height) {
            return DrawRectangle(LookOf(pen), x, y, width, height);
        });
    Recorder<GdipDrawPolygonI>::Install(
        [](GpGraphics*, GpPen* pen, const GpPoint* points, INT count) {
            return DrawPolygon(LookOf(pen), All(points, count));
        });
    Recorder<GdipFillRectangle>::Install(
        [](GpGraphics*, GpBrush* brush, REAL x, REAL y, REAL width, REAL height) {
            return FillRectangle(LookOf(brush), x, y, width, height);
        });
    Recorder<GdipFillRectangleI>::Install(
        [](GpGraphics*, GpBrush* brush, INT x, INT y, INT width, INT height) {
            return FillRectangleI(LookOf(brush), x, y, width, height);
        });
    Recorder<GdipFillPolygonI>::Install([](GpGraphics*, GpBrush* brush,
                                           const GpPoint* points, INT count,
                                           GpFillMode mode) {
        return FillPolygon(LookOf(brush), All(points, count), mode);
    });
}

// Images

void RecordImages() {
    Recorder<GdipLoadImageFromFile>::Install(
        [](const FlatChar* file, GpImage**) {
            return "GdipLoadImageFromFile " + Quoted(Utf8(file, -1));
        },
        [](const FlatChar* file, GpImage** image) {
            Known(*image).look = "image[" + Quoted(Utf8(file, -1)) + "]";
        });
    Delete<GdipDisposeImage>();
    Recorder<GdipGetImageWidth>::Install(nullptr, [](GpImage*, UINT* width) {
        const Session& session = ThisThread();
        *width = session.active && session.imageSize ? session.imageSize->first : *width;
    });
    Recorder<GdipGetImageHeight>::Install(nullptr, [](GpImage*, UINT* height) {
        const Session& session = ThisThread();
        *height =
            session.active && session.imageSize ? session.imageSize->second : *height;
    });
    // Asked by the binding outside Windows of an image that it has loaded, not by the
    // library: it leaves no trace. A token has no format.
    flat_calls::Flat<GdipGetImagePixelFormat>::now = [](GpImage* image,
                                                        PixelFormat* format) {
        return ThisThread().Of(image).token != nullptr
                   ? NotImplemented
                   : flat_calls::Flat<GdipGetImagePixelFormat>::System(image, format);
    };
    Recorder<GdipDrawImageRectI>::Install(
        [](GpGraphics*, GpImage* image, INT x, INT y, INT width, INT height) {
            return DrawImage(LookOf(image), x, y, width, height);
        });
}

[[maybe_unused]] const bool g_installed = [] {
    RecordTransforms();
    RecordTexts();
    RecordPaths();
    RecordPensAndBrushes();
    RecordShapes();
    RecordImages();
    return true;
}();

}  // namespace
}  // namespace recording
