#pragma once

#include <string>

#include "page/page.h"

namespace page_editor {

/// Draws a page into a file of the kind that its name ends in, an image or a file for
/// print. Throws std::runtime_error with the file's name and the reason; what stood there
/// then stays. It is drawn in a process of its own.
/// @param dpi device pixels an inch
/// @param progress told how far the maps have been read, several times a second; the
/// export ends with an exception when it answers false
void ExportPage(const host::Page& page, const std::string& path, double dpi,
                const host::Progress& progress = {});

}  // namespace page_editor
