#pragma once

#include <string>

#include "page/page.h"

namespace page_editor {

/// Draws a page into an image or a file for print, as the name's ending says, in a
/// separate process. Throws std::runtime_error with the file's name and the reason; an
/// older file of that name is then left alone.
/// @param dpi device pixels an inch
/// @param progress called several times a second with how far the maps have been read;
/// returning false cancels the export, which then throws
void ExportPage(const host::Page& page, const std::string& path, double dpi,
                const host::Progress& progress = {});

}  // namespace page_editor
