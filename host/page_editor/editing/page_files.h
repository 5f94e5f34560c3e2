#pragma once

// Opening pages in the editor: what decodes files is tried in processes of its own first
// (see separate_reading.h). Errors are as those of page/document/opened_page.h.

#include <string>
#include <vector>

#include "page/document/opened_page.h"
#include "system/progress.h"

namespace page_editor {

/// The page of a page file.
/// @param reading told how far reading has come; ends it by answering false
host::OpenedPage OpenPageFile(const std::string& path,
                              const host::Progress& reading = {});

/// An A4 page laid out by itself around rasters, at least one; the first names it.
/// @param reading as above
host::OpenedPage LayOutRasters(const std::vector<std::string>& paths,
                               const host::Progress& reading = {});

}  // namespace page_editor
