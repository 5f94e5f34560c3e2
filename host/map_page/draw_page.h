#pragma once

#include <optional>
#include <string>
#include <vector>

#include "map_page/options.h"
#include "map_page/quiet.h"
#include "page/document/opened_page.h"
#include "system/output_file.h"

namespace map_page {

/// The files that the options ask for, begun.
struct OutputFiles {
    explicit OutputFiles(const Options& options);

    std::optional<host::OutputFile> output;
    std::optional<host::OutputFile> saved;
    std::optional<host::OutputFile> world;   // beside the output
    std::optional<host::OutputFile> system;  // likewise
};

/// Has a page say of itself what the options say of it.
void SayOfPage(const Options& options, host::Page& page);

/// Opens the page that the options ask for, and throws Error where an output would
/// replace one of its inputs.
host::OpenedPage OpenToDraw(const Options& options);

/// Draws the page that the options ask for into the one file and saves it in the other,
/// and returns what a person is told of each, on a line of its own: "1754 x 1240 pixels",
/// "6 elements". Throws Error, and std::bad_alloc when the memory does not suffice. GDI+
/// must have been started.
std::string DrawPage(const Options& options, const OutputFiles& files,
                     const Quiet& quiet);

/// Finishes the files that were drawn into and gives them their names.
/// @param told what DrawPage returned
/// @return the lines that say where they are
std::string Finish(const Options& options, OutputFiles& files, const std::string& told);

/// Throws Error for the first of the columns that names no element with a text in the
/// page file. GDI+ must have been started.
void CheckSeries(const Options& options, const std::vector<std::string>& columns);

}  // namespace map_page
