#pragma once

#include <string_view>

namespace host {

/// Whether a file's name ends so, in any case: "a/Page.PNG" in ".png". A name of nothing
/// but the ending is a hidden file without one.
bool HasEnding(std::string_view path, std::string_view ending);

}  // namespace host
