#pragma once

#include <string>

#include "page/document/raster_store.h"
#include "page/output/map_images.h"
#include "page/page.h"

namespace page_editor {

/// Draws a page into an image or a file for print, by the name's ending, in a separate
/// process. Throws std::runtime_error with the file's name and the reason; an older file
/// of that name is then left alone, as is whatever the page is drawn from.
/// @param rasters those of the page
/// @return what the user should know about the older file (see host::OutputFile::Remark)
/// @param dpi device pixels per inch
/// @param pageFile the page's own file, which is left alone as well; empty for none
/// @param progress called several times a second with how far the maps have been read;
/// returning false cancels the export, which then throws
std::string ExportPage(const host::Page& page, const host::RasterStore& rasters,
                       const std::string& path, double dpi, const std::string& pageFile,
                       const host::Progress& progress = {},
                       host::MapImages mapImages = host::MapImages::Lossless);

}  // namespace page_editor
