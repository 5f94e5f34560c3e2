#pragma once

#include <utility>
#include <vector>

#include "page/document/property.h"
#include "page/language.h"

namespace host {

/// The properties of a legend or a scale bar that hold words, with their values in a
/// language. Properties whose words are in none of the languages are the user's own and
/// left out.
std::vector<std::pair<const Property*, PropertyValue>> WordsIn(const Language& language,
                                                               const PageItem& item);

}  // namespace host
