#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "surface.h"

namespace bench {

/// One thing that the library does, and what it does it on.
struct Scene {
    std::string name;
    std::shared_ptr<Surface> surface;
    std::function<void()> run;
    bool draws = true;  ///< and does not only measure
};

/// Everything that the library does through flat calls, at a scale.
std::vector<std::shared_ptr<Scene>> Scenes(double scale);

}  // namespace bench
