#include "binding/flat_spy.h"

#include <gdiplus.h>

#include "recording/flat_calls.h"

namespace {

using namespace Gdiplus;
using namespace Gdiplus::DllExports;
using flat_calls::Flat;

void Watch(const char16_t* text, int length, const void* surface) {
    flat_spy::Text& last = flat_spy::Last();
    ++last.calls;
    last.null = text == nullptr;
    last.length = length;
    last.text = text == nullptr ? std::u16string()
                                : std::u16string(text, static_cast<std::size_t>(length));
    last.surface = surface != nullptr;
}

/// A function whose text stands behind what it draws on, with its length.
template <auto function>
void WatchText() {
    Flat<function>::now = [](auto* surface, const FlatChar* text, INT length,
                             auto... rest) {
        Watch(text, length, surface);
        return Flat<function>::System(surface, text, length, rest...);
    };
}

void WatchName(const char16_t* name) {
    Watch(name, name == nullptr ? 0 : static_cast<int>(std::u16string(name).size()),
          nullptr);
}

[[maybe_unused]] const bool g_watches = [] {
    WatchText<GdipDrawString>();
    WatchText<GdipMeasureString>();
    WatchText<GdipAddPathString>();
    Flat<GdipCreateFontFamilyFromName>::now =
        [](const FlatChar* name, GpFontCollection* collection, GpFontFamily** family) {
            WatchName(name);
            return Flat<GdipCreateFontFamilyFromName>::System(name, collection, family);
        };
    Flat<GdipLoadImageFromFile>::now = [](const FlatChar* file, GpImage** image) {
        WatchName(file);
        return Flat<GdipLoadImageFromFile>::System(file, image);
    };
    Flat<GdipSaveImageToFile>::now = [](GpImage* image, const FlatChar* file,
                                        const CLSID* encoder,
                                        const EncoderParameters* parameters) {
        WatchName(file);
        return Flat<GdipSaveImageToFile>::System(image, file, encoder, parameters);
    };
    Flat<GdipGetImagePaletteSize>::now = [](GpImage* image, INT* bytes) {
        const flat_spy::Palette& palettes = flat_spy::Palettes();
        if (palettes.sizeStatus != Ok) {
            return palettes.sizeStatus;
        }
        const GpStatus status = Flat<GdipGetImagePaletteSize>::System(image, bytes);
        *bytes += palettes.moreBytes;
        return status;
    };
    Flat<GdipGetImagePalette>::now = [](GpImage* image, FlatPalette* palette, INT bytes) {
        const GpStatus status = flat_spy::Palettes().status;
        return status != Ok ? status
                            : Flat<GdipGetImagePalette>::System(image, palette, bytes);
    };
    Flat<GdipSetImagePalette>::now = [](GpImage* image, const FlatPalette* palette) {
        ++flat_spy::Palettes().sets;
        return Flat<GdipSetImagePalette>::System(image, palette);
    };
    return true;
}();

}  // namespace

flat_spy::Text& flat_spy::Last() {
    thread_local Text last;
    return last;
}

flat_spy::Palette& flat_spy::Palettes() {
    thread_local Palette palettes;
    return palettes;
}

void flat_spy::Clear() {
    Last() = Text();
    Palettes() = Palette();
}
