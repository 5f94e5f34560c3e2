#pragma once

// Files are decoded in separate processes, so that a decoder that crashes on a damaged
// file, or hangs on a lost disk, does not take unsaved work with it.
//
// `progress` is called a few times a second when reading takes long, and with 1 at the
// end; returning false cancels the reading.

#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/page.h"

namespace page_editor {

/// host::RenderMap in a separate process, which opens the rasters itself. Throws
/// std::runtime_error when they cannot be read.
host::PixelImage RenderSeparately(host::MapPicture& picture, int width, int height,
                                  const host::Progress& progress);

/// Reads from rasters that are not open yet what the editor is going to read: their
/// descriptions and what legends show. Throws host::PageError naming the first raster on
/// which a decoder died or reading was cancelled; other errors come up when the editor
/// reads it.
void TryRasters(const std::vector<std::string>& paths, const host::RasterStore& rasters,
                const host::Progress& progress);

/// The same for the rasters that items name.
void TryRastersOf(const std::vector<host::PageItem>& items,
                  const host::RasterStore& rasters, const host::Progress& progress);

/// The same for the image of a picture.
void TryImage(const std::string& path, const host::Progress& progress);

/// The same for a page file with its pictures, but without rasters; the error does not
/// name the file.
void TryPageFile(const std::string& path, const host::Progress& progress);

/// The same for items as text, a line each.
void TryItems(const std::string& lines, const host::Progress& progress);

}  // namespace page_editor
