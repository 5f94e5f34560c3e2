#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "page/document/page_changes.h"
#include "system/allowed_sources.h"

namespace map_page {

/// One page of a series, from a row of its list.
struct SeriesPage {
    std::size_t line = 0;  ///< of the list, counted from 1
    std::string output;
    std::string name;  ///< the value of column "name", for an atlas page
    host::PageChanges changes;
    std::string error;  ///< why it cannot be drawn; empty for none
};

/// A series of pages, from a list of comma-separated values whose first row names the
/// columns (see docs/series.md).
struct SeriesList {
    /// Columns that set the text of the element with the same name, if there is one.
    std::vector<std::string> textColumns;
    /// Columns used in the outputs' names; they need not name an element as well.
    std::vector<std::string> nameColumns;
    std::vector<SeriesPage> pages;
};

/// Whether all pages go into one file: a PDF file without a {column} in its name.
bool IsAtlas(const std::string& output);

/// Reads a list.
/// @param path of the list; its rasters are relative to its folder
/// @param output name of the outputs, in which {column} is the row's value. Slashes and
/// control characters in a value, and a dot at its start, become underscores, so that no
/// value leads into another folder. Where all pages go into one file, an atlas, the
/// column "name" need not be part of its name.
/// @param allowed what may be read of the rasters; null: everything. A row with other
/// rasters gets an error. Throws Error when the file is not a list, a column has no name
/// or a duplicate one, a placeholder names no column, or two rows have the same output.
SeriesList ReadSeries(const std::string& path, const std::string& output,
                      const host::AllowedSources* allowed);

}  // namespace map_page
