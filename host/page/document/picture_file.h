#pragma once

#include <string>

namespace host {

/// Why GDI+ should not open a picture: it is not a plain file, or has more than 100
/// million pixels, which GDI+ would hold in memory all at once. Without the file's name;
/// empty when it may be opened.
std::string WhyNotOpened(const std::string& picture);

/// What is wrong with a picture's image file, beginning with its name; empty when nothing
/// is.
std::string CheckImageFile(const std::string& path);

}  // namespace host
