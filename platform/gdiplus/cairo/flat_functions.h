#pragma once

// The flat functions are all that this library shows to the outside.
#pragma GCC visibility push(default)
#include "gdiplus/codec.h"
#include "gdiplus/flat.h"
#include "gdiplus/startup.h"
#pragma GCC visibility pop

#include <new>

#include "cairo/running.h"

namespace engine {

using namespace Gdiplus;

/// Runs the work of a flat function. What C++ throws for want of memory ends here.
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

/// Makes an object of what is valid, once GDI+ was started.
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

/// Tells a value of an object: InvalidParameter without the one or a place for the other.
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

template <typename Object>
GpStatus Delete(Object* object) {
    delete object;
    return object == nullptr ? InvalidParameter : Ok;
}

}  // namespace engine
