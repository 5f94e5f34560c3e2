#pragma once

#include <string>
#include <vector>

namespace host {

/// The formats that a page can be drawn in: images, and files for print, in which texts
/// and shapes are not pixels.
enum class OutputFormat { Png, Jpeg, Bmp, Tiff, PostScript, Pdf, Svg };

/// A format as people know it.
struct OutputFormatFacts {
    OutputFormat format;
    const char* name;                  ///< "TIFF"
    std::vector<const char*> endings;  ///< of its files' names: ".tif", ".tiff"
    bool isForPrint = false;
    const char* worldFile = "";  ///< the ending of its world files, where it has some
};

/// Every format: the one list behind options, messages and dialogs.
const std::vector<OutputFormatFacts>& OutputFormats();

/// The format for a file name's ending, in any case: "a/Page.TIFF". For any other ending
/// throws std::runtime_error that lists them.
OutputFormat OutputFormatOf(const std::string& path);

const OutputFormatFacts& FactsOf(OutputFormat format);

/// Whether it is a format for print, not an image.
bool IsForPrint(OutputFormat format);

/// The usual endings of some formats, as a sentence has them: ".pdf, .svg or .ps".
std::string EndingsOfThose(bool (*which)(const OutputFormatFacts&));

}  // namespace host
