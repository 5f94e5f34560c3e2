#include "cairo/brush.h"

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;

GpStatus GdipCreateSolidFill(ARGB color, GpSolidFill** brush) {
    return engine::Make(brush, true, [&] {
        auto* made = new engine::Brush;
        made->color = color;
        return made;
    });
}

GpStatus GdipSetSolidFillColor(GpSolidFill* brush, ARGB color) {
    return engine::Set(From(brush), true, [&](auto& b) { b.color = color; });
}

GpStatus GdipGetSolidFillColor(GpSolidFill* brush, ARGB* color) {
    return engine::Tell(From(brush), color, [](auto& b) { return b.color; });
}

GpStatus GdipDeleteBrush(GpBrush* brush) { return engine::Delete(From(brush)); }

}  // extern "C"
}  // namespace Gdiplus::DllExports
