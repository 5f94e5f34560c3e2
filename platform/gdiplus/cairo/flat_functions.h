#pragma once

// The library exports nothing but the flat functions.
#pragma GCC visibility push(default)
#include "gdiplus/codec.h"
#include "gdiplus/flat.h"
#include "gdiplus/startup.h"
#pragma GCC visibility pop

#include <new>

#include "cairo/running.h"

namespace engine {

using namespace Gdiplus;

/// Runs the work of a flat function. C++ exceptions for lack of memory end here.
template <typename Work>
GpStatus Guarded(Work work) noexcept {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return OutOfMemory;
    } catch (...) {
        return GenericError;
    }
}

/// Makes an object from valid arguments, if GDI+ is running.
template <typename Native, typename Build>
GpStatus Make(Native** place, bool valid, Build build) noexcept {
    if (!IsRunning()) {
        return GdiplusNotInitialized;
    }
    if (place == nullptr || !valid) {
        return InvalidParameter;
    }
    return Guarded([&] {
        *place = build();
        return Ok;
    });
}

/// Returns a value of an object: InvalidParameter without the object or a place for the
/// value.
template <typename Object, typename Value, typename Read>
GpStatus Tell(const Object* object, Value* value, Read read) {
    if (object == nullptr || value == nullptr) {
        return InvalidParameter;
    }
    *value = read(*object);
    return Ok;
}

template <typename Object, typename Change>
GpStatus Set(Object* object, bool valid, Change change) {
    if (object == nullptr || !valid) {
        return InvalidParameter;
    }
    change(*object);
    return Ok;
}

/// Whether a value of an enumeration that begins at 0 is one of those up to the last.
template <typename Enumeration>
bool IsUpTo(Enumeration value, Enumeration last) {
    return value >= 0 && value <= last;
}

/// Whether a pen or a font can be measured in a unit.
inline bool IsUnit(Unit unit) {
    return IsUpTo(unit, UnitMillimeter) && unit != UnitDisplay;
}

template <typename Object>
GpStatus Delete(Object* object) {
    delete object;
    return object == nullptr ? InvalidParameter : Ok;
}

}  // namespace engine
