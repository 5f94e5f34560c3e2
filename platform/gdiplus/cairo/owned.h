#pragma once

#include <memory>

namespace engine {

template <auto destroy>
struct DestroyWith {
    template <typename Object>
    void operator()(Object* object) const {
        destroy(object);
    }
};

/// An object of a C library, released with that library's function.
template <typename Object, auto destroy>
using Owned = std::unique_ptr<Object, DestroyWith<destroy>>;

}  // namespace engine
