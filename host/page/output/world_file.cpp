#include "page/output/world_file.h"

#include <cpl_string.h>

#include <memory>

#include "page/output/output_format.h"
#include "system/number_text.h"

namespace host {
WorldFiles WorldFilesOf(const std::string& picture) {
    const std::string ending = FactsOf(OutputFormatOf(picture)).worldFile;
    if (ending.empty()) {
        return {};
    }
    return {picture.substr(0, picture.rfind('.')) + ending, picture + ".aux.xml"};
}

std::string WorldText(const Georeference& georeference) {
    const auto& [x, across, turnedX, y, turnedY, down] = georeference.transform;
    std::string text;
    for (const double number :
         {across, turnedY, turnedX, down, x + across / 2.0 + turnedX / 2.0,
          y + down / 2.0 + turnedY / 2.0}) {
        text += NumberText(number) + "\n";
    }
    return text;
}

std::string SystemText(const Georeference& georeference) {
    const std::string& wkt = georeference.projection;
    const std::unique_ptr<char, decltype(&VSIFree)> escaped(
        CPLEscapeString(wkt.c_str(), static_cast<int>(wkt.size()), CPLES_XML), &VSIFree);
    const std::string system =
        wkt.empty() ? "" : "  <SRS>" + std::string(escaped.get()) + "</SRS>\n";
    return "<PAMDataset>\n" + system + "</PAMDataset>\n";
}

}  // namespace host
