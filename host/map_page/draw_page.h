#pragma once

#include <optional>
#include <string>
#include <vector>

#include "map_page/options.h"
#include "map_page/quiet.h"
#include "page/document/opened_page.h"
#include "system/output_file.h"

namespace map_page {

/// The output files of the options, begun.
struct OutputFiles {
    explicit OutputFiles(const Options& options);

    std::optional<host::OutputFile> output;
    std::optional<host::OutputFile> saved;
    std::optional<host::OutputFile> world;   // beside the output
    std::optional<host::OutputFile> system;  // likewise
};

/// Gives a page the title, author and so on of the options.
void SayOfPage(const Options& options, host::Page& page);

/// Opens the page that the options ask for, and throws Error where an output would
/// replace one of its inputs.
host::OpenedPage OpenToDraw(const Options& options);

/// Draws the page that the options ask for into the one file and saves it in the other,
/// and returns what to print about each, on its own line: "1754 x 1240 pixels", "6
/// elements". Throws Error, and std::bad_alloc when memory runs out. GDI+ must be
/// running.
std::string DrawPage(const Options& options, const OutputFiles& files,
                     const Quiet& quiet);

/// Finishes the files and gives them their names.
/// @param told what DrawPage returned
/// @return the lines that say where they are
std::string Finish(const Options& options, OutputFiles& files, const std::string& told);

/// Throws Error for the first column that does not name an element with a text in the
/// page file. GDI+ must be running.
void CheckSeries(const Options& options, const std::vector<std::string>& columns);

}  // namespace map_page
