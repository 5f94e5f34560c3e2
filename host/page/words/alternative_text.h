#pragma once

#include <string>

#include "page/language.h"
#include "page/page.h"

namespace host {

/// The words for an item, for those who cannot see it, from what the page knows, in a
/// language: "Scale bar: 12 km, in 4 divisions". Of a map, only what its coordinate
/// system tells. Empty for decoration, such as a frame without an element, and for an
/// item that is text itself.
std::wstring AlternativeText(const Page& page, const PageItem& item,
                             const Language& language);

}  // namespace host
