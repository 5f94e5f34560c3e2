#include "cairo/text/font.h"

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;
using engine::Set;
using engine::Tell;

GpStatus GdipCreateStringFormat(INT flags, LANGID language, GpStringFormat** format) {
    return engine::Make(format, true, [&] {
        auto* made = new engine::StringFormat;
        made->flags = flags;
        made->language = language;
        return made;
    });
}

GpStatus GdipDeleteStringFormat(GpStringFormat* format) {
    return engine::Delete(From(format));
}

GpStatus GdipSetStringFormatAlign(GpStringFormat* format, StringAlignment alignment) {
    return Set(From(format), engine::IsUpTo(alignment, StringAlignmentFar),
               [&](auto& f) { f.alignment = alignment; });
}

GpStatus GdipGetStringFormatAlign(GpStringFormat* format, StringAlignment* alignment) {
    return Tell(From(format), alignment, [](auto& f) { return f.alignment; });
}

GpStatus GdipSetStringFormatLineAlign(GpStringFormat* format, StringAlignment alignment) {
    return Set(From(format), engine::IsUpTo(alignment, StringAlignmentFar),
               [&](auto& f) { f.lineAlignment = alignment; });
}

GpStatus GdipGetStringFormatLineAlign(GpStringFormat* format,
                                      StringAlignment* alignment) {
    return Tell(From(format), alignment, [](auto& f) { return f.lineAlignment; });
}

GpStatus GdipSetStringFormatFlags(GpStringFormat* format, INT flags) {
    return Set(From(format), true, [&](auto& f) { f.flags = flags; });
}

GpStatus GdipGetStringFormatFlags(GpStringFormat* format, INT* flags) {
    return Tell(From(format), flags, [](auto& f) { return f.flags; });
}

GpStatus GdipSetStringFormatTrimming(GpStringFormat* format, StringTrimming trimming) {
    return Set(From(format), engine::IsUpTo(trimming, StringTrimmingEllipsisPath),
               [&](auto& f) { f.trimming = trimming; });
}

GpStatus GdipGetStringFormatTrimming(GpStringFormat* format, StringTrimming* trimming) {
    return Tell(From(format), trimming, [](auto& f) { return f.trimming; });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
