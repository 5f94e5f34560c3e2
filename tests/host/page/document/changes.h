#pragma once

#include <functional>
#include <string>
#include <vector>

#include "page/page.h"

namespace host_tests {

/// A change of one property away from its default, made and looked for with the classes'
/// own operations.
struct Change {
    std::string property;
    std::function<void(host::PageItem&)> make;
    std::function<bool(const host::PageItem&)> isMade;
};

/// Changes of the frame that every item has.
std::vector<Change> FrameChanges();

/// Changes of all else that an item of a type has, one a property.
/// @param folder where scene.tif and logo.png lie
std::vector<Change> ChangesOf(const std::string& type, const std::string& folder);

/// Both.
std::vector<Change> AllChangesOf(const std::string& type, const std::string& folder);

}  // namespace host_tests
