#pragma once

// Pages and single items as JSON text. docs/page_file.md describes the format.

#include <string>
#include <vector>

#include "page/document/file_paths.h"
#include "page/page.h"

namespace host {

/// An item as JSON text on one line, with every property. Throws PageError for an item
/// without a type (see TypeOf) and for a value outside its property's range.
///
/// ReadItem makes the same item again: an editor keeps these texts for undo, copies and
/// the clipboard.
std::string WriteItem(const PageItem& item);

/// The item that a text describes, measured. What the text leaves out has its default;
/// size and proportions left out are the natural ones. Opens a picture's file but no
/// rasters (see OpenRasters). Throws PageError. GDI+ must be running.
PageItem ReadItem(const std::string& text);

/// The items that a text describes, one per line.
std::vector<PageItem> ReadItems(const std::string& lines);

/// A page as JSON text; reading it and writing it again gives the same bytes. Throws
/// PageError as WriteItem does.
/// @param paths those of the file that the text is for
std::string WritePage(const Page& page, const FilePaths& paths);

/// The page that a text describes; as ReadItem.
Page ReadPage(const std::string& text, const FilePaths& paths);

/// Reads a page file. Throws std::runtime_error with the reason, without the file's name.
/// @param allowed what the page file may have read; null: everything
Page LoadPage(const std::string& path, const AllowedSources* allowed = nullptr);

}  // namespace host
