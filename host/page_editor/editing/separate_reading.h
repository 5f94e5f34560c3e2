#pragma once

// Files are decoded in separate processes first (see file_jobs.h).
//
// `progress` is called a few times a second when reading takes long, and with 1 at the
// end; returning false cancels the reading.

#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/page.h"
#include "system/errors.h"

namespace page_editor {

/// host::RenderMap in a separate process, which opens the rasters itself. Throws
/// std::runtime_error when they cannot be read.
host::PixelImage RenderSeparately(host::MapPicture& picture, int width, int height,
                                  const host::Progress& progress);

/// A page file would have something read that it may not: "/etc/a.tif is outside /maps".
class NotAllowed : public host::NamedError {
public:
    using NamedError::NamedError;
};

/// Reads from rasters that are not open yet what the editor is going to read: their
/// descriptions and what legends show. Throws host::PageError that names the first raster
/// on which a decoder crashed or reading was cancelled; other errors appear when the
/// editor reads it.
/// @param pageFile on whose behalf, so that only what host::AllowedSources has below its
/// folder is read; empty for the user's own rasters. Throws NotAllowed for a raster that
/// cannot be read within these limits.
void TryRasters(const std::vector<std::string>& paths, const host::RasterStore& rasters,
                const host::Progress& progress, const std::string& pageFile = {});

/// The same for the rasters that items name.
void TryRastersOf(const std::vector<host::PageItem>& items,
                  const host::RasterStore& rasters, const host::Progress& progress,
                  const std::string& pageFile = {});

/// The same for the image of a picture.
void TryImage(const std::string& path, const host::Progress& progress);

/// The same for a page file with its pictures, but without rasters; the error does not
/// name the file.
/// @param isHeld whether only what host::AllowedSources has below its folder may be read;
/// other files are left to be refused later
void TryPageFile(const std::string& path, bool isHeld, const host::Progress& progress);

/// The same for items as text, one per line.
void TryItems(const std::string& lines, const host::Progress& progress);

}  // namespace page_editor
