#include "page/output/print_file.h"

#include "page/output/pdf_file.h"
#include "page/output/postscript_file.h"
#include "system/file_ending.h"

namespace host {

std::optional<PrintFormat> PrintFormatOf(const std::string& path) {
    if (HasEnding(path, ".ps")) {
        return PrintFormat::PostScript;
    }
    if (HasEnding(path, ".pdf")) {
        return PrintFormat::Pdf;
    }
    return std::nullopt;
}

void CheckPrinting(PrintFormat format) {
    if (format == PrintFormat::Pdf) {
        CheckGhostscript();
    }
}

std::vector<std::uint8_t> EncodeForPrint(const Page& page, PrintFormat format, double dpi,
                                         const Progress& progress) {
    std::vector<std::uint8_t> file = EncodePostScript(page, dpi, progress);
    return format == PrintFormat::Pdf ? PdfFromPostScript(file) : file;
}

}  // namespace host
