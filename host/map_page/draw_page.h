#pragma once

#include "map_page/options.h"

namespace map_page {

/// Draws the page that the options ask for and says on standard output where it is.
/// Throws Error, and std::bad_alloc when the memory does not suffice. GDI+ must have been
/// started.
void DrawPage(const Options& options);

}  // namespace map_page
