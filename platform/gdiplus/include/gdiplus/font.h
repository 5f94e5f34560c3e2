#pragma once

#include "gdiplus/object.h"
#include "gdiplus/text.h"

namespace Gdiplus {

/// A set of font families. It cannot be constructed here: null means the system's fonts.
class FontCollection {
    FontCollection() = default;
};

/// A font family, by name. For a missing family the status is FontFamilyNotFound; a
/// family for which Fontconfig has a substitute with the same metrics, such as Arial,
/// counts as found.
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

    /// The name of the family that was found, into a buffer of LF_FACESIZE (32)
    /// characters.
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

    /// In the font's design units, GetEmHeight of which make an em.
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
    /// Whether the family has a style (FontStyle).
    BOOL IsStyleAvailable(INT style) const {
        return Metric(DllExports::GdipIsStyleAvailable, style);
    }

    /// The native object, for the flat functions; null if creation failed.
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

/// A font of a family: an em size in the given unit and FontStyle flags.
class Font : public detail::StatusKeeper {
public:
    /// A font of a family, or of the family of a name. The em size must be positive.
    Font(const FontFamily* family, REAL emSize, INT style = FontStyleRegular,
         Unit unit = UnitPoint) {
        SetStatus(DllExports::GdipCreateFont(detail::Native(family), emSize, style, unit,
                                             &native_));
    }
    Font(const WCHAR* familyName, REAL emSize, INT style = FontStyleRegular,
         Unit unit = UnitPoint, const FontCollection* collection = nullptr) {
        const FontFamily family(familyName, collection);
        SetStatus(family.GetLastStatus());
        SetStatus(DllExports::GdipCreateFont(family.NativeObject(), emSize, style, unit,
                                             &native_));
    }
    ~Font() { DllExports::GdipDeleteFont(native_); }

    /// As given to the constructor; 0 if creation failed.
    REAL GetSize() const { return Query(DllExports::GdipGetFontSize, native_); }
    INT GetStyle() const { return Query(DllExports::GdipGetFontStyle, native_); }
    Unit GetUnit() const { return Query(DllExports::GdipGetFontUnit, native_); }

    /// The line spacing in pixels at a resolution.
    REAL GetHeight(REAL dpi) const {
        REAL height = 0.0f;
        SetStatus(DllExports::GdipGetFontHeightGivenDPI(native_, dpi, &height));
        return height;
    }

    /// Makes the argument the font's family; its previous one is released.
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

    /// The native object, for the flat functions; null if creation failed.
    GpFont* NativeObject() const { return native_; }

private:
    GpFont* native_ = nullptr;
};

}  // namespace Gdiplus
