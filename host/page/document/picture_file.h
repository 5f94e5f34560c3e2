#pragma once

#include <string>

namespace host {

/// What speaks against having GDI+ open a picture, before it is: what is there is no
/// plain file, or says that it has more than 100 million pixels, which GDI+ would hold
/// all at once. Without the file's name; empty when nothing does.
std::string WhyNotOpened(const std::string& picture);

/// What is wrong with an image file for a picture, beginning with its name; empty when
/// nothing is.
std::string CheckImageFile(const std::string& path);

}  // namespace host
