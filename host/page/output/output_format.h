#pragma once

#include <string>

namespace host {

/// The formats that a page can be drawn in: images, and files for print, in which texts
/// and shapes are not pixels.
enum class OutputFormat { Png, Jpeg, Bmp, Tiff, PostScript, Pdf, Svg };

/// The format for a file name's ending, in any case: "a/Page.TIFF". For any other ending
/// throws std::runtime_error that lists them.
OutputFormat OutputFormatOf(const std::string& path);

/// Whether it is a format for print, not an image.
bool IsForPrint(OutputFormat format);

}  // namespace host
