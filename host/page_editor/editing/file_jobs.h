#pragma once

// The jobs on files that the editor has done in processes of their own (see
// system/helper_process.h), so that a decoder that crashes on a damaged file, or hangs on
// a lost disk, does not take unsaved work with it. Their inputs are the fields listed, in
// that order.

#include <string>
#include <vector>

#include "system/helper_process.h"

namespace page_editor {

/// Reads of a raster what the editor is going to: its description and what legends show.
/// Path; the page file on whose behalf, empty for the user's own. Returns why it cannot
/// be read.
constexpr const char* kReadRaster = "read a raster";
/// Path.
constexpr const char* kReadImage = "read an image";
/// Path; "held" if it may read no more than a page file may.
constexpr const char* kReadPage = "read a page";
/// The items, one per line.
constexpr const char* kReadItems = "read items";
/// The map as an item; width; height. Returns its pixels.
constexpr const char* kRenderMap = "render a map";
/// The name of the output; its format as a number; dpi; the page.
constexpr const char* kDrawPage = "draw a page";

/// For host::StartHelper, in main().
host::Jobs FileJobs();

/// Fields as one input, and the fields of an input. No field contains a zero byte.
std::string Joined(const std::vector<std::string>& fields);

}  // namespace page_editor
