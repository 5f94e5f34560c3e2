#include "flat_tokens.h"

#include <gdiplus.h>

#include <array>
#include <cmath>
#include <cstdlib>

namespace fuzz::flat {
namespace {

enum class Kind { Image, Graphics, Pen, Brush, Cap, Font, Family, Format, Path, Matrix };

struct Token {
    Kind kind;
    bool alive = false;
    Gdiplus::REAL size = 0.0f;  // a font's
    Gdiplus::INT style = 0;
};

// Handed out in turn, so that a deleted one is not another soon.
std::array<Token, 512> g_tokens;
std::size_t g_next = 0;
int g_alive = 0;

Input* g_input = nullptr;
int g_callsLeft = 0;
int g_callsToFailure = 0;
bool g_turned = false;
Gdiplus::UINT g_imageSides[2] = {};

constexpr int kMostCalls = 400;

constexpr Kind KindOf(const Gdiplus::GpImage*) { return Kind::Image; }
constexpr Kind KindOf(const Gdiplus::GpGraphics*) { return Kind::Graphics; }
constexpr Kind KindOf(const Gdiplus::GpPen*) { return Kind::Pen; }
constexpr Kind KindOf(const Gdiplus::GpBrush*) { return Kind::Brush; }
constexpr Kind KindOf(const Gdiplus::GpCustomLineCap*) { return Kind::Cap; }
constexpr Kind KindOf(const Gdiplus::GpFont*) { return Kind::Font; }
constexpr Kind KindOf(const Gdiplus::GpFontFamily*) { return Kind::Family; }
constexpr Kind KindOf(const Gdiplus::GpStringFormat*) { return Kind::Format; }
constexpr Kind KindOf(const Gdiplus::GpPath*) { return Kind::Path; }
constexpr Kind KindOf(const Gdiplus::GpMatrix*) { return Kind::Matrix; }

void Check(bool held) {
    if (!held) {
        std::abort();
    }
}

template <typename Native>
Token& TokenOf(const Native* native) {
    auto* const token = reinterpret_cast<Token*>(const_cast<Native*>(native));
    Check(token >= g_tokens.data() && token < g_tokens.data() + g_tokens.size());
    Check(token->alive && token->kind == KindOf(native));
    return *token;
}

/// Counts a call: whether it is carried out.
bool Enter() {
    if (g_input != nullptr && --g_callsLeft < 0) {
        throw EnoughDrawn();
    }
    return --g_callsToFailure != 0;
}

/// A call that needs these objects.
template <typename... Natives>
Gdiplus::GpStatus Use(const Natives*... natives) {
    if (!Enter()) {
        return Gdiplus::GenericError;
    }
    const bool all = (... && (natives != nullptr));
    ((natives == nullptr ? void() : void(TokenOf(natives))), ...);
    return all ? Gdiplus::Ok : Gdiplus::InvalidParameter;
}

template <typename Native>
Gdiplus::GpStatus Make(Native** native, Token look = {}) {
    if (!Enter()) {
        return Gdiplus::GenericError;
    }
    std::size_t tries = 0;
    while (g_tokens[g_next].alive) {
        Check(++tries < g_tokens.size());
        g_next = (g_next + 1) % g_tokens.size();
    }
    Token& token = g_tokens[g_next];
    g_next = (g_next + 1) % g_tokens.size();
    token = look;
    token.kind = KindOf(*native);
    token.alive = true;
    ++g_alive;
    *native = reinterpret_cast<Native*>(&token);
    return Gdiplus::Ok;
}

/// Never fails: a destructor is where nothing can be thrown.
template <typename Native>
Gdiplus::GpStatus Delete(const Native* native) {
    if (native == nullptr) {
        return Gdiplus::InvalidParameter;
    }
    TokenOf(native).alive = false;
    --g_alive;
    return Gdiplus::Ok;
}

}  // namespace

void Begin(Input& input) {
    g_input = &input;
    g_callsLeft = kMostCalls;
    g_callsToFailure = input.Choice(4) == 1 ? input.Choice(64) : 0;
    g_turned = false;
}

int LiveObjects() { return g_alive; }

bool IsTurned() { return g_turned; }

}  // namespace fuzz::flat

using namespace fuzz::flat;

namespace Gdiplus::DllExports {
extern "C" {

// The surface, made before there is an input.
GpStatus GdipCreateBitmapFromScan0(INT, INT, INT, PixelFormat, BYTE*, GpBitmap** bitmap) {
    return Make(bitmap);
}
GpStatus GdipGetImageGraphicsContext(GpImage*, GpGraphics** graphics) {
    return Make(graphics);
}
GpStatus GdipDeleteGraphics(GpGraphics* graphics) { return Delete(graphics); }

GpStatus GdipTranslateWorldTransform(GpGraphics* graphics, REAL dx, REAL dy,
                                     GpMatrixOrder) {
    Check(std::isfinite(dx) && std::isfinite(dy));
    g_turned = true;
    return Use(graphics);
}
GpStatus GdipRotateWorldTransform(GpGraphics* graphics, REAL angle, GpMatrixOrder) {
    Check(std::isfinite(angle));
    return Use(graphics);
}
GpStatus GdipResetWorldTransform(GpGraphics* graphics) {
    g_turned = false;
    return Use(graphics);
}

GpStatus GdipCreateMatrix(GpMatrix** matrix) { return Make(matrix); }
GpStatus GdipDeleteMatrix(GpMatrix* matrix) { return Delete(matrix); }
GpStatus GdipTranslateMatrix(GpMatrix* matrix, REAL dx, REAL dy, GpMatrixOrder) {
    Check(std::isfinite(dx) && std::isfinite(dy));
    return Use(matrix);
}
GpStatus GdipRotateMatrix(GpMatrix* matrix, REAL angle, GpMatrixOrder) {
    Check(std::isfinite(angle));
    return Use(matrix);
}

GpStatus GdipCreateFontFamilyFromName(const FlatChar* name, GpFontCollection*,
                                      GpFontFamily** family) {
    return name[0] == 0 ? FontFamilyNotFound : Make(family);
}
GpStatus GdipDeleteFontFamily(GpFontFamily* family) { return Delete(family); }
GpStatus GdipCreateFont(const GpFontFamily* family, REAL emSize, INT style, Unit,
                        GpFont** font) {
    if (family == nullptr || !(emSize > 0.0f)) {
        return InvalidParameter;
    }
    TokenOf(family);
    return Make(font, {Kind::Font, true, emSize, style});
}
GpStatus GdipDeleteFont(GpFont* font) { return Delete(font); }
GpStatus GdipGetFontSize(GpFont* font, REAL* size) {
    const GpStatus status = Use(font);
    if (status == Ok) {
        *size = TokenOf(font).size;
    }
    return status;
}
GpStatus GdipGetFontStyle(GpFont* font, INT* style) {
    const GpStatus status = Use(font);
    if (status == Ok) {
        *style = TokenOf(font).style;
    }
    return status;
}
GpStatus GdipCreateStringFormat(INT, LANGID, GpStringFormat** format) {
    return Make(format);
}
GpStatus GdipSetStringFormatAlign(GpStringFormat* format, StringAlignment) {
    return Use(format);
}
GpStatus GdipDeleteStringFormat(GpStringFormat* format) { return Delete(format); }

GpStatus GdipDrawString(GpGraphics* graphics, const FlatChar* text, INT length,
                        const GpFont* font, const GpRectF* layout, const GpStringFormat*,
                        const GpBrush* brush) {
    Check(text != nullptr && length >= 0 && text[length] == 0 && layout != nullptr);
    return Use(graphics, font, brush);
}

GpStatus GdipCreatePath(GpFillMode, GpPath** path) { return Make(path); }
GpStatus GdipDeletePath(GpPath* path) { return Delete(path); }
GpStatus GdipResetPath(GpPath* path) { return Use(path); }
GpStatus GdipAddPathString(GpPath* path, const FlatChar* text, INT length,
                           const GpFontFamily* family, INT, REAL, const GpRectF* layout,
                           const GpStringFormat* format) {
    Check(text != nullptr && length >= 0 && text[length] == 0 && layout != nullptr);
    return Use(path, family, format);
}
GpStatus GdipAddPathRectangleI(GpPath* path, INT, INT, INT, INT) { return Use(path); }
GpStatus GdipAddPathLine2I(GpPath* path, const GpPoint*, INT) { return Use(path); }
GpStatus GdipTransformPath(GpPath* path, GpMatrix* matrix) { return Use(path, matrix); }
GpStatus GdipGetPathWorldBoundsI(GpPath* path, GpRect* bounds, const GpMatrix*,
                                 const GpPen*) {
    const GpStatus status = Use(path);
    if (status == Ok) {
        bounds->X = g_input->Whole();
        bounds->Y = g_input->Whole();
        bounds->Width = g_input->Whole();
        bounds->Height = g_input->Whole();
    }
    return status;
}
GpStatus GdipDrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path) {
    return Use(graphics, pen, path);
}

GpStatus GdipCreatePen1(ARGB, REAL, GpUnit, GpPen** pen) { return Make(pen); }
GpStatus GdipDeletePen(GpPen* pen) { return Delete(pen); }
GpStatus GdipSetPenColor(GpPen* pen, ARGB) { return Use(pen); }
GpStatus GdipSetPenDashStyle(GpPen* pen, GpDashStyle) { return Use(pen); }
GpStatus GdipSetPenCustomEndCap(GpPen* pen, GpCustomLineCap* cap) {
    return Use(pen, cap);
}
GpStatus GdipCreateAdjustableArrowCap(REAL, REAL, BOOL, GpAdjustableArrowCap** cap) {
    return Make(cap);
}
GpStatus GdipDeleteCustomLineCap(GpCustomLineCap* cap) { return Delete(cap); }
GpStatus GdipCreateSolidFill(ARGB, GpSolidFill** brush) { return Make(brush); }
GpStatus GdipSetSolidFillColor(GpSolidFill* brush, ARGB) { return Use(brush); }
GpStatus GdipDeleteBrush(GpBrush* brush) { return Delete(brush); }

GpStatus GdipDrawLineI(GpGraphics* graphics, GpPen* pen, INT, INT, INT, INT) {
    return Use(graphics, pen);
}
GpStatus GdipDrawRectangleI(GpGraphics* graphics, GpPen* pen, INT, INT, INT, INT) {
    return Use(graphics, pen);
}
GpStatus GdipDrawPolygonI(GpGraphics* graphics, GpPen* pen, const GpPoint*, INT) {
    return Use(graphics, pen);
}
GpStatus GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL, REAL, REAL, REAL) {
    return Use(graphics, brush);
}
GpStatus GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT, INT, INT, INT) {
    return Use(graphics, brush);
}
GpStatus GdipFillPolygonI(GpGraphics* graphics, GpBrush* brush, const GpPoint*, INT,
                          GpFillMode) {
    return Use(graphics, brush);
}

GpStatus GdipLoadImageFromFile(const FlatChar* file, GpImage** image) {
    if (file[0] == 0) {
        return OutOfMemory;
    }
    g_imageSides[0] = static_cast<UINT>(g_input->Whole());
    g_imageSides[1] = static_cast<UINT>(g_input->Whole());
    return Make(image);
}
GpStatus GdipGetImagePixelFormat(GpImage* image, PixelFormat*) {
    TokenOf(image);
    return NotImplemented;
}
GpStatus GdipDisposeImage(GpImage* image) { return Delete(image); }
GpStatus GdipGetImageWidth(GpImage* image, UINT* width) {
    const GpStatus status = Use(image);
    if (status == Ok) {
        *width = g_imageSides[0];
    }
    return status;
}
GpStatus GdipGetImageHeight(GpImage* image, UINT* height) {
    const GpStatus status = Use(image);
    if (status == Ok) {
        *height = g_imageSides[1];
    }
    return status;
}
GpStatus GdipDrawImageRectI(GpGraphics* graphics, GpImage* image, INT, INT, INT, INT) {
    return Use(graphics, image);
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
