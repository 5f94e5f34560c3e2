#pragma once

// What decodes files is done in processes of its own, so that a decoder that crashes on a
// damaged one, or waits for a disk that is gone, does not take unsaved work along.
//
// Each is given whom to tell how far it has come when it takes long, a few times a
// second, and 1 in the end. It is given up where the answer is false.

#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/page.h"

namespace page_editor {

/// host::RenderMap in a separate process, of rasters opened there anew. Throws
/// std::runtime_error when they cannot be read to the end.
host::PixelImage RenderSeparately(host::MapPicture& picture, int width, int height,
                                  const host::Progress& progress);

/// Reads of rasters that are not open yet, in a separate process, what this one is going
/// to read of them: their descriptions and what legends tell. Throws host::PageError that
/// names the first on which a decoder died, or that was given up; what else is wrong with
/// one is not told.
void TryRasters(const std::vector<std::string>& paths, const host::RasterStore& rasters,
                const host::Progress& progress);

/// The same of the rasters that items name.
void TryRastersOf(const std::vector<host::PageItem>& items,
                  const host::RasterStore& rasters, const host::Progress& progress);

/// The same of an image for a picture.
void TryImage(const std::string& path, const host::Progress& progress);

/// The same of a page file with its pictures, but without rasters; the error does not
/// name it.
void TryPageFile(const std::string& path, const host::Progress& progress);

/// The same of items as text, a line each.
void TryItems(const std::string& lines, const host::Progress& progress);

}  // namespace page_editor
