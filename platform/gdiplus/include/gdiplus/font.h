#pragma once

#include "gdiplus/object.h"
#include "gdiplus/text.h"

namespace Gdiplus {

namespace detail {

/// Whether libgdiplus can draw text of an em size, in pixels, which FreeType counts in 16
/// bits. One that is larger, or no number, must not reach it: FreeType gives up on the
/// font for good, so that no text in it is drawn any more wherever in the process, Pango
/// complains on standard error, and some sizes leave a surface that draws nothing more.
inline bool CanCarry(REAL emSize) { return emSize >= -65535.0f && emSize <= 65535.0f; }

inline REAL PixelsPer(Unit unit) {
    switch (unit) {
        case UnitPoint:
            return 96.0f / 72.0f;
        case UnitInch:
            return 96.0f;
        case UnitDocument:
            return 96.0f / 300.0f;
        case UnitMillimeter:
            return 96.0f / 25.4f;
        default:
            return 1.0f;
    }
}

}  // namespace detail

/// A set of font families. None can be made here: null stands for the system's fonts.
class FontCollection {
    FontCollection() = default;
};

/// A family of fonts, by name. libgdiplus answers an unknown name with a substitute,
/// where the SDK's GDI+ fails with FontFamilyNotFound.
class FontFamily : public detail::StatusKeeper {
public:
    FontFamily() = default;
    /// A family by its name, which must not be empty.
    FontFamily(const WCHAR* name, const FontCollection* = nullptr) {
        const detail::Utf16Text text(name);
        SetStatus(text.GetStatus() != Ok ? text.GetStatus()
                                         : DllExports::GdipCreateFontFamilyFromName(
                                               text.Text(), nullptr, &native_));
    }
    ~FontFamily() { DllExports::GdipDeleteFontFamily(native_); }

    /// Whether a family was found.
    BOOL IsAvailable() const { return native_ != nullptr; }

    /// The name of the family that was found, into room for LF_FACESIZE (32) characters.
    Status GetFamilyName(WCHAR* name, LANGID language = 0) const {
        if (name == nullptr) {
            return SetStatus(InvalidParameter);
        }
        FlatChar found[kRoom] = {};
        const Status status =
            SetStatus(DllExports::GdipGetFamilyName(native_, found, language));
        found[kRoom - 1] = 0;
        detail::WriteWide(found, name, 32);
        return status;
    }

    /// In the font's own design units, of which the em has GetEmHeight.
    UINT16 GetEmHeight(INT style) const {
        return Metric(DllExports::GdipGetEmHeight, style);
    }
    UINT16 GetCellAscent(INT style) const {
        return Metric(DllExports::GdipGetCellAscent, style);
    }
    UINT16 GetCellDescent(INT style) const {
        return Metric(DllExports::GdipGetCellDescent, style);
    }
    UINT16 GetLineSpacing(INT style) const {
        return Metric(DllExports::GdipGetLineSpacing, style);
    }
    /// Whether the family has a style, of FontStyle.
    BOOL IsStyleAvailable(INT style) const {
        return Metric(DllExports::GdipIsStyleAvailable, style);
    }

    /// The object behind, for the flat functions; null where none could be made.
    GpFontFamily* NativeObject() const { return native_; }

private:
    friend class Font;

    static constexpr int kRoom = 256;

    template <typename Value>
    Value Metric(Status (*flat)(const GpFontFamily*, INT, Value*), INT style) const {
        Value value = 0;
        SetStatus(flat(native_, style, &value));
        return value;
    }

    GpFontFamily* native_ = nullptr;
};

/// A font of a family: em size in the given unit, style flags of FontStyle.
class Font : public detail::StatusKeeper {
public:
    /// A font of a family, or of the family of a name. The em size must be positive.
    Font(const FontFamily* family, REAL emSize, INT style = FontStyleRegular,
         Unit unit = UnitPoint)
        : drawable_(detail::CanCarry(emSize * detail::PixelsPer(unit))) {
        SetStatus(DllExports::GdipCreateFont(detail::Native(family), emSize, style, unit,
                                             &native_));
    }
    Font(const WCHAR* familyName, REAL emSize, INT style = FontStyleRegular,
         Unit unit = UnitPoint, const FontCollection* collection = nullptr)
        : drawable_(detail::CanCarry(emSize * detail::PixelsPer(unit))) {
        const FontFamily family(familyName, collection);
        SetStatus(family.GetLastStatus());
        SetStatus(DllExports::GdipCreateFont(family.NativeObject(), emSize, style, unit,
                                             &native_));
    }
    ~Font() { DllExports::GdipDeleteFont(native_); }

    /// As the font was made; 0 where none could be.
    REAL GetSize() const { return Query(DllExports::GdipGetFontSize, native_); }
    INT GetStyle() const { return Query(DllExports::GdipGetFontStyle, native_); }
    Unit GetUnit() const { return Query(DllExports::GdipGetFontUnit, native_); }

    /// The spacing of lines in pixels at a resolution.
    REAL GetHeight(REAL dpi) const {
        REAL height = 0.0f;
        SetStatus(DllExports::GdipGetFontHeightGivenDPI(native_, dpi, &height));
        return height;
    }

    /// The family becomes the font's; what it was before is let go.
    Status GetFamily(FontFamily* family) const {
        if (family == nullptr) {
            return SetStatus(InvalidParameter);
        }
        GpFontFamily* native = nullptr;
        const Status status = SetStatus(DllExports::GdipGetFamily(native_, &native));
        if (family->native_ != nullptr) {
            DllExports::GdipDeleteFontFamily(family->native_);
        }
        family->native_ = native;
        return family->SetStatus(status);
    }
    BOOL IsAvailable() const { return native_ != nullptr; }

    /// The object behind, for the flat functions; null where none could be made.
    GpFont* NativeObject() const { return native_; }

private:
    friend class Graphics;

    GpFont* native_ = nullptr;
    bool drawable_;
};

}  // namespace Gdiplus
