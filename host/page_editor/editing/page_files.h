#pragma once

// Opening pages in the editor: what decodes files is tried in processes of its own first
// (see separate_reading.h). Errors are as those of page/document/opened_page.h.

#include <functional>
#include <string>
#include <vector>

#include "page/document/opened_page.h"
#include "system/progress.h"

namespace page_editor {

/// Asked whether a page file may have something read that lies outside its folder or is
/// no plain raster or picture, told in one line.
using MayRead = std::function<bool(const std::string& what)>;

/// Opens a page file. What it names and is not there is a remark, and left to be mended:
/// a map is hatched (see OpenOrHatch), a picture empty. It may be a stranger's: unless
/// the answer is yes, nothing is read but what host::AllowedSources has below its folder.
/// @param mayRead asked at most once; after a yes the page may have anything read
/// @param reading called with the progress of reading; returning false cancels it
host::OpenedPage OpenPageFile(const std::string& path, const MayRead& mayRead,
                              const host::Progress& reading = {});

/// Lays an A4 page out around at least one raster, titled after the first.
/// @param reading as above
host::OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                               const host::Progress& reading = {});

}  // namespace page_editor
