#pragma once

#include <string_view>

namespace host {

/// Whether a file's name has the ending, in any case: "a/Page.PNG" has ".png". A name
/// that is nothing but the ending is a hidden file without one.
bool HasEnding(std::string_view path, std::string_view ending);

}  // namespace host
