#pragma once

#include "gdiplus/flat.h"
#include "gdiplus/object.h"

namespace Gdiplus {

/// How a text is laid out in its rectangle: from its near corner, unless aligned
/// otherwise along the line (Alignment) or across the lines (LineAlignment).
class StringFormat : public detail::StatusKeeper {
public:
    /// A format with no more than the flags of StringFormatFlags.
    StringFormat(INT flags = 0, LANGID language = 0) {
        SetStatus(DllExports::GdipCreateStringFormat(flags, language, &native_));
    }
    ~StringFormat() { DllExports::GdipDeleteStringFormat(native_); }

    /// Where a line, and where all lines, stand in the rectangle.
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

    /// Flags of StringFormatFlags.
    Status SetFormatFlags(INT flags) {
        return SetStatus(DllExports::GdipSetStringFormatFlags(native_, flags));
    }
    INT GetFormatFlags() const {
        return Query(DllExports::GdipGetStringFormatFlags, native_);
    }
    /// What ends a text that is cut off.
    Status SetTrimming(StringTrimming trimming) {
        return SetStatus(DllExports::GdipSetStringFormatTrimming(native_, trimming));
    }
    StringTrimming GetTrimming() const {
        return Query(DllExports::GdipGetStringFormatTrimming, native_);
    }

    /// The object behind, for the flat functions; null where none could be made.
    GpStringFormat* NativeObject() const { return native_; }

private:
    GpStringFormat* native_ = nullptr;
};

}  // namespace Gdiplus
