#include "page/output/output_format.h"

#include <stdexcept>

#include "system/file_ending.h"

namespace host {
namespace {

struct Ending {
    const char* text;
    OutputFormat format;
};

constexpr Ending kEndings[] = {
    {".png", OutputFormat::Png},       {".jpg", OutputFormat::Jpeg},
    {".jpeg", OutputFormat::Jpeg},     {".bmp", OutputFormat::Bmp},
    {".tif", OutputFormat::Tiff},      {".tiff", OutputFormat::Tiff},
    {".pdf", OutputFormat::Pdf},       {".svg", OutputFormat::Svg},
    {".ps", OutputFormat::PostScript},
};

}  // namespace

OutputFormat OutputFormatOf(const std::string& path) {
    std::string all;
    for (const Ending& ending : kEndings) {
        if (HasEnding(path, ending.text)) {
            return ending.format;
        }
        all += std::string(" ") + ending.text;
    }
    throw std::runtime_error("ends in none of" + all);
}

bool IsForPrint(OutputFormat format) {
    return format == OutputFormat::PostScript || format == OutputFormat::Pdf ||
           format == OutputFormat::Svg;
}

}  // namespace host
