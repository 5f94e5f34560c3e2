#include "binding/flat_spy.h"

#include <gdiplus.h>

#include "recording/flat_calls.h"

namespace {

using namespace Gdiplus;
using namespace Gdiplus::DllExports;
using flat_calls::Flat;

void Watch(const char16_t* text, int length) {
    flat_spy::Text& last = flat_spy::Last();
    ++last.calls;
    last.null = text == nullptr;
    last.length = length;
    last.text = text == nullptr ? std::u16string()
                                : std::u16string(text, static_cast<std::size_t>(length));
}

/// A function whose text stands behind what it draws on, with its length.
template <auto function>
void WatchText() {
    Flat<function>::now = [](auto* surface, const FlatChar* text, INT length,
                             auto... rest) {
        Watch(text, length);
        return Flat<function>::System(surface, text, length, rest...);
    };
}

void WatchName(const char16_t* name) {
    Watch(name, name == nullptr ? 0 : static_cast<int>(std::u16string(name).size()));
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
    return true;
}();

}  // namespace

flat_spy::Text& flat_spy::Last() {
    thread_local Text last;
    return last;
}

void flat_spy::Clear() { Last() = Text(); }
