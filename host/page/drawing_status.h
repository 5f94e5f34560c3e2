#pragma once

#include <gdiplus.h>

#include <string>

#include "page/page.h"

namespace host {

/// Why GDI+ will not draw an item's texts at a scale: no font is less than a pixel high,
/// or more than 65535. Empty when it will.
std::string WhyNotWritten(const PageItem& item, double scale);

/// Whether the texts are only too small, so that higher resolutions show them.
bool IsTooSmallToWrite(const PageItem& item, double scale);

/// Throws NamedError that names the thing, if a call on the surface has failed since the
/// last check: "title: cannot be drawn: out of memory".
/// @param why the reason, where it is known
void CheckDrawn(const Gdiplus::Graphics& graphics, const std::string& thing,
                const std::string& why);

}  // namespace host
