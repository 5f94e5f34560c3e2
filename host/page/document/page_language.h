#pragma once

#include <utility>
#include <vector>

#include "page/document/property.h"
#include "page/language.h"

namespace host {

/// What the properties of a legend or a scale bar that hold words are in a language.
/// Those that hold the words of no language are somebody's own, and not among them.
std::vector<std::pair<const Property*, PropertyValue>> WordsIn(const Language& language,
                                                               const PageItem& item);

}  // namespace host
