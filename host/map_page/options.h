#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "page/document/page_changes.h"
#include "page/layout/page_design.h"
#include "page/output/output_format.h"

namespace map_page {

/// What the command line asks for, checked as far as it can be without opening a file.
struct Options {
    std::vector<std::string> rasters;
    std::string pageFile;  ///< drawn instead of rasters; empty for none
    std::string output;    ///< empty for none
    std::optional<host::OutputFormat> format;  ///< of the output
    std::string save;                          ///< the page file to write; empty for none
    std::string series;         ///< the list of pages to draw; empty for one page
    std::size_t jobs = 1;       ///< pages of the series drawn at a time
    host::PageChanges changes;  ///< of the page file's page
    double dpi = 150.0;
    host::PageDesign design;
    std::string picture;      ///< as given; design.picture holds it as wide text
    std::string titleFamily;  ///< likewise
    std::string legendFamily;
};

/// Reads the command line.
/// @return none when only help or the version was asked for, which is then printed.
/// Throws UsageError for a wrong call and Error for a value that makes no sense.
std::optional<Options> ReadCommandLine(int argc, const char* const* argv);

}  // namespace map_page
