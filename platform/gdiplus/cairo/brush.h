#pragma once

#include "cairo/flat_functions.h"

namespace engine {

/// A brush of one colour, the only kind.
struct Brush : GpSolidFill {
    ARGB color = 0;
};

inline Brush* From(GpBrush* brush) { return static_cast<Brush*>(brush); }
inline const Brush* From(const GpBrush* brush) {
    return static_cast<const Brush*>(brush);
}

}  // namespace engine
