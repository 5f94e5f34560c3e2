#pragma once

#include <cstdint>

#include "gdiplus/enums.h"

namespace Gdiplus {

typedef std::int32_t INT;
typedef std::uint32_t UINT;
typedef std::uint16_t UINT16;
typedef std::uint32_t UINT32;
typedef std::uint8_t BYTE;
typedef std::uint32_t DWORD;
typedef std::uint32_t ULONG;  ///< 32 bits, as on Windows
// A macro in ODBC's headers, for the same type.
#ifndef BOOL
typedef std::int32_t BOOL;
#endif
typedef wchar_t WCHAR;
typedef std::uint16_t LANGID;
typedef std::uintptr_t ULONG_PTR;
typedef void VOID;
static_assert(sizeof(BOOL) == 4);

typedef float REAL;
typedef std::uint32_t ARGB;  ///< alpha in the top byte, then red, green, blue

typedef UINT GraphicsState;  ///< from Graphics::Save, for Graphics::Restore

/// A 128-bit identifier of a codec or a setting.
struct GUID {
    /// The number in its four parts.
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
};
typedef GUID CLSID;

inline bool operator==(const GUID& a, const GUID& b) {
    bool same = a.Data1 == b.Data1 && a.Data2 == b.Data2 && a.Data3 == b.Data3;
    for (int i = 0; i < 8; ++i) {
        same = same && a.Data4[i] == b.Data4[i];
    }
    return same;
}
inline bool operator!=(const GUID& a, const GUID& b) { return !(a == b); }

// The flat functions' names for plain value types.
typedef Status GpStatus;
typedef Unit GpUnit;
typedef FillMode GpFillMode;
typedef MatrixOrder GpMatrixOrder;
typedef DashStyle GpDashStyle;
typedef LineCap GpLineCap;
typedef LineJoin GpLineJoin;

// The native objects, only ever used through pointers.
class GpGraphics {};
class GpImage {};
class GpBitmap : public GpImage {};
class GpBrush {};
class GpSolidFill : public GpBrush {};
class GpPen {};
class GpCustomLineCap {};
class GpAdjustableArrowCap : public GpCustomLineCap {};
class GpFont {};
class GpFontCollection {};
class GpFontFamily {};
class GpStringFormat {};
class GpPath {};
class GpMatrix {};

}  // namespace Gdiplus
