#include "page/output/output_format.h"

#include <algorithm>
#include <stdexcept>

#include "system/file_ending.h"

namespace host {

const std::vector<OutputFormatFacts>& OutputFormats() {
    static const std::vector<OutputFormatFacts> formats = {
        {OutputFormat::Png, "PNG", {".png"}, false, ".pgw"},
        {OutputFormat::Jpeg, "JPEG", {".jpg", ".jpeg"}, false, ".jgw"},
        {OutputFormat::Bmp, "BMP", {".bmp"}},
        {OutputFormat::Tiff, "TIFF", {".tif", ".tiff"}},
        {OutputFormat::Pdf, "PDF", {".pdf"}, true},
        {OutputFormat::Svg, "SVG", {".svg"}, true},
        {OutputFormat::PostScript, "PostScript", {".ps"}, true},
    };
    return formats;
}

OutputFormat OutputFormatOf(const std::string& path) {
    std::string all;
    for (const OutputFormatFacts& facts : OutputFormats()) {
        for (const char* const ending : facts.endings) {
            if (HasEnding(path, ending)) {
                return facts.format;
            }
            all += std::string(" ") + ending;
        }
    }
    throw std::runtime_error("ends in none of" + all);
}

const OutputFormatFacts& FactsOf(OutputFormat format) {
    return *std::find_if(
        OutputFormats().begin(), OutputFormats().end(),
        [format](const OutputFormatFacts& facts) { return facts.format == format; });
}

bool IsForPrint(OutputFormat format) { return FactsOf(format).isForPrint; }

std::string EndingsOfThose(bool (*which)(const OutputFormatFacts&)) {
    std::vector<std::string> endings;
    for (const OutputFormatFacts& facts : OutputFormats()) {
        if (which(facts)) {
            endings.emplace_back(facts.endings.front());
        }
    }
    std::string text;
    for (std::size_t i = 0; i < endings.size(); ++i) {
        const char* const before = i + 1 == endings.size() ? " or " : ", ";
        text += (i == 0 ? "" : before) + endings[i];
    }
    return text;
}

}  // namespace host
