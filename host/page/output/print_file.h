#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "page/page.h"

namespace host {

/// Files for printers and their programs, in which texts and shapes are no pixels.
enum class PrintFormat { PostScript, Pdf };

/// The format that a file name's ending stands for (ps or pdf, in any case); none for
/// another ending.
std::optional<PrintFormat> PrintFormatOf(const std::string& path);

/// Throws std::runtime_error where files of the format cannot be made: PDF takes
/// Ghostscript. So it is told before the work.
void CheckPrinting(PrintFormat format);

/// The bytes of the file; see EncodePostScript and PdfFromPostScript.
std::vector<std::uint8_t> EncodeForPrint(const Page& page, PrintFormat format, double dpi,
                                         const Progress& progress = {});

}  // namespace host
