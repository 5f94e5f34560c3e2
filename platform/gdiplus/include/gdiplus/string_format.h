#pragma once

#include "gdiplus/flat.h"
#include "gdiplus/object.h"

namespace Gdiplus {

/// How text is laid out in its rectangle: from the near corner, unless aligned otherwise
/// along the line (Alignment) or across lines (LineAlignment).
class StringFormat : public detail::StatusKeeper {
public:
    /// A format with the given StringFormatFlags.
    StringFormat(INT flags = 0, LANGID language = 0) {
        SetStatus(DllExports::GdipCreateStringFormat(flags, language, &native_));
    }
    ~StringFormat() { DllExports::GdipDeleteStringFormat(native_); }

    /// Where each line, and the block of lines, goes in the rectangle.
    Status SetAlignment(StringAlignment alignment) {
        return SetStatus(DllExports::GdipSetStringFormatAlign(native_, alignment));
    }
    StringAlignment GetAlignment() const {
        return Query(DllExports::GdipGetStringFormatAlign, native_);
    }
    Status SetLineAlignment(StringAlignment alignment) {
        return SetStatus(DllExports::GdipSetStringFormatLineAlign(native_, alignment));
    }
    StringAlignment GetLineAlignment() const {
        return Query(DllExports::GdipGetStringFormatLineAlign, native_);
    }

    /// StringFormatFlags.
    Status SetFormatFlags(INT flags) {
        return SetStatus(DllExports::GdipSetStringFormatFlags(native_, flags));
    }
    INT GetFormatFlags() const {
        return Query(DllExports::GdipGetStringFormatFlags, native_);
    }
    /// How text that does not fit is cut.
    Status SetTrimming(StringTrimming trimming) {
        return SetStatus(DllExports::GdipSetStringFormatTrimming(native_, trimming));
    }
    StringTrimming GetTrimming() const {
        return Query(DllExports::GdipGetStringFormatTrimming, native_);
    }

    /// The native object, for the flat functions; null if creation failed.
    GpStringFormat* NativeObject() const { return native_; }

private:
    GpStringFormat* native_ = nullptr;
};

}  // namespace Gdiplus
