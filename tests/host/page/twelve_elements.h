#pragma once

#include "page/page.h"

namespace host_tests {

/// An A4 page with a map, which has a hole, and twelve framed elements of every kind,
/// some of which lie over each other and some over the map.
host::Page TwelveElements();

}  // namespace host_tests
