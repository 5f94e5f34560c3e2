#pragma once

#include <string>

#include "page/page.h"

namespace page_editor {

/// Draws a page into an image file of the kind that its name ends in. Throws
/// std::runtime_error with the file's name and the reason; what stood there then stays.
/// @param dpi device pixels an inch
/// @param progress told how far the maps have been read
void ExportImage(const host::Page& page, const std::string& path, double dpi,
                 const host::Progress& progress = {});

}  // namespace page_editor
