#pragma once

#include <string>

#include "page/language.h"
#include "page/page.h"

namespace host {

/// What stands for an item to those who do not see it, from what the page knows, in a
/// language: "Scale bar: 12 km, in 4 divisions". Of a map only what its coordinate system
/// tells. Empty for what is decoration, such as a frame without an element, and for what
/// is text itself.
std::wstring AlternativeText(const Page& page, const PageItem& item,
                             const Language& language);

}  // namespace host
