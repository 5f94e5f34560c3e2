#pragma once

#include "gdiplus/flat.h"
#include "gdiplus/text.h"

namespace Gdiplus {

/// A set of font families. None can be made here: null stands for the system's fonts.
class FontCollection {
public:
    GpFontCollection* NativeObject() const { return nullptr; }

private:
    FontCollection() = default;
};

/// A family of fonts, by name. libgdiplus answers an unknown name with a substitute,
/// where the SDK's GDI+ fails with FontFamilyNotFound.
class FontFamily : public detail::StatusKeeper {
public:
    FontFamily() = default;
    explicit FontFamily(const WCHAR* name, const FontCollection* collection = nullptr) {
        const detail::Utf16Text text(name);
        SetStatus(text.GetStatus() != Ok
                      ? text.GetStatus()
                      : DllExports::GdipCreateFontFamilyFromName(
                            text.Text(), detail::Native(collection), &native_));
    }
    ~FontFamily() { DllExports::GdipDeleteFontFamily(native_); }

    BOOL IsAvailable() const { return native_ != nullptr; }

    GpFontFamily* NativeObject() const { return native_; }

private:
    GpFontFamily* native_ = nullptr;
};

/// A font of a family: em size in the given unit, style flags of FontStyle.
class Font : public detail::StatusKeeper {
public:
    Font(const FontFamily* family, REAL emSize, INT style = FontStyleRegular,
         Unit unit = UnitPoint) {
        SetStatus(DllExports::GdipCreateFont(detail::Native(family), emSize, style, unit,
                                             &native_));
    }
    ~Font() { DllExports::GdipDeleteFont(native_); }

    REAL GetSize() const {
        REAL size = 0.0f;
        SetStatus(DllExports::GdipGetFontSize(native_, &size));
        return size;
    }
    INT GetStyle() const {
        INT style = 0;
        SetStatus(DllExports::GdipGetFontStyle(native_, &style));
        return style;
    }
    BOOL IsAvailable() const { return native_ != nullptr; }

    GpFont* NativeObject() const { return native_; }

private:
    GpFont* native_ = nullptr;
};

/// How a text is laid out in its rectangle.
class StringFormat : public detail::StatusKeeper {
public:
    explicit StringFormat(INT flags = 0, LANGID language = 0) {
        SetStatus(DllExports::GdipCreateStringFormat(flags, language, &native_));
    }
    ~StringFormat() { DllExports::GdipDeleteStringFormat(native_); }

    Status SetAlignment(StringAlignment alignment) {
        return SetStatus(DllExports::GdipSetStringFormatAlign(native_, alignment));
    }

    GpStringFormat* NativeObject() const { return native_; }

private:
    GpStringFormat* native_ = nullptr;
};

}  // namespace Gdiplus
