#pragma once

#include <gdiplus.h>

#include <string>

#include "page/language.h"

namespace host {

/// The name of a colour, whatever its alpha: 0xFF0000FF is "blue", 0xFF000080 "dark
/// blue".
std::wstring ColourWords(Gdiplus::ARGB colour, const SpokenWords& words);

}  // namespace host
