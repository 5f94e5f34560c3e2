#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "page/document/page_changes.h"
#include "page/layout/page_design.h"
#include "page/output/output_format.h"
#include "page/output/print_settings.h"
#include "system/separate_process.h"

namespace map_page {

/// What the command line asks for, checked as far as possible without opening a file.
struct Options {
    std::vector<std::string> rasters;  ///< with a page file, they replace its own
    std::string pageFile;              ///< drawn instead of rasters; empty for none
    std::string output;                ///< empty for none
    std::optional<host::OutputFormat> format;  ///< of the output
    bool hasWorldFile = false;                 ///< beside the output
    std::string save;                          ///< the page file to write; empty for none
    std::string series;         ///< the list of pages to draw; empty for one page
    int jobs = 1;               ///< pages of the series drawn at a time
    host::PageChanges changes;  ///< to the page file's page
    double dpi = 150.0;
    host::PrintSettings print;
    host::PageAbout about;  ///< the page's own title and so on; empty: unchanged
    bool isStrict = false;  ///< a warning is a failure
    host::PageDesign design;
    std::vector<std::string> allowedFolders;  ///< files may be read there, too
    bool allowRemote = false;                 ///< a page file may use network services
    bool allowAll = false;    ///< a page file may use whatever the caller may
    host::WorkLimits limits;  ///< of the process that draws
    std::string picture;      ///< as given; design.picture holds it as wide text
    std::string titleFamily;  ///< likewise
    std::string legendFamily;
};

/// Reads the command line.
/// @return what to draw, or a text that was asked for instead: help, version, schema.
/// Throws UsageError for a wrong command line.
std::variant<Options, std::string> ReadCommandLine(int argc, const char* const* argv);

}  // namespace map_page
