#pragma once

// What decodes files is done in processes of its own, so that a decoder that crashes on a
// damaged one does not take unsaved work along.

#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/page.h"

namespace page_editor {

/// host::RenderMap in a separate process, of rasters opened there anew.
host::PixelImage RenderSeparately(host::MapPicture& picture, int width, int height,
                                  const host::Progress& progress);

/// Reads of rasters that are not open yet, in a separate process, what this one is going
/// to read of them: their descriptions and what legends tell. Throws host::PageError that
/// names the first on which a decoder died; what else is wrong with one is not told.
void TryRasters(const std::vector<std::string>& paths, const host::RasterStore& rasters);

/// The same of the rasters that items name.
void TryRastersOf(const std::vector<host::PageItem>& items,
                  const host::RasterStore& rasters);

/// The same of an image for a picture.
void TryImage(const std::string& path);

/// The same of a page file with its pictures, but without rasters; the error does not
/// name it.
void TryPageFile(const std::string& path);

/// The same of items as text, a line each.
void TryItems(const std::string& lines);

}  // namespace page_editor
