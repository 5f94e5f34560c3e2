#pragma once

#include <gdiplus.h>

#include <string_view>
#include <type_traits>

#include "flat_lookup/flat_lookup.h"
#include "recording/flat_functions.h"

/// Flat functions that stand in front of the system's: the program defines those of
/// flat_functions.h itself, and each hands its calls on to whatever Flat<function>::now
/// is.
namespace flat_calls {

using Gdiplus::GpStatus;

template <auto function>
inline constexpr const char* kNameOf = "";
#define FLAT_NAME(count, name) \
    template <>                \
    inline constexpr const char* kNameOf<Gdiplus::DllExports::name> = #name;
FLAT_FUNCTIONS(FLAT_NAME)
#undef FLAT_NAME

template <auto function>
struct Flat;
template <typename... Arguments, GpStatus (*function)(Arguments...)>
struct Flat<function> {
    /// The system's function.
    static GpStatus System(Arguments... arguments) {
        static const auto system = reinterpret_cast<GpStatus (*)(Arguments...)>(
            map_surround::FlatFunction(kNameOf<function>));
        return system(arguments...);
    }

    static inline GpStatus (*now)(Arguments...) = &System;
};

/// Has every function hand on to Double<function>::Call.
template <template <auto> typename Double>
void Use() {
#define FLAT_USE(count, name) \
    Flat<Gdiplus::DllExports::name>::now = &Double<Gdiplus::DllExports::name>::Call;
    FLAT_FUNCTIONS(FLAT_USE)
#undef FLAT_USE
}

/// What a function does to native objects, by its name.
enum class Deed { Makes, Deletes, Draws, Turns, Other };

constexpr Deed DeedOf(std::string_view name) {
    const auto begins = [name](std::string_view with) {
        return name.substr(0, with.size()) == with;
    };
    return begins("GdipDelete") || begins("GdipDispose") ? Deed::Deletes
           : begins("GdipCreate") || begins("GdipLoad")  ? Deed::Makes
           : name == "GdipGetImageGraphicsContext"       ? Deed::Makes
           : begins("GdipDraw") || begins("GdipFill")    ? Deed::Draws
           : name.find("WorldTransform") != name.npos    ? Deed::Turns
                                                         : Deed::Other;
}

/// The kinds of native objects.
template <typename Native>
inline constexpr const char* kKindOf = nullptr;
// clang-format off
template <> inline constexpr const char* kKindOf<Gdiplus::GpGraphics> = "graphics";
template <> inline constexpr const char* kKindOf<Gdiplus::GpMatrix> = "matrix";
template <> inline constexpr const char* kKindOf<Gdiplus::GpFontFamily> = "family";
template <> inline constexpr const char* kKindOf<Gdiplus::GpFont> = "font";
template <> inline constexpr const char* kKindOf<Gdiplus::GpStringFormat> = "format";
template <> inline constexpr const char* kKindOf<Gdiplus::GpPath> = "path";
template <> inline constexpr const char* kKindOf<Gdiplus::GpPen> = "pen";
template <> inline constexpr const char* kKindOf<Gdiplus::GpCustomLineCap> = "cap";
template <> inline constexpr const char* kKindOf<Gdiplus::GpAdjustableArrowCap> = "cap";
template <> inline constexpr const char* kKindOf<Gdiplus::GpBrush> = "brush";
template <> inline constexpr const char* kKindOf<Gdiplus::GpSolidFill> = "brush";
template <> inline constexpr const char* kKindOf<Gdiplus::GpImage> = "image";
template <> inline constexpr const char* kKindOf<Gdiplus::GpBitmap> = "image";
// clang-format on

/// The kind of native object that an argument points to; null for any other argument.
template <typename Argument>
inline constexpr const char* kKindOfArgument =
    std::is_pointer_v<Argument>
        ? kKindOf<std::remove_const_t<std::remove_pointer_t<Argument>>>
        : nullptr;

/// Whether a call fails without this object. A text needs no format, and bounds need
/// neither a matrix nor a pen.
template <typename Argument>
inline constexpr bool kIsNeeded =
    kKindOfArgument<Argument> != nullptr &&
    !std::is_same_v<Argument, const Gdiplus::GpStringFormat*> &&
    !std::is_same_v<Argument, const Gdiplus::GpMatrix*> &&
    !std::is_same_v<Argument, const Gdiplus::GpPen*>;

/// How GDI+ answers a call that wants an object.
template <typename... Arguments>
GpStatus NeedAll(Arguments... arguments) {
    const auto isThere = [](auto argument) {
        if constexpr (kIsNeeded<decltype(argument)>) {
            return argument != nullptr;
        } else {
            return true;
        }
    };
    return (isThere(arguments) && ...) ? Gdiplus::Ok : Gdiplus::InvalidParameter;
}

/// Where a creating call puts what it makes.
template <typename Native, typename... Rest>
Native** PlaceOfMade(Native** place, Rest...) {
    return place;
}
template <typename First, typename... Rest,
          typename = std::enable_if_t<!std::is_pointer_v<std::remove_pointer_t<First>>>>
auto PlaceOfMade(First, Rest... rest) {
    return PlaceOfMade(rest...);
}

}  // namespace flat_calls
