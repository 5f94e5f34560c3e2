#pragma once

// Opening pages in the editor: everything that decodes files is tried in processes of its
// own first (see separate_reading.h). Errors are those of page/document/opened_page.h.

#include <functional>
#include <string>
#include <vector>

#include "page/document/opened_page.h"
#include "system/progress.h"

namespace page_editor {

/// Asks whether a page file may have something read that lies outside its folder or is
/// not a plain raster or picture, described on one line.
using MayRead = std::function<bool(const std::string& what)>;

/// Opens a page file. Missing files are remarked on and left to be repaired: a map is
/// hatched (see OpenOrHatch), a picture empty. The page file may come from a stranger:
/// unless the answer is yes, only what host::AllowedSources has below its folder is read.
/// @param mayRead asked at most once; after a yes the page may have anything read
/// @param reading called with the progress of reading; returning false cancels it
host::OpenedPage OpenPageFile(const std::string& path, const MayRead& mayRead,
                              const host::Progress& reading = {});

/// Lays out an A4 page around at least one raster, titled after the first.
/// @param reading as above
host::OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                               const host::Progress& reading = {});

}  // namespace page_editor
