#include "libgdiplus/flat_spy.h"

#include <gdiplus.h>

#include "flat_lookup/flat_lookup.h"

namespace {

template <typename Function>
Function Real(const char* name) {
    return reinterpret_cast<Function>(map_surround::FlatFunction(name));
}

void Watch(const char16_t* text, int length, const void* surface) {
    flat_spy::Text& last = flat_spy::Last();
    ++last.calls;
    last.null = text == nullptr;
    last.length = length;
    last.text = text == nullptr ? std::u16string()
                                : std::u16string(text, static_cast<std::size_t>(length));
    last.surface = surface != nullptr;
}

void WatchName(const char16_t* name) {
    Watch(name, name == nullptr ? 0 : static_cast<int>(std::u16string(name).size()),
          nullptr);
}

}  // namespace

flat_spy::Text& flat_spy::Last() {
    static Text last;
    return last;
}

flat_spy::Palette& flat_spy::Palettes() {
    static Palette palettes;
    return palettes;
}

void flat_spy::Clear() {
    Last() = Text();
    Palettes() = Palette();
}

namespace Gdiplus {
namespace DllExports {
extern "C" {

GpStatus GdipDrawString(GpGraphics* graphics, const FlatChar* text, INT length,
                        const GpFont* font, const GpRectF* layout,
                        const GpStringFormat* format, const GpBrush* brush) {
    Watch(text, length, graphics);
    return Real<decltype(&GdipDrawString)>("GdipDrawString")(graphics, text, length, font,
                                                             layout, format, brush);
}

GpStatus GdipMeasureString(GpGraphics* graphics, const FlatChar* text, INT length,
                           const GpFont* font, const GpRectF* layout,
                           const GpStringFormat* format, GpRectF* bounds,
                           INT* codepointsFitted, INT* linesFilled) {
    Watch(text, length, graphics);
    return Real<decltype(&GdipMeasureString)>("GdipMeasureString")(
        graphics, text, length, font, layout, format, bounds, codepointsFitted,
        linesFilled);
}

GpStatus GdipAddPathString(GpPath* path, const FlatChar* text, INT length,
                           const GpFontFamily* family, INT style, REAL emSize,
                           const GpRectF* layout, const GpStringFormat* format) {
    Watch(text, length, path);
    return Real<decltype(&GdipAddPathString)>("GdipAddPathString")(
        path, text, length, family, style, emSize, layout, format);
}

GpStatus GdipCreateFontFamilyFromName(const FlatChar* name, GpFontCollection* collection,
                                      GpFontFamily** family) {
    WatchName(name);
    return Real<decltype(&GdipCreateFontFamilyFromName)>("GdipCreateFontFamilyFromName")(
        name, collection, family);
}

GpStatus GdipLoadImageFromFile(const FlatChar* file, GpImage** image) {
    WatchName(file);
    return Real<decltype(&GdipLoadImageFromFile)>("GdipLoadImageFromFile")(file, image);
}

GpStatus GdipSaveImageToFile(GpImage* image, const FlatChar* file, const CLSID* encoder,
                             const EncoderParameters* parameters) {
    WatchName(file);
    return Real<decltype(&GdipSaveImageToFile)>("GdipSaveImageToFile")(
        image, file, encoder, parameters);
}

GpStatus GdipGetImagePaletteSize(GpImage* image, INT* bytes) {
    if (flat_spy::Palettes().sizeStatus != Ok) {
        return flat_spy::Palettes().sizeStatus;
    }
    const GpStatus status =
        Real<decltype(&GdipGetImagePaletteSize)>("GdipGetImagePaletteSize")(image, bytes);
    *bytes += flat_spy::Palettes().moreBytes;
    return status;
}

GpStatus GdipGetImagePalette(GpImage* image, FlatPalette* palette, INT bytes) {
    if (flat_spy::Palettes().status != Ok) {
        return flat_spy::Palettes().status;
    }
    return Real<decltype(&GdipGetImagePalette)>("GdipGetImagePalette")(image, palette,
                                                                       bytes);
}

GpStatus GdipSetImagePalette(GpImage* image, const FlatPalette* palette) {
    ++flat_spy::Palettes().sets;
    return Real<decltype(&GdipSetImagePalette)>("GdipSetImagePalette")(image, palette);
}

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
