#pragma once

#include <gdiplus.h>

#include <string>

#include "page/page.h"

namespace host {

/// What GDI+ has against the texts of an item at a scale: no font is less than a pixel
/// high, or more than 65535. Empty for nothing.
std::string WhyNotWritten(const PageItem& item, double scale);

/// Whether that is because they are too small: higher resolutions have them.
bool IsTooSmallToWrite(const PageItem& item, double scale);

/// Throws NamedError that names the thing, where a call on the surface has failed since
/// it was last asked: "title: cannot be drawn: out of memory".
/// @param why the reason, where it is known
void CheckDrawn(const Gdiplus::Graphics& graphics, const std::string& thing,
                const std::string& why);

}  // namespace host
