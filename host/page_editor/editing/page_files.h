#pragma once

// Opening pages in the editor: what decodes files is tried in processes of its own first
// (see separate_reading.h). Errors are as those of page/document/opened_page.h.

#include <string>
#include <vector>

#include "page/document/opened_page.h"
#include "system/progress.h"

namespace page_editor {

/// Opens a page file.
/// @param reading called with the progress of reading; returning false cancels it
host::OpenedPage OpenPageFile(const std::string& path,
                              const host::Progress& reading = {});

/// Lays an A4 page out around at least one raster, titled after the first.
/// @param reading as above
host::OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                               const host::Progress& reading = {});

}  // namespace page_editor
